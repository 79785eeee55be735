#include "jobs/job_list.h"

#include "core/format.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "jobs/job_records.h"
#include "jobs/task_rules.h"

using namespace Qt::StringLiterals;

namespace {

using Status = JobListFilter::Status;

bool OK2ShowByJob(Status status, Date completed) {
  return status == Status::Any || completed.IsNone() == (status == Status::Active);
}

/// All dates are of one width, so the titles line up behind them.
QString RowText(const Recordset& job, Status status, Date completed) {
  QString invoice = job[tblJobs::InvoiceNumber].ToText();
  if (invoice.trimmed().isEmpty()) invoice = job[tblJobs::ID].ToText();  // it could not be written
  return Format(job[tblJobs::DateStarted].ToDate(), u"mm/dd/yy"_s) + u"    "_s + job[tblJobs::JobTitle].ToText() +
         u" - "_s + invoice + (status == Status::Any && !completed.IsNone() ? u" (completed)"_s : QString());
}

}  // namespace

IdList LoadListJobs(const JobListFilter& filter) {
  IdList list;
  AssignInvoiceNumbers();
  Operation(u"Sub LoadListJobs"_s, [&] {
    Select jobs = filter.customer == 0 ? Select(tblJobs::kTable) : Select(tblJobs::CustomerID == filter.customer);
    for (const Recordset& job : Rows(jobs.OrderByLatest(tblJobs::DateStarted).OrderByLatest(tblJobs::ID))) {
      const int id = job[tblJobs::ID].ToInt();
      const Date completed = job[tblJobs::DateCompleted].ToDate();
      if (!OK2ShowByJob(filter.status, completed) || job[tblJobs::JobTitle].ToText().trimmed().isEmpty()) continue;
      if (filter.taskLibID == 0 || TaskOnJob(id, filter.taskLibID))
        list.Add(RowText(job, filter.status, completed), id);
    }
  });
  return list;
}
