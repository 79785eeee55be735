#pragma once
#include <QList>
#include <QString>

#include "core/date.h"
#include "core/money.h"
#include "core/store/tables.h"
#include "core/value.h"

/// The lines of a job: its tasks, events and parts, rows of tblTasks.

/// Values of a line's status.
enum LineStatus : int { kComplete = -1, kIncomplete = 0, kWaitingOnParts = 1 };

/// PartID of a part that exists on its line alone.
constexpr int kCustomPart = -99;

/// What a line takes over from its job.
struct JobContext {
  int jobID = 0;
  int customerID = 0;
  int rigID = 0;
  int locationID = 0;
  int riggerID = 0;
};
JobContext JobContextOf(int jobID);

/// Adds a line for a library entry, or for a part (a model of type Misc) when `isPart` is set. Without a rigger the
/// default rigger does it. A repack takes the price of the rig. An event is complete from the start, on that date.
/// `taskID` is its id, 0 after a failure.
void AddTaskToJob(const JobContext& job, int itemID, bool isPart, Date date, int& taskID);

/// A line with its own name and price.
struct CustomLine {
  QString name;  ///< cut to 50 characters
  Money price;
  bool logBook = false;
  int partID = 0;
  bool isEvent = false;
};
void AddCustomLine(const JobContext& job, const CustomLine& line, Date date, int& taskID);

/// Adds the parts that a library entry consumes; a part whose model has gone leaves the library instead.
void AddLibraryParts(const JobContext& job, int taskLibID, Date date);

/// Ties the job's components that an entry concerns to a line; they count as complete for an event.
void AddComponentsToTask(int taskLibID, int taskID, int jobID);
/// Ties one component to a line; nothing for component 0.
void AddTaskComponent(int taskID, int componentID, bool complete);

/// Adds the incomplete line of a component that was installed or removed, under a name of its own.
void AddGearLine(const JobContext& job, int taskLibID, const QString& name, int componentID, Date date);

/// The components that a line touched.
QList<int> ComponentsOfLine(int taskID);
/// The ids of a job's lines in the order they were entered; empty when there are none.
QList<int> LinesOfJob(int jobID);
/// One field of a line; empty when there is no such line.
Value LineField(int taskID, const Column& field);
void SetLineField(int taskID, const Column& field, const Value& value);
/// The job of a line, 0 for work that belongs to none.
int JobOfLine(int taskID);
int TaskLibIDOf(int taskID);
/// Does the line record an event?
bool TaskIsEvent(int taskID);
/// Deletes a line and its ties to components.
void DeleteTask(int taskID);

/// Deletes a line the way the job screen does: asks first unless `quiet`, tells what deleting an installation or a
/// removal does not undo, and brings the schedule of the job's rig or component up to date. The job's completion date
/// goes with its last line. False when the person said No, or when it could not be written.
bool DeleteLine(int taskID, bool quiet);
/// Asks, then deletes all lines of a job. False when nothing was deleted.
bool DeleteAllLines(int jobID);
