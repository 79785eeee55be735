#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include "jobs/line_edits.h"
#include "jobs/screens/open_job.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

/// Who, what and when at the head of the job.
class TestJobHeader : public QObject {
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

  void ACompleteJobOpensWithItsCompletionDate() {
    OpenJob shop;
    const int first = shop.AddTask(RepackTaskLibID);
    const int second = shop.AddTask(shop.aadCheck);
    Click(shop.Screen(), u"cmdExit"_s);
    ToggleComplete(first, Day(3, 4, 2026), true);
    ToggleComplete(second, Day(3, 9, 2026), true);
    QCOMPARE(shop.JobState(), SampleJob::State(-1, Day(3, 9, 2026)));
    shop.Open();
    // The working date is read before the lines are; the load then takes the first line's date.
    QCOMPARE(shop.Label("txtDate"), u"03/09/2026"_s);
    QCOMPARE(shop.Label("lblDateCompleted"), u"03/04/2026"_s);
    QCOMPARE(shop.JobState(), SampleJob::State(-1, Day(3, 4, 2026)));
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
    shop.loft.Run(u"update tblTasks set RiggerID = 99"_s);
    shop.screens.WhenShown(u"frmPicker"_s,
                           [](Form& form) { Click(form, u"cmdSelect"_s); });  // the same one: no question
    QTest::mouseClick(&Control<QWidget>(shop.Screen(), u"lblRigger"_s), Qt::LeftButton);
    QCOMPARE(JobRiggerID(shop.job), ann);
    shop.loft.Run(u"update tblPeople set rigger = false"_s);
    shop.prompts.ExpectBox(u"No riggers found"_s,
                           u"There are no riggers in your database\nTo designate a person as a rigger, go to the\n"
                           "customers form and check the RIGGER check box"_s);
    shop.Choose(u"Jobs"_s, u"Change rigger for job"_s);
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
};

LOFT_TEST_MAIN(TestJobHeader)
#include "tst_job_header.moc"
