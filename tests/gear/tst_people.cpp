#include <QtTest>

#include "core/store/undo.h"
#include "gear/people.h"
#include "gear/person_record.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

class TestPeople : public QObject {
  Q_OBJECT

  static int Person(const ThrowAwayLoft& loft, const char* first, const char* last, const char* organization = "") {
    return loft.Add(
        u"tblPeople"_s,
        {{u"FirstName"_s, first}, {u"LastName"_s, last}, {u"OrgName"_s, organization}, {u"rigger"_s, false}});
  }

 private Q_SLOTS:
  void NamesInBothOrders_data() {
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("last");
    QTest::addColumn<QString>("organization");
    QTest::addColumn<QString>("display");
    QTest::addColumn<QString>("sort");
    QTest::newRow("both") << "Ann"
                          << "Jones"
                          << "Loft"
                          << "Ann Jones"
                          << "Jones, Ann";
    QTest::newRow("trimmed") << " Ann "
                             << " Jones "
                             << ""
                             << "Ann Jones"
                             << "Jones, Ann";
    QTest::newRow("organization") << " "
                                  << ""
                                  << "Sky Club"
                                  << "Sky Club"
                                  << "Sky Club";
    QTest::newRow("last only") << ""
                               << "Jones"
                               << ""
                               << "Jones"
                               << "Jones";
    QTest::newRow("last and organization") << ""
                                           << "Jones"
                                           << "Sky Club"
                                           << "Sky Club"
                                           << "Jones";
    QTest::newRow("first only") << "Ann"
                                << ""
                                << ""
                                << "Ann"
                                << "Ann";
    QTest::newRow("nothing") << ""
                             << ""
                             << ""
                             << ""
                             << "";
  }
  void NamesInBothOrders() {
    QFETCH(QString, first);
    QFETCH(QString, last);
    QFETCH(QString, organization);
    ThrowAwayLoft loft;
    const int id = Person(loft, first.toUtf8(), last.toUtf8(), organization.toUtf8());
    QTEST(PersonDisplayName(id), "display");
    QTEST(PersonSortName(id), "sort");
  }

  void NamesOfNobody() {
    ScriptedPrompts prompts;
    ThrowAwayLoft loft;
    QCOMPARE(PersonDisplayName(-1), u"(select)"_s);
    QCOMPARE(PersonDisplayName(0), u"(none)"_s);
    QCOMPARE(PersonDisplayName(99), u"(none)"_s);
    QCOMPARE(PersonSortName(99), u"(none)"_s);
    QCOMPARE(PersonLastName(99), QString());
    QCOMPARE(PersonExists(99), false);
  }

  void NullNamesReadAsBlank() {
    ThrowAwayLoft loft;
    const int id = loft.Add(u"tblPeople"_s, {{u"LastName"_s, "Jones"}});
    QCOMPARE(PersonDisplayName(id), u"Jones"_s);
    QCOMPARE(PersonPhone(id), QString());
    QCOMPARE(PersonCityLine(id), QString());
  }

  void PhoneIsTheFirstThatIsFilled() {
    ThrowAwayLoft loft;
    const int id = loft.Add(u"tblPeople"_s, {{u"PhoneHome"_s, " "}, {u"PhoneCell"_s, ""}, {u"phoneOther"_s, "3"}});
    QCOMPARE(PersonPhone(id), u"3"_s);
    loft.Run(u"update tblPeople set PhoneCell = '2'"_s);
    QCOMPARE(PersonPhone(id), u"2"_s);
    loft.Run(u"update tblPeople set PhoneHome = '1'"_s);
    QCOMPARE(PersonPhone(id), u"1"_s);
  }

  void CityLineNeedsACity() {
    ThrowAwayLoft loft;
    const int id = loft.Add(u"tblPeople"_s, {{u"City"_s, "Elsinore"}, {u"State"_s, "CA"}, {u"Zip"_s, "92530"}});
    QCOMPARE(PersonCityLine(id), u"Elsinore, CA   92530"_s);
    loft.Run(u"update tblPeople set City = ' '"_s);
    QCOMPARE(PersonCityLine(id), QString());
  }

  void WalksByLastFirstAndOrganization() {
    ThrowAwayLoft loft;
    QCOMPARE(NextPerson(0), 0);
    QCOMPARE(FirstPerson(), 0);
    const int zoe = Person(loft, "Zoe", "Adams");
    const int ann = Person(loft, "Ann", "Jones");
    const int bob = Person(loft, "Bob", "adams");
    const int club = Person(loft, "", "", "Sky Club");
    QCOMPARE(FirstPerson(), club);
    QCOMPARE(NextPerson(0), club);
    QCOMPARE(NextPerson(club), bob);
    QCOMPARE(NextPerson(bob), zoe);
    QCOMPARE(NextPerson(zoe), ann);
    QCOMPARE(NextPerson(ann), ann);
    QCOMPARE(PreviousPerson(ann), zoe);
    QCOMPARE(PreviousPerson(club), club);
    QCOMPARE(NextPerson(99), 99);
  }

  void OrganizationsWithoutNamesStandByTheirOwn() {
    ThrowAwayLoft loft;
    const int sky = Person(loft, "", "", "Sky Club");
    const int air = Person(loft, "", "", "Air Club");
    QCOMPARE(NextPerson(0), air);
    QCOMPARE(NextPerson(air), sky);
    QCOMPARE(PreviousPerson(sky), air);
  }

  void TheEndsByLastNameHeedNothingElse() {
    ThrowAwayLoft loft;
    QCOMPARE(EndsByLastName(), std::pair(0, 0));
    const int zoe = Person(loft, "Zoe", "Jones");
    const int ann = Person(loft, "Ann", "Jones");
    QCOMPARE(EndsByLastName(), std::pair(zoe, ann));
  }

  void OneRiggerIsEnough() {
    ThrowAwayLoft loft;
    const int ann = Person(loft, "Ann", "Jones");
    {
      ScriptedPrompts prompts;
      prompts.ExpectBox(u"No riggers found"_s,
                        u"There are no riggers in your database\nTo designate a person as a rigger, "
                        "go to the\ncustomers form and check the RIGGER check box"_s);
      QVERIFY(!RiggersExist());
    }
    ScriptedPrompts prompts;
    loft.Run(u"update tblPeople set rigger = true where ID = "_s + QString::number(ann));
    QVERIFY(RiggersExist());
  }

  void WithoutRiggersTheDefaultIsLeftAlone() {
    ThrowAwayLoft loft;
    const int ann = Person(loft, "Ann", "Jones");
    SetDefaultRigger(ann);
    QCOMPARE(EffectiveRigger(), 0);
    QCOMPARE(loft.Rows(u"select DefaultRiggerID from tblMisc"_s), QStringList(QString::number(ann)));
  }

  void AStaleDefaultRiggerIsReadOnceMoreAndCleared() {
    ThrowAwayLoft loft;
    SetDefaultRigger(77);
    const QStringList before = loft.Snapshot();
    QCOMPARE(DefaultRigger(), 77);
    QCOMPARE(loft.Rows(u"select DefaultRiggerID from tblMisc"_s), QStringList(u"0"_s));
    QCOMPARE(loft.ChangesSince(before).size(), 2);
    QCOMPARE(DefaultRigger(), 0);
  }

  void TheOnlyRiggerBecomesTheDefault() {
    ThrowAwayLoft loft;
    const int ann = Person(loft, "Ann", "Jones");
    const int bob = Person(loft, "Bob", "Smith");
    QCOMPARE(EffectiveRigger(), 0);
    SetDefaultRigger(bob);
    loft.Run(u"update tblPeople set rigger = true where ID = "_s + QString::number(ann));
    QCOMPARE(EffectiveRigger(), ann);
    QCOMPARE(loft.Rows(u"select DefaultRiggerID from tblMisc"_s), QStringList(QString::number(ann)));
    SetDefaultRigger(bob);
    loft.Run(u"update tblPeople set rigger = true"_s);
    QCOMPARE(NumberOfRiggers(), 2);
    QCOMPARE(EffectiveRigger(), bob);
  }

  void WhatIsPutRightWhileReadingIsTakenBackWithTheOperationBeforeIt() {
    ThrowAwayLoft loft;
    const int ann = Person(loft, "Ann", "Jones");
    const QStringList before = loft.Snapshot();
    SetRiggerFlag(ann, true);
    for (int times = 0; times < 2; ++times) QCOMPARE(EffectiveRigger(), ann);
    QCOMPARE(RecentOperations().size(), 1);
    QVERIFY(UndoOperation());
    QCOMPARE(loft.ChangesSince(before), QStringList());
  }
};

LOFT_TEST_MAIN(TestPeople)
#include "tst_people.moc"
