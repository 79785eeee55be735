#include <QFile>
#include <QTest>

#include <sqlite3.h>

#include "core/data_folder.h"
#include "core/files.h"
#include "core/store/access.h"
#include "dbcare/new_database.h"
#include "support/data_home.h"
#include "support/exported_loft.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

class NewDatabaseTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() {
    home_ = std::make_unique<DataHome>();
    CreateSubFolders();
  }
  void cleanup() { home_.reset(); }

  void WithoutAnEmptyDatabaseTheSchemaMakesOne() {
    ScriptedPrompts prompts;
    prompts.ExpectBox(u"Create new database"_s,
                      u"Preparing to create new database.\n\nThis should take just a few seconds .........."_s);
    prompts.ExpectBox(u"Creating new database file"_s,
                      u"The file 'blank.mdb' could not be found.\n\nA database file will now be created."_s);
    CreateNewDatabase();
    QCOMPARE(DatabasePath(), DatabaseFile());
    QCOMPARE(GetNumberRecordsInTable(u"tblTaskLibRigType"_s), 0);
    QVERIFY(IsValidDatabase(DatabaseFile()));
  }

  void AnEmptyDatabaseIsCopied() {
    ScriptedPrompts prompts;
    MakeDatabaseFile(SupportFile(u"blank.mdb"_s), u"Copied"_s);
    prompts.ExpectBox(u"Create new database"_s,
                      u"Preparing to create new database.\n\nThis should take just a few seconds .........."_s);
    CreateNewDatabase();
    QCOMPARE(GetValueFromTable(u"tblPeople"_s, u"ID"_s, 1, u"LastName"_s).ToText(), u"Copied"_s);
  }

  void TellsAValidDatabase() {
    ScriptedPrompts prompts;
    const QString good = Folder() / u"good.mdb"_s;
    MakeDatabaseFile(good, u"Lee"_s);
    QVERIFY(IsValidDatabase(good));
    ConnectionString = ConnectionStringFor(good);
    UpdateTableBySQL(u"delete * from tblPeople"_s);
    {
      Bracket bracket;
      OpenDatabase().ChangeSchema("DROP TABLE tblSchedules");
    }
    QVERIFY(!IsValidDatabase(good));
    QCOMPARE(DatabasePath(), good);
    QVERIFY(!IsValidDatabase(Folder().Write(u"words.mdb"_s, "no database at all")));
    QVERIFY(!IsValidDatabase(Folder() / u"missing.mdb"_s));
  }

  void ATableThatCantBeReadMakesADatabaseInvalid_data() {
    QTest::addColumn<QString>("table");
    for (const char* table :
         {"tblPeople", "tblRig", "tblComponents", "tblModels", "tblTasks", "tblJobs", "tblSchedules", "tblMisc"})
      QTest::newRow(table) << QString::fromLatin1(table);
  }
  void ATableThatCantBeReadMakesADatabaseInvalid() {
    QFETCH(QString, table);
    ScriptedPrompts prompts;
    MakeDatabaseFile(DatabaseFile(), u"Ours"_s);
    ConnectionString = ConnectionStringFor(DatabaseFile());
    const QString path = Folder() / u"spoiled.mdb"_s;
    MakeDatabaseFile(path, u"Theirs"_s);
    const int page =
        RowsOfFile(path, u"select rootpage from sqlite_master where name = '%1'"_s.arg(table)).value(0).toInt();
    QVERIFY(page > 1);
    QFile file(path);
    constexpr int kPage = 4096;
    QVERIFY(file.open(QFile::ReadWrite) && file.seek(qint64(page - 1) * kPage));
    QCOMPARE(file.write(QByteArray(kPage, '\xff')), kPage);
    file.close();
    const QByteArray spoiled = Folder().Read(u"spoiled.mdb"_s);
    QVERIFY(!IsValidDatabase(path));
    QCOMPARE(Folder().Read(u"spoiled.mdb"_s), spoiled);
    QCOMPARE(GetValueFromTable(u"tblPeople"_s, u"ID"_s, 1, u"LastName"_s).ToText(), u"Ours"_s);
  }

  void BackupsAreNumberedAboveTheHighest() {
    ScriptedPrompts prompts;
    QCOMPARE(NextDBfile(), u"db00001.mdb"_s);
    for (const char* name : {"db00001.mdb", "db00007.mdb", "db000099.mdb", "db0009.mdb", "xx00050.mdb", "db00060.txt"})
      Folder().Write(u"home/loftkeep/backup/"_s + QString::fromLatin1(name), "x");
    QCOMPARE(NextDBfile(), u"db00008.mdb"_s);
  }

  void ABackupIsTheWholeFile() {
    ScriptedPrompts prompts;
    MakeDatabaseFile(DatabaseFile(), u"Lee"_s);
    QString name;
    MakeBackupCopy(false, name);
    QCOMPARE(name, u"db00001.mdb"_s);
    QCOMPARE(Folder().Read(u"home/loftkeep/backup/db00001.mdb"_s), Folder().Read(u"home/loftkeep/loftkeep.mdb"_s));
    MakeBackupCopy(true, name);
    QCOMPARE(name, u"db00002.mdb"_s);
    QVERIFY(!ExistFile(DatabaseFile()));
    QVERIFY(IsValidDatabase(DataPath + u"backup/db00002.mdb"_s));
  }

  void AFileIsInstalledAfterABackup() {
    ScriptedPrompts prompts;
    MakeDatabaseFile(DatabaseFile(), u"Old"_s);
    const QString other = Folder() / u"other.mdb"_s;
    MakeDatabaseFile(other, u"New"_s);
    ConnectionString = ConnectionStringFor(other);
    {
      Bracket bracket;
      OpenDatabase().ChangeSchema("ALTER TABLE tblTasks DROP COLUMN LocationID");
    }
    ReleaseDatabaseFile();
    ConnectionString = ConnectionStringFor(DatabaseFile());
    prompts.ExpectBox(
        u"Back up created"_s,
        u"A backup copy of your current database file\nnamed 'db00001.mdb' has been created and placed  \n"
        "in the Loftkeep backup folder"_s);
    prompts.ExpectBox(u"Done"_s, u"Database installation complete"_s);
    QVERIFY(InstallDatabaseFile(other));
    QCOMPARE(GetValueFromTable(u"tblPeople"_s, u"ID"_s, 1, u"LastName"_s).ToText(), u"New"_s);
    Bracket bracket;
    const Recordset tasks(u"tblTasks"_s);
    QVERIFY(tasks.ColumnOf(u"LocationID") > 0);
  }

  void AnInterruptedWriteOfTheOldFileLeavesTheNewOneAlone() {
    ScriptedPrompts prompts;
    MakeDatabaseFile(DatabaseFile(), u"Old"_s);
    InterruptWrite();
    const QString other = Folder() / u"other.mdb"_s;
    MakeDatabaseFile(other, u"New"_s);
    const QByteArray before = Folder().Read(u"other.mdb"_s);
    QVERIFY(ReplaceDatabaseFile(other));
    QCOMPARE(CustomersIn(DatabaseFile()), QStringList{u"New"_s});
    QCOMPARE(Folder().Read(u"home/loftkeep/loftkeep.mdb"_s), before);
  }

  void AnInvalidOrMissingFileChangesNothing() {
    ScriptedPrompts prompts;
    MakeDatabaseFile(DatabaseFile(), u"Old"_s);
    const QByteArray before = Folder().Read(u"home/loftkeep/loftkeep.mdb"_s);
    const QString words = Folder().Write(u"words.mdb"_s, "no database at all");
    prompts.ExpectBox(u"Invalid file"_s, words + u" is NOT a valid Loftkeep database file"_s);
    QVERIFY(!InstallDatabaseFile(words));
    prompts.ExpectBox(u"File doesn't exist"_s, words + u"x"_s);
    QVERIFY(!InstallDatabaseFile(words + u"x"_s));
    QCOMPARE(Folder().Read(u"home/loftkeep/loftkeep.mdb"_s), before);
    QCOMPARE(NextDBfile(), u"db00001.mdb"_s);
  }

 private:
  /// Leaves the live database as a power cut does in the middle of a big write: with the journal that undoes it.
  void InterruptWrite() const {
    sqlite3* handle = nullptr;
    QCOMPARE(sqlite3_open(DatabaseFile().toUtf8().constData(), &handle), SQLITE_OK);
    QCOMPARE(sqlite3_exec(handle,
                          "PRAGMA cache_size = 1; BEGIN; CREATE TABLE big (t);"
                          "WITH RECURSIVE n(i) AS (VALUES (1) UNION ALL SELECT i + 1 FROM n WHERE i < 200)"
                          "INSERT INTO big SELECT hex(zeroblob(2000)) FROM n; UPDATE tblModels SET Name = 'x'",
                          nullptr, nullptr, nullptr),
             SQLITE_OK);
    const QByteArray journal = Folder().Read(u"home/loftkeep/loftkeep.mdb-journal"_s);
    sqlite3_exec(handle, "ROLLBACK", nullptr, nullptr, nullptr);
    sqlite3_close(handle);
    QVERIFY(journal.startsWith("\xd9\xd5"));
    Folder().Write(u"home/loftkeep/loftkeep.mdb-journal"_s, journal);
  }

  const TempFolder& Folder() const { return home_->Folder(); }

  std::unique_ptr<DataHome> home_;
};

LOFT_TEST_MAIN(NewDatabaseTest)
#include "tst_new_database.moc"
