#include "core/shell/home_commands.h"
#include "gear/components.h"
#include "gear/rigs.h"
#include "gear/screens.h"
#include "history/screens/open_history.h"
#include "jobs/screens.h"
#include "schedule/screens.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

class TestHistoryDoors : public QObject {
  Q_OBJECT

  /// What the history screen shows, as "caption: rig / types"; empty while it is not open. Leaves it.
  static QString Shown() {
    auto* form = dynamic_cast<Form*>(Forms::Find(u"frmHistoryForm"_s));
    if (!form) return {};
    const auto& types = Control<List>(*form, u"LstComp"_s);
    const QString shown = u"%1: %2 / %3"_s.arg(form->windowTitle(), TextOf(*form, u"lblRig"_s)).arg(types.Count());
    form->UnloadForm();
    return shown;
  }

 private Q_SLOTS:
  void cleanup() { UnloadScreens(); }

  void FromTheHomePage() {
    OpenHistory shop;
    SetLastSystemID(shop.rig);
    const QString lastRig = u"Rig History: Blue / 4"_s;
    ButtonCommand(u"cmdHistory"_s)();
    QCOMPARE(Shown(), lastRig);
    for (const FloatingEntry& entry : FloatingMenu())
      if (entry.caption == "History"_L1) entry.run();
    QCOMPARE(Shown(), lastRig);
    int byRig = 0;
    int byComponent = 0;
    for (const MenuLine& line : MainMenu()) {
      if (QStringList({u"History by rig"_s, u"Show rig history"_s, u"Gear History"_s}).contains(line.caption)) {
        line.run();
        QCOMPARE(Shown(), lastRig);
        ++byRig;
      }
      if (!line.caption.endsWith(u"component (canopy, container, etc)"_s) &&
          line.caption != "Component history (canopy, container, etc)"_L1)
        continue;
      shop.screens.WhenShown(u"frmPickComponent"_s, [](Form& form) { PressKey(form, Qt::Key_Escape); });
      line.run();
      QCOMPARE(Shown(), QString());
      shop.screens.WhenShown(u"frmPickComponent"_s, [&](Form& form) {
        Control<Grid>(form, u"Grid"_s).SelectData(shop.aad);
        Click(form, u"cmdSelect"_s);
      });
      line.run();
      QCOMPARE(Shown(), u"Component History: Blue / 1"_s);
      ++byComponent;
    }
    QCOMPARE(byRig, 3);
    QCOMPARE(byComponent, 3);
  }

  void WithoutAnyRig() {
    ThrowAwayLoft loft;
    ScriptedPrompts prompts;
    ScreenScript screens;
    OpenRigHistory();
    QCOMPARE(Shown(), u"Rig History: (no rig) / 0"_s);
  }

  void ARigThatHasGone() {
    OpenHistory shop;
    DeleteRigRow(shop.rig);
    SetLastSystemID(shop.rig);
    shop.AddWork({.onRig = shop.rig, .done = Day(1, 1, 2025), .name = "Washed"}, {});
    OpenRigHistory();
    QCOMPARE(shop.Column(kRig), QStringList{u"(no rig)"_s});
    QCOMPARE(shop.Label("lblRig"), u"(no rig)"_s);
    QCOMPARE(shop.Label("lblCustomer"), u"(none)"_s);
  }

  void FromTheRigScreen() {
    OpenHistory shop;
    const QStringList road{u"History"_s, u"Show this rig's history"_s};
    shop.screens.WhenShown(u"frmGetRig"_s, [&](Form& form) {
      ChooseMenu(form, road);
      QCOMPARE(Shown(), u"Rig History: Blue / 4"_s);
      Click(form, u"cmdExit"_s);
    });
    ShowRigs({.customer = shop.owner});
    shop.screens.WhenShown(u"frmGetRig"_s, [&](Form& form) {
      shop.prompts.ExpectBox(u"Rig History"_s, u"You must select a rig"_s);
      ChooseMenu(form, road);
      Click(form, u"cmdExit"_s);
    });
    ShowRigs({.customer = shop.rigger});
    QCOMPARE(Shown(), QString());
  }

  void FromTheComponentScreen() {
    OpenHistory shop;
    shop.screens.WhenShown(u"frmComponent"_s, [&](Form& form) {
      ChooseMenu(form, {u"History"_s});
      QVERIFY(!shop.Screen().isModal());
      QCOMPARE(shop.Column(kTask), QStringList{u"AAD check *"_s});
      QCOMPARE(Shown(), u"Component History: Blue / 1"_s);
      PressKey(form, Qt::Key_Escape);
    });
    ShowComponent(shop.aad);
  }

  void FromTheComponentScreenThatTheHistoryOpened() {
    OpenHistory shop;
    shop.OpenRig();
    shop.screens.WhenShown(u"frmComponent"_s, [&](Form& form) {
      ChooseMenu(form, {u"History"_s});
      PressKey(form, Qt::Key_Escape);
    });
    DoubleClickCell(shop.Lines(), 3, kTask);
    QCOMPARE(shop.Screen().windowTitle(), u"Component History"_s);
    QCOMPARE(shop.Column(kTask), QStringList{u"AAD check *"_s});
  }

  void FromAJob() {
    OpenHistory shop;
    const QStringList road{u"History"_s, u"Show history"_s};
    const auto screen = [] { return dynamic_cast<QWidget*>(Forms::Find(u"frmJob"_s)); };
    GotoJob(shop.job);
    ChooseMenu(*screen(), road);
    QCOMPARE(Shown(), u"Rig History: Blue / 4"_s);
    SetComponentRig(shop.aad, 0);
    GotoJob(shop.AddJob("Bench", 0, shop.aad));
    ChooseMenu(*screen(), road);
    QCOMPARE(Shown(), u"Component History: (no rig) / 1"_s);
    GotoJob(shop.AddJob("Parts", 0, 0));
    shop.prompts.ExpectBox(u"No Rig"_s, u"There is no rig for this job"_s);
    ChooseMenu(*screen(), road);
    QCOMPARE(Shown(), QString());
  }

  void FromTheSchedule() {
    OpenHistory shop;
    const int loose = shop.AddComponent("Vigil", kAad, 0);
    shop.AddSchedule(shop.rig, RepackTaskLibID, Day(5, 1, 2026), 0, 0);
    shop.AddSchedule(0, shop.aadCheck, Day(6, 1, 2026), 0, loose);
    OpenSchedule();
    auto& form = dynamic_cast<Form&>(*Forms::Find(u"frmSchedule"_s));
    auto& grid = Control<Grid>(form, u"Grid"_s);
    const QStringList road{u"History"_s, u"Show history"_s};
    shop.prompts.ExpectBox(u"Nothing selected"_s, u"You must select an event"_s);
    ChooseMenu(form, road);
    QStringList shown;
    for (int row = 0; row < 2; ++row) {
      ClickCell(grid, row, 3);
      ChooseMenu(form, road);
      shown << Shown();
    }
    shown.sort();
    QCOMPARE(shown, QStringList({u"Component History: (no rig) / 1"_s, u"Rig History: Blue / 4"_s}));
  }
};

LOFT_TEST_MAIN(TestHistoryDoors)
#include "tst_history_doors.moc"
