#include <QAbstractButton>
#include <QLineEdit>
#include <QtTest>

#include "gear/models.h"
#include "jobs/library_entry.h"
#include "jobs/screens/frmTaskType.h"
#include "jobs/screens/library_shop.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

struct TaskForm : LibraryShop {
  /// What stands in the library under a name.
  QStringList Entry(const QString& name) const {
    return loft.Rows(
        u"select Name, FlatRate, HourlyRate, LogBook, AllowMultiple, IntervalNumber, IntervalType, ModelID, "
        "IsRigTypeSpecific from tblTaskLib where Name = '%1'"_s.arg(name));
  }
  /// Opens the form, runs an action on it, and fails when the action leaves it open.
  int Edit(const TaskTypeStart& start, const std::function<void(Form&)>& action) {
    screens.WhenShown(u"frmTaskType"_s, action);
    return EditTaskType(start);
  }
  void ExpectSaved() { prompts.ExpectBox(u"Done"_s, u"Task saved to task library"_s); }
};

void Check(Form& form, const char* box) { Click(form, QString::fromLatin1(box)); }
bool IsOn(Form& form, const char* box) { return Control<QAbstractButton>(form, QString::fromLatin1(box)).isChecked(); }
bool IsLive(Form& form, const char* control) {
  return Control<QWidget>(form, QString::fromLatin1(control)).isEnabled();
}

}  // namespace

class TestTaskType : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void ANewTaskIsEntered() {
    TaskForm shop;
    shop.AddPart("Closing loop", 3);
    const int id = shop.Edit({.name = u"Gear check"_s}, [&](Form& form) {
      QCOMPARE(form.windowTitle(), u"Task Library"_s);
      QCOMPARE(TextOf(form, u"cmdSave"_s), u"&Save"_s);
      QCOMPARE(TextOf(form, u"txtName"_s), u"Gear check"_s);
      QCOMPARE(TextOf(form, u"txtFlatRate"_s), u"0.00"_s);
      QVERIFY(!IsLive(form, "cmdDeleteTaskType"));
      QCOMPARE(shop.Texts(form, "lstComps").size(), 7);
      TypeInto(form, u"txtFlatRate"_s, u"12.5"_s);
      TypeInto(form, u"txtHourlyRate"_s, u"50"_s);
      QVERIFY(!IsLive(form, "txtInt") && !IsLive(form, "optDays"));
      Check(form, "chkSchedule");
      QCOMPARE(form.focusWidget(), &Control<QWidget>(form, u"txtInt"_s));
      TypeInto(form, u"txtInt"_s, u"90"_s);
      for (const QString& unit : {u"Months"_s, u"Years"_s, u"Days"_s}) {
        Click(form, u"opt"_s + unit);
        QCOMPARE(TextOf(form, u"lblFreq"_s), unit.toLower());
      }
      Check(form, "chkMultiple");
      Check(form, "chkLogbook");
      shop.Tick(form, "lstComps", u"Main Canopy"_s);
      shop.Tick(form, "lstParts", u"Closing loop"_s);
      Picture(form, u"frmTaskType"_s);
      shop.ExpectSaved();
      Click(form, u"cmdSave"_s);
    });
    QCOMPARE(shop.Entry(u"Gear check"_s), QStringList(u"Gear check|125000|500000|-1|-1|90|1|0|0"_s));
    QCOMPARE(id, FindTaskLib(u"Gear check"_s));
    QCOMPARE(RequiredComponentTypes(id), QList<int>{kMainCanopy});
    QVERIFY(TaskRequiresParts(id));
  }

  void AnExistingTaskIsUpdated() {
    TaskForm shop;
    shop.Edit({.taskLibID = shop.lineCheck}, [&](Form& form) {
      QCOMPARE(TextOf(form, u"cmdSave"_s), u"&Update"_s);
      QCOMPARE(TextOf(form, u"txtFlatRate"_s), u"20.00"_s);
      QVERIFY(IsOn(form, "chkSchedule") && IsOn(form, "optYears") && IsOn(form, "chkLogbook"));
      QCOMPARE(TextOf(form, u"txtInt"_s), u"1"_s);
      QCOMPARE(shop.Ticked(form, "lstComps"), QStringList({u"Container"_s, u"Main Canopy"_s}));
      Check(form, "chkSchedule");
      Check(form, "chkLogbook");
      shop.prompts.ExpectBox(u"Done"_s, u"Task type updated"_s);
      Click(form, u"cmdSave"_s);
    });
    QCOMPARE(shop.Entry(u"Line check"_s), QStringList(u"Line check|200000|0|0|0|0|0|0|0"_s));
  }

  void CancellingChangesNothing() {
    TaskForm shop;
    const QStringList before = shop.loft.Snapshot();
    const auto leave = [&](const std::function<void(Form&)>& way) {
      QCOMPARE(shop.Edit({.taskLibID = shop.lineCheck},
                         [&](Form& form) {
                           TypeInto(form, u"txtName"_s, u"Other"_s);
                           way(form);
                         }),
               0);
    };
    leave([](Form& form) { PressKey(form, Qt::Key_Escape); });
    leave([](Form& form) { Click(form, u"cmdCancel"_s); });
    leave([](Form& form) { Click(form, u"cmdExit"_s); });
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void ARefusalLeavesTheFormOpen() {
    TaskForm shop;
    const QStringList before = shop.loft.Snapshot();
    shop.Edit({}, [&](Form& form) {
      shop.prompts.ExpectBox(u"No task name"_s, u"Task must have a name"_s);
      Click(form, u"cmdSave"_s);
      TypeInto(form, u"txtName"_s, u"Wash"_s);
      Check(form, "chkSchedule");
      shop.prompts.ExpectBox(u"Interval?"_s, u"You must select an interval type (day, months, years)"_s);
      Click(form, u"cmdSave"_s);
      Click(form, u"optDays"_s);
      shop.prompts.ExpectBox(u"Interval?"_s, u"You must enter a frequency\n(This task must be peformed every ___ )"_s);
      Click(form, u"cmdSave"_s);
      QVERIFY(form.isVisible());
      QCOMPARE(shop.loft.ChangesSince(before), QStringList());
      Click(form, u"cmdCancel"_s);
    });
  }

  void ADuplicateIsShownInItsForm() {
    TaskForm shop;
    shop.Edit({.name = u"aad check"_s}, [&](Form& form) {
      shop.prompts.Expect(u"Duplicate task name"_s,
                          u"There is already a task named 'aad check'\nWould you like to see it?"_s, Answer::Yes);
      Click(form, u"cmdSave"_s);
      QCOMPARE(TextOf(form, u"txtName"_s), u"AAD check"_s);
      QCOMPARE(TextOf(form, u"cmdSave"_s), u"&Update"_s);
      TypeInto(form, u"txtName"_s, u"AAD test"_s);
      shop.prompts.ExpectBox(u"Done"_s, u"Task type updated"_s);
      Click(form, u"cmdSave"_s);
    });
    QCOMPARE(TaskLibName(shop.aadCheck), u"AAD test"_s);
    // One name space: the task's form goes over to the event's.
    shop.Edit({.name = u"reserve ride"_s}, [&](Form& form) {
      shop.prompts.Expect(u"Duplicate task name"_s,
                          u"There is already a task named 'reserve ride'\nWould you like to see it?"_s, Answer::Yes);
      shop.screens.WhenShown(u"frmEventLib"_s, [](Form& event) {
        QCOMPARE(TextOf(event, u"txtName"_s), u"Reserve ride"_s);
        PressKey(event, Qt::Key_Escape);
      });
      Click(form, u"cmdSave"_s);
      Click(form, u"cmdCancel"_s);
    });
  }

  void ATaskIsTiedToAModel() {
    TaskForm shop;
    const int vigil = shop.loft.Add("tblModels", {{"Name", "Vigil"}, {"TypeID", kAad}});
    const int id = shop.Edit({.name = u"Vigil update"_s}, [&](Form& form) {
      shop.Tick(form, "lstComps", u"AAD"_s);
      shop.screens.WhenShown(u"frmSelectModel"_s, [](Form& models) { PressKey(models, Qt::Key_Escape); });
      Check(form, "chkModelSpecific");
      QVERIFY(!IsOn(form, "chkModelSpecific"));
      QCOMPARE(shop.Ticked(form, "lstComps"), QStringList(u"AAD"_s));
      shop.screens.WhenShown(u"frmSelectModel"_s, [](Form& models) {
        QCOMPARE(LibraryShop::Selected(models, "lstTypes"), u"AAD"_s);
        LibraryShop::SelectText(models, "lstModels", u"Vigil"_s);
        Click(models, u"cmdSelect"_s);
      });
      Check(form, "chkModelSpecific");
      QCOMPARE(shop.Texts(form, "lstComps"), QStringList(u"Vigil"_s));
      QCOMPARE(shop.Ticked(form, "lstComps"), QStringList(u"Vigil"_s));
      Check(form, "chkModelSpecific");
      QCOMPARE(shop.Texts(form, "lstComps").size(), 7);
      QCOMPARE(shop.Ticked(form, "lstComps"), QStringList(u"AAD"_s));
      shop.screens.WhenShown(u"frmSelectModel"_s, [](Form& models) {
        LibraryShop::SelectText(models, "lstModels", u"Vigil"_s);
        Click(models, u"cmdSelect"_s);
      });
      Check(form, "chkModelSpecific");
      shop.ExpectSaved();
      Click(form, u"cmdSave"_s);
    });
    QCOMPARE(TaskLibModelID(id), vigil);
    QCOMPARE(RequiredComponentTypes(id), QList<int>{kAad});
    // A refusal on a form that was opened for a model brings the task back as it is stored.
    shop.Edit({.taskLibID = id, .modelID = vigil}, [&](Form& form) {
      QVERIFY(IsOn(form, "chkModelSpecific"));
      TypeInto(form, u"txtName"_s, u" "_s);
      shop.prompts.ExpectBox(u"No task name"_s, u"Task must have a name"_s);
      Click(form, u"cmdSave"_s);
      QCOMPARE(TextOf(form, u"txtName"_s), u"Vigil update"_s);
      Click(form, u"cmdCancel"_s);
    });
  }

  void RigTypesAreTicked() {
    TaskForm shop;
    const int id = shop.Edit({.taskLibID = shop.lineCheck}, [&](Form& form) {
      QVERIFY(!IsLive(form, "lstRigTypes") && !IsLive(form, "cmdAllNone"));
      Check(form, "chkRigSpecific");
      QVERIFY(IsLive(form, "lstRigTypes") && IsLive(form, "cmdAllNone"));
      Click(form, u"cmdAllNone"_s);
      QCOMPARE(shop.Ticked(form, "lstRigTypes").size(), 4);
      QCOMPARE(TextOf(form, u"cmdAllNone"_s), u"None"_s);
      Click(form, u"cmdAllNone"_s);
      QCOMPARE(shop.Ticked(form, "lstRigTypes"), QStringList());
      QCOMPARE(TextOf(form, u"cmdAllNone"_s), u"All"_s);
      shop.Tick(form, "lstRigTypes", shop.Texts(form, "lstRigTypes").first());
      shop.prompts.ExpectBox(u"Done"_s, u"Task type updated"_s);
      Click(form, u"cmdSave"_s);
    });
    QCOMPARE(shop.loft.Rows(u"select count(*) from tblTaskLibRigType where TaskLibID = %1"_s.arg(id)),
             QStringList(u"1"_s));
    shop.Edit({.taskLibID = id}, [&](Form& form) {
      QVERIFY(IsOn(form, "chkRigSpecific"));
      QCOMPARE(shop.Ticked(form, "lstRigTypes").size(), 1);
      Click(form, u"cmdCancel"_s);
    });
  }

  void TicksOfPartsSurviveASearch() {
    TaskForm shop;
    for (const char* name : {"Closing loop", "Slider", "Toggle loop"}) shop.AddPart(name, 3);
    const int id = shop.Edit({.taskLibID = shop.lineCheck}, [&](Form& form) {
      shop.Tick(form, "lstParts", u"Slider"_s);
      TypeInto(form, u"txtSearch"_s, u" LOOP"_s);
      QCOMPARE(shop.Texts(form, "lstParts"), QStringList({u"Closing loop"_s, u"Toggle loop"_s}));
      shop.Tick(form, "lstParts", u"Toggle loop"_s);
      Click(form, u"cmdReset"_s);
      QCOMPARE(TextOf(form, u"txtSearch"_s), QString());
      QCOMPARE(shop.Ticked(form, "lstParts"), QStringList({u"Slider"_s, u"Toggle loop"_s}));
      shop.Tick(form, "lstParts", u"Slider"_s);
      shop.prompts.ExpectBox(u"Done"_s, u"Task type updated"_s);
      Click(form, u"cmdSave"_s);
    });
    TaskTypeEntry saved;
    QVERIFY(LoadTaskType(id, saved));
    QCOMPARE(saved.parts.size(), 1);
    QCOMPARE(ModelName(saved.parts.first()), u"Toggle loop"_s);
  }

  void PartsAreKeptFromTheForm() {
    TaskForm shop;
    const auto enter = [&](const QString& caption, const QString& name, const QString& price) {
      shop.screens.WhenShown(u"frmNewMisc"_s, [=](Form& part) {
        QCOMPARE(part.windowTitle(), caption);
        TypeInto(part, u"txtName"_s, name);
        TypeInto(part, u"txtCost"_s, price);
        Click(part, u"cmdOK"_s);
      });
    };
    shop.Edit({}, [&](Form& form) {
      shop.prompts.ExpectBox(kProgramTitle, u"Please select an item to edit"_s);
      Click(form, u"cmdEditPart"_s);
      shop.prompts.ExpectBox(u"Nothing selected"_s, u"You must select a part to delete"_s);
      Click(form, u"cmdDeletePart"_s);
      enter(u"Enter New Misc Item"_s, u"Slider"_s, u"40"_s);
      Click(form, u"cmdNewPart"_s);
      QCOMPARE(shop.Selected(form, "lstParts"), u"Slider"_s);
      enter(u"Enter New Misc Item"_s, u"slider"_s, u"41"_s);
      shop.prompts.ExpectBox(u"Duplicate Name"_s, u"There is already a misc part called slider\nCost is 40.00"_s);
      Click(form, u"cmdNewPart"_s);
      shop.screens.WhenShown(u"frmNewMisc"_s, [](Form& part) {
        QCOMPARE(TextOf(part, u"txtCost"_s), u"40.00"_s);
        TypeInto(part, u"txtCost"_s, u"45"_s);
        QCOMPARE(part.windowTitle(), u"Edit Part"_s);
        Click(part, u"cmdOK"_s);
      });
      Click(form, u"cmdEditPart"_s);
      QCOMPARE(shop.loft.Rows(u"select Name, Price from tblModels where TypeID = 7"_s),
               QStringList(u"Slider|450000"_s));
      shop.prompts.Expect(u"Are you sure?"_s, u"Delete Slider?"_s, Answer::Yes);
      PressKey(form, u"lstParts"_s, Qt::Key_Delete);
      QCOMPARE(shop.Texts(form, "lstParts"), QStringList());
      Click(form, u"cmdCancel"_s);
    });
    QCOMPARE(shop.loft.Rows(u"select Name from tblModels where TypeID = 7"_s), QStringList());
  }

  void TheFormDeletesItsTask() {
    TaskForm shop;
    shop.Edit({.taskLibID = shop.lineCheck}, [&](Form& form) {
      shop.prompts.Expect(u"Delete Line check?"_s, u"Are you sure you want to delete this task type?"_s, Answer::No);
      Click(form, u"cmdDeleteTaskType"_s);
      QVERIFY(form.isVisible());
      shop.prompts.Expect(u"Delete Line check?"_s, u"Are you sure you want to delete this task type?"_s, Answer::Yes);
      Click(form, u"cmdDeleteTaskType"_s);
    });
    QVERIFY(!TaskLibExists(shop.lineCheck));
    shop.Edit({.taskLibID = InstallTaskLibID}, [&](Form& form) {
      shop.prompts.ExpectBox(kProgramTitle, u"Install component is a fixed task.  It cannot be deleted"_s);
      Click(form, u"cmdDeleteTaskType"_s);
      Click(form, u"cmdExit"_s);
    });
  }

  void HelpIsTold() {
    TaskForm shop;
    shop.Edit({}, [&](Form& form) {
      for (const char* button : {"cmdExplain", "cmdRepackHelp", "cmdHelpRigType"}) {
        const qsizetype before = shop.prompts.Transcript().size();
        shop.prompts.AnswerRestWith([](const ShownPrompt&) { return Answer::Ok; });
        Click(form, QString::fromLatin1(button));
        QCOMPARE(shop.prompts.Transcript().size(), before + 1);
      }
      QCOMPARE(shop.prompts.Transcript().at(0).title, u"Allow Multiple times"_s);
      QCOMPARE(shop.prompts.Transcript().at(1).title, u"Repack Prices"_s);
      Click(form, u"cmdCancel"_s);
    });
  }

  void WithoutACustomTaskThereIsNothingToTakeOver() {
    TaskForm shop;
    shop.prompts.ExpectBox(kProgramTitle, u"you shouldn't be here - frmMiscTask should be loaded"_s);
    SharedForm<frmTaskType>().GetDataFromFormMiscTask();
  }

  void AnEventIsEnteredAndUpdated() {
    TaskForm shop;
    shop.screens.WhenShown(u"frmEventLib"_s, [&](Form& form) {
      QCOMPARE(form.windowTitle(), u"Event Library"_s);
      QCOMPARE(TextOf(form, u"txtName"_s), u"Canopy strike"_s);
      shop.prompts.Expect(u"No Required Components?"_s,
                          u"You didn't select any required components.\n"
                          "Would you like to select one or more components\nbefore saving this event type?"_s,
                          Answer::Yes);
      Click(form, u"cmdSave"_s);
      shop.Tick(form, "lstComps", u"Main Canopy"_s);
      Check(form, "chkMulti");
      Picture(form, u"frmEventLib"_s);
      shop.prompts.ExpectBox(u"Done"_s, u"Event saved to event library"_s);
      Click(form, u"cmdSave"_s);
    });
    const int id = EditEventType(0, u"Canopy strike"_s);
    QVERIFY(TaskLibIsEvent(id) && TaskLibAllowMultiple(id));
    shop.screens.WhenShown(u"frmEventLib"_s, [&](Form& form) {
      QCOMPARE(TextOf(form, u"cmdSave"_s), u"&Update"_s);
      TypeInto(form, u"txtName"_s, u"Strike"_s);
      shop.prompts.ExpectBox(u"Done"_s, u"Event library updated"_s);
      Click(form, u"cmdSave"_s);
    });
    QCOMPARE(EditEventType(id), id);
    QCOMPARE(TaskLibName(id), u"Strike"_s);
  }

  void ADuplicateEventIsShown() {
    TaskForm shop;
    shop.screens.WhenShown(u"frmEventLib"_s, [&](Form& form) {
      shop.prompts.Expect(u"Duplicate event name"_s,
                          u"There is already an event named 'RESERVE RIDE'\nWould you like to see it?"_s, Answer::No);
      Click(form, u"cmdSave"_s);
      QCOMPARE(TextOf(form, u"txtName"_s), u"RESERVE RIDE"_s);
      shop.prompts.Expect(u"Duplicate event name"_s,
                          u"There is already an event named 'RESERVE RIDE'\nWould you like to see it?"_s, Answer::Yes);
      Click(form, u"cmdSave"_s);
      QCOMPARE(TextOf(form, u"txtName"_s), u"Reserve ride"_s);
      TypeInto(form, u"txtName"_s, u"Line check"_s);  // its own id: only new names are looked up
      PressKey(form, Qt::Key_Escape);
    });
    QCOMPARE(EditEventType(0, u"RESERVE RIDE"_s), 0);
    shop.screens.WhenShown(u"frmEventLib"_s, [&](Form& form) {
      shop.prompts.Expect(u"Duplicate event name"_s,
                          u"There is already an event named 'Line check'\nWould you like to see it?"_s, Answer::Yes);
      shop.screens.WhenShown(u"frmTaskType"_s, [](Form& task) {
        QCOMPARE(TextOf(task, u"txtName"_s), u"Line check"_s);
        PressKey(task, Qt::Key_Escape);
      });
      Click(form, u"cmdSave"_s);
      Click(form, u"cmdExit"_s);
    });
    EditEventType(0, u"Line check"_s);
  }

  void AComponentOfALineIsChosen() {
    TaskForm shop;
    const int line = shop.AddTask(RepackTaskLibID);
    shop.screens.WhenShown(u"frmSelectComponentThisTask"_s, [&](Form& form) {
      QCOMPARE(form.windowTitle(), u"Select Component"_s);
      QCOMPARE(TextOf(form, u"lblTask"_s), u"This task involves more than one component"_s);
      QCOMPARE(shop.Texts(form, "lst"), QStringList({u"Javelin "_s, u"Raven "_s}));
      shop.prompts.ExpectBox(u"Nothing selected"_s, u"Please select a component"_s);
      Click(form, u"cmdOK"_s);
      Picture(form, u"frmSelectComponentThisTask"_s);
      shop.SelectText(form, "lst", u"Raven "_s);
      Click(form, u"cmdOK"_s);
    });
    QCOMPARE(SelectComponentOfTask(line), shop.reserve);
    shop.screens.WhenShown(u"frmSelectComponentThisTask"_s, [](Form& form) { PressKey(form, Qt::Key_Escape); });
    QCOMPARE(SelectComponentOfTask(line), 0);
  }
};

LOFT_TEST_MAIN(TestTaskType)
#include "tst_task_type.moc"
