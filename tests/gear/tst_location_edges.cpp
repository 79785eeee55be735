#include <QtTest>

#include "gear/location_rules.h"
#include "gear/locations.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

class TestLocationEdges : public QObject {
  Q_OBJECT

  static int Location(const ThrowAwayLoft& loft, const char* city, const char* state, double rate, bool isDefault) {
    return loft.Add(
        u"tblLocation"_s,
        {{u"City"_s, city}, {u"State"_s, state}, {u"TaxRate"_s, rate}, {u"Default"_s, isDefault}, {u"Location"_s, ""}});
  }

 private Q_SLOTS:
  void StatesCompareWhateverTheirCase() {
    const ThrowAwayLoft loft;
    Location(loft, "Perris", "ca", 8.5, false);
    ScriptedPrompts prompts;
    prompts.Expect(u"Tax rate doesn't match - 7.25%"_s,
                   u"Perris  (8.50%)\n\nThe tax rate entered (7.25%) doesn't\nmatch other cities in CA\n\n"
                   "Do you want to use 7.25% for Lodi?"_s,
                   Answer::No);
    prompts.ExpectBox(kProgramTitle, u"Tax rate changed to 8.50"_s);
    LocationEntry entry{.city = u"Lodi"_s, .state = u" ca "_s, .taxRate = u"7.25"_s};
    const int lodi = SaveLocation(entry, 0);
    QCOMPARE(loft.Rows(u"select City, State, TaxRate from tblLocation where ID = %1"_s.arg(lodi)),
             QStringList(u"Lodi|CA|8.5"_s));
  }

  void OfTwoDefaultsTheFirstCounts() {
    const ThrowAwayLoft loft;
    Location(loft, "Eloy", "AZ", 0, false);
    const int perris = Location(loft, "Perris", "CA", 0, true);
    Location(loft, "Lodi", "CA", 0, true);
    QCOMPARE(DefaultLocation(), perris);
  }

  void ABlankStateIsNotShown() {
    const ThrowAwayLoft loft;
    QCOMPARE(LocationText(Location(loft, "Eloy", " ", 0, false)), u"Eloy"_s);
  }
};

LOFT_TEST_MAIN(TestLocationEdges)
#include "tst_location_edges.moc"
