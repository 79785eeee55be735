#include "reports/invoice_text.h"

#include "core/format.h"

using namespace Qt::StringLiterals;

QStringList HeaderLines(const InvoiceData& invoice) {
  const QString started = invoice.started.IsNone() ? QString() : Format(invoice.started, u"mm/dd/yyyy"_s);
  return {u"Job Title: "_s + invoice.jobTitle, u"Rig: "_s + invoice.rigName, u"Invoice #"_s + invoice.number,
          u"Invoice Date: "_s + started};
}

QString LineText(const InvoiceLine& line) {
  return line.isEvent && !line.isPart ? u"      Event documented: "_s + line.name : line.name;
}

QString DayText(const InvoiceDate& date) { return Format(date.day, u"mm/dd/yy"_s); }
