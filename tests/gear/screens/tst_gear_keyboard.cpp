#include <QMenuBar>
#include <QPushButton>

#include <set>

#include "gear/screens/rig_shop.h"

using namespace Qt::StringLiterals;

namespace {

/// The controls that Tab reaches from one on, in order, until it comes round.
QStringList TabRoad(Form& form, const QString& from) {
  QStringList road;
  auto* start = &Control<QWidget>(form, from);
  start->setFocus();
  QWidget* at = start;
  do {
    road << at->objectName();
    QTest::keyClick(at, Qt::Key_Tab);
    at = form.focusWidget();
  } while (at != start && road.size() < 60);
  return road;
}

/// Letters that two commands of a form claim together with Alt.
QStringList ClashesOf(Form& form) {
  QStringList clashes;
  std::set<QChar> seen;
  const auto claim = [&](const QString& text) {
    const qsizetype at = QString(text).replace(u"&&"_s, u"  "_s).indexOf(u'&');
    if (at < 0 || at + 1 >= text.size()) return;
    if (!seen.insert(text.at(at + 1).toLower()).second) clashes << text;
  };
  for (QAbstractButton* button : form.findChildren<QAbstractButton*>())
    if (button->isVisible()) claim(button->text());
  for (QLabel* label : form.findChildren<QLabel*>())
    if (label->isVisible() && label->buddy()) claim(label->text());
  if (auto* bar = form.findChild<QMenuBar*>())
    for (QAction* action : bar->actions()) claim(action->text());
  return clashes;
}

}  // namespace

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
          TabRoad(form, u"lstCustomers"_s).join(u' '),
          u"lstCustomers cmdSearch chkShowSystems optAll optSelected lstGear Grid cmdEnter cmdRemove cmdUpdateTask "
          "Grid2 chkHidePhotos cmdAddRig cmdRename cmdDeleteRig cmdRefresh cmdExit"_s);
    });
  }

  void TabWalksThroughTheComponentScreen() {
    RigShop shop;
    shop.screens.WhenShown(u"frmComponent"_s, [](Form& form) {
      QCOMPARE(TabRoad(form, u"txtModel"_s).join(u' '),
               u"txtModel txtSerial txtColor txtDom txtJumps txtComment chkHidePhotos cmdEdit cmdChangeModel cmdRemove "
               "cmdRefresh cmdUpdateHelp cmdExit"_s);
      Click(form, u"cmdExit"_s);
    });
    ShowComponent(shop.canopy);
  }

  void NoLetterIsClaimedTwice() {
    RigShop shop;
    shop.OnRigs(shop.ann, [](Form& form) { QCOMPARE(ClashesOf(form).join(u' '), QString()); });
    const auto check = [&](const QString& name) {
      shop.screens.WhenShown(name, [](Form& form) {
        QCOMPARE(ClashesOf(form).join(u' '), QString());
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

QTEST_MAIN(TestGearKeyboard)
#include "tst_gear_keyboard.moc"
