#include <QDateTime>
#include <QLabel>
#include <QLockFile>
#include <QRadioButton>
#include <QTest>

#include "core/default_rows.h"
#include "core/files.h"
#include "core/shell/frmInstall.h"
#include "core/shell/frmMain2.h"
#include "core/shell/frmMenu.h"
#include "core/shell/frmSplash.h"
#include "core/shell/start_up.h"
#include "core/store/access.h"
#include "core/widgets/screen_routines.h"
#include "dbcare/check_fields.h"
#include "dbcare/new_database.h"
#include "support/data_home.h"
#include "support/refusing_disk.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

/// A data folder with a database that has been through a first run.
void MakeGoodLoft() {
  CreateFolder(DataPath);
  CreateSubFolders();
  Database::CreateFile(DatabaseFile());
  ConnectionString = ConnectionStringFor(DatabaseFile());
  Bracket bracket;
  CheckAllFields(false);
  CreateDefaultRows();
  UpdateTableBySQL(u"insert into tblModels (Name, TypeID) values ('Raven', 3)"_s);
  UpdateTableBySQL(u"insert into tblPeople (LastName) values ('Lee')"_s);
  bracket.Close();
  ReleaseDatabaseFile();
}

/// Everybody may read and enter; only the owner may write.
constexpr QFile::Permissions kReadable = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup |
                                         QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;

QString NotFound() {
  return u"Your database file cannot be found\n\nYou can install a backup database or create a new one\n(Press OK to continue)"_s;
}

constexpr char kModels[] = "<mfg>\r\nPD\r\n4\r\n<end mfg>\r\nStorm\r\n4\r\n2\r\n0\r\n";

/// What a new database says of itself where the empty one is missing beside the program.
void ExpectNewDatabase(ScriptedPrompts& prompts) {
  prompts.ExpectBox(u"sub CheckBlankmb"_s, u"file 'blank.mdb' not found"_s);
  prompts.ExpectBox(u"Create new database"_s,
                    u"Preparing to create new database.\n\nThis should take just a few seconds .........."_s);
  prompts.ExpectBox(u"Creating new database file"_s,
                    u"The file 'blank.mdb' could not be found.\n\nA database file will now be created."_s);
  prompts.ExpectBox(u"Loftkeep"_s, u"New database file installed successfully"_s);
  prompts.ExpectBox(u"Your Information"_s, u"Please enter your name\n\nPress OK to continue"_s);
}

/// The repack cycle and the end of the first run; then the start goes on with the check of the support files.
void ExpectWelcome(ScriptedPrompts& prompts, const QString& days) {
  prompts.ExpectInput(u"Enter repack cycle (in days)"_s, u"Reserve must be repacked every 180 days"_s, days);
  prompts.ExpectBox(u"Repack Cycle Saved"_s, u"Repack cycle is now set to %1 days"_s.arg(days));
  prompts.ExpectBox(u"Welcome!"_s,
                    u"Setup is complete!  Welcome to Loftkeep!\n\nBe sure to check out the HELP menu.  There's a \n"
                    "select called QUICK TOUR that will get you started.\n\nThank you for using Loftkeep!"_s);
  prompts.ExpectBox(u"sub CheckBlankmb"_s, u"file 'blank.mdb' not found"_s);
}

/// The person enters a name, or leaves the editor.
void EnterOwner(ScreenScript& screens, const QString& name) {
  screens.WhenShown(u"frmPeople"_s, [name](Form& form) {
    QTest::qWait(0);
    if (!name.isEmpty()) Click(form, u"cmdExit"_s);
    QVERIFY(!form.isVisible());
  });
  screens.WhenShown(u"frmPeopleEdit"_s, [name](Form& form) {
    TypeInto(form, u"txtLast"_s, name);
    Click(form, name.isEmpty() ? u"cmdCancel"_s : u"cmdSave"_s);
  });
}

void ExpectNoHomePage() { QVERIFY(!Forms::IsShown(u"frmMain2"_s)); }

}  // namespace

class StartUpTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() {
    home_ = std::make_unique<DataHome>();
    home_->Folder().Write(u"work/blank.mdb"_s, "an empty database");
  }
  void cleanup() {
    UnloadScreens();
    LeaveDataFolder();
    home_.reset();
  }

  void AGoodLoftComesUpWithItsScreens() {
    ScreenScript screens;
    ScriptedPrompts prompts;
    MakeGoodLoft();
    QVERIFY(SubMain());
    QVERIFY(Forms::IsShown(u"frmMenu"_s) && Forms::IsShown(u"frmMain2"_s) && Forms::IsShown(u"frmSplash"_s));
    QVERIFY(!ConnectionIsOpen);
    Picture(SharedForm<frmMain2>(), u"home"_s);
    Picture(SharedForm<frmMenu>(), u"menu"_s);
    Picture(SharedForm<frmSplash>(), u"splash"_s);
    QVERIFY(TextOf(SharedForm<frmSplash>(), u"lblInfo"_s).startsWith(u"1 customers \n0 rigs\n"_s));
    QCOMPARE(TextOf(SharedForm<frmSplash>(), u"lblBackup"_s), u"Last database backup was performed on (never!)"_s);
    QCOMPARE(home_->Folder().Read(u"home/loftkeep/support/blank.mdb"_s), QByteArray("an empty database"));
    QTest::mouseClick(SharedForm<frmSplash>().findChild<QLabel*>(u"lblInfo"_s), Qt::LeftButton);
    QVERIFY(!Forms::IsShown(u"frmSplash"_s));
  }

  void FirstRunAsksBeforeAnythingIsMade() {
    ScreenScript screens;
    ScriptedPrompts prompts;
    screens.WhenShown<frmInstall>([](frmInstall& form) {
      QVERIFY(!FolderExists(DataPath));
      Picture(form, u"install"_s);
      QCOMPARE(form.windowTitle(), u"Loftkeep - New Installation"_s);
      QCOMPARE(TextOf(form, u"lblWelcome"_s), u"Welcome to Loftkeep !!!"_s);
      Click(form, u"cmdCancel"_s);
    });
    prompts.ExpectBox(u"Loftkeep Setup Cancelled"_s, u"You have chosen to cancel the Loftkeep setup process."_s);
    QVERIFY(!SubMain());
    ExpectNoHomePage();
    QVERIFY(!FolderExists(DataPath));
  }

  void TheFirstRunInsistsOnAName() {
    ScreenScript screens;
    ScriptedPrompts prompts;
    home_->Folder().Write(u"work/models.txt"_s, kModels);
    QVERIFY(QFile::remove(home_->Folder() / u"work/blank.mdb"_s));
    screens.WhenShown<frmInstall>([](frmInstall& form) {
      form.findChild<QRadioButton*>(u"optNew"_s)->click();
      Click(form, u"cmdOK"_s);
    });
    ExpectNewDatabase(prompts);
    for (int attempt = 0; attempt < 2; ++attempt) {
      EnterOwner(screens, QString());
      prompts.ExpectBox(u"Loftkeep"_s, u"You must enter a user name"_s);
    }
    EnterOwner(screens, u"Rigger"_s);
    ExpectWelcome(prompts, u"120"_s);
    QVERIFY(SubMain());
    QCOMPARE(GetValueFromTable(u"tblPeople"_s, u"LastName"_s, u"'Rigger'"_s, u"ID"_s),
             GetValueFromTableBySQL(u"tblMisc"_s, u"UserID"_s));
    QCOMPARE(GetValueFromTableBySQL(u"tblMisc"_s, u"RepackCycle"_s), Value(120));
    QCOMPARE(GetNumberRecordsInTable(u"tblPeople"_s), 1);
    QCOMPARE(GetNumberRecordsInTable(u"tblModels"_s), 1);
  }

  void ANewDatabaseIsMadeWhereTheFolderHasNone() {
    ScreenScript screens;
    ScriptedPrompts prompts;
    MakeGoodLoft();
    home_->Folder().Write(u"work/models.txt"_s, kModels);
    QVERIFY(QFile::remove(DatabaseFile()));
    QVERIFY(QFile::remove(home_->Folder() / u"work/blank.mdb"_s));
    const QString photo = home_->Folder().Write(u"home/loftkeep/photos/c1.jpg"_s, "a photo");
    prompts.ExpectBox(u"Database file not found"_s, NotFound());
    screens.WhenShown(u"frmGetBackup2"_s, [](Form& form) { Click(form, u"cmdNew"_s); });
    ExpectNewDatabase(prompts);
    EnterOwner(screens, u"Rigger"_s);
    ExpectWelcome(prompts, u"180"_s);
    QVERIFY(SubMain());
    QVERIFY(Forms::IsShown(u"frmMain2"_s));
    QCOMPARE(GetNumberRecordsInTable(u"tblTaskLib"_s), 3);
    QVERIFY(ExistFile(photo));
  }

  void ADatabaseThatGoesDuringTheStartEndsIt() {
    ScreenScript screens;
    ScriptedPrompts prompts;
    MakeGoodLoft();
    home_->Folder().Write(u"home/loftkeep/support/helptext.txt"_s, "old");
    QFile newer(home_->Folder().Write(u"work/helptext.txt"_s, "new"));
    QVERIFY(newer.open(QIODevice::ReadWrite));
    QVERIFY(newer.setFileTime(QDateTime::currentDateTime().addSecs(60), QFileDevice::FileModificationTime));
    newer.close();
    prompts.ExpectBox(u"Loftkeep"_s, u"Help files have been updated"_s).Meanwhile([] {
      ReleaseDatabaseFile();
      QVERIFY(QFile::remove(DatabaseFile()));
    });
    prompts.AnswerRestWith([](const ShownPrompt&) { return Answer::Ok; });
    QVERIFY(!SubMain());
    QCOMPARE(prompts.Transcript().last().title, u"file DOESN'T exists"_s);
    QCOMPARE(prompts.Transcript().last().text, DatabaseFile());
    ExpectNoHomePage();
    QVERIFY(!ExistFile(DatabaseFile()));
  }

  void NoChoiceIsACancelledFirstRunToo() {
    ScreenScript screens;
    ScriptedPrompts prompts;
    screens.WhenShown<frmInstall>([](frmInstall& form) {
      form.findChild<QRadioButton*>(u"optNew"_s)->click();
      QCOMPARE(form.Result(), frmInstall::Choice::NewUser);
      PressKey(form, Qt::Key_Escape);
      QCOMPARE(form.Result(), frmInstall::Choice::None);
    });
    prompts.ExpectBox(u"Loftkeep Setup Cancelled"_s, u"You have chosen to cancel the Loftkeep setup process."_s);
    QVERIFY(!SubMain());
    screens.WhenShown<frmInstall>([](frmInstall& form) { Click(form, u"cmdOK"_s); });
    prompts.ExpectBox(u"Loftkeep Setup Cancelled"_s, u"You have chosen to cancel the Loftkeep setup process."_s);
    QVERIFY(!SubMain());
    QVERIFY(!FolderExists(DataPath));
  }

  void ADataFolderThatCantBeMadeEndsTheStart() {
    ScreenScript screens;
    ScriptedPrompts prompts;
    const QString inTheWay = home_->Folder().Write(u"file"_s, "in the way");
    qputenv("XDG_DATA_HOME", inTheWay.toUtf8());
    SetDataFolder();
    screens.WhenShown<frmInstall>([](frmInstall& form) {
      form.findChild<QRadioButton*>(u"optNew"_s)->click();
      Click(form, u"cmdOK"_s);
    });
    prompts.ExpectBox(DataPath, u"Unable to create new folder - Sub CreateFolder()"_s);
    QVERIFY(!SubMain());
    ExpectNoHomePage();
    QCOMPARE(home_->Folder().Read(u"file"_s), QByteArray("in the way"));
  }

  void WithoutADatabaseThePersonChoosesUntilSomethingComesOfIt() {
    ScreenScript screens;
    ScriptedPrompts prompts;
    CreateFolder(DataPath);
    prompts.ExpectBox(u"Database file not found"_s, NotFound());
    for (int i = 0; i < 2; ++i) {
      screens.WhenShown(u"frmGetBackup2"_s, [](Form& form) {
        form.SetTag(u"cancel"_s);  // what the list of backup files leaves behind
        form.hide();
      });
    }
    screens.WhenShown(u"frmGetBackup2"_s, [](Form& form) {
      Picture(form, u"get-backup"_s);
      QCOMPARE(form.windowTitle(), u"Install a backup database"_s);
      Click(form, u"cmdCancel"_s);
    });
    prompts.ExpectBox(u"Exiting Program"_s, u"You have chosen not to install a\ndatabase.\n\nExiting Loftkeep"_s);
    QVERIFY(!SubMain());
    ExpectNoHomePage();
    QVERIFY(!ExistFile(DatabaseFile()));
  }

  void ABackupIsInstalledFromAnyFolder() {
    ScreenScript screens;
    ScriptedPrompts prompts;
    MakeGoodLoft();
    const QString backup = home_->Folder() / u"backup.mdb"_s;
    QVERIFY(QFile::rename(DatabaseFile(), backup));
    const QString words = home_->Folder().Write(u"words.mdb"_s, "no database");
    prompts.ExpectBox(u"Database file not found"_s, NotFound());
    const QString title = u"Select a database (.mdb) file"_s;
    prompts.ExpectOpenFile(title, words).Filtering(u"Loftkeep database (.mdb)|*.mdb|all files (*.*)|*.*"_s);
    prompts.ExpectBox(u"Invalid file"_s, words + u" is NOT a valid Loftkeep database file"_s);
    prompts.ExpectOpenFile(title, QString());
    prompts.ExpectOpenFile(title, backup);
    prompts.ExpectBox(u"Done"_s, u"Database installation complete"_s);
    screens.WhenShown(u"frmGetBackup2"_s, [](Form& form) {
      for (int i = 0; i < 3; ++i) Click(form, u"cmdAnyFolder"_s);
    });
    QVERIFY(SubMain());
    QCOMPARE(GetValueFromTable(u"tblPeople"_s, u"ID"_s, 1, u"LastName"_s).ToText(), u"Lee"_s);
  }

  void AFileThatIsNoDatabaseIsToldAndStays() {
    ScreenScript screens;
    ScriptedPrompts prompts;
    CreateFolder(DataPath);
    const QByteArray words = QByteArray("twenty years of repacks, or so it says\n").repeated(200);
    home_->Folder().Write(u"home/loftkeep/loftkeep.mdb"_s, words);
    prompts.ExpectBox(u"Sub ConnectionStart"_s, u"Unrecognized database format '"_s + DatabaseFile() + u"'."_s);
    prompts
        .Expect(u"Start new database?"_s,
                u"Loftkeep has encountered an error.\n\nWould you like to create a new database?\n"
                "(this will be an empty database)"_s,
                Answer::No)
        .WithPreset(Answer::No);
    QVERIFY(SubMain());
    QVERIFY(Forms::IsShown(u"frmMain2"_s));
    QCOMPARE(home_->Folder().Read(u"home/loftkeep/loftkeep.mdb"_s), words);
  }

  void WhatCantBeWrittenIsShownAndEachSaveIsRefused_data() {
    QTest::addColumn<bool>("folder");
    QTest::newRow("the folder") << true;
    QTest::newRow("the file") << false;
  }
  void WhatCantBeWrittenIsShownAndEachSaveIsRefused() {
    QFETCH(bool, folder);
    MakeGoodLoft();
    home_->Folder().Write(u"home/loftkeep/support/blank.mdb"_s, "an empty database");
    const QByteArray before = home_->Folder().Read(u"home/loftkeep/loftkeep.mdb"_s);
    QVERIFY(QFile::setPermissions(home_->Folder().Path(), kReadable));
    if (!folder) {
      QVERIFY(QFile::setPermissions(DataPath, kReadable | QFile::WriteGroup | QFile::WriteOther));
      QVERIFY(QFile::setPermissions(DatabaseFile(), QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
    }
    {
      const OrdinaryUser user;
      ScreenScript screens;
      ScriptedPrompts prompts;
      QVERIFY(SubMain());
      QVERIFY(Forms::IsShown(u"frmMain2"_s));
      QCOMPARE(GetValueFromTable(u"tblPeople"_s, u"ID"_s, 1, u"LastName"_s).ToText(), u"Lee"_s);
      prompts.ExpectBox(u"Sub UpdateTable()"_s,
                        u"Cannot update.  Database or object is read-only.\nNothing was changed."_s);
      UpdateTable(u"tblPeople"_s, u"LastName"_s, u"Moe"_s, u"ID"_s, 1);
      UnloadScreens();
      LeaveDataFolder();
      ReleaseDatabaseFile();
    }
    QCOMPARE(home_->Folder().Read(u"home/loftkeep/loftkeep.mdb"_s), before);
  }

  void AFailedStartCanBeginAnewOnlyAfterTwoQuestions() {
    ScreenScript screens;
    ScriptedPrompts prompts;
    CreateFolder(DataPath);
    home_->Folder().Write(u"home/loftkeep/loftkeep.mdb"_s, QByteArray("words").repeated(500));
    const QString offer =
        u"Loftkeep has encountered an error.\n\nWould you like to create a new database?\n"
        "(this will be an empty database)"_s;
    const QString warning =
        u"This will delete the LOFTKEEP folder as well as the special folder.\n"
        "The files in those folders will be deleted (this includes loftkeep.mdb)\n\n"
        "This will start over as a new user\n\nAre you sure you want to do this?"_s;
    for (Answer sure : {Answer::No, Answer::Yes}) {
      prompts.ExpectBox(u"Sub ConnectionStart"_s, u"Unrecognized database format '"_s + DatabaseFile() + u"'."_s);
      prompts.Expect(u"Start new database?"_s, offer, Answer::Yes);
      prompts.Expect(u"Loftkeep"_s, warning, sure).WithPreset(Answer::No);
      if (sure == Answer::Yes) prompts.ExpectBox(u"Loftkeep"_s, u"Now exit program and start over as new user"_s);
      SubMain();
      prompts.Finish();
      QCOMPARE(FolderExists(DataPath), sure == Answer::No);
    }
  }

  void ASecondStartLeavesTheDataAlone() {
    ScreenScript screens;
    ScriptedPrompts prompts;
    MakeGoodLoft();
    const QByteArray before = home_->Folder().Read(u"home/loftkeep/loftkeep.mdb"_s);
    QLockFile other(DataPath + u"loftkeep.lock"_s);
    QVERIFY(other.tryLock(0));
    prompts.ExpectBox(u"Loftkeep"_s, u"Loftkeep is already running with the data in this folder:\n\n"_s + DataPath);
    QVERIFY(!SubMain());
    ExpectNoHomePage();
    QCOMPARE(home_->Folder().Read(u"home/loftkeep/loftkeep.mdb"_s), before);
    other.unlock();
    QVERIFY(SubMain());
  }

  void ALongRunningProgramKeepsItsData() {
    ScreenScript screens;
    ScriptedPrompts prompts;
    MakeGoodLoft();
    QLockFile other(DataPath + u"loftkeep.lock"_s);
    QVERIFY(other.tryLock(0));
    QFile lock(DataPath + u"loftkeep.lock"_s);
    QVERIFY(lock.open(QFile::ReadWrite));
    QVERIFY(lock.setFileTime(QDateTime::currentDateTime().addDays(-30), QFile::FileModificationTime));
    lock.close();
    prompts.ExpectBox(u"Loftkeep"_s, u"Loftkeep is already running with the data in this folder:\n\n"_s + DataPath);
    QVERIFY(!SubMain());
    other.unlock();
  }

  void DiagnosticModeSaysSo() {
    ScreenScript screens;
    ScriptedPrompts prompts;
    MakeGoodLoft();
    home_->Folder().Write(u"work/diag.txt"_s, "");
    prompts.ExpectBox(u"diag.txt file found"_s, u"Diagnostic mode is on!"_s);
    prompts.ExpectBox(u"Loftkeep"_s, u"9. next is CheckDB"_s);
    QVERIFY(SubMain());
    QVERIFY(DiagnosticMode);
    DiagnosticMode = false;
  }

  void AnOlderDatabaseIsMendedOnTheWay() {
    ScreenScript screens;
    ScriptedPrompts prompts;
    MakeGoodLoft();
    ConnectionString = ConnectionStringFor(DatabaseFile());
    UpdateTableBySQL(u"delete * from tblMisc"_s);
    UpdateTableBySQL(u"delete * from tblComponentTypes where ID = 3"_s);
    UpdateTableBySQL(u"insert into tblComponents (RigID, TypeID, ModelID) values (77, 3, 1)"_s);
    UpdateTableBySQL(u"delete * from tblTaskLib where ID = 1"_s);
    ReleaseDatabaseFile();
    prompts.ExpectInput(u"Enter reserve repack cycle"_s, u"How many days for reserve repack cycle?"_s, u"120"_s)
        .Proposing(u"180"_s);
    prompts.ExpectBox(u"Sub CreateRepackTaskType(TaskLibID As Long)"_s, u"repack not found in task library"_s);
    prompts.ExpectBox(u"New task type added"_s, u"Reserve repack added to task library"_s);
    QVERIFY(SubMain());
    QCOMPARE(GetValueFromTableBySQL(u"tblMisc"_s, u"RepackCycle"_s), Value(120));
    QCOMPARE(GetNumberRecordsInTable(u"tblComponentTypes"_s), 7);
    QCOMPARE(GetValueFromTable(u"tblComponents"_s, u"ID"_s, 1, u"RigID"_s), Value(0));
  }

  void WhatTheLoftLacksIsThereAfterTheStart() {
    ScreenScript screens;
    ScriptedPrompts prompts;
    MakeGoodLoft();
    ConnectionString = ConnectionStringFor(DatabaseFile());
    for (const QString& table : {u"tblRigTypes"_s, u"tblModels"_s, u"tblTaskLib"_s})
      UpdateTableBySQL(u"delete * from "_s + table);
    ReleaseDatabaseFile();
    QVERIFY(QDir(DataPath + u"backup"_s).removeRecursively());
    home_->Folder().Write(u"work/models.txt"_s, kModels);
    home_->Folder().Write(u"work/helptext.txt"_s, "help");
    QVERIFY(SubMain());
    QVERIFY(FolderExists(DataPath + u"backup"_s));
    QCOMPARE(home_->Folder().Read(u"home/loftkeep/support/models.txt"_s), QByteArray(kModels));
    QCOMPARE(home_->Folder().Read(u"home/loftkeep/support/helptext.txt"_s), QByteArray("help"));
    QCOMPARE(GetValueFromTableBySQL(u"Select * from tblModels where Name = 'Storm'"_s, u"TypeID"_s), Value(2));
    QCOMPARE(GetNumberRecordsInTable(u"tblRigTypes"_s), 4);
    QCOMPARE(GetNumberRecordsInTable(u"tblTaskLib"_s), 3);
  }

  void ACycleThatIsNoneBecomes180_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("days");
    QTest::newRow("nothing") << QString() << 180;
    QTest::newRow("none") << u"0"_s << 180;
    QTest::newRow("backwards") << u"-120"_s << 180;
    QTest::newRow("the longest") << u"32767"_s << 32767;
    QTest::newRow("too long") << u"32768"_s << 180;
  }
  void ACycleThatIsNoneBecomes180() {
    QFETCH(QString, typed);
    QFETCH(int, days);
    ScreenScript screens;
    ScriptedPrompts prompts;
    MakeGoodLoft();
    ConnectionString = ConnectionStringFor(DatabaseFile());
    UpdateTableBySQL(u"delete * from tblMisc"_s);
    ReleaseDatabaseFile();
    prompts.ExpectInput(u"Enter reserve repack cycle"_s, u"How many days for reserve repack cycle?"_s, typed);
    QVERIFY(SubMain());
    QCOMPARE(GetValueFromTableBySQL(u"tblMisc"_s, u"RepackCycle"_s), Value(days));
    QCOMPARE(GetValueFromTable(u"tblTaskLib"_s, u"ID"_s, 1, u"IntervalNumber"_s), Value(days));
  }

 private:
  std::unique_ptr<DataHome> home_;
};

LOFT_TEST_MAIN(StartUpTest)
#include "tst_start_up.moc"
