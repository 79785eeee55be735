#include "reports/reports.h"

#include "core/prompts.h"
#include "reports/fonts.h"
#include "reports/invoice.h"

using namespace Qt::StringLiterals;

namespace {

struct KeyedReport {
  QStringView key;
  void (*paint)(int id, Canvas& canvas);
};

constexpr KeyedReport kReports[] = {{u"invoice", Invoice}};

bool IsKey(const QString& key, QStringView other) { return other.compare(key, Qt::CaseInsensitive) == 0; }

}  // namespace

PageOrientation OrientationOf(const QString& key) {
  return IsKey(key, u"logbook") || IsKey(key, u"logbook2") ? PageOrientation::Landscape : PageOrientation::Portrait;
}

std::optional<Pages> BuildReport(const QString& key, int id, FontChoice& font) {
  if (IsKey(key, u"logbook2")) LimitLogbookFont(font);
  for (const KeyedReport& report : kReports) {
    if (!IsKey(key, report.key)) continue;
    Canvas canvas(OrientationOf(key), font);
    report.paint(id, canvas);
    return canvas.Drawn();
  }
  MsgBox(u"don't know "_s + key);
  return std::nullopt;
}
