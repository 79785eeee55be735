#include "jobs/completion.h"

#include <algorithm>

#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "jobs/job_records.h"
#include "jobs/lines.h"
#include "schedule/schedule.h"

using namespace Qt::StringLiterals;

void SetTaskStatus(int taskID, bool complete, Date date) {
  Operation(u"Sub SetTaskStatus"_s, [&] {
    {
      Recordset task(u"Select * from tblTasks where ID = %1"_s.arg(taskID));
      if (RecordsetHasRows(task)) {
        task.Set(u"status", static_cast<int>(complete ? kComplete : kIncomplete));
        task.Set(u"DateTaskCompleted", complete ? date : Date());
        task.Update();
      }
    }
    UpdateTable(u"tblTaskComponents"_s, u"Complete"_s, complete, u"TaskID"_s, taskID);
  });
}

int GetThisComponentID(int taskID) {
  QList<int> components;
  GetRecordsFromTable(u"tblTaskComponents"_s, u"TaskID"_s, taskID, u"CompID"_s, components);
  return components.size() == 1 ? components.first() : 0;
}

bool ShouldAdd2Schedule(int rigID, bool rigComponentsCurrent) { return rigComponentsCurrent || rigID == 0; }

bool LineIsDone(int taskID) { return TaskIsEvent(taskID) || LineField(taskID, u"Status"_s).ToInt() == kComplete; }

bool AllChecked(int jobID) {
  const QList<int> lines = LinesOfJob(jobID);
  return !lines.isEmpty() && std::all_of(lines.cbegin(), lines.cend(), LineIsDone);
}

bool ToggleComplete(int taskID, Date date, bool rigComponentsCurrent) {
  if (TaskIsEvent(taskID)) return false;
  Operation(u"Sub ToggleComplete"_s, [&] {
    const int jobID = LineField(taskID, u"JobID"_s).ToInt();
    SetTaskStatus(taskID, !LineIsDone(taskID), date);
    const int rigID = JobSystemID(jobID);
    if (ShouldAdd2Schedule(rigID, rigComponentsCurrent))
      UpdateSchedule(TaskLibIDOf(taskID), rigID, GetThisComponentID(taskID));
    CheckJobStatus(jobID, date);
  });
  return true;
}

bool CheckJobStatus(int jobID, Date date) {
  const bool complete = AllChecked(jobID);
  SetJobStatus(jobID, complete, date);
  return complete;
}

Date RecomputeJobStatus(int jobID) {
  Date date;
  Operation(u"Sub LoadTasksGrid"_s, [&] {
    bool complete = true;
    {
      Recordset lines(u"Select * from tblTasks where Jobid = %1"_s.arg(jobID));
      if (RecordsetHasRows(lines)) {
        date = lines[u"DateTaskCompleted"].ToDate();
        for (; !lines.Eof() && complete; lines.MoveNext()) {
          const bool hasDate = !lines[u"DateTaskCompleted"].ToDate().IsNone();
          complete = lines[u"status"].ToInt() == kComplete;
          if (complete != hasDate) MsgBox(u"status/date mismatch"_s);
        }
      }
    }
    if (!complete) date = Date();
    SetJobStatus(jobID, complete, date);
  });
  return date;
}

void CompleteAllTasks(int jobID, bool complete, Date date, bool rigComponentsCurrent) {
  Operation(u"Sub CompleteAllTasks"_s, [&] {
    for (int taskID : LinesOfJob(jobID)) {
      if (LineIsDone(taskID) != complete) ToggleComplete(taskID, date, rigComponentsCurrent);
    }
    const Date completed = JobDateCompleted(jobID);
    if (complete && completed.IsNone()) SetJobDateCompleted(jobID, date);
    if (!complete && !completed.IsNone()) SetJobDateCompleted(jobID, Date());
  });
}
