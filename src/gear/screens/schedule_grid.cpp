#include "gear/screens/schedule_grid.h"

#include "core/prompts.h"
#include "core/store/tables.h"
#include "core/widgets/grid.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kTimeLeftColumn = 3;

CellLook LookOf(DueMark mark) {
  if (mark == DueMark::Overdue) return {.back = QColor(255, 0, 0), .fore = Qt::white};
  return {.back = Qt::yellow, .fore = Qt::black};
}

}  // namespace

void ScheduleGrid::SetUp(Grid& grid) {
  grid.SetColumns({{.heading = u"Scheduled Task"_s, .width = 200},
                   {.heading = u"Date Done"_s, .width = 95, .sort = GridSort::Date},
                   {.heading = u"Date Due"_s, .width = 95, .sort = GridSort::Date},
                   {.heading = u"Time Left"_s, .width = 110},
                   {.heading = u"Task id"_s, .width = 0}});
  grid.SetStretchColumn(0);
  grid.SetMarksCell(true);
  grid.SetMemory(u"scheduled-tasks"_s);
}

QStringList ScheduleGrid::ShowsTables() {
  return {tblSchedules::kTable,      tblTaskLib::kTable,        tblTaskLibComponentTypes::kTable,
          tblTaskLibRigType::kTable, tblTasks::kTable,          tblRig::kTable,
          tblComponents::kTable,     tblTaskComponents::kTable, tblModels::kTable};
}

void ScheduleGrid::Fill(Grid& grid, const QList<RigAuditRow>& audit) {
  const QString selected = grid.Text(grid.CurrentRow(), 0);
  const int entry = grid.RowData(grid.CurrentRow());
  const int column = grid.CurrentColumn();
  std::vector<GridRow> rows;
  for (const RigAuditRow& row : audit) {
    GridRow shown{.cells = {row.name, row.dateDone, row.dateDue, row.timeLeft, QString::number(row.taskLibID)},
                  .data = row.taskLibID};
    // The colour goes with its row, wherever the person's order puts it.
    if (row.mark != DueMark::None) {
      shown.looks = std::make_unique<std::map<int, CellLook>>();
      (*shown.looks)[kTimeLeftColumn] = LookOf(row.mark);
    }
    rows.push_back(std::move(shown));
  }
  grid.Fill(std::move(rows));
  for (int row = 0; row < grid.RowCount(); ++row)
    if (!selected.isEmpty() && grid.RowData(row) == entry && (entry > 0 || grid.Text(row, 0) == selected))
      grid.SelectCell(row, column);
}

int ScheduleGrid::EntryToUpdate(Grid& grid) {
  if (grid.RowCount() == 0) {
    MsgBox(u"Please select a scheduled task from the above table"_s, u"Nothing selected"_s);
    return 0;
  }
  if (grid.CurrentRow() < 0) grid.SelectCell(0, 0);
  return grid.RowData(grid.CurrentRow());
}
