#include <QTest>

#include "core/default_rows.h"
#include "support/scripted_prompts.h"
#include "support/store_fixture.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

/// All rows of a statement, the named fields joined by blanks.
QStringList Read(const QString& statement, const QStringList& fields) {
  Bracket bracket;
  QStringList rows;
  Recordset records(statement);
  for (; !records.Eof(); records.MoveNext()) {
    QStringList row;
    for (const QString& field : fields) row << records[field].ToText();
    rows << row.join(u' ');
  }
  return rows;
}

}  // namespace

class DefaultRowsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() { store_ = std::make_unique<StoreFixture>(); }
  void cleanup() { store_.reset(); }

  void ComponentTypesAreSevenAndFixed() {
    ScriptedPrompts prompts;
    UpdateTableBySQL(u"insert into tblComponentTypes (ID, Name) values (8, 'Helmet')"_s);
    CheckComponentTypes();
    const QStringList fixed{u"1 Container"_s, u"2 Main Canopy"_s,   u"3 Reserve Canopy"_s,
                            u"4 AAD"_s,       u"5 Chest Reserve"_s, u"6 Passenger Harness"_s,
                            u"7 Misc"_s};
    QCOMPARE(Read(u"tblComponentTypes"_s, {u"ID"_s, u"Name"_s}), fixed);
    for (const int missing : {1, 3, 6}) {
      DeleteRecordsFromTable(u"tblComponentTypes"_s, u"ID"_s, missing);
      UpdateTableBySQL(u"update tblComponentTypes set Name = 'Harness' where ID = 2"_s);
      CheckComponentTypes();
      QCOMPARE(Read(u"tblComponentTypes"_s, {u"ID"_s, u"Name"_s}), fixed);
    }
  }

  void TheSeventhComponentTypeIsNotTested() {
    ScriptedPrompts prompts;
    SetDefaultComponentTypes();
    DeleteRecordsFromTable(u"tblComponentTypes"_s, u"ID"_s, 7);
    CheckComponentTypes();
    QCOMPARE(GetNumberRecordsInTable(u"tblComponentTypes"_s), 6);
  }

  void RigTypesComeOnceWithTheirComponents() {
    ScriptedPrompts prompts;
    CheckMiscRow();
    CreateDefaultRigTypes();
    CreateDefaultRigTypes();
    QCOMPARE(Read(u"Select * from tblRigTypes order by ID"_s, {u"ID"_s, u"Name"_s, u"ReserveLocation"_s}),
             (QStringList{u"1 Sport Rig 1"_s, u"2 Tandem Rig 1"_s, u"3 Pilot Emergency Rig (back) 1"_s,
                          u"4 Pilot Emergency Rig (seat) 2"_s}));
    QCOMPARE(Read(u"tblRigTypeComponents"_s, {u"RigTypeID"_s, u"ComponentTypeID"_s}),
             (QStringList{u"1 1"_s, u"1 2"_s, u"1 3"_s, u"1 4"_s, u"2 1"_s, u"2 2"_s, u"2 3"_s, u"2 4"_s, u"2 6"_s,
                          u"3 1"_s, u"3 3"_s, u"4 1"_s, u"4 3"_s}));
    QCOMPARE(GetValueFromTableBySQL(u"tblMisc"_s, u"DefaultRigTypeID"_s).ToInt(), 1);
  }

  void AnEmptyLibraryGetsItsThreeFixedTasks() {
    ScriptedPrompts prompts;
    CreateDefaultTasks();
    CreateDefaultTasks();
    QCOMPARE(Read(u"Select * from tblTaskLib order by ID"_s,
                  {u"ID"_s, u"Name"_s, u"FlatRate"_s, u"HourlyRate"_s, u"LogBook"_s, u"AllowMultiple"_s,
                   u"IntervalType"_s, u"ModelID"_s, u"IntervalNumber"_s, u"IsEvent"_s, u"IsRigTypeSpecific"_s}),
             (QStringList{u"1 Inspect and repack reserve 0 0 True False 1 0 0 False False"_s,
                          u"2 Install component 0 0 True True 0 0 0 False False"_s,
                          u"3 Remove component 0 0 True True 0 0 0 False False"_s}));
    QCOMPARE(Read(u"tblTaskLibComponentTypes"_s, {u"TaskLibID"_s, u"ComponentTypeID"_s}),
             (QStringList{u"1 1"_s, u"1 3"_s}));
  }

  void TheSettingsAreOneRow() {
    const QStringList fields{u"HidePhotos"_s,       u"LastBackupDate"_s, u"UserID"_s,          u"RepackCycle"_s,
                             u"DefaultRigTypeID"_s, u"LastSystemID"_s,   u"LastJobID"_s,       u"LastCustomerID"_s,
                             u"LastComponentID"_s,  u"UploadAlias"_s,    u"DefaultRiggerID"_s, u"DefaultPhotoSize"_s};
    ScriptedPrompts prompts;
    CheckMiscRow();
    const QStringList defaults = Read(u"tblMisc"_s, fields);
    QCOMPARE(defaults.size(), 1);
    QCOMPARE(GetValueFromTableBySQL(u"tblMisc"_s, u"RepackCycle"_s), Value(180));
    QCOMPARE(GetValueFromTableBySQL(u"tblMisc"_s, u"DefaultPhotoSize"_s), Value(100));
    QCOMPARE(GetValueFromTableBySQL(u"tblMisc"_s, u"LastBackupDate"_s), Value(Date()));
    UpdateTableBySQL(u"update tblMisc set LastJobID = 5, RepackCycle = 120"_s);
    CheckMiscRow();
    QCOMPARE(GetValueFromTableBySQL(u"tblMisc"_s, u"LastJobID"_s), Value(5));
    AddMiscRow(90);
    prompts.ExpectBox(u"Reparing tblMisc"_s, u"2 records in tblMisc"_s);
    CheckMiscRow();
    QCOMPARE(Read(u"tblMisc"_s, fields), defaults);
  }

 private:
  std::unique_ptr<StoreFixture> store_;
};

LOFT_TEST_MAIN(DefaultRowsTest)
#include "tst_default_rows.moc"
