#include "jobs/lines.h"

#include "core/default_rows.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "gear/models.h"
#include "jobs/job_components.h"
#include "jobs/job_records.h"
#include "jobs/repack_price.h"
#include "schedule/task_library.h"

using namespace Qt::StringLiterals;

namespace {

/// What every line starts with, whatever its kind.
void WriteContext(Recordset& tasks, const JobContext& job, Date date) {
  tasks.Set(u"JobID", job.jobID);
  tasks.Set(u"CustomerID", job.customerID);
  tasks.Set(u"systemID", job.rigID);
  tasks.Set(u"RiggerID", job.riggerID);
  tasks.Set(u"LocationID", job.locationID);
  tasks.Set(u"DateTaskStarted", date);
  tasks.Set(u"NumHours", 0);
  tasks.Set(u"Tax", Money());
  tasks.Set(u"comments", u" ");
}

void WriteCompletion(Recordset& tasks, bool isEvent, Date date) {
  tasks.Set(u"IsEvent", isEvent);
  tasks.Set(u"DateTaskCompleted", isEvent ? date : Date());
  tasks.Set(u"status", static_cast<int>(isEvent ? kComplete : kIncomplete));
}

void WriteWork(Recordset& tasks, int taskLibID, const QString& name, Money price, Money hourlyRate, bool logBook) {
  tasks.Set(u"TaskLibID", taskLibID);
  tasks.Set(u"TaskName", name.left(kJobTextLength));
  tasks.Set(u"FlatRate", price);
  tasks.Set(u"HourlyRate", hourlyRate);
  tasks.Set(u"LogBook", logBook);
}

JobContext WithRigger(JobContext job) {
  if (job.riggerID == 0) job.riggerID = ValidDefaultRigger();
  return job;
}

}  // namespace

JobContext JobContextOf(int jobID) {
  JobContext job{.jobID = jobID};
  Operation(u"Function JobContextOf"_s, [&] {
    job = {jobID, JobCustomerID(jobID), JobSystemID(jobID), JobLocationID(jobID), JobRiggerID(jobID)};
  });
  return job;
}

void AddTaskToJob(const JobContext& job, int itemID, bool isPart, Date date, int& taskID) {
  taskID = 0;
  const bool written = Operation(u"Sub AddTaskToJob"_s, [&] {
    const bool isEvent = !isPart && TaskLibIsEvent(itemID);
    {
      Recordset tasks(u"tblTasks"_s);
      tasks.AddNew();
      WriteContext(tasks, WithRigger(job), date);
      WriteCompletion(tasks, isEvent, date);
      if (isPart) {
        tasks.Set(u"PartID", itemID);
        WriteWork(tasks, 0, ModelName(itemID), ModelPrice(itemID), Money(), false);
      } else {
        const Money price = itemID == RepackTaskLibID ? GetRepackPrice(itemID, job.rigID) : TaskLibFlatRate(itemID);
        tasks.Set(u"PartID", 0);
        WriteWork(tasks, itemID, TaskLibName(itemID), price, TaskLibHourlyRate(itemID),
                  !isEvent && TaskLibLogBook(itemID));
      }
      if (isEvent) tasks.Set(u"RiggerID", 0);
      tasks.Update();
      taskID = tasks[u"ID"].ToInt();
    }
  });
  if (!written) taskID = 0;
}

void AddCustomLine(const JobContext& job, const CustomLine& line, Date date, int& taskID) {
  taskID = 0;
  const bool written = Operation(u"Sub AddCustomLine"_s, [&] {
    Recordset tasks(u"tblTasks"_s);
    tasks.AddNew();
    WriteContext(tasks, job, date);
    WriteCompletion(tasks, line.isEvent, date);
    WriteWork(tasks, 0, line.name, line.price, Money(), line.logBook);
    tasks.Set(u"PartID", line.partID);
    tasks.Update();
    taskID = tasks[u"ID"].ToInt();
  });
  if (!written) taskID = 0;
}

void AddLibraryParts(const JobContext& job, int taskLibID, Date date) {
  Operation(u"Sub AddLibraryParts"_s, [&] {
    for (Recordset& part : Rows(u"Select * from tblTaskLibParts where TaskLibID = %1"_s.arg(taskLibID))) {
      const int partID = part[u"PartID"].ToInt();
      int taskID = 0;
      if (ModelExists(partID))
        AddTaskToJob(job, partID, true, date, taskID);
      else
        part.Delete();
    }
  });
}

void AddComponentsToTask(int taskLibID, int taskID, int jobID) {
  Operation(u"Sub AddComponentsToTask"_s, [&] {
    QList<int> types;
    GetComponentTypesForTask(types, taskLibID);
    const bool isEvent = TaskLibIsEvent(taskLibID);
    for (int type : types) AddTaskComponent(taskID, JobComponentOfType(jobID, type), isEvent);
  });
}

void AddTaskComponent(int taskID, int componentID, bool complete) {
  if (componentID == 0) return;
  Operation(u"Sub AddTaskComponent"_s, [&] {
    Recordset rows(u"tblTaskComponents"_s);
    rows.AddNew();
    rows.Set(u"TaskID", taskID);
    rows.Set(u"CompID", componentID);
    rows.Set(u"Complete", complete);
    rows.Update();
  });
}

void AddGearLine(const JobContext& job, int taskLibID, const QString& name, int componentID, Date date) {
  Operation(u"Sub AddGearLine"_s, [&] {
    int taskID = 0;
    AddTaskToJob(job, taskLibID, false, date, taskID);
    if (taskID == 0) return;
    SetLineField(taskID, u"TaskName"_s, name.left(kJobTextLength));
    AddTaskComponent(taskID, componentID, false);
  });
}

QList<int> LinesOfJob(int jobID) {
  QList<Value> ids;
  GetRecordsFromTableBySQL(u"Select * from tblTasks where JobID = %1 order by ID"_s.arg(jobID), u"ID"_s, ids);
  QList<int> lines;
  for (const Value& id : ids) {
    if (!id.IsEmpty()) lines.append(id.ToInt());
  }
  return lines;
}

Value LineField(int taskID, const QString& field) { return GetValueFromTable(u"tblTasks"_s, u"ID"_s, taskID, field); }

void SetLineField(int taskID, const QString& field, const Value& value) {
  UpdateTable(u"tblTasks"_s, field, value, u"ID"_s, taskID);
}

int TaskLibIDOf(int taskID) { return LineField(taskID, u"TaskLibID"_s).ToInt(); }

bool TaskIsEvent(int taskID) { return LineField(taskID, u"IsEvent"_s).ToBool(); }
