#include "gear/screens/rig_shop.h"
#include "support/screens/keyboard.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

/// The screens of gear without a mouse.
class TestGearKeyboard : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void TabWalksThroughTheRigScreen() {
    RigShop shop;
    shop.OnRigs(shop.ann, [](Form& form) {
      QCOMPARE(
          TabRoad(form, u"lstCustomers"_s),
          u"lstCustomers cmdSearch chkShowSystems optAll optSelected lstGear Grid cmdEnter cmdRemove cmdUpdateTask "
          "Grid2 chkHidePhotos cmdAddRig cmdRename cmdDeleteRig cmdRefresh cmdExit"_s);
    });
  }

  void TabWalksThroughTheComponentScreen() {
    RigShop shop;
    shop.screens.WhenShown(u"frmComponent"_s, [](Form& form) {
      QCOMPARE(TabRoad(form, u"txtModel"_s),
               u"txtModel txtSerial txtColor txtDom txtJumps txtComment chkHidePhotos cmdEdit cmdChangeModel cmdRemove "
               "cmdRefresh cmdUpdateHelp cmdExit"_s);
      Click(form, u"cmdExit"_s);
    });
    ShowComponent(shop.canopy);
  }

  void NoLetterIsClaimedTwice() {
    RigShop shop;
    shop.OnRigs(shop.ann, [](Form& form) { QCOMPARE(ClashesOf(form), QString()); });
    const auto check = [&](const QString& name) {
      shop.screens.WhenShown(name, [](Form& form) {
        QCOMPARE(ClashesOf(form), QString());
        PressKey(form, Qt::Key_Escape);
      });
    };
    check(u"frmComponent"_s);
    ShowComponent(shop.canopy);
    check(u"frmModel"_s);
    EditComponentQuickly(shop.canopy);
    check(u"frmComponentEdit"_s);
    EditComponent(shop.canopy);
    check(u"frmNewOrOld"_s);
    AskNewOrOld(kAad);
    check(u"frmPickComponent"_s);
    PickComponent(kMainCanopy);
    check(u"frmSerialNumber"_s);
    PickComponentBySerial();
    check(u"frmDeleteSystem"_s);
    ConfirmRigDeletion(shop.red);
    check(u"frmComponentVerify"_s);
    VerifyComponent(shop.canopy);
    int rig = 0;
    int customer = 0;
    check(u"frmPickRig"_s);
    PickRig(rig, customer);
  }
};

LOFT_TEST_MAIN(TestGearKeyboard)
#include "tst_gear_keyboard.moc"
