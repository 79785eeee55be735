#include <QCoreApplication>
#include <QFile>
#include <QTest>

#include "core/data_folder.h"
#include "core/files.h"
#include "core/stand_by.h"
#include "core/store/access.h"
#include "dbcare/import_files.h"
#include "support/data_home.h"
#include "support/exported_loft.h"
#include "support/refusing_disk.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/work_watch.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QFile::Permissions kNobodys{};

QStringList steps;  // what the wait notice showed
int pauses = 0;

void ExpectWarning(ScriptedPrompts& prompts, Answer answer) {
  prompts
      .Expect(
          u"Continue?"_s,
          u"WARNING!  You are about to import files from \nanother installation of Loftkeep.  This will overwrite \n"
          "you current files.  Once performed, this process cannot\nbe reversed.\n\n"
          "This includes your photo files (your database has been\nbacked up).\n\n"
          "Are you sure you want to import these Loftkeep files?"_s,
          answer)
      .WithButtons(Buttons::YesNo)
      .WithPreset(Answer::No);
}

void ExpectBackup(ScriptedPrompts& prompts, const QString& name) {
  prompts.ExpectBox(u"Database backup performed"_s,
                    u"A backup copy your current database file\nwas just created (%1)"_s.arg(name));
}

}  // namespace

/// What another computer exported takes the place of the present data.
class ImportFilesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() {
    QCoreApplication::setApplicationVersion(u"0.1.0"_s);
    home_ = std::make_unique<DataHome>();
    ConnectionString = ConnectionStringFor(DatabaseFile());
    export_ = MakeExport(home_->Folder());
    steps.clear();
    pauses = 0;
  }
  void cleanup() {
    SetStandByNotice({});
    home_.reset();
  }

  void TheirFilesTakeThePlaceOfOurs() {
    ScriptedPrompts prompts;
    MakeOwnLoft();
    home_->Folder().Write(u"work/blank.mdb"_s, "an empty database");
    const QByteArray ourDatabase = Read(u"loftkeep.mdb"_s);
    SetStandByNotice({[](const QString& text) { steps << text; }, [] { steps << u"(gone)"_s; }, [] { ++pauses; }});
    ExpectWarning(prompts, Answer::Yes);
    ExpectBackup(prompts, u"db00002.mdb"_s);
    QVERIFY(Importingfiles(export_));
    QCOMPARE(CustomersIn(DatabaseFile()), QStringList{u"New"_s});
    QCOMPARE(GetValueFromTable(u"tblPeople"_s, u"ID"_s, 1, u"LastName"_s).ToText(), u"New"_s);
    QCOMPARE(Read(u"photos/hires/c1.jpg"_s), QByteArray("new and large"));
    QCOMPARE(Read(u"photos/thumbnail/c1.jpg"_s), QByteArray("new and small"));
    QCOMPARE(Read(u"photos/hires/ours.jpg"_s), QByteArray("ours alone"));
    QCOMPARE(Read(u"support/address.txt"_s), QByteArray("Ann's Loft\r\n"));
    QCOMPARE(Read(u"support/blank.mdb"_s), QByteArray("an empty database"));
    QCOMPARE(Read(u"backup/db00001.mdb"_s), QByteArray("our first"));
    QCOMPARE(Read(u"backup/db00002.mdb"_s), ourDatabase);
    QCOMPARE(Read(u"backup/db00003.mdb"_s), QByteArray("their first"));
    QCOMPARE(Read(u"backup/db00004.mdb"_s), QByteArray("their second"));
    QVERIFY(!ExistFile(DataPath + u"loftkeep.lock"_s));
    QCOMPARE(steps,
             (QStringList{u"copying database file......"_s, u"Database file imported"_s, u"copying support......"_s,
                          u"copying address.txt"_s, u"copying Version.txt"_s, u"copying photos/hires......"_s,
                          u"copying c1.jpg"_s, u"copying photos/thumbnail......"_s, u"copying c1.jpg"_s,
                          u"creating backup file db00003.mdb"_s, u"creating backup file db00004.mdb"_s,
                          u"Blank.mdb imported"_s, u"Models table imported"_s, u"Helptext.txt imported"_s, u"done"_s,
                          u"(gone)"_s}));
    QCOMPARE(pauses, 9);
  }

  void ThereIsNoWayOutMidway() {
    ScriptedPrompts prompts;
    MakeOwnLoft();
    home_->Folder().Write(u"work/blank.mdb"_s, "an empty database");
    WorkWatch watch;
    watch.cancels = true;
    SetStandByNotice({[](const QString& text) {
                        if (text == "Database file imported"_L1) WorkWatch::LetTimePass();
                      },
                      [] {}, [] {}});
    ExpectWarning(prompts, Answer::Yes);
    ExpectBackup(prompts, u"db00002.mdb"_s);
    QVERIFY(Importingfiles(export_));
    QVERIFY(!watch.shown.isEmpty() && !watch.isShown);
    QVERIFY(!watch.shown[0].canCancel);
    QCOMPARE(watch.shown[0].total, 7);  // a database, two support files, two photos, two backups
    QCOMPARE(Read(u"backup/db00004.mdb"_s), QByteArray("their second"));
  }

  void ANewComputerGetsItsDataFolder() {
    ScriptedPrompts prompts;
    home_->Folder().Write(u"work/blank.mdb"_s, "an empty database");
    ExpectWarning(prompts, Answer::Yes);
    QVERIFY(Importingfiles(export_));
    QCOMPARE(CustomersIn(DatabaseFile()), QStringList{u"New"_s});
    QCOMPARE(Read(u"backup/db00001.mdb"_s), QByteArray("their first"));
    QVERIFY(FolderExists(DataPath + u"photos/archive"_s) && FolderExists(DataPath + u"other"_s));
  }

  void AFolderThatIsNoExportIsRefused_data() {
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << u"Selected folder is empty"_s << u"There are no files in selected folder"_s;
    QTest::newRow("other files") << u"Loftkeep"_s
                                 << u"Can't import files from that folder.\n"
                                    "The selected folder doesn't contain Loftkeep files"_s;
    QTest::newRow("no version") << u"Function VersionIsOK"_s << u"File not found"_s;
    QTest::newRow("newer") << u"Need to install new version"_s
                           << u"You are currently running Loftkeep version 0.1.0\n\n"
                              "You are attempting to import files from version 0.1.1\n\n"
                              "You must be using the latest version of Loftkeep before importing files.\n\n"
                              "You can get it from where you got this version."_s;
    QTest::newRow("no database") << u"Invalid file"_s << u"%1 is NOT a valid Loftkeep database file"_s;
  }
  void AFolderThatIsNoExportIsRefused() {
    QFETCH(QString, title);
    QFETCH(QString, text);
    ScriptedPrompts prompts;
    MakeOwnLoft();
    const QString given = QString::fromLatin1(QTest::currentDataTag());
    const TempFolder& folder = home_->Folder();
    if (given == "empty"_L1) export_ = folder.MakeFolder(u"empty"_s);
    if (given == "other files"_L1) QVERIFY(QFile::rename(export_ + u"/loftkeep.mdb"_s, export_ + u"/other.mdb"_s));
    if (given == "no version"_L1) QVERIFY(QFile::remove(export_ + u"/support/Version.txt"_s));
    if (given == "newer"_L1) folder.Write(u"Ann's export/support/Version.txt"_s, "011\r\n");
    if (given == "no database"_L1) folder.Write(u"Ann's export/loftkeep.mdb"_s, "words");
    const auto before = FilesBelow(DataPath);
    prompts.ExpectBox(title, text.contains(u"%1"_s) ? text.arg(export_ + u"/loftkeep.mdb"_s) : text);
    QVERIFY(!Importingfiles(export_));
    QCOMPARE(FilesBelow(DataPath), before);
  }

  void ANoToTheWarningLeavesAllAsItWas() {
    ScriptedPrompts prompts;
    ExpectWarning(prompts, Answer::No);
    QVERIFY(!Importingfiles(export_));
    QVERIFY(!FolderExists(DataPath));
    MakeOwnLoft();
    const auto before = FilesBelow(DataPath);
    ExpectWarning(prompts, Answer::No);
    QVERIFY(!Importingfiles(export_));
    QCOMPARE(FilesBelow(DataPath), before);
  }

  void AFileThatCantBeReadIsToldAndTheRestComes() {
    ScriptedPrompts prompts;
    home_->Folder().Write(u"Ann's export/photos/hires/c2.jpg"_s, "another");
    QVERIFY(QFile::setPermissions(export_ + u"/photos/hires/c1.jpg"_s, kNobodys));
    OpenToAll();
    home_->Folder().Write(u"work/blank.mdb"_s, "an empty database");
    {
      const OrdinaryUser user;
      ExpectWarning(prompts, Answer::Yes);
      prompts.ExpectBox(u"Sub MyFileCopy"_s,
                        u"Permission denied\nSource file = "_s + DataPath + u"photos/hires/c1.jpg"_s);
      QVERIFY(Importingfiles(export_));
      ReleaseDatabaseFile();
    }
    QCOMPARE(CustomersIn(DatabaseFile()), QStringList{u"New"_s});
    QVERIFY(!ExistFile(DataPath + u"photos/hires/c1.jpg"_s));
    QCOMPARE(Read(u"photos/hires/c2.jpg"_s), QByteArray("another"));
  }

  void ADatabaseThatDoesNotFitLeavesTheOldOneWhole() {
    ScriptedPrompts prompts;
    MakeOwnLoft();
    home_->Folder().Write(u"work/blank.mdb"_s, "an empty database");
    const QByteArray ourDatabase = Read(u"loftkeep.mdb"_s);
    Enlarge(export_ + u"/loftkeep.mdb"_s);
    ExpectWarning(prompts, Answer::Yes);
    ExpectBackup(prompts, u"db00002.mdb"_s);
    prompts.ExpectBox(u"Sub MyFileCopy"_s, u"File too large\nSource file = "_s + DatabaseFile());
    {
      const FullDisk disk(static_cast<rlim_t>(ourDatabase.size() + 1000));
      QVERIFY(!Importingfiles(export_));
    }
    ReleaseDatabaseFile();
    QCOMPARE(Read(u"loftkeep.mdb"_s), ourDatabase);
    QCOMPARE(QDir(DataPath).entryList({u"loftkeep.mdb.*"_s}, QDir::Files), QStringList());
    QCOMPARE(Read(u"photos/hires/c1.jpg"_s), QByteArray("new and large"));
  }

  void OnANewComputerAHalfCopiedDatabaseIsNone() {
    ScriptedPrompts prompts;
    Enlarge(export_ + u"/loftkeep.mdb"_s);
    ExpectWarning(prompts, Answer::Yes);
    prompts.ExpectBox(u"Sub MyFileCopy"_s, u"File too large\nSource file = "_s + DatabaseFile());
    {
      const FullDisk disk(10000);
      QVERIFY(!Importingfiles(export_));
    }
    QCOMPARE(QDir(DataPath).entryList(QDir::Files), QStringList());
    QCOMPARE(Read(u"support/address.txt"_s), QByteArray("Ann's Loft\r\n"));
  }

  void WithoutABackupNothingIsImported() {
    ScriptedPrompts prompts;
    MakeOwnLoft();
    const auto before = FilesBelow(DataPath);
    ExpectWarning(prompts, Answer::Yes);
    prompts.ExpectBox(u"Sub MyFileCopy"_s, u"File too large\nSource file = "_s + DataPath + u"backup/db00002.mdb"_s);
    prompts.ExpectBox(u"Sub Importingfiles"_s, u"No backup could be made of the current database file"_s);
    {
      const FullDisk disk(1000);
      QVERIFY(!Importingfiles(export_));
    }
    QCOMPARE(FilesBelow(DataPath), before);
  }

  void ADataFolderThatCantBeMadeIsTold() {
    ScriptedPrompts prompts;
    qputenv("XDG_DATA_HOME", home_->Folder().Write(u"file"_s, "in the way").toUtf8());
    SetDataFolder();
    ExpectWarning(prompts, Answer::Yes);
    prompts.ExpectBox(DataPath, u"Unable to create new folder - Sub CreateFolder()"_s);
    QVERIFY(!Importingfiles(export_));
  }

 private:
  QByteArray Read(const QString& name) const { return home_->Folder().Read(u"home/loftkeep/"_s + name); }

  /// The data of this computer: a customer "Old", a photo of the same name as one of theirs, a backup.
  void MakeOwnLoft() const {
    CreateSubFolders();
    MakeDatabaseFile(DatabaseFile(), u"Old"_s);
    home_->Folder().Write(u"home/loftkeep/photos/hires/c1.jpg"_s, "old");
    home_->Folder().Write(u"home/loftkeep/photos/hires/ours.jpg"_s, "ours alone");
    home_->Folder().Write(u"home/loftkeep/backup/db00001.mdb"_s, "our first");
  }

  static void Enlarge(const QString& database) {
    const QString before = std::exchange(ConnectionString, ConnectionStringFor(database));
    UpdateTableBySQL(u"insert into tblPeople (LastName, comment) values ('Long', '%1')"_s.arg(QString(300000, u'x')));
    ReleaseDatabaseFile();
    ConnectionString = before;
  }

  /// Anybody may write to the data home; the export is on a medium that takes no writing.
  void OpenToAll() const {
    const auto all = QFile::Permissions(0x7777);
    for (const QString& folder : {home_->Folder().Path(), home_->Folder() / u"home"_s})
      QVERIFY(QFile::setPermissions(folder, all));
    QVERIFY(QFile::setPermissions(export_ + u"/loftkeep.mdb"_s, QFile::Permissions(0x4444)));
    QVERIFY(QFile::setPermissions(export_, QFile::Permissions(0x5555)));
  }

  std::unique_ptr<DataHome> home_;
  QString export_;
};

LOFT_TEST_MAIN(ImportFilesTest)
#include "tst_import_files.moc"
