#include "reports/report_keys.h"

#include "core/prompts.h"
#include "reports/invoice.h"

using namespace Qt::StringLiterals;

namespace {

struct KeyedReport {
  QStringView key;
  std::optional<Report> (*make)(int id);
};

constexpr KeyedReport kReports[] = {{u"invoice", InvoiceReport}};

}  // namespace

std::optional<Report> ReportOfKey(const QString& key, int id) {
  for (const KeyedReport& report : kReports)
    if (report.key.compare(key, Qt::CaseInsensitive) == 0) return report.make(id);
  MsgBox(u"don't know "_s + key);
  return std::nullopt;
}
