#pragma once
#include <QList>
#include <QString>

#include "core/date.h"
#include "core/money.h"

/// The doors to the job screens.

/// Starts a job for a customer: asks what it is performed on where that is not given, then names it and opens it on the
/// job screen. True when a job was started or loaded.
bool StartNewJob(int customerID, int rigID, int componentID, Date date);

/// The same once customer, rig and component are known. `riggerID` and `locationID` are asked for where they are 0;
/// `jobID` is the job that the job screen shows in the end, 0 after a cancel.
void StartJobDialog(int customerID, int rigID, int componentID, int& jobID, int riggerID, int locationID, Date date);

/// Shows a job on the job screen.
void GotoJob(int jobID);
/// Shows the job that was shown last. Without any job a box says so.
void ShowJob();

/// Asks for the day on which a scheduled entry was done on a rig, and records it as a job of one line.
void ShowQuickFix(int rigID, int customerID, int taskLibID);

/// A part as it is entered.
struct MiscItem {
  QString name;
  Money price;
};
struct MiscItemQuestion {
  QString caption = QStringLiteral("Enter New Misc Item");
  bool nameIsFixed = false;
  bool thisJobOnly = false;  ///< tells that the library keeps its own name and price
};
/// Asks for the name and price of a part, `item` proposed. False, and nothing changed, when it was left or has no name.
bool EnterMiscItem(MiscItem& item, const MiscItemQuestion& question = {});

/// What the job list opens on.
struct JobListStart {
  int customer = 0;   ///< the jobs of this customer; 0 for all
  int taskLibID = 0;  ///< the jobs with a line of this library entry; 0 for all
};
/// Opens the job list beside the other screens, or brings it forward.
void OpenJobList(const JobListStart& start = {});

/// Shows the prices of the reserve repack, modally.
void ShowRepackPrices();
/// Opens the repack calculator beside the other screens, or brings it forward.
void OpenRepackCalculator();

/// Edits one line outside its job; true when it was written. A line that has gone is not shown.
bool EditTask(int taskID);

/// What the form of a task of the library opens on: a new task, or the one of this id.
struct TaskTypeStart {
  int taskLibID = 0;
  int modelID = 0;    ///< the model that the task is tied to
  QString name = {};  ///< proposed for a new task
};
/// Edits a task of the library; its id when it was saved, 0 otherwise.
int EditTaskType(const TaskTypeStart& start = {});
/// The same for an event; `name` is proposed for a new one.
int EditEventType(int taskLibID = 0, const QString& name = {});
/// Edits the price of installing or of removing a component.
void DoInstallRemove(int taskLibID);
/// Edits an entry of the library on the form that it needs.
void EditLibraryEntry(int taskLibID);

/// Opens the tasks, or the events, of the library beside the other screens.
void OpenTaskLibrary(bool events);

struct LibraryQuestion {
  bool events = false;
  QString caption = QStringLiteral("Task Library");
  QString dateCaption = {};  ///< of a date box that starts with today; none is shown without it
};
struct LibraryChoice {
  int taskLibID = 0;  ///< 0 when nothing was chosen
  QString date = {};  ///< as it was typed
};
/// Lets a person choose a task, or an event, of the library.
LibraryChoice SelectTask(const LibraryQuestion& question = {});
/// Lets a person tick tasks and events; their ids in the order of the list, none after a cancel.
QList<int> SelectMultipleTasks();

/// Lets a person choose one of the components that a line touched; 0 when none was chosen.
int SelectComponentOfTask(int taskID);

/// Tells the picker how jobs, invoices and the library are listed, added to and deleted from.
void RegisterJobPickers();
