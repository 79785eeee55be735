#include <QtTest>

#include "jobs/sample_job.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

QStringList Line(const SampleJob& shop, int taskID) {
  return shop.loft.Rows(
      u"select JobID, CustomerID, RiggerID, FlatRate, HourlyRate, Tax, NumHours, Comments, "
      "DateTaskCompleted, TaskLibID, LogBook, Status, DateTaskStarted, TaskName, SystemID, PartID, "
      "IsEvent, LocationID from tblTasks where ID = %1"_s.arg(taskID));
}

QStringList Ties(const SampleJob& shop, int taskID) {
  return shop.loft.Rows(u"select CompID, Complete from tblTaskComponents where TaskID = %1"_s.arg(taskID));
}

const QString kQuestion = u"Are you sure you want to delete this entry?"_s;

}  // namespace

class TestLines : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void ATaskCopiesFromTheLibraryAndItsJob() {
    SampleJob shop;
    SetJobLocationID(shop.job, 8);
    shop.loft.Run(u"update tblTaskLib set HourlyRate = 35, Name = '%1' where ID = %2"_s.arg(QString(60, u'n'))
                      .arg(shop.aadCheck));
    const QStringList before = shop.loft.Snapshot();
    int task = 0;
    AddTaskToJob(shop.Context(), shop.aadCheck, false, Day(3, 2, 2026), task);
    QCOMPARE(Line(shop, task), QStringList(u"%1|%2|%3|200000|350000|0|0.0| |0|%4|-1|0|%5|%6|%7|0|0|8"_s.arg(shop.job)
                                               .arg(shop.owner)
                                               .arg(shop.rigger)
                                               .arg(shop.aadCheck)
                                               .arg(Day(3, 2, 2026).Days())
                                               .arg(QString(50, u'n'))
                                               .arg(shop.rig)));
    QCOMPARE(shop.loft.ChangesSince(before).size(), 1);
  }

  void APartIsALineOfItsOwn() {
    SampleJob shop;
    const int part = shop.AddPart("Closing loop", 3);
    // An event of the library with the part's id must not make the part an event.
    shop.loft.Run(u"update tblTaskLib set IsEvent = true, ID = %1 where ID = %2"_s.arg(part).arg(shop.aadCheck));
    int task = 0;
    AddTaskToJob(shop.Context(), part, true, Day(3, 2, 2026), task);
    QCOMPARE(Line(shop, task), QStringList(u"%1|%2|%3|30000|0|0|0.0| |0|0|0|0|%4|Closing loop|%5|%6|0|0"_s.arg(shop.job)
                                               .arg(shop.owner)
                                               .arg(shop.rigger)
                                               .arg(Day(3, 2, 2026).Days())
                                               .arg(shop.rig)
                                               .arg(part)));
  }

  void AnEventIsCompleteFromTheStart() {
    SampleJob shop;
    const int event = shop.AddEvent("Reserve ride");
    int task = 0;
    AddTaskToJob(shop.Context(), event, false, Day(3, 2, 2026), task);
    QVERIFY(TaskIsEvent(task));
    QCOMPARE(shop.loft.Rows(u"select RiggerID, LogBook, Status, DateTaskCompleted, IsEvent from tblTasks"_s),
             QStringList(u"0|0|-1|%1|-1"_s.arg(Day(3, 2, 2026).Days())));
    AddComponentsToTask(event, task, shop.job);
    QCOMPARE(Ties(shop, task), QStringList(u"%1|-1"_s.arg(shop.reserve)));
  }

  void ALineWithoutARiggerTakesTheDefaultOne() {
    SampleJob shop;
    JobContext context = shop.Context();
    context.riggerID = 0;
    int task = 0;
    AddTaskToJob(context, shop.aadCheck, false, Day(3, 2, 2026), task);
    QCOMPARE(shop.loft.Rows(u"select RiggerID from tblTasks"_s), QStringList(QString::number(shop.rigger)));
  }

  void ACustomLineIsWhatItIsGiven() {
    SampleJob shop;
    int task = 0;
    AddCustomLine(shop.Context(), {QString(55, u'c'), Money::Whole(12), true, kCustomPart, false}, Day(3, 2, 2026),
                  task);
    QCOMPARE(Line(shop, task), QStringList(u"%1|%2|%3|120000|0|0|0.0| |0|0|-1|0|%4|%5|%6|-99|0|0"_s.arg(shop.job)
                                               .arg(shop.owner)
                                               .arg(shop.rigger)
                                               .arg(Day(3, 2, 2026).Days())
                                               .arg(QString(50, u'c'))
                                               .arg(shop.rig)));
    AddCustomLine(shop.Context(), {u"Hard landing"_s, Money(), false, 0, true}, Day(3, 3, 2026), task);
    QCOMPARE(shop.Status(task), SampleJob::State(-1, Day(3, 3, 2026)));
  }

  void AnEntryTiesTheComponentsItConcerns() {
    SampleJob shop;
    const int line = shop.AddTask(RepackTaskLibID);
    QCOMPARE(Ties(shop, line), (QStringList{u"%1|0"_s.arg(shop.container), u"%1|0"_s.arg(shop.reserve)}));
    shop.loft.Run(u"update tblTaskLib set ModelID = (select ModelID from tblComponents where ID = %1) where ID = %2"_s
                      .arg(shop.mainCanopy)
                      .arg(shop.aadCheck));
    AddComponentsToTask(shop.aadCheck, 500, shop.job);
    QCOMPARE(Ties(shop, 500), QStringList(u"%1|0"_s.arg(shop.mainCanopy)));
    AddComponentsToTask(InstallTaskLibID, 501, shop.job);
    AddTaskComponent(502, 0, true);
    QCOMPARE(shop.loft.Rows(u"select * from tblTaskComponents where TaskID > 500"_s), QStringList());
  }

  void PartsOfAnEntryComeWithItAndVanishedOnesLeaveIt() {
    SampleJob shop;
    const int loop = shop.AddPart("Loop", 3);
    shop.loft.Add("tblTaskLibParts", {{"TaskLibID", shop.aadCheck}, {"PartID", 9999}});
    shop.loft.Add("tblTaskLibParts", {{"TaskLibID", shop.aadCheck}, {"PartID", loop}});
    shop.loft.Add("tblTaskLibParts", {{"TaskLibID", 1}, {"PartID", 9999}});
    shop.AddTask(shop.aadCheck, Day(3, 4, 2026));
    QCOMPARE(shop.loft.Rows(u"select TaskName, PartID, DateTaskStarted from tblTasks order by ID"_s),
             (QStringList{u"AAD check|0|%1"_s.arg(Day(3, 4, 2026).Days()),
                          u"Loop|%1|%2"_s.arg(loop).arg(Day(3, 4, 2026).Days())}));
    QCOMPARE(shop.loft.Rows(u"select TaskLibID, PartID from tblTaskLibParts"_s),
             (QStringList{u"%1|%2"_s.arg(shop.aadCheck).arg(loop), u"1|9999"_s}));
  }

  void ALineIsDeletedAfterAQuestion() {
    SampleJob shop;
    const int early = shop.AddRepack(Day(1, 1, 2026));
    const int line = shop.AddTask(RepackTaskLibID);
    const int check = shop.AddTask(shop.aadCheck);
    CompleteAllTasks(shop.job, true, Day(3, 2, 2026), true);
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.Expect(u"Delete Inspect and repack reserve?"_s, kQuestion, Answer::No).WithPreset(Answer::No);
    QVERIFY(!DeleteLine(line, false));
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
    shop.prompts.Expect(u"Delete Inspect and repack reserve?"_s, kQuestion, Answer::Yes);
    QVERIFY(DeleteLine(line, false));
    QCOMPARE(LinesOfJob(shop.job), QList<int>{check});
    QCOMPARE(Ties(shop, line), QStringList());
    QCOMPARE(shop.Schedules().filter(u"|1|"_s),
             QStringList(SampleRig::ScheduleRow(shop.rig, 1, Day(1, 1, 2026), Day(6, 30, 2026), early, 0)));
    QCOMPARE(JobDateCompleted(shop.job), Day(3, 2, 2026));
    QVERIFY(DeleteLine(check, true));
    QCOMPARE(shop.JobState(), SampleJob::State(-1, Date()));
  }

  void WithoutARigALineIsUnscheduledByItsComponent() {
    SampleJob shop;
    const int early = shop.AddDone(shop.aadCheck, Day(1, 10, 2026), {shop.aad}, 0);
    shop.job = shop.AddJob("Loose", 0, shop.aad);
    const int line = shop.AddTask(shop.aadCheck);
    ToggleComplete(line, Day(3, 2, 2026), false);
    QVERIFY(DeleteLine(line, true));
    QCOMPARE(shop.Schedules(), QStringList(SampleRig::ScheduleRow(0, shop.aadCheck, Day(1, 10, 2026), Day(7, 10, 2026),
                                                                  early, shop.aad)));
  }

  void DeletingAnInstallationTellsWhatStays() {
    SampleJob shop;
    int install = 0;
    int removal = 0;
    AddTaskToJob(shop.Context(), InstallTaskLibID, false, Day(3, 2, 2026), install);
    AddTaskToJob(shop.Context(), RemoveTaskLibID, false, Day(3, 2, 2026), removal);
    shop.prompts.Expect(u"Delete Install component?"_s, kQuestion, Answer::Yes);
    shop.prompts.ExpectBox(u"Loftkeep"_s,
                           u"You are deleting a component installation task.\n"
                           "This will delete the task but it will not remove the actual\n"
                           "component that was installed.  \n"
                           "To delete the component from this job, you must use REMOVE COMPONENT"_s);
    QVERIFY(DeleteLine(install, false));
    shop.prompts.Expect(u"Delete Remove component?"_s, kQuestion, Answer::Yes);
    shop.prompts.ExpectBox(u"Loftkeep"_s,
                           u"You are deleting a component removal task.\n"
                           "This will delete the task but it will not restore the\n"
                           "component that was removed.  \n"
                           "To restore the component, you must use INSTALL COMPONENT"_s);
    QVERIFY(DeleteLine(removal, false));
    // The same among all lines, which are asked for once.
    AddTaskToJob(shop.Context(), RemoveTaskLibID, false, Day(3, 2, 2026), removal);
    shop.prompts.Expect(u"Delete all entries for this job?"_s,
                        u"This will permanently delete all tasks and parts for this job.\n"
                        "Are you sure you want to do this?"_s,
                        Answer::Yes);
    shop.prompts.ExpectBox(u"Loftkeep"_s,
                           u"You are deleting a component removal task.\n"
                           "This will delete the task but it will not restore the\n"
                           "component that was removed.  \n"
                           "To restore the component, you must use INSTALL COMPONENT"_s);
    QVERIFY(DeleteAllLines(shop.job));
  }

  void AllLinesAreDeletedAfterOneQuestion() {
    SampleJob shop;
    shop.prompts.ExpectBox(u"Nothing to delete"_s, u"This jobs has no entries"_s);
    QVERIFY(!DeleteAllLines(shop.job));
    shop.AddTask(RepackTaskLibID);
    shop.AddTask(shop.aadCheck);
    CompleteAllTasks(shop.job, true, Day(3, 2, 2026), true);
    const QString title = u"Delete all entries for this job?"_s;
    const QString question =
        u"This will permanently delete all tasks and parts for this job.\nAre you sure you want to do this?"_s;
    shop.prompts.Expect(title, question, Answer::No).WithPreset(Answer::No);
    QVERIFY(!DeleteAllLines(shop.job));
    QCOMPARE(LinesOfJob(shop.job).size(), 2);
    shop.prompts.Expect(title, question, Answer::Yes);
    QVERIFY(DeleteAllLines(shop.job));
    QCOMPARE(LinesOfJob(shop.job), QList<int>());
    QCOMPARE(shop.loft.Rows(u"select * from tblTaskComponents"_s), QStringList());
    QCOMPARE(shop.Schedules(), QStringList());
    QCOMPARE(JobDateCompleted(shop.job), Date());
  }
};

LOFT_TEST_MAIN(TestLines)
#include "tst_lines.moc"
