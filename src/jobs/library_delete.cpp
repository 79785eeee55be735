#include "jobs/library_delete.h"

#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "schedule/schedule.h"
#include "schedule/task_library.h"

using namespace Qt::StringLiterals;

namespace {

bool RefuseFixedTask(int taskLibID) {
  if (!IsFixedTask(taskLibID)) return false;
  MsgBox(TaskLibName(taskLibID) + u" is a fixed task.  It cannot be deleted"_s);
  return true;
}

bool DeleteAfterUsage(int taskLibID) {
  bool cancelled = false;
  DeleteTaskType(taskLibID, true, cancelled);
  return !cancelled;
}

}  // namespace

QString TaskTypeUsage(int taskLibID) {
  const int lines = GetNumberRecordsComplex(tblTasks::TaskLibID == taskLibID).ToInt();
  if (lines == 0) return {};
  const QString kind = TaskLibKind(taskLibID);
  const QString question = u"Are you sure you want to delete this %1 type?"_s.arg(kind);
  if (lines == 1)
    return Lines({u"There is 1 %1 that uses this %1 type. If you delete"_s.arg(kind),
                  u"this %1 type, you will also delete that %1."_s.arg(kind),
                  u"(you can see this %1 by accessing Reports/Task Report from the main menu)"_s.arg(kind), question});
  return Lines({u"There are %1 %2s that use this %2 type. "_s.arg(lines).arg(kind),
                u"If you delete this %1 type, you will also delete "_s.arg(kind), u"those %1s."_s.arg(kind),
                u"(you can see these %1s by accessing Reports/Task Report from the main menu)"_s.arg(kind), question});
}

void DeleteTaskType(int taskLibID, bool Ask, bool& cancelled) {
  cancelled = true;
  const QString usage = Ask ? TaskTypeUsage(taskLibID) : QString();
  if (!usage.isEmpty() && !AskYes(usage, u"Delete %1?"_s.arg(TaskLibName(taskLibID)))) return;
  cancelled = !Operation(u"Sub DeleteTaskType"_s, [&] {
    DeleteRecordsFromTable(tblTaskLib::ID, taskLibID);
    DeleteRecordsFromTable(tblTaskLibComponentTypes::TaskLibID, taskLibID);
    DeleteRecordsFromTable(tblTaskLibParts::TaskLibID, taskLibID);
    DeleteSchedulesOfEntry(taskLibID);
    for (Recordset& line : Rows(tblTasks::TaskLibID == taskLibID)) {
      const int taskID = line[tblTasks::ID].ToInt();
      line.Delete();
      DeleteRecordsFromTable(tblTaskComponents::TaskID, taskID);
      DeleteSchedulesOfTask(taskID);
    }
  });
}

bool DeleteTaskTypeOfForm(int taskLibID) {
  if (RefuseFixedTask(taskLibID)) return false;
  if (!AskYes(u"Are you sure you want to delete this task type?"_s, u"Delete %1?"_s.arg(TaskLibName(taskLibID))))
    return false;
  return DeleteAfterUsage(taskLibID);
}

bool DeleteTaskTypeFromList(int taskLibID, bool isEvent) {
  if (taskLibID == 0) {
    MsgBox(u"Please select %1 to delete"_s.arg(isEvent ? u"an event"_s : u"a task"_s), u"Nothing selected"_s);
    return false;
  }
  if (RefuseFixedTask(taskLibID)) return false;
  if (TaskTypeUsage(taskLibID).isEmpty() &&
      !AskYes(u"Are you sure you want to delete %1?"_s.arg(TaskLibName(taskLibID)), kProgramTitle))
    return false;
  return DeleteAfterUsage(taskLibID);
}
