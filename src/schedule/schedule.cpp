#include "schedule/schedule.h"

#include "core/dates.h"
#include "core/default_rows.h"
#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/store/rows.h"
#include "gear/components.h"
#include "schedule/completions.h"
#include "schedule/task_library.h"

using namespace Qt::StringLiterals;

namespace {

Condition RowsOfRig(int rigID, int taskLibID) {
  return tblSchedules::rigID == rigID && tblSchedules::TaskLibID == taskLibID;
}

Condition RowsOfComponent(int componentID, int taskLibID) {
  return tblSchedules::ComponentID == componentID && tblSchedules::TaskLibID == taskLibID;
}

Date DueDateOf(const QString& statement) { return GetValueFromTableBySQL(statement, tblSchedules::DateDue).ToDate(); }

RowValues RollRow(int number, int rigID, int taskLibID, Date dateDone, int taskID, int componentID) {
  return {{tblSchedules::DateDone, dateDone},
          {tblSchedules::DateDue, GetNextDueDate(number, IntervalType(taskLibID), dateDone)},
          {tblSchedules::rigID, rigID},
          {tblSchedules::TaskLibID, taskLibID},
          {tblSchedules::TaskID, taskID},
          {tblSchedules::ComponentID, componentID}};
}

void ReplaceRow(int number, int rigID, int taskLibID, Date dateDone, int taskID, int componentID) {
  Operation(u"Sub ReplaceSchedule"_s, [&] {
    DeleteSchedule(rigID, taskLibID, componentID);
    const Condition rows = rigID != 0 ? RowsOfRig(rigID, taskLibID) : RowsOfComponent(componentID, taskLibID);
    const bool reused = GetNumberRecordsComplex(rows).ToInt() > 0;
    if (reused) MsgBox(u"shouldn't this be empty?"_s);
    const RowValues row = RollRow(number, rigID, taskLibID, dateDone, taskID, componentID);
    if (reused)
      EditRow(rows, row);
    else
      AddRow(tblSchedules::kTable, row);
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
  DeleteRows(taskLibID == RepackTaskLibID || rigID != 0 ? RowsOfRig(rigID, taskLibID)
                                                        : RowsOfComponent(componentID, taskLibID));
}

void DeleteSchedulesOfTask(int taskID) { DeleteRecordsFromTable(tblSchedules::TaskID, taskID); }
void DeleteSchedulesOfComponent(int componentID) { DeleteRecordsFromTable(tblSchedules::ComponentID, componentID); }
void DeleteSchedulesOfEntry(int taskLibID) { DeleteRecordsFromTable(tblSchedules::TaskLibID, taskLibID); }

void AddSchedule(int rigID, int taskLibID, int taskID, Date dateDone, int componentID, int& scheduleID) {
  scheduleID = 0;
  const int number = IntervalNumber(taskLibID);
  if (number == 0) return;
  Operation(u"Sub AddSchedule"_s, [&] {
    scheduleID = AddRow(tblSchedules::kTable, RollRow(number, rigID, taskLibID, dateDone, taskID, componentID));
  });
}

void RemoveComponentFromSchedule(int componentID, int rigID) {
  Operation(u"Sub RemoveComponentFromSchedule"_s, [&] {
    const int type = ComponentTypeOf(componentID);
    if (type == kContainer || type == kReserveCanopy) DeleteRow(RowsOfRig(rigID, RepackTaskLibID));
    UpdateRows(tblSchedules::rigID, 0, tblSchedules::ComponentID == componentID);
  });
}

Date GetDueDateByComponent(int componentID, int taskLibID) {
  return DueDateOf(RowsOfComponent(componentID, taskLibID));
}

Date GetDueDateByRig(int rigID, int taskLibID) { return DueDateOf(RowsOfRig(rigID, taskLibID)); }

Date GetEarliestDueByComponent(int componentID) {
  return DueDateOf(Select(tblSchedules::ComponentID == componentID).OrderBy(tblSchedules::DateDue));
}

Date GetEarliestDueByRig(int rigID) {
  return DueDateOf(Select(tblSchedules::rigID == rigID).OrderBy(tblSchedules::DateDue));
}

Date GetRepackDue(int rigID, int& scheduleID) {
  const Condition repack = RowsOfRig(rigID, RepackTaskLibID);
  scheduleID = GetValueFromTableBySQL(repack, tblSchedules::ID).ToInt();
  return DueDateOf(repack);
}
