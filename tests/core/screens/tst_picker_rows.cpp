#include <QtTest>

#include "core/picker.h"
#include "gear/person_names.h"
#include "gear/picker_rows.h"
#include "gear/screens.h"
#include "jobs/job_picker_rows.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

class TestPickerRows : public QObject {
  Q_OBJECT

  static int Person(const ThrowAwayLoft& loft, const char* last, const char* first, bool rigger = false) {
    return loft.Add(u"tblPeople"_s, {{u"LastName"_s, last}, {u"FirstName"_s, first}, {u"Rigger"_s, rigger}});
  }

 private Q_SLOTS:
  void ATypedNameFindsThatPersonAndNoNamesake() {
    const ThrowAwayLoft loft;
    const int bob = Person(loft, "Jones", "Bob");
    const int ann = Person(loft, " Jones ", "Ann ");
    QCOMPARE(FindPersonByTypedName(u"ann jones"_s), ann);
    QCOMPARE(FindPersonByTypedName(u"Jones, Bob"_s), bob);
    QCOMPARE(FindPersonByTypedName(u"Jones, Cid"_s), 0);
    QVERIFY(FindPersonByTypedName(u"jones"_s) != 0);  // the last name alone is enough
    QCOMPARE(FindPersonByTypedName(u"Smith"_s), 0);
  }

  void OnlyRiggersAreOfferedAsRiggers() {
    const ThrowAwayLoft loft;
    Person(loft, "Adams", "Al");
    const int zoe = Person(loft, "Smith", "Zoe", true);
    const int ann = Person(loft, "Jones", "Ann", true);
    QCOMPARE(PickerRiggers().ids, QList<int>({ann, zoe}));
  }

  void InvoicesStandByTheirNumberAndGearReportsAsTheyWereMade() {
    const ThrowAwayLoft loft;
    const int late = loft.Add(u"tblJobs"_s, {{u"InvoiceNumber"_s, "B2"}});
    const int early = loft.Add(u"tblJobs"_s, {{u"InvoiceNumber"_s, "A1"}});
    QCOMPARE(PickerInvoices().ids, QList<int>({early, late}));
    const int zulu = loft.Add(u"tblGearReports"_s, {{u"Name"_s, "Zulu"}});
    const int alpha = loft.Add(u"tblGearReports"_s, {{u"Name"_s, "Alpha"}});
    QCOMPARE(PickerGearReports().ids, QList<int>({zulu, alpha}));
  }

  void AModelIsCalledByItsType() {
    const ThrowAwayLoft loft;
    RegisterGearPickers();
    QCOMPARE(PickerKindOf(kPickMiscItem).noun(2), u"Main Canopy"_s);
    QCOMPARE(PickerKindOf(kPickMiscItem).noun(0), u"Misc"_s);
  }
};

LOFT_TEST_MAIN(TestPickerRows)
#include "tst_picker_rows.moc"
