#include <QCoreApplication>
#include <QLockFile>
#include <QRadioButton>
#include <QTest>

#include "core/files.h"
#include "core/shell/frmInstall.h"
#include "core/shell/frmMain2.h"
#include "core/shell/start_up.h"
#include "core/store/access.h"
#include "dbcare/screens/frmFolders.h"
#include "support/data_home.h"
#include "support/exported_loft.h"
#include "support/screens/controls.h"
#include "support/screens/keyboard.h"
#include "support/screens/screen_script.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

namespace {

void ExpectFolderQuestion(ScriptedPrompts& prompts, Answer answer) {
  prompts
      .Expect(u"Select import folder"_s,
              u"Importing data files from another computer\nOn the next screen, you will select the folder\n"
              "where your exported Loftkeep files are located.\nThis assumes that you have run Loftkeep on a \n"
              "different computer and have used the EXPORT tool\nto move your data files to a designated folder\n"
              "(see TOOLS - export data to another computer) \nAre you ready to select the folder to import files? "_s,
              answer)
      .WithButtons(Buttons::YesNo)
      .WithPreset(Answer::No);
}

void ExpectCancelled(ScriptedPrompts& prompts, Answer answer) {
  prompts.Expect(u"Loftkeep"_s, u"Importing cancelled.\n\nWould you like to continue as a new user?"_s, answer)
      .WithButtons(Buttons::YesNo);
}

QString Warning() {
  return u"WARNING!  You are about to import files from \nanother installation of Loftkeep.  This will overwrite \n"
         "you current files.  Once performed, this process cannot\nbe reversed.\n\n"
         "This includes your photo files (your database has been\nbacked up).\n\n"
         "Are you sure you want to import these Loftkeep files?"_s;
}

/// The person says who is asking.
void ChooseCurrentUser(ScreenScript& screens) {
  screens.WhenShown<frmInstall>([](frmInstall& form) {
    QCOMPARE(ClashesOf(form), QString());
    Click(form, u"optCurrent"_s);
    Picture(form, u"install-current"_s);
    Click(form, u"cmdOK"_s);
  });
}

/// Goes to a folder of the chooser and selects it.
void SelectFolder(ScreenScript& screens, const QString& folder) {
  screens.WhenShown<frmFolders>([folder](frmFolders& form) {
    QCOMPARE(form.windowTitle(), u"Select source folder for importing"_s);
    form.GoTo(folder);
    Click(form, u"cmdSelect"_s);
  });
}

}  // namespace

/// The first run of a person who has the loft on another computer, and the same import later on.
class StartUpImportTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() {
    QCoreApplication::setApplicationVersion(u"0.1.0"_s);
    home_ = std::make_unique<DataHome>();
    home_->Folder().Write(u"work/blank.mdb"_s, "an empty database");
    export_ = MakeExport(home_->Folder());
  }
  void cleanup() {
    UnloadScreens();
    LeaveDataFolder();
    home_.reset();
  }

  void TheImportedLoftIsUsedAtOnce() {
    ScreenScript screens;
    ScriptedPrompts prompts;
    AddOwnRow();
    ChooseCurrentUser(screens);
    ExpectFolderQuestion(prompts, Answer::Yes);
    SelectFolder(screens, export_);
    prompts.Expect(u"Continue?"_s, Warning(), Answer::Yes);
    QVERIFY(SubMain());
    QVERIFY(Forms::IsShown(u"frmMain2"_s));
    QCOMPARE(DatabasePath(), DatabaseFile());
    QCOMPARE(CustomersIn(DatabaseFile()), QStringList{u"New"_s});
    QCOMPARE(GetValueFromTableBySQL(u"tblMisc"_s, u"RepackCycle"_s), Value(120));
    QCOMPARE(GetNumberRecordsInTable(u"tblComponentTypes"_s), 7);
    UpdateTable(u"tblPeople"_s, u"LastName"_s, u"Newer"_s, u"ID"_s, 1);
    QCOMPARE(CustomersIn(DatabaseFile()), QStringList{u"Newer"_s});
    QCOMPARE(CustomersIn(export_ + u"/loftkeep.mdb"_s), QStringList{u"New"_s});
    QCOMPARE(home_->Folder().Read(u"home/loftkeep/photos/hires/c1.jpg"_s), QByteArray("new and large"));
  }

  void TheNewDataFolderIsLockedByThisProcess() {
    ScreenScript screens;
    ScriptedPrompts prompts;
    AddOwnRow();
    ChooseCurrentUser(screens);
    ExpectFolderQuestion(prompts, Answer::Yes);
    SelectFolder(screens, export_);
    prompts.Expect(u"Continue?"_s, Warning(), Answer::Yes);
    QVERIFY(SubMain());
    QVERIFY(!home_->Folder().Read(u"home/loftkeep/loftkeep.lock"_s).contains("another computer's"));
    QLockFile other(DataPath + u"loftkeep.lock"_s);
    other.setStaleLockTime(0);
    QVERIFY(!other.tryLock(0));
    LeaveDataFolder();
    QVERIFY(other.tryLock(0));
  }

  void AnOlderExportIsBroughtToTheSchema() {
    ScreenScript screens;
    ScriptedPrompts prompts;
    AddOwnRow();
    ChangeExport([] { OpenDatabase().ChangeSchema("ALTER TABLE tblTasks DROP COLUMN LocationID"); });
    ChooseCurrentUser(screens);
    ExpectFolderQuestion(prompts, Answer::Yes);
    SelectFolder(screens, export_);
    prompts.Expect(u"Continue?"_s, Warning(), Answer::Yes);
    prompts.ExpectBox(u"Database updated"_s,
                      u"A field is being added to your database.\n\nTable: tblTasks\nNew field: LocationID"_s);
    QVERIFY(SubMain());
    QCOMPARE(RowsOfFile(DatabaseFile(), u"SELECT count(LocationID) FROM tblTasks"_s), QStringList{u"0"_s});
  }

  void NoOrCancelCanGoOnAsANewUser_data() {
    QTest::addColumn<bool>("seesFolders");
    QTest::newRow("No") << false;
    QTest::newRow("Cancel") << true;
  }
  void NoOrCancelCanGoOnAsANewUser() {
    QFETCH(bool, seesFolders);
    ScreenScript screens;
    ScriptedPrompts prompts;
    ChooseCurrentUser(screens);
    Decline(screens, prompts, seesFolders);
    ExpectCancelled(prompts, Answer::Yes);
    screens.WhenShown(u"frmPeople"_s, [](Form& form) {
      QTest::qWait(0);
      Click(form, u"cmdExit"_s);
    });
    screens.WhenShown(u"frmPeopleEdit"_s, [](Form& form) {
      TypeInto(form, u"txtLast"_s, u"Rigger"_s);
      Click(form, u"cmdSave"_s);
    });
    QVERIFY(QFile::remove(home_->Folder() / u"work/blank.mdb"_s));
    prompts.AnswerRestWith([](const ShownPrompt&) { return Answer::Ok; });
    prompts.ExpectBox(u"sub CheckBlankmb"_s, u"file 'blank.mdb' not found"_s).Meanwhile([] {
      QVERIFY(!ExistFile(DatabaseFile()));
    });
    prompts.ExpectBox(u"Create new database"_s,
                      u"Preparing to create new database.\n\nThis should take just a few seconds .........."_s);
    prompts.ExpectBox(u"Creating new database file"_s,
                      u"The file 'blank.mdb' could not be found.\n\nA database file will now be created."_s);
    prompts.ExpectBox(u"Loftkeep"_s, u"New database file installed successfully"_s);
    const QString models = u"The file 'models.txt' is missing.  Manufacturers and models will not be loaded"_s;
    prompts.ExpectBox(u"Can't find 'models.txt')"_s, models);
    prompts.ExpectBox(u"Your Information"_s, u"Please enter your name\n\nPress OK to continue"_s);
    prompts.ExpectInput(u"Enter repack cycle (in days)"_s, u"Reserve must be repacked every 180 days"_s, QString());
    QVERIFY(SubMain());
    QCOMPARE(CustomersIn(DatabaseFile()), QStringList{u"Rigger"_s});
    QVERIFY(Forms::IsShown(u"frmMain2"_s));
  }

  void NoOrCancelCanEndTheProgram_data() { NoOrCancelCanGoOnAsANewUser_data(); }
  void NoOrCancelCanEndTheProgram() {
    QFETCH(bool, seesFolders);
    ScreenScript screens;
    ScriptedPrompts prompts;
    ChooseCurrentUser(screens);
    Decline(screens, prompts, seesFolders);
    ExpectCancelled(prompts, Answer::No);
    prompts.ExpectBox(u"Loftkeep"_s, u"Exiting Loftkeep"_s);
    QVERIFY(!SubMain());
    QVERIFY(!Forms::IsShown(u"frmMain2"_s));
    QVERIFY(!FolderExists(DataPath));
  }

  void TheChooserStaysUntilAnImportSucceeds() {
    ScreenScript screens;
    ScriptedPrompts prompts;
    AddOwnRow();
    ChooseCurrentUser(screens);
    ExpectFolderQuestion(prompts, Answer::Yes);
    screens.WhenShown<frmFolders>([this, &prompts](frmFolders& form) {
      form.GoTo(home_->Folder() / u"work"_s);
      prompts.ExpectBox(u"Loftkeep"_s,
                        u"Can't import files from that folder.\nThe selected folder doesn't contain Loftkeep files"_s);
      Click(form, u"cmdSelect"_s);
      form.GoTo(export_);
      prompts.Expect(u"Continue?"_s, Warning(), Answer::No);
      Click(form, u"cmdSelect"_s);
      QVERIFY(form.isVisible() && !FolderExists(DataPath));
      prompts.Expect(u"Continue?"_s, Warning(), Answer::Yes);
      Click(form, u"cmdSelect"_s);
    });
    QVERIFY(SubMain());
    QCOMPARE(CustomersIn(DatabaseFile()), QStringList{u"New"_s});
  }

  void TheHomePageImportsLaterOn() {
    ScreenScript screens;
    ScriptedPrompts prompts;
    AddOwnRow();
    CreateSubFolders();
    MakeDatabaseFile(DatabaseFile(), u"Old"_s);
    ConnectionString = ConnectionStringFor(DatabaseFile());
    UpdateTableBySQL(u"insert into tblMisc (RepackCycle) values (180)"_s);
    QVERIFY(SubMain());
    auto& home = SharedForm<frmMain2>();
    const QString question =
        u"You are about to import your Loftkeep data\nfiles.  This assumes that you have run Loftkeep\n"
        "on another system and exported your files there."_s;
    const QStringList road{u"Tools"_s, u"Import data from another computer"_s};
    Click(home, u"cmdPeople"_s);
    prompts.Expect(u"Loftkeep"_s, question, Answer::No).WithButtons(Buttons::YesNo).WithPreset(Answer::No);
    ChooseMenu(home, road);
    QVERIFY(Forms::IsShown(u"frmPeople"_s));
    prompts.Expect(u"Loftkeep"_s, question, Answer::Yes);
    screens.WhenShown<frmFolders>([](frmFolders& form) {
      QVERIFY(!Forms::IsShown(u"frmPeople"_s));
      PressKey(form, Qt::Key_Escape);
    });
    ChooseMenu(home, road);
    QCOMPARE(CustomersIn(DatabaseFile()), QStringList{u"Old"_s});
    ChangeExport([] { OpenDatabase().ChangeSchema("ALTER TABLE tblTasks DROP COLUMN LocationID"); });
    UpdateInExport(u"insert into tblComponents (RigID, TypeID, ModelID) values (77, 3, 1)"_s);
    prompts.Expect(u"Loftkeep"_s, question, Answer::Yes);
    SelectFolder(screens, export_);
    prompts.Expect(u"Continue?"_s, Warning(), Answer::Yes);
    prompts.ExpectBox(u"Database backup performed"_s,
                      u"A backup copy your current database file\nwas just created (db00001.mdb)"_s);
    prompts.ExpectBox(u"Database updated"_s,
                      u"A field is being added to your database.\n\nTable: tblTasks\nNew field: LocationID"_s);
    ChooseMenu(home, road);
    QCOMPARE(CustomersIn(DatabaseFile()), QStringList{u"New"_s});
    QCOMPARE(GetValueFromTable(u"tblComponents"_s, u"ID"_s, 1, u"RigID"_s), Value(0));
    QVERIFY(home.isVisible() && !ConnectionIsOpen);
    Click(home, u"cmdPeople"_s);
    QVERIFY(Forms::IsShown(u"frmPeople"_s));
  }

 private:
  /// No, or a cancelled chooser.
  static void Decline(ScreenScript& screens, ScriptedPrompts& prompts, bool seesFolders) {
    ExpectFolderQuestion(prompts, seesFolders ? Answer::Yes : Answer::No);
    if (!seesFolders) return;
    screens.WhenShown<frmFolders>([](frmFolders& form) {
      QVERIFY(!FolderExists(DataPath));
      Click(form, u"cmdCancel"_s);
    });
  }

  void ChangeExport(const std::function<void()>& change) const {
    ReleaseDatabaseFile();
    const QString before = std::exchange(ConnectionString, ConnectionStringFor(export_ + u"/loftkeep.mdb"_s));
    {
      Bracket bracket;
      change();
    }
    ReleaseDatabaseFile();
    ConnectionString = before;
  }
  void UpdateInExport(const QString& statement) const {
    ChangeExport([&] { UpdateTableBySQL(statement); });
  }
  /// What a loft that has been used holds: its repack cycle.
  void AddOwnRow() const { UpdateInExport(u"insert into tblMisc (RepackCycle) values (120)"_s); }

  std::unique_ptr<DataHome> home_;
  QString export_;
};

LOFT_TEST_MAIN(StartUpImportTest)
#include "tst_start_up_import.moc"
