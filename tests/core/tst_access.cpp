#include <QTest>

#include "core/failure.h"
#include "core/store/access.h"
#include "core/store/database.h"
#include "support/scripted_prompts.h"
#include "support/store_fixture.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

int AddPerson(const QString& lastName, const QString& comment = QString()) {
  Bracket bracket;
  Recordset people(u"tblPeople"_s);
  people.AddNew();
  people.Set(u"LastName", lastName);
  if (!comment.isNull()) people.Set(u"Comment", comment);
  people.Update();
  return people[u"ID"].ToInt();
}

void AddRowsToJobComponents(int count) {
  Bracket bracket;
  Recordset rows(u"tblJobComponents"_s);
  for (int i = 0; i < count; ++i) {
    rows.AddNew();
    rows.Set(u"JobID", 7);
    rows.Set(u"ComponentID", i);
    rows.Update();
  }
}

const QString kNoTable = u"Could not find the table 'tblNowhere'."_s;
const QString kNoField = u"Could not find the field 'Nothing'."_s;

}  // namespace

class AccessTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() { store_ = std::make_unique<StoreFixture>(); }
  void cleanup() { store_.reset(); }

  void AMissingRecordReadsEmpty() {
    ScriptedPrompts prompts;
    const Value value = GetValueFromTable(u"tblPeople"_s, u"ID"_s, 5, u"LastName"_s);
    QVERIFY(value.IsEmpty());
    QCOMPARE(value.ToInt(), 0);
    QCOMPARE(value.ToText(), QString());
    QVERIFY(value.ToDate().IsNone());
  }

  void ANullReadsByTheTypeOfItsField() {
    ScriptedPrompts prompts;
    const int id = AddPerson(u"Lee"_s);
    QCOMPARE(GetValueFromTable(u"tblPeople"_s, u"ID"_s, id, u"FirstName"_s), Value(QString()));
    QCOMPARE(GetValueFromTable(u"tblPeople"_s, u"ID"_s, id, u"Comment"_s), Value(QString()));
    QCOMPARE(GetValueFromTable(u"tblPeople"_s, u"ID"_s, id, u"Rigger"_s), Value(0));
    QCOMPARE(GetValueFromTableString(u"tblPeople"_s, u"LastName"_s, u"lee"_s, u"City"_s), Value(QString()));
    QVERIFY(GetValueFromTableBySQL(u"Select * from tblPeople where ID = "_s + QString::number(id), u"FirstName"_s)
                .IsEmpty());
    QVERIFY(GetValueFromTableBySQL(u"tblPeople"_s, u"rigger"_s).IsEmpty());
  }

  void KeysAreJoinedAsTheyStand() {
    ScriptedPrompts prompts;
    const int id = AddPerson(u"Lee"_s);
    QCOMPARE(GetValueFromTableString(u"tblPeople"_s, u"LastName"_s, u"LEE"_s, u"ID"_s).ToInt(), id);
    QCOMPARE(GetValueFromTable(u"tblPeople"_s, u"id"_s, id, u"LASTNAME"_s).ToText(), u"Lee"_s);
  }

  void AColumnWithoutRecordsIsOneEmptyElement() {
    ScriptedPrompts prompts;
    QList<Value> values;
    GetRecordsFromTableBySQL(u"Select * from tblPeople"_s, u"LastName"_s, values);
    QCOMPARE(values.size(), 1);
    QVERIFY(values[0].IsEmpty());
    QList<int> ids;
    GetRecordsFromTable(u"tblJobComponents"_s, u"JobID"_s, 7, u"ComponentID"_s, ids);
    QCOMPARE(ids, QList<int>{0});
  }

  void AColumnGrowsAndIsCutToItsRecords_data() {
    QTest::addColumn<int>("count");
    for (int count : {1, 25, 26, 27, 51, 52, 300}) QTest::addRow("%d", count) << count;
  }
  void AColumnGrowsAndIsCutToItsRecords() {
    QFETCH(int, count);
    ScriptedPrompts prompts;
    AddRowsToJobComponents(count);
    QList<int> ids;
    GetRecordsFromTable(u"tblJobComponents"_s, u"JobID"_s, 7, u"ComponentID"_s, ids);
    QCOMPARE(ids.size(), count);
    for (int i = 0; i < count; ++i) QCOMPARE(ids[i], i);
  }

  void ANullElementFollowsTheFirstColumn() {
    ScriptedPrompts prompts;
    AddPerson(u"Lee"_s);
    QList<Value> values;
    GetRecordsFromTableBySQL(u"Select OrgName, Comment from tblPeople"_s, u"OrgName"_s, values);
    QCOMPARE(values, QList<Value>{Value(0)});  // a text of type 202 is not in the test
    GetRecordsFromTableBySQL(u"Select Comment, OrgName from tblPeople"_s, u"OrgName"_s, values);
    QCOMPARE(values, QList<Value>{Value(QString())});
  }

  void ANullAmongNumbersBehindAMemoFails() {
    AddPerson(u"Lee"_s);
    ScriptedPrompts prompts;
    prompts.ExpectBox(
        u"Function GetRecordsFromTable "_s,
        u"Type mismatch\n\nSQL = Select Comment from tblPeople where ID = 1\n\nLooking in table: tblPeople\n"
        "Where ID = 1\n\nReturning field: Comment\n"_s);
    QList<int> ids;
    GetRecordsFromTable(u"tblPeople"_s, u"ID"_s, 1, u"Comment"_s, ids);
    QCOMPARE(ids.size(), 26);
    QVERIFY(!ConnectionIsOpen);
  }

  void TheIndexIsSixteenBitsWide() {
    ScriptedPrompts prompts;
    AddRowsToJobComponents(32767);
    QList<int> ids;
    GetRecordsFromTable(u"tblJobComponents"_s, u"JobID"_s, 7, u"ComponentID"_s, ids);
    QCOMPARE(ids.size(), 32767);
    AddRowsToJobComponents(1);
    prompts.ExpectBox(u"Function GetRecordsFromTableBySQL"_s,
                      u"Overflow\n\nSQL = Select * from tblJobComponents\n\nReturning field: ComponentID\n"_s);
    QList<Value> values;
    GetRecordsFromTableBySQL(u"Select * from tblJobComponents"_s, u"ComponentID"_s, values);
    QVERIFY(values.size() >= 32768);
    QCOMPARE(values[32766].ToInt(), 32766);
  }

  void Counts() {
    ScriptedPrompts prompts;
    QCOMPARE(GetNumberRecordsInTable(u"tblPeople"_s), 0);
    QVERIFY(GetNumberRecordsComplex(u"Select * from tblPeople"_s).IsEmpty());
    QCOMPARE(GetNumberRecordsComplex(u"Select * from tblPeople"_s).ToInt(), 0);
    QCOMPARE(GetNumberRecords(u"tblPeople"_s, u"ID"_s, 1), 0);
    AddPerson(u"Lee"_s);
    AddPerson(u"Lee"_s);
    QCOMPARE(GetNumberRecordsInTable(u"tblPeople"_s), 2);
    QCOMPARE(GetNumberRecordsComplex(u"Select * from tblPeople where LastName = 'Lee'"_s).ToInt(), 2);
    QCOMPARE(GetNumberRecords(u"tblPeople"_s, u"ID"_s, 2), 1);
  }

  void UpdateTableWritesEveryMatch() {
    ScriptedPrompts prompts;
    for (int i = 0; i < 3; ++i) AddPerson(u"Lee"_s);
    AddPerson(u"Poe"_s);
    UpdateTable(u"tblPeople"_s, u"City"_s, u"Perris"_s, u"LastName"_s, u"'lee'"_s);
    QCOMPARE(GetNumberRecordsComplex(u"Select * from tblPeople where City = 'Perris'"_s).ToInt(), 3);
    UpdateTable(u"tblPeople"_s, u"City"_s, u"Nowhere"_s, u"ID"_s, 99);
    QCOMPARE(GetNumberRecordsComplex(u"Select * from tblPeople where City = 'Nowhere'"_s).ToInt(), 0);
  }

  void ActionsRunAndDelete() {
    ScriptedPrompts prompts;
    AddPerson(u"Lee"_s);
    AddPerson(u"Poe"_s);
    UpdateTableBySQL(u"Update tblPeople set rigger = true where id = 2"_s);
    QCOMPARE(GetValueFromTable(u"tblPeople"_s, u"ID"_s, 2, u"rigger"_s), Value(true));
    DeleteRecordsFromTable(u"tblPeople"_s, u"ID"_s, 1);
    QCOMPARE(GetNumberRecordsInTable(u"tblPeople"_s), 1);
    DeleteRecordsFromTableBySQL(u"delete * from tblPeople where rigger = true"_s);
    QCOMPARE(GetNumberRecordsInTable(u"tblPeople"_s), 0);
  }

  void DeleteAllRecordsAsksFirst() {
    ScriptedPrompts prompts;
    AddPerson(u"Lee"_s);
    prompts.Expect(u"Loftkeep"_s, u"Delete tblPeople?"_s, Answer::No)
        .WithButtons(Buttons::YesNo)
        .WithPreset(Answer::No);
    DeleteAllRecords(u"tblPeople"_s, true);
    QCOMPARE(GetNumberRecordsInTable(u"tblPeople"_s), 1);
    prompts.Expect(u"Loftkeep"_s, u"Delete tblPeople?"_s, Answer::Yes);
    DeleteAllRecords(u"tblPeople"_s, true);
    QCOMPARE(GetNumberRecordsInTable(u"tblPeople"_s), 0);
    AddPerson(u"Poe"_s);
    DeleteAllRecords(u"tblPeople"_s, false);
    QCOMPARE(GetNumberRecordsInTable(u"tblPeople"_s), 0);
  }

  void LocationsLoseTheirDefault() {
    ScriptedPrompts prompts;
    Bracket bracket;
    Recordset locations(u"tblLocation"_s);
    for (bool isDefault : {true, false, true}) {
      locations.AddNew();
      locations.Set(u"Default", isDefault);
      locations.Update();
    }
    TurnOffAllLocationDefaults();
    QCOMPARE(GetNumberRecordsComplex(u"Select * from tblLocation where Default = true"_s).ToInt(), 0);
    QCOMPARE(GetNumberRecordsInTable(u"tblLocation"_s), 3);
  }

  // Every failure box, with its exact title, icon and text; and what becomes of the connection.

  void FailingReadsShowTheirBoxAndCloseTheConnection() {
    ScriptedPrompts prompts;
    prompts
        .ExpectBox(
            u"Function GetValueFromTable "_s,
            kNoTable +
                u"\n\nSQL = Select Name from tblNowhere where ID = 5\n\nLooking in table: tblNowhere\nWhere ID = 5\n\n"
                "Returning field: Name\n"_s)
        .WithIcon(Icon::Exclamation);
    QVERIFY(GetValueFromTable(u"tblNowhere"_s, u"ID"_s, 5, u"Name"_s).IsEmpty());
    prompts
        .ExpectBox(
            u"Function GetValueFromTableString "_s,
            u"Syntax error in string in query expression 'Select ID from tblPeople where LastName = 'O'Neil''.\n\n"
            "SQL = Select ID from tblPeople where LastName = 'O'Neil'\n\nLooking in table: tblPeople\n"
            "Where LastName = O'Neil\n\nReturning field: ID\n"_s)
        .WithIcon(Icon::Exclamation);
    QVERIFY(GetValueFromTableString(u"tblPeople"_s, u"LastName"_s, u"O'Neil"_s, u"ID"_s).IsEmpty());
    prompts
        .ExpectBox(u"Function GetValueFromTableBySQL "_s,
                   kNoField + u"\n\nSQL = Select Nothing from tblPeople\n\nReturning field: Nothing\n"_s)
        .WithIcon(Icon::Exclamation);
    QVERIFY(GetValueFromTableBySQL(u"Select Nothing from tblPeople"_s, u"Nothing"_s).IsEmpty());
    prompts
        .ExpectBox(
            u"Function GetRecordsFromTable "_s,
            kNoTable +
                u"\n\nSQL = Select ID from tblNowhere where ID = 5\n\nLooking in table: tblNowhere\nWhere ID = 5\n\n"
                "Returning field: ID\n"_s)
        .WithIcon(Icon::Exclamation);
    QList<int> ids;
    GetRecordsFromTable(u"tblNowhere"_s, u"ID"_s, 5, u"ID"_s, ids);
    prompts
        .ExpectBox(u"Function GetRecordsFromTableBySQL"_s,
                   kNoTable + u"\n\nSQL = tblNowhere\n\nReturning field: ID\n"_s)
        .WithIcon(Icon::Exclamation);
    QList<Value> values;
    GetRecordsFromTableBySQL(u"tblNowhere"_s, u"ID"_s, values);
    prompts
        .ExpectBox(u"Function GetNumberRecordsInTable(TableName As String)"_s,
                   kNoTable + u"\nTableName = tblNowhere\n"_s)
        .WithIcon(Icon::Information);
    QCOMPARE(GetNumberRecordsInTable(u"tblNowhere"_s), 0);
    prompts
        .ExpectBox(u"Function GetNumberRecordsComplex(MySQL As String)"_s,
                   kNoTable + u"\nSQL = Select * from tblNowhere\n"_s)
        .WithIcon(Icon::Information);
    QVERIFY(GetNumberRecordsComplex(u"Select * from tblNowhere"_s).IsEmpty());
    QVERIFY(!ConnectionIsOpen);
    QVERIFY(!PointerIsBusy());
    QVERIFY_THROWS_EXCEPTION(Failure, GetNumberRecords(u"tblNowhere"_s, u"ID"_s, 1));
    QVERIFY_THROWS_EXCEPTION(Failure, DeleteAllRecords(u"tblNowhere"_s, false));
  }

  void AFieldTheRecordsLackFails() {
    AddPerson(u"Lee"_s);
    ScriptedPrompts prompts;
    prompts.ExpectBox(u"Function GetValueFromTableBySQL "_s,
                      u"Item cannot be found in the collection corresponding to the requested name or ordinal.\n\n"
                      "SQL = tblPeople\n\nReturning field: Nothing\n"_s);
    QVERIFY(GetValueFromTableBySQL(u"tblPeople"_s, u"Nothing"_s).IsEmpty());
  }

  void FailingWritesLeaveTheConnectionOpen() {
    const auto text = [](const QString& error, const QString& sql) {
      return error + u"\nThe following SQL statement caused on error\n\nSQL = "_s + sql + u'\n';
    };
    const auto closeAgain = [] {
      QVERIFY(ConnectionIsOpen);
      QVERIFY(PointerIsBusy());
      ConnectionClose();
      QVERIFY(!PointerIsBusy());
    };
    ScriptedPrompts prompts;
    prompts.ExpectBox(u"Sub UpdateTable()"_s, text(kNoTable, u"Select * from tblNowhere where ID = 5"_s))
        .WithIcon(Icon::Exclamation);
    UpdateTable(u"tblNowhere"_s, u"Name"_s, u"x"_s, u"ID"_s, 5);
    closeAgain();
    prompts.ExpectBox(u"Sub UpdateTableBySQL(MySQL)"_s, text(kNoTable, u"update tblNowhere set ID = 1"_s))
        .WithIcon(Icon::Exclamation);
    UpdateTableBySQL(u"update tblNowhere set ID = 1"_s);
    closeAgain();
    prompts
        .ExpectBox(u"Sub DeleteRecordsFromTable(MySQL)"_s, text(kNoTable, u"Delete * from tblNowhere where ID = 5"_s))
        .WithIcon(Icon::Exclamation);
    DeleteRecordsFromTable(u"tblNowhere"_s, u"ID"_s, 5);
    closeAgain();
    prompts.ExpectBox(u"Sub DeleteRecordsFromTableBySQL(MySQL)"_s, text(kNoTable, u"delete * from tblNowhere"_s))
        .WithIcon(Icon::Exclamation);
    DeleteRecordsFromTableBySQL(u"delete * from tblNowhere"_s);
    closeAgain();
  }

  void ATextTooLongForItsFieldIsRefusedAndNothingIsLost() {
    AddPerson(u"Lee"_s);
    const QString tooSmall =
        u"The field is too small to accept the amount of data you attempted to add.  "
        "Try inserting or pasting less data."_s;
    ScriptedPrompts prompts;
    prompts.ExpectBox(
        u"Sub UpdateTable()"_s,
        tooSmall + u"\nThe following SQL statement caused on error\n\nSQL = Select * from tblPeople where ID = 1\n"_s);
    UpdateTable(u"tblPeople"_s, u"LastName"_s, QString(51, u'x'), u"ID"_s, 1);
    ConnectionClose();
    QCOMPARE(GetValueFromTable(u"tblPeople"_s, u"ID"_s, 1, u"LastName"_s).ToText(), u"Lee"_s);
    UpdateTable(u"tblPeople"_s, u"LastName"_s, QString(50, u'\u00e9'), u"ID"_s, 1);
    QCOMPARE(GetValueFromTable(u"tblPeople"_s, u"ID"_s, 1, u"LastName"_s).ToText(), QString(50, u'\u00e9'));
  }

  // The connection.

  void OnlyTheOutermostRoutineCloses() {
    ScriptedPrompts prompts;
    QVERIFY(!ConnectionIsOpen);
    {
      Bracket outer;
      QVERIFY(ConnectionIsOpen);
      QVERIFY(prompts.ShowsBusyPointer());
      {
        Bracket inner;
        GetNumberRecordsInTable(u"tblPeople"_s);
      }
      QVERIFY(ConnectionIsOpen);
      ConnectionClose();  // a called routine may close on purpose
    }
    QVERIFY(!ConnectionIsOpen);
    QVERIFY(!prompts.ShowsBusyPointer());
  }

  void ClosingTwiceSaysSo() {
    ScriptedPrompts prompts;
    prompts.ExpectBox(u"Loftkeep"_s, u"connection already closed"_s);
    ConnectionClose();
    QVERIFY(!ConnectionIsOpen);
  }

  void KeptOpenTheConnectionStaysAsItIs() {
    ScriptedPrompts prompts;
    ConnectionStart();
    KeepConnectionOpen = true;
    ConnectionClose();
    QVERIFY(ConnectionIsOpen);
    QVERIFY(prompts.ShowsBusyPointer());
    KeepConnectionOpen = false;
    ConnectionClose();
    QVERIFY(!ConnectionIsOpen);
  }

  void OpensAreCountedForTheDeveloper() {
    ScriptedPrompts prompts;
    static int shown = 0;
    ShowConnectionCount = [](int count) { shown = count; };
    CountDbAccess = true;
    ConnectionCount = 0;
    GetNumberRecordsInTable(u"tblPeople"_s);
    GetNumberRecordsInTable(u"tblPeople"_s);
    CountDbAccess = false;
    ShowConnectionCount = nullptr;
    QCOMPARE(ConnectionCount, 2);
    QCOMPARE(shown, 2);
    ConnectionCount = 0;
  }

  void AMissingFileAndAFileThatIsNoDatabaseSayWhy() {
    ScriptedPrompts prompts;
    ReleaseDatabaseFile();
    const QString missing = store_->Folder() / u"gone.mdb"_s;
    ConnectionString = ConnectionStringFor(missing);
    prompts.ExpectBox(u"Sub ConnectionStart"_s, u"Could not find file '"_s + missing + u"'."_s)
        .WithIcon(Icon::Exclamation);
    ConnectionStart();
    QVERIFY(!ConnectionIsOpen);
    const QString text =
        store_->Folder().Write(u"text.mdb"_s, QByteArray("just some words, no database\n").repeated(100));
    ConnectionString = ConnectionStringFor(text);
    prompts.ExpectBox(u"Sub ConnectionStart"_s, u"Unrecognized database format '"_s + text + u"'."_s);
    ConnectionStart();
    QVERIFY(!ConnectionIsOpen);
    QVERIFY(!PointerIsBusy());
    QCOMPARE(store_->Folder().Read(u"text.mdb"_s).size(), 2900);
  }

  void ABracketIsOneTransactionUntilABoxShows() {
    ScriptedPrompts prompts;
    Bracket bracket;
    AddPerson(u"Lee"_s);
    QVERIFY(OpenDatabase().InTransaction());
    prompts.ExpectBox(u"Loftkeep"_s, u"a moment"_s).Meanwhile([] { QVERIFY(!OpenDatabase().InTransaction()); });
    MsgBox(u"a moment"_s);
    prompts.Finish();
    AddPerson(u"Poe"_s);
    QVERIFY(OpenDatabase().InTransaction());
    bracket.Close();
    QCOMPARE(GetNumberRecordsInTable(u"tblPeople"_s), 2);
  }

 private:
  std::unique_ptr<StoreFixture> store_;
};

LOFT_TEST_MAIN(AccessTest)
#include "tst_access.moc"
