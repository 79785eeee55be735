#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

#include "core/data_folder.h"
#include "gear/person_record.h"
#include "gear/rig_rules.h"
#include "gear/screens/rig_shop.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

/// What the rig screen shows: customers, rigs, filters, notices, and the plain display.
class TestRigLists : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() {
    UnloadScreens();
    DiagnosticMode = false;
  }

  void ShowsTheRigsOfACustomer() {
    RigShop shop;
    shop.loft.Run(u"update tblComponents set DOM = #1/14/2015#, SubType = '150' where ID = %1"_s.arg(shop.canopy));
    shop.loft.Run(u"update tblModels set ServiceLife = 120 where ID = %1"_s.arg(shop.storm));
    shop.OnRigs(shop.ann, [&](Form& form) {
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
      QCOMPARE(HeadingsOf(Components(form)),
               QStringList({u"Component"_s, u"Name"_s, u"Serial Number"_s, u"Date of mfg"_s}));
      QCOMPARE(HeadingsOf(Schedule(form)),
               QStringList({u"Scheduled Task"_s, u"Date Done"_s, u"Date Due"_s, u"Time Left"_s}));
      QCOMPARE(RowsOf(Schedule(form)), QStringList(u"Storm expiration||01/14/2025|Expired!|-1"_s));
      QCOMPARE(Schedule(form).CellColour(0, 3), QColor(255, 0, 0));
      QVERIFY(!IsShown(form, u"lblNotAssigned"_s));
      QVERIFY(!IsShown(form, u"lblNoSystems"_s));
      ClickCell(Components(form), 1, 2);
      Picture(form, u"frmGetRig"_s);
    });
    QCOMPARE(LastSystemID(), shop.red);
  }

  void AllCustomersFollowTheRig() {
    RigShop shop;
    SetRigOwner(shop.blue, 99);
    shop.OnRigs(0, [&](Form& form) {
      QCOMPARE(Rigs(form).Count(), 3);
      ClickRow(Rigs(form), 2);
      QCOMPARE(Selected(Customers(form)), u"Smith, Bob"_s);
      ClickRow(Rigs(form), 1);
      QCOMPARE(Customers(form).ListIndex(), -1);
      QVERIFY(IsShown(form, u"lblNotAssigned"_s));
      QCOMPARE(TextOf(form, u"lblNotAssigned"_s), u"This rig is not assigned to a customer"_s);
    });
  }

  void ACustomerBringsTheFirstOfTheRigsAlong() {
    RigShop shop;
    shop.OnRigs(0, [&](Form& form) {
      ClickRow(Customers(form), 1);
      QCOMPARE(Selected(Rigs(form)), u"Green"_s);
      QCOMPARE(Rigs(form).Count(), 3);
      QCOMPARE(LastCustomerID(), shop.bob);
      Click(form, u"optSelected"_s);
      QCOMPARE(Rigs(form).Count(), 1);
      ClickRow(Customers(form), 0);
      QCOMPARE(Rigs(form).Count(), 2);
      QCOMPARE(Selected(Rigs(form)), u"Red"_s);
      QCOMPARE(LastCustomerID(), shop.ann);
      Click(form, u"optAll"_s);
      QCOMPARE(Rigs(form).Count(), 3);
      QCOMPARE(Selected(Rigs(form)), u"Red"_s);
    });
  }

  void ARigOfNobodyIsAssignedToACustomer() {
    RigShop shop;
    SetRigOwner(shop.green, 0);
    const QString question = u"Assign rig Green to Bob Smith?"_s;
    shop.OnRigs(0, [&](Form& form) {
      ClickRow(Rigs(form), 2);
      shop.prompts.Expect(u"Assign Rig?"_s, question, Answer::No).WithButtons(Buttons::YesNo).WithPreset(Answer::No);
      ClickRow(Customers(form), 1);
      QVERIFY(!IsShown(form, u"lblNotAssigned"_s));
      QCOMPARE(RigOwner(shop.green), 0);
      ClickRow(Rigs(form), 2);
      shop.prompts.Expect(u"Assign Rig?"_s, question, Answer::Yes);
      ClickRow(Customers(form), 1);
      QVERIFY(!IsShown(form, u"lblNotAssigned"_s));
      QCOMPARE(Selected(Rigs(form)), u"Green"_s);
    });
    QCOMPARE(RigOwner(shop.green), shop.bob);
  }

  void ACustomerWithoutRigsHasNoSystems() {
    RigShop shop;
    RigShop::Named(u"Cid Young"_s);
    shop.OnRigs(shop.ann, [&](Form& form) {
      ClickRow(Customers(form), 2);
      QCOMPARE(Rigs(form).ItemText(0), u"   (no rigs for this customer)"_s);
      QCOMPARE(Components(form).RowCount(), 0);
      QCOMPARE(Schedule(form).RowCount(), 0);
      QVERIFY(IsShown(form, u"lblNoSystems"_s));
      QCOMPARE(TextOf(form, u"lblNoSystems"_s), u"This customer has no systems"_s);
      QCOMPARE(TextOf(form, u"lblRigType"_s), QString());
      QVERIFY(!IsEnabled(form, u"cmdEnter"_s));
      Click(form, u"chkShowSystems"_s);
      QCOMPARE(Selected(Customers(form)), u"Young, Cid  (no rigs)"_s);
      QCOMPARE(Customers(form).ItemText(0), u"Jones, Ann  (2 rigs)"_s);
      QCOMPARE(Customers(form).ItemText(1), u"Smith, Bob  (1 rig)"_s);
      shop.prompts.ExpectBox(u"No rigs found for Cid Young"_s, u"Selected customer doesn't have any rigs"_s);
      Click(form, u"cmdDeleteRig"_s);
    });
  }

  void ARigTypeLimitsTheList() {
    RigShop shop;
    shop.screens.WhenShown(u"frmGetRig"_s, [&](Form& form) {
      QCOMPARE(form.windowTitle(), u"Rig Type: Sport Rig"_s);
      QCOMPARE(Rigs(form).Count(), 2);
      QCOMPARE(TextOf(form, u"lblSystems"_s), u"Rigs (Sport Rig)"_s);
      QCOMPARE(TextOf(form, u"lblDisplayRigType"_s), u"Sport Rig only"_s);
      shop.Pick(u"tandem"_s);
      ChooseMenu(form, {u"Rig Types"_s, u"Display selected rig type only"_s});
      QCOMPARE(Rigs(form).Count(), 0);
      ChooseMenu(form, {u"Rig Types"_s, u"Display all rig types"_s});
      QCOMPARE(Rigs(form).Count(), 3);
      Click(form, u"cmdExit"_s);
    });
    ShowRigs({.rigType = 1, .caption = u"Rig Type: Sport Rig"_s});
  }

  void ARigTypesNameIsNoShortcut() {
    RigShop shop;
    shop.loft.Run(u"update tblRigTypes set Name = 'CRW & Swoop''s' where ID = 1"_s);
    shop.screens.WhenShown(u"frmGetRig"_s, [](Form& form) {
      QCOMPARE(TextOf(form, u"lblSystems"_s), u"Rigs (CRW && Swoop's)"_s);
      QCOMPARE(TextOf(form, u"lblDisplayRigType"_s), u"CRW & Swoop's only"_s);
      Click(form, u"cmdExit"_s);
    });
    ShowRigs({.rigType = 1});
  }

  void ARigTypeWithoutComponentsShowsHeadingsAlone() {
    RigShop shop;
    const int bare = shop.loft.Add(u"tblRigTypes"_s, {{u"Name"_s, u"Bare"_s}});
    SetRigType(shop.green, bare);
    shop.OnRigs(shop.bob, [&](Form& form) {
      QCOMPARE(Selected(Rigs(form)), u"Green"_s);
      QCOMPARE(Components(form).RowCount(), 0);
      QVERIFY(!IsEnabled(form, u"cmdEnter"_s));
    });
  }

  void AComponentThatTheRigTypeLacksHasNoRow() {
    RigShop shop;
    NewComponent(AddModel(u"Swift"_s, kChestReserve), kChestReserve, shop.green);
    shop.OnRigs(shop.bob, [&](Form& form) { QCOMPARE(Components(form).RowCount(), 4); });
  }

  void ADoubledTypeIsToldOnEveryLoadAndLeft() {
    RigShop shop;
    shop.loft.Run(u"update tblComponents set RigID = %1 where ID = %2"_s.arg(shop.red).arg(shop.spare));
    const auto expect = [&] {
      shop.prompts.ExpectBox(u"uh oh!"_s, u"Red has 2 Main Canopy"_s).WithIcon(Icon::Exclamation);
    };
    expect();
    shop.OnRigs(shop.ann, [&](Form& form) {
      expect();
      Click(form, u"cmdRefresh"_s);
      QCOMPARE(Components(form).RowCount(), 4);
    });
    QCOMPARE(ComponentRig(shop.spare), shop.red);
  }

  void TheMenusOpenTheScreensOfTheRigAndItsCustomer() {
    RigShop shop;
    OpenRigs({.customer = shop.ann});
    auto& form = dynamic_cast<Form&>(*Forms::Find(u"frmGetRig"_s));
    ChooseMenu(form, {u"Jobs"_s, u"Review jobs"_s});
    QVERIFY(Forms::IsShown(u"frmJobList"_s));
    ChooseMenu(form, {u"Schedule"_s, u"Show schedule"_s});
    QVERIFY(Forms::IsShown(u"frmSchedule"_s));
    ChooseMenu(form, {u"History"_s, u"Show this rig's history"_s});
    QVERIFY(Forms::IsShown(u"frmHistoryForm"_s));
    for (const auto& [control, text] : {std::pair(u"optSelected"_s, u"Selected customer only"_s),
                                        {u"chkShowSystems"_s, u"Show # systems per customer"_s},
                                        {u"chkHidePhotos"_s, u"Hide photos (faster loading)"_s}})
      QCOMPARE(TextOf(form, control).remove(u'&'), text);
  }

  void DiagnosticsShowIds() {
    RigShop shop;
    DiagnosticMode = true;
    shop.OnRigs(shop.ann, [&](Form& form) {
      QCOMPARE(Selected(Rigs(form)), u"Red (1)"_s);
      QCOMPARE(Selected(Customers(form)), u"Jones, Ann (1)"_s);
      QCOMPARE(Components(form).Text(0, 1), u"Container (1)"_s);
    });
  }

  void RefreshKeepsTheRigAndItsRow() {
    RigShop shop;
    shop.OnRigs(shop.ann, [&](Form& form) {
      ClickRow(Rigs(form), 1);
      ClickCell(Components(form), 1, 1);
      SetRigName(shop.blue, u"Sky"_s);
      Click(form, u"cmdRefresh"_s);
      QCOMPARE(Selected(Rigs(form)), u"Sky"_s);
      QCOMPARE(Components(form).CurrentRow(), 1);
      DeleteRigRow(shop.blue);
      Click(form, u"cmdRefresh"_s);
      QCOMPARE(Selected(Rigs(form)), u"Red"_s);
    });
  }

  void HidingPhotosIsRemembered() {
    RigShop shop;
    shop.OnRigs(shop.ann, [](Form& form) {
      QVERIFY(IsShown(form, u"lblRigPhoto"_s));
      QCOMPARE(TextOf(form, u"lblRigPhoto"_s), u"Container photo"_s);
      QCOMPARE(TextOf(form, u"lblCanopyPhoto"_s), u"Main canopy photo"_s);
      PressKey(form, u"chkHidePhotos"_s, Qt::Key_Space);
      QVERIFY(!IsShown(form, u"lblCanopyPhoto"_s));
    });
    QVERIFY(PhotosAreHidden());
    shop.OnRigs(shop.ann, [](Form& form) { QVERIFY(!IsShown(form, u"lblRigPhoto"_s)); });
  }

  void APlainDisplayChangesNothing() {
    RigShop shop;
    const QStringList before = shop.loft.Snapshot();
    shop.screens.WhenShown(u"frmGetRig"_s, [&](Form& form) {
      for (const auto& button : {u"cmdExit"_s, u"cmdEnter"_s, u"cmdRemove"_s, u"cmdAddRig"_s, u"cmdRename"_s,
                                 u"cmdDeleteRig"_s, u"cmdUpdateTask"_s})
        QVERIFY2(!IsShown(form, button), qPrintable(button));
      DoubleClickCell(Components(form), 1, 1);
      PressKey(Components(form), Qt::Key_F2);
      PressKey(form, Qt::Key_Delete);
      for (QAction* action : form.MenuBar()->actions().first()->menu()->actions()) QVERIFY(!action->isEnabled());
      PressKey(form, Qt::Key_Escape);
    });
    ShowRigs({.rig = shop.red, .hideButtons = true});
    QCOMPARE(shop.Touched(before), QStringList());
  }

  void CommandsOfALaterDayAreDisabled() {
    RigShop shop;
    shop.OnRigs(shop.ann, [](Form& form) {
      for (QMenu* menu : form.MenuBar()->findChildren<QMenu*>())
        for (QAction* action : menu->actions())
          if (action->text().remove(u'&') == "Add/view more photos"_L1) QVERIFY(!action->isEnabled());
      QVERIFY(!IsEnabled(form, u"cmdHelp"_s));
    });
  }

  void AScreenThatIsOpenIsNotOpenedTwice() {
    RigShop shop;
    shop.OnRigs(shop.ann, [&](Form&) {
      shop.prompts.ExpectBox(kProgramTitle, u"Rig screen is already showing"_s);
      QVERIFY(!ShowRigs());
    });
  }
};

LOFT_TEST_MAIN(TestRigLists)
#include "tst_rig_lists.moc"
