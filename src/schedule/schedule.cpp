#include "schedule/schedule.h"

#include "core/dates.h"
#include "core/default_rows.h"
#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "gear/components.h"
#include "schedule/completions.h"
#include "schedule/task_library.h"

using namespace Qt::StringLiterals;

namespace {

QString RowsOfRig(int rigID, int taskLibID) {
  return u"Select * from tblSchedules where rigID = %1 and TaskLibId = %2"_s.arg(rigID).arg(taskLibID);
}

QString RowsOfComponent(int componentID, int taskLibID) {
  return u"Select * from tblSchedules where ComponentID = %1 and TaskLibId = %2"_s.arg(componentID).arg(taskLibID);
}

Date DueDateOf(const QString& statement) { return GetValueFromTableBySQL(statement, u"DateDue"_s).ToDate(); }

struct ScheduleRow {
  int rigID;
  int taskLibID;
  Date dateDone;
  Date dateDue;
  int taskID;
  int componentID;
};

ScheduleRow RollRow(int number, int rigID, int taskLibID, Date dateDone, int taskID, int componentID) {
  const Date due = GetNextDueDate(number, IntervalType(taskLibID), dateDone);
  return {rigID, taskLibID, dateDone, due, taskID, componentID};
}

void Write(Recordset& rows, const ScheduleRow& row) {
  rows.Set(u"DateDone", row.dateDone);
  rows.Set(u"DateDue", row.dateDue);
  rows.Set(u"rigID", row.rigID);
  rows.Set(u"TaskLibID", row.taskLibID);
  rows.Set(u"TaskID", row.taskID);
  rows.Set(u"ComponentID", row.componentID);
  rows.Update();
}

void ReplaceRow(int number, int rigID, int taskLibID, Date dateDone, int taskID, int componentID) {
  Operation(u"Sub ReplaceSchedule"_s, [&] {
    DeleteSchedule(rigID, taskLibID, componentID);
    {
      Recordset rows(rigID != 0 ? RowsOfRig(rigID, taskLibID) : RowsOfComponent(componentID, taskLibID));
      const bool reused = RecordsetHasRows(rows);
      if (reused) MsgBox(u"shouldn't this be empty?"_s);
      const ScheduleRow row = RollRow(number, rigID, taskLibID, dateDone, taskID, componentID);
      if (!reused) rows.AddNew();
      Write(rows, row);
    }
  });
}

}  // namespace

Date GetNextDueDate(int number, int intervalType, Date startDate) {
  if (startDate.IsNone()) MsgBox(u"startDate =0"_s);
  switch (intervalType) {
    case kDays:
      return startDate + number;
    case kMonths:
      return AddMonthsPlain(number, startDate);
    case kYears:
      return AddMonthsPlain(12 * number, startDate);
    default:
      return {};
  }
}

void UpdateSchedule(int taskLibID, int rigID, int componentID) {
  if (taskLibID == 0) return;
  Operation(u"Sub UpdateSchedule"_s, [&] {
    if (const int number = IntervalNumber(taskLibID); number != 0) {
      int taskID = 0;
      const Date done = rigID == 0 ? LastCompletionForComponent(componentID, taskLibID, taskID)
                                   : LastCompletionForRig(rigID, taskLibID, taskID);
      if (!done.IsNone())
        ReplaceRow(number, rigID, taskLibID, done, taskID, componentID);
      else
        DeleteSchedule(rigID, taskLibID, componentID);
    }
  });
}

void ReplaceSchedule(int rigID, int taskLibID, Date dateDone, int taskID, int componentID) {
  if (const int number = IntervalNumber(taskLibID); number != 0)
    ReplaceRow(number, rigID, taskLibID, dateDone, taskID, componentID);
}

void DeleteSchedule(int rigID, int taskLibID, int componentID) {
  const QString who =
      taskLibID == RepackTaskLibID || rigID != 0 ? u"RigID = %1"_s.arg(rigID) : u"componentid = %1"_s.arg(componentID);
  DeleteRecordsFromTableBySQL(u"Delete * from tblSchedules where %1 and TaskLibID = %2"_s.arg(who).arg(taskLibID));
}

void AddSchedule(int rigID, int taskLibID, int taskID, Date dateDone, int componentID, int& scheduleID) {
  scheduleID = 0;
  const int number = IntervalNumber(taskLibID);
  if (number == 0) return;
  Operation(u"Sub AddSchedule"_s, [&] {
    const ScheduleRow row = RollRow(number, rigID, taskLibID, dateDone, taskID, componentID);
    {
      Recordset rows(u"tblSchedules"_s);
      rows.AddNew();
      Write(rows, row);
      scheduleID = rows[u"ID"].ToInt();
    }
  });
}

void RemoveComponentFromSchedule(int componentID, int rigID) {
  DetachComponent(rigID, componentID, ComponentTypeOf(componentID));
}

Date GetDueDateByComponent(int componentID, int taskLibID) {
  return DueDateOf(RowsOfComponent(componentID, taskLibID));
}

Date GetDueDateByRig(int rigID, int taskLibID) { return DueDateOf(RowsOfRig(rigID, taskLibID)); }

Date GetEarliestDueByComponent(int componentID) {
  return DueDateOf(u"Select * from tblSchedules where ComponentID = %1 Order by DateDue"_s.arg(componentID));
}

Date GetEarliestDueByRig(int rigID) {
  return DueDateOf(u"Select * from tblSchedules where rigID = %1 Order by DateDue"_s.arg(rigID));
}

Date GetRepackDue(int rigID, int& scheduleID) {
  const QString statement = u"Select * from tblSchedules where rigid = %1 and taskLibID = 1"_s.arg(rigID);
  scheduleID = GetValueFromTableBySQL(statement, u"ID"_s).ToInt();
  return DueDateOf(statement);
}
