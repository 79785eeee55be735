#pragma once
#include <QString>

/// One line of a job, or of no job, as the task editor shows it. Dates are texts, empty for none.
struct TaskEntry {
  QString name = {};
  QString price = {};
  bool logBook = false;
  int status = 0;  ///< see LineStatus
  QString dateStarted = {};
  QString dateCompleted = {};
};

/// False when the row has gone.
bool LoadTaskEntry(int taskID, TaskEntry& entry);
/// The library's name of a line, or "(custom task)".
QString OriginalTaskName(int taskID);
/// A part has no place in the rigger's log book.
bool LineIsPart(int taskID);

/// Checks the dates and completes them: a missing start becomes that of the job, a complete line without a date was
/// completed today. True, told, when a date is none.
bool AuditFailed(int taskID, TaskEntry& entry);

/// Checks and writes a line, then brings the schedule of its rig up to date: unlike the date cell of the job screen, a
/// date entered here moves the due date. The job's own status follows when the job is loaded. False, told, when a field
/// was refused; nothing is written then.
bool SaveTaskEntry(int taskID, TaskEntry& entry);
