#include "reports/invoice_data.h"

#include "core/store/access.h"
#include "core/trap.h"
#include "gear/components.h"
#include "gear/people.h"
#include "gear/rigs.h"
#include "jobs/job_records.h"
#include "reports/business_address.h"
#include "schedule/service_life.h"
#include "schedule/task_library.h"

using namespace Qt::StringLiterals;

namespace {

QStringList BusinessLines() {
  const QString address = GetBusinessAddress();
  return address.trimmed().isEmpty() ? QStringList() : address.split(u'\n');
}

QString PersonText(int id, const Column& field) {
  return GetValueFromTable(tblPeople::ID, id, field).ToText().trimmed();
}

// City, state and zip, without the comma of a state that is missing.
QString CityLine(int customerID) {
  QString line = PersonCityLine(customerID).trimmed();
  if (line.endsWith(u',')) line.chop(1);
  return line;
}

QStringList CustomerLines(int customerID) {
  if (!PersonExists(customerID)) return {};
  QStringList lines = {PersonDisplayName(customerID), PersonText(customerID, tblPeople::address1),
                       PersonText(customerID, tblPeople::address2), CityLine(customerID),
                       PersonText(customerID, tblPeople::phonehome)};
  lines.removeAll(QString());
  return lines;
}

QList<InvoiceLine> LinesOfJob(int jobID) {
  QList<InvoiceLine> lines;
  for (const Recordset& task : Rows(Select(tblTasks::JobID == jobID).OrderBy(tblTasks::ID)))
    lines << InvoiceLine{task[tblTasks::TaskName].ToText(), task[tblTasks::FlatRate].ToMoney(),
                         task[tblTasks::PartID].ToInt() != 0, task[tblTasks::IsEvent].ToBool()};
  return lines;
}

QString DueName(const Recordset& schedule) {
  const QString name = GetValueFromTable(tblTasks::ID, schedule[tblSchedules::TaskID], tblTasks::TaskName).ToText();
  return name.isEmpty() ? TaskLibName(schedule[tblSchedules::TaskLibID].ToInt()) : name;
}

QList<InvoiceDate> DueOnRig(int rigID) {
  QList<InvoiceDate> due;
  for (const Recordset& schedule : Rows(tblSchedules::rigID == rigID))
    due << InvoiceDate{DueName(schedule), schedule[tblSchedules::DateDue].ToDate()};
  return due;
}

QList<InvoiceDate> LivesOnRig(int rigID) {
  QList<InvoiceDate> lives;
  for (const Recordset& component : Rows(tblComponents::RigID == rigID)) {
    const int id = component[tblComponents::ID].ToInt();
    const Date expiry = ServiceLifeExpiry(id);
    if (!expiry.IsNone()) lives << InvoiceDate{ComponentDescription(id).trimmed(), expiry};
  }
  return lives;
}

InvoiceData ReadInvoice(int jobID) {
  const AllOrNothing whole;
  Bracket bracket;
  const int rigID = JobSystemID(jobID);
  InvoiceData invoice;
  invoice.business = BusinessLines();
  invoice.jobTitle = JobTitle(jobID);
  invoice.rigName = RigName(rigID);
  invoice.started = JobDateStarted(jobID);
  invoice.customer = CustomerLines(JobCustomerID(jobID));
  if (RigExists(rigID)) invoice.rig = LoadRigTable(rigID);
  invoice.lines = LinesOfJob(jobID);
  if (rigID != 0) {  // rows of rig 0 belong to loose components, whoever owns them
    invoice.due = DueOnRig(rigID);
    invoice.lives = LivesOnRig(rigID);
  }
  bracket.Close();
  return invoice;
}

}  // namespace

Money InvoiceData::Total() const {
  Money total;
  for (const InvoiceLine& line : lines) total += line.price;
  return total;
}

InvoiceData LoadInvoice(int jobID) {
  InvoiceData invoice = ReadInvoice(jobID);
  invoice.number = GetInvoiceNumber(jobID);
  return invoice;
}
