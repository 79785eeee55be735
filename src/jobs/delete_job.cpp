#include "jobs/delete_job.h"

#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "jobs/job_records.h"
#include "jobs/lines.h"
#include "schedule/schedule.h"

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
  const int rigID = JobSystemID(jobID);
  for (int taskID : LinesOfJob(jobID)) {
    const int taskLibID = TaskLibIDOf(taskID);
    DeleteTask(taskID);
    UpdateSchedule(taskLibID, rigID, 0);
  }
}

QList<int> EmptyJobs() {
  QList<int> empty;
  QList<Value> jobs;
  GetRecordsFromTableBySQL(u"select * from tblJobs order by ID"_s, u"ID"_s, jobs);
  for (const Value& job : jobs) {
    if (!job.IsEmpty() && GetNumberRecords(u"tblTasks"_s, u"JobID"_s, job) == 0) empty.append(job.ToInt());
  }
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
  cancelled = false;
  Operation(u"Sub DeleteJob"_s, [&] {
    cancelled = !IsConfirmed(jobID, ask);
    if (cancelled) return;
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
  if (GetNumberRecordsInTable(u"tblJobs"_s) == 0) return;
  DeleteRecordsFromTableBySQL(u"delete * from tblJobs where JobTitle = ''"_s);
  DeleteRecordsFromTableBySQL(u"delete * from tblJobs where JobTitle = 'loadme'"_s);
}

bool DeleteAllEmptyJobs() {
  bool deleted = false;
  const bool written = Operation(u"Sub DeleteAllEmptyJobs"_s, [&] {
    const QList<int> empty = EmptyJobs();
    if (empty.isEmpty()) {
      MsgBox(u"There are no empty jobs"_s, u"No empty jobs"_s);
      return;
    }
    if (!IsConfirmed(empty)) return;
    for (int job : empty) DeleteJobRow(job);
    deleted = true;
  });
  return written && deleted;
}
