#include <QtTest>

#include "jobs/delete_job.h"
#include "jobs/sample_job.h"
#include "schedule/schedule.h"
#include "support/counting_form.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

class TestDeleteJob : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void AJobWithoutLinesIsAskedForWhateverTheCaller() {
    SampleJob shop;
    bool cancelled = false;
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.Expect(u"Delete Blue 03/01/2026"_s, u"Are you sure you want to delete this job?"_s, Answer::No)
        .WithButtons(Buttons::YesNo)
        .WithPreset(Answer::No);
    DeleteJob(shop.job, false, cancelled);
    QVERIFY(cancelled);
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
    shop.prompts.Expect(u"Delete Blue 03/01/2026"_s, u"Are you sure you want to delete this job?"_s, Answer::Yes);
    DeleteJob(shop.job, true, cancelled);
    QVERIFY(!cancelled);
    QVERIFY(!JobExists(shop.job));
    QCOMPARE(shop.loft.Rows(u"select * from tblJobComponents"_s), QStringList());
  }

  void AJobWithLinesGoesWithThemAndTheirSchedule() {
    SampleJob shop;
    const int early = shop.AddRepack(Day(1, 1, 2026));
    ToggleComplete(shop.AddTask(RepackTaskLibID), Day(3, 2, 2026), true);
    const int other = shop.AddJob("Other", shop.rig, 0);
    int part = 0;
    AddTaskToJob(shop.Context(), shop.AddPart("Loop", 3), true, Day(3, 2, 2026), part);
    int kept = 0;
    AddTaskToJob(JobContextOf(other), shop.aadCheck, false, Day(3, 2, 2026), kept);
    const QString question =
        u"This job has 1 tasks and 1 parts\nDeleting this job will delete those entries as well\n"
        "Are you sure you want to delete this job?"_s;
    bool cancelled = false;
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.Expect(u"Delete Blue 03/01/2026"_s, question, Answer::No).WithPreset(Answer::No);
    DeleteJob(shop.job, true, cancelled);
    QVERIFY(cancelled);
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
    shop.prompts.Expect(u"Delete Blue 03/01/2026"_s, question, Answer::Yes);
    DeleteJob(shop.job, true, cancelled);
    QVERIFY(!cancelled);
    QVERIFY(!JobExists(shop.job));
    QCOMPARE(shop.loft.Rows(u"select ID from tblTasks where JobID > 0"_s), QStringList(QString::number(kept)));
    QCOMPARE(shop.loft.Rows(u"select distinct TaskID from tblTaskComponents"_s), QStringList(QString::number(early)));
    QCOMPARE(shop.Schedules(),
             QStringList(SampleRig::ScheduleRow(shop.rig, 1, Day(1, 1, 2026), Day(6, 30, 2026), early, 0)));
  }

  void TheOnlyCompletedRepackTakesTheRowWithIt() {
    SampleJob shop;
    ToggleComplete(shop.AddTask(RepackTaskLibID), Day(3, 2, 2026), true);
    QCOMPARE(shop.Schedules().size(), 1);
    const CountingForm screen(u"frmJob"_s, {u"tblJobs"_s, u"tblTasks"_s});
    bool cancelled = true;
    DeleteJob(shop.job, false, cancelled);
    QVERIFY(!cancelled);
    QCOMPARE(shop.Schedules(), QStringList());
    QCOMPARE(screen.told, 1);
  }

  void StartsThatWereNeverFinishedAreCleared() {
    SampleJob shop;
    AuditJobs();
    shop.AddJob("", 0, 0);
    shop.AddJob("loadme", 0, 0);
    const int kept = shop.AddJob("loadme too", 0, 0);
    AuditJobs();
    QCOMPARE(shop.loft.Rows(u"select ID from tblJobs order by ID"_s),
             (QStringList{QString::number(shop.job), QString::number(kept)}));
  }

  void EmptyJobsAreDeletedAfterAQuestion() {
    SampleJob shop;
    shop.AddTask(shop.aadCheck);
    shop.prompts.ExpectBox(u"No empty jobs"_s, u"There are no empty jobs"_s);
    QVERIFY(!DeleteAllEmptyJobs());
    const int one = shop.AddJob("One", shop.rig, 0);
    shop.prompts
        .Expect(u"One empty job"_s, u"Found one empty job (invoice # %1)\nWould you like to delete  it?"_s.arg(one),
                Answer::No)
        .WithPreset(Answer::No);
    QVERIFY(!DeleteAllEmptyJobs());
    QVERIFY(JobExists(one));
    shop.AddJob("Two", shop.rig, 0);
    shop.prompts.Expect(u"Empty jobs found"_s, u"Found 2 empty jobs\nWould you like to delete  them?"_s, Answer::Yes);
    QVERIFY(DeleteAllEmptyJobs());
    QCOMPARE(shop.loft.Rows(u"select ID from tblJobs"_s), QStringList(QString::number(shop.job)));
    QCOMPARE(shop.loft.Rows(u"select distinct JobID from tblJobComponents"_s), QStringList(QString::number(shop.job)));
  }
};

LOFT_TEST_MAIN(TestDeleteJob)
#include "tst_delete_job.moc"
