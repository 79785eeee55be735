#include "gear/components.h"
#include "history/screens.h"
#include "jobs/screens/library_shop.h"
#include "schedule/screens.h"
#include "schedule/task_library.h"
#include "support/screens/keyboard.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

Form& Shown(const QString& name) { return dynamic_cast<Form&>(*Forms::Find(name)); }

/// The sample loft with its job on screen, its rig's repack on the schedule and in the history.
struct Work : LibraryShop {
  Work() {
    AddTask(RepackTaskLibID);
    ToggleComplete(LinesOfJob(job).first(), Day(3, 2, 2026), true);
  }
  Form& Job() const {
    GotoJob(job);
    return Shown(u"frmJob"_s);
  }
  static Form& Schedule() {
    OpenSchedule();
    return Shown(u"frmSchedule"_s);
  }
  Form& History() const {
    OpenRigHistory(rig);
    return Shown(u"frmHistoryForm"_s);
  }
};

}  // namespace

/// The screens of work without a mouse.
class TestWorkKeyboard : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void TabWalksThroughTheJob() {
    Work shop;
    shop.AddJob("Later", shop.rig, 0);
    SetComponentRig(shop.mainCanopy, 0);
    QCOMPARE(TabRoad(shop.Job(), u"lblRigger"_s),
             u"lblRigger lblLocation lblJob lblInvoice lblDateStarted lblDatePromised lblDateCompleted Grid "
             "cmdGearChange cmdCurrentComp chkHidePhotos lstTasks cmdTask Grid2 txtDate cmdToday cmdDateHelp cmdNext "
             "cmdHelp cmdExit"_s);
  }

  void TabWalksThroughTheSchedule() {
    Work shop;
    QCOMPARE(TabRoad(Work::Schedule(), u"Grid"_s),
             u"Grid optTasksAll optTasksSelected optRigOnly optCustomerSelected optCustomersAll cmdSelectCustomer "
             "cmdRefresh cmdExit"_s);
  }

  void TabWalksThroughTheHistory() {
    Work shop;
    QCOMPARE(TabRoad(shop.History(), u"Grid"_s),
             u"Grid LstComp cmdCheckAll cmdCheckNone chkHideOtherRigs cmdExplainOtherRigs chkCurrentCompsOnly "
             "cmdExplainCurrentComps chkHideDuplicates cmdExplainDuplicates lblCustomer cmdRefresh cmdExit"_s);
  }

  void TabWalksThroughATaskOfTheLibrary() {
    Work shop;
    shop.screens.WhenShown(u"frmTaskType"_s, [](Form& form) {
      Click(form, u"chkRigSpecific"_s);
      QCOMPARE(TabRoad(form, u"txtName"_s),
               u"txtName txtFlatRate txtHourlyRate cmdRepackHelp chkSchedule txtInt optDays optMonths optYears "
               u"chkMultiple cmdExplain "
               "chkLogbook chkModelSpecific lstComps chkRigSpecific lstRigTypes cmdAllNone cmdHelpRigType lstParts "
               "txtSearch cmdReset cmdNewPart cmdEditPart cmdDeletePart cmdSave cmdCancel cmdExit "
               "cmdDeleteTaskType"_s);
      PressKey(form, Qt::Key_Escape);
    });
    EditTaskType({.taskLibID = shop.lineCheck});
  }

  void NoLetterIsClaimedTwice() {
    Work shop;
    SetComponentRig(shop.mainCanopy, 0);
    for (Form* form : {&shop.Job(), &Work::Schedule(), &shop.History()}) QCOMPARE(ClashesOf(*form), QString());
    OpenJobList();
    QCOMPARE(ClashesOf(Shown(u"frmJobList"_s)), QString());
    OpenRepackCalculator();
    QCOMPARE(ClashesOf(Shown(u"frmCalc"_s)), QString());
    const auto check = [&](const QString& name) {
      shop.screens.WhenShown(name, [](Form& form) {
        QCOMPARE(ClashesOf(form), QString());
        PressKey(form, Qt::Key_Escape);
      });
    };
    check(u"frmTaskType"_s);
    EditTaskType({.taskLibID = shop.lineCheck});
    check(u"frmEventLib"_s);
    EditEventType(shop.ride);
    check(u"frmSelectTask"_s);
    SelectTask({.dateCaption = u"Task date:"_s});
    check(u"frmMultiTask"_s);
    SelectMultipleTasks();
    check(u"frmRepack"_s);
    ShowRepackPrices();
    check(u"frmTaskEdit"_s);
    EditTask(LinesOfJob(shop.job).first());
    check(u"frmSelectComponentThisTask"_s);
    SelectComponentOfTask(LinesOfJob(shop.job).first());
    check(u"frmQuickFix"_s);
    ShowQuickFix(shop.rig, shop.owner, RepackTaskLibID);
    check(u"frmNewJob"_s);
    int started = 0;
    StartJobDialog(shop.owner, shop.rig, 0, started, 0, 0, Date());
    check(u"frmJobTypeSelect"_s);
    StartNewJob(shop.owner, 0, 0, Date());
    check(u"frmNewMisc"_s);
    MiscItem item;
    EnterMiscItem(item);
  }

  void EnterRunsNoCommandThatMerelyComesFirst() {
    Work shop;
    shop.AddJob("Later", shop.rig, 0);
    Form& job = shop.Job();
    const QStringList before = shop.loft.Snapshot();
    PressKey(job, u"txtDate"_s, Qt::Key_Return);
    PressKey(job, u"chkHidePhotos"_s, Qt::Key_Return);
    QCOMPARE(TextOf(job, u"lblJob"_s), u"Blue 03/01/2026"_s);
    Form& schedule = Work::Schedule();
    PressKey(schedule, u"optTasksAll"_s, Qt::Key_Return);
    QVERIFY(job.isVisible() && schedule.isVisible());
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void EnterSavesATaskFromItsName() {
    Work shop;
    shop.screens.WhenShown(u"frmTaskType"_s, [&](Form& form) {
      TypeInto(form, u"txtName"_s, u"Trim check"_s);
      shop.prompts.ExpectBox(u"Done"_s, u"Task type updated"_s);
      PressKey(form, u"txtName"_s, Qt::Key_Return);
    });
    QCOMPARE(EditTaskType({.taskLibID = shop.lineCheck}), shop.lineCheck);
    QCOMPARE(TaskLibName(shop.lineCheck), u"Trim check"_s);
  }

  void EscLeavesEachScreen() {
    Work shop;
    for (Form* form : {&shop.Job(), &Work::Schedule(), &shop.History()}) {
      const QString name = QString::fromLatin1(form->metaObject()->className());
      PressKey(*form, Qt::Key_Escape);
      QVERIFY2(!Forms::IsShown(name), qPrintable(name));
    }
  }
};

LOFT_TEST_MAIN(TestWorkKeyboard)
#include "tst_work_keyboard.moc"
