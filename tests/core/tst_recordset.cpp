#include <QTest>

#include <random>

#include "core/failure.h"
#include "core/store/access.h"
#include "core/store/database.h"
#include "support/scripted_prompts.h"
#include "support/store_fixture.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

void AddPeople(const QStringList& lastNames) {
  Bracket bracket;
  Recordset people(u"tblPeople"_s);
  for (const QString& name : lastNames) {
    people.AddNew();
    people.Set(u"LastName", name);
    people.Update();
  }
}

QStringList LastNames(const QString& statement) {
  Bracket bracket;
  Recordset people(statement);
  QStringList names;
  if (RecordsetHasRows(people))
    for (; !people.Eof(); people.MoveNext()) names << people[u"LASTNAME"].ToText();
  return names;
}

}  // namespace

class RecordsetTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() {
    store_ = std::make_unique<StoreFixture>();
    prompts_ = std::make_unique<ScriptedPrompts>();
  }
  void cleanup() {
    prompts_.reset();
    store_.reset();
  }

  void NeedsAnOpenConnection() { QVERIFY_THROWS_EXCEPTION(Failure, Recordset(u"tblPeople"_s)); }

  void WithoutRowsItStandsBeforeTheFirst() {
    Bracket bracket;
    Recordset people(u"tblPeople"_s);
    QVERIFY(people.Bof());
    QVERIFY(people.Eof());
    QVERIFY(!RecordsetHasRows(people));
    QCOMPARE(people.RecordCount(), 0);
    QVERIFY_THROWS_EXCEPTION(Failure, people[u"LastName"]);
    QVERIFY_THROWS_EXCEPTION(Failure, people.MoveNext());
  }

  void WalksBothWaysAndCounts() {
    AddPeople({u"a"_s, u"b"_s, u"c"_s});
    Bracket bracket;
    Recordset people(u"Select * from tblPeople order by LastName desc"_s);
    QVERIFY(RecordsetHasRows(people));
    QCOMPARE(people[u"lastname"].ToText(), u"c"_s);
    people.MoveNext();
    QCOMPARE(people.RecordCount(), 3);
    QCOMPARE(people[u"lastname"].ToText(), u"b"_s);
    people.MoveLast();
    QCOMPARE(people.RecordCount(), 3);
    QVERIFY(!people.Eof());
    QCOMPARE(people[u"lastname"].ToText(), u"a"_s);
    people.MovePrevious();
    QCOMPARE(people[u"lastname"].ToText(), u"b"_s);
    people.MoveFirst();
    QCOMPARE(people[u"lastname"].ToText(), u"c"_s);
    people.MovePrevious();
    QVERIFY(people.Bof());
    people.MoveLast();
    people.MoveNext();
    QVERIFY(people.Eof());
    people.MoveFirst();
    QCOMPARE(people[u"lastname"].ToText(), u"c"_s);
  }

  void GoesBackToTheFirstFromAnywhere() {
    AddPeople({u"a"_s, u"b"_s, u"c"_s});
    Bracket bracket;
    Recordset people(u"Select * from tblPeople order by LastName"_s);
    people.MoveNext();
    people.MoveNext();
    people.MoveFirst();
    QCOMPARE(people[u"LastName"].ToText(), u"a"_s);
    while (!people.Eof()) people.MoveNext();
    QVERIFY(RecordsetHasRows(people));
    QCOMPARE(people[u"LastName"].ToText(), u"a"_s);

    Recordset added(u"tblPeople"_s);
    added.AddNew();
    added.Set(u"LastName", u"d"_s);
    added.Update();
    added.MoveFirst();
    QCOMPARE(added[u"LastName"].ToText(), u"a"_s);
  }

  void ARowAddedOnTheWayStandsBehindAllTheOthers() {
    AddPeople({u"a"_s, u"b"_s, u"c"_s});
    Bracket bracket;
    Recordset people(u"tblPeople"_s);
    people.MoveNext();
    people.AddNew();
    people.Set(u"LastName", u"d"_s);
    people.Update();
    QCOMPARE(people[u"LastName"].ToText(), u"d"_s);
    people.MovePrevious();
    QCOMPARE(people[u"LastName"].ToText(), u"c"_s);
    people.MoveFirst();
    QStringList names;
    for (; !people.Eof(); people.MoveNext()) names << people[u"LastName"].ToText();
    QCOMPARE(names, (QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s}));
  }

  void WithoutRowsItStaysEmptyWhateverIsWritten() {
    Bracket bracket;
    Recordset people(u"tblPeople"_s);
    people.MoveLast();
    QVERIFY(people.Eof());
    AddPeople({u"a"_s});
    QVERIFY(people.Bof());
    QVERIFY(!RecordsetHasRows(people));
    QCOMPARE(people.RecordCount(), 0);
  }

  void AnEmptyValueIsStoredAsNone() {
    AddPeople({u"a"_s});
    Bracket bracket;
    for (Recordset& person : Rows(u"tblPeople"_s)) {
      person.Set(u"LastName", Value());
      person.Update();
    }
    QVERIFY(Recordset(u"Select * from tblPeople"_s)[u"LastName"].IsNull());
  }

  void AFileThatExistsIsNotMadeAnew() {
    AddPeople({u"a"_s});
    ReleaseDatabaseFile();
    QVERIFY_THROWS_EXCEPTION(Failure, Database::CreateFile(store_->Path()));
    QCOMPARE(LastNames(u"tblPeople"_s), QStringList(u"a"_s));
  }

  void ALoopOverRowsWalksThemAllAndMayWrite() {
    Bracket bracket;
    int none = 0;
    for (const Recordset& person : Rows(u"tblPeople"_s)) none += person[u"ID"].ToInt();
    QCOMPARE(none, 0);
    AddPeople({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    for (Recordset& person : Rows(u"Select * from tblPeople order by LastName desc"_s)) {
      const QString name = person[u"LastName"].ToText();
      if (name == "c"_L1) continue;
      if (name == "a"_L1) break;
      if (name == "b"_L1) {
        person.Delete();
        continue;
      }
      person.Set(u"LastName", name + u"!"_s);
      person.Update();
    }
    QCOMPARE(LastNames(u"Select * from tblPeople order by ID"_s), (QStringList{u"a"_s, u"c"_s, u"d!"_s}));
  }

  void ARowAddedToATableStandsBehindTheOthers() {
    AddPeople({u"a"_s, u"b"_s});
    Bracket bracket;
    Recordset people(u"tblPeople"_s);
    people.AddNew();
    people.Set(u"LastName", u"c"_s);
    people.Update();
    people.Set(u"FirstName", u"Cid"_s);  // the row that was added is still the current one
    people.Update();
    people.AddNew();
    people.Set(u"LastName", u"d"_s);
    people.Update();
    QCOMPARE(people[u"ID"].ToInt(), 4);
    QVERIFY(!people.Eof() && !people.Bof());
    QCOMPARE(people.RecordCount(), 4);
    people.MovePrevious();
    QCOMPARE(people[u"FirstName"].ToText(), u"Cid"_s);
    people.MovePrevious();
    QCOMPARE(people[u"LastName"].ToText(), u"b"_s);
    people.MoveFirst();
    QCOMPARE(people[u"LastName"].ToText(), u"a"_s);
  }

  void WhatOthersWriteAfterAnAddDoesNotShow() {
    AddPeople({u"a"_s, u"b"_s});
    Bracket bracket;
    Recordset people(u"tblPeople"_s);
    people.AddNew();
    people.Set(u"LastName", u"c"_s);
    people.Update();
    UpdateTableBySQL(u"update tblPeople set LastName = 'x' where ID < 3"_s);
    UpdateTableBySQL(u"insert into tblPeople (LastName) values ('y')"_s);
    QCOMPARE(people[u"LastName"].ToText(), u"c"_s);
    people.MoveNext();
    QVERIFY(people.Eof());
    people.MoveFirst();
    QCOMPARE(people[u"LastName"].ToText(), u"a"_s);
    QCOMPARE(people.RecordCount(), 3);
    people.MoveLast();
    people.Delete();
    QCOMPARE(LastNames(u"Select * from tblPeople order by ID"_s), (QStringList{u"x"_s, u"x"_s, u"y"_s}));
  }

  void IsStatic() {
    AddPeople({u"a"_s, u"b"_s, u"c"_s});
    Bracket bracket;
    Recordset people(u"Select * from tblPeople order by LastName"_s);
    people.MoveNext();
    UpdateTableBySQL(u"delete * from tblPeople where LastName = 'c'"_s);
    AddPeople({u"d"_s});
    people.MoveNext();
    QCOMPARE(people[u"LastName"].ToText(), u"c"_s);
    people.MoveNext();
    QVERIFY(people.Eof());
    QCOMPARE(people.RecordCount(), 3);
    people.MoveFirst();
    QCOMPARE(people[u"LastName"].ToText(), u"a"_s);
  }

  void TheSameStatementCanBeOpenTwice() {
    AddPeople({u"a"_s, u"b"_s});
    Bracket bracket;
    Recordset outer(u"Select * from tblPeople order by LastName"_s);
    int pairs = 0;
    for (; !outer.Eof(); outer.MoveNext()) {
      Recordset inner(u"Select * from tblPeople order by LastName"_s);
      for (; !inner.Eof(); inner.MoveNext()) ++pairs;
    }
    QCOMPARE(pairs, 4);
  }

  void ANewRowGivesItsNumberWhileStillOpen() {
    Bracket bracket;
    Recordset people(u"Select * from tblPeople where ID = 0"_s);
    people.AddNew();
    people.Set(u"LastName", u"Lee"_s);
    QCOMPARE(people[u"lastname"].ToText(), u"Lee"_s);
    QVERIFY(people[u"ID"].IsNull());
    people.Update();
    QCOMPARE(people[u"ID"].ToInt(), 1);
    QVERIFY(people[u"FirstName"].IsNull());
    people.AddNew();
    people.Update();
    QCOMPARE(people[u"ID"].ToInt(), 2);
  }

  void NumbersAreNeverGivenTwiceAndCanBeNamed() {
    AddPeople({u"a"_s, u"b"_s});
    Bracket bracket;
    DeleteRecordsFromTable(u"tblPeople"_s, u"ID"_s, 2);
    Recordset people(u"tblPeople"_s);
    people.AddNew();
    people.Update();
    QCOMPARE(people[u"ID"].ToInt(), 3);
    people.AddNew();
    people.Set(u"ID", 50);
    people.Update();
    people.AddNew();
    people.Update();
    QCOMPARE(people[u"ID"].ToInt(), 51);
  }

  void UpdatesInPlace() {
    AddPeople({u"a"_s, u"b"_s, u"c"_s});
    Bracket bracket;
    Recordset people(u"Select * from tblPeople where LastName <> 'b'"_s);
    for (; !people.Eof(); people.MoveNext()) {
      people.Set(u"City", u"Perris"_s);
      people.Update();
      QCOMPARE(people[u"City"].ToText(), u"Perris"_s);
    }
    QCOMPARE(LastNames(u"Select * from tblPeople where City = 'Perris' order by ID"_s), (QStringList{u"a"_s, u"c"_s}));
  }

  void DeletesWhileItWalks() {
    AddPeople({u"a"_s, u"b"_s, u"c"_s});
    Bracket bracket;
    Recordset people(u"tblPeople"_s);
    for (; !people.Eof(); people.MoveNext()) {
      if (people[u"LastName"].ToText() == u"b"_s) continue;
      people.Delete();
      QVERIFY_THROWS_EXCEPTION(Failure, people[u"LastName"]);
    }
    QCOMPARE(LastNames(u"tblPeople"_s), QStringList{u"b"_s});
  }

  void FieldsKeepTheirTypes() {
    Bracket bracket;
    Recordset tasks(u"tblTasks"_s);
    tasks.AddNew();
    tasks.Set(u"FlatRate", Money::FromText(u"123456789.1234"_s));
    tasks.Set(u"DateTaskStarted", Date::FromParts(2026, 11, 21) + 0.25);
    tasks.Set(u"LogBook", true);
    tasks.Set(u"NumHours", 1.5);
    tasks.Set(u"Status", -1);
    tasks.Set(u"TaskName", u"0123"_s);
    tasks.Set(u"Comments", u"12.50"_s);
    tasks.Update();
    Recordset read(u"Select * from tblTasks where FlatRate = 123456789.1234 and LogBook = true and status = -1"_s);
    QVERIFY(RecordsetHasRows(read));
    QCOMPARE(read[u"FlatRate"], Value(Money::FromUnits(1234567891234)));
    QCOMPARE(read[u"DateTaskStarted"], Value(Date::FromParts(2026, 11, 21) + 0.25));
    QCOMPARE(read[u"LogBook"], Value(true));
    QCOMPARE(read[u"NumHours"], Value(1.5));
    QCOMPARE(read[u"Status"], Value(-1));
    QCOMPARE(read[u"TaskName"], Value(u"0123"_s));
    QCOMPARE(read[u"Comments"], Value(u"12.50"_s));
    QVERIFY(read[u"Tax"].IsNull());
    const std::pair<QStringView, int> types[] = {
        {u"Status", 2},          {u"ID", 3},       {u"NumHours", 4},   {u"FlatRate", 6},
        {u"DateTaskStarted", 7}, {u"IsEvent", 11}, {u"TaskName", 202}, {u"Comments", 203}};
    for (const auto& [field, type] : types) QCOMPARE(read.FieldType(field), type);
    Recordset locations(u"tblLocation"_s);
    QCOMPARE(locations.FieldType(u"taxrate"), 5);
  }

  void AmountsInStatementsAreExact() {
    Bracket bracket;
    UpdateTableBySQL(u"insert into tblRepackByType (TypeID, Price) values (1, 95)"_s);
    Recordset add(u"tblRepackByType"_s);
    add.AddNew();
    add.Set(u"TypeID", 2);
    add.Set(u"Price", 0.1);
    add.Update();
    UpdateTableBySQL(u"update tblRepackByType set Price = 95.1 where TypeID = 1"_s);
    QCOMPARE(GetValueFromTable(u"tblRepackByType"_s, u"TypeID"_s, 1, u"Price"_s), Value(Money::FromUnits(951000)));
    QCOMPARE(GetNumberRecordsComplex(u"Select * from tblRepackByType where Price < 95.1"_s).ToInt(), 1);
    QCOMPARE(GetNumberRecordsComplex(u"Select * from tblRepackByType where Price between 0.1 and 95.1"_s).ToInt(), 2);
  }

  void WhatAFieldCantHoldIsRefused() {
    AddPeople({u"Lee"_s});
    Bracket bracket;
    Recordset people(u"tblPeople"_s);
    people.Set(u"State", u"toolong"_s);
    QVERIFY_THROWS_EXCEPTION(Failure, people.Update());
    Recordset misc(u"tblMisc"_s);
    misc.AddNew();
    misc.Set(u"RepackCycle", 40000);
    QVERIFY_THROWS_EXCEPTION(Failure, misc.Update());
    Recordset models(u"tblModels"_s);
    models.AddNew();
    models.Set(u"Name", QString(256, u'x'));  // no declared size: the store's default of 255
    QVERIFY_THROWS_EXCEPTION(Failure, models.Update());
    models.Set(u"Name", QString(255, u'x'));
    models.Update();
    QCOMPARE(GetValueFromTable(u"tblPeople"_s, u"ID"_s, 1, u"State"_s), Value(QString()));
    QCOMPARE(GetNumberRecordsInTable(u"tblMisc"_s), 0);
  }

  void AJoinIsReadOnly() {
    AddPeople({u"Lee"_s});
    Bracket bracket;
    UpdateTableBySQL(u"insert into tblRig (OwnerID, rigAlias) values (1, 'Red')"_s);
    Recordset joined(
        u"Select tblPeople.LastName, tblRig.rigAlias from tblRig INNER JOIN tblPeople ON tblRig.OwnerID = tblPeople.ID"_s);
    QVERIFY(RecordsetHasRows(joined));
    QCOMPARE(joined[u"rigalias"].ToText(), u"Red"_s);
    joined.Set(u"rigAlias", u"Blue"_s);
    QVERIFY_THROWS_EXCEPTION(Failure, joined.Update());
  }

  void TextsCompareWithoutRegardToCaseAndAccentsStandBesideTheirLetters() {
    AddPeople({u"Zoe"_s, u"émile"_s, u"Emil"_s, u"eva"_s, u"Özil"_s, u"Oz"_s, u"o'neil"_s});
    QCOMPARE(LastNames(u"Select * from tblPeople order by LastName"_s),
             (QStringList{u"Emil"_s, u"émile"_s, u"eva"_s, u"o'neil"_s, u"Oz"_s, u"Özil"_s, u"Zoe"_s}));
    QCOMPARE(LastNames(u"Select * from tblPeople where LastName = 'ÉMILE'"_s), QStringList{u"émile"_s});
    QCOMPARE(LastNames(u"Select * from tblPeople where LastName = 'emile'"_s), QStringList());
  }

  void TheOrderOfTextsIsAnOrder() {
    const QString letters = u"aAeEéÉzZöÖßñ' -_9"_s;
    std::mt19937 random(20261121);
    QStringList names;
    for (int i = 0; i < 200; ++i) {
      QString name;
      for (int length = static_cast<int>(random() % 4) + 1; length > 0; --length)
        name += letters[static_cast<qsizetype>(random() % static_cast<unsigned>(letters.size()))];
      names << name;
    }
    AddPeople(names);
    const QStringList sorted = LastNames(u"Select * from tblPeople order by LastName, ID"_s);
    Bracket bracket;
    // What stands later is never less than what stands before, whichever pair is asked about.
    for (qsizetype i = 0; i < sorted.size(); i += 7) {
      for (qsizetype j = i + 1; j < sorted.size(); j += 5) {
        const QString before = QString(sorted[i]).replace(u'\'', u"''"_s);
        const QString behind = QString(sorted[j]).replace(u'\'', u"''"_s);
        QVERIFY(GetNumberRecordsComplex(
                    u"Select * from tblPeople where LastName = '%1' and LastName > '%2'"_s.arg(before, behind))
                    .IsEmpty());
      }
    }
  }

  void AFullDiskTakesTheWholeBracketBackAndSaysSo() {
    AddPeople({u"Lee"_s});
    {
      Bracket bracket;
      QVERIFY(OpenDatabase().Step(OpenDatabase().Plain("PRAGMA page_count")));
      OpenDatabase().Step(OpenDatabase().Plain("PRAGMA max_page_count = 1"));  // no less than the file has now
      bracket.Close();
    }
    prompts_->Expect(u"Sub UpdateTable()"_s, u"There is not enough space on the disk.\nNothing was changed."_s,
                     Answer::Ok);
    UpdateTable(u"tblPeople"_s, u"Comment"_s, QString(100000, u'x'), u"ID"_s, 1);
    prompts_->Finish();
    QVERIFY(!ConnectionIsOpen);
    QCOMPARE(LastNames(u"tblPeople"_s), QStringList{u"Lee"_s});
    QCOMPARE(GetValueFromTable(u"tblPeople"_s, u"ID"_s, 1, u"Comment"_s), Value(QString()));
  }

  void SurvivesTheFileBeingLetGoOf() {
    AddPeople({u"a"_s, u"b"_s});
    ConnectionStart();
    Recordset people(u"Select * from tblPeople order by LastName"_s);
    ConnectionClose();
    ReleaseDatabaseFile();
    people.MoveNext();
    QCOMPARE(people[u"LastName"].ToText(), u"b"_s);
  }

 private:
  std::unique_ptr<StoreFixture> store_;
  std::unique_ptr<ScriptedPrompts> prompts_;
};

LOFT_TEST_MAIN(RecordsetTest)
#include "tst_recordset.moc"
