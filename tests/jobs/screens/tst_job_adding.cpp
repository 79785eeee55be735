#include <QtTest>

#include "jobs/library_entry.h"
#include "jobs/screens/library_shop.h"
#include "jobs/screens/open_job.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

/// The sample job on its screen, with a richer library.
struct Adding : OpenJob {
  int lineCheck = AddEntry("Line check", 1, 3, {kMainCanopy});
  int ride = AddEvent("Reserve ride");

  void RunItem(const QString& item) const {
    LibraryShop::SelectText(Screen(), "lstTasks", item);
    Click(Screen(), u"cmdTask"_s);
  }
  void WhenChosen(const QString& entry) {
    screens.WhenShown(u"frmSelectTask"_s, [=](Form& form) {
      LibraryShop::SelectText(form, "lstTasks", entry);
      Click(form, u"cmdSelect"_s);
    });
  }
  /// Enters a custom task or event and ticks component types.
  void WhenCustom(const QString& name, const QString& price, const QStringList& types) {
    screens.WhenShown(u"frmMiscTask"_s, [=](Form& form) {
      TypeInto(form, u"txtName"_s, name);
      if (!price.isEmpty()) TypeInto(form, u"txtCost"_s, price);
      for (const QString& type : types) LibraryShop::Tick(form, "lstComps", type);
      Click(form, u"cmdOK"_s);
    });
  }
  QStringList LinesWritten() const {
    return loft.Rows(u"select TaskName, FlatRate, TaskLibID, IsEvent, LogBook from tblTasks order by ID"_s);
  }
  int EntryNamed(const QString& name) const { return FindTaskLib(name); }
};

}  // namespace

class TestJobAdding : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void ATaskIsChosenFromTheLibrary() {
    Adding shop;
    shop.screens.WhenShown(u"frmSelectTask"_s, [](Form& form) { PressKey(form, Qt::Key_Escape); });
    shop.RunItem(u"Select from library"_s);
    QCOMPARE(shop.LinesWritten(), QStringList());
    shop.WhenChosen(u"Line check"_s);
    shop.RunItem(u"Select from library"_s);
    QCOMPARE(shop.Row(0), u"Line check|Rigger|20.00||"_s);
    shop.WhenChosen(u"AAD check"_s);
    shop.Choose(u"Tasks"_s, u"Add a task to this job"_s);
    QCOMPARE(shop.Row(1), u"AAD check|Rigger|20.00||"_s);
    shop.WhenChosen(u"Reserve ride"_s);
    shop.Choose(u"Events"_s, u"Record an event (not a rigging task)"_s);
    QCOMPARE(shop.Row(2), u"Reserve ride||20.00|   (event)|03/01/2026"_s);
  }

  void SeveralAreTestedOneByOne() {
    Adding shop;
    shop.loft.Run(u"delete * from tblJobComponents where ComponentID = %1"_s.arg(shop.aad));
    shop.screens.WhenShown(u"frmMultiTask"_s, [](Form& form) {
      Click(form, u"optBoth"_s);
      for (const QString& entry : {u"AAD check"_s, u"Line check"_s, u"Reserve ride"_s})
        LibraryShop::Tick(form, "lstTasks", entry);
      Click(form, u"cmdOK"_s);
    });
    shop.prompts.ExpectBox(u"Can't add AAD check"_s, u"There is no aad in this rig"_s);
    shop.RunItem(u"Task Menu"_s);
    QCOMPARE(shop.Lines().RowCount(), 4);
    QCOMPARE(shop.Row(0), u"Line check|Rigger|20.00||"_s);
    shop.screens.WhenShown(u"frmMultiTask"_s, [](Form& form) { Click(form, u"cmdCancel"_s); });
    shop.Choose(u"Tasks"_s, u"Add multiple tasks to this job"_s);
    QCOMPARE(shop.Lines().RowCount(), 4);
  }

  void ABadDateIsToldOnceForAll() {
    Adding shop;
    shop.SetWorkDate(u"soon"_s);
    shop.screens.WhenShown(u"frmMultiTask"_s, [](Form& form) {
      LibraryShop::Tick(form, "lstTasks", u"AAD check"_s);
      LibraryShop::Tick(form, "lstTasks", u"Line check"_s);
      Click(form, u"cmdOK"_s);
    });
    shop.prompts.ExpectBox(u"Date is invalid"_s, u"soon is not a valid date"_s);
    shop.RunItem(u"Task Menu"_s);
    QCOMPARE(shop.LinesWritten().size(), 2);
  }

  void TheDialogOfACustomTask() {
    Adding shop;
    const QStringList before = shop.loft.Snapshot();
    shop.screens.WhenShown(u"frmMiscTask"_s, [&](Form& form) {
      QCOMPARE(form.windowTitle(), u"Enter Custom Task"_s);
      Click(form, u"cmdCheckAll"_s);
      QCOMPARE(LibraryShop::Ticked(form, "lstComps").size(), 7);
      Click(form, u"cmdCheckNone"_s);
      QCOMPARE(LibraryShop::Ticked(form, "lstComps"), QStringList());
      TypeInto(form, u"txtName"_s, u"Patch"_s);
      shop.prompts.Expect(u"No components selected"_s, u"You didn't select any components. \nContinue anyway?"_s,
                          Answer::No);
      Click(form, u"cmdOK"_s);
      Picture(form, u"frmMiscTask"_s);
      QVERIFY(form.isVisible());
      Click(form, u"cmdCancel"_s);
    });
    shop.RunItem(u"Custom task"_s);
    shop.screens.WhenShown(u"frmMiscTask"_s, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"Enter custom event"_s);
      for (const QString& hidden : {u"lblCost"_s, u"txtCost"_s, u"chkRiggerLog"_s})
        QVERIFY(!Control<QWidget>(form, hidden).isVisible());
      Click(form, u"cmdOK"_s);  // without a name nothing is done
    });
    shop.Choose(u"Events"_s, u"Record a custom event"_s);
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void ACustomTaskForThisJobAlone() {
    Adding shop;
    shop.WhenCustom(u"Patch"_s, u"35.5"_s, {u"Main Canopy"_s});
    shop.prompts.Expect(u"New task: Patch"_s, u"Would you like to add this task to the task library for future use?"_s,
                        Answer::No);
    shop.RunItem(u"Custom task"_s);
    QCOMPARE(shop.Row(0), u"Patch|Rigger|35.50||"_s);
    QCOMPARE(shop.LinesWritten(), QStringList(u"Patch|355000|0|0|0"_s));
    QCOMPARE(shop.EntryNamed(u"Patch"_s), 0);
  }

  void ACustomTaskGoesThroughTheLibrary() {
    Adding shop;
    const QString question = u"Would you like to add this task to the task library for future use?"_s;
    shop.WhenCustom(u"Patch"_s, u"35.5"_s, {u"Main Canopy"_s, u"AAD"_s});
    shop.prompts.Expect(u"New task: Patch"_s, question, Answer::Yes);
    shop.screens.WhenShown(u"frmTaskType"_s, [&](Form& task) {
      QCOMPARE(TextOf(task, u"txtName"_s), u"Patch"_s);
      QCOMPARE(TextOf(task, u"txtFlatRate"_s), u"35.50"_s);
      QCOMPARE(LibraryShop::Ticked(task, "lstComps"), QStringList({u"Main Canopy"_s, u"AAD"_s}));
      shop.prompts.ExpectBox(u"Done"_s, u"Task saved to task library"_s);
      Click(task, u"cmdSave"_s);
    });
    shop.Choose(u"Tasks"_s, u"Add custom task to this job"_s);
    const int patch = shop.EntryNamed(u"Patch"_s);
    QCOMPARE(shop.LinesWritten(), QStringList(u"Patch|355000|%1|0|0"_s.arg(patch)));
    shop.WhenCustom(u"Wash"_s, u"10"_s, {u"Main Canopy"_s});
    shop.prompts.Expect(u"New task: Wash"_s, question, Answer::Yes);
    shop.screens.WhenShown(u"frmTaskType"_s, [](Form& task) { Click(task, u"cmdCancel"_s); });
    shop.RunItem(u"Custom task"_s);
    QCOMPARE(shop.LinesWritten().size(), 1);
    QVERIFY(Forms::Find(u"frmMiscTask"_s) == nullptr);
  }

  void AComponentTypeThatComesMeanwhileIsTold() {
    Adding shop;
    shop.WhenCustom(u"Patch"_s, u"35.5"_s, {u"Main Canopy"_s});
    shop.prompts
        .Expect(u"New task: Patch"_s, u"Would you like to add this task to the task library for future use?"_s,
                Answer::Yes)
        .Meanwhile([&] {
          shop.loft.Add("tblComponentTypes", {{"Name", "Drogue"}});
        });
    shop.prompts.ExpectBox(u"frmTaskType - Sub GetDataFromFormMiscTask()"_s, u"list boxes aren't identical"_s);
    shop.screens.WhenShown(u"frmTaskType"_s, [](Form& task) {
      QCOMPARE(TextOf(task, u"txtName"_s), u"Patch"_s);
      QCOMPARE(LibraryShop::Ticked(task, "lstComps"), QStringList());
      Click(task, u"cmdCancel"_s);
    });
    shop.RunItem(u"Custom task"_s);
    QCOMPARE(shop.LinesWritten(), QStringList());
  }

  void AKnownNameTakesTheLibrarysEntry() {
    Adding shop;
    shop.WhenCustom(u"line CHECK"_s, u"99"_s, {u"Main Canopy"_s});
    shop.prompts.Expect(u"Custom task - line CHECK"_s,
                        u"The custom task you entered (line CHECK) is found in the task library.\n"
                        "The cost is $20.00\nDo you still want to add this task to the current job?"_s,
                        Answer::Yes);
    shop.RunItem(u"Custom task"_s);
    QCOMPARE(shop.Row(0), u"Line check|Rigger|20.00||"_s);
  }

  /// An event is complete from the start, so the job is complete again on the date of the work.
  void ACustomEventIsRecorded() {
    Adding shop;
    shop.AddShown(shop.lineCheck);
    shop.SetWorkDate(u"3/3/2026"_s);
    ClickCell(shop.Lines(), 0, kStatus);
    shop.SetWorkDate(u"3/9/2026"_s);
    shop.WhenCustom(u"Wet landing"_s, {}, {u"Reserve Canopy"_s});
    shop.prompts.Expect(u"New event: Wet landing"_s,
                        u"Would you like to add this event to the event library for future use?"_s, Answer::No);
    shop.Choose(u"Events"_s, u"Record a custom event"_s);
    QCOMPARE(shop.Row(1), u"Wet landing||0.00|   (event)|03/09/2026"_s);
    QCOMPARE(shop.JobState(), SampleJob::State(-1, Day(3, 9, 2026)));
    QCOMPARE(shop.Label("lblDateCompleted"), u"03/09/2026"_s);
    const int line = LinesOfJob(shop.job).last();
    QCOMPARE(shop.loft.Rows(u"select CompID, Complete from tblTaskComponents where TaskID = %1"_s.arg(line)),
             QStringList(u"%1|-1"_s.arg(shop.reserve)));
  }

  void AnEventGoesToTheLibraryOnTheWay() {
    Adding shop;
    shop.WhenCustom(u"AAD fire"_s, {}, {u"AAD"_s});
    shop.prompts.Expect(u"New event: AAD fire"_s,
                        u"Would you like to add this event to the event library for future use?"_s, Answer::Yes);
    shop.prompts.Expect(u"Multiple events"_s, u"Can this event be used multiple times\nin the same job?"_s,
                        Answer::Yes);
    shop.prompts.ExpectBox(u"Event saved to library"_s, u"AAD fire has been added to the event library"_s);
    shop.Choose(u"Events"_s, u"Record a custom event"_s);
    const int fire = shop.EntryNamed(u"AAD fire"_s);
    QVERIFY(TaskLibIsEvent(fire) && TaskLibAllowMultiple(fire));
    QCOMPARE(shop.LinesWritten(), QStringList(u"AAD fire|0|%1|-1|0"_s.arg(fire)));
  }

  /// Deleting a library entry beside an open job takes the lines off its screen.
  void TheJobFollowsADeletedEntry() {
    Adding shop;
    shop.AddShown(shop.lineCheck);
    QCOMPARE(shop.Lines().RowCount(), 3);
    shop.screens.WhenShown(u"frmSelectTask"_s, [&](Form& form) {
      LibraryShop::SelectText(form, "lstTasks", u"Line check"_s);
      shop.prompts.Expect(u"Delete Line check?"_s,
                          u"There is 1 task that uses this task type. If you delete\n"
                          "this task type, you will also delete that task.\n"
                          "(you can see this task by accessing Reports/Task Report from the main menu)\n"
                          "Are you sure you want to delete this task type?"_s,
                          Answer::Yes);
      ChooseMenu(form, {u"Delete"_s});
      Click(form, u"cmdCancel"_s);
    });
    shop.RunItem(u"Select from library"_s);
    QCOMPARE(shop.Lines().RowCount(), 2);
  }
};

LOFT_TEST_MAIN(TestJobAdding)
#include "tst_job_adding.moc"
