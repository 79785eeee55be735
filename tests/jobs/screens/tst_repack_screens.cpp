#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QtTest>

#include "core/default_rows.h"
#include "core/widgets/grid.h"
#include "gear/models.h"
#include "jobs/repack_calculator.h"
#include "jobs/repack_price.h"
#include "jobs/screens.h"
#include "schedule/task_library.h"
#include "support/fixed_clock.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kPrice = 2;

struct Prices {
  FixedClock clock{2026, 3, 15};
  ThrowAwayLoft loft;
  ScriptedPrompts prompts;
  ScreenScript screens;
  int vector = AddModel(u"Vector"_s, kContainer);
  int javelin = AddModel(u"Javelin"_s, kContainer);

  Prices() {
    CheckIR(Money::Whole(80));
    SaveByType(2, Money::Whole(95));
    SaveByModel(javelin, Money::FromText(u"70.5"_s));
  }
  void Show(const std::function<void(Form&)>& action) {
    screens.WhenShown(u"frmRepack"_s, action);
    ShowRepackPrices();
  }
};

Grid& GridOf(Form& form, const char* name) { return Control<Grid>(form, QString::fromLatin1(name)); }

QStringList Column(const Grid& grid, int column) {
  QStringList texts;
  for (int row = 0; row < grid.RowCount(); ++row) texts << grid.Text(row, column);
  return texts;
}

/// Types over the price of a row.
void TypePrice(Grid& grid, int row, const QString& price) {
  ClickCell(grid, row, 1);  // the name can't be entered
  QVERIFY(grid.IsEditing());
  grid.Editor()->selectAll();
  QTest::keyClicks(grid.Editor(), price);
}

Form& Calculator() {
  OpenRepackCalculator();
  return dynamic_cast<Form&>(*Forms::Find(u"frmCalc"_s));
}

QColor LabelColour(Form& form, const QString& label) {
  return Control<QLabel>(form, label).palette().color(QPalette::WindowText);
}

}  // namespace

class TestRepackScreens : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void ShowsThePricesAndBlanksForNone() {
    Prices shop;
    const QStringList before = shop.loft.Snapshot();
    shop.Show([](Form& form) {
      QCOMPARE(form.windowTitle(), u"Set Repack Prices"_s);
      QCOMPARE(TextOf(form, u"txtIR"_s), u"80.00"_s);
      QCOMPARE(Column(GridOf(form, "Grid1"), 1),
               QStringList({u"Sport Rig"_s, u"Tandem Rig"_s, u"Pilot Emergency Rig (back)"_s,
                            u"Pilot Emergency Rig (seat)"_s}));
      QCOMPARE(Column(GridOf(form, "Grid1"), kPrice), QStringList({QString(), u"95.00"_s, QString(), QString()}));
      QCOMPARE(Column(GridOf(form, "Grid2"), 1), QStringList({u"Javelin"_s, u"Vector"_s}));
      QCOMPARE(Column(GridOf(form, "Grid2"), kPrice), QStringList({u"70.50"_s, QString()}));
      ClickCell(GridOf(form, "Grid1"), 1, 1);
      Picture(form, u"frmRepack"_s);
      PressKey(*GridOf(form, "Grid1").Editor(), Qt::Key_Escape);
      QVERIFY(!form.isVisible());
    });
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void SavesWhatWasTypedAndItsLeadingNumberCounts() {
    Prices shop;
    shop.Show([&](Form& form) {
      TypeInto(form, u"txtIR"_s, u"85.25 dollars"_s);
      Grid& types = GridOf(form, "Grid1");
      TypePrice(types, 0, u"90"_s);
      PressKey(*types.Editor(), Qt::Key_Down);
      QCOMPARE(types.CurrentRow(), 1);
      types.Editor()->selectAll();
      QTest::keyClicks(types.Editor(), u"0"_s);
      PressKey(*types.Editor(), Qt::Key_Return);
      QCOMPARE(types.CurrentRow(), 2);
      PressKey(*types.Editor(), Qt::Key_Up);
      QCOMPARE(types.CurrentRow(), 1);
      TypePrice(GridOf(form, "Grid2"), 1, u"what"_s);
      shop.prompts.ExpectBox(kProgramTitle, u"Saved"_s);
      Click(form, u"cmdSave"_s);
    });
    QCOMPARE(TaskLibFlatRate(RepackTaskLibID), Money::FromText(u"85.25"_s));
    QCOMPARE(GetPriceByType(1, RepackTaskLibID), Money::Whole(90));
    QCOMPARE(GetPriceByType(2, RepackTaskLibID), Money());
    QCOMPARE(GetPriceByModel(shop.vector, RepackTaskLibID), Money());
    QCOMPARE(GetPriceByModel(shop.javelin, RepackTaskLibID), Money::FromText(u"70.5"_s));
  }

  void ClearingAsksAndEmptiesOneTable() {
    Prices shop;
    shop.Show([&](Form& form) {
      shop.prompts.Expect(u"Are you sure?"_s, u"Clear all prices by rig type?"_s, Answer::No);
      Click(form, u"cmdClearAllTypePrices"_s);
      QCOMPARE(Column(GridOf(form, "Grid1"), kPrice).at(1), u"95.00"_s);
      shop.prompts.Expect(u"Are you sure?"_s, u"Clear all prices by rig type?"_s, Answer::Yes);
      Click(form, u"cmdClearAllTypePrices"_s);
      QCOMPARE(Column(GridOf(form, "Grid1"), kPrice).join(QString()), QString());
      shop.prompts.Expect(u"Are you sure?"_s, u"Clear all prices by container model?"_s, Answer::Yes);
      Click(form, u"cmdClearAllContainerPrices"_s);
      shop.prompts.ExpectBox(u"Repack Prices"_s,
                             u"If price by container model (Javelin, Vector, etc) is blank (or zero),\n"
                             "the price by rig type (sport, tandem, student, etc) will be used\n"
                             "If both are zero (model and rig type), then the default price is used"_s);
      Click(form, u"cmdHelp"_s);
      Click(form, u"cmdCancel"_s);
    });
    QCOMPARE(shop.loft.Rows(u"SELECT count(*) FROM tblRepackByType"_s), QStringList{u"0"_s});
    QCOMPARE(shop.loft.Rows(u"SELECT count(*) FROM tblRepackByModel"_s), QStringList{u"0"_s});
  }

  void TheListsBehindThePricesAreEditedAndReadAnew() {
    Prices shop;
    shop.Show([&](Form& form) {
      TypePrice(GridOf(form, "Grid1"), 0, u"33"_s);
      shop.screens.WhenShown(u"frmRigTypes"_s, [&](Form& types) {
        shop.prompts.ExpectInput(kProgramTitle, u"Enter new rig type"_s, u"Base rig"_s);
        shop.prompts.ExpectBox(u"Reserve Location"_s, u"Specify reserve location\n(or select OTHER if no reserve)"_s);
        Click(types, u"cmdAdd"_s);
        Click(types, u"cmdExit"_s);
      });
      Click(form, u"cmdEditRigTypes"_s);
      QCOMPARE(GridOf(form, "Grid1").RowCount(), 5);
      QCOMPARE(GridOf(form, "Grid1").Text(0, kPrice), QString());  // typed but not saved
      shop.screens.WhenShown(u"frmComponentModels"_s, [&](Form& models) { Click(models, u"cmdExit"_s); });
      Click(form, u"cmdEditContainers"_s);
      Click(form, u"cmdCancel"_s);
    });
  }

  void TheCalculatorCountsForwardAndBack() {
    const FixedClock clock(2026, 3, 15);
    Form& form = Calculator();
    QCOMPARE(form.windowTitle(), u"Repack Calculator"_s);
    QCOMPARE(TextOf(form, u"txtStart"_s), u"3/15/2026"_s);
    QCOMPARE(TextOf(form, u"txtEnd"_s), u"9/11/2026"_s);
    QCOMPARE(TextOf(form, u"lblExpire"_s), u"Expires in 180 days from today's date"_s);
    Picture(form, u"frmCalc"_s);
    TypeInto(form, u"txtStart"_s, u"9/17/2025"_s);
    QCOMPARE(TextOf(form, u"txtEnd"_s), u"3/16/2026"_s);
    QCOMPARE(TextOf(form, u"lblExpire"_s), u"Expires tomorrow"_s);
    TypeInto(form, u"txtInt"_s, u"10"_s);
    QCOMPARE(TextOf(form, u"txtEnd"_s), u"9/27/2025"_s);
    QCOMPARE(TextOf(form, u"lblExpire"_s), u"Expired 169 days ago"_s);
    Control<QRadioButton>(form, u"optStart"_s).click();
    Click(form, u"cmdToday2"_s);
    QCOMPARE(TextOf(form, u"txtStart"_s), u"3/5/2026"_s);
    QCOMPARE(TextOf(form, u"lblExpire"_s), u"Expires today"_s);
    TypeInto(form, u"txtInt"_s, u""_s);
    QCOMPARE(TextOf(form, u"txtStart"_s), TextOf(form, u"txtEnd"_s));
    PressKey(form, Qt::Key_Escape);
    QVERIFY(!Forms::IsShown(u"frmCalc"_s));
  }

  void WhatIsTypedOverTheResultStays() {
    const FixedClock clock(2026, 3, 15);
    Form& form = Calculator();
    TypeInto(form, u"txtEnd"_s, u"12/24/2026"_s);
    QCOMPARE(TextOf(form, u"txtEnd"_s), u"12/24/2026"_s);
    QCOMPARE(TextOf(form, u"txtStart"_s), u"3/15/2026"_s);
    Click(form, u"cmdToday2"_s);
    QCOMPARE(TextOf(form, u"txtEnd"_s), u"3/15/2026"_s);
    TypeInto(form, u"txtInt"_s, u"1"_s);
    QCOMPARE(TextOf(form, u"txtEnd"_s), u"3/16/2026"_s);
  }

  void WhatIsNoDateIsMarkedAndWaits() {
    const FixedClock clock(2026, 3, 15);
    Form& form = Calculator();
    const QColor usual = LabelColour(form, u"lblStart"_s);
    TypeInto(form, u"txtStart"_s, u"soon"_s);
    QCOMPARE(TextOf(form, u"lblExpire"_s), u"??????"_s);
    QCOMPARE(LabelColour(form, u"lblStart"_s), QColor(255, 0, 0));
    QCOMPARE(LabelColour(form, u"lblEnd"_s), usual);
    Control<QRadioButton>(form, u"optStart"_s).click();
    QCOMPARE(LabelColour(form, u"lblStart"_s), usual);
    TypeInto(form, u"txtEnd"_s, u"never"_s);
    QCOMPARE(LabelColour(form, u"lblEnd"_s), QColor(255, 0, 0));
    Click(form, u"cmdToday2"_s);
    QCOMPARE(LabelColour(form, u"lblEnd"_s), usual);
    QCOMPARE(TextOf(form, u"lblExpire"_s), u"Expires today"_s);
  }
};

LOFT_TEST_MAIN(TestRepackScreens)
#include "tst_repack_screens.moc"
