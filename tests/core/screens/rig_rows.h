#pragma once
#include "core/widgets/grid.h"
#include "core/widgets/screen_routines.h"

/// A grid of three rigs with a hidden number, a price and a date.

inline std::vector<GridColumn> RigColumns() {
  return {{.heading = "ID", .width = 0},
          {.heading = "Rig", .width = FromTwips(1500)},
          {.heading = "Price", .width = FromTwips(1200), .alignment = Qt::AlignRight, .sort = GridSort::Number},
          {.heading = "Date", .width = FromTwips(1200), .alignment = Qt::AlignHCenter, .sort = GridSort::Date}};
}

inline void FillRigs(Grid& grid) {
  std::vector<GridRow> rows;
  rows.push_back({{"1", "beta", "100.00", "01/02/2025"}, 11});
  rows.push_back({{"2", "Alpha", "9.50", "12/31/1999"}, 12});
  rows.push_back({{"3", "alpine", "20.00", "06/01/2024"}, 13});
  grid.Fill(std::move(rows));
}

inline QStringList Column(const Grid& grid, int column) {
  QStringList texts;
  for (int row = 0; row < grid.RowCount(); ++row) texts += grid.Text(row, column);
  return texts;
}
