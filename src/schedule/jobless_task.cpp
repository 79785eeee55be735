#include "schedule/jobless_task.h"

#include "core/store/recordset.h"
#include "core/store/rows.h"
#include "gear/rigs.h"

using namespace Qt::StringLiterals;

namespace {

int WriteLine(const JoblessTask& task) {
  return AddRow(tblTasks::kTable, {{tblTasks::JobID, 0},
                                   {tblTasks::CustomerID, RigOwner(task.rigID)},
                                   {tblTasks::RiggerID, 0},
                                   {tblTasks::FlatRate, Money()},
                                   {tblTasks::HourlyRate, Money()},
                                   {tblTasks::NumHours, 0},
                                   {tblTasks::Tax, Money()},
                                   {tblTasks::Comments, u" "},
                                   {tblTasks::DateTaskCompleted, task.date},
                                   {tblTasks::DateTaskStarted, task.date},
                                   {tblTasks::TaskLibID, task.taskLibID},
                                   {tblTasks::LogBook, false},
                                   {tblTasks::Status, -1},
                                   {tblTasks::TaskName, task.name},
                                   {tblTasks::SystemID, task.rigID},
                                   {tblTasks::PartID, 0},
                                   {tblTasks::IsEvent, false},
                                   {tblTasks::LocationID, task.locationID}});
}

}  // namespace

int WriteJoblessTask(const JoblessTask& task) {
  const int taskID = WriteLine(task);
  for (int component : task.components) {
    AddRow(tblTaskComponents::kTable, {{tblTaskComponents::TaskID, taskID},
                                       {tblTaskComponents::CompID, component},
                                       {tblTaskComponents::Complete, true}});
  }
  return taskID;
}
