#include "jobs/job_picker_rows.h"

#include "core/store/access.h"
#include "core/store/operation.h"

using namespace Qt::StringLiterals;

namespace {

IdList ReadRows(const QString& statement, const Column& id, const Column& text) {
  IdList list;
  Operation(u"Sub PickerRows"_s, [&] {
    for (const Recordset& row : Rows(statement)) list.Add(row[text].ToText(), row[id].ToInt());
  });
  return list;
}

}  // namespace

IdList PickerJobs() { return ReadRows(tblJobs::kTable, tblJobs::ID, tblJobs::JobTitle); }
IdList PickerInvoices() {
  return ReadRows(Select(tblJobs::kTable).OrderBy(tblJobs::InvoiceNumber), tblJobs::ID, tblJobs::InvoiceNumber);
}
IdList PickerTasks() { return ReadRows(tblTaskLib::kTable, tblTaskLib::ID, tblTaskLib::Name); }
