#include "jobs/delete_job.h"

#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "jobs/job_records.h"
#include "jobs/lines.h"
#include "jobs/schedule_key.h"

using namespace Qt::StringLiterals;

namespace {

int NumberOfLines(int jobID, const Condition& which) {
  return GetNumberRecordsComplex(tblTasks::JobID == jobID && which).ToInt();
}

bool IsConfirmed(int jobID, bool ask) {
  const int tasks = NumberOfLines(jobID, tblTasks::PartID == 0);
  const int parts = NumberOfLines(jobID, tblTasks::PartID != 0);
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
  GetRecordsFromTableBySQL(Select(tblJobs::kTable).OrderBy(tblJobs::ID), tblJobs::ID, jobs);
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
    DeleteRecordsFromTable(tblJobComponents::JobID, jobID);
    DeleteRecordsFromTable(tblJobs::ID, jobID);
  });
}

void AuditJobs() {
  const Condition remnants = tblJobs::JobTitle == u"" || tblJobs::JobTitle == u"loadme";
  if (GetNumberRecordsComplex(remnants).ToInt() == 0) return;
  Upkeep(u"Sub AuditJobs"_s, [&] { DeleteRows(remnants); });
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
