#include "core/default_rows.h"
#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "jobs/job_records.h"
#include "jobs/lines.h"
#include "jobs/schedule_key.h"

using namespace Qt::StringLiterals;

namespace {

/// Deleting such a line leaves the gear where it is.
void TellWhatStays(int taskLibID) {
  if (taskLibID == InstallTaskLibID) {
    MsgBox(
        Lines({u"You are deleting a component installation task."_s,
               u"This will delete the task but it will not remove the actual"_s, u"component that was installed.  "_s,
               u"To delete the component from this job, you must use REMOVE COMPONENT"_s}));
  }
  if (taskLibID == RemoveTaskLibID) {
    MsgBox(Lines({u"You are deleting a component removal task."_s,
                  u"This will delete the task but it will not restore the"_s, u"component that was removed.  "_s,
                  u"To restore the component, you must use INSTALL COMPONENT"_s}));
  }
}

void RemoveLine(int taskID) {
  const int jobID = JobOfLine(taskID);
  ScheduleKey key = KeyOfLine(taskID);
  key.componentID = JobComponentID(jobID);  // on a job without a rig, the rows of its own component are looked at
  DeleteTask(taskID);
  UpdateSchedule(key);
  if (LinesOfJob(jobID).isEmpty()) SetJobDateCompleted(jobID, Date());
}

}  // namespace

void DeleteTask(int taskID) {
  Operation(u"Sub DeleteTask"_s, [&] {
    DeleteRecordsFromTable(tblTasks::ID, taskID);
    DeleteRecordsFromTable(tblTaskComponents::TaskID, taskID);
  });
}

bool DeleteLine(int taskID, bool quiet) {
  const QString name = LineField(taskID, tblTasks::TaskName).ToText();
  if (!quiet && !AskYes(u"Are you sure you want to delete this entry?"_s, u"Delete "_s + name + u'?')) return false;
  TellWhatStays(TaskLibIDOf(taskID));
  return Operation(u"Sub DeleteCurrentTask"_s, [&] { RemoveLine(taskID); });
}

bool DeleteAllLines(int jobID) {
  const QList<int> lines = LinesOfJob(jobID);
  if (lines.isEmpty()) {
    MsgBox(u"This jobs has no entries"_s, u"Nothing to delete"_s);
    return false;
  }
  if (!AskYes(Lines({u"This will permanently delete all tasks and parts for this job."_s,
                     u"Are you sure you want to do this?"_s}),
              u"Delete all entries for this job?"_s))
    return false;
  for (int taskID : lines) TellWhatStays(TaskLibIDOf(taskID));
  return Operation(u"Sub DeleteAllTasks"_s, [&] {
    for (int taskID : lines) RemoveLine(taskID);
  });
}
