#include <QPushButton>

#include "core/shell/home_commands.h"
#include "gear/rig_rules.h"
#include "gear/screens/rig_shop.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

QList<int> Ids(Form& form) {
  QList<int> ids;
  for (int row = 0; row < Components(form).RowCount(); ++row) ids << Components(form).RowData(row);
  return ids;
}

/// The picker of components of a type, as long as a routine acts on it; what was chosen.
int OnPicker(RigShop& shop, int type, const std::function<void(Form&)>& act, int owner = 0) {
  shop.screens.WhenShown(u"frmPickComponent"_s, act);
  return PickComponent(type, owner);
}

int OnSerials(RigShop& shop, int type, const QString& serial, const std::function<void(Form&)>& act) {
  shop.screens.WhenShown(u"frmSerialNumber"_s, act);
  return PickComponentBySerial(type, serial);
}

}  // namespace

/// How a component is found: by a typed serial number, from the database, in the list of serial numbers.
class TestComponentScreens : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void ATypedSerialAnswersForTheEmptyPlace() {
    RigShop shop;
    shop.screens.WhenShown(u"frmNewOrOld"_s, [&](Form& form) {
      QCOMPARE(form.windowTitle(), u"New main canopy"_s);
      Click(form, u"cmdEnter"_s);
      QVERIFY(form.isVisible());
      TypeInto(form, u"txtSerial"_s, u"X9"_s);
      const QString text =
          u"Serial number X9 is not found in the Main Canopy database\n"
          "Would you like to create a new Main Canopy using that serial number?"_s;
      shop.prompts.Expect(u"Add new Main Canopy?"_s, text, Answer::No)
          .WithButtons(Buttons::YesNo)
          .WithPreset(Answer::No);
      Click(form, u"cmdEnter"_s);
      QVERIFY(form.isVisible());
      shop.prompts.Expect(u"Add new Main Canopy?"_s, text, Answer::Yes);
      Click(form, u"cmdEnter"_s);
    });
    QCOMPARE(AskNewOrOld(kMainCanopy), u"new with s/n:X9"_s);
    shop.screens.WhenShown(u"frmNewOrOld"_s, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"New Component"_s);
      PressKey(form, Qt::Key_Escape);
    });
    QCOMPARE(AskNewOrOld(0), u"cancel"_s);
  }

  void SeveralMatchesMayBeLeft() {
    RigShop shop;
    NewComponent(AddModel(u"Pilot"_s, kMainCanopy), kMainCanopy, 0, u"s1"_s);
    shop.screens.WhenShown(u"frmNewOrOld"_s, [&](Form& form) {
      TypeInto(form, u"txtSerial"_s, u"S1 "_s);
      shop.prompts.Expect(u"Serial number S1 has 2 matches"_s,
                          u"The Main Canopy database shows 2 components with that serial number\n"
                          "Would you like to see them?"_s,
                          Answer::No);
      PressKey(form, u"txtSerial"_s, Qt::Key_Return);
    });
    QCOMPARE(AskNewOrOld(kMainCanopy), u"cancel"_s);
  }

  void ListsTheComponentsOfAType() {
    RigShop shop;
    SetComponentOwner(shop.canopy, 0);
    const int pilot = NewComponent(AddModel(u"Pilot"_s, kMainCanopy), kMainCanopy, 0);
    shop.loft.Run(u"update tblComponents set DOM = #1/14/2015# where ID = %1"_s.arg(shop.spare));
    const int picked = OnPicker(shop, kMainCanopy, [&](Form& form) {
      QCOMPARE(form.windowTitle(), u"Select component"_s);
      QCOMPARE(HeadingsOf(Components(form)),
               QStringList({u"Model"_s, u"Rig Name"_s, u"Owner"_s, u"Serial Number"_s, u"Date of Mfg"_s}));
      QCOMPARE(RowsOf(Components(form)), QStringList({u"Storm |Red|(none)|S1|||2|0|1"_s,
                                                      u"Storm |(no rig)|Jones, Ann|S2|01/14/2015|20150114|3|1|0"_s,
                                                      u"Pilot |(no rig)|(none)|(none)|||4|0|0"_s}));
      QTest::qWait(0);
      Picture(form, u"frmPickComponent"_s);
      shop.prompts.ExpectBox(u"Nothing selected"_s, u"Please select a component"_s);
      Click(form, u"cmdSelect"_s);
      shop.prompts.ExpectBox(u"Nothing selected"_s, u"Please select a component"_s);
      PressKey(Components(form), Qt::Key_Delete);
      PressKey(form, u"optInRig"_s, Qt::Key_Space);
      QCOMPARE(Ids(form), QList<int>({shop.canopy}));
      PressKey(form, u"optNotInRig"_s, Qt::Key_Space);
      QCOMPARE(Ids(form), QList<int>({shop.spare, pilot}));
      PressKey(form, u"optBoth"_s, Qt::Key_Space);
      PressKey(form, u"chkAllTypes"_s, Qt::Key_Space);
      QCOMPARE(Ids(form), QList<int>({shop.container, shop.canopy, shop.spare, pilot}));
      ClickCell(Components(form), 2, 0);
      PressKey(Components(form), Qt::Key_Return);
    });
    QCOMPARE(picked, shop.spare);
    QCOMPARE(OnPicker(shop, kMainCanopy, [](Form& form) { PressKey(form, Qt::Key_Escape); }), 0);
    QCOMPARE(OnPicker(shop, kMainCanopy, [](Form& form) { Click(form, u"cmdCancel"_s); }), 0);
  }

  void AnOwnerLimitsTheList() {
    RigShop shop;
    const int pilot = NewComponent(AddModel(u"Pilot"_s, kMainCanopy), kMainCanopy, 0);
    SetComponentOwner(pilot, shop.bob);
    OnPicker(
        shop, kMainCanopy,
        [&](Form& form) {
          QCOMPARE(Ids(form), QList<int>({pilot}));
          QCOMPARE(TextOf(form, u"lblOwner"_s), u"Customer: Bob Smith"_s);
          PressKey(form, u"optAnyOwner"_s, Qt::Key_Space);
          QCOMPARE(Ids(form).size(), 3);
          shop.Pick(u"jones"_s);
          Click(form, u"cmdSelectCustomer"_s);
          QCOMPARE(Ids(form), QList<int>({shop.canopy, shop.spare}));
          QCOMPARE(TextOf(form, u"lblOwner"_s), u"Customer: Ann Jones"_s);
          PressKey(form, Qt::Key_Escape);
        },
        shop.bob);
    const int picked = OnPicker(
        shop, 0,
        [&](Form& form) {
          QCOMPARE(Ids(form), QList<int>({shop.container, shop.canopy, shop.spare}));
          ClickCell(Components(form), 0, 0);
          Click(form, u"cmdSelect"_s);
        },
        shop.ann);
    QCOMPARE(picked, shop.container);
    OnPicker(shop, kMainCanopy, [&](Form& form) {
      QCOMPARE(TextOf(form, u"lblOwner"_s), u"Owner:  (none)"_s);
      shop.Leave(u"frmPicker"_s);
      PressKey(form, u"optSelectedOwner"_s, Qt::Key_Space);
      QCOMPARE(Ids(form).size(), 3);
      shop.Pick(u"smith"_s);
      PressKey(form, u"optSelectedOwner"_s, Qt::Key_Space);
      QCOMPARE(Ids(form), QList<int>({pilot}));
      PressKey(form, Qt::Key_Escape);
    });
  }

  void AModelLimitsTheList() {
    RigShop shop;
    const int pilot = NewComponent(AddModel(u"Pilot"_s, kMainCanopy), kMainCanopy, 0);
    OnPicker(shop, kMainCanopy, [&](Form& form) {
      const QString one = u"Would you like to show a selected model only?"_s;
      shop.prompts.Expect(u"Show all models?"_s, one, Answer::No);
      Click(form, u"lblModels"_s);
      QCOMPARE(Ids(form).size(), 3);
      shop.Pick(u"pilot"_s);
      shop.prompts.Expect(u"Show all models?"_s, one, Answer::Yes);
      Click(form, u"lblModels"_s);
      QCOMPARE(Ids(form), QList<int>({pilot}));
      QCOMPARE(TextOf(form, u"lblModels"_s), u"Showing Pilot only"_s);
      shop.prompts.Expect(u"Show all models?"_s, u"Would you like to show all models?"_s, Answer::Yes);
      Click(form, u"lblModels"_s);
      QCOMPARE(Ids(form).size(), 3);
      QCOMPARE(TextOf(form, u"lblModels"_s), u"Showing all models"_s);
      PressKey(form, Qt::Key_Escape);
    });
  }

  void HeadingsSortDatesByTheCalendar() {
    RigShop shop;
    shop.loft.Run(u"update tblComponents set DOM = #2/1/2015# where ID = %1"_s.arg(shop.canopy));
    shop.loft.Run(u"update tblComponents set DOM = #1/1/2016# where ID = %1"_s.arg(shop.spare));
    OnPicker(shop, kMainCanopy, [&](Form& form) {
      ClickHeading(Components(form), 4);
      QCOMPARE(Ids(form), QList<int>({shop.canopy, shop.spare}));
      ClickHeading(Components(form), 4);
      QCOMPARE(Ids(form), QList<int>({shop.spare, shop.canopy}));
      PressKey(form, Qt::Key_Escape);
    });
  }

  void ChoosingARowRepairsTheOwner() {
    RigShop shop;
    SetComponentOwner(shop.canopy, 0);
    SetComponentOwner(shop.spare, 0);
    OnPicker(shop, kMainCanopy, [&](Form& form) {
      QCOMPARE(ComponentOwner(shop.canopy), 0);
      ClickCell(Components(form), 0, 0);
      QCOMPARE(ComponentOwner(shop.canopy), shop.ann);
      ClickCell(Components(form), 1, 0);
      QCOMPARE(ComponentOwner(shop.spare), 0);
      PressKey(form, Qt::Key_Escape);
    });
  }

  void ALostTypeIsAskedFor() {
    RigShop shop;
    const int lost = NewComponent(AddModel(u"Vigil"_s, kAad), 0, 0, u"V1"_s);
    const QString told =
        u"This component has lost its component type\n\n     Vigil \n\n"
        "Please select a component type on the next screen"_s;
    OnPicker(shop, 0, [&](Form& form) {
      auto& grid = Components(form);
      QCOMPARE(Ids(form).first(), lost);
      shop.prompts.ExpectBox(kProgramTitle, told);
      shop.Leave(u"frmPicker"_s);
      shop.prompts.ExpectBox(kProgramTitle, u"You must select a component type"_s);
      ClickCell(grid, 0, 0);
      ClickCell(grid, 1, 0);
      shop.prompts.ExpectBox(kProgramTitle, told);
      shop.Pick(u"aad"_s);
      shop.prompts.Expect(kProgramTitle, u"Vigil  = AAD?\nIs this correct?"_s, Answer::No);
      ClickCell(grid, 0, 0);
      QCOMPARE(ComponentTypeOf(lost), 0);
      ClickCell(grid, 1, 0);
      shop.prompts.ExpectBox(kProgramTitle, told);
      shop.Pick(u"aad"_s);
      shop.prompts.Expect(kProgramTitle, u"Vigil  = AAD?\nIs this correct?"_s, Answer::Yes);
      ClickCell(grid, 0, 0);
      QCOMPARE(ComponentTypeOf(lost), int{kAad});
      PressKey(form, Qt::Key_Escape);
    });
  }

  void ARowChosenWhileOneIsChosenIsTold() {
    RigShop shop;
    NewComponent(AddModel(u"Vigil"_s, kAad), 0, 0, u"V1"_s);
    OnPicker(shop, 0, [&](Form& form) {
      shop.prompts
          .ExpectBox(kProgramTitle,
                     u"This component has lost its component type\n\n     Vigil \n\n"
                     "Please select a component type on the next screen"_s)
          .Meanwhile([&] { Components(form).SelectRow(1); });
      shop.prompts.ExpectBox(kProgramTitle, u"ignoreme is already true - look into this"_s);
      shop.Leave(u"frmPicker"_s);
      shop.prompts.ExpectBox(kProgramTitle, u"You must select a component type"_s);
      ClickCell(Components(form), 0, 0);
      PressKey(form, Qt::Key_Escape);
    });
  }

  void SelectingPutsTheTypeRight() {
    RigShop shop;
    SetComponentType(shop.spare, kAad);
    const int picked = OnPicker(shop, kAad, [](Form& form) { DoubleClickCell(Components(form), 0, 0); });
    QCOMPARE(picked, shop.spare);
    QCOMPARE(ComponentTypeOf(shop.spare), int{kMainCanopy});
  }

  void DeletesAComponentThatNothingUses() {
    RigShop shop;
    const QStringList before = shop.loft.Snapshot();
    OnPicker(shop, kMainCanopy, [&](Form& form) {
      ClickCell(Components(form), 1, 0);
      const QString question = u"Are you sure you want to delete Storm ?"_s;
      shop.prompts.Expect(u"Delete Main Canopy"_s, question, Answer::No)
          .WithButtons(Buttons::YesNo)
          .WithPreset(Answer::No);
      PressKey(Components(form), Qt::Key_Delete);
      QCOMPARE(shop.Touched(before), QStringList());
      shop.prompts.Expect(u"Delete Main Canopy"_s, question, Answer::Yes);
      PressKey(Components(form), Qt::Key_Delete);
      QCOMPARE(Ids(form), QList<int>({shop.canopy}));
      PressKey(form, Qt::Key_Escape);
    });
    QCOMPARE(shop.Touched(before), QStringList(u"-tblComponents|3"_s));
  }

  void DeletingAUsedComponentTakesItsRowsAndNoOthers() {
    RigShop shop;
    for (int component : {shop.canopy, shop.container}) {
      shop.loft.Add(u"tblJobComponents"_s, {{u"JobID"_s, 1}, {u"ComponentID"_s, component}});
      shop.loft.Add(u"tblTaskComponents"_s, {{u"TaskID"_s, 1}, {u"CompID"_s, component}});
      shop.loft.Add(u"tblSchedules"_s, {{u"rigID"_s, shop.red}, {u"ComponentID"_s, component}});
    }
    const QStringList before = shop.loft.Snapshot();
    const QString question =
        u"This item, Storm , is being used:\n    as part of a rig\n    is used in one or more jobs\n"
        "    is used in one or more tasks\n    is used in one or more schedules\n"
        "Deleting this component will affect the above items\n(You can see a list of these from the REPORTS menu)\n"
        "Are you sure you want to delete this component?\n(not recommended)"_s;
    OnPicker(shop, kMainCanopy, [&](Form& form) {
      ClickCell(Components(form), 0, 0);
      shop.prompts.Expect(u"Deleting NOT recommended"_s, question, Answer::No)
          .WithButtons(Buttons::YesNo)
          .WithPreset(Answer::No);
      PressKey(Components(form), Qt::Key_Delete);
      QCOMPARE(shop.Touched(before), QStringList());
      shop.prompts.Expect(u"Deleting NOT recommended"_s, question, Answer::Yes);
      PressKey(Components(form), Qt::Key_Delete);
      PressKey(form, Qt::Key_Escape);
    });
    QCOMPARE(shop.Touched(before), QStringList({u"-tblComponents|2"_s, u"-tblJobComponents|1"_s, u"-tblSchedules|1"_s,
                                                u"-tblTaskComponents|1"_s}));
  }

  void HidingThePhotoIsRemembered() {
    RigShop shop;
    OnPicker(shop, kMainCanopy, [](Form& form) {
      QVERIFY(IsShown(form, u"imageComponent"_s));
      Click(form, u"chkHidePhoto"_s);
      QVERIFY(!IsShown(form, u"imageComponent"_s));
      PressKey(form, Qt::Key_Escape);
    });
    QVERIFY(PhotosAreHidden());
  }

  void LooksUpASerial() {
    RigShop shop;
    NewComponent(AddModel(u"Vigil"_s, kAad), kAad, 0, u"S10"_s);
    NewComponent(shop.storm, kMainCanopy, 0, QString());
    const int picked = OnSerials(shop, kMainCanopy, u"S1"_s, [&](Form& form) {
      QCOMPARE(form.windowTitle(), u"Serial Number Look Up"_s);
      auto& serials = Control<List>(form, u"lst"_s);
      QCOMPARE(serials.Count(), 2);
      QCOMPARE(Selected(serials), u"S1"_s);
      QCOMPARE(TextOf(form, u"lblModel"_s), u"Storm "_s);
      QCOMPARE(TextOf(form, u"lblOwner"_s), u"Ann Jones"_s);
      QCOMPARE(TextOf(form, u"lblType"_s), u"Main Canopy"_s);
      QCOMPARE(TextOf(form, u"lblDom"_s), u"(not entered)"_s);
      QCOMPARE(TextOf(form, u"lblRig"_s), u"Red"_s);
      QVERIFY(!IsShown(form, u"lblNoSystem"_s));
      TypeInto(form, u"txtSerial"_s, u" s2"_s);
      QCOMPARE(TextOf(form, u"lblSerial"_s), u"S2"_s);
      QVERIFY(IsShown(form, u"lblNoSystem"_s));
      QCOMPARE(TextOf(form, u"lblNoSystem"_s), u"This component is not part of a system"_s);
      Picture(form, u"frmSerialNumber"_s);
      shop.prompts.ExpectBox(u"No rig"_s, u"This main canopy isn't part of a rig"_s);
      Click(form, u"cmdShowRig"_s);
      Click(form, u"chkAllTypes"_s);
      QCOMPARE(serials.Count(), 4);
      Click(form, u"cmdSelect"_s);
    });
    QCOMPARE(picked, shop.spare);
  }

  void QuotesAccentsAndCaseAreFound() {
    RigShop shop;
    const int accented = NewComponent(shop.storm, kMainCanopy, 0, u"é'7\""_s);
    const int picked = OnSerials(shop, 0, QString(), [](Form& form) {
      TypeInto(form, u"txtSerial"_s, u"É'"_s);
      QCOMPARE(TextOf(form, u"lblSerial"_s), u"é'7\""_s);
      Click(form, u"cmdSelect"_s);
    });
    QCOMPARE(picked, accented);
  }

  void EnterTakesWhatWasTypedAndNothingElse() {
    RigShop shop;
    const int picked = OnSerials(shop, kMainCanopy, u"S1"_s, [](Form& form) {
      TypeInto(form, u"txtSerial"_s, u"s2x"_s);
      QCOMPARE(TextOf(form, u"lblSerial"_s), u"S2"_s);
      PressKey(form, u"txtSerial"_s, Qt::Key_Return);
      QVERIFY(form.isVisible());
      TypeInto(form, u"txtSerial"_s, u"s2"_s);
      PressKey(form, u"txtSerial"_s, Qt::Key_Return);
    });
    QCOMPARE(picked, shop.spare);
    QCOMPARE(OnSerials(shop, kMainCanopy, u"S1"_s,
                       [](Form& form) { PressKey(Control<List>(form, u"lst"_s), Qt::Key_Return); }),
             shop.canopy);
  }

  void TheComponentAndItsRigAreShown() {
    RigShop shop;
    const int picked = OnSerials(shop, kMainCanopy, u"S1"_s, [&](Form& form) {
      shop.screens.WhenShown(u"frmComponent"_s, [&](Form& component) {
        shop.screens.WhenShown(u"frmComponentEdit"_s, [](Form& editor) {
          TypeInto(editor, u"txtSerial"_s, u"S5"_s);
          Click(editor, u"cmdSave"_s);
        });
        Click(component, u"cmdEdit"_s);
        Click(component, u"cmdExit"_s);
      });
      Click(form, u"cmdEdit"_s);
      QCOMPARE(Selected(Control<List>(form, u"lst"_s)), u"S5"_s);
      shop.screens.WhenShown(u"frmGetRig"_s, [](Form& rigs) {
        QCOMPARE(Selected(Rigs(rigs)), u"Red"_s);
        PressKey(rigs, Qt::Key_Escape);
      });
      Click(form, u"cmdShowRig"_s);
      PressKey(form, Qt::Key_Escape);
    });
    QCOMPARE(picked, 0);
  }

  void TheHomePageLooksUpASerialToo() {
    RigShop shop;
    const auto lookUp = [] {
      for (const MenuLine& line : MainMenu())
        if (line.caption == "Serial number look up"_L1) line.run();
    };
    shop.screens.WhenShown(u"frmSerialNumber"_s, [](Form& form) {
      QCOMPARE(Control<List>(form, u"lst"_s).Count(), 3);
      TypeInto(form, u"txtSerial"_s, u"j"_s);
      Click(form, u"cmdSelect"_s);
    });
    shop.screens.WhenShown(u"frmComponent"_s, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"Container"_s);
      PressKey(form, Qt::Key_Escape);
    });
    lookUp();
    shop.Leave(u"frmSerialNumber"_s);
    lookUp();
  }

  void NothingSelectedIsTold() {
    RigShop shop;
    const int picked = OnSerials(shop, kAad, QString(), [&](Form& form) {
      shop.prompts.ExpectBox(u"Nothing selected"_s, u"You must select a component first"_s);
      Click(form, u"cmdEdit"_s);
      Click(form, u"cmdSelect"_s);
      QVERIFY(form.isVisible());
      Click(form, u"cmdExit"_s);
    });
    QCOMPARE(picked, 0);
  }
};

LOFT_TEST_MAIN(TestComponentScreens)
#include "tst_component_screens.moc"
