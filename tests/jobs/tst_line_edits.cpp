#include <QtTest>

#include "core/store/undo.h"
#include "jobs/job_header.h"
#include "jobs/job_lines.h"
#include "jobs/line_edits.h"
#include "jobs/sample_job.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

int AddPartLine(const SampleJob& shop, int partID) {
  int task = 0;
  AddTaskToJob(shop.Context(), partID, true, Day(3, 2, 2026), task);
  return task;
}

QString Cells(const JobLine& line) {
  return u"%1|%2|%3|%4|%5"_s.arg(line.task, line.rigger).arg(line.price.Units()).arg(line.status, line.date);
}

}  // namespace

class TestLineEdits : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void LinesShowInTheOrderTheyWereEntered() {
    SampleJob shop;
    const int task = shop.AddTask(shop.aadCheck);
    const int part = AddPartLine(shop, shop.AddPart("Loop", 3));
    shop.AddTask(shop.AddEvent("Reserve ride"), Day(3, 5, 2026));
    ToggleComplete(part, Day(3, 6, 2026), true);
    QStringList cells;
    for (const JobLine& line : LoadJobLines(shop.job)) cells << Cells(line);
    QCOMPARE(cells, (QStringList{u"AAD check|Rigger|200000||"_s, u"     Loop||30000|Installed|03/06/2026"_s,
                                 u"Reserve ride||200000|   (event)|03/05/2026"_s}));
    ToggleComplete(task, Day(3, 7, 2026), true);
    QCOMPARE(Cells(LoadJobLine(task)), u"AAD check|Rigger|200000|Completed|03/07/2026"_s);
    shop.loft.Run(u"update tblTasks set Status = 1 where ID = %1"_s.arg(task));
    QCOMPARE(Cells(LoadJobLine(task)), u"AAD check|Rigger|200000||"_s);
    QCOMPARE(LoadJobLine(999).taskID, 0);
  }

  void ANameIsCutAndAPartKeepsItsBlanks() {
    SampleJob shop;
    const int task = AddPartLine(shop, shop.AddPart("Loop", 3));
    EditResult result = SaveLineName(task, u"  Long loop "_s);
    QVERIFY(result.changed);
    QCOMPARE(result.shown, u"     Long loop"_s);
    QCOMPARE(LineName(task), u"Long loop"_s);
    for (const QString& text : {QString(), u"  "_s, u" Long loop"_s}) {
      result = SaveLineName(task, text);
      QVERIFY(!result.changed);
      QCOMPARE(result.shown, u"     Long loop"_s);
    }
    SaveLineName(task, QString(60, u'z'));
    QCOMPARE(LineName(task), QString(50, u'z'));
  }

  void APriceIsTheNumberTheTextBeginsWith() {
    SampleJob shop;
    const int task = shop.AddTask(shop.aadCheck);
    QCOMPARE(SaveLinePrice(task, u"95.50 each"_s).shown, u"95.50"_s);
    QVERIFY(!SaveLinePrice(task, QString()).changed);
    QVERIFY(!SaveLinePrice(task, u"95.5"_s).changed);
    QCOMPARE(SaveLinePrice(task, u"1000000000"_s).shown, u"1000000000.00"_s);
    shop.prompts.ExpectBox(u"Invalid dollar amount\n(values over $ 1,000,000,000 are not allowed)"_s,
                           u"1000000000.01 is not a valid amount"_s);
    QVERIFY(SaveLinePrice(task, u"1000000000.01"_s).refused);
    QCOMPARE(LoadJobLine(task).price, Money::Whole(1000000000));
    QVERIFY(SaveLinePrice(task, u"free"_s).changed);
    QCOMPARE(LoadJobLine(task).price, Money());
  }

  void ADateDoesNotMoveTheSchedule() {
    SampleJob shop;
    const int task = shop.AddTask(RepackTaskLibID);
    ToggleComplete(task, Day(3, 2, 2026), true);
    const QStringList schedules = shop.Schedules();
    QCOMPARE(SaveLineDate(task, u"3/4/2026"_s).shown, u"03/04/2026"_s);
    QCOMPARE(shop.Status(task), SampleJob::State(-1, Day(3, 4, 2026)));
    QCOMPARE(shop.Schedules(), schedules);
    shop.prompts.ExpectBox(u"Invalid date"_s, u"soon is not a valid date"_s);
    QVERIFY(SaveLineDate(task, u"soon"_s).refused);
    QVERIFY(!SaveLineDate(task, QString()).changed);
    QVERIFY(!SaveLineDate(task, u"03/04/2026"_s).changed);
    QCOMPARE(shop.Status(task), SampleJob::State(-1, Day(3, 4, 2026)));
  }

  void ATaskGoesBackToItsLibraryPriceAndName() {
    SampleJob shop;
    const int task = shop.AddTask(shop.aadCheck);
    SaveLinePrice(task, u"33"_s);
    QVERIFY(RestorePrice(task));
    QCOMPARE(LoadJobLine(task).price, Money::Whole(20));
    shop.prompts.ExpectBox(u"Orignal Price"_s, u"Price hasn't changed"_s);
    QVERIFY(!RestorePrice(task));
    SaveLineName(task, u"Check"_s);
    QVERIFY(RestoreTaskName(task));
    QCOMPARE(LineName(task), u"AAD check"_s);
    shop.prompts.ExpectBox(u"Loftkeep"_s, u"This task's name hasn't changed"_s);
    QVERIFY(!RestoreTaskName(task));
    shop.loft.Run(u"update tblTaskLib set Name = '%1' where ID = %2"_s.arg(QString(60, u'n')).arg(shop.aadCheck));
    QVERIFY(RestoreTaskName(task));
    QCOMPARE(LineName(task), QString(50, u'n'));
    shop.prompts.ExpectBox(u"Loftkeep"_s, u"This task's name hasn't changed"_s);
    QVERIFY(!RestoreTaskName(task));
    shop.loft.Run(u"delete * from tblTaskLib where ID = %1"_s.arg(shop.aadCheck));
    shop.prompts.ExpectBox(u"Can't restore price"_s, u"This task type no longer exists. Original price is unknown"_s);
    QVERIFY(!RestorePrice(task));
    shop.prompts.ExpectBox(u"Can't restore previous name (if any)"_s,
                           u"The selected task was a custom entry.\nIts original name unknown.  It may or may not\n"
                           "have been changed."_s);
    QVERIFY(!RestoreTaskName(task));
  }

  void ARepackGoesBackToTheDefaultPrice() {
    SampleJob shop;
    shop.loft.Run(u"update tblTaskLib set FlatRate = 80 where ID = 1"_s);
    shop.loft.Add("tblRepackByType", {{"TypeID", 1}, {"Price", Money::Whole(95)}});
    const int task = shop.AddTask(RepackTaskLibID);
    QCOMPARE(LoadJobLine(task).price, Money::Whole(95));
    QVERIFY(RestorePrice(task));
    QCOMPARE(LoadJobLine(task).price, Money::Whole(80));
  }

  void WhatHasNoOriginalIsToldSo() {
    SampleJob shop;
    const QString title = u"Can't restore price"_s;
    int task = 0;
    AddTaskToJob(shop.Context(), InstallTaskLibID, false, Day(3, 2, 2026), task);
    shop.prompts.ExpectBox(title, u"This task added a component to the rig. Original price is unknown"_s);
    QVERIFY(!RestorePrice(task));
    AddTaskToJob(shop.Context(), RemoveTaskLibID, false, Day(3, 2, 2026), task);
    shop.prompts.ExpectBox(title, u"This task removed a component from the rig. Original price is unknown"_s);
    QVERIFY(!RestorePrice(task));
    AddCustomLine(shop.Context(), {u"Sew"_s, Money::Whole(5), true, 0, false}, Day(3, 2, 2026), task);
    shop.prompts.ExpectBox(title, u"This is a custom task.  Original price is unknown"_s);
    QVERIFY(!RestorePrice(task));
    shop.prompts.ExpectBox(u"Can't restore name"_s, u"This is a custom task. Original name is unknown"_s);
    QVERIFY(!RestoreTaskName(task));
    AddCustomLine(shop.Context(), {u"Tape"_s, Money::Whole(5), false, kCustomPart, false}, Day(3, 2, 2026), task);
    shop.prompts.ExpectBox(title, u"This is a custom part.  Original price is unknown"_s);
    QVERIFY(!RestorePrice(task));
    shop.prompts.ExpectBox(u"Can't restore previous name (if any)"_s,
                           u"The selected part is a custom part.\nIts original name unknown.  It may or may not\n"
                           "have been changed."_s);
    QVERIFY(!RestoreTaskName(task));
    QVERIFY(!RestorePrice(shop.AddTask(shop.AddEvent("Reserve ride"))));
  }

  void APartGoesBackToItsModel() {
    SampleJob shop;
    const int part = shop.AddPart("Loop", 3);
    const int task = AddPartLine(shop, part);
    shop.prompts.ExpectBox(u"Loop"_s, u"3.00 is the original price"_s);
    QVERIFY(!RestorePrice(task));
    shop.prompts.ExpectBox(u"Loftkeep"_s, u"This is the original part name"_s);
    QVERIFY(!RestoreTaskName(task));
    SaveLinePrice(task, u"9"_s);
    SaveLineName(task, u"Cord"_s);
    QVERIFY(RestorePrice(task));
    QVERIFY(RestoreTaskName(task));
    QCOMPARE(Cells(LoadJobLine(task)), u"     Loop||30000||"_s);
    shop.loft.Run(u"delete * from tblModels where ID = %1"_s.arg(part));
    const QString gone =
        u"This part has been deleted from the available parts table\n"
        "It is now considered a custom entry for this job.\n"_s;
    shop.prompts.ExpectBox(u"Part no longer exists"_s,
                           gone + u"You cannot restore the previous price but you can change it manually"_s);
    QVERIFY(RestorePrice(task));
    QCOMPARE(LoadJobLine(task).partID, kCustomPart);
    shop.loft.Run(u"update tblTasks set PartID = %1 where ID = %2"_s.arg(part).arg(task));
    shop.prompts.ExpectBox(u"Part no longer exists"_s, gone + u"You cannot restore the previous name"_s);
    QVERIFY(RestoreTaskName(task));
    QCOMPARE(LoadJobLine(task).partID, kCustomPart);
  }

  void HeaderDatesAreWrittenWhenTheyAreDates() {
    SampleJob shop;
    EditResult result = SaveDatePromised(shop.job, u"4/1/2026"_s);
    QVERIFY(result.changed);
    QCOMPARE(result.shown, u"04/01/2026"_s);
    QCOMPARE(JobDatePromised(shop.job), Day(4, 1, 2026));
    result = SaveDateStarted(shop.job, u" 3/3/2026 "_s);
    QCOMPARE(JobDateStarted(shop.job), Day(3, 3, 2026));
    shop.prompts.ExpectBox(u"Invalid date"_s, u"soon is not a valid date"_s);
    result = SaveDatePromised(shop.job, u"soon"_s);
    QVERIFY(result.refused);
    QCOMPARE(result.shown, u"04/01/2026"_s);
    QVERIFY(!SaveDatePromised(shop.job, QString()).changed);
    QVERIFY(!SaveDatePromised(shop.job, u"04/01/2026"_s).changed);
    QCOMPARE(HeaderDate(Date()), u"n/a"_s);
  }

  void ATitleOrANumberOfAnotherJobIsRefused() {
    SampleJob shop;
    const int other = shop.AddJob("Other", 0, 0);
    shop.prompts.ExpectBox(u"Can't use this job name"_s, u"There is already a job named: OTHER"_s);
    QCOMPARE(SaveJobName(shop.job, u" OTHER "_s).shown, u"Blue 03/01/2026"_s);
    QVERIFY(!SaveJobName(shop.job, QString()).changed);
    QVERIFY(!SaveJobName(shop.job, u"Blue 03/01/2026 "_s).changed);
    QCOMPARE(SaveJobName(shop.job, QString(60, u'n')).shown, QString(50, u'n'));
    QCOMPARE(JobTitle(shop.job), QString(50, u'n'));
    SetJobInvoiceNumber(other, u"A-1"_s);
    shop.prompts.ExpectBox(u"Duplicate Invoice Number"_s, u"Invoice #A-1 is already in use"_s);
    QCOMPARE(SaveInvoiceNumber(shop.job, u"A-1 "_s).shown, QString::number(shop.job));
    QVERIFY(!SaveInvoiceNumber(shop.job, u" "_s).changed);
    QVERIFY(!SaveInvoiceNumber(shop.job, QString::number(shop.job)).changed);
    QCOMPARE(SaveInvoiceNumber(shop.job, QString(60, u'7')).shown, QString(50, u'7'));
  }

  void LinesOfOtherRiggersCanFollowTheJob() {
    SampleJob shop;
    const int ann = shop.loft.Add("tblPeople", {{"FirstName", "Ann"}, {"LastName", "Adams"}, {"rigger", true}});
    const int task = shop.AddTask(shop.aadCheck);
    QVERIFY(!JobHasTasksByOtherRiggers(shop.AddJob("Other", shop.rig, 0), ann));
    const int event = shop.AddTask(shop.AddEvent("Reserve ride"));
    QVERIFY(JobHasTasksByOtherRiggers(shop.job, ann));
    QVERIFY(!JobHasTasksByOtherRiggers(shop.job, shop.rigger));
    const QString text =
        u"Rigger for this job has been changed to Ann Adams.\n"
        "This job has tasks performed by other riggers.\n"
        "Do you want to change rigger to Ann Adams for all tasks on this job?"_s;
    shop.prompts.Expect(u"Change rigger on tasks?"_s, text, Answer::No);
    QVERIFY(ChangeJobRigger(shop.job, ann));
    QCOMPARE(JobRiggerID(shop.job), ann);
    QCOMPARE(LoadJobLine(task).riggerID, shop.rigger);
    QVERIFY(ChangeJobRigger(shop.job, shop.rigger));  // nobody else is left to ask about
    shop.prompts.Expect(u"Change rigger on tasks?"_s, text, Answer::Yes);
    QVERIFY(ChangeJobRigger(shop.job, ann));
    QCOMPARE(JobRiggerID(shop.job), ann);
    QCOMPARE(LoadJobLine(task).riggerID, ann);
    QCOMPARE(LoadJobLine(event).riggerID, 0);
    QCOMPARE(NextUndo()->name, u"Change rigger"_s);
    QVERIFY(UndoOperation());
    QCOMPARE(JobRiggerID(shop.job), shop.rigger);
    QCOMPARE(LoadJobLine(task).riggerID, shop.rigger);
  }

  void CommentsAreHeadedByTheKindOfLine() {
    SampleJob shop;
    const int task = shop.AddTask(shop.aadCheck);
    const int part = AddPartLine(shop, shop.AddPart("Loop", 3));
    const int event = shop.AddTask(shop.AddEvent("Reserve ride"));
    QCOMPARE(LineHeading(task), u"Task: AAD check"_s);
    QCOMPARE(LineHeading(part), u"Misc part: Loop"_s);
    QCOMPARE(LineHeading(event), u"Event: Reserve ride"_s);
    QCOMPARE(LineComments(task), u" "_s);
    SetLineComments(task, u"Worn"_s);
    QCOMPARE(LineComments(task), u"Worn"_s);
    SetLineComments(task, QString());
    QCOMPARE(LineComments(task), u" "_s);
  }
};

LOFT_TEST_MAIN(TestLineEdits)
#include "tst_line_edits.moc"
