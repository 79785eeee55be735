#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>

#include "core/clock.h"
#include "core/default_rows.h"
#include "core/picker.h"
#include "core/screens.h"
#include "core/widgets/form.h"
#include "core/widgets/grid.h"
#include "core/widgets/list.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/people.h"
#include "gear/person_names.h"
#include "gear/person_record.h"
#include "gear/rig_rules.h"
#include "gear/rig_types.h"
#include "gear/rigs.h"
#include "gear/screens.h"
#include "support/fixed_clock.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"
#include "support/scripted_prompts.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

namespace {

struct Gear {
  ThrowAwayLoft loft;
  int ann = Named(u"Ann Jones"_s);
  int bob = Named(u"Bob Smith"_s);
  int red = CreateRig(ann, 1, u"Red"_s);
  int blue = CreateRig(ann, 3, u"Blue"_s);
  int green = CreateRig(bob, 1, u"Green"_s);
  int container = NewComponent(AddModel(u"Javelin Odyssey"_s, kContainer), kContainer, red, u"J-10021"_s);
  int storm = AddModel(u"Storm"_s, kMainCanopy);
  int canopy = NewComponent(storm, kMainCanopy, red, u"S1"_s);

  static int Named(const QString& name) {
    int id = 0;
    AddPersonByName(name, id);
    return id;
  }
};

bool IsShown(Form& form, const QString& label) { return Control<QLabel>(form, label).isVisible(); }
List& Rigs(Form& form) { return Control<List>(form, u"lstGear"_s); }
List& Customers(Form& form) { return Control<List>(form, u"lstCustomers"_s); }
Grid& Components(Form& form) { return Control<Grid>(form, u"Grid"_s); }
QString Selected(const List& list) { return list.ItemText(list.ListIndex()); }

QStringList RowsOf(const Grid& grid) {
  QStringList rows;
  for (int row = 0; row < grid.RowCount(); ++row) {
    QStringList cells;
    for (int column = 0; column < grid.ColumnCount(); ++column) cells << grid.Text(row, column);
    rows << cells.join(u'|');
  }
  return rows;
}

void ClickRow(List& list, int row) {
  const QModelIndex index = list.model()->index(row, 0);
  list.scrollTo(index);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(index).center());
}

}  // namespace

class TestRigScreens : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void ShowsTheRigsOfACustomer() {
    const FixedClock clock(2026, 3, 2);
    Gear gear;
    gear.loft.Run(u"update tblComponents set DOM = #1/14/2015#, SubType = '150' where TypeID = 2"_s);
    gear.loft.Run(u"update tblModels set ServiceLife = 120 where ID = "_s + QString::number(gear.storm));
    ScreenScript screens;
    screens.WhenShown(u"frmGetRig"_s, [&](Form& form) {
      QCOMPARE(form.windowTitle(), u"Rigs"_s);
      QCOMPARE(Rigs(form).Count(), 2);
      QCOMPARE(Selected(Rigs(form)), u"Red"_s);
      QCOMPARE(Selected(Customers(form)), u"Jones, Ann"_s);
      QCOMPARE(TextOf(form, u"lblSystems"_s), u"Rigs (all types)"_s);
      QCOMPARE(TextOf(form, u"lblDisplayRigType"_s), u"Displaying all rig types"_s);
      QCOMPARE(TextOf(form, u"lblRigType"_s), u"Rig Type: Sport Rig"_s);
      QCOMPARE(RowsOf(Components(form)),
               QStringList({u"1|Container|Javelin Odyssey |J-10021||1"_s, u"2|Main Canopy|Storm 150|S1|01/14/2015|2"_s,
                            u"3|Reserve Canopy||||0"_s, u"4|AAD||||0"_s}));
      auto& schedule = Control<Grid>(form, u"Grid2"_s);
      const int last = schedule.RowCount() - 1;
      QCOMPARE(schedule.Text(last, 0), u"Storm expiration"_s);
      QCOMPARE(schedule.Text(last, 2), u"01/14/2025"_s);
      QCOMPARE(schedule.CellColour(last, 3), QColor(255, 0, 0));
      QVERIFY(!IsShown(form, u"lblNotAssigned"_s));
      QVERIFY(!IsShown(form, u"lblNoSystems"_s));
      ClickCell(Components(form), 1, 2);
      Picture(form, u"frmGetRig"_s);
      Click(form, u"cmdExit"_s);
    });
    QVERIFY(ShowRigs({.customer = gear.ann}));
    QCOMPARE(LastSystemID(), gear.red);
  }

  void AllCustomersFollowTheRig() {
    Gear gear;
    SetRigOwner(gear.blue, 99);
    ScreenScript screens;
    screens.WhenShown(u"frmGetRig"_s, [&](Form& form) {
      QCOMPARE(Rigs(form).Count(), 3);
      ClickRow(Rigs(form), 2);
      QCOMPARE(Selected(Customers(form)), u"Smith, Bob"_s);
      ClickRow(Rigs(form), 1);
      QCOMPARE(Customers(form).ListIndex(), -1);
      QVERIFY(IsShown(form, u"lblNotAssigned"_s));
      QCOMPARE(TextOf(form, u"lblNotAssigned"_s), u"This rig is not assigned to a customer"_s);
      Click(form, u"cmdExit"_s);
    });
    ShowRigs();
  }

  void ARigOfNobodyIsAssignedToACustomer() {
    Gear gear;
    SetRigOwner(gear.green, 0);
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmGetRig"_s, [&](Form& form) {
      ClickRow(Rigs(form), 2);
      prompts.Expect(u"Assign Rig?"_s, u"Assign rig Green to Bob Smith?"_s, Answer::Yes);
      ClickRow(Customers(form), 1);
      QVERIFY(!IsShown(form, u"lblNotAssigned"_s));
      QCOMPARE(Selected(Rigs(form)), u"Green"_s);
      Click(form, u"cmdExit"_s);
    });
    ShowRigs();
    QCOMPARE(RigOwner(gear.green), gear.bob);
  }

  void ACustomerWithoutRigsHasNoSystems() {
    Gear gear;
    Gear::Named(u"Cid Young"_s);
    ScreenScript screens;
    screens.WhenShown(u"frmGetRig"_s, [&](Form& form) {
      ClickRow(Customers(form), 2);
      QCOMPARE(Rigs(form).ItemText(0), u"   (no rigs for this customer)"_s);
      QCOMPARE(Components(form).RowCount(), 0);
      QVERIFY(IsShown(form, u"lblNoSystems"_s));
      QCOMPARE(TextOf(form, u"lblRigType"_s), QString());
      QVERIFY(!Control<QPushButton>(form, u"cmdEnter"_s).isEnabled());
      Click(form, u"chkShowSystems"_s);
      QCOMPARE(Selected(Customers(form)), u"Young, Cid  (no rigs)"_s);
      QCOMPARE(Customers(form).ItemText(0), u"Jones, Ann  (2 rigs)"_s);
      Click(form, u"cmdExit"_s);
    });
    ShowRigs({.customer = gear.ann});
  }

  void ARigTypeLimitsTheList() {
    Gear gear;
    ScreenScript screens;
    screens.WhenShown(u"frmGetRig"_s, [&](Form& form) {
      QCOMPARE(form.windowTitle(), u"Rig Type: Sport Rig"_s);
      QCOMPARE(Rigs(form).Count(), 2);
      QCOMPARE(TextOf(form, u"lblSystems"_s), u"Rigs (Sport Rig)"_s);
      QCOMPARE(TextOf(form, u"lblDisplayRigType"_s), u"Sport Rig only"_s);
      ChooseMenu(form, {u"Rig Types"_s, u"Display selected rig type only"_s});
      QCOMPARE(Rigs(form).Count(), 0);
      ChooseMenu(form, {u"Rig Types"_s, u"Display all rig types"_s});
      QCOMPARE(Rigs(form).Count(), 3);
      Click(form, u"cmdExit"_s);
    });
    screens.WhenShown(u"frmPicker"_s, [](Form& form) {
      TypeInto(form, u"txt"_s, u"tandem"_s);
      Click(form, u"cmdSelect"_s);
    });
    ShowRigs({.rigType = 1, .caption = u"Rig Type: Sport Rig"_s});
  }

  void AddsARig() {
    Gear gear;
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmGetRig"_s, [&](Form& form) {
      prompts.ExpectInput(kProgramTitle, u"What do you want to call this new rig?"_s, u"Yellow"_s);
      prompts.ExpectBox(u"Select rig components"_s,
                        u"Rig: Yellow has been created.\n\nTo select this rig's components, click on the grid\n"
                        "and select the Enter/Edit Component button."_s);
      Click(form, u"cmdAddRig"_s);
      QCOMPARE(Selected(Rigs(form)), u"Yellow"_s);
      QCOMPARE(Selected(Customers(form)), u"Smith, Bob"_s);
      QCOMPARE(Components(form).CurrentRow(), 0);
      prompts.ExpectInput(kProgramTitle, u"What do you want to call this new rig?"_s, u"yellow"_s);
      prompts.ExpectBox(u"Duplicate rig name"_s, u"Bob Smith already has a rig named yellow"_s);
      ChooseMenu(form, {u"Rigs"_s, u"Add new rig"_s});
      Click(form, u"cmdExit"_s);
    });
    screens.WhenShown(u"frmPicker"_s, [](Form& form) {
      QCOMPARE(TextOf(form, u"txt"_s), u"Sport Rig"_s);
      TypeInto(form, u"txt"_s, u"tandem"_s);
      PressKey(form, u"chkDefault"_s, Qt::Key_Space);
      Click(form, u"cmdSelect"_s);
    });
    const QStringList before = gear.loft.Snapshot();
    ShowRigs({.customer = gear.bob});
    QCOMPARE(gear.loft.ChangesSince(before).filter(u"tblRig|"_s), QStringList(u"+tblRig|4|2|2|Yellow| "_s));
    QCOMPARE(DefaultRigType(), 2);
  }

  void AddingARigNeedsACustomer() {
    ThrowAwayLoft loft;
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmGetRig"_s, [&](Form& form) {
      prompts.ExpectBox(u"No Customer Selected"_s, u"Please select a customer"_s);
      Click(form, u"cmdAddRig"_s);
      prompts.ExpectBox(u"No rig selected"_s, u"Please select a rig to delete"_s);
      Click(form, u"cmdDeleteRig"_s);
      prompts.ExpectBox(u"Comments"_s, u"You must select a rig"_s);
      ChooseMenu(form, {u"Comments"_s});
      Click(form, u"cmdExit"_s);
    });
    ShowRigs();
  }

  void RenamesARigAndChangesItsOwnerAndType() {
    Gear gear;
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmGetRig"_s, [&](Form& form) {
      prompts.ExpectInput(u"Change Rig Name"_s, u"Enter Rig Name"_s, u"Ruby"_s).Proposing(u"Red"_s);
      ChooseMenu(form, {u"Edit"_s, u"Edit rig name"_s});
      QCOMPARE(Selected(Rigs(form)), u"Ruby"_s);
      prompts.Expect(u"Ruby"_s, u"Change rig type from Sport Rig to Tandem Rig?"_s, Answer::Yes);
      ChooseMenu(form, {u"Edit"_s, u"Change rig type"_s});
      QCOMPARE(TextOf(form, u"lblRigType"_s), u"Rig Type: Tandem Rig"_s);
      QCOMPARE(Components(form).RowCount(), 5);
      prompts.Expect(u"Ruby"_s, u"Change rig owner from Ann Jones to Bob Smith?"_s, Answer::Yes);
      ChooseMenu(form, {u"Customers"_s, u"Change rig owner"_s});
      QCOMPARE(Selected(Customers(form)), u"Smith, Bob"_s);
      QCOMPARE(Selected(Rigs(form)), u"Ruby"_s);
      prompts.ExpectBox(kProgramTitle, u"new customer"_s);
      ChooseMenu(form, {u"Edit"_s, u"Change rig owner"_s});
      Click(form, u"cmdExit"_s);
    });
    screens.WhenShown(u"frmPicker"_s, [](Form& form) {
      TypeInto(form, u"txt"_s, u"tandem"_s);
      Click(form, u"cmdSelect"_s);
    });
    screens.WhenShown(u"frmPicker"_s, [](Form& form) {
      TypeInto(form, u"txt"_s, u"smith"_s);
      Click(form, u"cmdSelect"_s);
    });
    screens.WhenShown(u"frmPicker"_s, [](Form& form) {
      TypeInto(form, u"txt"_s, u"(add new"_s);
      Click(form, u"cmdSelect"_s);
    });
    ShowRigs({.customer = gear.ann, .rig = gear.red});
    QCOMPARE(gear.loft.Rows(u"select * from tblRig where ID = 1"_s), QStringList(u"1|2|2|Ruby| "_s));
    QCOMPARE(ComponentOwner(gear.canopy), gear.ann);
  }

  void DeletesARig() {
    Gear gear;
    gear.loft.Add(u"tblSchedules"_s, {{u"rigID"_s, gear.red}, {u"TaskLibID"_s, RepackTaskLibID}});
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmGetRig"_s, [&](Form& form) {
      Click(form, u"cmdDeleteRig"_s);
      QVERIFY(RigExists(gear.red));
      PressKey(Rigs(form), Qt::Key_Delete);
      QCOMPARE(Rigs(form).Count(), 1);
      QCOMPARE(Selected(Rigs(form)), u"Blue"_s);
      Click(form, u"cmdExit"_s);
    });
    screens.WhenShown(u"frmDeleteSystem"_s, [&](Form& form) {
      QCOMPARE(form.windowTitle(), u"Delete System?"_s);
      QCOMPARE(TextOf(form, u"lblTitle"_s), u"Red"_s);
      QCOMPARE(TextOf(form, u"lblRigType"_s), u"Rig Type: Sport Rig"_s);
      QCOMPARE(Components(form).RowCount(), 4);
      QVERIFY(!Control<QPushButton>(form, u"cmdExit"_s).isVisible());
      prompts.ExpectBox(u"Help:      Deleting a Rig"_s,
                        u"When you delete a rig, its components stay in the database.\n\n"
                        "The tasks performed on them still exist, and can be seen\nunder Jobs and History."_s);
      Click(form, u"cmdHelp"_s);
      Picture(form, u"frmDeleteSystem"_s);
      PressKey(form, Qt::Key_N);
    });
    screens.WhenShown(u"frmDeleteSystem"_s, [](Form& form) { PressKey(form, Qt::Key_Y); });
    const QStringList before = gear.loft.Snapshot();
    ShowRigs({.customer = gear.ann});
    QStringList touched = gear.loft.TouchedSince(before);
    touched.removeAll(u"+tblMisc|0"_s);
    touched.removeAll(u"-tblMisc|0"_s);
    QCOMPARE(touched, QStringList({u"-tblRig|1"_s, u"-tblSchedules|1"_s}));
  }

  void ShowOnlyHasOneButton() {
    Gear gear;
    ScreenScript screens;
    screens.WhenShown(u"frmDeleteSystem"_s, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"Show rig"_s);
      QVERIFY(!Control<QPushButton>(form, u"cmdYes"_s).isVisible());
      PressKey(form, Qt::Key_Y);
      QVERIFY(form.isVisible());
      Click(form, u"cmdExit"_s);
    });
    QVERIFY(!ConfirmRigDeletion(gear.red, true));
  }

  void CommentsAreEditedAndShown() {
    Gear gear;
    ScreenScript screens;
    screens.WhenShown(u"frmGetRig"_s, [](Form& form) {
      QVERIFY(!Control<QWidget>(form, u"lblComments"_s).isVisible());
      ChooseMenu(form, {u"Comments"_s});
      QVERIFY(Control<QWidget>(form, u"lblComments"_s).isVisible());
      QCOMPARE(TextOf(form, u"lblComments"_s), u"(see comments)"_s);
      Click(form, u"lblComments"_s);
      Click(form, u"cmdExit"_s);
    });
    screens.WhenShown(u"frmComments"_s, [](Form& form) {
      TypeInto(form, u"txtComments"_s, u"Wing it"_s);
      Click(form, u"cmdSave"_s);
    });
    screens.WhenShown(u"frmComments"_s, [](Form& form) { Click(form, u"cmdExit"_s); });
    ShowRigs({.customer = gear.ann});
    QCOMPARE(RigComment(gear.red), u"Wing it"_s);
  }

  void RemovesAComponent() {
    Gear gear;
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmGetRig"_s, [&](Form& form) {
      prompts.ExpectBox(u"Nothing selected"_s, u"Please select a component to delete"_s);
      Click(form, u"cmdRemove"_s);
      ClickCell(Components(form), 2, 1);
      Click(form, u"cmdRemove"_s);
      ClickCell(Components(form), 1, 1);
      prompts.Expect(u"Remove Main Canopy?"_s,
                     u"Remove Storm  from Red?\n\n(component will still be in the database)"_s, Answer::Yes);
      Click(form, u"cmdRemove"_s);
      QCOMPARE(Components(form).Text(1, 2), QString());
      Click(form, u"cmdExit"_s);
    });
    ShowRigs({.customer = gear.ann});
    QCOMPARE(ComponentRig(gear.canopy), 0);
  }

  void CreatesAComponentOfANewModelInAnEmptyPlace() {
    Gear gear;
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmGetRig"_s, [&](Form& form) {
      prompts.ExpectBox(u"Please select a component"_s, u"Select a component form the above grid"_s);
      Click(form, u"cmdEnter"_s);
      prompts.ExpectInput(u"New AAD"_s, u"Enter name of new AAD"_s, u"Vigil"_s);
      prompts.ExpectBox(u"New AAD added"_s, u"'Vigil' has been added to the AAD database"_s);
      DoubleClickCell(Components(form), 3, 1);
      QCOMPARE(RowsOf(Components(form)).at(3), u"4|AAD|Vigil 2|V7|01/01/2020|3"_s);
      Click(form, u"cmdExit"_s);
    });
    screens.WhenShown(u"frmNewOrOld"_s, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"New AAD"_s);
      Picture(form, u"frmNewOrOld"_s);
      Click(form, u"cmdNew"_s);
    });
    screens.WhenShown(u"frmPicker"_s, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"Select AAD model"_s);
      TypeInto(form, u"txt"_s, u"(add new"_s);
      Click(form, u"cmdSelect"_s);
    });
    screens.WhenShown(u"frmComponentEdit"_s, [](Form& form) {
      QCOMPARE(TextOf(form, u"lblModel"_s), u"Vigil"_s);
      QCOMPARE(TextOf(form, u"lblOwner"_s), u"Ann Jones"_s);
      QCOMPARE(TextOf(form, u"lblRigTitle"_s), u"Red"_s);
      TypeInto(form, u"txtSubType"_s, u"2"_s);
      TypeInto(form, u"txtSerial"_s, u"V7"_s);
      TypeInto(form, u"txtDom"_s, u"2020"_s);
      Click(form, u"cmdSave"_s);
    });
    ShowRigs({.customer = gear.ann});
    QCOMPARE(gear.loft.Rows(u"select ModelID, TypeID, SerialNumber, OwnerID, RigID from tblComponents where ID = 3"_s),
             QStringList(u"3|4|V7|1|1"_s));
  }

  void InstallsAComponentFoundByItsSerial() {
    const FixedClock clock(2026, 3, 2);
    Gear gear;
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmGetRig"_s, [&](Form& form) {
      prompts.Expect(u"Move Main Canopy?"_s,
                     u"The Main Canopy you selected:\n     Storm \nis already part of a rig: \nRed\nOwned by: \n"
                     "Jones, Ann\nDo you want to move this Main Canopy to the current rig?"_s,
                     Answer::Yes);
      prompts.Expect(u"Change component owner?"_s,
                     u"This component (Storm ) is owned by Ann Jones\nbut you are adding it to a rig owned by "
                     "Bob Smith\n\nDo you want to change component owner to Bob Smith?"_s,
                     Answer::Yes);
      ClickCell(Components(form), 1, 1);
      PressKey(Components(form), Qt::Key_Return);
      QCOMPARE(Components(form).Text(1, 3), u"S1"_s);
      Click(form, u"cmdExit"_s);
    });
    screens.WhenShown(u"frmNewOrOld"_s, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"New main canopy"_s);
      TypeInto(form, u"txtSerial"_s, u"s1"_s);
      PressKey(form, u"txtSerial"_s, Qt::Key_Return);
    });
    screens.WhenShown(u"frmComponentVerify"_s, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"Select Component"_s);
      QCOMPARE(TextOf(form, u"lblQuestion"_s), u"Select this main canopy?"_s);
      QCOMPARE(TextOf(form, u"lblModel"_s), u"Storm "_s);
      QCOMPARE(TextOf(form, u"lblRig"_s), u"Red"_s);
      QCOMPARE(TextOf(form, u"lblDom"_s), u"(not entered)"_s);
      Picture(form, u"frmComponentVerify"_s);
      Click(form, u"cmdYes"_s);
    });
    ShowRigs({.customer = gear.bob});
    QCOMPARE(ComponentRig(gear.canopy), gear.green);
    QCOMPARE(ComponentOwner(gear.canopy), gear.bob);
    QCOMPARE(gear.loft.Rows(u"select TaskLibID, JobID, SystemID, Status from tblTasks"_s), QStringList(u"3|0|1|-1"_s));
  }

  void AnInstalledReserveMayBringItsRepackAlong() {
    const FixedClock clock(2026, 3, 2);
    Gear gear;
    const int reserve = NewComponent(AddModel(u"Raven"_s, kReserveCanopy), kReserveCanopy, 0, u"R5"_s);
    gear.loft.Run(u"update tblTaskLib set IntervalNumber = 180 where ID = 1"_s);
    const Date repack = Date::FromParts(2026, 1, 1);
    const int task = gear.loft.Add(u"tblTasks"_s, {{u"TaskLibID"_s, RepackTaskLibID},
                                                   {u"JobID"_s, 0},
                                                   {u"SystemID"_s, gear.red},
                                                   {u"Status"_s, -1},
                                                   {u"PartID"_s, 0},
                                                   {u"DateTaskCompleted"_s, repack}});
    for (int component : {gear.container, reserve})
      gear.loft.Add(u"tblTaskComponents"_s, {{u"TaskID"_s, task}, {u"CompID"_s, component}, {u"Complete"_s, true}});
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmGetRig"_s, [&](Form& form) {
      prompts.Expect(u"Add repack to schedule?"_s,
                     u"There is a reserve repack task found for this\ncontainer and reserve.   \n\n"
                     "Repack date: 01/01/2026\nExpiration date: 06/30/2026\n\n"
                     "Would you like this to appear on the schedule?"_s,
                     Answer::Yes);
      ClickCell(Components(form), 2, 1);
      Click(form, u"cmdEnter"_s);
      Click(form, u"cmdExit"_s);
    });
    screens.WhenShown(u"frmNewOrOld"_s, [](Form& form) {
      TypeInto(form, u"txtSerial"_s, u"R5"_s);
      Click(form, u"cmdEnter"_s);
    });
    screens.WhenShown(u"frmComponentVerify"_s, [](Form& form) { Click(form, u"cmdYes"_s); });
    ShowRigs({.customer = gear.ann});
    QCOMPARE(ComponentRig(reserve), gear.red);
    QCOMPARE(gear.loft.Rows(u"select rigID, TaskLibID, DateDone, DateDue, TaskID from tblSchedules"_s),
             QStringList(u"1|1|%1|%2|1"_s.arg(repack.Days()).arg(repack.Days() + 180)));
  }

  void HidingPhotosIsRemembered() {
    Gear gear;
    ScreenScript screens;
    for (int i = 0; i < 2; ++i)
      screens.WhenShown(u"frmGetRig"_s, [i](Form& form) {
        QCOMPARE(IsShown(form, u"lblRigPhoto"_s), i == 0);
        if (i == 0) PressKey(form, u"chkHidePhotos"_s, Qt::Key_Space);
        QVERIFY(!IsShown(form, u"lblCanopyPhoto"_s));
        Click(form, u"cmdExit"_s);
      });
    ShowRigs({.customer = gear.ann});
    QVERIFY(PhotosAreHidden());
    ShowRigs({.customer = gear.ann});
  }

  void APlainDisplayChangesNothing() {
    Gear gear;
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmGetRig"_s, [&](Form& form) {
      QVERIFY(!Control<QPushButton>(form, u"cmdExit"_s).isVisible());
      QVERIFY(!Control<QPushButton>(form, u"cmdEnter"_s).isVisible());
      DoubleClickCell(Components(form), 1, 1);
      PressKey(form, Qt::Key_Delete);
      for (QAction* action : form.MenuBar()->actions().first()->menu()->actions()) QVERIFY(!action->isEnabled());
      PressKey(form, Qt::Key_Escape);
    });
    ShowRigs({.rig = gear.red, .hideButtons = true});
    QVERIFY(RigExists(gear.red));
  }

  void ThePickerDeletesByTheRulesOfGear() {
    RegisterGearPickers();
    Gear gear;
    ScriptedPrompts prompts;
    ScreenScript screens;
    const QStringList before = gear.loft.Snapshot();
    screens.WhenShown(u"frmPicker"_s, [&](Form& form) {
      TypeInto(form, u"txt"_s, u"tandem"_s);
      prompts.Expect(u"Are you sure?"_s, u"Delete Tandem Rig?"_s, Answer::Yes);
      Click(form, u"cmdDelete"_s);
      PressKey(form, Qt::Key_Escape);
    });
    QCOMPARE(PickItem(kPickRigType).id, kPickCancelled);
    screens.WhenShown(u"frmPicker"_s, [](Form& form) {
      TypeInto(form, u"txt"_s, u"green"_s);
      Click(form, u"cmdDelete"_s);
      PressKey(form, Qt::Key_Escape);
    });
    screens.WhenShown(u"frmDeleteSystem"_s, [](Form& form) { Click(form, u"cmdYes"_s); });
    PickItem(kPickRig);
    screens.WhenShown(u"frmPicker"_s, [&](Form& form) {
      TypeInto(form, u"txt"_s, u"smith"_s);
      prompts.Expect(u"Delete Bob Smith"_s, u"Are you sure you want to delete this customer?"_s, Answer::Yes);
      Click(form, u"cmdDelete"_s);
      PressKey(form, Qt::Key_Escape);
    });
    PickItem(kPickCustomer);
    QStringList touched = gear.loft.TouchedSince(before);
    touched.removeAll(u"+tblMisc|0"_s);
    touched.removeAll(u"-tblMisc|0"_s);
    QCOMPARE(touched, QStringList({u"-tblPeople|2"_s, u"-tblRigTypes|2"_s, u"-tblRig|3"_s}));
  }

  void StartsAJobOnTheRig() {
    Gear gear;
    SetRiggerFlag(gear.bob, true);
    SetDefaultRigger(gear.bob);
    const QStringList before = gear.loft.Snapshot();
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmGetRig"_s, [](Form& form) {
      ChooseMenu(form, {u"Jobs"_s, u"Start new job"_s});
      Click(form, u"cmdExit"_s);
    });
    screens.WhenShown(u"frmNewJob"_s, [](Form& form) { PressKey(form, Qt::Key_Escape); });
    ShowRigs({.customer = gear.ann});
    QCOMPARE(gear.loft.ChangesSince(before).filter(u"tblJobs"_s), QStringList());
  }

  void PicksARig() {
    Gear gear;
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmPickRig"_s, [&](Form& form) {
      QCOMPARE(form.windowTitle(), u"Select rig"_s);
      QCOMPARE(Selected(Rigs(form)), u"Blue"_s);
      ClickRow(Rigs(form), 0);
      QTest::qWait(0);
      Picture(form, u"frmPickRig"_s);
      Click(form, u"cmdSelect"_s);
    });
    int rig = gear.blue;
    int customer = gear.ann;
    QVERIFY(PickRig(rig, customer));
    QCOMPARE(rig, gear.red);
    QCOMPARE(customer, gear.ann);
    Gear::Named(u"Cid Young"_s);
    screens.WhenShown(u"frmPickRig"_s, [&](Form& form) {
      ClickRow(Customers(form), 2);
      prompts.ExpectBox(u"Nothing selected"_s, u"You must select a rig"_s);
      Click(form, u"cmdSelect"_s);
      Click(form, u"cmdCancel"_s);
    });
    QVERIFY(!PickRig(rig, customer));
    QCOMPARE(rig, 0);
    QCOMPARE(customer, 0);
  }
};

QTEST_MAIN(TestRigScreens)
#include "tst_rigs.moc"
