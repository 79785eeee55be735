#include <QtTest>

#include "faults/trial.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

using Request = FaultyDisk::Request;
using Fault = FaultyDisk::Fault;

/// The faults that a request can meet.
QList<Fault> FaultsOf(Request request) {
  if (request == Request::Read) return {Fault::Once, Fault::FromThenOn, Fault::BadPage};
  if (request == Request::Write) return {Fault::Once, Fault::FromThenOn, Fault::FullOnce, Fault::Full};
  return {Fault::Once, Fault::FromThenOn};
}

const char* NameOf(Request request) {
  static constexpr const char* kNames[] = {"open", "read", "write", "truncate", "sync", "delete", "file size", "lock"};
  return kNames[static_cast<int>(request)];
}

const char* NameOf(Fault fault) {
  static constexpr const char* kNames[] = {"once", "from then on", "full once", "full from then on", "bad page"};
  return kNames[static_cast<int>(fault)];
}

}  // namespace

/// Each request that a command makes of the disk fails: the command is then done whole or refused whole, one box tells
/// it, and the program goes on.
class IoFaultsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() {
    IsolateSettings();
    trial_ = std::make_unique<Trial>();
  }
  void cleanupTestCase() {
    qInfo("I/O faults: %zu commands, %d faults: %d refused whole, %d done whole, %d half, %d corrupt, %d complaints",
          Commands().size(), faults_, ends_[Trial::End::Refused], ends_[Trial::End::Done], ends_[Trial::End::Half],
          ends_[Trial::End::Corrupt], complaints_);
    trial_.reset();
  }

  void ACommandIsRefusedWholeOrDoneWhole_data() { AddRowsOfCommands(); }
  void ACommandIsRefusedWholeOrDoneWhole() {
    QFETCH(int, index);
    QVERIFY(trial_->Begin(Commands()[static_cast<size_t>(index)]));
    QVERIFY(!trial_->Requests().isEmpty());
    const int before = complaints_;
    for (int place = 0; place < trial_->Requests().size(); ++place)
      for (Fault fault : FaultsOf(trial_->Requests().at(place)))
        if (IsTurn()) Try(place, fault);
    QCOMPARE(complaints_ - before, 0);
  }

 private:
  /// Every fault when LOFTKEEP_FAULTS is "all", else every so many.
  bool IsTurn() {
    static const int stride = qEnvironmentVariable("LOFTKEEP_FAULTS") == "all"_L1 ? 1 : 13;
    return turn_++ % stride == 0;
  }
  void Try(int place, Fault fault) {
    trial_->Restore();
    trial_->Disk().FailAt(place, fault);
    trial_->Run();
    const bool hit = trial_->Disk().HasFailed();
    const Trial::Verdict verdict = trial_->Judge(fault == Fault::FromThenOn || fault == Fault::Full);
    faults_ += hit ? 1 : 0;
    ++ends_[verdict.end];
    if (verdict.complaint.isEmpty()) return;
    ++complaints_;
    qWarning("%s of request %d (%s): %s", NameOf(fault), place, NameOf(trial_->Requests().at(place)),
             qPrintable(verdict.complaint));
  }

  std::unique_ptr<Trial> trial_;
  int turn_ = 0;
  int faults_ = 0;
  int complaints_ = 0;
  QMap<Trial::End, int> ends_;
};

LOFT_TEST_MAIN(IoFaultsTest)
#include "tst_io_faults.moc"
