#include "reports/gear_table_page.h"

#include <array>

#include "reports/primitives.h"

using namespace Qt::StringLiterals;

namespace {

// The left margin, and the right edges of the four columns.
constexpr std::array<double, 5> kMyTabs = {kLeftMargin, 0.26, 0.63, 0.82, kRightMargin};

constexpr double kCellPadding = 25;  // twips above and below a row's text

using Cells = std::array<QString, 4>;

void PaintRow(const Cells& cells, Canvas& page) {
  FiveRules(page, kMyTabs);
  page.CurrentY += 2 * kCellPadding;
  FiveRules(page, kMyTabs);
  page.CurrentY -= kCellPadding;
  for (size_t column = 0; column < cells.size(); ++column) {
    const QString text = FitToWidth(page, cells[column], kMyTabs[column + 1] - kMyTabs[column]);
    PrintJustified(page, kMyTabs[column], text, column + 1 < cells.size());
  }
  page.CurrentY += kCellPadding;
}

void PaintHeadings(Canvas& page) {
  const auto& [type, model, serial, dom] = kGearHeadings;
  PrintRule(page, kMyTabs.front(), kMyTabs.back());
  {
    const BoldText bold(page);
    PaintRow({type, model, serial, dom}, page);
  }
  PrintRule(page, kMyTabs.front(), kMyTabs.back());
}

}  // namespace

void PaintGearTable(const QList<GearRow>& rows, Canvas& page) {
  PageCheck(page);
  PaintHeadings(page);
  for (const auto& [type, model, serial, dom] : rows) {
    PageCheck(page);
    PaintRow({u' ' + type, u' ' + model, u' ' + serial, u' ' + dom}, page);
  }
  PrintRule(page, kMyTabs.front(), kMyTabs.back());
}

void PaintRigTable(const RigTable& table, Canvas& page) {
  PageCheck(page);
  PrintJustified(page, kLeftMargin, FitToWidth(page, table.caption, kRightMargin - kLeftMargin));
  PaintGearTable(table.rows, page);
}
