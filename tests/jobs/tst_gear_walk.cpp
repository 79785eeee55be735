#include <QRandomGenerator>
#include <QtTest>

#include "jobs/gear_shop.h"
#include "jobs/install_component.h"
#include "jobs/remove_component.h"
#include "jobs/rig_sync.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

/// Three jobs - two on the two rigs, one on none - and a heap of gear that all of them fight for.
struct Walk : GearShop {
  QRandomGenerator random;
  QList<int> jobs;
  QList<int> components;
  int worked = 0;  ///< the job of the last step

  explicit Walk(quint32 seed) : random(seed) {
    for (const int type : {kContainer, kMainCanopy, kReserveCanopy, kAad})
      for (int copy = 0; copy < 3; ++copy) AddComponent("Spare", type, 0);
    for (const QString& id : loft.Rows(u"select ID from tblComponents order by ID"_s)) components << id.toInt();
    int onRed = 0;
    int loose = 0;
    CreateNewJob(u"Red"_s, ann, red, 0, onRed, rigger, 0, kDone);
    CreateNewJob(u"Loose"_s, owner, 0, 0, loose, rigger, 0, kDone);
    jobs = {job, onRed, loose};
    prompts.AnswerRestWith([this](const ShownPrompt& shown) {
      constexpr Answer kAnswers[] = {Answer::Yes, Answer::Yes, Answer::Yes, Answer::No, Answer::Cancel};
      const Answer answer = kAnswers[random.bounded(5)];
      if (shown.buttons == Buttons::Ok) return Answer::Ok;
      return shown.buttons == Buttons::YesNo && answer == Answer::Cancel ? Answer::No : answer;
    });
  }

  int Any(const QList<int>& list) { return list.isEmpty() ? 0 : list.at(random.bounded(int(list.size()))); }

  /// One thing that a person does; whether it changed something by its own account, and nothing when the person gave
  /// it no chance to say.
  std::optional<bool> Step() {
    const JobContext at = JobContextOf(Any(jobs));
    worked = at.jobID;
    const int chosen = Any(components);
    switch (random.bounded(8)) {
      case 0:
      case 1:
      case 2:
        return RigExists(at.rigID) ? InstallOnJob(at, {chosen}, kDone) : AddToJobWithoutRig(at.jobID, {chosen});
      case 3:
        if (!RigExists(at.rigID)) return std::nullopt;
        return InstallOnJob(at, {chosen, ChosenComponent::BySerial}, kDone);
      case 4:
      case 5:
        if (const int worn = Any(ComponentsOfJob(at.jobID)); worn != 0) return RemoveFromJob(at, worn, kDone);
        return std::nullopt;
      case 6:
        UpdateRigFromJob(at.jobID, at.rigID);
        return std::nullopt;
      default:
        // A day later somebody takes gear out of a rig, or deletes the lines of a job.
        if (random.bounded(2) == 0)
          SetComponentRig(chosen, 0);
        else
          for (int line : LinesOfJob(at.jobID)) DeleteTask(line);
        return std::nullopt;
    }
  }

  /// Rows that break what always holds.
  QStringList Broken() const {
    return loft.Rows(
               u"select 'rig', RigID, TypeID from tblComponents where RigID <> 0 group by RigID, TypeID "
               "having count(*) > 1"_s) +
           loft.Rows(
               u"select 'job', j.JobID, c.TypeID from tblJobComponents j join tblComponents c on c.ID = "
               "j.ComponentID group by j.JobID, c.TypeID having count(*) > 1"_s) +
           loft.Rows(
               u"select 'line', TaskID, CompID from tblTaskComponents where TaskID not in (select ID from "
               "tblTasks)"_s) +
           loft.Rows(
               u"select 'rig', ID, RigID from tblComponents where RigID not in (select ID from tblRig) and "
               "RigID <> 0"_s);
  }
};

}  // namespace

/// Gear changes hands at random; what holds for rigs and jobs holds after every step.
class TestGearWalk : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void RigsAndJobsStayWhole_data() {
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 5; ++seed) QTest::addRow("%u", seed) << seed;
  }
  void RigsAndJobsStayWhole() {
    QFETCH(quint32, seed);
    Walk walk(seed);
    int changes = 0;
    for (int step = 0; step < 60; ++step) {
      const bool currentBefore = RigComponentsCurrent(walk.job, walk.rig);
      const QStringList before = walk.loft.Snapshot();
      const std::optional<bool> changed = walk.Step();
      QCOMPARE(walk.Broken(), QStringList());
      if (!changed) continue;
      QCOMPARE(!walk.loft.ChangesSince(before).isEmpty(), *changed);
      changes += *changed;
      // Work on a job keeps a rig that wears its gear in step.
      if (currentBefore && walk.worked == walk.job) QVERIFY(RigComponentsCurrent(walk.job, walk.rig));
    }
    QVERIFY(changes > 5);
  }
};

LOFT_TEST_MAIN(TestGearWalk)
#include "tst_gear_walk.moc"
