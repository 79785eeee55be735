#include "core/shell/start_up.h"

#include <QLockFile>

#include <memory>

#include "core/clock.h"
#include "core/data_folder.h"
#include "core/default_rows.h"
#include "core/failure.h"
#include "core/files.h"
#include "core/format.h"
#include "core/shell/frmInstall.h"
#include "core/shell/frmMain2.h"
#include "core/shell/frmMenu.h"
#include "core/shell/frmSplash.h"
#include "core/shell/window_habits.h"
#include "core/stand_by.h"
#include "core/store/operation.h"
#include "core/trap.h"
#include "core/widgets/screen_routines.h"
#include "dbcare/check_fields.h"
#include "dbcare/new_database.h"
#include "dbcare/screens.h"
#include "gear/models_file.h"
#include "gear/screens.h"
#include "jobs/repack_price.h"
#include "jobs/screens.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kStop = -999;

std::unique_ptr<QLockFile> folderLock;

/// One process to a data folder. False when another one has it.
bool TakeFolder() {
  if (!FolderExists(DataPath)) return true;
  auto lock = std::make_unique<QLockFile>(DataPath + u"loftkeep.lock"_s);
  lock->setStaleLockTime(0);
  if (!folderLock && !lock->tryLock(0) && lock->error() == QLockFile::LockFailedError) return false;
  if (!folderLock) folderLock = std::move(lock);
  return true;
}

void Stop() {
  ConnectionCount = kStop;
  UnloadAllForms();
}

bool OpenConnection() {
  if (!ConnectionIsOpen) ConnectionStart();
  return ConnectionIsOpen;
}

/// True when a database is in place, or the person has been through the first run.
bool FindDatabase() {
  while (!ExistFile(DatabaseFile())) {
    MsgBox(Lines({u"Your database file cannot be found"_s, QString(),
                  u"You can install a backup database or create a new one"_s, u"(Press OK to continue)"_s}),
           u"Database file not found"_s);
    QString choice = u"cancel"_s;
    while (choice == "cancel"_L1) choice = ChooseDatabase();
    if (choice == "new"_L1) {
      FirstRunSetup(true);
      return true;
    }
    if (choice == "end"_L1) {
      MsgBox(Lines({u"You have chosen not to install a"_s, u"database."_s, QString(), u"Exiting Loftkeep"_s}),
             u"Exiting Program"_s);
      Stop();
      return false;
    }
  }
  return true;
}

void CheckSupportFiles() {
  CheckBlankmb();
  CheckModelsFile();
  CheckHelpFile();
}

void MakeDatabase() {
  CreateNewDatabase();
  if (ConnectionIsOpen) ConnectionClose();
  MsgBox(u"New database file installed successfully"_s);
  UnloadStandBy();
  CreateDefaultRows();
}

/// Takes over the data files of another computer, whose database is used from then on.
bool ImportOnFirstRun() {
  return AskYes(Lines({u"Importing data files from another computer"_s,
                       u"On the next screen, you will select the folder"_s,
                       u"where your exported Loftkeep files are located."_s,
                       u"This assumes that you have run Loftkeep on a "_s,
                       u"different computer and have used the EXPORT tool"_s,
                       u"to move your data files to a designated folder"_s,
                       u"(see TOOLS - export data to another computer) "_s,
                       u"Are you ready to select the folder to import files? "_s}),
                u"Select import folder"_s) &&
         ImportFromFolder();
}

void AskForOwner() {
  MsgBox(Lines({u"Please enter your name"_s, QString(), u"Press OK to continue"_s}), u"Your Information"_s);
  while (ShowPeople(kPeopleAddNew, true) < 1) MsgBox(u"You must enter a user name"_s);
}

frmMain2& ShowHomePage() {
  SharedForm<frmMenu>().Show();
  auto& home = SharedForm<frmMain2>();
  home.Show();
  return home;
}

/// The offer that ends a start which failed: an empty database, by way of the first run.
void OfferNewStart() {
  if (!AskYes(Lines({u"Loftkeep has encountered an error."_s, QString(), u"Would you like to create a new database?"_s,
                     u"(this will be an empty database)"_s}),
              u"Start new database?"_s))
    return;
  if (!AskYes(Lines({u"This will delete the LOFTKEEP folder as well as the special folder."_s,
                     u"The files in those folders will be deleted (this includes loftkeep.mdb)"_s, QString(),
                     u"This will start over as a new user"_s, QString(), u"Are you sure you want to do this?"_s}),
              kProgramTitle))
    return;
  ReleaseDatabaseFile();
  LeaveDataFolder();
  DeleteFolderTree(DataPath);
  MsgBox(u"Now exit program and start over as new user"_s);
  UnloadAllForms();
}

}  // namespace

void LeaveDataFolder() { folderLock.reset(); }

bool SubMain() {
  RegisterGearPickers();
  RegisterJobPickers();
  ConnectionCount = 0;
  DiagnosticMode = ExistFile(u"diag.txt"_s);
  if (DiagnosticMode) MsgBox(u"Diagnostic mode is on!"_s, u"diag.txt file found"_s);
  try {
    CheckFolderSystem();
    if (ConnectionCount == kStop) return false;
    if (DiagnosticMode) MsgBox(u"9. next is CheckDB"_s);
    if (!OpenConnection()) throw Failure(u"The database could not be opened"_s);
    CheckDatabaseOnStart();
    CloseLeftOpenConnection();
  } catch (const std::exception&) {
    CloseLeftOpenConnection();
    OfferNewStart();
    ShowHomePage();  // without the splash screen, whose counts would fail one by one
    return true;
  }
  ShowHomeScreens();
  return true;
}

void CheckFolderSystem() {
  SetDataFolder();
  ConnectionString = ConnectionStringFor(DatabaseFile());
  if (ConnectionCount == kStop) return;
  if (!TakeFolder()) {
    MsgBox(Lines({u"Loftkeep is already running with the data in this folder:"_s, QString(), DataPath}), kProgramTitle,
           Icon::Exclamation);
    Stop();
    return;
  }
  if (!FolderExists(DataPath)) FirstRunSetup(false);
  if (ConnectionCount == kStop || !FindDatabase() || ConnectionCount == kStop) return;
  TakeFolder();
  if (!OpenConnection()) throw Failure(u"The database could not be opened"_s);
  Trap(u"Sub CheckFolderSystem"_s, [] {
    CreateSubFolders();
    CheckSupportFiles();
    CheckAllFields(true);
  });
  if (!ExistFile(DatabaseFile())) {
    MsgBox(DatabaseFile(), u"file DOESN'T exists"_s);
    Stop();
  }
}

void FirstRunSetup(bool forNewDatabase) {
  auto choice = frmInstall::Choice::NewUser;
  if (!forNewDatabase) {
    auto& form = SharedForm<frmInstall>();
    form.ShowModal();
    choice = form.Result();
    form.UnloadForm();
  }
  if (choice == frmInstall::Choice::CurrentUser) {
    if (ImportOnFirstRun()) return;
    if (!AskYes(Lines({u"Importing cancelled."_s, QString(), u"Would you like to continue as a new user?"_s}),
                kProgramTitle)) {
      MsgBox(u"Exiting Loftkeep"_s);
      Stop();
      return;
    }
  } else if (choice == frmInstall::Choice::None) {
    MsgBox(u"You have chosen to cancel the Loftkeep setup process."_s, u"Loftkeep Setup Cancelled"_s);
    Stop();
    return;
  }
  SetDataFolder();
  if (!FolderExists(DataPath)) CreateFolder(DataPath);
  if (!FolderExists(DataPath)) {  // the box has told why
    Stop();
    return;
  }
  if (!ExistFile(DatabaseFile())) {
    CreateSubFolders();
    CheckBlankmb();
    MakeDatabase();
  }
  CreateSubFolders();
  CheckModelsFile();
  CheckHelpFile();
  AskForOwner();
  AskRepackCycle();
  MsgBox(
      Lines({u"Setup is complete!  Welcome to Loftkeep!"_s, QString(),
             u"Be sure to check out the HELP menu.  There's a "_s,
             u"select called QUICK TOUR that will get you started."_s, QString(), u"Thank you for using Loftkeep!"_s}),
      u"Welcome!"_s);
}

void CheckDatabaseOnStart() {
  UnrecordedOperation(u"Sub CheckDatabaseOnStart"_s, [] {
    if (!HasMiscRow()) {
      const int answer = static_cast<int>(
          Val(InputBox(u"How many days for reserve repack cycle?"_s, u"Enter reserve repack cycle"_s, u"180"_s)));
      constexpr int kHighest = 32767;
      AddMiscRow(180);
      SetRepackCycle(answer > 0 && answer <= kHighest ? answer : 180);
    }
    CheckMiscRow();
    FreeComponentsOfVanishedRigs();
    CheckComponentTypes();
    CreateDefaultRigTypes();
    CreateDefaultTasks();
    CheckAllFields(false);
    ReportLostComponentTypes();
    RepairRepackTaskType();
  });
}

void ShowSplash(const QWidget* over) {
  auto& splash = SharedForm<frmSplash>();
  splash.Show();
  CentreForm(&splash, over);
  splash.raise();
}

void ShowHomeScreens() {
  frmMain2& home = ShowHomePage();
  ShowSplash();
  const QPoint away(FromTwips(1000), FromTwips(1000));
  home.move(SharedForm<frmSplash>().pos() - away);
}
