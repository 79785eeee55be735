#include <QPushButton>

#include "core/picker.h"
#include "core/screens.h"
#include "gear/people.h"
#include "gear/person_record.h"
#include "gear/rig_rules.h"
#include "gear/rig_types.h"
#include "gear/screens/rig_shop.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

const QString kAskName = u"What do you want to call this new rig?"_s;

}  // namespace

/// The life of a rig on its screen: adding, naming, changing hands and type, deleting.
class TestRigChanges : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void AddsARig() {
    RigShop shop;
    const QStringList before = shop.loft.Snapshot();
    shop.OnRigs(shop.bob, [&](Form& form) {
      shop.prompts.ExpectInput(kProgramTitle, kAskName, u"Yellow"_s);
      shop.prompts.ExpectBox(u"Select rig components"_s,
                             u"Rig: Yellow has been created.\n\nTo select this rig's components, click on the grid\n"
                             "and select the Enter/Edit Component button."_s);
      shop.screens.WhenShown(u"frmPicker"_s, [](Form& picker) {
        QCOMPARE(TextOf(picker, u"txt"_s), u"Sport Rig"_s);
        TypeInto(picker, u"txt"_s, u"tandem"_s);
        PressKey(picker, u"chkDefault"_s, Qt::Key_Space);
        Click(picker, u"cmdSelect"_s);
      });
      Click(form, u"cmdAddRig"_s);
      QCOMPARE(Selected(Rigs(form)), u"Yellow"_s);
      QCOMPARE(Selected(Customers(form)), u"Smith, Bob"_s);
      QCOMPARE(Components(form).CurrentRow(), 0);
      QCOMPARE(Components(form).RowCount(), 5);
    });
    QCOMPARE(shop.loft.ChangesSince(before).filter(u"tblRig|"_s), QStringList(u"+tblRig|4|2|2|Yellow| "_s));
    QCOMPARE(shop.Touched(before), QStringList(u"+tblRig|4"_s));
    QCOMPARE(DefaultRigType(), 2);
  }

  void ATakenNameIsRefusedWhateverItsCase() {
    RigShop shop;
    const QStringList before = shop.loft.Snapshot();
    shop.OnRigs(shop.ann, [&](Form& form) {
      shop.prompts.ExpectInput(kProgramTitle, kAskName, u"  rEd "_s);
      shop.prompts.ExpectBox(u"Duplicate rig name"_s, u"Ann Jones already has a rig named rEd"_s)
          .WithIcon(Icon::Exclamation);
      ChooseMenu(form, {u"Rigs"_s, u"Add new rig"_s});
      shop.prompts.ExpectInput(kProgramTitle, kAskName, u"   "_s);
      Click(form, u"cmdAddRig"_s);
      shop.prompts.ExpectInput(kProgramTitle, kAskName, u"Gold"_s);
      shop.Leave(u"frmPicker"_s);
      Click(form, u"cmdAddRig"_s);
    });
    QCOMPARE(shop.Touched(before), QStringList());
  }

  void AnotherCustomersNameIsFree() {
    RigShop shop;
    shop.OnRigs(shop.ann, [&](Form& form) {
      shop.prompts.ExpectInput(kProgramTitle, kAskName, u"Green"_s);
      shop.prompts.ExpectBox(u"Select rig components"_s,
                             u"Rig: Green has been created.\n\nTo select this rig's components, click on the grid\n"
                             "and select the Enter/Edit Component button."_s);
      shop.PressInForm(u"frmPicker"_s, u"cmdSelect"_s);
      Click(form, u"cmdAddRig"_s);
    });
    QCOMPARE(NumberOfRigs(shop.ann), 3);
  }

  void ALongNameWithQuotesAndAccentsIsCut() {
    RigShop shop;
    const QString name = u"Zoë's \"Flügel\" "_s + QString(45, u'x');
    QCOMPARE(name.size(), 60);
    shop.OnRigs(shop.ann, [&](Form& form) {
      shop.prompts.ExpectInput(kProgramTitle, kAskName, name);
      shop.prompts.ExpectBox(u"Select rig components"_s,
                             u"Rig: "_s + name.left(50) +
                                 u" has been created.\n\nTo select this rig's components, click on the grid\n"
                                 "and select the Enter/Edit Component button."_s);
      shop.PressInForm(u"frmPicker"_s, u"cmdSelect"_s);
      Click(form, u"cmdAddRig"_s);
      QCOMPARE(Selected(Rigs(form)), name.left(50));
    });
    QCOMPARE(shop.loft.Rows(u"select rigAlias from tblRig where ID = 4"_s), QStringList(name.left(50)));
  }

  void CommandsNeedACustomerOrARig() {
    ThrowAwayLoft loft;
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmGetRig"_s, [&](Form& form) {
      prompts.ExpectBox(u"No Customer Selected"_s, u"Please select a customer"_s);
      Click(form, u"cmdAddRig"_s);
      prompts.ExpectBox(u"No Customer Selected"_s, u"Please select a customer"_s);
      ChooseMenu(form, {u"Customers"_s, u"Delete customer"_s});
      prompts.ExpectBox(u"No rig selected"_s, u"Please select a rig to delete"_s);
      Click(form, u"cmdDeleteRig"_s);
      prompts.ExpectBox(u"Comments"_s, u"You must select a rig"_s);
      ChooseMenu(form, {u"Comments"_s});
      prompts.ExpectBox(u"Nothing selected"_s, u"Please select a scheduled task from the above table"_s);
      Click(form, u"cmdUpdateTask"_s);
      Click(form, u"cmdExit"_s);
    });
    ShowRigs();
  }

  void RenamesARig() {
    RigShop shop;
    const QStringList before = shop.loft.Snapshot();
    const auto ask = [&](const QString& reply) {
      shop.prompts.ExpectInput(u"Change Rig Name"_s, u"Enter Rig Name"_s, reply);
    };
    shop.OnRigs(shop.ann, [&](Form& form) {
      shop.prompts.ExpectInput(u"Change Rig Name"_s, u"Enter Rig Name"_s, u"Red"_s).Proposing(u"Red"_s);
      ChooseMenu(form, {u"Edit"_s, u"Edit rig name"_s});
      ask(u"  "_s);
      ChooseMenu(form, {u"Rigs"_s, u"Rename rig"_s});
      ask(u" blue"_s);
      shop.prompts.ExpectBox(u"Duplicate rig name"_s, u"Ann Jones already has a rig named  blue"_s);
      Click(form, u"cmdRename"_s);
      QCOMPARE(shop.Touched(before), QStringList());
      ask(u"RED"_s);
      Click(form, u"cmdRename"_s);
      QCOMPARE(Selected(Rigs(form)), u"RED"_s);
      ask(u"Zoë's 'Red'"_s);
      Click(form, u"cmdRename"_s);
      QCOMPARE(Selected(Rigs(form)), u"Zoë's 'Red'"_s);
    });
    QCOMPARE(shop.loft.Rows(u"select rigAlias from tblRig where ID = 1"_s), QStringList(u"Zoë's 'Red'"_s));
  }

  void ChangesTheOwnerAlone() {
    RigShop shop;
    const QStringList before = shop.loft.Snapshot();
    shop.OnRigs(shop.ann, [&](Form& form) {
      shop.Pick(u"jones"_s);
      ChooseMenu(form, {u"Customers"_s, u"Change rig owner"_s});
      shop.Pick(u"(add new"_s);
      shop.prompts.ExpectBox(kProgramTitle, u"new customer"_s);
      ChooseMenu(form, {u"Edit"_s, u"Change rig owner"_s});
      shop.Leave(u"frmPicker"_s);
      ChooseMenu(form, {u"Edit"_s, u"Change rig owner"_s});
      shop.Pick(u"smith"_s);
      const QString question = u"Change rig owner from Ann Jones to Bob Smith?"_s;
      shop.prompts.Expect(u"Red"_s, question, Answer::No).WithButtons(Buttons::YesNo).WithPreset(Answer::No);
      ChooseMenu(form, {u"Edit"_s, u"Change rig owner"_s});
      QCOMPARE(shop.Touched(before), QStringList());
      shop.Pick(u"smith"_s);
      shop.prompts.Expect(u"Red"_s, question, Answer::Yes);
      ChooseMenu(form, {u"Customers"_s, u"Change rig owner"_s});
      QCOMPARE(Selected(Customers(form)), u"Smith, Bob"_s);
      QCOMPARE(Selected(Rigs(form)), u"Red"_s);
    });
    QCOMPARE(shop.Touched(before), QStringList({u"+tblRig|1"_s, u"-tblRig|1"_s}));
    QCOMPARE(shop.loft.Rows(u"select * from tblRig where ID = 1"_s), QStringList(u"1|2|1|Red| "_s));
    QCOMPARE(ComponentOwner(shop.canopy), shop.ann);
  }

  void ARigWithoutOwnerIsAssigned() {
    RigShop shop;
    SetRigOwner(shop.red, 77);
    shop.OnRigs(0, [&](Form& form) {
      ClickRow(Rigs(form), 0);
      shop.Pick(u"smith"_s);
      shop.prompts.Expect(u"Red"_s, u"Assign rig to Bob Smith?"_s, Answer::Yes);
      ChooseMenu(form, {u"Edit"_s, u"Change rig owner"_s});
      QCOMPARE(Selected(Customers(form)), u"Smith, Bob"_s);
    });
    QCOMPARE(RigOwner(shop.red), shop.bob);
  }

  void ChangesTheTypeAlone() {
    RigShop shop;
    const QStringList before = shop.loft.Snapshot();
    shop.OnRigs(shop.ann, [&](Form& form) {
      shop.Leave(u"frmPicker"_s);
      ChooseMenu(form, {u"Edit"_s, u"Change rig type"_s});
      shop.Pick(u"sport"_s);
      ChooseMenu(form, {u"Edit"_s, u"Change rig type"_s});
      shop.Pick(u"tandem"_s);
      shop.prompts.Expect(u"Red"_s, u"Change rig type from Sport Rig to Tandem Rig?"_s, Answer::No);
      ChooseMenu(form, {u"Edit"_s, u"Change rig type"_s});
      QCOMPARE(shop.Touched(before), QStringList());
      shop.Pick(u"tandem"_s);
      shop.prompts.Expect(u"Red"_s, u"Change rig type from Sport Rig to Tandem Rig?"_s, Answer::Yes)
          .WithButtons(Buttons::YesNo)
          .WithPreset(Answer::No);
      ChooseMenu(form, {u"Edit"_s, u"Change rig type"_s});
      QCOMPARE(TextOf(form, u"lblRigType"_s), u"Rig Type: Tandem Rig"_s);
      QCOMPARE(Components(form).RowCount(), 5);
    });
    QCOMPARE(shop.Touched(before), QStringList({u"+tblRig|1"_s, u"-tblRig|1"_s}));
  }

  void TheTypeOfANobodysRigIsAskedWithoutWords() {
    RigShop shop;
    SetRigOwner(shop.red, 0);
    shop.OnRigs(0, [&](Form& form) {
      ClickRow(Rigs(form), 0);
      shop.Pick(u"tandem"_s);
      shop.prompts.Expect(u"Red"_s, QString(), Answer::Yes);
      ChooseMenu(form, {u"Edit"_s, u"Change rig type"_s});
    });
    QCOMPARE(RigType(shop.red), 2);
  }

  void DeletingARigTakesItsRepackEntriesAlone() {
    RigShop shop;
    const int reserve = RigShop::AddReserve(shop.red);
    const int task = shop.AddDone(RepackTaskLibID, Date::FromParts(2026, 1, 1), {shop.container, reserve}, shop.red);
    for (int entry : {RepackTaskLibID, 4})
      for (int rig : {shop.red, shop.blue})
        shop.loft.Add(u"tblSchedules"_s, {{u"rigID"_s, rig}, {u"TaskLibID"_s, entry}, {u"TaskID"_s, task}});
    shop.loft.Add(u"tblJobs"_s, {{u"SystemID"_s, shop.red}, {u"CustomerID"_s, shop.ann}});
    shop.loft.Add(u"tblPhotos"_s, {{u"rigid"_s, shop.red}, {u"componentid"_s, shop.canopy}});
    const QStringList before = shop.loft.Snapshot();
    shop.OnRigs(shop.ann, [&](Form& form) {
      for (Qt::Key key : {Qt::Key_N, Qt::Key_C, Qt::Key_Escape}) {
        shop.screens.WhenShown(u"frmDeleteSystem"_s, [key](Form& question) { PressKey(question, key); });
        Click(form, u"cmdDeleteRig"_s);
      }
      QCOMPARE(shop.Touched(before), QStringList());
      shop.screens.WhenShown(u"frmDeleteSystem"_s, [](Form& question) { PressKey(question, Qt::Key_Y); });
      PressKey(Rigs(form), Qt::Key_Delete);
      QCOMPARE(Rigs(form).Count(), 1);
      QCOMPARE(Selected(Rigs(form)), u"Blue"_s);
    });
    QCOMPARE(shop.Touched(before), QStringList({u"-tblRig|1"_s, u"-tblSchedules|1"_s}));
    QCOMPARE(ComponentRig(shop.canopy), shop.red);
  }

  void CommentsAreEditedAndShown() {
    RigShop shop;
    shop.OnRigs(shop.ann, [&](Form& form) {
      QVERIFY(!IsShown(form, u"lblComments"_s));
      shop.screens.WhenShown(u"frmComments"_s, [](Form& comments) {
        TypeInto(comments, u"txtComments"_s, u"Wing's it"_s);
        Click(comments, u"cmdSave"_s);
      });
      ChooseMenu(form, {u"Comments"_s});
      QVERIFY(IsShown(form, u"lblComments"_s));
      QCOMPARE(TextOf(form, u"lblComments"_s), u"(see comments)"_s);
      shop.PressInForm(u"frmComments"_s, u"cmdExit"_s);
      Click(form, u"lblComments"_s);
    });
    QCOMPARE(RigComment(shop.red), u"Wing's it"_s);
  }

  void ThePickerDeletesByTheRulesOfGear() {
    RegisterGearPickers();
    RigShop shop;
    const QStringList before = shop.loft.Snapshot();
    const auto remove = [&](const QString& typed) {
      shop.screens.WhenShown(u"frmPicker"_s, [typed](Form& form) {
        TypeInto(form, u"txt"_s, typed);
        Click(form, u"cmdDelete"_s);
        PressKey(form, Qt::Key_Escape);
      });
    };
    remove(u"tandem"_s);
    shop.prompts.Expect(u"Are you sure?"_s, u"Delete Tandem Rig?"_s, Answer::Yes);
    QCOMPARE(PickItem(kPickRigType).id, kPickCancelled);
    remove(u"green"_s);
    shop.PressInForm(u"frmDeleteSystem"_s, u"cmdYes"_s);
    PickItem(kPickRig);
    remove(u"smith"_s);
    shop.prompts.Expect(u"Delete Bob Smith"_s, u"Are you sure you want to delete this customer?"_s, Answer::Yes);
    PickItem(kPickCustomer);
    QCOMPARE(shop.Touched(before), QStringList({u"-tblPeople|2"_s, u"-tblRigTypes|2"_s, u"-tblRig|3"_s}));
  }

  void DeletesACustomerWithoutLinks() {
    RigShop shop;
    const int cid = RigShop::Named(u"Cid O'Young"_s);
    shop.OnRigs(cid, [&](Form& form) {
      shop.prompts.Expect(u"Delete customer?"_s, u"Are you sure you want to delete Cid O'Young"_s, Answer::Yes);
      ChooseMenu(form, {u"Customers"_s, u"Delete customer"_s});
      QCOMPARE(Customers(form).Count(), 2);
    });
    QVERIFY(!PersonExists(cid));
  }

  void SearchSelectsACustomer() {
    RigShop shop;
    shop.OnRigs(shop.ann, [&](Form& form) {
      shop.Pick(u"smith"_s);
      Click(form, u"cmdSearch"_s);
      QCOMPARE(Selected(Customers(form)), u"Smith, Bob"_s);
      QCOMPARE(Selected(Rigs(form)), u"Green"_s);
      shop.Pick(u"jones"_s);
      ChooseMenu(form, {u"Customers"_s, u"Select customer"_s});
      QCOMPARE(Selected(Rigs(form)), u"Red"_s);
    });
  }

  void SearchMayAddACustomer() {
    RigShop shop;
    shop.OnRigs(shop.ann, [&](Form& form) {
      shop.Pick(u"(add new"_s);
      shop.screens.WhenShown(u"frmPeople"_s, [&](Form& people) {
        shop.Leave(u"frmPeopleEdit"_s);
        QTest::qWait(10);
        PressKey(people, Qt::Key_Escape);
      });
      Click(form, u"cmdSearch"_s);
    });
  }

  void StartsAJobOnTheRig() {
    RigShop shop;
    SetRiggerFlag(shop.bob, true);
    SetDefaultRigger(shop.bob);
    const QStringList before = shop.loft.Snapshot();
    shop.OnRigs(shop.ann, [&](Form& form) {
      shop.Leave(u"frmNewJob"_s);
      ChooseMenu(form, {u"Jobs"_s, u"Start new job"_s});
    });
    QCOMPARE(shop.loft.ChangesSince(before).filter(u"tblJobs"_s), QStringList());
  }
};

LOFT_TEST_MAIN(TestRigChanges)
#include "tst_rig_changes.moc"
