#include "jobs/delete_job.h"

#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "jobs/job_records.h"
#include "jobs/lines.h"
#include "jobs/schedule_key.h"

using namespace Qt::StringLiterals;

namespace {

int NumberOfLines(int jobID, const QString& which) {
  return GetNumberRecordsComplex(u"Select * from tblTasks where Jobid = %1 and PartID "_s.arg(jobID) + which).ToInt();
}

bool IsConfirmed(int jobID, bool ask) {
  const int tasks = NumberOfLines(jobID, u" = 0"_s);
  const int parts = NumberOfLines(jobID, u"<> 0"_s);
  const QString title = u"Delete "_s + JobTitle(jobID);
  const QString question = u"Are you sure you want to delete this job?"_s;
  if (tasks + parts == 0) return AskYes(question, title);
  if (!ask) return true;
  return AskYes(Lines({u"This job has %1 tasks and %2 parts"_s.arg(tasks).arg(parts),
                       u"Deleting this job will delete those entries as well"_s, question}),
                title);
}

void DeleteLines(int jobID) {
  for (int taskID : LinesOfJob(jobID)) {
    ScheduleKey key = KeyOfLine(taskID);
    key.componentID = 0;  // a job that goes takes its completions back from its rig alone
    DeleteTask(taskID);
    UpdateSchedule(key);
  }
}

bool IsEmpty(int jobID) { return LinesOfJob(jobID).isEmpty(); }

QList<int> EmptyJobs() {
  QList<int> empty;
  QList<Value> jobs;
  GetRecordsFromTableBySQL(u"select * from tblJobs order by ID"_s, u"ID"_s, jobs);
  for (const Value& job : jobs)
    if (!job.IsEmpty() && IsEmpty(job.ToInt())) empty.append(job.ToInt());
  return empty;
}

bool IsConfirmed(const QList<int>& empty) {
  const bool one = empty.size() == 1;
  const QString found = one ? u"Found one empty job (invoice # "_s + GetInvoiceNumber(empty.first()) + u')'
                            : u"Found %1 empty jobs"_s.arg(empty.size());
  return AskYes(Lines({found, u"Would you like to delete "_s + (one ? u" it?"_s : u" them?"_s)}),
                one ? u"One empty job"_s : u"Empty jobs found"_s);
}

}  // namespace

void DeleteJob(int jobID, bool ask, bool& cancelled) {
  cancelled = !IsConfirmed(jobID, ask);
  if (cancelled) return;
  cancelled = !Operation(u"Sub DeleteJob"_s, [&] {
    DeleteLines(jobID);
    DeleteJobRow(jobID);
  });
}

void DeleteJobRow(int jobID) {
  Operation(u"Sub DeleteJobRow"_s, [&] {
    DeleteRecordsFromTable(u"tblJobComponents"_s, u"JobID"_s, jobID);
    DeleteRecordsFromTable(u"tblJobs"_s, u"ID"_s, jobID);
  });
}

void AuditJobs() {
  const QString remnants = u"from tblJobs where JobTitle = '' or JobTitle = 'loadme'"_s;
  if (GetNumberRecordsComplex(u"Select ID "_s + remnants).ToInt() == 0) return;
  Upkeep(u"Sub AuditJobs"_s, [&] { DeleteRecordsFromTableBySQL(u"Delete * "_s + remnants); });
}

bool DeleteAllEmptyJobs() {
  const QList<int> empty = EmptyJobs();
  if (empty.isEmpty()) {
    MsgBox(u"There are no empty jobs"_s, u"No empty jobs"_s);
    return false;
  }
  if (!IsConfirmed(empty)) return false;
  return Operation(u"Sub DeleteAllEmptyJobs"_s, [&] {
    for (int job : empty)
      if (IsEmpty(job)) DeleteJobRow(job);  // it may have got a line meanwhile
  });
}
