#include "jobs/lines.h"

#include "core/default_rows.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/store/rows.h"
#include "gear/models.h"
#include "jobs/job_components.h"
#include "jobs/job_records.h"
#include "jobs/repack_price.h"
#include "schedule/task_library.h"

using namespace Qt::StringLiterals;

namespace {

/// What every line starts with, whatever its kind.
void SetContext(RowValues& line, const JobContext& job, Date date) {
  line.Set(tblTasks::JobID, job.jobID);
  line.Set(tblTasks::CustomerID, job.customerID);
  line.Set(tblTasks::SystemID, job.rigID);
  line.Set(tblTasks::RiggerID, job.riggerID);
  line.Set(tblTasks::LocationID, job.locationID);
  line.Set(tblTasks::DateTaskStarted, date);
  line.Set(tblTasks::NumHours, 0);
  line.Set(tblTasks::Tax, Money());
  line.Set(tblTasks::Comments, u" ");
}

void SetCompletion(RowValues& line, bool isEvent, Date date) {
  line.Set(tblTasks::IsEvent, isEvent);
  line.Set(tblTasks::DateTaskCompleted, isEvent ? date : Date());
  line.Set(tblTasks::Status, static_cast<int>(isEvent ? kComplete : kIncomplete));
}

void SetWork(RowValues& line, int taskLibID, const QString& name, Money price, Money hourlyRate, bool logBook) {
  line.Set(tblTasks::TaskLibID, taskLibID);
  line.Set(tblTasks::TaskName, name.left(kJobTextLength));
  line.Set(tblTasks::FlatRate, price);
  line.Set(tblTasks::HourlyRate, hourlyRate);
  line.Set(tblTasks::LogBook, logBook);
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
    RowValues line;
    SetContext(line, WithRigger(job), date);
    SetCompletion(line, isEvent, date);
    if (isPart) {
      line.Set(tblTasks::PartID, itemID);
      SetWork(line, 0, ModelName(itemID), ModelPrice(itemID), Money(), false);
    } else {
      const Money price = itemID == RepackTaskLibID ? GetRepackPrice(itemID, job.rigID) : TaskLibFlatRate(itemID);
      line.Set(tblTasks::PartID, 0);
      SetWork(line, itemID, TaskLibName(itemID), price, TaskLibHourlyRate(itemID), !isEvent && TaskLibLogBook(itemID));
    }
    if (isEvent) line.Set(tblTasks::RiggerID, 0);
    taskID = AddRow(tblTasks::kTable, line);
  });
  if (!written) taskID = 0;
}

void AddCustomLine(const JobContext& job, const CustomLine& custom, Date date, int& taskID) {
  taskID = 0;
  const bool written = Operation(u"Sub AddCustomLine"_s, [&] {
    RowValues line;
    SetContext(line, job, date);
    SetCompletion(line, custom.isEvent, date);
    SetWork(line, 0, custom.name, custom.price, Money(), custom.logBook);
    line.Set(tblTasks::PartID, custom.partID);
    taskID = AddRow(tblTasks::kTable, line);
  });
  if (!written) taskID = 0;
}

void AddLibraryParts(const JobContext& job, int taskLibID, Date date) {
  Operation(u"Sub AddLibraryParts"_s, [&] {
    for (Recordset& part : Rows(tblTaskLibParts::TaskLibID == taskLibID)) {
      const int partID = part[tblTaskLibParts::PartID].ToInt();
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
    AddRow(tblTaskComponents::kTable, {{tblTaskComponents::TaskID, taskID},
                                       {tblTaskComponents::CompID, componentID},
                                       {tblTaskComponents::Complete, complete}});
  });
}

void AddGearLine(const JobContext& job, int taskLibID, const QString& name, int componentID, Date date) {
  Operation(u"Sub AddGearLine"_s, [&] {
    int taskID = 0;
    AddTaskToJob(job, taskLibID, false, date, taskID);
    if (taskID == 0) return;
    SetLineField(taskID, tblTasks::TaskName, name.left(kJobTextLength));
    AddTaskComponent(taskID, componentID, false);
  });
}

QList<int> ComponentsOfLine(int taskID) {
  QList<int> components;
  GetRecordsFromTable(tblTaskComponents::TaskID, taskID, tblTaskComponents::CompID, components);
  components.removeAll(0);
  return components;
}

QList<int> LinesOfJob(int jobID) {
  QList<Value> ids;
  GetRecordsFromTableBySQL(Select(tblTasks::JobID == jobID).OrderBy(tblTasks::ID), tblTasks::ID, ids);
  QList<int> lines;
  for (const Value& id : ids) {
    if (!id.IsEmpty()) lines.append(id.ToInt());
  }
  return lines;
}

Value LineField(int taskID, const Column& field) { return GetValueFromTable(tblTasks::ID, taskID, field); }

void SetLineField(int taskID, const Column& field, const Value& value) {
  UpdateTable(field, value, tblTasks::ID, taskID);
}

int JobOfLine(int taskID) { return LineField(taskID, tblTasks::JobID).ToInt(); }

int TaskLibIDOf(int taskID) { return LineField(taskID, tblTasks::TaskLibID).ToInt(); }

bool TaskIsEvent(int taskID) { return LineField(taskID, tblTasks::IsEvent).ToBool(); }
