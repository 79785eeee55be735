#include "jobs/completion.h"

#include <algorithm>

#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/store/rows.h"
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

LineState StateOf(const Recordset& line) {
  return {line[tblTasks::IsEvent].ToBool(), line[tblTasks::Status].ToInt() == kComplete,
          line[tblTasks::DateTaskCompleted].ToDate()};
}

/// False, after a box, when they could not be read.
bool ReadLines(int jobID, QList<LineState>& lines) {
  return Operation(u"Sub LoadTasksGrid"_s, [&] {
    for (const Recordset& line : Rows(tblTasks::JobID == jobID)) lines.append(StateOf(line));
  });
}

/// Writes the status of the line that a recordset stands on, and of its ties to components.
void WriteStatus(Recordset& line, bool complete, Date date) {
  EditRow(line, {{tblTasks::Status, static_cast<int>(complete ? kComplete : kIncomplete)},
                 {tblTasks::DateTaskCompleted, complete ? date : Date()}});
  UpdateRows(tblTaskComponents::Complete, complete, tblTaskComponents::TaskID == line[tblTasks::ID].ToInt());
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
    Recordset line(tblTasks::ID == taskID);
    if (RecordsetHasRows(line)) WriteStatus(line, complete, date);
  });
}

int GetThisComponentID(int taskID) {
  QList<int> components;
  GetRecordsFromTable(tblTaskComponents::TaskID, taskID, tblTaskComponents::CompID, components);
  return components.size() == 1 ? components.first() : 0;
}

bool ShouldAdd2Schedule(int rigID, bool rigComponentsCurrent) { return rigComponentsCurrent || rigID == 0; }

bool LineIsDone(int taskID) { return TaskIsEvent(taskID) || LineField(taskID, tblTasks::Status).ToInt() == kComplete; }

bool AllChecked(int jobID) {
  QList<LineState> lines;
  return ReadLines(jobID, lines) && !lines.isEmpty() &&
         std::all_of(lines.cbegin(), lines.cend(), [](const LineState& line) { return line.IsDone(); });
}

bool ToggleComplete(int taskID, Date date, bool rigComponentsCurrent) {
  bool flipped = false;
  const bool written = Operation(u"Sub ToggleComplete"_s, [&] {
    Recordset line(tblTasks::ID == taskID);
    if (!RecordsetHasRows(line) || StateOf(line).isEvent) return;
    const int jobID = line[tblTasks::JobID].ToInt();
    const ScheduleKey key = KeyOfLine(taskID, jobID, line[tblTasks::TaskLibID].ToInt());
    WriteStatus(line, !StateOf(line).isComplete, date);
    if (ShouldAdd2Schedule(key.rigID, rigComponentsCurrent)) UpdateSchedule(key);
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
