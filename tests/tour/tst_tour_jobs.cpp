#include "core/default_rows.h"
#include "gear/rigs.h"
#include "history/screens.h"
#include "jobs/job_records.h"
#include "jobs/lines.h"
#include "jobs/screens.h"
#include "jobs/screens/library_shop.h"
#include "schedule/schedule.h"
#include "support/test_program.h"
#include "tour/sample_tour.h"

using namespace Qt::StringLiterals;

namespace {

enum Column { kTask, kRigger, kPrice, kStatus, kDate };

void RunItem(Form& job, const QString& item) {
  LibraryShop::SelectText(job, "lstTasks", item);
  Click(job, u"cmdTask"_s);
}

QString Row(Form& job, int row) {
  QStringList cells;
  for (int column = kTask; column <= kDate; ++column) cells << GridOf(job, u"Grid2"_s).Text(row, column);
  return cells.join(u'|');
}

}  // namespace

/// A day of work in the sample loft: the library, a job with all kinds of lines and two riggers, gear that changes on
/// it, and the history that it leaves.
class TourOfJobs : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() {
    tour_ = std::make_unique<SampleTour>();
    Shown(u"frmSplash"_s).UnloadForm();
    rig_ = SampleTour::Number(u"SELECT ID FROM tblRig WHERE TypeID = 2 ORDER BY ID"_s);
    owner_ = RigOwner(rig_);
    QVERIFY(rig_ != 0 && owner_ != 0);
  }
  void cleanupTestCase() { tour_.reset(); }

  void TheLibrary() {
    ScreenScript screens;
    Click(Shown(u"frmMain2"_s), u"cmdTaskLibrary"_s);
    Form& tasks = Shown(u"frmSelectTask"_s);
    QCOMPARE(ListOf(tasks, u"lstTasks"_s).Count(),
             SampleTour::Number(u"SELECT count(*) FROM tblTaskLib WHERE IsEvent = 0"_s));
    LibraryShop::SelectText(tasks, "lstTasks", u"Tandem line check"_s);
    Picture(tasks, u"60-task-library"_s);
    screens.WhenShown(u"frmTaskType"_s, [](Form& form) {
      QCOMPARE(LibraryShop::Ticked(form, "lstRigTypes"), QStringList(u"Tandem Rig"_s));
      Picture(form, u"61-task-type"_s);
      PressKey(form, Qt::Key_Escape);
    });
    Click(tasks, u"cmdSelect"_s);
    Click(Shown(u"frmMain2"_s), u"cmdEvents"_s);
    Form& events = Shown(u"frmSelectTask"_s);
    QCOMPARE(LibraryShop::Texts(events, "lstTasks"),
             QStringList({u"AAD activation"_s, u"Reserve ride"_s, u"Water landing"_s}));
    LibraryShop::SelectText(events, "lstTasks", u"Water landing"_s);
    screens.WhenShown(u"frmEventLib"_s, [](Form& form) {
      Picture(form, u"62-event"_s);
      PressKey(form, Qt::Key_Escape);
    });
    Click(events, u"cmdSelect"_s);
    events.UnloadForm();
  }

  void AJobIsStarted() {
    ScreenScript screens;
    screens.WhenShown(u"frmPicker"_s, [](Form& form) {
      Picture(form, u"63-rigger"_s);
      Click(form, u"cmdSelect"_s);  // the default rigger, selected already
    });
    screens.WhenShown(u"frmNewJob"_s, [](Form& form) {
      Picture(form, u"64-new-job"_s);
      Click(form, u"cmdOK"_s);
    });
    StartJobDialog(owner_, rig_, 0, job_, 0, 0, SampleTour::kToday);
    QVERIFY(job_ != 0);
    QVERIFY(Forms::IsShown(u"frmJob"_s));
  }

  /// A tandem's repack has a price of its own.
  void ARepackTakesThePriceOfItsRigType() {
    Form& job = Shown(u"frmJob"_s);
    RunItem(job, u"Reserve Repack"_s);
    QCOMPARE(Row(job, 0), u"Inspect and repack reserve|Hale|110.00||"_s);
  }

  void LinesOfEveryKind() {
    ScreenScript screens;
    Form& job = Shown(u"frmJob"_s);
    screens.WhenShown(u"frmMiscTask"_s, [this](Form& form) {
      TypeInto(form, u"txtName"_s, u"Replace drogue kill line"_s);
      TypeInto(form, u"txtCost"_s, u"60"_s);
      LibraryShop::Tick(form, "lstComps", u"Container"_s);
      Picture(form, u"65-custom-task"_s);
      tour_->prompts->Expect(u"New task: Replace drogue kill line"_s,
                             u"Would you like to add this task to the task library for future use?"_s, Answer::No);
      Click(form, u"cmdOK"_s);
    });
    RunItem(job, u"Custom task"_s);
    screens.WhenShown(u"frmPicker"_s, [](Form& form) {
      TypeInto(form, u"txt"_s, u"AAD battery"_s);
      Click(form, u"cmdSelect"_s);
    });
    RunItem(job, u"Select part"_s);
    screens.WhenShown(u"frmSelectTask"_s, [](Form& form) {
      LibraryShop::SelectText(form, "lstTasks", u"Water landing"_s);
      Click(form, u"cmdSelect"_s);
    });
    ChooseMenu(job, {u"Events"_s, u"Record an event (not a rigging task)"_s});
    screens.WhenShown(u"frmMultiTask"_s, [](Form& form) {
      LibraryShop::Tick(form, "lstTasks", u"Tandem line check"_s);
      Picture(form, u"66-task-menu"_s);
      Click(form, u"cmdOK"_s);
    });
    RunItem(job, u"Task Menu"_s);
    QCOMPARE(Row(job, 1), u"Replace drogue kill line|Hale|60.00||"_s);
    QCOMPARE(Row(job, 2), u"     AAD battery||89.00||"_s);
    QCOMPARE(Row(job, 3), u"Water landing||0.00|   (event)|03/02/2026"_s);
    QCOMPARE(Row(job, 4), u"Tandem line check|Hale|40.00||"_s);
    QCOMPARE(GridOf(job, u"Grid2"_s).Text(6, kPrice), u"299.00"_s);
  }

  void TwoRiggersShareTheWork() {
    ScreenScript screens;
    Form& job = Shown(u"frmJob"_s);
    screens.WhenShown(u"frmPicker"_s, [](Form& form) {
      TypeInto(form, u"txt"_s, u"Okafor"_s);
      Click(form, u"cmdSelect"_s);
    });
    ClickCell(GridOf(job, u"Grid2"_s), 4, kRigger);
    QCOMPARE(Row(job, 4), u"Tandem line check|Okafor|40.00||"_s);
    ClickCell(GridOf(job, u"Grid2"_s), 0, kStatus);
    ClickCell(GridOf(job, u"Grid2"_s), 4, kStatus);
    QCOMPARE(Row(job, 0), u"Inspect and repack reserve|Hale|110.00|Completed|03/02/2026"_s);
    int row = 0;
    QCOMPARE(GetRepackDue(rig_, row), SampleTour::kToday + 180);
    Picture(job, u"67-job-of-two-riggers"_s);
  }

  /// The rest of the job is done, and still it is open: the kill line has been ordered.
  void ALineWaitsOnParts() {
    ScreenScript screens;
    Form& job = Shown(u"frmJob"_s);
    ChooseMenu(job, {u"Tasks"_s, u"Complete all tasks"_s});
    QCOMPARE(SampleTour::Number(u"SELECT JobStatus FROM tblJobs WHERE ID = %1"_s.arg(job_)), -1);
    const int line = LinesOfJob(job_).at(1);
    screens.WhenShown(u"frmTaskEdit"_s, [](Form& form) {
      Click(form, u"optWaiting"_s);
      Picture(form, u"68-waiting-on-parts"_s);
      Click(form, u"cmdOK"_s);
    });
    QVERIFY(EditTask(line));
    ChooseMenu(job, {u"Tools"_s, u"Refresh"_s});
    QCOMPARE(Row(job, 1), u"Replace drogue kill line|Hale|60.00||"_s);
    QCOMPARE(SampleTour::Number(u"SELECT JobStatus FROM tblJobs WHERE ID = %1"_s.arg(job_)), 0);
  }

  void GearLeavesTheJobAndItsRig() {
    Form& job = Shown(u"frmJob"_s);
    Grid& gear = GridOf(job);
    int row = 0;
    while (gear.Text(row, 1) != u"AAD"_s) ++row;
    const int aad = gear.RowData(row);
    gear.SelectRow(row);
    tour_->prompts->Expect(u"Remove AAD - "_s + gear.Text(row, 2),
                           u"Are you sure you want to remove this component from this rig?"_s, Answer::Yes);
    RunItem(job, u"Remove component"_s);
    QCOMPARE(SampleTour::Number(u"SELECT RigID FROM tblComponents WHERE ID = %1"_s.arg(aad)), 0);
    QVERIFY(Row(job, 5).startsWith(u"Remove AAD - "_s));
    Picture(job, u"69-job-after-a-removal"_s);
  }

  void WhatWasDoneIsInTheHistory() {
    OpenRigHistory(rig_);
    Form& history = Shown(u"frmHistoryForm"_s);
    Grid& lines = GridOf(history);
    QStringList texts;
    for (int row = 0; row < lines.RowCount(); ++row) {
      QStringList cells;
      for (int column = 0; column < 5; ++column) cells << lines.Text(row, column);
      texts << cells.join(u'|');
    }
    QVERIFY2(!texts.filter(u"Water landing"_s).isEmpty(), qPrintable(texts.join(u'\n')));
    QVERIFY(!texts.filter(u"Tandem line check"_s).isEmpty());
    Picture(history, u"70-history-of-a-rig"_s);
    OpenRigHistory(rig_, kReserveCanopy);
    Picture(Shown(u"frmHistoryForm"_s), u"71-history-of-a-rigs-reserves"_s);
    OpenComponentHistory(ComponentOfTypeInRig(rig_, kReserveCanopy));
    Picture(Shown(u"frmHistoryForm"_s), u"72-history-of-a-reserve"_s);
  }

 private:
  std::unique_ptr<SampleTour> tour_;
  int rig_ = 0;
  int owner_ = 0;
  int job_ = 0;
};

LOFT_TEST_MAIN(TourOfJobs)
#include "tst_tour_jobs.moc"
