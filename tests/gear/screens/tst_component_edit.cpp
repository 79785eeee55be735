#include <QLineEdit>
#include <QPushButton>

#include "gear/component_editor.h"
#include "gear/screens/rig_shop.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

/// The editor of a component and its short form.
class TestComponentEdit : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void EditsAComponent() {
    RigShop shop;
    const QStringList before = shop.loft.Snapshot();
    shop.screens.WhenShown(u"frmComponentEdit"_s, [&](Form& form) {
      QCOMPARE(form.windowTitle(), u"Edit component"_s);
      QCOMPARE(TextOf(form, u"lblSubType"_s), u"Canopy Size:"_s);
      QCOMPARE(TextOf(form, u"txtSerial"_s), u"S1"_s);
      QCOMPARE(TextOf(form, u"txtDom"_s), QString());
      QCOMPARE(TextOf(form, u"txtJumps"_s), QString());
      TypeInto(form, u"txtSubType"_s, u"150"_s);
      TypeInto(form, u"txtColor"_s, u"red and blue"_s);
      TypeInto(form, u"txtJumps"_s, u"1,000"_s);
      TypeInto(form, u"txtDom"_s, u"soon"_s);
      shop.prompts.ExpectBox(u"DOM is invalid!"_s, u"soon is not a valid date"_s);
      Click(form, u"cmdSave"_s);
      TypeInto(form, u"txtDom"_s, u"1\\14\\2015"_s);
      TypeInto(form, u"txtJumps"_s, u"9999999999"_s);
      shop.prompts.ExpectBox(kProgramTitle, u"Number jumps field is too high"_s);
      Click(form, u"cmdSave"_s);
      TypeInto(form, u"txtJumps"_s, u"1,000"_s);
      Picture(form, u"frmComponentEdit"_s);
      Click(form, u"cmdSave"_s);
    });
    QCOMPARE(EditComponent(shop.canopy), shop.canopy);
    QCOMPARE(shop.loft.ChangesSince(before),
             QStringList({u"-tblComponents|2|2|2|0|| |1||0|0|S1|1|0|"_s,
                          u"+tblComponents|2|2|2|42018|150| |1|red and blue|0|1000|S1|1|0|"_s}));
  }

  void CancelWritesNothing() {
    RigShop shop;
    const QStringList before = shop.loft.Snapshot();
    shop.screens.WhenShown(u"frmComponentEdit"_s, [](Form& form) {
      TypeInto(form, u"txtSerial"_s, u"X"_s);
      PressKey(form, Qt::Key_Escape);
    });
    QCOMPARE(EditComponent(shop.canopy), 0);
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void ASerialInUseShowsWhoHasIt() {
    RigShop shop;
    const QStringList before = shop.loft.Snapshot();
    shop.screens.WhenShown(u"frmComponentEdit"_s, [&](Form& form) {
      TypeInto(form, u"txtSerial"_s, u"s1 "_s);
      shop.prompts.ExpectBox(kProgramTitle, u"That serial number is already being used\nby the component shown here"_s);
      Click(form, u"cmdSave"_s);
      QVERIFY(form.isVisible());
      Click(form, u"cmdCancel"_s);
    });
    shop.screens.WhenShown(u"frmComponentVerify"_s, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"Serial number already exists for this model"_s);
      QCOMPARE(TextOf(form, u"lblSerial"_s), u"S1"_s);
      QCOMPARE(TextOf(form, u"lblRig"_s), u"Red"_s);
      QVERIFY(!Control<QPushButton>(form, u"cmdYes"_s).isVisible());
      QCOMPARE(TextOf(form, u"cmdNo"_s), u"Exit"_s);
      Click(form, u"cmdNo"_s);
    });
    QCOMPARE(EditComponent(shop.spare), 0);
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void SeveralMatchesAreRefused() {
    RigShop shop;
    NewComponent(shop.storm, kMainCanopy, 0, u"S1"_s);
    shop.screens.WhenShown(u"frmComponentEdit"_s, [&](Form& form) {
      TypeInto(form, u"txtSerial"_s, u"S1"_s);
      shop.prompts.ExpectBox(kProgramTitle, u"there are 2 matching s/n for this model"_s);
      Click(form, u"cmdSave"_s);
      Click(form, u"cmdCancel"_s);
    });
    EditComponent(shop.spare);
    QCOMPARE(ComponentSerial(shop.spare), u"S2"_s);
  }

  void EnterGoesFromBoxToBox() {
    RigShop shop;
    shop.screens.WhenShown(u"frmComponentEdit"_s, [](Form& form) {
      PressKey(form, u"txtSubType"_s, Qt::Key_Return);
      QCOMPARE(form.focusWidget(), &Control<QWidget>(form, u"txtSerial"_s));
      PressKey(form, u"txtSerial"_s, Qt::Key_Down);
      QCOMPARE(form.focusWidget(), &Control<QWidget>(form, u"txtColor"_s));
      PressKey(form, u"txtColor"_s, Qt::Key_Up);
      QCOMPARE(form.focusWidget(), &Control<QWidget>(form, u"txtSerial"_s));
      QVERIFY(form.isVisible());
      Click(form, u"cmdCancel"_s);
    });
    QCOMPARE(EditComponent(shop.canopy), 0);
  }

  void AComponentThatHasGoneIsNotEdited() {
    RigShop shop;
    QCOMPARE(EditComponent(99), 0);
  }

  void ANewComponentIsEntered() {
    RigShop shop;
    const QStringList before = shop.loft.Snapshot();
    shop.screens.WhenShown(u"frmComponentEdit"_s, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"Enter new main canopy"_s);
      QCOMPARE(TextOf(form, u"lblModel"_s), u"Storm"_s);
      QCOMPARE(TextOf(form, u"lblOwner"_s), u"none"_s);
      QCOMPARE(TextOf(form, u"lblRigTitle"_s), u"none"_s);
      QCOMPARE(TextOf(form, u"txtSerial"_s), u"S7"_s);
      TypeInto(form, u"txtSerial"_s, u"s1é '\""_s);
      TypeInto(form, u"txtDom"_s, u"1995"_s);
      Click(form, u"cmdSave"_s);
    });
    const EnteredComponent entered = EnterNewComponent(shop.storm, u"S7"_s);
    QCOMPARE(entered.id, 4);
    QVERIFY(entered.isNew);
    QCOMPARE(shop.loft.ChangesSince(before),
             QStringList(u"+tblComponents|4|2|2|%1|| |0||0|0|s1é '\"|0|0|"_s.arg(Date::FromParts(1995, 1, 1).Days())));
  }

  void ANewComponentMayGiveWayToTheOneThatHasItsSerial() {
    RigShop shop;
    const QStringList before = shop.loft.Snapshot();
    const QString question =
        u"There already is a Storm main canopy\nwith serial number s1 in the component database. \n\n"
        "Would you like to see it?"_s;
    shop.screens.WhenShown(u"frmComponentEdit"_s, [&](Form& form) {
      TypeInto(form, u"txtSerial"_s, u" s1 "_s);
      shop.prompts.Expect(u"Component already exists"_s, question, Answer::No);
      Click(form, u"cmdSave"_s);
      QVERIFY(form.isVisible());
      shop.prompts.Expect(u"Component already exists"_s, question, Answer::Yes);
      Click(form, u"cmdSave"_s);
    });
    const EnteredComponent entered = EnterNewComponent(shop.storm);
    QCOMPARE(entered.id, shop.canopy);
    QVERIFY(!entered.isNew);
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void ArticlesFollowTheModel() {
    RigShop shop;
    const int omega = AddModel(u"Omega"_s, kAad);
    NewComponent(omega, kAad, 0, u"1"_s);
    shop.screens.WhenShown(u"frmComponentEdit"_s, [&](Form& form) {
      QCOMPARE(form.windowTitle(), u"Enter new AAD"_s);
      QCOMPARE(TextOf(form, u"lblSubType"_s), u"Model sub type:"_s);
      TypeInto(form, u"txtSerial"_s, u"1"_s);
      shop.prompts.Expect(u"Component already exists"_s,
                          u"There already is an Omega AAD\nwith serial number 1 in the component database. \n\n"
                          "Would you like to see it?"_s,
                          Answer::Yes);
      Click(form, u"cmdSave"_s);
    });
    EnterNewComponent(omega);
  }

  void OfAnotherModelTheSerialIsFree() {
    RigShop shop;
    const int pilot = AddModel(u"Pilot"_s, kMainCanopy);
    shop.screens.WhenShown(u"frmComponentEdit"_s, [](Form& form) {
      TypeInto(form, u"txtSerial"_s, u"S1"_s);
      Click(form, u"cmdSave"_s);
    });
    QCOMPARE(EnterNewComponent(pilot).id, 4);
  }

  void CaseAndOuterBlanksMakeNoOtherSerial() {
    RigShop shop;
    NewComponent(shop.storm, kMainCanopy, 0, u"É-7 "_s);
    shop.screens.WhenShown(u"frmComponentEdit"_s, [&](Form& form) {
      TypeInto(form, u"txtSerial"_s, u"é-7"_s);
      shop.prompts.ExpectBox(kProgramTitle, u"That serial number is already being used\nby the component shown here"_s);
      shop.PressInForm(u"frmComponentVerify"_s, u"cmdNo"_s);
      Click(form, u"cmdSave"_s);
      TypeInto(form, u"txtSerial"_s, u"   "_s);
      Click(form, u"cmdSave"_s);
    });
    QCOMPARE(EditComponent(shop.spare), shop.spare);
    shop.PressInForm(u"frmComponentEdit"_s, u"cmdSave"_s);
    QCOMPARE(EnterNewComponent(shop.storm).id, 5);
  }

  void ARowThatGoesMeanwhileIsTold() {
    RigShop shop;
    shop.screens.WhenShown(u"frmComponentEdit"_s, [&](Form& form) {
      shop.loft.Run(u"delete from tblComponents where ID = %1"_s.arg(shop.spare));
      shop.prompts.ExpectBox(u"Darn!"_s, u"you shouldn't be here - updating record but no record"_s);
      Click(form, u"cmdSave"_s);
    });
    QCOMPARE(EditComponent(shop.spare), 0);
  }

  void AComponentWithoutAModelIsTold() {
    RigShop shop;
    SetComponentModel(shop.spare, 0);
    shop.screens.WhenShown(u"frmComponentEdit"_s, [&](Form& form) {
      shop.prompts.ExpectBox(kProgramTitle, u"ModelID = 0"_s);
      Click(form, u"cmdSave"_s);
    });
    QCOMPARE(EditComponent(shop.spare), shop.spare);
    QCOMPARE(ComponentTypeOf(shop.spare), 0);
  }

  void TheModelsTypeWins() {
    RigShop shop;
    SetComponentType(shop.spare, kAad);
    shop.PressInForm(u"frmComponentEdit"_s, u"cmdSave"_s);
    EditComponent(shop.spare);
    QCOMPARE(ComponentTypeOf(shop.spare), int{kMainCanopy});
  }

  void TheShortFormEditsFourFields() {
    RigShop shop;
    const int pilot = AddModel(u"Pilot & Co"_s, kMainCanopy);
    const QStringList before = shop.loft.Snapshot();
    shop.screens.WhenShown(u"frmModel"_s, [&](Form& form) {
      QCOMPARE(TextOf(form, u"lblModel"_s), u"&Model"_s);
      QCOMPARE(TextOf(form, u"lblSerial"_s), u"Serial &number:"_s);
      QCOMPARE(TextOf(form, u"lblDom"_s), u"Mfg &Date:"_s);
      QCOMPARE(TextOf(form, u"lblSubType"_s), u"Canopy Size:"_s);
      QCOMPARE(TextOf(form, u"cmdModel"_s), u"Storm"_s);
      QCOMPARE(TextOf(form, u"txtSerial"_s), u"S1"_s);
      shop.Pick(u"pilot"_s);
      Click(form, u"cmdModel"_s);
      QCOMPARE(TextOf(form, u"cmdModel"_s), u"Pilot && Co"_s);
      QCOMPARE(shop.loft.ChangesSince(before), QStringList());
      TypeInto(form, u"txtSerial"_s, u"o'S"_s);
      PressKey(form, u"txtSerial"_s, Qt::Key_Return);
      QCOMPARE(form.focusWidget(), &Control<QWidget>(form, u"txtDom"_s));
      TypeInto(form, u"txtDom"_s, u"1\\14\\2015"_s);
      PressKey(form, u"txtDom"_s, Qt::Key_Return);
      TypeInto(form, u"txtSubType"_s, u"150"_s);
      Picture(form, u"frmModel"_s);
      PressKey(form, u"txtSubType"_s, Qt::Key_Return);
    });
    QVERIFY(EditComponentQuickly(shop.canopy));
    QCOMPARE(shop.loft.ChangesSince(before),
             QStringList({u"-tblComponents|2|2|2|0|| |1||0|0|S1|1|0|"_s,
                          u"+tblComponents|2|%1|2|42018|150| |1||0|0|o'S|1|0|"_s.arg(pilot)}));
  }

  void TheShortFormRefusesWhatTheEditorRefuses() {
    RigShop shop;
    const QStringList before = shop.loft.Snapshot();
    shop.screens.WhenShown(u"frmModel"_s, [&](Form& form) {
      TypeInto(form, u"txtSerial"_s, u"s1"_s);
      TypeInto(form, u"txtDom"_s, u"1849"_s);
      shop.prompts.ExpectBox(kProgramTitle, u"That serial number is already being used\nby the component shown here"_s);
      shop.PressInForm(u"frmComponentVerify"_s, u"cmdNo"_s);
      Click(form, u"cmdSave"_s);
      TypeInto(form, u"txtSerial"_s, u"S9"_s);
      shop.prompts.ExpectBox(u"Invalid date"_s, u"1849 is not a valid date"_s);
      Click(form, u"cmdSave"_s);
      QVERIFY(form.isVisible());
      PressKey(form, Qt::Key_Escape);
    });
    QVERIFY(!EditComponentQuickly(shop.spare));
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
    QVERIFY(!EditComponentQuickly(99));
  }

  void TheShortFormNamesASubTypeElsewhere() {
    RigShop shop;
    shop.screens.WhenShown(u"frmModel"_s, [&](Form& form) {
      QCOMPARE(TextOf(form, u"lblSubType"_s), u"Model sub type:"_s);
      shop.Leave(u"frmPicker"_s);
      Click(form, u"cmdModel"_s);
      QCOMPARE(TextOf(form, u"cmdModel"_s), u"Javelin Odyssey"_s);
      Click(form, u"cmdCancel"_s);
    });
    EditComponentQuickly(shop.container);
  }
};

LOFT_TEST_MAIN(TestComponentEdit)
#include "tst_component_edit.moc"
