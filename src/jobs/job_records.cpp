#include "jobs/job_records.h"

#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/store/rows.h"

using namespace Qt::StringLiterals;

namespace {

Value JobField(int jobID, const Column& field) { return GetValueFromTable(tblJobs::ID, jobID, field); }

void SetJobField(int jobID, const Column& field, const Value& value) { UpdateTable(field, value, tblJobs::ID, jobID); }

}  // namespace

int JobCustomerID(int jobID) { return JobField(jobID, tblJobs::CustomerID).ToInt(); }
int JobSystemID(int jobID) { return JobField(jobID, tblJobs::SystemID).ToInt(); }
int JobComponentID(int jobID) { return JobField(jobID, tblJobs::ComponentID).ToInt(); }
int JobRiggerID(int jobID) { return JobField(jobID, tblJobs::RiggerID).ToInt(); }
int JobLocationID(int jobID) { return JobField(jobID, tblJobs::LocationID).ToInt(); }
Date JobDateStarted(int jobID) { return JobField(jobID, tblJobs::DateStarted).ToDate(); }
Date JobDatePromised(int jobID) { return JobField(jobID, tblJobs::DatePromised).ToDate(); }
Date JobDateCompleted(int jobID) { return JobField(jobID, tblJobs::DateCompleted).ToDate(); }
QString JobTitle(int jobID) { return JobField(jobID, tblJobs::JobTitle).ToText(); }
QString JobComments(int jobID) { return JobField(jobID, tblJobs::Comments).ToText(); }
bool JobExists(int jobID) { return JobField(jobID, tblJobs::ID).ToInt() != 0; }

bool JobsExist() { return GetNumberRecordsInTable(tblJobs::kTable) > 0; }

void SetJobDateStarted(int jobID, Date date) { SetJobField(jobID, tblJobs::DateStarted, date); }
void SetJobDatePromised(int jobID, Date date) { SetJobField(jobID, tblJobs::DatePromised, date); }
void SetJobDateCompleted(int jobID, Date date) { SetJobField(jobID, tblJobs::DateCompleted, date); }
void SetJobRiggerID(int jobID, int riggerID) { SetJobField(jobID, tblJobs::RiggerID, riggerID); }
void SetJobLocationID(int jobID, int locationID) { SetJobField(jobID, tblJobs::LocationID, locationID); }
void SetJobSystemID(int jobID, int rigID) { SetJobField(jobID, tblJobs::SystemID, rigID); }
void SetJobInvoiceNumber(int jobID, const QString& number) { SetJobField(jobID, tblJobs::InvoiceNumber, number); }
void SetJobComments(int jobID, const QString& comments) {
  SetJobField(jobID, tblJobs::Comments, comments.isEmpty() ? u" "_s : comments);
}

void SetLastJobID(int jobID) {
  if (LastJobID() != jobID) Upkeep(u"Sub SetLastJobID"_s, [&] { UpdateRows(tblMisc::LastJobID, jobID); });
}
int LastJobID() { return GetValueFromTableBySQL(tblMisc::kTable, tblMisc::LastJobID).ToInt(); }

QString GetInvoiceNumber(int jobID) {
  if (!JobExists(jobID)) return {};
  QString number = JobField(jobID, tblJobs::InvoiceNumber).ToText();
  if (!number.trimmed().isEmpty()) return number;
  Upkeep(u"Function GetInvoiceNumber"_s, [&] { SetJobInvoiceNumber(jobID, QString::number(jobID)); });
  return QString::number(jobID);
}

void AssignInvoiceNumbers() {
  QList<int> blank;
  Operation(u"Sub AssignInvoiceNumbers"_s, [&] {
    for (const Recordset& job : Rows(Select({tblJobs::ID, tblJobs::InvoiceNumber})))
      if (job[tblJobs::InvoiceNumber].ToText().trimmed().isEmpty()) blank << job[tblJobs::ID].ToInt();
  });
  if (blank.isEmpty()) return;
  Upkeep(u"Sub AssignInvoiceNumbers"_s, [&] {
    for (int jobID : blank) SetJobInvoiceNumber(jobID, QString::number(jobID));
  });
}

void SetJobTitle(int jobID, const QString& title) {
  Operation(u"Sub SetJobTitle"_s, [&] {
    RowValues values = {{tblJobs::JobTitle, title.left(kJobTextLength)}};
    if (JobField(jobID, tblJobs::InvoiceNumber).ToText() == u"0"_s)
      values.Set(tblJobs::InvoiceNumber, QString::number(jobID));
    EditRow(tblJobs::ID == jobID, values);
  });
}

bool JobTitleExists(const QString& title) {
  bool exists = false;
  Operation(u"Function JobTitleExists"_s, [&] {
    Recordset jobs(tblJobs::kTable);
    const QString wanted = title.trimmed().toLower();
    if (RecordsetHasRows(jobs)) {
      for (; !jobs.Eof() && !exists; jobs.MoveNext())
        exists = jobs[tblJobs::JobTitle].ToText().trimmed().toLower() == wanted;
    }
  });
  return exists;
}

int JobOfCustomerNamed(int customerID, const QString& name, int exceptJob) {
  int found = 0;
  const QString wanted = name.trimmed().toUpper();
  if (wanted.isEmpty()) return found;
  Operation(u"Function CheckDuplicateName"_s, [&] {
    for (const Recordset& job : Rows(tblJobs::CustomerID == customerID)) {
      const int id = job[tblJobs::ID].ToInt();
      if (found == 0 && id != exceptJob && job[tblJobs::JobTitle].ToText().trimmed().toUpper() == wanted) found = id;
    }
  });
  return found;
}

bool InvoiceNumberIsFree(const QString& number) {
  return GetNumberRecordsComplex(tblJobs::InvoiceNumber == number).ToInt() == 0;
}

void SetJobStatus(int jobID, bool complete, Date date) {
  Operation(u"Sub SetJobStatus"_s, [&] {
    const int status = complete ? -1 : 0;
    const Date completed = complete ? date : Date();
    Recordset job(tblJobs::ID == jobID);
    if (!RecordsetHasRows(job)) return;
    if (job[tblJobs::JobStatus].ToInt() == status && job[tblJobs::DateCompleted].ToDate() == completed) return;
    EditRow(job, {{tblJobs::JobStatus, status}, {tblJobs::DateCompleted, completed}});
  });
}

int PreviousJobID(int jobID, bool& noneLeft) {
  int id = jobID;
  noneLeft = true;
  Operation(u"Function PreviousJobID"_s, [&] {
    Recordset jobs(Select(tblJobs::ID < jobID).OrderBy(tblJobs::ID));
    noneLeft = !RecordsetHasRows(jobs);
    if (!noneLeft) {
      jobs.MoveLast();
      id = jobs[tblJobs::ID].ToInt();
    }
  });
  return id;
}

int NextJobID(int jobID, bool& noneLeft) {
  const Value id = GetValueFromTableBySQL(Select(tblJobs::ID > jobID).OrderBy(tblJobs::ID), tblJobs::ID);
  noneLeft = id.IsEmpty();
  return noneLeft ? jobID : id.ToInt();
}

bool IsFirstJob(int jobID) {
  return GetValueFromTableBySQL(Select({tblJobs::ID}).OrderBy(tblJobs::ID), tblJobs::ID).ToInt() == jobID;
}

bool IsLastJob(int jobID) {
  bool isLast = false;
  Operation(u"Function IsLastJob"_s, [&] {
    Recordset jobs(Select({tblJobs::ID}).OrderBy(tblJobs::ID));
    if (RecordsetHasRows(jobs)) {
      jobs.MoveLast();
      isLast = jobs[tblJobs::ID].ToInt() == jobID;
    }
  });
  return isLast;
}

int GetNextValidJobID(int jobID) {
  const Value next = GetValueFromTableBySQL(Select(tblJobs::ID > jobID).OrderBy(tblJobs::ID), tblJobs::ID);
  if (!next.IsEmpty()) return next.ToInt();
  return GetValueFromTableBySQL(Select(tblJobs::ID < jobID).OrderByLatest(tblJobs::ID), tblJobs::ID).ToInt();
}
