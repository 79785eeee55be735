#include "jobs/task_edit.h"

#include "core/clock.h"
#include "core/dates.h"
#include "core/format.h"
#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/store/rows.h"
#include "jobs/job_records.h"
#include "jobs/lines.h"
#include "jobs/schedule_key.h"
#include "schedule/task_library.h"

using namespace Qt::StringLiterals;

namespace {

QString DateText(Date date) { return date.IsNone() ? QString() : Value(date).ToText(); }

/// The start as it is written: an empty box copies the completion; blanks alone should have been refused before.
Date StartOf(const TaskEntry& entry) {
  const QString text = entry.dateStarted.isEmpty() ? entry.dateCompleted : entry.dateStarted;
  if (!text.trimmed().isEmpty()) return ParseDate(text.trimmed());
  if (!entry.dateStarted.isEmpty())
    MsgBox(u"you shouldn't be here - start date is missing"_s, u"Sub UpdateTask - frmTaskEdit"_s);
  return {};
}

/// What was written moves the row of the line's own rig, whatever component it touched, and no row without a rig.
ScheduleKey UpdateTask(int taskID, const TaskEntry& entry) {
  const QString completed = entry.dateCompleted.trimmed();
  const bool written = EditRow(tblTasks::ID == taskID,
                               {{tblTasks::DateTaskStarted, StartOf(entry)},
                                {tblTasks::DateTaskCompleted, completed.isEmpty() ? Date() : ParseDate(completed)},
                                {tblTasks::LogBook, entry.logBook},
                                {tblTasks::TaskName, entry.name},
                                {tblTasks::FlatRate, Money::FromText(entry.price)},
                                {tblTasks::Status, entry.status}});
  if (!written) return {};
  return {.taskLibID = TaskLibIDOf(taskID), .rigID = LineField(taskID, tblTasks::SystemID).ToInt()};
}

}  // namespace

bool LoadTaskEntry(int taskID, TaskEntry& entry) {
  bool found = false;
  Operation(u"Sub LoadTaskEntry"_s, [&] {
    for (const Recordset& task : Rows(tblTasks::ID == taskID)) {
      entry = {task[tblTasks::TaskName].ToText(),
               Format(task[tblTasks::FlatRate].ToMoney(), u"#######0.00"_s),
               task[tblTasks::LogBook].ToBool(),
               task[tblTasks::Status].ToInt(),
               DateText(task[tblTasks::DateTaskStarted].ToDate()),
               DateText(task[tblTasks::DateTaskCompleted].ToDate())};
      found = true;
    }
  });
  return found;
}

QString OriginalTaskName(int taskID) {
  const int entry = TaskLibIDOf(taskID);
  return entry == 0 ? u"(custom task)"_s : TaskLibName(entry);
}

bool LineIsPart(int taskID) { return TaskLibIDOf(taskID) == 0 && LineField(taskID, tblTasks::PartID).ToInt() != 0; }

bool AuditFailed(int taskID, TaskEntry& entry) {
  if (entry.dateStarted.isEmpty()) {
    entry.dateStarted = DateText(JobDateStarted(JobOfLine(taskID)));
  } else if (!entry.dateStarted.trimmed().isEmpty() && !IsValidDate(entry.dateStarted.trimmed())) {
    MsgBox(u"Invalid start date"_s);
    return true;
  }
  if (entry.dateCompleted.isEmpty() && entry.status == kComplete) entry.dateCompleted = DateText(Today());
  if (!entry.dateCompleted.trimmed().isEmpty() && !IsValidDate(entry.dateCompleted.trimmed())) {
    MsgBox(u"Date completed field is invalid"_s);
    return true;
  }
  entry.name = entry.name.left(kJobTextLength);
  return false;
}

bool SaveTaskEntry(int taskID, TaskEntry& entry) {
  if (AuditFailed(taskID, entry)) return false;
  return Operation(u"Sub UpdateTask"_s, [&] { UpdateSchedule(UpdateTask(taskID, entry)); });
}
