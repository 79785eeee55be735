#include "gear/screens/rigs/rig_grid.h"

#include "core/store/tables.h"
#include "core/widgets/grid.h"
#include "core/widgets/screen_routines.h"
#include "gear/rig_rules.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kTypeColumn = 0;
constexpr int kComponentColumn = 5;
constexpr int kMostRows = 6;

std::vector<GridRow> RowsOf(int rig) {
  std::vector<GridRow> rows;
  if (rig == 0) return rows;
  for (const RigComponentRow& row : LoadRigComponents(rig))
    rows.push_back({.cells = {QString::number(row.type), row.typeName, row.name, row.serial, row.dom,
                              QString::number(row.component)},
                    .data = row.type});
  return rows;
}

}  // namespace

void RigGrid::SetUp(Grid& grid) {
  grid.setObjectName(u"Grid"_s);
  const int width = FromTwips(1500);
  grid.SetColumns({{.heading = u"Type id"_s, .width = 0},
                   {.heading = u"Component"_s, .width = width + 20},
                   {.heading = u"Name"_s, .width = width + 40},
                   {.heading = u"Serial Number"_s, .width = width},
                   {.heading = u"Date of mfg"_s, .width = width, .sort = GridSort::Date},
                   {.heading = u"Component id"_s, .width = 0}});
  grid.SetStretchColumn(2);
  grid.SetMarksCell(true);
  grid.SetMemory(u"rig-components"_s);
  grid.FitHeight(kMostRows);
}

QStringList RigGrid::ShowsTables() {
  return {tblRig::kTable,        tblRigTypes::kTable, tblRigTypeComponents::kTable, tblComponentTypes::kTable,
          tblComponents::kTable, tblModels::kTable};
}

void RigGrid::Fill(Grid& grid, int rig) {
  grid.Fill(RowsOf(rig));
  grid.FitHeight(kMostRows);
}

void RigGrid::Refill(Grid& grid, int rig) {
  grid.Refill(RowsOf(rig));
  grid.FitHeight(kMostRows);
}

int RigGrid::ComponentType(const Grid& grid, int row) { return row < 0 ? 0 : grid.Text(row, kTypeColumn).toInt(); }

int RigGrid::Component(const Grid& grid, int row) { return row < 0 ? 0 : grid.Text(row, kComponentColumn).toInt(); }
