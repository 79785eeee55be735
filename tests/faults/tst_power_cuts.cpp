#include <QtTest>

#include <sqlite3.h>

#include "core/store/connection.h"
#include "core/store/database.h"
#include "faults/trial.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

using End = Trial::End;

/// What the cuts of a run have left.
struct Figures {
  int cuts = 0;
  QMap<End, int> ends;

  int Bad() const { return ends.value(End::Corrupt) + ends.value(End::Lost) + ends.value(End::Half); }
  void Tell(const char* name) const {
    qInfo("%s: %zu commands, %d cuts: %d before, %d after, %d half, %d corrupt, %d lost", name, Commands().size(), cuts,
          ends.value(End::Refused), ends.value(End::Done), ends.value(End::Half), ends.value(End::Corrupt),
          ends.value(End::Lost));
  }
};

/// From here on nothing waits for the disk.
void TurnSyncOff() {
  Bracket bracket;
  sqlite3_stmt* off = OpenDatabase().Plain("PRAGMA synchronous = OFF");
  while (OpenDatabase().Step(off)) {
  }
  bracket.Close();
}

}  // namespace

/// The power goes before each request that changes the disk, and after each that brings it there, in several ways: the
/// command is then done whole or not begun, and what has ended stays.
class PowerCutsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() {
    IsolateSettings();
    trial_ = std::make_unique<Trial>();
  }
  void cleanupTestCase() {
    synced_.Tell("Power cuts");
    unsynced_.Tell("Power cuts without syncs");
    trial_.reset();
  }

  void ACommandIsDoneWholeOrNotBegun_data() { AddRowsOfCommands(); }
  void ACommandIsDoneWholeOrNotBegun() {
    QFETCH(int, index);
    const int before = synced_.Bad();
    QVERIFY(trial_->Begin(Commands()[static_cast<size_t>(index)]));
    Cut(CutsOfOneCommand(), synced_, [] {});
    QCOMPARE(synced_.Bad() - before, 0);
  }

  /// Without this the test above would prove nothing.
  void WithoutSyncsDatabasesBreakAndWorkIsLost() {
    QVERIFY(trial_->Begin(Commands().front()));
    Cut(CutsOfOneCommand() * 4, unsynced_, &TurnSyncOff);
    QVERIFY(unsynced_.ends.value(End::Corrupt) > 0);
    QVERIFY(unsynced_.ends.value(End::Lost) > 0);
  }

 private:
  /// Of LOFTKEEP_CUTS in all.
  static int CutsOfOneCommand() {
    bool given = false;
    const int all = qEnvironmentVariableIntValue("LOFTKEEP_CUTS", &given);
    const auto commands = static_cast<int>(Commands().size());
    return ((given ? all : 2000) + commands - 1) / commands;
  }

  /// Spreads so many cuts over the command, and a part of them behind its end.
  void Cut(int cuts, Figures& figures, const std::function<void()>& settings) {
    const int moments = CountMoments(settings);
    int moment = 0;
    const auto atMoment = [&](bool acknowledged) {
      for (int n = moment * cuts / moments; n < (moment + 1) * cuts / moments; ++n) CutOnce(figures, acknowledged);
      ++moment;
    };
    trial_->Restore();
    settings();
    trial_->Disk().OnEachChange([&] { atMoment(false); });
    trial_->Run();
    while (moment < moments) atMoment(true);
    trial_->Disk().OnEachChange({});
    trial_->Leave();
  }
  /// How often the command changes the disk, and as many moments behind its end as a tenth of that.
  int CountMoments(const std::function<void()>& settings) {
    int changes = 0;
    trial_->Restore();
    settings();
    trial_->Disk().OnEachChange([&] { ++changes; });
    trial_->Run();
    trial_->Disk().OnEachChange({});
    trial_->Leave();
    return changes + changes / 10 + 1;
  }
  void CutOnce(Figures& figures, bool acknowledged) {
    ++figures.cuts;
    const Trial::Verdict verdict = trial_->JudgeCut(trial_->Disk().Survivors(random_), acknowledged);
    ++figures.ends[verdict.end];
    if (&figures == &synced_ && !verdict.complaint.isEmpty()) qWarning("%s", qPrintable(verdict.complaint));
  }

  std::unique_ptr<Trial> trial_;
  std::mt19937 random_{20260315};
  Figures synced_;
  Figures unsynced_;
};

LOFT_TEST_MAIN(PowerCutsTest)
#include "tst_power_cuts.moc"
