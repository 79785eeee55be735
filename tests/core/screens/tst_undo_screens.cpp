#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QtTest>

#include "core/shell/frmMain2.h"
#include "core/shell/frmRecentChanges.h"
#include "core/store/operation.h"
#include "core/store/undo.h"
#include "core/widgets/grid.h"
#include "core/widgets/undo_keys.h"
#include "gear/person_names.h"
#include "gear/rigs.h"
#include "support/fixed_clock.h"
#include "support/screens/controls.h"
#include "support/screens/keyboard.h"
#include "support/screens/screen_script.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

namespace {

/// A screen with a box to type into, from which a rig is made.
class frmUndoSample : public Form {
  Q_OBJECT
 public:
  frmUndoSample() {
    box_->setObjectName(u"box"_s);
    setFocusPolicy(Qt::StrongFocus);
  }

 private:
  QLineEdit* box_ = new QLineEdit(this);
};

struct Shop {
  FixedClock clock{2026, 3, 2};
  ThrowAwayLoft loft;
  ScriptedPrompts prompts;
  ScreenScript screens;
  frmUndoSample& form = SharedForm<frmUndoSample>();

  Shop() {
    form.Show();
    Forms::SetInFront(u"frmUndoSample"_s);
    form.setFocus();
  }
  QStringList Rigs() const { return loft.Rows(u"select rigAlias from tblRig"_s); }
};

void ExpectOtherScreen(Shop& shop, Answer answer) {
  shop.prompts
      .Expect(u"Undo"_s, u"Undo \"Create rig\"?\nIt was done on another screen, on 03/02/2026 12:00 AM."_s, answer)
      .WithButtons(Buttons::YesNo)
      .WithPreset(Answer::Yes);
}

QAction* ToolsLine(frmMain2& home, const QString& start) {
  for (QAction* bar : home.MenuBar()->actions()) {
    if (!bar->menu() || bar->text().remove(u'&') != "Tools"_L1) continue;
    Q_EMIT bar->menu()->aboutToShow();
    for (QAction* line : bar->menu()->actions())
      if (line->text().remove(u'&').startsWith(start)) return line;
  }
  return nullptr;
}

}  // namespace

class TestUndoScreens : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void cleanup() {
    UnloadScreens();
    Forms::SetInFront({});
  }

  void TheKeysTakeBackAndDoAgain() {
    Shop shop;
    CreateRig(0, 1, u"Blue"_s);
    QVERIFY(QTest::qWaitForWindowActive(&shop.form));
    PressKey(shop.form, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(shop.Rigs(), QStringList());
    for (const auto& [key, modifiers] :
         {std::pair(Qt::Key_Y, Qt::KeyboardModifiers(Qt::ControlModifier)),
          std::pair(Qt::Key_Z, Qt::KeyboardModifiers(Qt::ControlModifier | Qt::ShiftModifier))}) {
      PressKey(shop.form, key, modifiers);
      QCOMPARE(shop.Rigs(), QStringList(u"Blue"_s));
      QVERIFY(UndoOnScreen(shop.form));
    }
  }

  void ABoxThatIsTypedIntoKeepsTheKeyForItself() {
    Shop shop;
    CreateRig(0, 1, u"Blue"_s);
    auto& box = Control<QLineEdit>(shop.form, u"box"_s);
    box.setFocus();
    QTest::keyClicks(&box, u"ab"_s);
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(box.text(), QString());
    QCOMPARE(shop.Rigs(), QStringList(u"Blue"_s));
  }

  void WhatAnotherScreenDidIsAskedAbout() {
    Shop shop;
    Forms::SetInFront(u"frmGetRig"_s);
    CreateRig(0, 1, u"Blue"_s);
    ExpectOtherScreen(shop, Answer::No);
    QVERIFY(!UndoOnScreen(shop.form));
    QCOMPARE(shop.Rigs(), QStringList(u"Blue"_s));
    ExpectOtherScreen(shop, Answer::Yes);
    QVERIFY(UndoOnScreen(shop.form));
    QCOMPARE(shop.Rigs(), QStringList());
  }

  void WithNothingDoneNothingHappens() {
    Shop shop;
    QVERIFY(!UndoOnScreen(shop.form));
    QVERIFY(!RedoOnScreen(shop.form));
  }

  void AnOperationThatWaitsForAnAnswerIsNotCutInto() {
    Shop shop;
    CreateRig(0, 1, u"Blue"_s);
    shop.prompts.ExpectBox(u"Loftkeep"_s, u"wait"_s).Meanwhile([&] { QVERIFY(!UndoOnScreen(shop.form)); });
    Operation(u"Sub Waits"_s, [] { MsgBox(u"wait"_s); });
    QCOMPARE(shop.Rigs(), QStringList(u"Blue"_s));
  }

  void TheMenuNamesWhatItTakesBack() {
    Shop shop;
    auto& home = SharedForm<frmMain2>();
    home.Show();
    QVERIFY(!ToolsLine(home, u"Undo"_s)->isEnabled());
    Forms::SetInFront(u"frmMain2"_s);
    CreateRig(0, 1, u"Blue"_s);
    QAction* undo = ToolsLine(home, u"Undo"_s);
    QCOMPARE(undo->text(), u"Undo \"Create rig\""_s);
    QVERIFY(!ToolsLine(home, u"Redo"_s)->isEnabled());
    undo->trigger();
    QCOMPARE(shop.Rigs(), QStringList());
    QCOMPARE(ToolsLine(home, u"Redo"_s)->text(), u"Redo \"Create rig\""_s);
    ToolsLine(home, u"Redo"_s)->trigger();
    QCOMPARE(shop.Rigs(), QStringList(u"Blue"_s));
  }

  void RecentChangesAreListedAndTakenBackOneByOne() {
    Shop shop;
    CreateRig(0, 1, u"Blue"_s);
    auto& list = SharedForm<frmRecentChanges>();
    list.Show();
    auto& grid = Control<Grid>(list, u"grid"_s);
    QCOMPARE(grid.RowCount(), 1);
    // What is done while it is open shows at once.
    CreateRig(0, 1, u"Red"_s);
    QCOMPARE(grid.RowCount(), 2);
    QCOMPARE(grid.Text(0, 0), u"03/02/2026 12:00 AM"_s);
    QCOMPARE(grid.Text(0, 1), u"Create rig"_s);
    QCOMPARE(grid.Text(0, 2), u"1"_s);
    Picture(list, u"recent-changes"_s);
    ExpectOtherScreen(shop, Answer::Yes);
    Click(list, u"cmdUndo"_s);
    QCOMPARE(shop.Rigs(), QStringList(u"Blue"_s));
    QCOMPARE(grid.Text(0, 3), u"undone"_s);
    QCOMPARE(TextOf(list, u"cmdRedo"_s), u"&Redo \"Create rig\""_s);
    Click(list, u"cmdExit"_s);
    QVERIFY(!Forms::IsShown(u"frmRecentChanges"_s));
  }

  void TheListIsWorkedByKeyboard() {
    Shop shop;
    CreateRig(0, 1, u"Blue"_s);
    auto& list = SharedForm<frmRecentChanges>();
    list.Show();
    QCOMPARE(ClashesOf(list), QString());
    QCOMPARE(TabRoad(list, u"grid"_s), u"grid cmdUndo cmdExit"_s);
  }
};

LOFT_TEST_MAIN(TestUndoScreens)
#include "tst_undo_screens.moc"
