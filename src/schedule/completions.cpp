#include "schedule/completions.h"

#include "core/default_rows.h"
#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "gear/rigs.h"

using namespace Qt::StringLiterals;

namespace {

/// A line never touched the component that an empty place lacks.
bool TaskTouched(int taskID, int componentID) {
  const QString tie =
      u"Select * from tblTaskComponents where TaskID = %1 and CompID = %2"_s.arg(taskID).arg(componentID);
  return componentID != 0 && !GetValueFromTableBySQL(tie, u"CompID"_s).IsEmpty();
}

/// When a line is a completed repack; no date otherwise.
Date DateOfRepack(int taskID) {
  const QString statement =
      u"Select * from tblTasks where ID = %1 and TaskLibID = %2 and status = -1"_s.arg(taskID).arg(RepackTaskLibID);
  return GetValueFromTableBySQL(statement, u"DateTaskCompleted"_s).ToDate();
}

/// Of two completions on one day the one that was entered first counts.
bool IsLater(const Completion& done, const Completion& latest) {
  return done.date > latest.date || (done.date == latest.date && done.taskID < latest.taskID);
}

/// Hands over the completed work on components, narrowed by a condition.
template <typename Take>
void ReadCompletions(const QString& condition, Take&& take) {
  for (const Recordset& row :
       Rows(u"Select tblTaskComponents.CompID, tblTasks.TaskLibID, tblTasks.ID, tblTasks.DateTaskCompleted "
            "from tblTaskComponents INNER JOIN tblTasks ON tblTaskComponents.TaskID = tblTasks.ID "
            "where tblTaskComponents.Complete = true"_s +
            condition))
    take(row.At(0).ToInt(), Completion{row.At(1).ToInt(), row.At(2).ToInt(), row.At(3).ToDate()});
}

}  // namespace

bool TaskMatchesRig(int taskID, int rigID, int taskLibID) {
  if (rigID == 0) MsgBox(u"rigID = 0. this shouldn't be"_s);
  bool matches = true;
  Operation(u"Function TaskMatchesRig"_s, [&] {
    const int count = GetNumberRecords(u"tblTaskLibComponentTypes"_s, u"TaskLibID"_s, taskLibID);
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
        u"Select * from tblTasks where SystemID = %1 and TaskLibID = %2 and status = -1 "
        u"order by DateTaskCompleted"_s.arg(rigID)
            .arg(taskLibID));
    if (RecordsetHasRows(tasks)) {
      for (tasks.MoveLast(); !tasks.Bof(); tasks.MovePrevious()) {
        const int id = tasks[u"ID"].ToInt();
        if (!TaskMatchesRig(id, rigID, taskLibID)) continue;
        date = tasks[u"DateTaskCompleted"].ToDate();
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
    ReadCompletions(QString(), [&](int component, const Completion& done) { completions[component].append(done); });
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
    ReadCompletions(u" and tblTaskComponents.CompID = %1 and tblTasks.TaskLibID = %2"_s.arg(componentID).arg(taskLibID),
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
    for (const Recordset& row : Rows(u"Select * from tblTaskComponents where CompID = %1"_s.arg(containerID))) {
      const int id = row[u"TaskID"].ToInt();
      const Date done = DateOfRepack(id);
      if (done <= date || !TaskTouched(id, reserveID)) continue;
      date = done;
      taskID = id;
    }
  });
  return date;
}
