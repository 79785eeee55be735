#include <QTest>

#include "gear/rigs.h"
#include "jobs/job_components.h"
#include "jobs/screens/open_job.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

/// The rig loses its main canopy after the job was started.
void LetRigDiffer(const OpenJob& shop) {
  shop.loft.Run(u"update tblComponents set RigID = 0 where ID = %1"_s.arg(shop.mainCanopy));
  shop.Open();
}

}  // namespace

/// A job whose gear is not, or not known to be, what its rig wears.
class TestJobDiffers : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void WorkOnGearThatTheRigNoLongerWearsIsNotScheduled() {
    OpenJob shop;
    const int repack = shop.AddTask(RepackTaskLibID);
    const int check = shop.AddTask(shop.aadCheck);
    shop.AddSchedule(shop.rig, RepackTaskLibID, Day(5, 1, 2026), 0, 0);
    const QStringList due = shop.Schedules();
    LetRigDiffer(shop);
    QVERIFY(shop.Shows("cmdGearChange"));
    ClickCell(shop.Lines(), 0, kStatus);
    QCOMPARE(shop.Status(repack), SampleJob::State(-1, Day(3, 1, 2026)));
    QCOMPARE(shop.Schedules(), due);
    shop.Choose(u"Tasks"_s, u"Complete all tasks"_s);
    QCOMPARE(shop.Status(check), SampleJob::State(-1, Day(3, 1, 2026)));
    QCOMPARE(shop.Schedules(), due);
  }

  void ADeletedRigShowsTheButtonsAndLeavesWhatWasKnown() {
    OpenJob shop;
    const int repack = shop.AddTask(RepackTaskLibID);
    shop.AddSchedule(shop.rig, RepackTaskLibID, Day(5, 1, 2026), 0, 0);
    const QStringList due = shop.Schedules();
    LetRigDiffer(shop);
    DeleteRigRow(shop.rig);
    shop.Choose(u"Tools"_s, u"Refresh"_s);
    QVERIFY(shop.Shows("cmdGearChange"));
    QVERIFY(shop.Shows("cmdCurrentComp"));
    ClickCell(shop.Lines(), 0, kStatus);
    QCOMPARE(shop.Status(repack), SampleJob::State(-1, Day(3, 1, 2026)));
    QCOMPARE(shop.Schedules(), due);
  }

  void TheButtonsOfADeletedRigComeAlsoWhenItsGearWasCurrent() {
    OpenJob shop;
    QVERIFY(!shop.Shows("cmdGearChange"));
    DeleteRigRow(shop.rig);
    shop.Choose(u"Tools"_s, u"Refresh"_s);
    QVERIFY(shop.Shows("cmdGearChange"));
    QVERIFY(shop.Shows("cmdCurrentComp"));
  }

  void AJobWithoutARigHasNothingToCompare() {
    OpenJob shop;
    LetRigDiffer(shop);
    shop.job = shop.AddJob("Loose", 0, shop.aad);
    shop.Open();
    QVERIFY(!shop.Shows("cmdGearChange"));
    QVERIFY(!shop.Shows("cmdCurrentComp"));
  }

  void WithoutARigTheComponentLosesItsDueDateWithTheLine() {
    OpenJob shop;
    shop.job = shop.AddJob("Loose", 0, shop.aad);
    const auto completed = [&] {
      shop.AddTask(shop.aadCheck);
      shop.Open();
      ClickCell(shop.Lines(), 0, kStatus);
      QCOMPARE(shop.Schedules().size(), 1);
    };
    completed();
    shop.prompts.Expect(u"Delete AAD check?"_s, u"Are you sure you want to delete this entry?"_s, Answer::Yes);
    shop.Lines().SelectCell(0, kTask);
    PressKey(shop.Lines(), Qt::Key_Delete);
    QCOMPARE(shop.Schedules(), QStringList());
    completed();
    shop.prompts.Expect(u"Delete all entries for this job?"_s,
                        u"This will permanently delete all tasks and parts for this job.\n"
                        "Are you sure you want to do this?"_s,
                        Answer::Yes);
    shop.Choose(u"Tasks"_s, u"Delete all tasks for this job"_s);
    QCOMPARE(shop.Schedules(), QStringList());
  }

  void AJobWithoutDatesWorksToday() {
    OpenJob shop;
    shop.loft.Run(u"update tblJobs set DateStarted = 0"_s);
    shop.Open();
    QCOMPARE(TextOf(shop.Screen(), u"txtDate"_s), u"03/15/2026"_s);
  }

  void InPlaceOfADeletedRigANewOneMayBeBuilt() {
    OpenJob shop;
    DeleteRigRow(shop.rig);
    shop.Choose(u"Tools"_s, u"Refresh"_s);
    const QStringList before = shop.loft.Snapshot();
    const QString title = u"Use these components?"_s;
    const QString question = u"Do you want to create a rig using the components shown above?"_s;
    shop.prompts.Expect(title, question, Answer::No);
    shop.Choose(u"Rig"_s, u"Create a new rig"_s);
    const int second = shop.AddComponent("Vector", kContainer, 0);
    AddJobComponent(shop.job, second);
    shop.prompts.Expect(title, question, Answer::Yes);
    shop.prompts.ExpectBox(u"Can't create rig with these components"_s,
                           u"This job has more than one Container\nA rig can only have one Container\n"
                           "You can either remove some components or\nstart a new job and create a new rig"_s);
    shop.Choose(u"Rig"_s, u"Create a new rig"_s);
    QCOMPARE(shop.loft.TouchedSince(before).filter(u"tblRig"_s), QStringList());
  }
};

LOFT_TEST_MAIN(TestJobDiffers)
#include "tst_job_differs.moc"
