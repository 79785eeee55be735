#include <QtTest>

#include <sys/statvfs.h>

#include "faults/trial.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

/// Room for the loft that runs out. LOFTKEEP_SMALL_DISK tells that the loft lies on a small disk of its own, which is
/// then filled up; else SQLite is told that there is no more.
class Room {
 public:
  explicit Room(Trial& trial) : trial_(trial), filling_(trial.Folder() + u"/filling"_s) {}

  void Leave(qint64 bytes) {
    trial_.Disk().FailAt();
    if (IsReal())
      Fill(bytes);
    else
      trial_.Disk().LeaveRoom(bytes);
  }
  void Free() { filling_.remove(); }

  static bool IsReal() { return qEnvironmentVariableIsSet("LOFTKEEP_SMALL_DISK"); }

 private:
  qint64 LeftOver() const {
    struct statvfs disk = {};
    if (statvfs(trial_.Folder().toUtf8().constData(), &disk) != 0) qFatal("no such disk");
    return static_cast<qint64>(disk.f_bavail * disk.f_frsize);
  }
  void Fill(qint64 bytes) {
    const QByteArray block(4096, 'x');
    if (!filling_.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) qFatal("no filling");
    while (LeftOver() > bytes && filling_.write(block) > 0) {
    }
    filling_.close();
  }

  Trial& trial_;
  QFile filling_;
};

}  // namespace

/// Each command with less and less room on the disk: it is done whole or refused whole, and one box tells it.
class FullDiskTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() {
    IsolateSettings();
    trial_ = std::make_unique<Trial>();
  }
  void cleanupTestCase() {
    qInfo("Full disk (%s): %zu commands, %d runs: %d refused whole, %d done whole, %d half, %d corrupt, %d complaints",
          Room::IsReal() ? "a real one" : "by quota", Commands().size(), runs_, ends_[Trial::End::Refused],
          ends_[Trial::End::Done], ends_[Trial::End::Half], ends_[Trial::End::Corrupt], complaints_);
    QVERIFY(ends_[Trial::End::Refused] > 0);
    trial_.reset();
  }

  void ACommandIsRefusedWholeOrDoneWhole_data() { AddRowsOfCommands(); }
  void ACommandIsRefusedWholeOrDoneWhole() {
    QFETCH(int, index);
    QVERIFY(trial_->Begin(Commands()[static_cast<size_t>(index)]));
    const int before = complaints_;
    constexpr int kEnough = 96 * 1024;
    for (int room = 0; room < kEnough; room += Step()) Try(room);
    QCOMPARE(complaints_ - before, 0);
  }

 private:
  /// A page, or a quarter of one, when LOFTKEEP_FAULTS is "all".
  static int Step() {
    if (qEnvironmentVariable("LOFTKEEP_FAULTS") != "all"_L1) return 24 * 1024;
    return Room::IsReal() ? 4096 : 1024;
  }
  void Try(int bytes) {
    Room room(*trial_);
    trial_->Restore();
    room.Leave(bytes);
    trial_->Run();
    room.Free();
    const Trial::Verdict verdict = trial_->Judge(false);
    ++runs_;
    ++ends_[verdict.end];
    if (verdict.complaint.isEmpty()) return;
    ++complaints_;
    qWarning("%d bytes of room: %s", bytes, qPrintable(verdict.complaint));
  }

  std::unique_ptr<Trial> trial_;
  int runs_ = 0;
  int complaints_ = 0;
  QMap<Trial::End, int> ends_;
};

LOFT_TEST_MAIN(FullDiskTest)
#include "tst_full_disk.moc"
