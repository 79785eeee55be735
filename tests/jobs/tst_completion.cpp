#include <QtTest>

#include "core/store/undo.h"
#include "jobs/delete_job.h"
#include "jobs/job_components.h"
#include "jobs/sample_job.h"
#include "jobs/schedule_key.h"
#include "support/counting_form.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

const Date kWork = Day(3, 10, 2026);

}  // namespace

class TestCompletion : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  /// From the click on the status of a repack to the last row written, and back.
  void ACompletedRepackMovesLineGearScheduleAndJob() {
    SampleJob shop;
    const int line = shop.AddTask(RepackTaskLibID);
    const QStringList before = shop.loft.Snapshot();
    QVERIFY(ToggleComplete(line, kWork, true));
    QCOMPARE(shop.Status(line), SampleJob::State(-1, kWork));
    QCOMPARE(shop.loft.Rows(u"select TaskID, CompID, Complete from tblTaskComponents"_s),
             (QStringList{u"%1|%2|-1"_s.arg(line).arg(shop.container), u"%1|%2|-1"_s.arg(line).arg(shop.reserve)}));
    QCOMPARE(shop.Schedules(), QStringList(SampleRig::ScheduleRow(shop.rig, 1, kWork, Day(9, 6, 2026), line, 0)));
    QCOMPARE(shop.JobState(), SampleJob::State(-1, kWork));
    // One line, two ties and the job change, each as an old and a new row; the schedule gains one.
    const QStringList changes = shop.loft.ChangesSince(before);
    QCOMPARE(changes.size(), 9);
    QCOMPARE(changes.filter(u"tblSchedules"_s).size(), 1);
    QCOMPARE(changes.filter(u"tblTasks"_s).size(), 2);
    QCOMPARE(changes.filter(u"tblTaskComponents"_s).size(), 4);
    QCOMPARE(changes.filter(u"tblJobs"_s).size(), 2);

    QVERIFY(ToggleComplete(line, kWork, true));
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void UncompletingFallsBackToTheEarlierRepack() {
    SampleJob shop;
    const int early = shop.AddRepack(Day(1, 1, 2026));
    const int line = shop.AddTask(RepackTaskLibID);
    ToggleComplete(line, kWork, true);
    QCOMPARE(shop.Schedules(), QStringList(SampleRig::ScheduleRow(shop.rig, 1, kWork, Day(9, 6, 2026), line, 0)));
    ToggleComplete(line, kWork, true);
    QCOMPARE(shop.Schedules(),
             QStringList(SampleRig::ScheduleRow(shop.rig, 1, Day(1, 1, 2026), Day(6, 30, 2026), early, 0)));
  }

  void WorkOnGearTheRigNoLongerWearsLeavesTheScheduleAlone() {
    SampleJob shop;
    const int line = shop.AddTask(RepackTaskLibID);
    QVERIFY(!ShouldAdd2Schedule(shop.rig, false));
    QVERIFY(ShouldAdd2Schedule(shop.rig, true));
    QVERIFY(ShouldAdd2Schedule(0, false));
    ToggleComplete(line, kWork, false);
    QCOMPARE(shop.Status(line), SampleJob::State(-1, kWork));
    QCOMPARE(shop.JobState(), SampleJob::State(-1, kWork));
    QCOMPARE(shop.Schedules(), QStringList());
  }

  void AJobWithoutARigSchedulesByComponent() {
    SampleJob shop;
    shop.job = shop.AddJob("Loose", 0, shop.aad);
    const int line = shop.AddTask(shop.aadCheck);
    QCOMPARE(GetThisComponentID(line), shop.aad);
    ToggleComplete(line, kWork, false);
    QCOMPARE(shop.Schedules(),
             QStringList(SampleRig::ScheduleRow(0, shop.aadCheck, kWork, Day(9, 10, 2026), line, shop.aad)));
    ToggleComplete(line, kWork, false);
    QCOMPARE(shop.Schedules(), QStringList());
  }

  void AJobOnARigNamesTheOneComponent() {
    SampleJob shop;
    const int line = shop.AddTask(shop.aadCheck);
    ToggleComplete(line, kWork, true);
    QCOMPARE(shop.Schedules(),
             QStringList(SampleRig::ScheduleRow(shop.rig, shop.aadCheck, kWork, Day(9, 10, 2026), line, shop.aad)));
    QCOMPARE(GetThisComponentID(shop.AddTask(RepackTaskLibID)), 0);
    QCOMPARE(GetThisComponentID(999), 0);
  }

  void ADueDateThatCantBeBuiltLeavesTheLineWritten() {
    SampleJob shop;
    const int line = shop.AddTask(shop.aadCheck);
    shop.prompts.ExpectBox(u"Sub ReplaceSchedule"_s, u"Type mismatch"_s);
    ToggleComplete(line, Day(8, 31, 2026), true);
    QCOMPARE(shop.Status(line), SampleJob::State(-1, Day(8, 31, 2026)));
    QCOMPARE(shop.Schedules(), QStringList());
    QCOMPARE(shop.JobState(), SampleJob::State(-1, Day(8, 31, 2026)));
  }

  void AnEventNeverChanges() {
    SampleJob shop;
    const int line = shop.AddTask(shop.AddEvent("Reserve ride"));
    const QStringList before = shop.loft.Snapshot();
    QVERIFY(!ToggleComplete(line, kWork, true));
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
    QVERIFY(CheckJobStatus(shop.job, kWork));
    QCOMPARE(shop.JobState(), SampleJob::State(-1, kWork));
  }

  void WaitingOnPartsCountsAsIncompleteAndTheFirstToggleCompletes() {
    SampleJob shop;
    const int line = shop.AddTask(shop.aadCheck);
    shop.loft.Run(u"update tblTasks set Status = 1"_s);
    QVERIFY(!LineIsDone(line));
    ToggleComplete(line, kWork, true);
    QCOMPARE(shop.Status(line), SampleJob::State(-1, kWork));
  }

  void AJobIsCompleteWhenEveryLineIs() {
    SampleJob shop;
    QVERIFY(!AllChecked(shop.job));
    QVERIFY(!CheckJobStatus(shop.job, kWork));
    const int first = shop.AddTask(shop.aadCheck);
    const int second = shop.AddTask(RepackTaskLibID);
    ToggleComplete(first, kWork, true);
    QVERIFY(!AllChecked(shop.job));
    QCOMPARE(shop.JobState(), SampleJob::State(0, Date()));
    ToggleComplete(second, kWork + 1, true);
    QVERIFY(AllChecked(shop.job));
    QCOMPARE(shop.JobState(), SampleJob::State(-1, kWork + 1));
    // The next load takes the first line's date.
    QCOMPARE(RecomputeJobStatus(shop.job), kWork);
    QCOMPARE(shop.JobState(), SampleJob::State(-1, kWork));
    ToggleComplete(first, kWork, true);
    QCOMPARE(shop.JobState(), SampleJob::State(0, Date()));
    QCOMPARE(RecomputeJobStatus(shop.job), Date());
    QCOMPARE(shop.JobState(), SampleJob::State(0, Date()));
    ToggleComplete(first, kWork, true);
    ToggleComplete(second, kWork, true);
    QCOMPARE(RecomputeJobStatus(shop.job), Date());  // the first line's date is not that of an open job
  }

  void LoadingWritesAStatusOnlyWhereItDiffers() {
    SampleJob shop;
    RecomputeJobStatus(shop.job);  // without lines it is complete without a date
    CountingForm form(u"frmOther"_s, {u"tblJobs"_s});
    const int operations = static_cast<int>(RecentOperations().size());
    RecomputeJobStatus(shop.job);
    LoadJobGear(shop.job, shop.rig);
    GetInvoiceNumber(shop.job);
    QCOMPARE(form.told, 1);  // the invoice number
    RecomputeJobStatus(shop.job);
    GetInvoiceNumber(shop.job);
    AuditJobs();
    QCOMPARE(form.told, 1);
    shop.loft.Run(u"update tblJobs set JobStatus = 0"_s);
    QCOMPARE(form.told, 2);
    RecomputeJobStatus(shop.job);
    QCOMPARE(form.told, 3);
    QCOMPARE(shop.JobState(), SampleJob::State(-1, Date()));
    // What loading puts right is upkeep: a person takes nothing of it back by itself.
    for (const RecordedOperation& operation : RecentOperations())
      QVERIFY2(operation.name != u"Load tasks grid"_s && operation.name != u"Get invoice number"_s,
               qPrintable(operation.name));
    QVERIFY(RecentOperations().size() <= operations + 1);
  }

  void EachWriterMovesTheRowOfItsOwnKey() {
    SampleJob shop;
    const int repack = shop.AddTask(RepackTaskLibID);
    const int check = shop.AddTask(shop.aadCheck);
    const ScheduleKey ofRepack = KeyOfLine(repack);
    QCOMPARE(ofRepack.taskLibID, RepackTaskLibID);
    QCOMPARE(ofRepack.rigID, shop.rig);
    QCOMPARE(ofRepack.componentID, 0);  // it touched two
    QCOMPARE(KeyOfLine(check).componentID, shop.aad);
    shop.job = shop.AddJob("Loose", 0, shop.aad);
    const int loose = shop.AddTask(shop.aadCheck);
    QCOMPARE(KeyOfLine(loose).rigID, 0);
    QCOMPARE(KeyOfLine(loose).componentID, shop.aad);
    QCOMPARE(KeyOfLine(999).taskLibID, 0);
  }

  void ALineThatHasGoneIsNotCompleted() {
    SampleJob shop;
    const int line = shop.AddTask(shop.aadCheck);
    DeleteTask(line);
    const QStringList before = shop.loft.Snapshot();
    QVERIFY(!ToggleComplete(line, kWork, true));
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void AJobWithoutLinesIsCompleteWithNoDate() {
    SampleJob shop;
    QCOMPARE(RecomputeJobStatus(shop.job), Date());
    QCOMPARE(shop.JobState(), SampleJob::State(-1, Date()));
  }

  void AStatusAndADateThatDisagreeAreNoticedAndKept() {
    SampleJob shop;
    const int first = shop.AddTask(shop.aadCheck);
    const int second = shop.AddTask(RepackTaskLibID);
    shop.loft.Run(u"update tblTasks set Status = -1 where ID = %1"_s.arg(first));
    shop.loft.Run(u"update tblTasks set Status = 1, DateTaskCompleted = 46000 where ID = %1"_s.arg(second));
    for (int load = 0; load < 2; ++load) {
      shop.prompts.ExpectBox(u"Loftkeep"_s, u"status/date mismatch"_s);
      shop.prompts.ExpectBox(u"Loftkeep"_s, u"status/date mismatch"_s);
      QCOMPARE(RecomputeJobStatus(shop.job), Date());
      QCOMPARE(shop.JobState(), SampleJob::State(0, Date()));
    }
    QCOMPARE(shop.Status(first), u"-1|0"_s);
    QCOMPARE(shop.Status(second), u"1|46000"_s);
    // An incomplete line ends the walk: what stands behind it is not looked at.
    shop.loft.Run(u"update tblTasks set Status = 0 where ID = %1"_s.arg(first));
    QCOMPARE(RecomputeJobStatus(shop.job), Date());
  }

  void AllLinesAreCompletedOrTakenBackAtOnce() {
    SampleJob shop;
    const int done = shop.AddTask(shop.aadCheck);
    const int open = shop.AddTask(RepackTaskLibID);
    const int event = shop.AddTask(shop.AddEvent("Reserve ride"), Day(3, 5, 2026));
    ToggleComplete(done, Day(3, 3, 2026), true);
    CompleteAllTasks(shop.job, true, kWork, true);
    QCOMPARE(shop.Status(done), SampleJob::State(-1, Day(3, 3, 2026)));
    QCOMPARE(shop.Status(open), SampleJob::State(-1, kWork));
    QCOMPARE(shop.JobState(), SampleJob::State(-1, kWork));
    QCOMPARE(shop.Schedules().size(), 2);
    CompleteAllTasks(shop.job, true, kWork + 5, true);
    QCOMPARE(shop.JobState(), SampleJob::State(-1, kWork));
    CompleteAllTasks(shop.job, false, kWork, true);
    QCOMPARE(shop.Status(done), SampleJob::State(0, Date()));
    QCOMPARE(shop.Status(open), SampleJob::State(0, Date()));
    QCOMPARE(shop.Status(event), SampleJob::State(-1, Day(3, 5, 2026)));
    QCOMPARE(shop.JobState(), SampleJob::State(0, Date()));
    QCOMPARE(shop.Schedules(), QStringList());
  }

  void AJobOfEventsAloneGetsAndLosesItsDate() {
    SampleJob shop;
    shop.AddTask(shop.AddEvent("Reserve ride"));
    CompleteAllTasks(shop.job, true, kWork, true);
    QCOMPARE(JobDateCompleted(shop.job), kWork);
    CompleteAllTasks(shop.job, false, kWork, true);
    QCOMPARE(JobDateCompleted(shop.job), Date());
  }
};

LOFT_TEST_MAIN(TestCompletion)
#include "tst_completion.moc"
