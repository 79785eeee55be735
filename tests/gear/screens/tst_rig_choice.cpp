#include <QPushButton>

#include "gear/rig_rules.h"
#include "gear/screens/rig_shop.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

/// Choosing a rig, and the small forms that show one.
class TestRigChoice : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void PicksARig() {
    RigShop shop;
    shop.screens.WhenShown(u"frmPickRig"_s, [&](Form& form) {
      QCOMPARE(form.windowTitle(), u"Select rig"_s);
      QCOMPARE(Selected(Rigs(form)), u"Blue"_s);
      ClickRow(Rigs(form), 0);
      QTest::qWait(0);
      Picture(form, u"frmPickRig"_s);
      shop.prompts.ExpectBox(u"Sorry......."_s, u"Photo disabled during rig selection"_s);
      QTest::mouseClick(&Control<QLabel>(form, u"lblRigPhoto"_s), Qt::LeftButton);
      Click(form, u"cmdSelect"_s);
    });
    int rig = shop.blue;
    int customer = shop.ann;
    QVERIFY(PickRig(rig, customer));
    QCOMPARE(rig, shop.red);
    QCOMPARE(customer, shop.ann);
  }

  void NoChoiceIsNoRig() {
    RigShop shop;
    RigShop::Named(u"Cid Young"_s);
    int rig = shop.red;
    int customer = shop.ann;
    shop.screens.WhenShown(u"frmPickRig"_s, [&](Form& form) {
      ClickRow(Customers(form), 2);
      shop.prompts.ExpectBox(u"Nothing selected"_s, u"You must select a rig"_s);
      Click(form, u"cmdSelect"_s);
      Click(form, u"cmdCancel"_s);
    });
    QVERIFY(!PickRig(rig, customer));
    QCOMPARE(rig, 0);
    QCOMPARE(customer, 0);
    shop.Leave(u"frmPickRig"_s);
    QVERIFY(!PickRig(rig, customer));
  }

  void AFilteredChoiceStaysFiltered() {
    RigShop shop;
    int rig = 0;
    int customer = 0;
    shop.screens.WhenShown(u"frmPickRig"_s, [&](Form& form) {
      QCOMPARE(Rigs(form).Count(), 2);
      QCOMPARE(TextOf(form, u"lblDisplayRigType"_s), u"Sport Rig only"_s);
      shop.Pick(u"smith"_s);
      Click(form, u"cmdSearch"_s);
      QCOMPARE(Rigs(form).Count(), 2);
      QCOMPARE(Selected(Rigs(form)), u"Green"_s);
      PressKey(Rigs(form), Qt::Key_Return);
    });
    QVERIFY(PickRig(rig, customer, 1));
    QCOMPARE(rig, shop.green);
    QCOMPARE(customer, shop.bob);
  }

  void ARigOfNobodyIsAssignedWhileChoosing() {
    RigShop shop;
    SetRigOwner(shop.green, 0);
    int rig = 0;
    int customer = 0;
    shop.screens.WhenShown(u"frmPickRig"_s, [&](Form& form) {
      ClickRow(Rigs(form), 2);
      QVERIFY(IsShown(form, u"lblNotAssigned"_s));
      shop.prompts.Expect(u"Assign Rig?"_s, u"Assign rig Green to Bob Smith?"_s, Answer::Yes);
      ClickRow(Customers(form), 1);
      Click(form, u"cmdSelect"_s);
    });
    QVERIFY(PickRig(rig, customer));
    QCOMPARE(rig, shop.green);
    QCOMPARE(RigOwner(shop.green), shop.bob);
  }

  void AsksBeforeARigIsDeleted() {
    RigShop shop;
    shop.screens.WhenShown(u"frmDeleteSystem"_s, [&](Form& form) {
      QCOMPARE(form.windowTitle(), u"Delete System?"_s);
      QCOMPARE(TextOf(form, u"capTitle"_s), u"System Title:"_s);
      QCOMPARE(TextOf(form, u"lblTitle"_s), u"Red"_s);
      QCOMPARE(TextOf(form, u"lblRigType"_s), u"Rig Type: Sport Rig"_s);
      QCOMPARE(TextOf(form, u"lblNote"_s),
               u"Note:   When deleting a system, the components will still exist in the component database"_s);
      QCOMPARE(Components(form).RowCount(), 4);
      QVERIFY(!IsShown(form, u"cmdExit"_s));
      shop.prompts.ExpectBox(u"Help:      Deleting a Rig"_s,
                             u"When you delete a rig, its components stay in the database.\n\n"
                             "The tasks performed on them still exist, and can be seen\nunder Jobs and History."_s);
      Click(form, u"cmdHelp"_s);
      shop.prompts.ExpectBox(kProgramTitle, u"frmDeleteSystem list already showing"_s);
      QVERIFY(!ConfirmRigDeletion(shop.blue));
      QCOMPARE(TextOf(form, u"lblTitle"_s), u"Red"_s);
      Picture(form, u"frmDeleteSystem"_s);
      Click(form, u"cmdYes"_s);
    });
    QVERIFY(ConfirmRigDeletion(shop.red));
    QVERIFY(RigExists(shop.red));
  }

  void EnterDoesNotDelete() {
    RigShop shop;
    shop.screens.WhenShown(u"frmDeleteSystem"_s, [](Form& form) { PressKey(form, Qt::Key_Return); });
    QVERIFY(!ConfirmRigDeletion(shop.red));
  }

  void TheLettersAnswerFromTheGridToo() {
    RigShop shop;
    shop.screens.WhenShown(u"frmDeleteSystem"_s, [](Form& form) {
      ClickCell(Components(form), 1, 1);
      PressKey(Components(form), Qt::Key_Y);
    });
    QVERIFY(ConfirmRigDeletion(shop.red));
  }

  void ShowOnlyHasOneButton() {
    RigShop shop;
    shop.screens.WhenShown(u"frmDeleteSystem"_s, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"Show rig"_s);
      for (const auto& control : {u"cmdYes"_s, u"cmdNo"_s, u"cmdCancel"_s, u"cmdHelp"_s, u"lblNote"_s})
        QVERIFY2(!IsShown(form, control), qPrintable(control));
      PressKey(form, Qt::Key_Y);
      QVERIFY(form.isVisible());
      Click(form, u"cmdExit"_s);
    });
    QVERIFY(!ConfirmRigDeletion(shop.red, true));
  }

  void ShowsOneRigHoweverManyScreensAreOpen() {
    RigShop shop;
    shop.screens.WhenShown(u"frmGetRig"_s, [&](Form& form) {
      QVERIFY(!IsShown(form, u"cmdExit"_s));
      QCOMPARE(Selected(Rigs(form)), u"Green"_s);
      PressKey(form, Qt::Key_Escape);
    });
    ShowRig(shop.green);
    shop.OnRigs(shop.ann, [&](Form& form) {
      shop.screens.WhenShown(u"frmDeleteSystem"_s, [](Form& small) {
        QCOMPARE(TextOf(small, u"lblTitle"_s), u"Green"_s);
        Click(small, u"cmdExit"_s);
      });
      ShowRig(shop.green);
      QCOMPARE(Selected(Rigs(form)), u"Red"_s);
    });
  }

  void ShowsTheCurrentComponents() {
    RigShop shop;
    const QStringList before = shop.loft.Snapshot();
    shop.screens.WhenShown(u"frmCurrentComponents"_s, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"Current Components"_s);
      QCOMPARE(TextOf(form, u"capRigName"_s), u"Rig Name:"_s);
      QCOMPARE(TextOf(form, u"lblRigName"_s), u"Red"_s);
      QCOMPARE(TextOf(form, u"capRigType"_s), u"Rig Type:"_s);
      QCOMPARE(TextOf(form, u"lblRigType"_s), u"Sport Rig"_s);
      QCOMPARE(Components(form).RowCount(), 4);
      QCOMPARE(Components(form).Text(1, 2), u"Storm "_s);
      QCOMPARE(TextOf(form, u"lblRigPhoto"_s), u"Container photo"_s);
      QCOMPARE(TextOf(form, u"lblCanopyPhoto"_s), u"Main canopy photo"_s);
      DoubleClickCell(Components(form), 1, 2);
      Picture(form, u"frmCurrentComponents"_s);
      Click(form, u"cmdExit"_s);
    });
    ShowCurrentComponents(shop.red);
    QCOMPARE(shop.Touched(before), QStringList());
  }

  void ADeletedRigHasNoCurrentComponents() {
    RigShop shop;
    SetPhotosHidden(true);
    shop.screens.WhenShown(u"frmCurrentComponents"_s, [](Form& form) {
      QCOMPARE(TextOf(form, u"lblRigName"_s), QString());
      QCOMPARE(Components(form).RowCount(), 0);
      QVERIFY(!IsShown(form, u"lblRigPhoto"_s));
      PressKey(form, Qt::Key_Return);
    });
    ShowCurrentComponents(99);
    QCOMPARE(LastSystemID(), 0);
  }

  void ARigThatHasGoneIsNotShown() {
    RigShop shop;
    DeleteRigRow(shop.red);
    shop.screens.WhenShown(u"frmPickRig"_s, [](Form& form) {
      QCOMPARE(TextOf(form, u"lblRigType"_s), QString());
      QVERIFY(!IsShown(form, u"lblNotAssigned"_s));
      PressKey(form, Qt::Key_Escape);
    });
    int rig = shop.red;
    int customer = 0;
    QVERIFY(!PickRig(rig, customer));
  }
};

LOFT_TEST_MAIN(TestRigChoice)
#include "tst_rig_choice.moc"
