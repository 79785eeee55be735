#include "gear/jobless_task.h"

#include "core/store/recordset.h"
#include "gear/rigs.h"

using namespace Qt::StringLiterals;

namespace {

int WriteLine(const JoblessTask& task) {
  Recordset tasks(u"tblTasks"_s);
  tasks.AddNew();
  tasks.Set(u"JobID", 0);
  tasks.Set(u"CustomerID", RigOwner(task.rigID));
  tasks.Set(u"RiggerID", 0);
  tasks.Set(u"FlatRate", Money());
  tasks.Set(u"HourlyRate", Money());
  tasks.Set(u"NumHours", 0);
  tasks.Set(u"Tax", Money());
  tasks.Set(u"comments", u" ");
  tasks.Set(u"DateTaskCompleted", task.date);
  tasks.Set(u"DateTaskStarted", task.date);
  tasks.Set(u"TaskLibID", task.taskLibID);
  tasks.Set(u"LogBook", false);
  tasks.Set(u"status", -1);
  tasks.Set(u"TaskName", task.name);
  tasks.Set(u"systemID", task.rigID);
  tasks.Set(u"PartID", 0);
  tasks.Set(u"IsEvent", false);
  tasks.Set(u"LocationID", task.locationID);
  tasks.Update();
  return tasks[u"ID"].ToInt();
}

}  // namespace

int WriteJoblessTask(const JoblessTask& task) {
  const int taskID = WriteLine(task);
  Recordset touched(u"tblTaskComponents"_s);
  for (int component : task.components) {
    touched.AddNew();
    touched.Set(u"TaskID", taskID);
    touched.Set(u"CompID", component);
    touched.Set(u"Complete", true);
    touched.Update();
  }
  return taskID;
}
