#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "core/screens.h"
#include "core/store/undo.h"
#include "gear/component_rules.h"
#include "gear/locations.h"
#include "gear/people.h"
#include "gear/rig_rules.h"
#include "gear/screens/rig_shop.h"
#include "gear/service_lives.h"
#include "jobs/person_deletion.h"
#include "schedule/gear_moves.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

Form& Open(const char* name) { return dynamic_cast<Form&>(*Forms::Find(QString::fromLatin1(name))); }

Form& OpenRigScreen(const RigScreenStart& start) {
  OpenRigs(start);
  return Open("frmGetRig");
}

Form& OpenPeopleScreen(int person) {
  OpenPeople(person);
  return Open("frmPeople");
}

/// What a person types into the editor of people.
void TypePerson(RigShop& shop, const QString& last, bool save) {
  shop.screens.WhenShown(u"frmPeopleEdit"_s, [last, save](Form& editor) {
    TypeInto(editor, u"txtLast"_s, last);
    Click(editor, save ? u"cmdSave"_s : u"cmdCancel"_s);
  });
}

}  // namespace

/// Screens that stand open while what they show is changed elsewhere, and doors to screens that are open.
class TestChangesBeside : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  // People.

  void APersonDeletedBesideMakesRoomForTheNeighbour() {
    RigShop shop;
    const int cid = RigShop::Named(u"Cid Young"_s);
    Form& people = OpenPeopleScreen(shop.bob);
    DeletePerson(shop.bob);
    QCOMPARE(TextOf(people, u"lblName"_s), u"Cid Young"_s);
    DeletePerson(cid);  // the last of the list: the one before it
    QCOMPARE(TextOf(people, u"lblName"_s), u"Ann Jones"_s);
    DeletePerson(shop.ann);
    QVERIFY(!Forms::Find(u"frmPeople"_s));
  }

  void RigsMadeBesideAreCounted() {
    RigShop shop;
    Form& people = OpenPeopleScreen(shop.bob);
    QCOMPARE(TextOf(people, u"lblRigs"_s), u"1 rig"_s);
    CreateRig(shop.bob, 1, u"Sky"_s);
    QCOMPARE(TextOf(people, u"lblRigs"_s), u"2 rigs"_s);
    QCOMPARE(TextOf(people, u"lblName"_s), u"Bob Smith"_s);
  }

  void APersonIsAddedWhileTheCustomersAreOpen() {
    RigShop shop;
    Form& people = OpenPeopleScreen(shop.ann);
    TypePerson(shop, u"Young"_s, true);
    const int added = ShowPeople(kPeopleAddNew);
    QCOMPARE(PersonLastName(added), u"Young"_s);
    QCOMPARE(TextOf(people, u"lblLastName"_s), u"Young"_s);
    TypePerson(shop, u"Zorn"_s, false);
    QCOMPARE(ShowPeople(kPeopleAddNew), 0);
    QCOMPARE(TextOf(people, u"lblLastName"_s), u"Young"_s);
    QVERIFY(IsEnabled(people, u"cmdExit"_s));
  }

  void TheRigScreensSearchAddsACustomerAboveTheCustomers() {
    RigShop shop;
    shop.screens.WhenShown(u"frmPeople"_s, [&](Form& people) {
      shop.screens.WhenShown(u"frmGetRig"_s, [&](Form& rigs) {
        shop.Pick(u"(add new"_s);
        TypePerson(shop, u"Young"_s, true);
        Click(rigs, u"cmdSearch"_s);
        QCOMPARE(Selected(Customers(rigs)), u"Young"_s);
        Click(rigs, u"cmdExit"_s);
      });
      Click(people, u"cmdRigs"_s);
      QCOMPARE(TextOf(people, u"lblName"_s), u"Ann Jones"_s);  // whose rigs were shown
      Click(people, u"cmdExit"_s);
    });
    QCOMPARE(ShowPeople(shop.ann), shop.ann);
  }

  void TheOwnerIsWhoWasSavedFirst() {
    RigShop shop;
    shop.screens.WhenShown(u"frmPeople"_s, [&](Form& people) {
      TypePerson(shop, u"Owner"_s, true);
      QTest::qWait(10);
      TypePerson(shop, u"Customer"_s, true);
      Click(people, u"cmdAddNew"_s);
      Click(people, u"cmdExit"_s);
    });
    const int owner = ShowPeople(kPeopleAddNew, true);
    QCOMPARE(PersonLastName(owner), u"Owner"_s);
    QCOMPARE(shop.loft.Rows(u"select UserID from tblMisc"_s), QStringList(QString::number(owner)));
  }

  void TheCustomersGoToWhoIsAskedFor() {
    RigShop shop;
    Form& people = OpenPeopleScreen(shop.ann);
    OpenPeople(shop.bob);
    QCOMPARE(TextOf(people, u"lblName"_s), u"Bob Smith"_s);
    OpenPeople();
    QCOMPARE(TextOf(people, u"lblName"_s), u"Bob Smith"_s);
    TypePerson(shop, u"Young"_s, true);
    OpenPeople(kPeopleAddNew);
    QCOMPARE(TextOf(people, u"lblLastName"_s), u"Young"_s);
  }

  void ACustomerDeletedInThePickerIsOffTheCustomers() {
    RigShop shop;
    const int cid = RigShop::Named(u"Cid Young"_s);
    Form& people = OpenPeopleScreen(cid);
    shop.screens.WhenShown(u"frmPicker"_s, [&](Form& picker) {
      Control<List>(picker, u"lst"_s).SelectData(cid);
      shop.prompts.Expect(u"Delete Cid Young"_s, u"Are you sure you want to delete this customer?"_s, Answer::Yes);
      Click(picker, u"cmdDelete"_s);
      QCOMPARE(Control<List>(picker, u"lst"_s).FindData(cid), -1);
      Click(picker, u"cmdCancel"_s);
    });
    Click(people, u"cmdSearch"_s);
    QCOMPARE(TextOf(people, u"lblName"_s), u"Bob Smith"_s);
  }

  // Rigs.

  void NoRigIsMadeForACustomerWhoHasGone() {
    RigShop shop;
    Form& rigs = OpenRigScreen({.customer = shop.bob});
    DeletePerson(shop.bob);
    QCOMPARE(Customers(rigs).ListIndex(), -1);
    QCOMPARE(Selected(Rigs(rigs)), u"Green"_s);
    QVERIFY(IsShown(rigs, u"lblNotAssigned"_s));
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.ExpectBox(u"No Customer Selected"_s, u"Please select a customer"_s);
    Click(rigs, u"cmdAddRig"_s);
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void ADeletedCustomerMakesRoomForTheNeighbour() {
    RigShop shop;
    const int cid = RigShop::Named(u"Cid Young"_s);
    Form& rigs = OpenRigScreen({.customer = cid});
    shop.prompts.Expect(u"Delete customer?"_s, u"Are you sure you want to delete Cid Young"_s, Answer::Yes);
    ChooseMenu(rigs, {u"Customers"_s, u"Delete customer"_s});
    QCOMPARE(Selected(Customers(rigs)), u"Smith, Bob"_s);
    QCOMPARE(Selected(Rigs(rigs)), u"Green"_s);
    QVERIFY(Control<QRadioButton>(rigs, u"optSelected"_s).isChecked());
  }

  void TheRigThatIsShownStaysByItsId() {
    RigShop shop;
    Form& rigs = OpenRigScreen({.customer = shop.ann, .rig = shop.blue});
    DeleteRig(shop.red);
    QCOMPARE(Selected(Rigs(rigs)), u"Blue"_s);
    SetRigName(shop.blue, u"Sky"_s);
    QCOMPARE(Selected(Rigs(rigs)), u"Sky"_s);
    const int white = CreateRig(shop.ann, 1, u"White"_s);
    DeleteRig(shop.blue);
    QCOMPARE(Selected(Rigs(rigs)), u"White"_s);
    DeleteRig(white);
    QVERIFY(IsShown(rigs, u"lblNoSystems"_s));
    QCOMPARE(Components(rigs).RowCount(), 0);
  }

  void TheGridFollowsTheComponentsAndKeepsThePlace() {
    RigShop shop;
    Form& rigs = OpenRigScreen({.customer = shop.ann});
    ClickHeading(Components(rigs), 2);  // by the names of the components
    const int row = Components(rigs).FindRow(kReserveCanopy);
    ClickCell(Components(rigs), row, 2);
    RigShop::AddReserve(shop.red);
    QVERIFY(Components(rigs).FindRow(kReserveCanopy) != row);
    QCOMPARE(Components(rigs).RowData(Components(rigs).CurrentRow()), int{kReserveCanopy});
    QCOMPARE(Components(rigs).Text(Components(rigs).CurrentRow(), 2), u"Raven "_s);
  }

  void AnotherRigBeginsWithoutAPlace() {
    RigShop shop;
    Form& rigs = OpenRigScreen({.customer = shop.ann});
    ClickCell(Components(rigs), 1, 1);
    ClickRow(Rigs(rigs), 1);
    QCOMPARE(Components(rigs).CurrentRow(), -1);
  }

  void TheOwnersChangeKeepsTheDisplay() {
    RigShop shop;
    Form& rigs = OpenRigScreen({.customer = shop.ann});
    Control<QRadioButton>(rigs, u"optAll"_s).click();
    shop.Pick(u"smith"_s);
    shop.prompts.Expect(u"Red"_s, u"Change rig owner from Ann Jones to Bob Smith?"_s, Answer::Yes);
    ChooseMenu(rigs, {u"Edit"_s, u"Change rig owner"_s});
    QVERIFY(Control<QRadioButton>(rigs, u"optAll"_s).isChecked());
    QCOMPARE(Rigs(rigs).Count(), 3);
    QCOMPARE(Selected(Rigs(rigs)), u"Red"_s);
    QCOMPARE(Selected(Customers(rigs)), u"Smith, Bob"_s);
  }

  void TheRigWhoseTypeChangesStaysOnShow() {
    RigShop shop;
    Form& rigs = OpenRigScreen({.rig = shop.red, .rigType = 1});
    shop.Pick(u"tandem"_s);
    shop.prompts.Expect(u"Red"_s, u"Change rig type from Sport Rig to Tandem Rig?"_s, Answer::Yes);
    ChooseMenu(rigs, {u"Edit"_s, u"Change rig type"_s});
    QCOMPARE(TextOf(rigs, u"lblRigType"_s), u"Rig Type: Tandem Rig"_s);
    QCOMPARE(Rigs(rigs).Count(), 1);  // the list goes on to be that of sport rigs
  }

  void ACustomersRigIsFoundAmongThoseOfTheType() {
    RigShop shop;
    Form& rigs = OpenRigScreen({.rigType = 3});
    QCOMPARE(Rigs(rigs).Count(), 1);
    ClickRow(Customers(rigs), 0);
    QCOMPARE(Selected(Rigs(rigs)), u"Blue"_s);
  }

  void TheRigScreenGoesToWhatIsAskedFor() {
    RigShop shop;
    Form& rigs = OpenRigScreen({.customer = shop.ann});
    OpenRigs({.customer = shop.bob, .rig = shop.green});
    QCOMPARE(Selected(Rigs(rigs)), u"Green"_s);
    ClickRow(Customers(rigs), 0);
    ClickRow(Rigs(rigs), 1);
    OpenRigs({.customer = shop.ann});  // already there
    QCOMPARE(Selected(Rigs(rigs)), u"Blue"_s);
    OpenRigs({.hideButtons = true});
    QVERIFY(!IsShown(rigs, u"cmdAddRig"_s));
    QCOMPARE(Selected(Rigs(rigs)), u"Blue"_s);
    OpenRigs();
    QVERIFY(IsShown(rigs, u"cmdAddRig"_s));
  }

  void AModalRigScreenStaysWhereItIs() {
    RigShop shop;
    shop.OnRigs(shop.ann, [&](Form& rigs) {
      shop.screens.WhenShown(u"frmDeleteSystem"_s, [](Form& shown) {
        QCOMPARE(TextOf(shown, u"lblTitle"_s), u"Green"_s);
        PressKey(shown, Qt::Key_Escape);
      });
      OpenRigs({.customer = shop.bob, .rig = shop.green});
      QCOMPARE(Selected(Rigs(rigs)), u"Red"_s);
    });
  }

  void ThePlainDisplayNeitherDeletesNorEdits() {
    RigShop shop;
    SetRigComment(shop.red, u"torn"_s);
    const QStringList before = shop.loft.Snapshot();
    shop.screens.WhenShown(u"frmGetRig"_s, [&](Form& form) {
      PressKey(Rigs(form), Qt::Key_Delete);
      QTest::mouseClick(&Control<QWidget>(form, u"lblComments"_s), Qt::LeftButton);
      PressKey(form, Qt::Key_Escape);
    });
    ShowRigs({.rig = shop.red, .hideButtons = true});
    QCOMPARE(shop.Touched(before), QStringList());
  }

  void TheRigThatIsToBeDeletedMayGoMeanwhile() {
    RigShop shop;
    shop.screens.WhenShown(u"frmDeleteSystem"_s, [&](Form& form) {
      SetRigName(shop.green, u"Lime"_s);
      QCOMPARE(TextOf(form, u"lblTitle"_s), u"Lime"_s);
      DeleteRig(shop.green);
      QVERIFY(!form.isVisible());
    });
    QVERIFY(!ConfirmRigDeletion(shop.green));
  }

  void AnInstallationIsOnePiece() {
    RigShop shop;
    const int reserve = RigShop::AddReserve(0);
    SetComponentOwner(reserve, shop.bob);
    shop.AddDone(RepackTaskLibID, Date::FromParts(2026, 2, 1), {shop.container, reserve}, shop.red);
    shop.loft.Run(u"update tblTaskLib set IntervalNumber = 180 where ID = 1"_s);
    OpenRigs({.customer = shop.ann});
    Form& rigs = Open("frmGetRig");
    ClickCell(Components(rigs), Components(rigs).FindRow(kReserveCanopy), 1);
    const QStringList before = shop.loft.Snapshot();
    shop.PressInForm(u"frmNewOrOld"_s, u"cmdDatabase"_s);
    shop.screens.WhenShown(u"frmPickComponent"_s, [](Form& picker) { DoubleClickCell(Components(picker), 0, 0); });
    shop.prompts.AnswerRestWith([](const ShownPrompt&) { return Answer::Yes; });
    Click(rigs, u"cmdEnter"_s);
    QCOMPARE(ComponentRig(reserve), shop.red);
    QCOMPARE(ComponentOwner(reserve), shop.ann);
    QCOMPARE(shop.loft.Rows(u"select rigID, TaskLibID from tblSchedules"_s), QStringList(u"%1|1"_s.arg(shop.red)));
    QCOMPARE(NextUndo()->name, u"Install component"_s);
    QVERIFY(UndoOperation());
    QCOMPARE(shop.Touched(before), QStringList());
    QCOMPARE(Components(rigs).Text(Components(rigs).FindRow(kReserveCanopy), 2), QString());
  }

  // Components.

  void AComponentThatGoesEmptiesItsScreen() {
    RigShop shop;
    shop.screens.WhenShown(u"frmComponent"_s, [&](Form& form) {
      SetComponentRig(shop.canopy, shop.green);
      QCOMPARE(TextOf(form, u"lblRigTitle"_s), u"Green"_s);
      shop.loft.Run(u"delete * from tblComponents where ID = %1"_s.arg(shop.canopy));
      QCOMPARE(TextOf(form, u"txtModel"_s), u"(none)"_s);
      QVERIFY(!IsEnabled(form, u"cmdEdit"_s));
      ChooseMenu(form, {u"History"_s});
      QVERIFY(!Forms::Find(u"frmHistoryForm"_s));
      PressKey(form, Qt::Key_Escape);
    });
    ShowComponent(shop.canopy);
  }

  void AChosenComponentStaysChosen() {
    RigShop shop;
    shop.screens.WhenShown(u"frmPickComponent"_s, [&](Form& form) {
      ClickCell(Components(form), Components(form).FindRow(shop.spare), 2);
      DeleteRig(shop.red);
      const int hers = NewComponent(shop.storm, kMainCanopy, 0, u"S0"_s);
      QVERIFY(Components(form).FindRow(hers) >= 0);
      QCOMPARE(Components(form).RowData(Components(form).CurrentRow()), shop.spare);
      QCOMPARE(ComponentOwner(hers), 0);  // no row was chosen anew
      Click(form, u"cmdSelect"_s);
    });
    QCOMPARE(PickComponent(kMainCanopy), shop.spare);
  }

  void ASerialNumberThatIsTypedStays() {
    RigShop shop;
    shop.screens.WhenShown(u"frmSerialNumber"_s, [&](Form& form) {
      TypeInto(form, u"txtSerial"_s, u"S2"_s);
      NewComponent(shop.storm, kMainCanopy, 0, u"A1"_s);
      QCOMPARE(TextOf(form, u"txtSerial"_s), u"S2"_s);
      QCOMPARE(Control<List>(form, u"lst"_s).Count(), 4);
      Click(form, u"cmdSelect"_s);
    });
    QCOMPARE(PickComponentBySerial(), shop.spare);
  }

  void ALookUpInsideALookUpLeavesTheOuterOneAlone() {
    RigShop shop;
    shop.screens.WhenShown(u"frmSerialNumber"_s, [&](Form& form) {
      TypeInto(form, u"txtSerial"_s, u"S2"_s);
      QCOMPARE(PickComponentBySerial(kContainer, u"J"_s), 0);
      QVERIFY(form.isVisible());
      QCOMPARE(TextOf(form, u"txtSerial"_s), u"S2"_s);
      Click(form, u"cmdSelect"_s);
    });
    QCOMPARE(PickComponentBySerial(), shop.spare);
  }

  // The catalogue and the places.

  void ALocationThatIsTypedStays() {
    RigShop shop;
    const auto add = [&](const char* city) {
      return shop.loft.Add(u"tblLocation"_s, {{u"City"_s, city}, {u"State"_s, "CA"}, {u"TaxRate"_s, 7.0}});
    };
    const int perris = add("Perris");
    shop.screens.WhenShown(u"frmLocation"_s, [&](Form& form) {
      TypeInto(form, u"txtCity"_s, u"Perris Valley"_s);
      add("Lodi");
      QCOMPARE(TextOf(form, u"txtCity"_s), u"Perris Valley"_s);
      QCOMPARE(Control<List>(form, u"lst"_s).Count(), 2);
      Click(form, u"cmdOK"_s);
      TypeInto(form, u"txtCity"_s, u"Hemet"_s);
      shop.loft.Run(u"delete * from tblLocation where ID = %1"_s.arg(perris));
      QCOMPARE(TextOf(form, u"txtCity"_s), u"Hemet"_s);
      Click(form, u"cmdOK"_s);
      Click(form, u"cmdExit"_s);
    });
    ShowLocations(perris);
    QCOMPARE(shop.loft.Rows(u"select City from tblLocation order by ID"_s), QStringList({u"Lodi"_s, u"Hemet"_s}));
  }

  void AServiceLifeThatIsTypedStays() {
    RigShop shop;
    OpenModels({.type = kMainCanopy});
    Form& models = Open("frmComponentModels");
    Control<List>(models, u"lstModels"_s).SelectData(shop.storm);
    Control<QCheckBox>(models, u"chkServiceLife"_s).click();
    TypeInto(models, u"txtServiceLife"_s, u"24"_s);
    AddModel(u"Aurora"_s, kMainCanopy);
    QCOMPARE(Control<List>(models, u"lstModels"_s).Count(), 2);
    QCOMPARE(TextOf(models, u"txtServiceLife"_s), u"24"_s);
    QCOMPARE(ServiceLife(shop.storm), 0);
    shop.prompts.ExpectBox(u"Done"_s, u"Service life saved"_s);
    Click(models, u"cmdSaveServiceLife"_s);
    QCOMPARE(ServiceLife(shop.storm), 24);
  }

  void AMakerThatIsChosenForALinkStaysChosen() {
    RigShop shop;
    shop.loft.Run(u"insert into tblManufacturers (ID, Name) values (1, 'Sun Path')"_s);
    OpenModels({.type = kContainer});
    Form& models = Open("frmComponentModels");
    Control<List>(models, u"lstModels"_s).SelectData(shop.javelin);
    Control<List>(models, u"lstManufacturers"_s).SelectData(1);
    AddModel(u"Vector"_s, kContainer);
    QCOMPARE(Selected(Control<List>(models, u"lstManufacturers"_s)), u"Sun Path"_s);
  }

  void ModelsOfATypeThatHasGoneAreNotAdded() {
    RigShop shop;
    shop.loft.Run(u"insert into tblComponentTypes (ID, Name) values (8, 'Drogue')"_s);
    OpenModels({.type = 8});
    Form& models = Open("frmComponentModels");
    QCOMPARE(TextOf(models, u"cmdAdd"_s), u"&Add new drogue"_s);
    shop.loft.Run(u"delete * from tblComponentTypes where ID = 8"_s);
    QCOMPARE(TextOf(models, u"cmdAdd"_s), u"&Add new container"_s);
  }

  void RigTypesFollowTheComponentTypes() {
    RigShop shop;
    OpenRigTypes();
    Form& types = Open("frmRigTypes");
    Control<List>(types, u"lstType"_s).SelectData(1);
    const QList<int> ticked = Control<List>(types, u"LstComp"_s).TickedData();
    shop.loft.Run(u"insert into tblComponentTypes (ID, Name) values (8, 'Drogue')"_s);
    QCOMPARE(Control<List>(types, u"LstComp"_s).Count(), 7);
    QCOMPARE(Control<List>(types, u"LstComp"_s).TickedData(), ticked);
    QCOMPARE(Selected(Control<List>(types, u"lstType"_s)), u"Sport Rig"_s);
  }

  // The picker.

  void ThePickerKeepsWhatIsTypedAndSelected() {
    RigShop shop;
    shop.screens.WhenShown(u"frmPicker"_s, [&](Form& form) {
      TypeInto(form, u"txt"_s, u"smi"_s);
      RigShop::Named(u"Al Adams"_s);
      QCOMPARE(TextOf(form, u"txt"_s), u"smi"_s);
      QCOMPARE(Control<List>(form, u"lst"_s).Count(), 4);
      Click(form, u"cmdSelect"_s);
    });
    QCOMPARE(PickItem(kPickCustomer).id, shop.bob);
  }

  void ThePickerAddsNoModelTwice() {
    RigShop shop;
    shop.screens.WhenShown(u"frmPicker"_s, [&](Form& form) {
      TypeInto(form, u"txt"_s, u" storm"_s);
      shop.prompts.Expect(u"Add new Main Canopy?"_s,
                          u"Can't find 'storm' anywhere in the Main Canopy database\n\n"
                          "Would you like to add a new Main Canopy?"_s,
                          Answer::Yes);
      shop.prompts.ExpectBox(u"Duplicate Name"_s,
                             u"There is already a Main Canopy named storm\n(Manufacturer not specified)"_s);
      Click(form, u"cmdSelect"_s);
      Click(form, u"cmdSelect"_s);
    });
    QCOMPARE(PickItem(kPickMiscItem, kMainCanopy).id, shop.storm);
    QCOMPARE(shop.loft.Rows(u"select count(*) from tblModels where TypeID = 2"_s), QStringList(u"1"_s));
  }

  void APickerInsideAPickerLeavesTheOuterOneAlone() {
    RigShop shop;
    shop.screens.WhenShown(u"frmPicker"_s, [&](Form& form) {
      TypeInto(form, u"txt"_s, u"smi"_s);
      QCOMPARE(PickItem(kPickRigType).id, kPickCancelled);
      QCOMPARE(form.windowTitle(), u"Select Customer"_s);
      Click(form, u"cmdSelect"_s);
    });
    QCOMPARE(PickItem(kPickCustomer).id, shop.bob);
  }
};

LOFT_TEST_MAIN(TestChangesBeside)
#include "tst_changes_beside.moc"
