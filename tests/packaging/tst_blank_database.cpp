#include <QFile>
#include <QTest>

#include "core/store/access.h"
#include "core/store/schema.h"
#include "dbcare/check_fields.h"
#include "support/scripted_prompts.h"
#include "support/temp_folder.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

/// The empty database that stands beside the program.
class TestBlankDatabase : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void LacksNothing();
  void HoldsNoRow();
  void LeavesNoJournal();

  void init();
  void cleanup();

 private:
  ScriptedPrompts prompts_;
  TempFolder folder_;
};

void TestBlankDatabase::init() {
  QFile::remove(folder_ / u"loftkeep.mdb"_s);
  QVERIFY(QFile::copy(QStringLiteral(BLANK_DATABASE), folder_ / u"loftkeep.mdb"_s));
  ConnectionString = ConnectionStringFor(folder_ / u"loftkeep.mdb"_s);
}

void TestBlankDatabase::cleanup() {
  prompts_.Finish();
  ReleaseDatabaseFile();
}

// Each table and field that the check adds would show its box, which no script expects.
void TestBlankDatabase::LacksNothing() {
  CheckAllFields(true);
  QVERIFY(prompts_.Transcript().isEmpty());
  QVERIFY(FieldExists(0, true, u"tblTaskLibRigType"_s, u"TaskLibID"_s, 3));
}

void TestBlankDatabase::HoldsNoRow() {
  QVERIFY(!Schema().empty());
  for (const SchemaTable& table : Schema())
    QVERIFY2(GetNumberRecordsInTable(table.table) == 0, qPrintable(QString(table.table)));
}

void TestBlankDatabase::LeavesNoJournal() { QVERIFY(!QFile::exists(QStringLiteral(BLANK_DATABASE) + u"-journal"_s)); }

LOFT_TEST_MAIN(TestBlankDatabase)
#include "tst_blank_database.moc"
