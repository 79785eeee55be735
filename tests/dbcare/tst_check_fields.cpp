#include <QTest>

#include "core/store/schema.h"
#include "dbcare/check_fields.h"
#include "support/scripted_prompts.h"
#include "support/store_fixture.h"
#include "support/test_program.h"
#include "support/work_watch.h"

using namespace Qt::StringLiterals;

class CheckFieldsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() { store_ = std::make_unique<StoreFixture>(); }
  void cleanup() { store_.reset(); }

  void ACurrentDatabaseShowsNoBox() {
    ScriptedPrompts prompts;
    CheckAllFields(true);
    QCOMPARE(prompts.Transcript().size(), 0);
    QVERIFY(!ConnectionIsOpen);
  }

  void AnEmptyFileGainsTheWholeSchema() {
    ScriptedPrompts prompts;
    ReleaseDatabaseFile();
    const QString path = store_->Folder() / u"new.mdb"_s;
    Database::CreateFile(path);
    ConnectionString = ConnectionStringFor(path);
    CheckAllFields(false);
    Bracket bracket;
    for (const SchemaTable& table : Schema()) {
      Recordset records(table.table);
      QCOMPARE(records.Fields().size(), table.columns.size());
      for (const Column& field : table.columns) {
        const QString name = field;
        QCOMPARE(records.FieldType(name), field.type);
        if (field.type == jet::kText)
          QCOMPARE(records.Fields()[static_cast<size_t>(records.ColumnOf(name))].size,
                   field.size > 0 ? field.size : 255);
      }
    }
    QCOMPARE(Schema().size(), size_t{25});
    QVERIFY(OpenDatabase().CountIndexes() > 0);
  }

  void ItTellsHowFarItIsAndCantBeCancelled() {
    {
      Bracket bracket;
      OpenDatabase().ChangeSchema("ALTER TABLE tblTasks DROP COLUMN LocationID");
    }
    ScriptedPrompts prompts;
    WorkWatch watch;
    watch.cancels = true;
    prompts
        .ExpectBox(u"Database updated"_s,
                   u"A field is being added to your database.\n\nTable: tblTasks\nNew field: LocationID"_s)
        .Meanwhile(&WorkWatch::LetTimePass);
    CheckAllFields(true);
    QCOMPARE(watch.shown.size(), 1);
    QCOMPARE(watch.shown[0].total, static_cast<qint64>(Schema().size()));
    QVERIFY(watch.shown[0].done > 0 && !watch.shown[0].canCancel && !watch.isShown);
    QCOMPARE(GetValueFromTable(u"tblTasks"_s, u"ID"_s, 1, u"LocationID"_s), Value());
    Bracket bracket;
    QVERIFY(Recordset(u"tblTasks"_s).ColumnOf(u"LocationID") > 0);
    bracket.Close();
  }

  void AMissingFieldIsAddedAndAllRowsStay() {
    UpdateTableBySQL(u"insert into tblTasks (TaskName, Status) values ('old line', -1)"_s);
    {
      Bracket bracket;
      OpenDatabase().ChangeSchema("ALTER TABLE tblTasks DROP COLUMN LocationID");
    }
    ScriptedPrompts prompts;
    prompts.ExpectBox(u"Database updated"_s,
                      u"A field is being added to your database.\n\nTable: tblTasks\nNew field: LocationID"_s);
    CheckAllFields(true);
    QCOMPARE(GetValueFromTable(u"tblTasks"_s, u"ID"_s, 1, u"LocationID"_s), Value(0));
    QCOMPARE(GetValueFromTable(u"tblTasks"_s, u"ID"_s, 1, u"TaskName"_s), Value(u"old line"_s));
    QCOMPARE(GetValueFromTable(u"tblTasks"_s, u"ID"_s, 1, u"Status"_s), Value(-1));
  }

  void AMissingTableIsAnnouncedWithItsFieldsOrAddedInSilence() {
    ScriptedPrompts prompts;
    const auto drop = [] {
      Bracket bracket;
      OpenDatabase().ChangeSchema("DROP TABLE tblSBhx");
    };
    drop();
    prompts.ExpectBox(u"Missing table"_s, u"Table tblSBhx is being added to this database"_s);
    for (const QString& field : {u"CompID"_s, u"Comments"_s, u"DateDone"_s})
      prompts.ExpectBox(u"Database updated"_s,
                        u"A field is being added to your database.\n\nTable: tblSBhx\nNew field: "_s + field);
    CheckAllFields(true);
    prompts.Finish();
    drop();
    CheckAllFields(false);
    QCOMPARE(GetNumberRecordsInTable(u"tblSBhx"_s), 0);
  }

  void ATableThatCantBeMadeIsTold() {
    ScriptedPrompts prompts;
    prompts.ExpectBox(u"Sub CreateTable()"_s, u"table [tblRig] already exists\nTable: tblRig\nField: ID\nType: 3"_s);
    CreateTable(u"tblRig"_s, u"ID"_s, jet::kInt32, true);
    QVERIFY(!ConnectionIsOpen);
  }

  void AFailingCheckNamesTheTableAndTheField() {
    {
      Bracket bracket;
      OpenDatabase().ChangeSchema("DROP TABLE tblRig; CREATE VIEW tblRig AS SELECT 1 AS ID");
    }
    ScriptedPrompts prompts;
    prompts.ExpectBox(
        u"Sub CheckAllFields"_s,
        u"Cannot add a column to a view\nTableName = tblRig\nMyField = OwnerID\nIsAutoInc = False\nFieldType =3"_s);
    CheckAllFields(false);
  }

  void LostComponentTypesAreListed() {
    ScriptedPrompts prompts;
    ReportLostComponentTypes();
    UpdateTableBySQL(u"insert into tblModels (Name, TypeID) values ('Raven', 3)"_s);
    UpdateTableBySQL(u"insert into tblComponents (ModelID, TypeID, SubType) values (1, 0, 'II')"_s);
    UpdateTableBySQL(u"insert into tblComponents (ModelID, TypeID, SubType) values (1, 3, 'III')"_s);
    prompts.ExpectBox(u"Loftkeep"_s,
                      u"The following components have lost their component type:\n\nRaven - II\n\n"
                      "You can correct this by selecting the component \non the COMPONENTS screen\n"
                      "(The component will only be visible when the ALL COMPONENT TYPES \ncheck box is checked)"_s);
    ReportLostComponentTypes();
  }

  void TheLettersOfAFieldMakeNoOtherField() {
    ScriptedPrompts prompts;
    QVERIFY(FieldExists(50, true, u"tblPeople"_s, u"LASTNAME"_s, jet::kText));
  }

  void ComponentsOfTheFirstRigAreFreedToo() {
    ScriptedPrompts prompts;
    UpdateTableBySQL(u"insert into tblComponents (RigID) values (1)"_s);
    FreeComponentsOfVanishedRigs();
    QCOMPARE(GetValueFromTable(u"tblComponents"_s, u"ID"_s, 1, u"RigID"_s), Value(0));
  }

  void ComponentsOfAVanishedRigAreFreed() {
    ScriptedPrompts prompts;
    UpdateTableBySQL(u"insert into tblRig (rigAlias) values ('Red')"_s);
    for (int rig : {1, 2, 0, 2}) UpdateTableBySQL(u"insert into tblComponents (RigID) values (%1)"_s.arg(rig));
    FreeComponentsOfVanishedRigs();
    QList<Value> rigs;
    GetRecordsFromTableBySQL(u"tblComponents"_s, u"RigID"_s, rigs);
    QCOMPARE(rigs, (QList<Value>{1, 0, 0, 0}));
  }

 private:
  std::unique_ptr<StoreFixture> store_;
};

LOFT_TEST_MAIN(CheckFieldsTest)
#include "tst_check_fields.moc"
