#include <QPushButton>
#include <QTest>

#include "jobs/line_edits.h"
#include "jobs/screens/open_job.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

/// The lines of the job on the screen.
class TestJobLines : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void LinesEndWithATotal() {
    OpenJob shop;
    QCOMPARE(shop.Lines().RowCount(), 2);
    QCOMPARE(shop.Row(1), u"Total||0.00||"_s);
    shop.AddTask(shop.aadCheck);
    int part = 0;
    AddTaskToJob(shop.Context(), shop.AddPart("Loop", 1500), true, Day(3, 2, 2026), part);
    shop.Open();
    QCOMPARE(shop.Row(0), u"AAD check|Rigger|20.00||"_s);
    QCOMPARE(shop.Row(1), u"     Loop||1500.00||"_s);
    QCOMPARE(shop.Row(2), u"||||"_s);
    QCOMPARE(shop.Row(3), u"Total||1,520.00||"_s);
    QCOMPARE(shop.Lines().CellColour(3, kTask), QColor(0, 0, 255));
    QCOMPARE(shop.Lines().CellColour(3, kStatus), QColor(0, 0, 255));
    QVERIFY(!shop.Lines().CellColour(3, kDate).isValid());
    QVERIFY(!shop.Lines().CellColour(2, kTask).isValid());
    QCOMPARE(shop.Lines().Text(1, 5), QString::number(part));
    for (const int hidden : {5, 6, 7}) QVERIFY(shop.Lines().isColumnHidden(hidden));
  }

  void ARepackIsAddedFromTheList() {
    OpenJob shop;
    shop.prompts.ExpectBox(u"Nothing selected"_s,
                           u"Please select an item from the ADD TO JOB list\n(on left of this form)"_s);
    Click(shop.Screen(), u"cmdTask"_s);
    auto& list = Control<List>(shop.Screen(), u"lstTasks"_s);
    QCOMPARE(list.Count(), 9);
    shop.SetWorkDate(u"3/2/2026"_s);
    list.SetListIndex(0);
    Click(shop.Screen(), u"cmdTask"_s);
    QCOMPARE(shop.Row(0), u"Inspect and repack reserve|Rigger|0.00||"_s);
    QCOMPARE(shop.loft.Rows(u"select JobID, TaskLibID, DateTaskStarted from tblTasks"_s),
             QStringList(u"%1|1|%2"_s.arg(shop.job).arg(Day(3, 2, 2026).Days())));
    shop.prompts.ExpectBox(u"Duplicate task"_s,
                           u"This job already has the task 'Inspect and repack reserve'\n"
                           "This task is only allowed once per job\n"
                           "(you can change this in the TASK TYPE LIBRARY)"_s);
    PressKey(list, Qt::Key_Return);
    QCOMPARE(LinesOfJob(shop.job).size(), 1);
    list.SetListIndex(6);  // the rule between lines and gear
    QVERIFY(!Control<QPushButton>(shop.Screen(), u"cmdTask"_s).isEnabled());
    PressKey(list, Qt::Key_Return);
    QCOMPARE(LinesOfJob(shop.job).size(), 1);
  }

  void ABadWorkingDateIsToldAndTheLineStillAdded() {
    OpenJob shop;
    shop.SetWorkDate(u"soon"_s);
    auto& list = Control<List>(shop.Screen(), u"lstTasks"_s);
    list.SetListIndex(0);
    shop.prompts.ExpectBox(u"Date is invalid"_s, u"soon is not a valid date"_s);
    PressKey(list, Qt::Key_Return);
    QCOMPARE(shop.loft.Rows(u"select DateTaskStarted from tblTasks"_s), QStringList(u"0"_s));
  }

  void TheWorkingDateIsReadBeforeTheRigIsLookedAt() {
    OpenJob shop;
    shop.loft.Run(u"delete * from tblRig"_s);
    shop.Open();
    const QStringList before = shop.loft.Snapshot();
    shop.SetWorkDate(u"soon"_s);
    auto& list = Control<List>(shop.Screen(), u"lstTasks"_s);
    list.SetListIndex(0);
    shop.prompts.ExpectBox(u"Date is invalid"_s, u"soon is not a valid date"_s);
    shop.prompts.ExpectBox(u"Can't enter repack"_s,
                           u"The rig for this job has been deleted.\nReserve repacks can only be added to jobs\n"
                           "with a valid rig.\nYou can create a rig using the RIG menu."_s);
    PressKey(list, Qt::Key_Return);
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  /// From the click on the status cell to the last row written.
  void AClickOnTheStatusCompletesARepackAndTakesItBack() {
    OpenJob shop;
    const int line = shop.AddShown(RepackTaskLibID);
    const QStringList before = shop.loft.Snapshot();
    shop.SetWorkDate(u"3/10/2026"_s);
    ClickCell(shop.Lines(), 0, kStatus);
    QCOMPARE(shop.Row(0), u"Inspect and repack reserve|Rigger|0.00|Completed|03/10/2026"_s);
    QCOMPARE(shop.Lines().Text(2, kStatus), u"Completed"_s);
    QVERIFY(shop.Shows("lblJobComplete"));
    QCOMPARE(shop.Label("lblDateCompleted"), u"03/10/2026"_s);
    QCOMPARE(shop.Status(line), SampleJob::State(-1, Day(3, 10, 2026)));
    QCOMPARE(shop.JobState(), SampleJob::State(-1, Day(3, 10, 2026)));
    QCOMPARE(shop.Schedules(),
             QStringList(SampleRig::ScheduleRow(shop.rig, 1, Day(3, 10, 2026), Day(9, 6, 2026), line, 0)));
    PressKey(shop.Lines(), Qt::Key_Space);
    QCOMPARE(shop.Row(0), u"Inspect and repack reserve|Rigger|0.00||"_s);
    QCOMPARE(shop.Lines().Text(2, kStatus), QString());
    QVERIFY(!shop.Shows("lblJobComplete"));
    QCOMPARE(shop.Label("lblDateCompleted"), u"(n/a)"_s);
    QCOMPARE(shop.JobState(), SampleJob::State(0, Date()));
    // The load of the empty job left it complete without a date; with a line it is incomplete.
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void OtherGearThanTheRigsLeavesTheScheduleAlone() {
    OpenJob shop;
    shop.AddShown(RepackTaskLibID);
    shop.loft.Run(u"update tblComponents set RigID = 0 where ID = %1"_s.arg(shop.reserve));
    shop.Choose(u"Tools"_s, u"Refresh"_s);
    QVERIFY(shop.Shows("cmdGearChange") && shop.Shows("cmdCurrentComp"));
    Picture(shop.Screen(), u"frmJob_other_gear"_s);
    shop.screens.WhenShown(u"frmCurrentComponents"_s, [](Form& form) {
      QCOMPARE(TextOf(form, u"lblRigName"_s), u"Blue"_s);
      QCOMPARE(Control<Grid>(form, u"Grid"_s).Text(2, 2), QString());
      Click(form, u"cmdExit"_s);
    });
    Click(shop.Screen(), u"cmdCurrentComp"_s);
    shop.prompts.ExpectBox(u"Rig components may have changed"_s,
                           u"Components in this rig have changed since this job was started\n"
                           "Any components installed or removed during this\n"
                           "job will not affect the current rig components.\n"
                           "These events will be displayed in the rig's history.\n"
                           "Note:  If you would like the current rig to match these\n"
                           "components, see the TOOLS menu above"_s);
    Click(shop.Screen(), u"cmdGearChange"_s);
    ClickCell(shop.Lines(), 0, kStatus);
    QCOMPARE(shop.Lines().Text(0, kStatus), u"Completed"_s);
    QCOMPARE(shop.Schedules(), QStringList());
    shop.loft.Run(u"delete * from tblRig"_s);
    shop.Choose(u"Tools"_s, u"Refresh"_s);
    QCOMPARE(shop.Label("lblSystem"), u"(n/a)"_s);
    shop.prompts.ExpectBox(u"Can't show rig"_s, u"The rig for this job has been deleted"_s);
    Click(shop.Screen(), u"cmdGearChange"_s);
    QCOMPARE(Control<Grid>(shop.Screen(), u"Grid"_s).RowCount(), 4);
  }

  void AnEventKeepsItsCells() {
    OpenJob shop;
    const int event = shop.AddEvent("Reserve ride");
    shop.AddShown(event);
    QCOMPARE(shop.Row(0), u"Reserve ride||20.00|   (event)|03/02/2026"_s);
    shop.prompts.ExpectBox(u"Event: Reserve ride"_s,
                           u"This entry is an event, not a rigging task.\n"
                           "The rigger field is not available for events."_s);
    ClickCell(shop.Lines(), 0, kRigger);
    shop.prompts.ExpectBox(u"Event: Reserve ride"_s,
                           u"This entry is an event, not a rigging task.\n"
                           "The rigger field is not available for events."_s);
    shop.Choose(u"Tasks"_s, u"Change rigger for selected task"_s);
    shop.prompts.ExpectBox(u"Event: Reserve ride"_s,
                           u"This entry is an event, not a rigging task.\n"
                           "The price field is not available for events."_s);
    ClickCell(shop.Lines(), 0, kPrice);
    const QStringList before = shop.loft.Snapshot();
    ClickCell(shop.Lines(), 0, kStatus);
    PressKey(shop.Lines(), Qt::Key_Space);
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
    QCOMPARE(shop.Lines().Text(0, kStatus), u"   (event)"_s);
  }

  void CellsAreEditedInPlace() {
    OpenJob shop;
    const int line = shop.AddTask(shop.aadCheck);
    int part = 0;
    AddTaskToJob(shop.Context(), shop.AddPart("Loop", 3), true, Day(3, 2, 2026), part);
    shop.Open();
    shop.TypeIntoCell(0, kTask, u"Check AAD"_s);
    QCOMPARE(LineName(line), u"Check AAD"_s);
    shop.TypeIntoCell(1, kTask, u"Cord"_s);
    QCOMPARE(shop.Lines().Text(1, kTask), u"     Cord"_s);
    QCOMPARE(LineName(part), u"Cord"_s);
    shop.TypeIntoCell(0, kPrice, u"12.5"_s);
    QCOMPARE(shop.Row(0), u"Check AAD|Rigger|12.50||"_s);
    QCOMPARE(shop.Lines().Text(3, kPrice), u"15.50"_s);
    const QStringList before = shop.loft.Snapshot();
    shop.TypeIntoCell(0, kPrice, u"99"_s, Qt::Key_Escape);
    QCOMPARE(shop.Lines().Text(0, kPrice), u"12.50"_s);
    ClickCell(shop.Lines(), 0, kDate);
    QVERIFY(!shop.Lines().IsEditing());
    for (const int row : {2, 3}) {
      ClickCell(shop.Lines(), row, kTask);
      QVERIFY(!shop.Lines().IsEditing());
    }
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void ATooHighPriceKeepsTheBoxOpen() {
    OpenJob shop;
    const int line = shop.AddShown(shop.aadCheck);
    shop.prompts.ExpectBox(u"Invalid dollar amount\n(values over $ 1,000,000,000 are not allowed)"_s,
                           u"1000000001 is not a valid amount"_s);
    shop.TypeIntoCell(0, kPrice, u"1000000001"_s);
    QVERIFY(shop.Lines().IsEditing());
    QTest::keyClick(shop.Lines().Editor(), Qt::Key_Escape);
    QCOMPARE(shop.loft.Rows(u"select FlatRate from tblTasks where ID = %1"_s.arg(line)), QStringList(u"200000"_s));
  }

  void ADateInTheGridLeavesTheSchedule() {
    OpenJob shop;
    const int line = shop.AddShown(RepackTaskLibID);
    shop.SetWorkDate(u"3/10/2026"_s);
    ClickCell(shop.Lines(), 0, kStatus);
    const QStringList schedules = shop.Schedules();
    shop.TypeIntoCell(0, kDate, u"3/12/2026"_s);
    QCOMPARE(shop.Lines().Text(0, kDate), u"03/12/2026"_s);
    QCOMPARE(shop.Status(line), SampleJob::State(-1, Day(3, 12, 2026)));
    QCOMPARE(shop.Schedules(), schedules);
    shop.prompts.ExpectBox(u"Invalid date"_s, u"soon is not a valid date"_s);
    shop.TypeIntoCell(0, kDate, u"soon"_s);
    QVERIFY(shop.Lines().IsEditing());
    QTest::keyClick(shop.Lines().Editor(), Qt::Key_Escape);
  }

  void TheRiggerOfALineIsPicked() {
    OpenJob shop;
    const int ann = shop.loft.Add("tblPeople", {{"FirstName", "Ann"}, {"LastName", "Adams"}, {"rigger", true}});
    shop.prompts.ExpectBox(u"Can't change rigger for task"_s, u"There are no tasks to select"_s);
    shop.Choose(u"Tasks"_s, u"Change rigger for selected task"_s);
    const int line = shop.AddShown(shop.aadCheck);
    shop.prompts.ExpectBox(u"Please select a task"_s, u"You must select a task"_s);
    shop.Choose(u"Tasks"_s, u"Change rigger for selected task"_s);
    shop.screens.WhenShown(u"frmPicker"_s, [](Form& form) { Click(form, u"cmdCancel"_s); });
    ClickCell(shop.Lines(), 0, kRigger);
    QCOMPARE(shop.Lines().Text(0, kRigger), u"Rigger"_s);
    shop.screens.WhenShown(u"frmPicker"_s, [](Form& form) {
      TypeInto(form, u"txt"_s, u"Adams"_s);
      Click(form, u"cmdSelect"_s);
    });
    ClickCell(shop.Lines(), 0, kRigger);
    QCOMPARE(shop.Lines().Text(0, kRigger), u"Adams"_s);
    QCOMPARE(shop.loft.Rows(u"select RiggerID from tblTasks where ID = %1"_s.arg(line)),
             QStringList(QString::number(ann)));
  }

  void LinesAreDeletedByKeyAndMenu() {
    OpenJob shop;
    PressKey(shop.Lines(), Qt::Key_Delete);
    shop.AddTask(RepackTaskLibID);
    shop.AddShown(shop.aadCheck);
    shop.Choose(u"Tasks"_s, u"Complete all tasks"_s);
    QVERIFY(shop.Shows("lblJobComplete"));
    shop.prompts.ExpectBox(u"Nothing selected"_s, u"You must select an item to delete"_s);
    ClickCell(shop.Lines(), 2, kTask);
    PressKey(shop.Lines(), Qt::Key_Delete);
    shop.prompts.Expect(u"Delete Inspect and repack reserve?"_s, u"Are you sure you want to delete this entry?"_s,
                        Answer::Yes);
    shop.Lines().SelectCell(0, kTask);
    PressKey(shop.Lines(), Qt::Key_Delete);
    QCOMPARE(shop.Row(0), u"AAD check|Rigger|20.00|Completed|03/01/2026"_s);
    QCOMPARE(shop.Lines().CurrentRow(), 0);
    shop.prompts.Expect(u"Delete all entries for this job?"_s,
                        u"This will permanently delete all tasks and parts for this job.\n"
                        "Are you sure you want to do this?"_s,
                        Answer::Yes);
    shop.Choose(u"Tasks"_s, u"Delete all tasks for this job"_s);
    QCOMPARE(shop.Lines().RowCount(), 2);
    QVERIFY(!shop.Shows("lblJobComplete"));
    QCOMPARE(shop.JobState(), SampleJob::State(-1, Date()));
    QCOMPARE(shop.Schedules(), QStringList());
  }

  void AllLinesAreCompletedAndTakenBack() {
    OpenJob shop;
    shop.AddTask(RepackTaskLibID);
    shop.AddShown(shop.aadCheck);
    shop.SetWorkDate(u"3/10/2026"_s);
    shop.Choose(u"Tasks"_s, u"Complete all tasks"_s);
    QCOMPARE(shop.Lines().Text(0, kStatus), u"Completed"_s);
    QCOMPARE(shop.Lines().Text(1, kDate), u"03/10/2026"_s);
    QCOMPARE(shop.Schedules().size(), 2);
    shop.Choose(u"Tasks"_s, u"Make all tasks incomplete"_s);
    QCOMPARE(shop.Lines().Text(0, kStatus), QString());
    QCOMPARE(shop.Schedules(), QStringList());
    QCOMPARE(shop.JobState(), SampleJob::State(0, Date()));
  }

  void PricesAndNamesAreRestored() {
    OpenJob shop;
    const int line = shop.AddShown(shop.aadCheck);
    shop.prompts.ExpectBox(u"Nothing selected"_s, u"You must select an item"_s);
    shop.Choose(u"Tasks"_s, u"Restore original price"_s);
    shop.prompts.ExpectBox(u"Nothing selected"_s, u"Please select a task"_s);
    shop.Choose(u"Tasks"_s, u"Restore original task name"_s);
    SaveLinePrice(line, u"99"_s);
    SaveLineName(line, u"Odd"_s);
    shop.Choose(u"Tools"_s, u"Refresh"_s);
    shop.Lines().SelectCell(0, kTask);
    shop.Choose(u"Tasks"_s, u"Restore original price"_s);
    shop.Choose(u"Tasks"_s, u"Restore original task name"_s);
    QCOMPARE(shop.Row(0), u"AAD check|Rigger|20.00||"_s);
    QCOMPARE(shop.Lines().Text(2, kPrice), u"20.00"_s);
  }
};

LOFT_TEST_MAIN(TestJobLines)
#include "tst_job_lines.moc"
