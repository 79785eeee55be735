#include "core/shell/home_commands.h"

#include <QHash>

#include "core/clock.h"
#include "core/default_rows.h"
#include "core/picker.h"
#include "core/prompts.h"
#include "core/screens.h"
#include "core/shell/frmMain2.h"
#include "core/shell/frmMenu.h"
#include "core/shell/frmRecentChanges.h"
#include "core/shell/start_up.h"
#include "core/shell/support_listing.h"
#include "core/shell/window_habits.h"
#include "core/store/connection.h"
#include "core/store/undo.h"
#include "core/widgets/screen_routines.h"
#include "core/widgets/undo_keys.h"
#include "dbcare/check_fields.h"
#include "dbcare/screens.h"
#include "gear/person_record.h"
#include "gear/screens.h"
#include "history/screens.h"
#include "jobs/job_records.h"
#include "jobs/repack_price.h"
#include "jobs/screens.h"
#include "reports/screens.h"
#include "schedule/reconstruct.h"
#include "schedule/screens.h"

using namespace Qt::StringLiterals;

namespace {

void CheckDatabaseFields() {
  if (!AskYes(Lines({u"This utility will check your database file"_s, u"for all tables and fields."_s, QString(),
                     u"This may take a few seconds."_s, QString(), u"Would you like to do this now?"_s}),
              u"Check Database Fields"_s))
    return;
  CheckAllFields(true);
  MsgBox(u"Finished checking database tables and fields."_s, u"Done"_s);
}

void ImportData() {
  if (!AskYes(
          Lines({u"You are about to import your Loftkeep data"_s, u"files.  This assumes that you have run Loftkeep"_s,
                 u"on another system and exported your files there."_s}),
          kProgramTitle))
    return;
  HideForms();  // what they show and would still save belongs to the present database
  if (!ImportFromFolder()) return;
  CheckAllFields(true);
  CheckDatabaseOnStart();
}

void ShowDatabaseName() { MsgBox(DatabasePath(), u"Your database file is:"_s); }

void ShowHome() { SharedForm<frmMain2>().Show(); }

void ShowAbout() { ShowSplash(FormIfLoaded<frmMain2>()); }

void ShowFloatingMenu() { SharedForm<frmMenu>().Show(); }

void LeaveProgram() { ExitProgram(nullptr); }

void ShowCustomers() { OpenPeople(); }

void AddCustomer() { OpenPeople(kPeopleAddNew); }

void ShowRigDatabase() { OpenRigs({.customer = LastCustomerID()}); }

void ShowRigsPlainly() { OpenRigs({.customer = LastCustomerID(), .hideButtons = true}); }

void LookUpSerialNumber() {
  if (const int component = PickComponentBySerial(); component != 0) ShowComponent(component);
}

void StartJobForCustomer() {
  int customer = PickItem(kPickCustomer).id;
  if (customer == kPickAddNewPerson) customer = ShowPeople(kPeopleAddNew);
  if (customer > 0) StartNewJob(customer, 0, 0, Today());
}

void ShowLastJob() {
  if (JobsExist()) ShowJob();
}

void ShowJobList() { OpenJobList(); }

void ShowJobsOfTask() {
  if (const int task = PickItem(kPickTask).id; task > 0) OpenJobList({.taskLibID = task});
}

void ShowAllModels() { OpenModels(); }

void ShowParts() { OpenModels({.type = kMisc}); }

void ShowManufacturers() { OpenModels({.onManufacturers = true}); }

void ShowSchedule() { OpenSchedule(); }

void ShowRigHistory() { OpenRigHistory(); }

void ShowComponentHistory() {
  if (const int component = PickComponent(0); component != 0) OpenComponentHistory(component);
}

void ShowTaskLibrary() { OpenTaskLibrary(false); }

void ShowEventLibrary() { OpenTaskLibrary(true); }

void CreateTask() { EditTaskType(); }

void LoadAllForms() {
  ShowJobList();
  ShowLastJob();
  OpenSchedule();
  ArrangeForms();
}

void ShowRecentChanges() { SharedForm<frmRecentChanges>().Show(); }

void UndoLast() { UndoOnScreen(SharedForm<frmMain2>()); }

void RedoLast() { RedoOnScreen(SharedForm<frmMain2>()); }

std::optional<QString> Naming(const QString& verb, const std::optional<RecordedOperation>& operation) {
  if (!operation) return std::nullopt;
  return u"%1 \"%2\""_s.arg(verb, WithoutMnemonic(operation->name));
}

const HomeCommand kLater;  // its screen is not there yet

}  // namespace

std::vector<MenuLine> MainMenu() {
  const QStringList setUp{u"Set up"_s}, forms{u"Forms"_s}, jobs{u"Jobs"_s}, customers{u"Customers"_s},
      library{u"Task Library"_s}, parts{u"Parts"_s}, gear{u"Gear"_s}, gearHistory{u"Gear"_s, u"History"_s},
      history{u"History"_s}, reports{u"Reports"_s}, tools{u"Tools"_s}, photos{u"Tools"_s, u"Photos"_s},
      email{u"Email"_s}, database{u"Database"_s}, install{u"Database"_s, u"Install backup database"_s}, help{u"Help"_s};
  return {
      {setUp, u"Rig Types"_s, OpenRigTypes},
      {setUp, u"Component Types"_s, ShowComponentTypes},
      {setUp, u"Repack prices"_s, ShowRepackPrices},
      {setUp, u"Set Repack Cycle"_s, AskRepackCycle},
      {setUp, u"Locations"_s, [] { ShowLocations(); }},
      {setUp, u"Task Library"_s, ShowTaskLibrary},
      {setUp, u"Event Library"_s, ShowEventLibrary},
      {setUp, u"Set default photo size"_s, kLater},
      {setUp, u"Business title and address"_s, EditBusinessAddress},
      {setUp, u"Change Loftkeep program owner"_s, kLater},
      {forms, u"Cascade"_s, ArrangeForms},
      {forms, u"Close all open forms"_s, CloseAllForms},
      {forms, u"Load all forms"_s, LoadAllForms},
      {forms, u"Show menu"_s, ShowFloatingMenu},
      {jobs, u"Start new job"_s, StartJobForCustomer},
      {jobs, u"Review/Edit jobs"_s, ShowJobList},
      {jobs, u"Show jobs which use a selected task type"_s, ShowJobsOfTask},
      {customers, u"Select / Edit"_s, ShowCustomers},
      {customers, u"Add new"_s, AddCustomer},
      {library, u"Reserve Repack Prices"_s, ShowRepackPrices},
      {library, u"Create New Task"_s, CreateTask},
      {library, u"View All tasks"_s, ShowTaskLibrary},
      {library, u"Set Repack Cycle"_s, AskRepackCycle},
      {parts, u"Add/Edit"_s, ShowParts},
      {gear, u"Rig Database"_s, ShowRigDatabase},
      {gear, u"Gear List"_s, kLater},
      {gear, u"Component Models"_s, ShowAllModels},
      {gear, u"Components Entered"_s, kLater},
      {gear, u"Manufactures"_s, ShowManufacturers},
      {gear, u"Photos"_s, kLater},
      {gearHistory, u"History by rig"_s, ShowRigHistory},
      {gearHistory, u"History by component (canopy, container, etc)"_s, ShowComponentHistory},
      {gearHistory, u"Serial number look up"_s, LookUpSerialNumber},
      {history, u"Rigger Logbook"_s, kLater},
      {history, u"Show rig history"_s, ShowRigHistory},
      {history, u"Component history (canopy, container, etc)"_s, ShowComponentHistory},
      {reports, u"Rigger Log Book"_s, kLater},
      {reports, u"Gear List Reports"_s, kLater},
      {reports, u"Gear History"_s, ShowRigHistory},
      {reports, u"Component history (canopy, container, etc)"_s, ShowComponentHistory},
      {reports, u"Task Report"_s, kLater},
      {reports, u"Event Report"_s, kLater},
      {reports, u"Show jobs which use a selected task type"_s, ShowJobsOfTask},
      {reports, u"Service bulletins"_s, kLater},
      {tools, u"Check database fields"_s, CheckDatabaseFields},
      {tools, u"Audit repack entries"_s, kLater},
      {tools, u"Audit components"_s, kLater},
      {photos, u"Show all gear photos"_s, kLater},
      {photos, u"Show all customer photos"_s, kLater},
      {photos, u"Show deleted photos"_s, kLater},
      {photos, u"Audit photos"_s, kLater},
      {tools, u"Export data to another computer"_s, ExportToFolder},
      {tools, u"Import data from another computer"_s, ImportData},
      {tools, u"View support files"_s, ShowSupportListing},
      {tools, u"Select Loftkeep program owner"_s, kLater},
      {tools, QString(), {}},
      {tools, u"Reconstruct schedules"_s, ReconstructSchedules},
      {tools, u"Audit schedule entries"_s, AuditScheduleTaskLib},
      {tools, QString(), {}},
      {tools, u"Undo"_s, UndoLast, [] { return Naming(u"Undo"_s, NextUndo()); }},
      {tools, u"Redo"_s, RedoLast, [] { return Naming(u"Redo"_s, NextRedo()); }},
      {tools, u"Recent changes"_s, ShowRecentChanges},
      {email, u"Email single statement "_s, kLater},
      {email, u"Email statements to all customers"_s, kLater},
      {email, u"Email misc message"_s, kLater},
      {email, u"Email setup"_s, kLater},
      {database, u"Back up"_s, kLater},
      {install, u"from any file location"_s, kLater},
      {install, u"from backup folder only"_s, kLater},
      {database, u"Get stored database file from Loftkeep server"_s, kLater},
      {database, u"Export backup database files to another location"_s, ExportBackupFiles},
      {database, u"Create a new database"_s, kLater},
      {database, u"Display current database file name"_s, ShowDatabaseName},
      {help, u"Help"_s, kLater},
      {help, u"About"_s, ShowAbout},
      {{}, u"Exit"_s, LeaveProgram},
  };
}

HomeCommand ButtonCommand(const QString& button) {
  static const QHash<QString, HomeCommand> commands = {
      {u"cmdPeople"_s, ShowCustomers},        {u"cmdRigs"_s, ShowRigDatabase},    {u"cmdJobs"_s, ShowJobList},
      {u"cmdTaskLibrary"_s, ShowTaskLibrary}, {u"cmdEvents"_s, ShowEventLibrary}, {u"cmdCalc"_s, OpenRepackCalculator},
      {u"cmdSchedules"_s, ShowSchedule},      {u"cmdModels"_s, ShowAllModels},    {u"cmdHistory"_s, ShowRigHistory},
  };
  return commands.value(button);
}

std::vector<FloatingEntry> FloatingMenu() {
  return {{u"Home"_s, ShowHome},
          {u"Customers"_s, ShowCustomers},
          {QString(), {}},
          {u"Components"_s, kLater},
          {u"Models"_s, ShowAllModels},
          {u"Rigs"_s, ShowRigsPlainly},
          {u"Job list"_s, ShowJobList},
          {u"Job"_s, ShowLastJob},
          {u"History"_s, ShowRigHistory},
          {u"Schedule"_s, ShowSchedule},
          {QString(), {}},
          {u"Rigging Tasks"_s, ShowTaskLibrary},
          {u"Events"_s, ShowEventLibrary},
          {u"Logbook"_s, kLater},
          {u"Repack Calculator"_s, OpenRepackCalculator},
          {u"Arrange forms"_s, ArrangeForms},
          {QString(), {}},
          {u"Hide forms"_s, HideForms},
          {u"Exit Loftkeep!"_s, LeaveProgram}};
}
