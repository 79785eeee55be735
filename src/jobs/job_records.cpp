#include "jobs/job_records.h"

#include "core/store/access.h"
#include "core/store/operation.h"

using namespace Qt::StringLiterals;

namespace {

Value JobField(int jobID, const QString& field) { return GetValueFromTable(u"tblJobs"_s, u"ID"_s, jobID, field); }

void SetJobField(int jobID, const QString& field, const Value& value) {
  UpdateTable(u"tblJobs"_s, field, value, u"ID"_s, jobID);
}

QString JobByID(int jobID) { return u"Select * from tblJobs where ID = %1"_s.arg(jobID); }

}  // namespace

int JobCustomerID(int jobID) { return JobField(jobID, u"CustomerID"_s).ToInt(); }
int JobSystemID(int jobID) { return JobField(jobID, u"SystemID"_s).ToInt(); }
int JobComponentID(int jobID) { return JobField(jobID, u"ComponentID"_s).ToInt(); }
int JobRiggerID(int jobID) { return JobField(jobID, u"RiggerID"_s).ToInt(); }
int JobLocationID(int jobID) { return JobField(jobID, u"LocationID"_s).ToInt(); }
Date JobDateStarted(int jobID) { return JobField(jobID, u"DateStarted"_s).ToDate(); }
Date JobDatePromised(int jobID) { return JobField(jobID, u"DatePromised"_s).ToDate(); }
Date JobDateCompleted(int jobID) { return JobField(jobID, u"DateCompleted"_s).ToDate(); }
QString JobTitle(int jobID) { return JobField(jobID, u"JobTitle"_s).ToText(); }
QString JobComments(int jobID) { return JobField(jobID, u"Comments"_s).ToText(); }
bool JobExists(int jobID) { return JobField(jobID, u"ID"_s).ToInt() != 0; }

bool JobsExist() { return GetNumberRecordsInTable(u"tblJobs"_s) > 0; }

void SetJobDateStarted(int jobID, Date date) { SetJobField(jobID, u"DateStarted"_s, date); }
void SetJobDatePromised(int jobID, Date date) { SetJobField(jobID, u"DatePromised"_s, date); }
void SetJobDateCompleted(int jobID, Date date) { SetJobField(jobID, u"DateCompleted"_s, date); }
void SetJobRiggerID(int jobID, int riggerID) { SetJobField(jobID, u"RiggerID"_s, riggerID); }
void SetJobLocationID(int jobID, int locationID) { SetJobField(jobID, u"LocationID"_s, locationID); }
void SetJobSystemID(int jobID, int rigID) { SetJobField(jobID, u"SystemID"_s, rigID); }
void SetJobInvoiceNumber(int jobID, const QString& number) { SetJobField(jobID, u"InvoiceNumber"_s, number); }
void SetJobComments(int jobID, const QString& comments) {
  SetJobField(jobID, u"Comments"_s, comments.isEmpty() ? u" "_s : comments);
}

void SetLastJobID(int jobID) {
  if (LastJobID() != jobID) UpdateTableBySQL(u"update tblMisc set LastJobID = %1"_s.arg(jobID));
}
int LastJobID() { return GetValueFromTableBySQL(u"tblMisc"_s, u"LastJobID"_s).ToInt(); }

QString GetInvoiceNumber(int jobID) {
  if (!JobExists(jobID)) return {};
  const QString number = JobField(jobID, u"InvoiceNumber"_s).ToText();
  if (!number.trimmed().isEmpty()) return number;
  Upkeep(u"Function GetInvoiceNumber"_s, [&] { SetJobInvoiceNumber(jobID, QString::number(jobID)); });
  return QString::number(jobID);
}

void AssignInvoiceNumbers() {
  QList<int> blank;
  Operation(u"Sub AssignInvoiceNumbers"_s, [&] {
    for (const Recordset& job : Rows(u"Select ID, InvoiceNumber from tblJobs"_s))
      if (job[u"InvoiceNumber"].ToText().trimmed().isEmpty()) blank << job[u"ID"].ToInt();
  });
  if (blank.isEmpty()) return;
  Upkeep(u"Sub AssignInvoiceNumbers"_s, [&] {
    for (int jobID : blank) SetJobInvoiceNumber(jobID, QString::number(jobID));
  });
}

void SetJobTitle(int jobID, const QString& title) {
  Operation(u"Sub SetJobTitle"_s, [&] {
    Recordset job(JobByID(jobID));
    if (RecordsetHasRows(job)) {
      job.Set(u"JobTitle", title.left(kJobTextLength));
      if (job[u"InvoiceNumber"].ToText() == u"0"_s) job.Set(u"InvoiceNumber", QString::number(jobID));
      job.Update();
    }
  });
}

bool JobTitleExists(const QString& title) {
  bool exists = false;
  Operation(u"Function JobTitleExists"_s, [&] {
    Recordset jobs(u"Select * from tblJobs"_s);
    const QString wanted = title.trimmed().toLower();
    if (RecordsetHasRows(jobs)) {
      for (; !jobs.Eof() && !exists; jobs.MoveNext()) exists = jobs[u"JobTitle"].ToText().trimmed().toLower() == wanted;
    }
  });
  return exists;
}

int JobOfCustomerNamed(int customerID, const QString& name, int exceptJob) {
  int found = 0;
  const QString wanted = name.trimmed().toUpper();
  if (wanted.isEmpty()) return found;
  Operation(u"Function CheckDuplicateName"_s, [&] {
    for (const Recordset& job : Rows(u"Select * from tblJobs where Customerid = %1"_s.arg(customerID))) {
      const int id = job[u"ID"].ToInt();
      if (found == 0 && id != exceptJob && job[u"JobTitle"].ToText().trimmed().toUpper() == wanted) found = id;
    }
  });
  return found;
}

bool InvoiceNumberIsFree(const QString& number) {
  return GetNumberRecordsComplex(u"Select * from tblJobs where InvoiceNumber = '"_s + number + u'\'').ToInt() == 0;
}

void SetJobStatus(int jobID, bool complete, Date date) {
  Operation(u"Sub SetJobStatus"_s, [&] {
    const int status = complete ? -1 : 0;
    const Date completed = complete ? date : Date();
    Recordset job(JobByID(jobID));
    if (!RecordsetHasRows(job)) return;
    if (job[u"JobStatus"].ToInt() == status && job[u"DateCompleted"].ToDate() == completed) return;
    job.Set(u"JobStatus", status);
    job.Set(u"DateCompleted", completed);
    job.Update();
  });
}

int PreviousJobID(int jobID, bool& noneLeft) {
  int id = jobID;
  noneLeft = true;
  Operation(u"Function PreviousJobID"_s, [&] {
    Recordset jobs(u"Select * from tblJobs where ID < %1 order by id"_s.arg(jobID));
    noneLeft = !RecordsetHasRows(jobs);
    if (!noneLeft) {
      jobs.MoveLast();
      id = jobs[u"ID"].ToInt();
    }
  });
  return id;
}

int NextJobID(int jobID, bool& noneLeft) {
  const Value id = GetValueFromTableBySQL(u"Select * from tblJobs where ID > %1 order by id"_s.arg(jobID), u"ID"_s);
  noneLeft = id.IsEmpty();
  return noneLeft ? jobID : id.ToInt();
}

bool IsFirstJob(int jobID) {
  return GetValueFromTableBySQL(u"select id from tblJobs order by ID"_s, u"ID"_s).ToInt() == jobID;
}

bool IsLastJob(int jobID) {
  bool isLast = false;
  Operation(u"Function IsLastJob"_s, [&] {
    Recordset jobs(u"select id from tblJobs order by ID"_s);
    if (RecordsetHasRows(jobs)) {
      jobs.MoveLast();
      isLast = jobs[u"ID"].ToInt() == jobID;
    }
  });
  return isLast;
}

int GetNextValidJobID(int jobID) {
  const Value next = GetValueFromTableBySQL(u"Select * from tblJobs where id > %1 order by ID"_s.arg(jobID), u"ID"_s);
  if (!next.IsEmpty()) return next.ToInt();
  return GetValueFromTableBySQL(u"Select * from tblJobs where id < %1 order by ID desc"_s.arg(jobID), u"ID"_s).ToInt();
}
