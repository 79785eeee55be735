#include <QTest>

#include "core/store/undo.h"
#include "gear/rigs.h"
#include "jobs/delete_job.h"
#include "jobs/job_header.h"
#include "jobs/job_lines.h"
#include "jobs/line_edits.h"
#include "jobs/screens/open_gear.h"
#include "support/counting_form.h"
#include "support/statement_count.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

/// The job with a repack, an AAD check and a line check on the screen.
struct ThreeLines : OpenJob {
  int lineCheck = AddEntry("Line check", 1, 3, {kMainCanopy});
  int repack = AddTask(RepackTaskLibID);
  int check = AddTask(aadCheck);
  int last = AddTask(lineCheck);

  QLineEdit& Any() const { return Control<QLineEdit>(Screen(), u"txtAny"_s); }
  QLineEdit& WorkDate() const { return Control<QLineEdit>(Screen(), u"txtDate"_s); }
  /// Opens a cell's box and types over its text.
  void StartTyping(int row, int column, const QString& text) const {
    ClickCell(Lines(), row, column);
    QVERIFY(Lines().IsEditing());
    Lines().Editor()->selectAll();
    QTest::keyClicks(Lines().Editor(), text);
  }
  void StartLabel(const char* label, const QString& text) const {
    QTest::mouseClick(&Control<QWidget>(Screen(), QString::fromLatin1(label)), Qt::LeftButton);
    TypeInto(Screen(), u"txtAny"_s, text);
  }
};

void PickRow(const OpenJob& shop, int item) {
  Control<List>(shop.Screen(), u"lstTasks"_s).SetListIndex(item);
  Click(shop.Screen(), u"cmdTask"_s);
}

}  // namespace

/// The job screen while others write what it shows.
class TestJobStays : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void AStatusClickTakesFewStatementsAndTellsOthersOnce() {
    StatementCount statements;
    OpenJob shop;
    const int line = shop.AddTask(RepackTaskLibID);
    shop.SetWorkDate(u"3/10/2026"_s);
    ClickCell(shop.Lines(), 0, kStatus);  // the record of operations is made by the first one
    ClickCell(shop.Lines(), 0, kStatus);
    CountingForm other(u"frmOther"_s, {u"tblTasks"_s, u"tblJobs"_s, u"tblSchedules"_s});
    statements.Restart();
    ClickCell(shop.Lines(), 0, kStatus);
    const int taken = statements.Count();
    QVERIFY2(taken <= 30, qPrintable(QString::number(taken)));
    QVERIFY(taken > 5);
    QCOMPARE(other.told, 1);
    QCOMPARE(shop.Row(0), u"Inspect and repack reserve|Rigger|0.00|Completed|03/10/2026"_s);
    QCOMPARE(shop.Status(line), SampleJob::State(-1, Day(3, 10, 2026)));
  }

  void CompletingAllTellsEachScreenOnce() {
    OpenJob shop;
    for (int i = 0; i < 10; ++i) {
      int line = 0;
      AddTaskToJob(shop.Context(), shop.aadCheck, false, Day(3, 2, 2026), line);
      AddComponentsToTask(shop.aadCheck, line, shop.job);
    }
    shop.SetWorkDate(u"3/10/2026"_s);
    CountingForm other(u"frmOther"_s, {u"tblTasks"_s, u"tblJobs"_s, u"tblSchedules"_s});
    shop.Choose(u"Tasks"_s, u"Complete all tasks"_s);
    QCOMPARE(other.told, 1);
    for (int row = 0; row < 10; ++row) QCOMPARE(shop.Row(row), u"AAD check|Rigger|20.00|Completed|03/10/2026"_s);
    QCOMPARE(shop.Label("lblDateCompleted"), u"03/10/2026"_s);
    QCOMPARE(shop.JobState(), SampleJob::State(-1, Day(3, 10, 2026)));
    QVERIFY(UndoOperation());
    QCOMPARE(shop.Row(9), u"AAD check|Rigger|20.00||"_s);
    QCOMPARE(shop.Schedules(), QStringList());
  }

  void TheSelectedLineStaysByItsId() {
    ThreeLines shop;
    shop.Lines().SelectCell(1, kPrice);
    DeleteLine(shop.repack, true);
    QCOMPARE(shop.Lines().CurrentRow(), 0);
    QCOMPARE(shop.Lines().CurrentColumn(), static_cast<int>(kPrice));
    QCOMPARE(shop.Lines().RowData(0), shop.check);
    // Where it goes itself, the line in its place is selected.
    DeleteLine(shop.check, true);
    QCOMPARE(shop.Lines().RowData(shop.Lines().CurrentRow()), shop.last);
  }

  void TheTextInACellSurvivesAReloadAndIsSavedToItsLine() {
    ThreeLines shop;
    shop.StartTyping(1, kPrice, u"33.50"_s);
    DeleteLine(shop.repack, true);
    QVERIFY(shop.Lines().IsEditing() && shop.Screen().focusWidget() == shop.Lines().Editor());
    QCOMPARE(shop.Lines().Editor()->text(), u"33.50"_s);
    QTest::keyClick(&shop.Screen(), Qt::Key_F5);
    QCOMPARE(shop.Lines().Editor()->text(), u"33.50"_s);
    PressKey(*shop.Lines().Editor(), Qt::Key_Return);
    QVERIFY(!shop.Lines().IsEditing());
    QCOMPARE(shop.Row(0), u"AAD check|Rigger|33.50||"_s);
    QCOMPARE(LoadJobLine(shop.check).price, Money::FromText(u"33.5"_s));
    QCOMPARE(LoadJobLine(shop.last).price, Money::Whole(20));
    // The line goes, and the box with it.
    shop.StartTyping(0, kTask, u"Half a na"_s);
    DeleteLine(shop.check, true);
    QVERIFY(!shop.Lines().IsEditing());
  }

  void LeavingTheJobSavesWhatIsTyped() {
    ThreeLines shop;
    const int other = shop.AddJob("Other", 0, 0);
    shop.StartTyping(1, kTask, u"AAD seen"_s);
    GotoJob(other);
    QCOMPARE(LineName(shop.check), u"AAD seen"_s);
    shop.Open();
    shop.StartLabel("lblInvoice", u"A-7"_s);
    GotoJob(other);
    QCOMPARE(GetInvoiceNumber(shop.job), u"A-7"_s);
    shop.Open();
    shop.StartTyping(1, kPrice, u"44"_s);
    Click(shop.Screen(), u"cmdExit"_s);
    QVERIFY(!shop.Screen().isVisible());
    QCOMPARE(LoadJobLine(shop.check).price, Money::Whole(44));
    // A text that is refused keeps the screen open.
    shop.Open();
    shop.StartTyping(1, kPrice, u"1000000001"_s);
    shop.prompts.ExpectBox(u"Invalid dollar amount\n(values over $ 1,000,000,000 are not allowed)"_s,
                           u"1000000001 is not a valid amount"_s);
    ChooseMenu(shop.Screen(), {u"Exit"_s});
    QVERIFY(shop.Screen().isVisible());
    PressKey(*shop.Lines().Editor(), Qt::Key_Escape);
  }

  void ACellThatWasOnlyOpenedWritesNothing() {
    ThreeLines shop;
    shop.loft.Run(u"update tblTasks set FlatRate = 1.2345 where ID = %1"_s.arg(shop.check));
    const QStringList before = shop.loft.Snapshot();
    ClickCell(shop.Lines(), 1, kPrice);
    QCOMPARE(shop.Lines().Editor()->text(), u"1.23"_s);
    PressKey(*shop.Lines().Editor(), Qt::Key_Return);
    QVERIFY(!shop.Lines().IsEditing());
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
    // Nor does it take back what was written elsewhere meanwhile.
    ClickCell(shop.Lines(), 1, kTask);
    SaveLineName(shop.check, u"Checked"_s);
    PressKey(*shop.Lines().Editor(), Qt::Key_Return);
    QCOMPARE(LineName(shop.check), u"Checked"_s);
    QTest::mouseClick(&Control<QWidget>(shop.Screen(), u"lblJob"_s), Qt::LeftButton);
    SaveJobName(shop.job, u"Elsewhere"_s);
    PressKey(shop.Any(), Qt::Key_Return);
    QCOMPARE(JobTitle(shop.job), u"Elsewhere"_s);
    QCOMPARE(shop.Label("lblJob"), u"Elsewhere"_s);
  }

  void APriceThatNoMoneyHoldsIsRefused_data() {
    QTest::addColumn<QString>("typed");
    QTest::newRow("far below zero") << u"-1000000000000000"_s;
    QTest::newRow("far too large") << u"1e400"_s;
  }
  void APriceThatNoMoneyHoldsIsRefused() {
    QFETCH(QString, typed);
    ThreeLines shop;
    shop.StartTyping(1, kPrice, typed);
    shop.prompts.ExpectBox(u"Invalid dollar amount\n(values over $ 1,000,000,000 are not allowed)"_s,
                           typed + u" is not a valid amount"_s);
    PressKey(*shop.Lines().Editor(), Qt::Key_Return);
    QVERIFY(shop.Lines().IsEditing());
    PressKey(*shop.Lines().Editor(), Qt::Key_Escape);
    QVERIFY(!shop.Lines().IsEditing());
    shop.TypeIntoCell(1, kPrice, u"5"_s);
    QCOMPARE(LoadJobLine(shop.check).price, Money::Whole(5));
  }

  void TheTextOverALabelSurvivesAReload() {
    ThreeLines shop;
    shop.StartLabel("lblJob", u"Season sta"_s);
    DeleteLine(shop.repack, true);
    QTest::keyClick(&shop.Screen(), Qt::Key_F5);
    QVERIFY(shop.Any().isVisible() && shop.Screen().focusWidget() == &shop.Any());
    QTest::keyClicks(&shop.Any(), u"rt"_s);
    PressKey(shop.Any(), Qt::Key_Return);
    QCOMPARE(JobTitle(shop.job), u"Season start"_s);
    QCOMPARE(shop.Label("lblJob"), u"Season start"_s);
  }

  void TheWorkingDateThatWasTypedStays() {
    ThreeLines shop;
    QCOMPARE(shop.Label("txtDate"), u"03/01/2026"_s);
    TypeInto(shop.Screen(), u"txtDate"_s, u"3/10/2026"_s);
    DeleteLine(shop.repack, true);
    QCOMPARE(shop.Label("txtDate"), u"3/10/2026"_s);
    QTest::keyClick(&shop.Screen(), Qt::Key_F5);
    ClickCell(shop.Lines(), 0, kStatus);
    QCOMPARE(shop.Label("txtDate"), u"3/10/2026"_s);
    QCOMPARE(shop.Status(shop.check), SampleJob::State(-1, Day(3, 10, 2026)));
    // While it is being typed it is nobody's to repair.
    shop.WorkDate().setFocus();
    TypeInto(shop.Screen(), u"txtDate"_s, u"4/"_s);
    SaveLineName(shop.last, u"Other"_s);
    QCOMPARE(shop.Label("txtDate"), u"4/"_s);
    TypeInto(shop.Screen(), u"txtDate"_s, u"4/1/2026"_s);
    // A job that is opened comes with its own date.
    shop.Open();
    QCOMPARE(shop.Label("txtDate"), u"03/01/2026"_s);
  }

  void AJobThatIsDeletedBesideMovesOnToTheNext() {
    ThreeLines shop;
    const int next = shop.AddJob("Next", 0, 0);
    shop.StartTyping(1, kTask, u"Lost with its job"_s);
    bool cancelled = false;
    DeleteJob(shop.job, false, cancelled);
    QCOMPARE(shop.Label("lblJob"), u"Next"_s);
    QVERIFY(!shop.Lines().IsEditing());
    QCOMPARE(shop.Lines().CurrentRow(), -1);
    shop.prompts.ExpectBox(u"Can't enter repack"_s,
                           u"This job doesn't have a rig.\nReserve repacks can only be added to jobs\n"
                           "with a valid rig.\nYou can create a rig using the RIG menu."_s);
    PickRow(shop, 0);
    QCOMPARE(shop.loft.Rows(u"select JobID from tblTasks"_s), QStringList());  // the next one has no rig
    QCOMPARE(LinesOfJob(next), QList<int>());
  }

  void ALineOfADeletedCustomersJobNamesNobody() {
    OpenJob shop;
    shop.loft.Run(u"update tblJobs set CustomerID = 0"_s);
    shop.loft.Run(u"delete * from tblPeople where ID = %1"_s.arg(shop.owner));
    QCOMPARE(shop.Label("lblCust"), u"(none)"_s);
    PickRow(shop, 0);
    QCOMPARE(shop.loft.Rows(u"select CustomerID from tblTasks"_s), QStringList{u"0"_s});
  }

  void WhatWasChosenForAJobThatHasGoneIsDropped() {
    OpenJob shop;
    shop.AddJob("Next", shop.rig, 0);
    shop.screens.WhenShown(u"frmSelectTask"_s, [&](Form& form) {
      Control<List>(form, u"lstTasks"_s).SelectData(shop.aadCheck);
      bool cancelled = false;
      shop.prompts.Expect(u"Delete Blue 03/01/2026"_s, u"Are you sure you want to delete this job?"_s, Answer::Yes);
      DeleteJob(shop.job, false, cancelled);
      Click(form, u"cmdSelect"_s);
    });
    shop.Choose(u"Tasks"_s, u"Add a task to this job"_s);
    QCOMPARE(shop.Label("lblJob"), u"Next"_s);
    QCOMPARE(shop.loft.Rows(u"select * from tblTasks"_s), QStringList());
  }

  void GearThatHasGoneIsNotRemoved() {
    OpenGear shop;
    shop.Gear().SelectRow(2);
    QCOMPARE(shop.Gear().RowData(2), shop.reserve);
    shop.loft.Run(u"delete * from tblComponents where ID = %1"_s.arg(shop.reserve));
    QCOMPARE(shop.Gear().CurrentRow(), 2);
    QCOMPARE(shop.Gear().RowData(2), 0);
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.ExpectBox(u"Can't remove Reserve Canopy"_s, u"Reserve Canopy doesn't exist"_s);
    shop.RunItem(OpenGear::kRemove);
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void SelectedGearStays() {
    OpenGear shop;
    shop.Gear().SelectRow(2);
    shop.loft.Run(u"update tblComponents set SerialNumber = '77' where ID = %1"_s.arg(shop.reserve));
    QCOMPARE(shop.Gear().CurrentRow(), 2);
    QCOMPARE(shop.Gear().Text(2, 3), u"77"_s);
  }

  void ARigThatIsDeletedIsShownAsGone() {
    OpenGear shop;
    DeleteRigRow(shop.rig);
    QCOMPARE(shop.Label("lblSystem"), u"(n/a)"_s);
    QVERIFY(shop.Shows("cmdGearChange"));
  }

  void SeveralTasksAreOneOperation() {
    ThreeLines shop;
    DeleteLine(shop.check, true);
    DeleteLine(shop.last, true);
    CountingForm other(u"frmOther"_s, {u"tblTasks"_s});
    shop.screens.WhenShown(u"frmMultiTask"_s, [&](Form& form) {
      Control<List>(form, u"lstTasks"_s).TickData({shop.aadCheck, shop.lineCheck});
      Click(form, u"cmdOK"_s);
    });
    shop.Choose(u"Tasks"_s, u"Add multiple tasks to this job"_s);
    QCOMPARE(LinesOfJob(shop.job).size(), 3);
    QCOMPARE(other.told, 1);
    QCOMPARE(NextUndo()->name, u"Add multiple tasks"_s);
    QVERIFY(UndoOperation());
    QCOMPARE(LinesOfJob(shop.job), QList<int>{shop.repack});
    QCOMPARE(shop.Lines().RowCount(), 3);
  }

  void TheDeletionOfTheShownJobIsToldOnce() {
    OpenJob shop;
    shop.AddJob("Next", 0, 0);
    shop.prompts.Expect(u"Delete Blue 03/01/2026"_s, u"Are you sure you want to delete this job?"_s, Answer::Yes);
    shop.Choose(u"Jobs"_s, u"Delete this job"_s);
    QCOMPARE(shop.Label("lblJob"), u"Next"_s);
    shop.prompts.Expect(u"Delete Next"_s, u"Are you sure you want to delete this job?"_s, Answer::No);
    shop.Choose(u"Jobs"_s, u"Delete this job"_s);
    QCOMPARE(shop.Label("lblJob"), u"Next"_s);
    shop.prompts.Expect(u"Delete Next"_s, u"Are you sure you want to delete this job?"_s, Answer::Yes);
    shop.prompts.ExpectBox(u"Job database is now empty"_s, u"The only job in the database has been deleted"_s);
    shop.Choose(u"Jobs"_s, u"Delete this job"_s);
    QVERIFY(!shop.Screen().isVisible());
  }
};

LOFT_TEST_MAIN(TestJobStays)
#include "tst_job_stays.moc"
