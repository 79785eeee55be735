#include "jobs/job_picker_rows.h"

#include "core/store/access.h"
#include "core/store/operation.h"

using namespace Qt::StringLiterals;

namespace {

IdList ReadRows(const QString& statement, QStringView field) {
  IdList list;
  Operation(u"Sub PickerRows"_s, [&] {
    for (const Recordset& row : Rows(statement)) list.Add(row[field].ToText(), row[u"ID"].ToInt());
  });
  return list;
}

}  // namespace

IdList PickerJobs() { return ReadRows(u"Select * from tblJobs"_s, u"JobTitle"); }
IdList PickerInvoices() { return ReadRows(u"Select * from tbljobs order by InvoiceNumber"_s, u"InvoiceNumber"); }
IdList PickerTasks() { return ReadRows(u"Select * from tblTaskLib"_s, u"Name"); }
