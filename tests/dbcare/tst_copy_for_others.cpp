#include <QtTest>

#include <sqlite3.h>

#include "core/data_folder.h"
#include "core/files.h"
#include "core/stand_by.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/store/undo.h"
#include "dbcare/copy_for_others.h"
#include "dbcare/export_backups.h"
#include "dbcare/export_files.h"
#include "dbcare/new_database.h"
#include "support/data_home.h"
#include "support/exported_loft.h"
#include "support/refusing_disk.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"
#include "support/work_watch.h"

using namespace Qt::StringLiterals;

namespace {

const QString kCountRecord = u"select count(*) from sqlite_master where name = 'loft_operations'"_s;

bool HoldsRecord(const QString& path) { return RowsOfFile(path, kCountRecord) == QStringList(u"1"_s); }

/// Anywhere in the file, also where no row refers to.
bool HoldsName(const QString& path, const QByteArray& name) { return ReadFile(path).contains(name); }

}  // namespace

/// What was deleted here does not leave for another computer.
class CopyForOthersTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() {
    home_ = std::make_unique<DataHome>();
    ConnectionString = ConnectionStringFor(DatabaseFile());
    CreateSubFolders();
    MakeDatabaseFile(DatabaseFile(), u"Stays"_s);
    ConnectionString = ConnectionStringFor(DatabaseFile());
    target_ = home_->Folder().MakeFolder(u"stick"_s);
    for (const char* name : {"Vanished", "Departed"})
      UpdateTableBySQL(u"insert into tblPeople (LastName, Comment) values ('%1', '%2')"_s.arg(QString::fromLatin1(name),
                                                                                              QString(300, u'c')));
    for (const char* name : {"Vanished", "Departed"})
      QVERIFY(Operation(u"Sub DeletePerson"_s, [&] {
        UpdateTableBySQL(u"delete * from tblPeople where LastName = '%1'"_s.arg(QString::fromLatin1(name)));
      }));
    DeleteWithoutWiping("Effaced");
    QVERIFY(HoldsRecord(DatabaseFile()));
    for (const char* name : {"Vanished", "Departed", "Effaced"}) QVERIFY(HoldsName(DatabaseFile(), name));
  }
  void cleanup() { home_.reset(); }

  void TheExportedDatabaseHoldsNoRecordAndNoDeletedName() {
    ScriptedPrompts prompts;
    QString backup;
    MakeBackupCopy(false, backup);
    const QString kept = BackupFolder() + backup;
    QVERIFY(HoldsRecord(kept));  // it comes back to this loft
    const QByteArray before = ReadFile(kept);
    prompts.AnswerRestWith([](const ShownPrompt& p) { return p.buttons == Buttons::YesNo ? Answer::Yes : Answer::Ok; });
    MoveProgram([this] { return target_; });
    for (const QString& name : {u"/loftkeep.mdb"_s, u"/backup/"_s + backup}) {
      const QString copy = target_ + name;
      QCOMPARE(CustomersIn(copy), QStringList(u"Stays"_s));
      QVERIFY(!HoldsRecord(copy));
      for (const char* gone : {"Vanished", "Departed", "Effaced"}) QVERIFY2(!HoldsName(copy, gone), gone);
      QVERIFY(HoldsName(copy, "Stays"));
      QCOMPARE(RowsOfFile(copy, u"pragma integrity_check"_s), QStringList(u"ok"_s));
      QVERIFY(IsValidDatabase(copy));
    }
    QCOMPARE(ReadFile(kept), before);
    QVERIFY(HoldsRecord(DatabaseFile()));
    QVERIFY(UndoOperation());
    QCOMPARE(CustomersIn(DatabaseFile()), (QStringList{u"Stays"_s, u"Departed"_s}));
  }

  void TheRowsOfACopyAreThoseOfTheLoft() {
    ScriptedPrompts prompts;
    const QString copy = target_ + u"/copy.mdb"_s;
    QVERIFY(CopyLoftForOthers(copy));
    const QString tables =
        u"select name, sql from sqlite_master where name not like 'loft%' and name not like 'sqlite%' order by name"_s;
    QCOMPARE(RowsOfFile(copy, tables), RowsOfFile(DatabaseFile(), tables));
    for (const QString& table : {u"tblPeople"_s, u"tblModels"_s, u"tblMisc"_s, u"sqlite_sequence"_s}) {
      const QString rows = u"select * from [%1] order by 1"_s.arg(table);
      QCOMPARE(RowsOfFile(copy, rows), RowsOfFile(DatabaseFile(), rows));
    }
  }

  void ExportedBackupsHoldNoRecordAndKeepTheirTime() {
    ScriptedPrompts prompts;
    QString backup;
    MakeBackupCopy(false, backup);
    const QString source = BackupFolder() + backup;
    const QDateTime written(QDate(2025, 3, 4), QTime(5, 6, 7));
    {
      QFile file(source);
      QVERIFY(file.open(QFile::ReadWrite) && file.setFileTime(written, QFileDevice::FileModificationTime));
    }
    home_->Folder().Write(u"home/loftkeep/backup/notes.txt"_s, "no database");
    prompts.AnswerRestWith([](const ShownPrompt&) { return Answer::Yes; });
    QVERIFY(ExportBackups(target_));
    QCOMPARE(ReadFile(target_ + u"/notes.txt"_s), QByteArray("no database"));
    const QString copy = target_ + u'/' + backup;
    QVERIFY(!HoldsRecord(copy) && !HoldsName(copy, "Vanished"));
    QCOMPARE(QFileInfo(copy).lastModified(), written);
    QVERIFY(HoldsRecord(source));
    QCOMPARE(QDir(DataPath).entryList({u"*scratch*"_s}, QDir::Files), QStringList());
  }

  void ACancelledExportOfBackupsIsNotDone() {
    ScriptedPrompts prompts;
    for (const char* name : {"a.txt", "b.txt", "c.txt"})
      home_->Folder().Write(u"home/loftkeep/backup/"_s + QString::fromLatin1(name), "backup");
    WorkWatch watch;
    watch.cancels = true;
    SetStandByNotice({[](const QString& text) {
                        if (text == "copying b.txt"_L1) WorkWatch::LetTimePass();
                      },
                      [] {}, [] {}});
    prompts.AnswerRestWith([](const ShownPrompt&) { return Answer::Yes; });
    QVERIFY(!ExportBackups(target_));
    SetStandByNotice({});
    QCOMPARE(FilesBelow(target_).keys(), QStringList(u"a.txt"_s));
    QVERIFY(!watch.isShown && !prompts.ShowsBusyPointer());
  }

  void ABackupWithoutARecordIsCopiedAsItIs() {
    ScriptedPrompts prompts;
    const QString source = home_->Folder() / u"old.mdb"_s;
    MakeDatabaseFile(source, u"Old"_s);
    UpdateTableBySQL(u"delete * from tblModels"_s);
    Database(source).DropAndCompact(u"loft_operations"_s);
    QVERIFY(CopyFileForOthers(source, target_ + u"/old.mdb"_s));
    QCOMPARE(ReadFile(target_ + u"/old.mdb"_s), ReadFile(source));
  }

  void ARecordThatCantBeTakenOutKeepsTheFileHere() {
    ScriptedPrompts prompts;
    QString backup;
    MakeBackupCopy(false, backup);
    const QString source = BackupFolder() + backup;
    const int page = RowsOfFile(source, u"select rootpage from sqlite_master where name = 'tblPeople'"_s)[0].toInt();
    QFile file(source);
    QVERIFY(file.open(QFile::ReadWrite) && file.seek(qint64(page - 1) * 4096) && file.write(QByteArray(4096, '\xff')));
    file.close();
    home_->Folder().Write(u"stick/copy.mdb"_s, "old");
    prompts.ExpectBox(u"Function CopyFileForOthers"_s,
                      u"Unrecognized database format '%1'."_s.arg(DatabaseFile() + u".scratch"_s));
    QVERIFY(!CopyFileForOthers(source, target_ + u"/copy.mdb"_s));
    QCOMPARE(ReadFile(target_ + u"/copy.mdb"_s), QByteArray("old"));
  }

  void AFullDiskLeavesTheDestinationAsItWas() {
    ScriptedPrompts prompts;
    home_->Folder().Write(u"stick/copy.mdb"_s, "old");
    prompts.ExpectBox(u"Function CopyLoftForOthers"_s, u"disk I/O error"_s);
    {
      const FullDisk disk(20000);
      QVERIFY(!CopyLoftForOthers(target_ + u"/copy.mdb"_s));
    }
    QCOMPARE(ReadFile(target_ + u"/copy.mdb"_s), QByteArray("old"));
    QCOMPARE(QDir(DataPath).entryList({u"*scratch*"_s}, QDir::Files), QStringList());
  }

 private:
  /// As a library does that leaves the bytes of deleted rows where they were.
  static void DeleteWithoutWiping(const QByteArray& name) {
    ReleaseDatabaseFile();
    sqlite3* handle = nullptr;
    QCOMPARE(sqlite3_open(DatabaseFile().toUtf8().constData(), &handle), SQLITE_OK);
    const QByteArray sql = "PRAGMA secure_delete = OFF; INSERT INTO tblPeople (LastName) VALUES ('" + name +
                           "'); DELETE FROM tblPeople WHERE LastName = '" + name + "'";
    QCOMPARE(sqlite3_exec(handle, sql.constData(), nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(handle);
  }

  std::unique_ptr<DataHome> home_;
  QString target_;
};

LOFT_TEST_MAIN(CopyForOthersTest)
#include "tst_copy_for_others.moc"
