#include <QTest>

#include "core/data_folder.h"
#include "core/platform.h"
#include "dbcare/export_backups.h"
#include "dbcare/folder_choices.h"
#include "support/data_home.h"
#include "support/exported_loft.h"
#include "support/refusing_disk.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

/// Saved paths, the files of a folder, and the export of the backups alone.
class FolderChoicesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() {
    home_ = std::make_unique<DataHome>();
    CreateSubFolders();
  }
  void cleanup() { home_.reset(); }

  void APathIsSavedOnce() {
    ScriptedPrompts prompts;
    QCOMPARE(SavedPaths(), QStringList());
    prompts.ExpectBox(u"Loftkeep"_s, u"Path saved"_s);
    SavePath(u"/media/Ann's stick"_s);
    prompts.ExpectBox(u"Loftkeep"_s, u"Path has already been saved"_s);
    SavePath(u"/media/Ann's stick"_s);
    prompts.ExpectBox(u"Loftkeep"_s, u"Path saved"_s);
    SavePath(u"/media"_s);
    QCOMPARE(SavedPaths(), (QStringList{u"/media/Ann's stick"_s, u"/media"_s}));
    QCOMPARE(Read(u"support/paths.txt"_s), QByteArray("/media/Ann's stick\r\n/media\r\n"));
  }

  void APathIsOfferedOnce() {
    ScriptedPrompts prompts;
    home_->Folder().Write(u"home/loftkeep/support/paths.txt"_s, "/a\n\n/b\n/a\n");
    QCOMPARE(SavedPaths(), (QStringList{u"/a"_s, u"/b"_s}));
  }

  void APathIsDeletedAfterAQuestion() {
    ScriptedPrompts prompts;
    home_->Folder().Write(u"home/loftkeep/support/paths.txt"_s, "/a\r\n/b\r\n");
    prompts.Expect(u"Loftkeep"_s, u"Delete this path?"_s, Answer::No).WithPreset(Answer::No);
    QVERIFY(!DeletePath(u"/a"_s));
    QCOMPARE(Read(u"support/paths.txt"_s), QByteArray("/a\r\n/b\r\n"));
    prompts.Expect(u"Loftkeep"_s, u"Delete this path?"_s, Answer::Yes);
    QVERIFY(DeletePath(u"/a"_s));
    QCOMPARE(Read(u"support/paths.txt"_s), QByteArray("/b\r\n"));
  }

  void APathThatCantBeSavedIsTold() {
    ScriptedPrompts prompts;
    home_->Folder().Write(u"home/loftkeep/support/paths.txt"_s, "/a\r\n");
    prompts.ExpectBox(u"Sub SavePath"_s, u"File too large"_s);
    {
      const FullDisk disk(0);
      SavePath(u"/b"_s);
    }
    QCOMPARE(Read(u"support/paths.txt"_s), QByteArray("/a\r\n"));
  }

  void DatabaseFilesAloneOrAll() {
    for (const char* name : {"files/B.MDB", "files/a.mdb", "files/c.txt", "files/sub/d.mdb"})
      home_->Folder().Write(QString::fromLatin1(name), "x");
    const QString folder = home_->Folder() / u"files"_s;
    QCOMPARE(FilesToOffer(folder, true), (QStringList{u"a.mdb"_s, u"B.MDB"_s}));
    QCOMPARE(FilesToOffer(folder, false), (QStringList{u"a.mdb"_s, u"B.MDB"_s, u"c.txt"_s}));
    QCOMPARE(FilesToOffer(folder + u"x"_s, false), QStringList());
  }

  void TheDrivesHoldTheDataFolder() {
    const QStringList drives = DriveFolders();
    QVERIFY(std::any_of(drives.begin(), drives.end(), [](const QString& drive) { return DataPath.startsWith(drive); }));
    QCOMPARE(QStringList(drives).removeDuplicates(), 0);
  }

  void TheBackupsAreCounted() {
    ScriptedPrompts prompts;
    QCOMPARE(BackupCountText(), u"There are no files in the backup folder"_s);
    home_->Folder().Write(u"home/loftkeep/backup/db00001.mdb"_s, "one");
    QCOMPARE(BackupCountText(), u"There is one file in the backup folder"_s);
    home_->Folder().Write(u"home/loftkeep/backup/db00002.mdb"_s, "two");
    QCOMPARE(BackupCountText(), u"2 files in the backup folder"_s);
  }

  void WithoutBackupsNothingIsExported() {
    ScriptedPrompts prompts;
    prompts.ExpectBox(u"No backup files"_s,
                      u"There are no backup database files in this directory:\n%1backup/"_s.arg(DataPath));
    QVERIFY(!ExportBackups(home_->Folder().MakeFolder(u"target"_s)));
  }

  void AllBackupsAreCopiedAfterAQuestion_data() {
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("present");
    QTest::newRow("one") << 1 << u"There is one backup database file present"_s;
    QTest::newRow("two") << 2 << u"There are 2 backup database files present"_s;
  }
  void AllBackupsAreCopiedAfterAQuestion() {
    QFETCH(int, count);
    QFETCH(QString, present);
    ScriptedPrompts prompts;
    for (int i = 1; i <= count; ++i)
      home_->Folder().Write(u"home/loftkeep/backup/db0000%1.mdb"_s.arg(i), QByteArray::number(i));
    const QString target = home_->Folder().MakeFolder(u"target"_s);
    const QString question =
        present +
        u"\nYou are about to copy your backup \ndatabase files from:\n   %1backup/\n              to\n   %2\n"
        "Are you ready to copy?"_s.arg(DataPath, target);
    prompts.Expect(u"Export backup database files"_s, question, Answer::No).WithPreset(Answer::No);
    QVERIFY(!ExportBackups(target));
    QCOMPARE(FilesBelow(target).size(), 0);
    prompts.Expect(u"Export backup database files"_s, question, Answer::Yes);
    QVERIFY(ExportBackups(target));
    QCOMPARE(FilesBelow(target), FilesBelow(DataPath + u"backup"_s));
    QCOMPARE(FilesBelow(target).size(), count);
    QVERIFY(!prompts.ShowsBusyPointer());
  }

 private:
  QByteArray Read(const QString& name) const { return home_->Folder().Read(u"home/loftkeep/"_s + name); }

  std::unique_ptr<DataHome> home_;
};

LOFT_TEST_MAIN(FolderChoicesTest)
#include "tst_folder_choices.moc"
