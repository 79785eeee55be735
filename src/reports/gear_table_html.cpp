#include "reports/gear_table_html.h"

using namespace Qt::StringLiterals;

namespace {

QString RowHtml(const GearRow& row, const QString& before, const QString& behind) {
  QString html = u"<tr>"_s;
  for (const QString& cell : {row.type, row.model, row.serial, row.dom})
    html += u"<td>"_s + before + cell.toHtmlEscaped() + behind + u"</td>"_s;
  return html + u"</tr>"_s;
}

}  // namespace

QStringList GearTableHtml(const QList<GearRow>& rows) {
  QStringList html = {
      u"<table style=\"text-align: left; width: 500px;\" border=\"1\" cellpadding=\"2\" cellspacing=\"0\">"_s,
      RowHtml(kGearHeadings, u"<b>"_s, u"</b>"_s)};
  for (const GearRow& row : rows) html << RowHtml(row, {}, {});
  return html << u"</table>"_s;
}

QStringList RigTableHtml(const RigTable& table) {
  return QStringList{table.caption.toHtmlEscaped() + u"<br>"_s} + GearTableHtml(table.rows);
}
