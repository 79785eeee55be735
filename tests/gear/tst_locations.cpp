#include <QtTest>

#include "gear/locations.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

class TestLocations : public QObject {
  Q_OBJECT

  static int Location(const ThrowAwayLoft& loft, const char* city, const char* state, double rate, bool isDefault) {
    return loft.Add(
        u"tblLocation"_s,
        {{u"City"_s, city}, {u"State"_s, state}, {u"TaxRate"_s, rate}, {u"Default"_s, isDefault}, {u"Location"_s, ""}});
  }

 private Q_SLOTS:
  void TheLastRateOfAStateWins() {
    ThrowAwayLoft loft;
    Location(loft, "Perris", "CA", 7.25, false);
    Location(loft, "Lodi", "ca", 8.5, false);
    Location(loft, "Eloy", "AZ", 5, false);
    QCOMPARE(GetTaxRate(u"CA"_s), 8.5);
    QCOMPARE(GetTaxRate(u"AZ"_s), 5.0);
    QCOMPARE(GetTaxRate(u"TX"_s), 0.0);
    QCOMPARE(GetTaxRate(u"ca"_s), 0.0);
  }

  void AQuoteInTheStateIsTold() {
    ThrowAwayLoft loft;
    ScriptedPrompts prompts;
    prompts.AnswerRestWith([](const ShownPrompt&) { return Answer::Ok; });
    QCOMPARE(GetTaxRate(u"C'A"_s), 0.0);
    QCOMPARE(prompts.Transcript().size(), 1);
    QCOMPARE(prompts.Transcript().first().title, u"Function GetTaxRate"_s);
  }

  void TheOnlyLocationIsTheDefault() {
    ThrowAwayLoft loft;
    QCOMPARE(DefaultLocation(), 0);
    const int perris = Location(loft, "Perris", "CA", 0, false);
    QCOMPARE(DefaultLocation(), perris);
    const int eloy = Location(loft, "Eloy", "", 0, false);
    QCOMPARE(DefaultLocation(), 0);
    SetDefault(eloy);
    QCOMPARE(DefaultLocation(), eloy);
    const QStringList before = loft.Snapshot();
    SetDefault(perris);
    QCOMPARE(DefaultLocation(), perris);
    QCOMPARE(loft.ChangesSince(before).size(), 4);
    QCOMPARE(LocationText(perris), u"Perris, CA"_s);
    QCOMPARE(LocationText(eloy), u"Eloy"_s);
    QCOMPARE(LocationText(99), QString());
  }

  void CountsTheJobsThere() {
    ThrowAwayLoft loft;
    loft.Add(u"tblJobs"_s, {{u"LocationID"_s, 1}});
    loft.Add(u"tblJobs"_s, {{u"LocationID"_s, 1}});
    QCOMPARE(NumberOfJobsAtLocation(1), 2);
    QCOMPARE(NumberOfJobsAtLocation(2), 0);
  }
};

LOFT_TEST_MAIN(TestLocations)
#include "tst_locations.moc"
