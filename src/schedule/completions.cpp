#include "schedule/completions.h"

#include "core/default_rows.h"
#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "gear/rigs.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kTaskComplete = -1;  // of a line's status
const Condition kDone = tblTaskComponents::Complete == true;

/// A line never touched the component that an empty place lacks.
bool TaskTouched(int taskID, int componentID) {
  const Condition tie = tblTaskComponents::TaskID == taskID && tblTaskComponents::CompID == componentID;
  return componentID != 0 && !GetValueFromTableBySQL(tie, tblTaskComponents::CompID).IsEmpty();
}

/// When a line is a completed repack; no date otherwise.
Date DateOfRepack(int taskID) {
  const Condition repack =
      tblTasks::ID == taskID && tblTasks::TaskLibID == RepackTaskLibID && tblTasks::Status == kTaskComplete;
  return GetValueFromTableBySQL(repack, tblTasks::DateTaskCompleted).ToDate();
}

/// Of two completions on one day the one that was entered first counts.
bool IsLater(const Completion& done, const Completion& latest) {
  return done.date > latest.date || (done.date == latest.date && done.taskID < latest.taskID);
}

/// Hands over the completed work on components that a condition picks.
template <typename Take>
void ReadCompletions(const Condition& which, Take&& take) {
  const QStringList read = {tblTaskComponents::CompID, tblTasks::TaskLibID, tblTasks::ID.InTable(),
                            tblTasks::DateTaskCompleted};
  const QString statement = u"Select %1 from %2 INNER JOIN %3 ON %4 = %5 where "_s.arg(
                                read.join(u", "_s), tblTaskComponents::kTable.name, tblTasks::kTable.name,
                                tblTaskComponents::TaskID.InTable(), tblTasks::ID.InTable()) +
                            which.Text();
  for (const Recordset& row : Rows(statement))
    take(row.At(0).ToInt(), Completion{row.At(1).ToInt(), row.At(2).ToInt(), row.At(3).ToDate()});
}

}  // namespace

bool TaskMatchesRig(int taskID, int rigID, int taskLibID) {
  if (rigID == 0) MsgBox(u"rigID = 0. this shouldn't be"_s);
  bool matches = true;
  Operation(u"Function TaskMatchesRig"_s, [&] {
    const int count = GetNumberRecords(tblTaskLibComponentTypes::TaskLibID, taskLibID);
    if (count == 0 || count == 2) {
      if (taskID == 0) MsgBox(u"taskid = 0"_s);
      if (taskLibID == RepackTaskLibID)
        matches = TaskTouched(taskID, ComponentOfTypeInRig(rigID, kContainer)) &&
                  TaskTouched(taskID, ComponentOfTypeInRig(rigID, kReserveCanopy));
    } else if (count != 1) {
      MsgBox(QString::number(count));
    }
  });
  return matches;
}

Date LastCompletionForRig(int rigID, int taskLibID, int& taskID) {
  Date date;
  taskID = 0;
  Operation(u"Function LastCompletionForRig"_s, [&] {
    Recordset tasks(
        Select(tblTasks::SystemID == rigID && tblTasks::TaskLibID == taskLibID && tblTasks::Status == kTaskComplete)
            .OrderBy(tblTasks::DateTaskCompleted));
    if (RecordsetHasRows(tasks)) {
      for (tasks.MoveLast(); !tasks.Bof(); tasks.MovePrevious()) {
        const int id = tasks[tblTasks::ID].ToInt();
        if (!TaskMatchesRig(id, rigID, taskLibID)) continue;
        date = tasks[tblTasks::DateTaskCompleted].ToDate();
        taskID = id;
        break;
      }
    }
  });
  return date;
}

QHash<int, QList<Completion>> AllCompletions() {
  QHash<int, QList<Completion>> completions;
  Operation(u"Function AllCompletions"_s, [&] {
    ReadCompletions(kDone, [&](int component, const Completion& done) { completions[component].append(done); });
  });
  return completions;
}

Completion LatestOf(const QList<Completion>& completions, int taskLibID) {
  Completion latest;
  for (const Completion& done : completions)
    if (done.taskLibID == taskLibID && IsLater(done, latest)) latest = done;
  return latest;
}

Date LastCompletionForComponent(int componentID, int taskLibID, int& taskID) {
  Completion latest;
  Operation(u"Function LastCompletionForComponent"_s, [&] {
    ReadCompletions(kDone && tblTaskComponents::CompID == componentID && tblTasks::TaskLibID == taskLibID,
                    [&](int, const Completion& done) {
                      if (IsLater(done, latest)) latest = done;
                    });
  });
  taskID = latest.taskID;
  return latest.date;
}

Date LastRepackOfPair(int containerID, int reserveID, int& taskID) {
  Date date;
  taskID = 0;
  if (containerID == 0) return date;
  Operation(u"Function LastRepackOfPair"_s, [&] {
    for (const Recordset& row : Rows(tblTaskComponents::CompID == containerID)) {
      const int id = row[tblTaskComponents::TaskID].ToInt();
      const Date done = DateOfRepack(id);
      if (done <= date || !TaskTouched(id, reserveID)) continue;
      date = done;
      taskID = id;
    }
  });
  return date;
}
