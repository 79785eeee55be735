#include <QAction>
#include <QCheckBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QtTest>

#include "core/screens.h"
#include "core/widgets/list.h"
#include "gear/location_rules.h"
#include "gear/locations.h"
#include "gear/screens.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

namespace {

/// Perris and Lodi in California, Eloy in Arizona.
struct Places {
  ThrowAwayLoft loft;
  ScriptedPrompts prompts;
  ScreenScript screens;
  int perris = Add("Perris", "CA", 7.25);
  int lodi = Add("Lodi", "CA", 7.25);
  int eloy = Add("Eloy", "AZ", 5);

  int Add(const char* city, const char* state, double rate) const {
    return loft.Add(
        u"tblLocation"_s,
        {{u"City"_s, city}, {u"State"_s, state}, {u"TaxRate"_s, rate}, {u"Default"_s, false}, {u"Location"_s, ""}});
  }
  /// "City|State|TaxRate|Default" of every row.
  QStringList Rows() const {
    return loft.Rows(u"SELECT City, State, TaxRate, \"Default\" FROM tblLocation ORDER BY ID"_s);
  }
  int Show(int location, const std::function<void(Form&)>& action) {
    screens.WhenShown(u"frmLocation"_s, action);
    return ShowLocations(location);
  }
};

QStringList Items(Form& form) {
  QStringList items;
  const auto& list = Control<List>(form, u"lst"_s);
  for (int row = 0; row < list.Count(); ++row) items << list.ItemText(row);
  return items;
}

void Enter(Form& form, const QString& city, const QString& state, const QString& rate) {
  TypeInto(form, u"txtCity"_s, city);
  TypeInto(form, u"txtState"_s, state);
  TypeInto(form, u"txtTaxRate"_s, rate);
}

/// The cursor goes elsewhere.
void LeaveBox(Form& form, const QString& box) {
  QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
  QCoreApplication::sendEvent(&Control<QLineEdit>(form, box), &out);
}

bool AddNewIsEnabled(Form& form) { return form.MenuBar()->actions().first()->isEnabled(); }

}  // namespace

class TestLocationScreen : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void ListsByCityAndGivesTheChosenOne() {
    Places shop;
    SetDefault(shop.lodi);
    QCOMPARE(
        shop.Show(
            shop.eloy,
            [](Form& form) {
              QCOMPARE(Items(form), QStringList({u"Eloy, AZ"_s, u"Lodi, CA  (default location)"_s, u"Perris, CA"_s}));
              QCOMPARE(TextOf(form, u"txtCity"_s), u"Eloy"_s);
              QCOMPARE(TextOf(form, u"txtTaxRate"_s), u"5.00"_s);
              QVERIFY(Control<QWidget>(form, u"lblNoDefault"_s).isHidden());
              Picture(form, u"frmLocation"_s);
              Click(form, u"cmdOK"_s);
            }),
        shop.eloy);
    QCOMPARE(shop.Show(shop.eloy, [](Form& form) { Click(form, u"cmdExit"_s); }), 0);
    QCOMPARE(shop.Show(shop.eloy, [](Form& form) { PressKey(form, Qt::Key_Escape); }), 0);
    QCOMPARE(shop.Show(0,
                       [&](Form& form) {
                         shop.prompts.ExpectBox(kProgramTitle, u"You must select a location"_s);
                         Click(form, u"cmdOK"_s);
                         Control<List>(form, u"lst"_s).SetListIndex(2);
                         PressKey(form, u"lst"_s, Qt::Key_Return);
                       }),
             shop.perris);
  }

  void AnEmptyTableShowsBlankBoxes() {
    Places shop;
    shop.loft.Run(u"delete from tblLocation"_s);
    shop.Show(0, [&](Form& form) {
      QCOMPARE(Items(form), QStringList());
      for (const QString& box : {u"txtCity"_s, u"txtState"_s, u"txtTaxRate"_s}) QCOMPARE(TextOf(form, box), QString());
      QVERIFY(!Control<QWidget>(form, u"lblNoDefault"_s).isHidden());
      shop.prompts.ExpectBox(u"No default location"_s, u"Default location not specified"_s);
      ChooseMenu(form, {u"Show default"_s});
      ChooseMenu(form, {u"Delete"_s});
      Click(form, u"cmdExit"_s);
    });
  }

  void ANewCityTakesTheRateOfItsState() {
    Places shop;
    shop.Show(shop.eloy, [&](Form& form) {
      ChooseMenu(form, {u"Add new"_s});
      QCOMPARE(TextOf(form, u"txtCity"_s), QString());
      QCOMPARE(TextOf(form, u"cmdOK"_s), u"&Save"_s);
      QCOMPARE(TextOf(form, u"cmdExit"_s), u"&Cancel"_s);
      QVERIFY(!AddNewIsEnabled(form));
      TypeInto(form, u"txtCity"_s, u"  Davis "_s);
      TypeInto(form, u"txtState"_s, u"ca"_s);
      LeaveBox(form, u"txtState"_s);
      QCOMPARE(TextOf(form, u"txtState"_s), u"CA"_s);
      QCOMPARE(TextOf(form, u"txtTaxRate"_s), u"7.25"_s);
      Click(form, u"cmdOK"_s);
      QCOMPARE(Items(form).first(), u"Davis, CA"_s);
      QCOMPARE(TextOf(form, u"cmdOK"_s), u"S&elect"_s);
      QVERIFY(AddNewIsEnabled(form));
      Click(form, u"cmdOK"_s);
    });
    QCOMPARE(shop.Rows().last(), u"Davis|CA|7.25|0"_s);
  }

  void ACityIsNeeded() {
    Places shop;
    const QStringList before = shop.loft.Snapshot();
    shop.Show(shop.eloy, [&](Form& form) {
      TypeInto(form, u"txtCity"_s, u"  "_s);
      QCOMPARE(TextOf(form, u"cmdOK"_s), u"&Update"_s);
      shop.prompts.ExpectBox(u"No city"_s, u"You must enter a City"_s);
      Click(form, u"cmdOK"_s);
      Click(form, u"cmdExit"_s);  // back to browsing
      QCOMPARE(TextOf(form, u"txtCity"_s), u"Eloy"_s);
      Click(form, u"cmdExit"_s);
    });
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void ARateThatDiffersIsAskedAbout_data() {
    QTest::addColumn<Answer>("useIt");
    QTest::addColumn<Answer>("forAll");
    QTest::addColumn<QStringList>("rows");
    const QString eloy = u"Eloy|AZ|5.0|0"_s;
    QTest::newRow("as an exception") << Answer::Yes << Answer::No
                                     << QStringList{u"Perris|CA|8.0|0"_s, u"Lodi|CA|7.25|0"_s, eloy};
    QTest::newRow("for all") << Answer::Yes << Answer::Yes
                             << QStringList{u"Perris|CA|8.0|0"_s, u"Lodi|CA|8.0|0"_s, eloy};
    QTest::newRow("not at all") << Answer::No << Answer::No
                                << QStringList{u"Perris|CA|7.25|0"_s, u"Lodi|CA|7.25|0"_s, eloy};
  }
  void ARateThatDiffersIsAskedAbout() {
    QFETCH(Answer, useIt);
    QFETCH(Answer, forAll);
    Places shop;
    shop.Show(shop.perris, [&](Form& form) {
      TypeInto(form, u"txtTaxRate"_s, u"8"_s);
      shop.prompts
          .Expect(u"Tax rate doesn't match - 8.00%"_s,
                  u"Lodi  (7.25%)\n\nThe tax rate entered (8.00%) doesn't\nmatch other cities in CA\n\n"
                  "Do you want to use 8.00% for Perris?"_s,
                  useIt)
          .WithPreset(Answer::No);
      if (useIt == Answer::Yes)
        shop.prompts.Expect(u"Change other city tax rates?"_s, u"Do you want to use 8.00% for all cities in CA?"_s,
                            forAll);
      else
        shop.prompts.ExpectBox(kProgramTitle, u"Tax rate changed to 7.25"_s);
      Click(form, u"cmdOK"_s);
      Click(form, u"cmdExit"_s);
    });
    QTEST(shop.Rows(), "rows");
  }

  void ACityWithoutAStateIsComparedWithItsLike() {
    Places shop;
    shop.Add("Sea", "", 2);
    shop.Show(0, [&](Form& form) {
      ChooseMenu(form, {u"Add new"_s});
      Enter(form, u"Air"_s, QString(), u"what"_s);  // a rate of 0
      shop.prompts.Expect(u"Tax rate doesn't match - 0.00%"_s,
                          u"Sea  (2.00%)\n\nThe tax rate entered (0.00%) doesn't\nmatch other cities in \n\n"
                          "Do you want to use 0.00% for Air?"_s,
                          Answer::Yes);
      shop.prompts.Expect(u"Change other city tax rates?"_s, u"Do you want to use 0.00% for all cities in ?"_s,
                          Answer::No);
      Click(form, u"cmdOK"_s);
      Click(form, u"cmdExit"_s);
    });
    QCOMPARE(shop.Rows().last(), u"Air||0.0|0"_s);
  }

  void TheDefaultBoxActsAtOnce() {
    Places shop;
    shop.Show(shop.eloy, [&](Form& form) {
      Control<QCheckBox>(form, u"chkDefault"_s).click();
      QCOMPARE(Items(form).first(), u"Eloy, AZ  (default location)"_s);
      QCOMPARE(shop.Rows(), QStringList({u"Perris|CA|7.25|0"_s, u"Lodi|CA|7.25|0"_s, u"Eloy|AZ|5.0|-1"_s}));
      Control<List>(form, u"lst"_s).SetListIndex(1);
      ChooseMenu(form, {u"Show default"_s});
      QCOMPARE(TextOf(form, u"txtCity"_s), u"Eloy"_s);
      Control<QCheckBox>(form, u"chkDefault"_s).click();
      QVERIFY(!Control<QWidget>(form, u"lblNoDefault"_s).isHidden());
      Click(form, u"cmdExit"_s);
    });
    QCOMPARE(shop.loft.Rows(u"SELECT count(*) FROM tblLocation WHERE \"Default\""_s), QStringList{u"0"_s});
  }

  void ANewDefaultTakesTheMarkFromTheOld() {
    Places shop;
    SetDefault(shop.lodi);
    shop.Show(0, [&](Form& form) {
      ChooseMenu(form, {u"Add new"_s});
      Enter(form, u"Moab"_s, u"UT"_s, u"6.85 percent"_s);
      Control<QCheckBox>(form, u"chkDefault"_s).click();
      Click(form, u"cmdOK"_s);
      Click(form, u"cmdExit"_s);
    });
    QCOMPARE(shop.Rows(),
             QStringList({u"Perris|CA|7.25|0"_s, u"Lodi|CA|7.25|0"_s, u"Eloy|AZ|5.0|0"_s, u"Moab|UT|6.85|-1"_s}));
  }

  void TheScreenTellsWhetherThereIsADefault() {
    Places shop;
    const auto told = [](Form& form) { return !Control<QWidget>(form, u"lblNoDefault"_s).isHidden(); };
    shop.Show(0, [&](Form& form) {
      QVERIFY(told(form));
      QCOMPARE(TextOf(form, u"lblNoDefault"_s), u"(default location not set)"_s);
      ChooseMenu(form, {u"Add new"_s});
      Enter(form, u"Moab"_s, u"UT"_s, u"6.85"_s);
      Control<QCheckBox>(form, u"chkDefault"_s).click();
      Click(form, u"cmdOK"_s);
      QVERIFY(!told(form));
      shop.prompts.Expect(u"Delete Moab, UT?"_s, u"Are you sure you want to delete this location?"_s, Answer::Yes);
      ChooseMenu(form, {u"Delete"_s});
      QVERIFY(told(form));
      Click(form, u"cmdExit"_s);
    });
    QCOMPARE(DefaultLocation(), 0);
  }

  void ALocationWithJobsMayBeDeletedAndItsJobsStay() {
    Places shop;
    shop.loft.Add("tblJobs", {{"JobTitle", "a"}, {"LocationID", shop.lodi}});
    shop.loft.Add("tblJobs", {{"JobTitle", "b"}, {"LocationID", shop.perris}});
    shop.loft.Add("tblJobs", {{"JobTitle", "c"}, {"LocationID", shop.perris}});
    const QStringList before = shop.loft.Snapshot();
    const QString sure = u"Are you sure you want to delete this location?"_s;
    shop.Show(shop.perris, [&](Form& form) {
      shop.prompts.Expect(u"Delete Perris, CA?"_s, u"There are 2 jobs for that location\n\n"_s + sure, Answer::No)
          .WithPreset(Answer::No);
      ChooseMenu(form, {u"Delete"_s});
      QCOMPARE(shop.loft.ChangesSince(before), QStringList());
      shop.prompts.Expect(u"Delete Perris, CA?"_s, u"There are 2 jobs for that location\n\n"_s + sure, Answer::Yes);
      PressKey(form, u"lst"_s, Qt::Key_Delete);
      Control<List>(form, u"lst"_s).SetListIndex(1);
      shop.prompts.Expect(u"Delete Lodi, CA?"_s, u"There is one job for that location\n\n"_s + sure, Answer::Yes);
      ChooseMenu(form, {u"Delete"_s});
      Control<List>(form, u"lst"_s).SetListIndex(0);
      shop.prompts.Expect(u"Delete Eloy, AZ?"_s, sure, Answer::No);
      ChooseMenu(form, {u"Delete"_s});
      Click(form, u"cmdExit"_s);
    });
    QCOMPARE(shop.loft.TouchedSince(before),
             QStringList({u"-tblLocation|%1"_s.arg(shop.perris), u"-tblLocation|%1"_s.arg(shop.lodi)}));
    QCOMPARE(DefaultLocation(), shop.eloy);  // the one that is left
  }

  void ThePickerShowsAddsAndDeletesLocations() {
    Places shop;
    RegisterGearPickers();
    shop.screens.WhenShown(u"frmPicker"_s, [&](Form& form) {
      QCOMPARE(Items(form), QStringList({u"Perris, CA"_s, u"Lodi, CA"_s, u"Eloy, AZ"_s}));
      TypeInto(form, u"txt"_s, u"Davis"_s);
      shop.prompts.Expect(
          u"Add new location?"_s,
          u"Can't find 'Davis' anywhere in the location database\n\nWould you like to add a new location?"_s,
          Answer::Yes);
      Click(form, u"cmdSelect"_s);
      QCOMPARE(TextOf(form, u"txt"_s), u"Davis"_s);
      Control<List>(form, u"lst"_s).SelectData(shop.eloy);
      shop.prompts.Expect(u"Delete Eloy, AZ?"_s, u"Are you sure you want to delete this location?"_s, Answer::Yes);
      Click(form, u"cmdDelete"_s);
      Control<List>(form, u"lst"_s).SelectData(4);
      Click(form, u"cmdSelect"_s);
    });
    QCOMPARE(PickItem(kPickLocation).id, 4);
    QCOMPARE(shop.Rows(), QStringList({u"Perris|CA|7.25|0"_s, u"Lodi|CA|7.25|0"_s, u"Davis||0.0|0"_s}));
  }

  void NamesKeepTheirApostrophesAndAStateWithOneIsTold() {
    Places shop;
    shop.Show(shop.eloy, [&](Form& form) {
      TypeInto(form, u"txtCity"_s, u"Coeur d'Alene"_s);
      Click(form, u"cmdOK"_s);
      QCOMPARE(Items(form).first(), u"Coeur d'Alene, AZ"_s);
      TypeInto(form, u"txtState"_s, u"I'D"_s);
      shop.prompts.AnswerRestWith([](const ShownPrompt&) { return Answer::Ok; });
      Click(form, u"cmdOK"_s);
      Click(form, u"cmdExit"_s);
    });
    QVERIFY(std::any_of(shop.prompts.Transcript().begin(), shop.prompts.Transcript().end(),
                        [](const auto& prompt) { return prompt.title == "Sub CheckTax"_L1; }));
    QCOMPARE(shop.Rows().last(), u"Coeur d'Alene|I'D|5.0|0"_s);
  }

  void ARowThatHasGoneIsToldAndNothingIsWritten() {
    Places shop;
    shop.loft.Run(u"delete from tblLocation where ID = %1"_s.arg(shop.eloy));
    shop.prompts.ExpectBox(kProgramTitle, u"you shouldn't be here"_s);
    shop.prompts.AnswerRestWith([](const ShownPrompt&) { return Answer::Ok; });
    LocationEntry entry{.city = u"Elsewhere"_s, .state = u"NV"_s, .taxRate = u"5"_s};
    QCOMPARE(SaveLocation(entry, shop.eloy), 0);
    QCOMPARE(shop.prompts.Transcript().last().title, u"Sub SaveLocation"_s);
    QCOMPARE(shop.Rows().size(), 2);
  }
};

LOFT_TEST_MAIN(TestLocationScreen)
#include "tst_location.moc"
