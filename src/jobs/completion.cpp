#include "jobs/completion.h"

#include <algorithm>

#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "jobs/job_records.h"
#include "jobs/lines.h"
#include "jobs/schedule_key.h"

using namespace Qt::StringLiterals;

namespace {

/// What the status of a line and of its job hangs on.
struct LineState {
  bool isEvent = false;
  bool isComplete = false;
  Date completed;

  bool IsDone() const { return isEvent || isComplete; }
};

/// False, after a box, when they could not be read.
bool ReadLines(int jobID, QList<LineState>& lines) {
  return Operation(u"Sub LoadTasksGrid"_s, [&] {
    for (const Recordset& line : Rows(u"Select * from tblTasks where Jobid = %1"_s.arg(jobID)))
      lines.append(
          {line[u"IsEvent"].ToBool(), line[u"Status"].ToInt() == kComplete, line[u"DateTaskCompleted"].ToDate()});
  });
}

/// The completion date of a job whose lines are all complete. A line whose status and date disagree is told; what
/// stands behind an incomplete line is not looked at.
Date CompletionOf(const QList<LineState>& lines, bool& complete) {
  complete = true;
  for (const LineState& line : lines) {
    complete = line.isComplete;
    if (complete == line.completed.IsNone()) MsgBox(u"status/date mismatch"_s);
    if (!complete) return {};
  }
  return lines.isEmpty() ? Date() : lines.first().completed;
}

}  // namespace

void SetTaskStatus(int taskID, bool complete, Date date) {
  Operation(u"Sub SetTaskStatus"_s, [&] {
    for (Recordset& task : Rows(u"Select * from tblTasks where ID = %1"_s.arg(taskID))) {
      task.Set(u"status", static_cast<int>(complete ? kComplete : kIncomplete));
      task.Set(u"DateTaskCompleted", complete ? date : Date());
      task.Update();
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
  QList<LineState> lines;
  return ReadLines(jobID, lines) && !lines.isEmpty() &&
         std::all_of(lines.cbegin(), lines.cend(), [](const LineState& line) { return line.IsDone(); });
}

bool ToggleComplete(int taskID, Date date, bool rigComponentsCurrent) {
  bool flipped = false;
  const bool written = Operation(u"Sub ToggleComplete"_s, [&] {
    const int jobID = LineField(taskID, u"JobID"_s).ToInt();
    if (jobID == 0 || TaskIsEvent(taskID)) return;
    SetTaskStatus(taskID, !LineIsDone(taskID), date);
    if (const ScheduleKey key = KeyOfLine(taskID); ShouldAdd2Schedule(key.rigID, rigComponentsCurrent))
      UpdateSchedule(key);
    CheckJobStatus(jobID, date);
    flipped = true;
  });
  return written && flipped;
}

bool CheckJobStatus(int jobID, Date date) {
  const bool complete = AllChecked(jobID);
  SetJobStatus(jobID, complete, date);
  return complete;
}

Date RecomputeJobStatus(int jobID) {
  QList<LineState> lines;
  if (!ReadLines(jobID, lines)) return {};
  bool complete = true;
  const Date date = CompletionOf(lines, complete);
  Upkeep(u"Sub LoadTasksGrid"_s, [&] { SetJobStatus(jobID, complete, date); });
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
