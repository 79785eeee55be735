#include "jobs/task_edit.h"

#include "core/clock.h"
#include "core/dates.h"
#include "core/format.h"
#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "jobs/job_records.h"
#include "jobs/lines.h"
#include "jobs/schedule_key.h"
#include "schedule/task_library.h"

using namespace Qt::StringLiterals;

namespace {

QString DateText(Date date) { return date.IsNone() ? QString() : Value(date).ToText(); }

QString Statement(int taskID) { return u"Select * from tblTasks where id = %1"_s.arg(taskID); }

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
  Recordset task(Statement(taskID));
  if (!RecordsetHasRows(task)) return {};
  const ScheduleKey key{.taskLibID = task[u"TaskLibID"].ToInt(), .rigID = task[u"SystemID"].ToInt()};
  const QString completed = entry.dateCompleted.trimmed();
  task.Set(u"DateTaskStarted", StartOf(entry));
  task.Set(u"DateTaskCompleted", completed.isEmpty() ? Date() : ParseDate(completed));
  task.Set(u"LogBook", entry.logBook);
  task.Set(u"TaskName", entry.name);
  task.Set(u"FlatRate", Money::FromText(entry.price));
  task.Set(u"Status", entry.status);
  task.Update();
  return key;
}

}  // namespace

bool LoadTaskEntry(int taskID, TaskEntry& entry) {
  bool found = false;
  Operation(u"Sub LoadTaskEntry"_s, [&] {
    for (const Recordset& task : Rows(Statement(taskID))) {
      entry = {task[u"TaskName"].ToText(),
               Format(task[u"FlatRate"].ToMoney(), u"#######0.00"_s),
               task[u"LogBook"].ToBool(),
               task[u"Status"].ToInt(),
               DateText(task[u"DateTaskStarted"].ToDate()),
               DateText(task[u"DateTaskCompleted"].ToDate())};
      found = true;
    }
  });
  return found;
}

QString OriginalTaskName(int taskID) {
  const int entry = TaskLibIDOf(taskID);
  return entry == 0 ? u"(custom task)"_s : TaskLibName(entry);
}

bool LineIsPart(int taskID) { return TaskLibIDOf(taskID) == 0 && LineField(taskID, u"PartID"_s).ToInt() != 0; }

bool AuditFailed(int taskID, TaskEntry& entry) {
  if (entry.dateStarted.isEmpty()) {
    entry.dateStarted = DateText(JobDateStarted(LineField(taskID, u"JobID"_s).ToInt()));
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
