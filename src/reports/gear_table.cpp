#include "reports/gear_table.h"

#include <array>

#include "core/format.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/rig_types.h"
#include "gear/rigs.h"
#include "reports/primitives.h"

using namespace Qt::StringLiterals;

namespace {

// The left margin, and the right edges of the four columns.
constexpr std::array<double, 5> kMyTabs = {kLeftMargin, 0.26, 0.63, 0.82, kRightMargin};

constexpr double kCellPadding = 25;  // twips above and below a row's text

using Cells = std::array<QString, 4>;

void PrintRow(Canvas& canvas, const Cells& cells) {
  FiveRules(canvas, kMyTabs);
  canvas.CurrentY += 2 * kCellPadding;
  FiveRules(canvas, kMyTabs);
  canvas.CurrentY -= kCellPadding;
  for (size_t column = 0; column < cells.size(); ++column) {
    const QString text = FitToWidth(canvas, cells[column], kMyTabs[column + 1] - kMyTabs[column]);
    PrintJustified(canvas, kMyTabs[column], text, column + 1 < cells.size());
  }
  canvas.CurrentY += kCellPadding;
}

void PrintHeading(Canvas& canvas, const Cells& cells) {
  PrintRule(canvas, kMyTabs.front(), kMyTabs.back());
  {
    const BoldText bold(canvas);
    PrintRow(canvas, cells);
  }
  PrintRule(canvas, kMyTabs.front(), kMyTabs.back());
}

QString HtmlRow(const Cells& cells, const QString& before, const QString& behind) {
  QString row = u"<tr>"_s;
  for (const QString& cell : cells) row += u"<td>"_s + before + cell.toHtmlEscaped() + behind + u"</td>"_s;
  return row + u"</tr>"_s;
}

}  // namespace

GearRow GearRowOf(int componentID) {
  const Date dom = ComponentDom(componentID);
  return {ComponentTypeName(ComponentTypeOf(componentID)),
          QString(ComponentSubType(componentID) + u' ' + ModelName(ComponentModel(componentID))).trimmed(),
          ComponentSerial(componentID), dom.IsNone() ? QString() : Format(dom, u"mm/dd/yyyy"_s)};
}

QList<GearRow> GearRowsOfRig(int rigID) {
  QList<GearRow> rows;
  for (const int type : ComponentTypesOfRigType(RigType(rigID), true)) {
    rows << GearRowOf(ComponentOfTypeInRig(rigID, type));  // blank where the rig has none
    rows.last().type = ComponentTypeName(type);
  }
  return rows;
}

void DoGearTable(Canvas& canvas, QStringList& html, const QList<GearRow>& rows) {
  const Cells headings = {u" Component"_s, u" Model"_s, u" S/N"_s, u" DOM"_s};
  PageCheck(canvas);
  PrintHeading(canvas, headings);
  html << u"<table style=\"text-align: left; width: 500px;\" border=\"1\" cellpadding=\"2\" cellspacing=\"0\">"_s
       << HtmlRow(headings, u"<b>"_s, u"</b>"_s);
  for (const auto& [type, model, serial, dom] : rows) {
    PageCheck(canvas);
    PrintRow(canvas, {u' ' + type, u' ' + model, u' ' + serial, u' ' + dom});
    html << HtmlRow({type, model, serial, dom}, {}, {});
  }
  PrintRule(canvas, kMyTabs.front(), kMyTabs.back());
  html << u"</table>"_s;
}

void DoHTMLRigTable(Canvas& canvas, QStringList& html, int rigID) {
  const QString caption = RigTypeName(RigType(rigID)) + u"  (Rig name: "_s + RigName(rigID) + u')';
  PageCheck(canvas);
  PrintJustified(canvas, kLeftMargin, FitToWidth(canvas, caption, kRightMargin - kLeftMargin));
  html << caption.toHtmlEscaped() + u"<br>"_s;
  DoGearTable(canvas, html, GearRowsOfRig(rigID));
}
