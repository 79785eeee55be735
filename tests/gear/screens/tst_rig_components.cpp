#include <QPushButton>

#include "gear/rig_rules.h"
#include "gear/screens/rig_shop.h"
#include "schedule/schedule.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

Date On(int month, int day, int year) { return Date::FromParts(year, month, day); }

/// Types a serial number into the question for an empty place.
void TypeSerial(RigShop& shop, const QString& serial) {
  shop.screens.WhenShown(u"frmNewOrOld"_s, [serial](Form& form) {
    TypeInto(form, u"txtSerial"_s, serial);
    PressKey(form, u"txtSerial"_s, Qt::Key_Return);
  });
}

}  // namespace

/// What the rig screen does to the components of a rig and to what falls due on it.
class TestRigComponents : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void RemovesAComponent() {
    RigShop shop;
    const QStringList before = shop.loft.Snapshot();
    const QString question = u"Remove Storm  from Red?\n\n(component will still be in the database)"_s;
    shop.OnRigs(shop.ann, [&](Form& form) {
      shop.prompts.ExpectBox(u"Nothing selected"_s, u"Please select a component to delete"_s);
      Click(form, u"cmdRemove"_s);
      ClickCell(Components(form), 2, 1);
      Click(form, u"cmdRemove"_s);
      ClickCell(Components(form), 1, 1);
      shop.prompts.Expect(u"Remove Main Canopy?"_s, question, Answer::No)
          .WithButtons(Buttons::YesNo)
          .WithPreset(Answer::No);
      Click(form, u"cmdRemove"_s);
      QCOMPARE(shop.Touched(before), QStringList());
      shop.prompts.Expect(u"Remove Main Canopy?"_s, question, Answer::Yes);
      Click(form, u"cmdRemove"_s);
      QCOMPARE(Components(form).Text(1, 2), QString());
    });
    QCOMPARE(shop.Touched(before), QStringList({u"+tblComponents|2"_s, u"-tblComponents|2"_s}));
    QCOMPARE(ComponentRig(shop.canopy), 0);
    QCOMPARE(ComponentOwner(shop.canopy), shop.ann);
  }

  void TheDeleteKeyInTheGridIsForTheComponent() {
    RigShop shop;
    shop.OnRigs(shop.ann, [&](Form& form) {
      ClickCell(Components(form), 1, 1);
      shop.prompts.Expect(u"Remove Main Canopy?"_s,
                          u"Remove Storm  from Red?\n\n(component will still be in the database)"_s, Answer::No);
      PressKey(Components(form), Qt::Key_Delete);
      ClickCell(Components(form), 2, 1);
      PressKey(Components(form), Qt::Key_Delete);
    });
    shop.screens.WhenShown(u"frmGetRig"_s, [](Form& form) {
      ClickCell(Components(form), 1, 1);
      PressKey(Components(form), Qt::Key_Delete);
      PressKey(form, Qt::Key_Escape);
    });
    ShowRigs({.rig = shop.red, .hideButtons = true});
    QCOMPARE(ComponentRig(shop.canopy), shop.red);
  }

  void OnlyContainerAndReserveTakeTheRepackAlong() {
    RigShop shop;
    const int reserve = RigShop::AddReserve(shop.red);
    const int task = shop.AddDone(RepackTaskLibID, On(1, 1, 2026), {shop.container, reserve}, shop.red);
    const auto add = [&](int entry, int component) {
      shop.loft.Add(
          u"tblSchedules"_s,
          {{u"rigID"_s, shop.red}, {u"TaskLibID"_s, entry}, {u"TaskID"_s, task}, {u"ComponentID"_s, component}});
    };
    add(RepackTaskLibID, 0);
    add(5, shop.canopy);
    shop.OnRigs(shop.ann, [&](Form& form) {
      const auto remove = [&](int row, const QString& type, const QString& name) {
        ClickCell(Components(form), row, 1);
        shop.prompts.Expect(u"Remove "_s + type + u'?',
                            u"Remove "_s + name + u" from Red?\n\n(component will still be in the database)"_s,
                            Answer::Yes);
        Click(form, u"cmdRemove"_s);
      };
      remove(1, u"Main Canopy"_s, u"Storm "_s);
      const QString schedules = u"select rigID, TaskLibID, ComponentID from tblSchedules order by ID"_s;
      QCOMPARE(shop.loft.Rows(schedules), QStringList({u"1|1|0"_s, u"0|5|2"_s}));
      remove(2, u"Reserve Canopy"_s, u"Raven "_s);
      QCOMPARE(shop.loft.Rows(schedules), QStringList(u"0|5|2"_s));
    });
  }

  void CreatesAComponentOfANewModelInAnEmptyPlace() {
    RigShop shop;
    shop.OnRigs(shop.ann, [&](Form& form) {
      shop.prompts.ExpectBox(u"Please select a component"_s, u"Select a component form the above grid"_s);
      Click(form, u"cmdEnter"_s);
      shop.screens.WhenShown(u"frmNewOrOld"_s, [](Form& question) {
        QCOMPARE(question.windowTitle(), u"New AAD"_s);
        Picture(question, u"frmNewOrOld"_s);
        Click(question, u"cmdNew"_s);
      });
      shop.Pick(u"(add new"_s);
      shop.prompts.ExpectInput(u"New AAD"_s, u"Enter name of new AAD"_s, u"Vigil"_s);
      shop.prompts.ExpectBox(u"New AAD added"_s, u"'Vigil' has been added to the AAD database"_s);
      shop.screens.WhenShown(u"frmComponentEdit"_s, [](Form& editor) {
        QCOMPARE(TextOf(editor, u"lblModel"_s), u"Vigil"_s);
        QCOMPARE(TextOf(editor, u"lblOwner"_s), u"Ann Jones"_s);
        QCOMPARE(TextOf(editor, u"lblRigTitle"_s), u"Red"_s);
        TypeInto(editor, u"txtSubType"_s, u"2"_s);
        TypeInto(editor, u"txtSerial"_s, u"V7"_s);
        TypeInto(editor, u"txtDom"_s, u"2020"_s);
        Click(editor, u"cmdSave"_s);
      });
      DoubleClickCell(Components(form), 3, 1);
      QCOMPARE(RowsOf(Components(form)).at(3), u"4|AAD|Vigil 2|V7|01/01/2020|4"_s);
    });
    QCOMPARE(shop.loft.Rows(u"select ModelID, TypeID, SerialNumber, OwnerID, RigID from tblComponents where ID = 4"_s),
             QStringList(u"3|4|V7|1|1"_s));
  }

  void ATakenModelNameIsRefused() {
    RigShop shop;
    shop.OnRigs(shop.bob, [&](Form& form) {
      ClickCell(Components(form), 1, 1);
      shop.PressInForm(u"frmNewOrOld"_s, u"cmdNew"_s);
      shop.Pick(u"(add new"_s);
      shop.prompts.ExpectInput(u"New Main Canopy"_s, u"Enter name of new Main Canopy"_s, u"storm"_s);
      shop.prompts.ExpectBox(u"Duplicate name"_s, u"The name 'storm' already exists in the Main Canopy database"_s);
      Click(form, u"cmdEnter"_s);
      shop.PressInForm(u"frmNewOrOld"_s, u"cmdNew"_s);
      shop.Leave(u"frmPicker"_s);
      Click(form, u"cmdEnter"_s);
    });
    QCOMPARE(ComponentOfTypeInRig(shop.green, kMainCanopy), 0);
  }

  void ACancelledEditorLeavesTheRowWithItsModel() {
    RigShop shop;
    shop.OnRigs(shop.bob, [&](Form& form) {
      ClickCell(Components(form), 1, 1);
      shop.PressInForm(u"frmNewOrOld"_s, u"cmdNew"_s);
      shop.Pick(u"storm"_s);
      shop.Leave(u"frmComponentEdit"_s);
      Click(form, u"cmdEnter"_s);
      QCOMPARE(RowsOf(Components(form)).at(1), u"2|Main Canopy|Storm |||4"_s);
    });
    QCOMPARE(shop.loft.Rows(u"select * from tblComponents where ID = 4"_s), QStringList(u"4|2|2|0|| |2||0|0||3|0|"_s));
  }

  void AnUnknownSerialIsCreatedAsTyped() {
    RigShop shop;
    shop.OnRigs(shop.bob, [&](Form& form) {
      ClickCell(Components(form), 1, 1);
      TypeSerial(shop, u" o'9 \"é\" "_s);
      shop.prompts.Expect(u"Add new Main Canopy?"_s,
                          u"Serial number o'9 \"é\" is not found in the Main Canopy database\n"
                          "Would you like to create a new Main Canopy using that serial number?"_s,
                          Answer::Yes);
      shop.Pick(u"storm"_s);
      shop.PressInForm(u"frmComponentEdit"_s, u"cmdSave"_s);
      Click(form, u"cmdEnter"_s);
      QCOMPARE(Components(form).Text(1, 3), u"o'9 \"é\""_s);
    });
    QCOMPARE(shop.loft.Rows(u"select SerialNumber from tblComponents where ID = 4"_s), QStringList(u"o'9 \"é\""_s));
  }

  void InstallsAComponentFoundByItsSerial() {
    RigShop shop;
    shop.loft.Add(u"tblPhotos"_s, {{u"rigid"_s, shop.red}, {u"componentid"_s, shop.canopy}});
    const QStringList before = shop.loft.Snapshot();
    shop.OnRigs(shop.bob, [&](Form& form) {
      const QString move =
          u"The Main Canopy you selected:\n     Storm \nis already part of a rig: \nRed\nOwned by: \n"
          "Jones, Ann\nDo you want to move this Main Canopy to the current rig?"_s;
      ClickCell(Components(form), 1, 1);
      TypeSerial(shop, u"s1"_s);
      shop.screens.WhenShown(u"frmComponentVerify"_s, [](Form& verify) {
        QCOMPARE(verify.windowTitle(), u"Select Component"_s);
        QCOMPARE(TextOf(verify, u"lblQuestion"_s), u"Select this main canopy?"_s);
        QCOMPARE(TextOf(verify, u"lblModel"_s), u"Storm "_s);
        QCOMPARE(TextOf(verify, u"lblRig"_s), u"Red"_s);
        QCOMPARE(TextOf(verify, u"lblDom"_s), u"(not entered)"_s);
        Picture(verify, u"frmComponentVerify"_s);
        Click(verify, u"cmdNo"_s);
      });
      PressKey(Components(form), Qt::Key_Return);
      TypeSerial(shop, u"s1"_s);
      shop.PressInForm(u"frmComponentVerify"_s, u"cmdYes"_s);
      shop.prompts.Expect(u"Move Main Canopy?"_s, move, Answer::No).WithButtons(Buttons::YesNo).WithPreset(Answer::No);
      PressKey(Components(form), Qt::Key_Return);
      QCOMPARE(shop.Touched(before), QStringList());
      TypeSerial(shop, u"s1"_s);
      shop.PressInForm(u"frmComponentVerify"_s, u"cmdYes"_s);
      shop.prompts.Expect(u"Move Main Canopy?"_s, move, Answer::Yes);
      shop.prompts
          .Expect(u"Change component owner?"_s,
                  u"This component (Storm ) is owned by Ann Jones\nbut you are adding it to a rig owned by "
                  "Bob Smith\n\nDo you want to change component owner to Bob Smith?"_s,
                  Answer::Yes)
          .WithButtons(Buttons::YesNoCancel);
      PressKey(Components(form), Qt::Key_Return);
      QCOMPARE(Components(form).Text(1, 3), u"S1"_s);
    });
    QCOMPARE(shop.Touched(before), QStringList({u"+tblComponents|2"_s, u"+tblPhotos|1"_s, u"+tblTaskComponents|1"_s,
                                                u"+tblTasks|1"_s, u"-tblComponents|2"_s, u"-tblPhotos|1"_s}));
    QCOMPARE(ComponentRig(shop.canopy), shop.green);
    QCOMPARE(ComponentOwner(shop.canopy), shop.bob);
    QCOMPARE(shop.loft.Rows(u"select rigid from tblPhotos"_s), QStringList(u"3"_s));
    QCOMPARE(shop.loft.Rows(u"select TaskLibID, JobID, SystemID, Status, CustomerID, TaskName from tblTasks"_s),
             QStringList(u"3|0|1|-1|1|Remove Main Canopy Storm  from Red"_s));
  }

  void PicksAFreeComponentFromTheDatabase() {
    RigShop shop;
    SetComponentOwner(shop.spare, 0);
    shop.OnRigs(shop.bob, [&](Form& form) {
      ClickCell(Components(form), 1, 1);
      shop.PressInForm(u"frmNewOrOld"_s, u"cmdDatabase"_s);
      shop.screens.WhenShown(u"frmPickComponent"_s, [&](Form& picker) {
        auto& grid = Components(picker);
        DoubleClickCell(grid, grid.FindRow(shop.spare), 0);
      });
      Click(form, u"cmdEnter"_s);
      shop.PressInForm(u"frmNewOrOld"_s, u"cmdCancel"_s);
      ClickCell(Components(form), 2, 1);
      Click(form, u"cmdEnter"_s);
    });
    QCOMPARE(ComponentRig(shop.spare), shop.green);
    QCOMPARE(ComponentOwner(shop.spare), 0);
    QCOMPARE(shop.loft.Rows(u"select * from tblTasks"_s), QStringList());
  }

  void SeveralSerialsAreShownToChooseFrom() {
    RigShop shop;
    const int twin = NewComponent(AddModel(u"Pilot"_s, kMainCanopy), kMainCanopy, 0, u"s1 "_s);
    shop.OnRigs(shop.bob, [&](Form& form) {
      ClickCell(Components(form), 1, 1);
      TypeSerial(shop, u" S1"_s);
      shop.prompts.Expect(u"Serial number S1 has 2 matches"_s,
                          u"The Main Canopy database shows 2 components with that serial number\n"
                          "Would you like to see them?"_s,
                          Answer::Yes);
      shop.screens.WhenShown(u"frmSerialNumber"_s, [twin](Form& serials) {
        QCOMPARE(TextOf(serials, u"txtSerial"_s), u"S1"_s);
        Control<List>(serials, u"lst"_s).SelectData(twin);
        Click(serials, u"cmdSelect"_s);
      });
      Click(form, u"cmdEnter"_s);
    });
    QCOMPARE(ComponentRig(twin), shop.green);
  }

  void AnInstalledReserveMayBringItsRepackAlong() {
    RigShop shop;
    const int reserve = RigShop::AddReserve(0);
    shop.loft.Run(u"update tblTaskLib set IntervalNumber = 180 where ID = 1"_s);
    // The pair was packed on another rig, and once more in the one of today.
    shop.AddDone(RepackTaskLibID, On(6, 1, 2025), {shop.container, reserve}, shop.red);
    const int task = shop.AddDone(RepackTaskLibID, On(1, 1, 2026), {shop.container, reserve}, shop.blue);
    shop.AddDone(RepackTaskLibID, On(2, 1, 2026), {shop.container}, shop.red);
    const QString question =
        u"There is a reserve repack task found for this\ncontainer and reserve.   \n\n"
        "Repack date: 01/01/2026\nExpiration date: 06/30/2026\n\n"
        "Would you like this to appear on the schedule?"_s;
    shop.OnRigs(shop.ann, [&](Form& form) {
      const auto install = [&](Answer answer) {
        ClickCell(Components(form), 2, 1);
        TypeSerial(shop, u"R5"_s);
        shop.PressInForm(u"frmComponentVerify"_s, u"cmdYes"_s);
        shop.prompts.Expect(u"Add repack to schedule?"_s, question, answer)
            .WithButtons(Buttons::YesNo)
            .WithPreset(Answer::No);
        Click(form, u"cmdEnter"_s);
      };
      install(Answer::No);
      QCOMPARE(shop.loft.Rows(u"select * from tblSchedules"_s), QStringList());
      SetComponentRig(reserve, 0);
      Click(form, u"cmdRefresh"_s);
      install(Answer::Yes);
      QCOMPARE(Schedule(form).Text(0, 2), u"06/30/2026"_s);
    });
    QCOMPARE(ComponentRig(reserve), shop.red);
    QCOMPARE(shop.loft.Rows(u"select rigID, TaskLibID, DateDone, DateDue, TaskID from tblSchedules"_s),
             QStringList(u"1|1|%1|%2|%3"_s.arg(On(1, 1, 2026).Days()).arg(On(6, 30, 2026).Days()).arg(task)));
  }

  void ARowWithAComponentOpensItsScreen() {
    RigShop shop;
    shop.OnRigs(shop.ann, [&](Form& form) {
      shop.screens.WhenShown(u"frmComponent"_s, [&](Form& component) {
        QCOMPARE(component.windowTitle(), u"Main Canopy"_s);
        shop.prompts.Expect(u"Remove Main Canopy?"_s, u"Remove Storm  from Red?"_s, Answer::Yes);
        Click(component, u"cmdRemove"_s);
        Click(component, u"cmdExit"_s);
      });
      DoubleClickCell(Components(form), 1, 2);
      QCOMPARE(Components(form).Text(1, 2), QString());
      QCOMPARE(Components(form).CurrentRow(), 1);
    });
  }

  void AComponentThatGoesMeanwhileLeavesItsPlaceEmpty() {
    RigShop shop;
    shop.OnRigs(shop.ann, [&](Form& form) {
      ClickCell(Components(form), 1, 1);
      shop.loft.Run(u"delete from tblComponents where ID = %1"_s.arg(shop.canopy));
      QCOMPARE(RowsOf(Components(form)).at(1), u"2|Main Canopy||||0"_s);
      QCOMPARE(Components(form).CurrentRow(), 1);
      PressKey(Components(form), Qt::Key_F2);
      shop.Leave(u"frmNewOrOld"_s);
      DoubleClickCell(Components(form), 1, 1);
    });
  }

  void F2EditsARowQuickly() {
    RigShop shop;
    shop.OnRigs(shop.ann, [&](Form& form) {
      ClickCell(Components(form), 3, 1);
      PressKey(Components(form), Qt::Key_F2);
      ClickCell(Components(form), 1, 1);
      shop.screens.WhenShown(u"frmModel"_s, [](Form& editor) {
        TypeInto(editor, u"txtSerial"_s, u"S77"_s);
        Click(editor, u"cmdSave"_s);
      });
      PressKey(Components(form), Qt::Key_F2);
      QCOMPARE(Components(form).Text(1, 3), u"S77"_s);
    });
  }

  void UpdatesAScheduledTask() {
    RigShop shop;
    const int reserve = RigShop::AddReserve(shop.red);
    shop.loft.Run(u"update tblTaskLib set IntervalNumber = 180 where ID = 1"_s);
    shop.OnRigs(shop.ann, [&](Form& form) {
      QCOMPARE(RowsOf(Schedule(form)), QStringList(u"Inspect and repack reserve|unknown|unknown|unknown|1"_s));
      QCOMPARE(Schedule(form).CurrentRow(), -1);
      shop.prompts.ExpectInput(kProgramTitle, u"Enter date peformed"_s, u"2/1/2026"_s).Proposing(u"03/02/2026"_s);
      Click(form, u"cmdUpdateTask"_s);
      QCOMPARE(RowsOf(Schedule(form)), QStringList(u"Inspect and repack reserve|02/01/2026|07/31/2026|151 days|1"_s));
      QCOMPARE(Schedule(form).CurrentRow(), 0);
    });
    QCOMPARE(shop.loft.Rows(u"select CompID, Complete from tblTaskComponents order by CompID"_s),
             QStringList({u"1|-1"_s, u"%1|-1"_s.arg(reserve)}));
  }

  void AnOpenScreenFollowsTheSchedule() {
    RigShop shop;
    const int reserve = RigShop::AddReserve(shop.red);
    shop.loft.Run(u"update tblTaskLib set IntervalNumber = 180 where ID = 1"_s);
    shop.OnRigs(shop.ann, [&](Form& form) {
      ClickCell(Components(form), 1, 1);
      const int task = shop.AddDone(RepackTaskLibID, On(3, 1, 2026), {shop.container, reserve}, shop.red);
      UpdateSchedule(RepackTaskLibID, shop.red, 0);
      QCOMPARE(Schedule(form).Text(0, 2), u"08/28/2026"_s);
      shop.loft.Run(u"update tblTasks set status = 0 where ID = %1"_s.arg(task));
      UpdateSchedule(RepackTaskLibID, shop.red, 0);
      QCOMPARE(Schedule(form).Text(0, 2), u"unknown"_s);
      QCOMPARE(Components(form).CurrentRow(), 1);
    });
  }

  void ColoursGoWithTheirRowsWhenSorted() {
    RigShop shop;
    shop.loft.Run(u"update tblModels set ServiceLife = 120"_s);
    shop.loft.Run(u"update tblComponents set DOM = #3/20/2016# where ID = %1"_s.arg(shop.container));
    shop.loft.Run(u"update tblComponents set DOM = #1/14/2015# where ID = %1"_s.arg(shop.canopy));
    shop.OnRigs(shop.ann, [&](Form& form) {
      const QColor red(255, 0, 0);
      QCOMPARE(Schedule(form).Text(0, 0), u"Javelin Odyssey expiration"_s);
      QCOMPARE(Schedule(form).CellColour(0, 3), QColor(Qt::yellow));
      QCOMPARE(Schedule(form).CellColour(1, 3), red);
      ClickHeading(Schedule(form), 2);
      QCOMPARE(Schedule(form).Text(0, 0), u"Storm expiration"_s);
      Click(form, u"cmdRefresh"_s);
      QCOMPARE(Schedule(form).Text(0, 0), u"Storm expiration"_s);
      QCOMPARE(Schedule(form).CellColour(0, 3), red);
      QCOMPARE(Schedule(form).CellColour(1, 3), QColor(Qt::yellow));
      ClickCell(Schedule(form), 0, 3);
      QCOMPARE(Schedule(form).CellColour(0, 3), red);
    });
  }
};

LOFT_TEST_MAIN(TestRigComponents)
#include "tst_rig_components.moc"
