#include <QLineEdit>
#include <QtTest>

#include "core/screens.h"
#include "jobs/library_entry.h"
#include "jobs/screens/library_shop.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

const QStringList kAllTasks{u"AAD check"_s, u"Inspect and repack reserve"_s, u"Install component"_s, u"Line check"_s,
                            u"Remove component"_s};

struct TaskLibrary : LibraryShop {
  Form& Browse(bool events = false) {
    OpenTaskLibrary(events);
    return dynamic_cast<Form&>(*Forms::Find(u"frmSelectTask"_s));
  }
  LibraryChoice Pick(const LibraryQuestion& question, const std::function<void(Form&)>& action) {
    screens.WhenShown(u"frmSelectTask"_s, action);
    return SelectTask(question);
  }
};

void Choose(Form& form, const char* command) { ChooseMenu(form, {QString::fromLatin1(command)}); }

}  // namespace

class TestTaskLibrary : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void TasksAndEventsHaveTheirOwnLists() {
    TaskLibrary shop;
    Form& form = shop.Browse();
    QCOMPARE(form.windowTitle(), u"Task Library"_s);
    QCOMPARE(TextOf(form, u"lblHeading"_s), u"Tasks"_s);
    QCOMPARE(TextOf(form, u"lblTasks"_s), u"All Tasks"_s);
    QCOMPARE(TextOf(form, u"cmdCancel"_s), u"&Exit"_s);
    QVERIFY(!Control<QWidget>(form, u"txtDate"_s).isVisible());
    QCOMPARE(shop.Texts(form, "lstTasks"), kAllTasks);
    Picture(form, u"frmSelectTask"_s);
    Form& events = shop.Browse(true);
    QCOMPARE(TextOf(events, u"lblHeading"_s), u"Events"_s);
    QCOMPARE(TextOf(events, u"lblTasks"_s), u"All Events"_s);
    QCOMPARE(shop.Texts(events, "lstTasks"), QStringList(u"Reserve ride"_s));
  }

  void OneComponentTypeIsListedAlone() {
    TaskLibrary shop;
    Form& form = shop.Browse();
    Click(form, u"chkComp"_s);
    QCOMPARE(TextOf(form, u"lblTasks"_s), u"Tasks (Container)"_s);
    QCOMPARE(shop.Texts(form, "lstTasks"), QStringList({u"Inspect and repack reserve"_s, u"Line check"_s}));
    shop.SelectText(form, "lstCompTypes", u"Reserve Canopy"_s);
    QCOMPARE(TextOf(form, u"lblTasks"_s), u"Tasks (Reserve Canopy)"_s);
    QCOMPARE(shop.Texts(form, "lstTasks"), QStringList(u"Inspect and repack reserve"_s));  // the event is none
    Click(form, u"chkComp"_s);
    QCOMPARE(shop.Texts(form, "lstTasks"), kAllTasks);
    Form& events = shop.Browse(true);
    Click(events, u"chkComp"_s);
    shop.SelectText(events, "lstCompTypes", u"Reserve Canopy"_s);
    QCOMPARE(TextOf(events, u"lblTasks"_s), u"Events (Reserve Canopy)"_s);
    QCOMPARE(shop.Texts(events, "lstTasks"), QStringList(u"Reserve ride"_s));
  }

  void TypingNarrowsTheList() {
    TaskLibrary shop;
    const LibraryChoice typed = shop.Pick({}, [&](Form& form) {
      QCOMPARE(TextOf(form, u"cmdCancel"_s), u"&Cancel"_s);
      QCOMPARE(form.focusWidget(), &Control<QWidget>(form, u"txt"_s));
      TypeInto(form, u"txt"_s, u"CHECK"_s);
      QCOMPARE(shop.Texts(form, "lstTasks"), QStringList({u"AAD check"_s, u"Line check"_s}));
      TypeInto(form, u"txt"_s, u"line c"_s);
      PressKey(form, u"txt"_s, Qt::Key_Return);
    });
    QCOMPARE(typed.taskLibID, shop.lineCheck);
    const LibraryChoice walked = shop.Pick({}, [&](Form& form) {
      PressKey(form, u"txt"_s, Qt::Key_Down);
      QCOMPARE(form.focusWidget(), &Control<QWidget>(form, u"lstTasks"_s));
      PressKey(form, u"lstTasks"_s, Qt::Key_Return);
    });
    QCOMPARE(walked.taskLibID, shop.aadCheck);
    QCOMPARE(shop.Pick({}, [](Form& form) { PressKey(form, u"txt"_s, Qt::Key_Escape); }).taskLibID, 0);
  }

  void ADateIsAskedForOnDemand() {
    TaskLibrary shop;
    const LibraryChoice choice = shop.Pick(
        {.events = true, .caption = u"Add event to history"_s, .dateCaption = u"Event date:"_s}, [&](Form& form) {
          QCOMPARE(form.windowTitle(), u"Add event to history"_s);
          QCOMPARE(TextOf(form, u"lblDate"_s), u"Event date:"_s);
          QCOMPARE(TextOf(form, u"txtDate"_s), u"3/15/2026"_s);
          TypeInto(form, u"txtDate"_s, u"3/1/2026"_s);
          shop.prompts.ExpectBox(u"Nothing selected"_s, u"Please select an event"_s);
          Click(form, u"cmdSelect"_s);
          Picture(form, u"frmSelectTask-date"_s);
          shop.SelectText(form, "lstTasks", u"Reserve ride"_s);
          Click(form, u"cmdSelect"_s);
        });
    QCOMPARE(choice.taskLibID, shop.ride);
    QCOMPARE(choice.date, u"3/1/2026"_s);
  }

  void AMissingTaskIsCreatedOnTheWay() {
    TaskLibrary shop;
    const QString text = u"There isn't a task named Wash\nWould you like to create a new task?"_s;
    const LibraryChoice choice = shop.Pick({}, [&](Form& form) {
      TypeInto(form, u"txt"_s, u"Wash"_s);
      shop.prompts.Expect(u"Create a new task?"_s, text, Answer::No);
      Click(form, u"cmdSelect"_s);
      shop.prompts.Expect(u"Create a new task?"_s, text, Answer::Yes);
      shop.screens.WhenShown(u"frmTaskType"_s, [&](Form& task) {
        QCOMPARE(TextOf(task, u"txtName"_s), u"Wash"_s);
        shop.Tick(task, "lstComps", u"Container"_s);
        shop.prompts.ExpectBox(u"Done"_s, u"Task saved to task library"_s);
        Click(task, u"cmdSave"_s);
      });
      Click(form, u"cmdSelect"_s);
      QCOMPARE(shop.Selected(form, "lstTasks"), u"Wash"_s);
      Click(form, u"cmdSelect"_s);
    });
    QCOMPARE(TaskLibName(choice.taskLibID), u"Wash"_s);
  }

  void SelectingMeansEditingWhileBrowsing() {
    TaskLibrary shop;
    Form& form = shop.Browse();
    shop.prompts.ExpectBox(u"Nothing selected"_s, u"Please select a task to edit"_s);
    Click(form, u"cmdSelect"_s);
    shop.SelectText(form, "lstTasks", u"Line check"_s);
    shop.screens.WhenShown(u"frmTaskType"_s, [&](Form& task) {
      TypeInto(task, u"txtName"_s, u"Trim check"_s);
      shop.prompts.ExpectBox(u"Done"_s, u"Task type updated"_s);
      Click(task, u"cmdSave"_s);
    });
    PressKey(form, u"lstTasks"_s, Qt::Key_Return);
    QCOMPARE(shop.Selected(form, "lstTasks"), u"Trim check"_s);
    Form& events = shop.Browse(true);
    shop.prompts.ExpectBox(u"Nothing selected"_s, u"Please select an event to edit"_s);
    Choose(events, "Edit");
    shop.SelectText(events, "lstTasks", u"Reserve ride"_s);
    shop.screens.WhenShown(u"frmEventLib"_s, [](Form& event) {
      QCOMPARE(TextOf(event, u"txtName"_s), u"Reserve ride"_s);
      PressKey(event, Qt::Key_Escape);
    });
    Choose(events, "Edit");
  }

  void EditingANameThatIsNotThereOffersToCreateIt() {
    TaskLibrary shop;
    Form& form = shop.Browse();
    TypeInto(form, u"txt"_s, u"Wash"_s);
    shop.prompts.Expect(u"Create New Task?"_s, u"There isn't a task named 'Wash'\nWould you like to create one?"_s,
                        Answer::No);
    Choose(form, "Edit");
    Form& events = shop.Browse(true);
    TypeInto(events, u"txt"_s, u"Strike"_s);
    shop.prompts.Expect(u"Create New Event?"_s, u"There isn't an event named 'Strike'\nWould you like to create one?"_s,
                        Answer::Yes);
    shop.screens.WhenShown(u"frmEventLib"_s, [](Form& event) {
      QCOMPARE(TextOf(event, u"txtName"_s), u"Strike"_s);
      PressKey(event, Qt::Key_Escape);
    });
    Choose(events, "Edit");
  }

  void FixedTasksHaveTheirOwnForms() {
    TaskLibrary shop;
    Form& form = shop.Browse();
    shop.SelectText(form, "lstTasks", u"Inspect and repack reserve"_s);
    shop.screens.WhenShown(u"frmRepack"_s, [](Form& prices) { PressKey(prices, Qt::Key_Escape); });
    Choose(form, "Edit");
    shop.SelectText(form, "lstTasks", u"Install component"_s);
    const auto price = [&](const QString& caption, const QString& text) {
      shop.screens.WhenShown(u"frmNewMisc"_s, [=](Form& item) {
        QCOMPARE(item.windowTitle(), caption);
        QCOMPARE(TextOf(item, u"txtName"_s), caption);
        QVERIFY(Control<QLineEdit>(item, u"txtName"_s).isReadOnly());
        QCOMPARE(TextOf(item, u"txtCost"_s), u"0.00"_s);
        TypeInto(item, u"txtCost"_s, text);
        Click(item, u"cmdOK"_s);
      });
    };
    price(u"Install component"_s, u"25"_s);
    shop.prompts.ExpectBox(kProgramTitle, u"Price updated"_s);
    Choose(form, "Edit");
    QCOMPARE(TaskLibFlatRate(InstallTaskLibID), Money::Whole(25));
    shop.SelectText(form, "lstTasks", u"Remove component"_s);
    price(u"Remove component"_s, u"0"_s);
    Choose(form, "Edit");
    shop.prompts.ExpectBox(kProgramTitle, u"Sub DoInstallRemove()  ID = 4\nyou shouldn't be here"_s);
    DoInstallRemove(4);
  }

  void AnEntryWithoutAnIdIsTold() {
    TaskLibrary shop;
    shop.loft.Run(u"insert into tblTaskLib (ID, Name, IsEvent) values (0, 'Broken', false)"_s);
    Form& form = shop.Browse();
    shop.SelectText(form, "lstTasks", u"Broken"_s);
    shop.prompts.ExpectBox(kProgramTitle, u"tasklibID = 0"_s);
    Choose(form, "Edit");
  }

  void EntriesAreDeletedFromTheList() {
    TaskLibrary shop;
    Form& form = shop.Browse();
    shop.prompts.ExpectBox(u"Nothing selected"_s, u"Please select a task to delete"_s);
    Choose(form, "Delete");
    shop.SelectText(form, "lstTasks", u"Install component"_s);
    shop.prompts.ExpectBox(kProgramTitle, u"Install component is a fixed task.  It cannot be deleted"_s);
    Choose(form, "Delete");
    shop.SelectText(form, "lstTasks", u"Line check"_s);
    shop.prompts.Expect(kProgramTitle, u"Are you sure you want to delete Line check?"_s, Answer::Yes);
    PressKey(form, u"lstTasks"_s, Qt::Key_Delete);
    QVERIFY(!TaskLibExists(shop.lineCheck));
    QVERIFY(!shop.Texts(form, "lstTasks").contains(u"Line check"_s));
  }

  void AnEntryInUseIsAskedForWithItsLines() {
    TaskLibrary shop;
    shop.AddTask(shop.lineCheck);
    Form& form = shop.Browse();
    shop.SelectText(form, "lstTasks", u"Line check"_s);
    const QStringList before = shop.loft.Snapshot();
    const auto answer = [&](Answer reply) {
      shop.prompts
          .Expect(u"Delete Line check?"_s,
                  u"There is 1 task that uses this task type. If you delete\n"
                  "this task type, you will also delete that task.\n"
                  "(you can see this task by accessing Reports/Task Report from the main menu)\n"
                  "Are you sure you want to delete this task type?"_s,
                  reply)
          .WithButtons(Buttons::YesNo);
      Choose(form, "Delete");
    };
    answer(Answer::No);
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
    answer(Answer::Yes);
    QVERIFY(!TaskLibExists(shop.lineCheck));
    QVERIFY(LinesOfJob(shop.job).isEmpty());
  }

  void RefreshShowsWhatOthersWrote() {
    TaskLibrary shop;
    Form& form = shop.Browse();
    shop.SelectText(form, "lstTasks", u"Line check"_s);
    shop.AddEntry("Bartacks", 0, 0);
    Choose(form, "Refresh");
    QCOMPARE(shop.Texts(form, "lstTasks").size(), 6);
    QCOMPARE(shop.Selected(form, "lstTasks"), u"Line check"_s);
    shop.screens.WhenShown(u"frmTaskType"_s, [](Form& task) { PressKey(task, Qt::Key_Escape); });
    Choose(form, "New");
  }

  void SeveralAreTickedAtOnce() {
    TaskLibrary shop;
    shop.screens.WhenShown(u"frmMultiTask"_s, [&](Form& form) {
      QCOMPARE(form.windowTitle(), u"Select multiple tasks"_s);
      QCOMPARE(TextOf(form, u"cmdNewTask"_s), u"&New task"_s);
      QCOMPARE(shop.Texts(form, "lstTasks"), kAllTasks);
      shop.Tick(form, "lstTasks", u"Line check"_s);
      Click(form, u"optBoth"_s);
      QCOMPARE(form.windowTitle(), u"Select multiple tasks/events"_s);
      QVERIFY(!Control<QWidget>(form, u"cmdNewTask"_s).isVisible());
      QCOMPARE(shop.Texts(form, "lstTasks").size(), 6);
      QCOMPARE(shop.Ticked(form, "lstTasks"), QStringList(u"Line check"_s));
      shop.Tick(form, "lstTasks", u"Reserve ride"_s);
      shop.Tick(form, "lstTasks", u"AAD check"_s);
      Picture(form, u"frmMultiTask"_s);
      Click(form, u"cmdOK"_s);
    });
    QCOMPARE(SelectMultipleTasks(), QList<int>({shop.aadCheck, shop.lineCheck, shop.ride}));
    shop.screens.WhenShown(u"frmMultiTask"_s, [&](Form& form) {
      shop.Tick(form, "lstTasks", u"Line check"_s);
      Click(form, u"cmdClear"_s);
      QCOMPARE(shop.Ticked(form, "lstTasks"), QStringList());
      shop.Tick(form, "lstTasks", u"AAD check"_s);
      PressKey(form, Qt::Key_Escape);
    });
    QCOMPARE(SelectMultipleTasks(), QList<int>());
  }

  void ANewEntryKeepsTheTicks() {
    TaskLibrary shop;
    shop.screens.WhenShown(u"frmMultiTask"_s, [&](Form& form) {
      shop.Tick(form, "lstTasks", u"Line check"_s);
      shop.screens.WhenShown(u"frmTaskType"_s, [&](Form& task) {
        TypeInto(task, u"txtName"_s, u"Hook knife"_s);
        shop.Tick(task, "lstComps", u"Container"_s);
        shop.prompts.ExpectBox(u"Done"_s, u"Task saved to task library"_s);
        Click(task, u"cmdSave"_s);
      });
      Click(form, u"cmdNewTask"_s);
      QCOMPARE(shop.Selected(form, "lstTasks"), u"Hook knife"_s);
      QCOMPARE(shop.Ticked(form, "lstTasks"), QStringList(u"Line check"_s));
      Click(form, u"optEvents"_s);
      QCOMPARE(form.windowTitle(), u"Select multiple events"_s);
      QCOMPARE(TextOf(form, u"cmdNewTask"_s), u"&New event"_s);
      QCOMPARE(shop.Texts(form, "lstTasks"), QStringList(u"Reserve ride"_s));
      shop.screens.WhenShown(u"frmEventLib"_s, [](Form& event) { PressKey(event, Qt::Key_Escape); });
      Click(form, u"cmdNewTask"_s);
      Click(form, u"cmdCancel"_s);
    });
    SelectMultipleTasks();
  }

  void ASearchGoesRound() {
    TaskLibrary shop;
    shop.screens.WhenShown(u"frmMultiTask"_s, [&](Form& form) {
      const auto search = [&](const QString& text) {
        TypeInto(form, u"txtSearch"_s, text);
        PressKey(form, u"txtSearch"_s, Qt::Key_Return);
        QCOMPARE(TextOf(form, u"txtSearch"_s), QString());
        QVERIFY(form.isVisible());
      };
      search(u"CHECK"_s);
      QCOMPARE(shop.Selected(form, "lstTasks"), u"AAD check"_s);
      search(u"check"_s);
      QCOMPARE(shop.Selected(form, "lstTasks"), u"Line check"_s);
      TypeInto(form, u"txtSearch"_s, u"check"_s);
      Click(form, u"cmdSearch"_s);
      QCOMPARE(shop.Selected(form, "lstTasks"), u"AAD check"_s);
      search(u"nothing like it"_s);
      QCOMPARE(shop.Selected(form, "lstTasks"), u"AAD check"_s);
      Click(form, u"cmdCancel"_s);
    });
    SelectMultipleTasks();
  }

  void ThePickerAddsAndDeletesTasks() {
    TaskLibrary shop;
    shop.screens.WhenShown(u"frmPicker"_s, [&](Form& picker) {
      TypeInto(picker, u"txt"_s, u"Wash"_s);
      shop.prompts.Expect(u"Add new task?"_s,
                          u"Can't find 'Wash' anywhere in the task library\n\nWould you like to add a new task?"_s,
                          Answer::Yes);
      shop.screens.WhenShown(u"frmTaskType"_s, [&](Form& task) {
        shop.Tick(task, "lstComps", u"Container"_s);
        shop.prompts.ExpectBox(u"Done"_s, u"Task saved to task library"_s);
        Click(task, u"cmdSave"_s);
      });
      Click(picker, u"cmdSelect"_s);
      QCOMPARE(shop.Selected(picker, "lst"), u"Wash"_s);
      shop.prompts.Expect(kProgramTitle, u"Delete Wash?"_s, Answer::Yes);
      Click(picker, u"cmdDelete"_s);
      QVERIFY(!shop.Texts(picker, "lst").contains(u"Wash"_s));
      Click(picker, u"cmdCancel"_s);
    });
    PickItem(kPickTask);
    QCOMPARE(FindTaskLib(u"Wash"_s), 0);
  }
};

LOFT_TEST_MAIN(TestTaskLibrary)
#include "tst_task_library.moc"
