#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "jobs/line_edits.h"
#include "jobs/screens/open_job.h"
#include "support/data_folder_here.h"

using namespace Qt::StringLiterals;

class TestJob : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void ShowsWhoWhatAndWhen() {
    OpenJob shop;
    shop.AddShown(RepackTaskLibID);
    QCOMPARE(shop.Label("lblCust"), u"Olaf Owner"_s);
    QCOMPARE(shop.Label("lblSystem"), u"Blue"_s);
    QCOMPARE(shop.Label("lblRigger"), u"Rita Rigger"_s);
    QCOMPARE(shop.Label("lblJob"), u"Blue 03/01/2026"_s);
    QCOMPARE(shop.Label("lblInvoice"), QString::number(shop.job));
    QCOMPARE(shop.Label("lblDateStarted"), u"03/01/2026"_s);
    QCOMPARE(shop.Label("lblDatePromised"), u"n/a"_s);
    QCOMPARE(shop.Label("lblDateCompleted"), u"n/a"_s);
    QCOMPARE(shop.Label("txtDate"), u"03/01/2026"_s);
    QVERIFY(!shop.Shows("lblJobComplete") && !shop.Shows("lblComments"));
    QVERIFY(!shop.Shows("cmdGearChange") && !shop.Shows("cmdCurrentComp"));
    auto& gear = Control<Grid>(shop.Screen(), u"Grid"_s);
    QCOMPARE(gear.RowCount(), 4);
    QCOMPARE(gear.Text(0, 1), u"Container"_s);
    QCOMPARE(gear.Text(0, 2), u"Javelin "_s);
    QCOMPARE(gear.RowData(3), shop.aad);
    QCOMPARE(shop.loft.Rows(u"select LastJobID, LastCustomerID, LastSystemID from tblMisc"_s),
             QStringList(u"%1|%2|%3"_s.arg(shop.job).arg(shop.owner).arg(shop.rig)));
    shop.SetWorkDate(u"03/02/2026"_s);
    ClickCell(shop.Lines(), 0, kStatus);
    shop.AddShown(shop.aadCheck);
    Picture(shop.Screen(), u"frmJob"_s);
  }

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

  void ACompleteJobOpensWithItsCompletionDate() {
    OpenJob shop;
    const int first = shop.AddTask(RepackTaskLibID);
    const int second = shop.AddTask(shop.aadCheck);
    ToggleComplete(first, Day(3, 4, 2026), true);
    ToggleComplete(second, Day(3, 9, 2026), true);
    QCOMPARE(shop.JobState(), SampleJob::State(-1, Day(3, 9, 2026)));
    shop.Open();
    // The working date is read before the lines are; the load then takes the first line's date.
    QCOMPARE(shop.Label("txtDate"), u"03/09/2026"_s);
    QCOMPARE(shop.Label("lblDateCompleted"), u"03/04/2026"_s);
    QCOMPARE(shop.JobState(), SampleJob::State(-1, Day(3, 4, 2026)));
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

  void TheRiggerOfTheJobIsPicked() {
    OpenJob shop;
    const int ann = shop.loft.Add("tblPeople", {{"FirstName", "Ann"}, {"LastName", "Adams"}, {"rigger", true}});
    shop.AddShown(shop.aadCheck);
    shop.screens.WhenShown(u"frmPicker"_s, [](Form& form) {
      TypeInto(form, u"txt"_s, u"Adams"_s);
      Click(form, u"cmdSelect"_s);
    });
    shop.prompts.Expect(u"Change rigger on tasks?"_s,
                        u"Rigger for this job has been changed to Ann Adams.\n"
                        "This job has tasks performed by other riggers.\n"
                        "Do you want to change rigger to Ann Adams for all tasks on this job?"_s,
                        Answer::Yes);
    QTest::mouseClick(&Control<QWidget>(shop.Screen(), u"lblRigger"_s), Qt::LeftButton);
    QCOMPARE(JobRiggerID(shop.job), ann);
    QCOMPARE(shop.Label("lblRigger"), u"Ann Adams"_s);
    QCOMPARE(shop.Lines().Text(0, kRigger), u"Adams"_s);
    shop.loft.Run(u"update tblPeople set rigger = false"_s);
    shop.prompts.ExpectBox(u"No riggers found"_s,
                           u"There are no riggers in your database\nTo designate a person as a rigger, go to the\n"
                           "customers form and check the RIGGER check box"_s);
    shop.Choose(u"Jobs"_s, u"Change rigger for job"_s);
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

  void TheHeaderIsEditedInPlace() {
    OpenJob shop;
    const int other = shop.AddJob("Other", 0, 0);
    SetJobInvoiceNumber(other, u"A-1"_s);
    shop.EditLabel("lblJob", u"Blue, spring"_s);
    QCOMPARE(shop.Label("lblJob"), u"Blue, spring"_s);
    QCOMPARE(JobTitle(shop.job), u"Blue, spring"_s);
    shop.prompts.ExpectBox(u"Can't use this job name"_s, u"There is already a job named: other"_s);
    shop.EditLabel("lblJob", u"other"_s);
    QCOMPARE(shop.Label("lblJob"), u"Blue, spring"_s);
    shop.EditLabel("lblInvoice", u"A-2"_s);
    QCOMPARE(GetInvoiceNumber(shop.job), u"A-2"_s);
    shop.prompts.ExpectBox(u"Duplicate Invoice Number"_s, u"Invoice #A-1 is already in use"_s);
    shop.EditLabel("lblInvoice", u"A-1"_s);
    QCOMPARE(shop.Label("lblInvoice"), u"A-2"_s);
    shop.EditLabel("lblDatePromised", u"4/1/2026"_s);
    QCOMPARE(shop.Label("lblDatePromised"), u"04/01/2026"_s);
    QCOMPARE(JobDatePromised(shop.job), Day(4, 1, 2026));
    shop.EditLabel("lblDateStarted", u"2/1/2026"_s);
    QCOMPARE(JobDateStarted(shop.job), Day(2, 1, 2026));
    shop.prompts.ExpectBox(u"Invalid date"_s, u"soon is not a valid date"_s);
    shop.EditLabel("lblDateStarted", u"soon"_s);
    QCOMPARE(shop.Label("lblDateStarted"), u"02/01/2026"_s);
    const QStringList before = shop.loft.Snapshot();
    shop.EditLabel("lblDateCompleted", u"4/4/2026"_s);
    QCOMPARE(shop.Label("lblDateCompleted"), u"n/a"_s);
    shop.EditLabel("lblJob", u"Never"_s, Qt::Key_Escape);
    QCOMPARE(shop.Label("lblJob"), u"Blue, spring"_s);
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
    QVERIFY(!shop.Shows("txtAny"));
  }

  void AnEmptyOrBadWorkingDateBecomesToday() {
    OpenJob shop;
    auto& box = Control<QLineEdit>(shop.Screen(), u"txtDate"_s);
    const auto leave = [&] {
      QFocusEvent event(QEvent::FocusOut);
      QApplication::sendEvent(&box, &event);
    };
    box.setText(QString());
    leave();
    QCOMPARE(box.text(), u"03/15/2026"_s);
    box.setText(u"soon"_s);
    shop.prompts.ExpectBox(u"Invalid date - changing to today's date"_s, u"soon is not a valid date"_s);
    leave();
    QCOMPARE(box.text(), u"03/15/2026"_s);
    box.setText(u"2/2/2026"_s);
    leave();
    QCOMPARE(box.text(), u"2/2/2026"_s);
    Click(shop.Screen(), u"cmdToday"_s);
    QCOMPARE(box.text(), u"03/15/2026"_s);
  }

  void CommentsAreKeptForJobAndLine() {
    OpenJob shop;
    shop.prompts.ExpectBox(u"Comments"_s, u"You must select a task or event"_s);
    shop.Choose(u"Comments"_s, u"Comments for selected task or event - (CTRL Left click)"_s);
    const int line = shop.AddShown(shop.aadCheck);
    shop.screens.WhenShown(u"frmComments"_s, [](Form& form) {
      QCOMPARE(TextOf(form, u"lblComments"_s), u"Job: Blue 03/01/2026"_s);
      TypeInto(form, u"txtComments"_s, u"Call first"_s);
      Click(form, u"cmdSave"_s);
    });
    shop.Choose(u"Comments"_s, u"Job comments"_s);
    QCOMPARE(JobComments(shop.job), u"Call first"_s);
    QVERIFY(shop.Shows("lblComments"));
    shop.Choose(u"Tasks"_s, u"Complete all tasks"_s);
    shop.screens.WhenShown(u"frmComments"_s, [](Form& form) {
      QCOMPARE(TextOf(form, u"lblComments"_s), u"Task: AAD check"_s);
      TypeInto(form, u"txtComments"_s, u"Battery low"_s);
      Click(form, u"cmdSave"_s);
    });
    ClickCell(shop.Lines(), 0, kTask, Qt::ControlModifier);
    QCOMPARE(LineComments(line), u"Battery low"_s);
    QCOMPARE(shop.Label("lblTaskComments"), u"(selected task has comments)"_s);
    QTest::mouseClick(&Control<QWidget>(shop.Screen(), u"lblInvoice"_s), Qt::LeftButton);
    Picture(shop.Screen(), u"frmJob_complete"_s);
    shop.Lines().SelectCell(1, kTask);
    QCOMPARE(shop.Label("lblTaskComments"), QString());
  }

  void JobsAreSteppedThroughAndLocated() {
    OpenJob shop;
    const int second = shop.AddJob("Second", 0, 0);
    shop.Open();
    auto& back = Control<QPushButton>(shop.Screen(), u"cmdPrev"_s);
    auto& next = Control<QPushButton>(shop.Screen(), u"cmdNext"_s);
    QVERIFY(!back.isEnabled() && next.isEnabled());
    Click(shop.Screen(), u"cmdNext"_s);
    QCOMPARE(shop.Label("lblJob"), u"Second"_s);
    QVERIFY(back.isEnabled() && !next.isEnabled());
    QCOMPARE(LastJobID(), second);
    Click(shop.Screen(), u"cmdPrev"_s);
    QCOMPARE(shop.Label("lblJob"), u"Blue 03/01/2026"_s);
    shop.screens.WhenShown(u"frmPicker"_s, [&](Form& form) {
      TypeInto(form, u"txt"_s, QString::number(second));
      Click(form, u"cmdSelect"_s);
    });
    shop.Choose(u"Locate Job"_s, u"locate by invoice #"_s);
    QCOMPARE(shop.Label("lblJob"), u"Second"_s);
    shop.screens.WhenShown(u"frmPicker"_s, [](Form& form) {
      TypeInto(form, u"txt"_s, u"nothing like it"_s);
      Click(form, u"cmdSelect"_s);
    });
    shop.Choose(u"Locate Job"_s, u"locate by job name"_s);
    QCOMPARE(shop.Label("lblJob"), u"Second"_s);
  }

  void AVanishedJobGivesWay() {
    OpenJob shop;
    const int second = shop.AddJob("Second", 0, 0);
    shop.AddJob("loadme", 0, 0);
    shop.loft.Run(u"delete * from tblJobs where ID = %1"_s.arg(shop.job));
    Forms::ReloadIfLoaded(u"frmJob"_s);
    QCOMPARE(shop.Label("lblJob"), u"Second"_s);
    QCOMPARE(shop.loft.Rows(u"select ID from tblJobs"_s), QStringList(QString::number(second)));
    shop.loft.Run(u"delete * from tblJobs"_s);
    shop.prompts.ExpectBox(u"Loftkeep"_s, u"There are no jobs"_s);
    Forms::ReloadIfLoaded(u"frmJob"_s);
    QVERIFY(!Forms::IsShown(u"frmJob"_s));
    shop.prompts.ExpectBox(u"Loftkeep"_s, u"There are no jobs"_s);
    ShowJob();
    QVERIFY(!Forms::IsShown(u"frmJob"_s));
  }

  void TheJobIsDeletedAndTheNextOneShown() {
    OpenJob shop;
    shop.AddJob("Second", 0, 0);
    shop.prompts.Expect(u"Delete Blue 03/01/2026"_s, u"Are you sure you want to delete this job?"_s, Answer::No);
    shop.Choose(u"Jobs"_s, u"Delete this job"_s);
    QVERIFY(JobExists(shop.job));
    shop.prompts.Expect(u"Delete Blue 03/01/2026"_s, u"Are you sure you want to delete this job?"_s, Answer::Yes);
    shop.Choose(u"Jobs"_s, u"Delete this job"_s);
    QCOMPARE(shop.Label("lblJob"), u"Second"_s);
    shop.prompts.Expect(u"Delete Second"_s, u"Are you sure you want to delete this job?"_s, Answer::Yes);
    shop.prompts.ExpectBox(u"Job database is now empty"_s, u"The only job in the database has been deleted"_s);
    shop.Choose(u"Jobs"_s, u"Delete this job"_s);
    QVERIFY(!Forms::IsShown(u"frmJob"_s));
  }

  void EmptyJobsAreDeletedFromTheMenu() {
    OpenJob shop;
    shop.AddShown(shop.aadCheck);
    const int empty = shop.AddJob("Empty", 0, 0);
    shop.prompts.Expect(u"One empty job"_s,
                        u"Found one empty job (invoice # %1)\nWould you like to delete  it?"_s.arg(empty), Answer::Yes);
    shop.Choose(u"Tools"_s, u"Delete all empty jobs"_s);
    QVERIFY(!JobExists(empty));
    QCOMPARE(shop.Label("lblJob"), u"Blue 03/01/2026"_s);
    QVERIFY(!Control<QPushButton>(shop.Screen(), u"cmdNext"_s).isEnabled());
  }

  void HelpIsTold() {
    OpenJob shop;
    shop.prompts.ExpectBox(u"Jobs"_s,
                           u"When all tasks have status COMPLETED, the job status is updated to COMPLETED."_s);
    Click(shop.Screen(), u"cmdHelp"_s);
    shop.prompts.AnswerRestWith([](const ShownPrompt& shown) { return shown.preset; });
    Click(shop.Screen(), u"cmdDateHelp"_s);
    const ShownPrompt dates = shop.prompts.Transcript().last();
    QCOMPARE(dates.title, u"Job/Task Dates"_s);
    for (const QString& line :
         {u"  1).  It will be the Task Start Date for all new tasks"_s,
          u"  2).  It will be the Task Completion Date when clicking the STATUS column to COMPLETED"_s,
          u"  3).  It will be the JOB Completion Date when all tasks have been checked."_s,
          u"Changing the date in the DATE PERFORMED box does NOT change the dates for tasks already entered."_s,
          u"Hint: A quick way to change a task's end date is to just uncheck a task and then recheck it.  "_s,
          u"Also changing a JOB's completion date will give you the option of changing each task's end date "_s})
      QVERIFY2(dates.text.split(u'\n').contains(line), qPrintable(line));
    shop.Choose(u"Events"_s, u"What's an event?"_s);
    QCOMPARE(shop.prompts.Transcript().last().title, u"Events vs Tasks"_s);
    QVERIFY(shop.prompts.Transcript().last().text.contains(u"unplanned occurences"_s));
  }

  void TheInvoiceOfAnIncompleteJobIsAskedFor() {
    OpenJob shop;
    const DataFolderHere here(shop.loft.Folder());
    shop.loft.Folder().Write(u"support/address.txt"_s, "Loft\n");
    shop.AddShown(shop.aadCheck);
    const QString text =
        u"This job is incomplete.\nOne or more items in the STATUS column are blank.\n"
        "Do you want to show the invoice anyway?"_s;
    shop.prompts.Expect(u"Job is not complete"_s, text, Answer::No);
    shop.Choose(u"Invoice"_s, u"View/Print/Email invoice"_s);
    shop.prompts.Expect(u"Job is not complete"_s, text, Answer::Yes);
    shop.screens.WhenShown(u"frmPrintPreview"_s, [](Form& form) { form.reject(); });
    shop.Choose(u"Invoice"_s, u"View/Print/Email invoice"_s);
    ClickCell(shop.Lines(), 0, kStatus);
    shop.screens.WhenShown(u"frmPrintPreview"_s, [](Form& form) { form.reject(); });
    shop.Choose(u"Invoice"_s, u"View/Print/Email invoice"_s);
  }

  void TheRigIsShown() {
    OpenJob shop;
    int shown = 0;
    shop.screens.WhenShown(u"frmGetRig"_s, [&](Form& form) {
      auto& rigs = Control<List>(form, u"lstGear"_s);
      shown = rigs.ItemData(rigs.ListIndex());
      form.reject();
    });
    shop.Choose(u"Rig"_s, u"Show this rig"_s);
    QCOMPARE(shown, shop.rig);
    shop.loft.Run(u"delete * from tblRig"_s);
    shop.prompts.ExpectBox(u"Can't show rig"_s, u"The rig for this job has been deleted"_s);
    shop.Choose(u"Rig"_s, u"Show this rig"_s);
    const int loose = shop.AddJob("Loose", 0, 0);
    GotoJob(loose);
    shop.prompts.ExpectBox(u"No Rig"_s, u"There is no rig for this job"_s);
    shop.Choose(u"Rig"_s, u"Show this rig"_s);
  }

  void ANewJobStartsOnAPickedRig() {
    OpenJob shop;
    shop.screens.WhenShown(u"frmPickRig"_s, [&](Form& form) {
      auto& rigs = Control<List>(form, u"lstGear"_s);
      rigs.SetListIndex(rigs.FindData(shop.rig));
      Click(form, u"cmdSelect"_s);
    });
    shop.screens.WhenShown(u"frmNewJob"_s, [](Form& form) { Click(form, u"cmdOK"_s); });
    ChooseMenu(shop.Screen(), {u"Jobs"_s, u"Start new job"_s, u"New job, select rig"_s});
    QCOMPARE(shop.Label("lblJob"), u"Blue 3/15/2026"_s);
    QCOMPARE(shop.Label("lblSystem"), u"Blue"_s);
  }

  void TheSelectedComponentIsEdited() {
    OpenJob shop;
    shop.prompts.ExpectBox(u"Edit selected component"_s, u"You must select a component from the above grid"_s);
    shop.Choose(u"Component"_s, u"Edit selected component"_s);
    Control<Grid>(shop.Screen(), u"Grid"_s).SelectRow(3);
    shop.screens.WhenShown(u"frmComponentEdit"_s, [](Form& form) { form.reject(); });
    shop.Choose(u"Component"_s, u"Edit selected component"_s);
  }

  void ExitHidesTheScreenAndKeepsItLoaded() {
    OpenJob shop;
    Click(shop.Screen(), u"cmdExit"_s);
    QVERIFY(Forms::Find(u"frmJob"_s) && !Forms::IsShown(u"frmJob"_s));
    ShowJob();
    QVERIFY(Forms::IsShown(u"frmJob"_s));
    PressKey(shop.Screen(), Qt::Key_Escape);
    QVERIFY(Forms::Find(u"frmJob"_s) && !Forms::IsShown(u"frmJob"_s));
  }

  void ANewJobWithoutARigStartsFromTheMenu() {
    OpenJob shop;
    shop.screens.WhenShown(u"frmPicker"_s, [](Form& form) {
      TypeInto(form, u"txt"_s, u"Owner"_s);
      Click(form, u"cmdSelect"_s);
    });
    shop.screens.WhenShown(u"frmNewJob"_s, [](Form& form) { Click(form, u"cmdOK"_s); });
    ChooseMenu(shop.Screen(), {u"Jobs"_s, u"Start new job"_s, u"New job, no rig"_s});
    QCOMPARE(shop.Label("lblJob"), u"Owner 3/15/2026"_s);
    QCOMPARE(shop.Label("lblSystem"), u"(n/a)"_s);
    auto& list = Control<List>(shop.Screen(), u"lstTasks"_s);
    list.SetListIndex(0);
    shop.prompts.ExpectBox(u"Can't enter repack"_s,
                           u"This job doesn't have a rig.\nReserve repacks can only be added to jobs\n"
                           "with a valid rig.\nYou can create a rig using the RIG menu."_s);
    PressKey(list, Qt::Key_Return);
    QVERIFY(!shop.Shows("cmdGearChange"));
  }
};

QTEST_MAIN(TestJob)
#include "tst_job.moc"
