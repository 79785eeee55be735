#include "reports/report.h"

#include <QFile>

#include "core/data_folder.h"
#include "core/text_files.h"
#include "core/trap.h"

std::optional<Report> MakeReport(const QString& routine, const QString& htmlFile, const std::function<Report()>& read) {
  std::optional<Report> report;
  const bool kept = Trap(routine, [&] {
    if (!htmlFile.isEmpty()) QFile::remove(SupportFile(htmlFile));
    report = read();
    if (report->html) WriteLines(SupportFile(htmlFile), report->html());
  });
  if (report && !kept) report->html = nullptr;
  return report;
}

Pages DrawReport(const Report& report, FontChoice& font) {
  if (report.limitFont) report.limitFont(font);
  Canvas canvas(report.orientation, font);
  report.paint(canvas);
  return canvas.Drawn();
}
