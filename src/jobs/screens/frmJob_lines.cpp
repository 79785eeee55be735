#include <QScopedValueRollback>

#include "core/format.h"
#include "core/picker.h"
#include "core/prompts.h"
#include "core/screens.h"
#include "core/store/operation.h"
#include "core/widgets/screen_routines.h"
#include "gear/catalogue.h"
#include "jobs/completion.h"
#include "jobs/job_lines.h"
#include "jobs/job_records.h"
#include "jobs/line_edits.h"
#include "jobs/parts.h"
#include "jobs/screens.h"
#include "jobs/screens/frmJob.h"
#include "jobs/screens/ui_frmJob.h"

using namespace Qt::StringLiterals;

namespace {

enum Column { kTask, kRigger, kPrice, kStatus, kDate, kID, kRiggerID, kPartID };

constexpr int kRowsBelow = 2;  // an empty one and the totals
const QColor kTotalsBack(0, 0, 255);

GridRow RowOf(const JobLine& line) {
  return {{line.task, line.rigger, Format(line.price, u"#######0.00"_s), line.status, line.date,
           QString::number(line.taskID), QString::number(line.riggerID), QString::number(line.partID)},
          line.taskID};
}

}  // namespace

void frmJob::SetUpLines() {
  Grid& grid = *ui_->Grid2;
  grid.SetColumns({{.heading = u"Task"_s, .width = FromTwips(2500)},
                   {.heading = u"Rigger"_s, .width = FromTwips(1200)},
                   {.heading = u"Price"_s, .width = FromTwips(1200), .alignment = Qt::AlignRight},
                   {.heading = u"Status"_s, .width = FromTwips(1200)},
                   {.heading = u"Date done"_s, .width = FromTwips(1200), .alignment = Qt::AlignHCenter},
                   {.heading = QString(), .width = 0, .name = u"ID"_s},
                   {.heading = QString(), .width = 0, .name = u"RiggerID"_s},
                   {.heading = QString(), .width = 0, .name = u"PartID"_s}});
  grid.SetSortable(false);
  grid.SetFixedBottomRows(kRowsBelow);
  grid.SetStretchColumn(kTask);
  grid.SetMemory(u"job-lines"_s);
  ui_->lblTaskComments->clear();
  connect(&grid, &Grid::CellChange, this, [this] { CheckTaskComments(); });
  connect(&grid, &Grid::CellClick, this, &frmJob::EditCell);
  connect(&grid, &Grid::CellEnter, this, &frmJob::EditCell);
  connect(&grid, &Grid::CellF2, this, &frmJob::EditCell);
  connect(&grid, &Grid::CellSaved, this, &frmJob::SaveCell);
  connect(&grid, &Grid::CellDelete, this, &frmJob::DeleteCurrentTask);
  connect(&grid, &Grid::CellCtrlClick, this, [this] { EditTaskComments(); });
  connect(&grid, &Grid::CellSpace, this, [this](int row, int column) {
    if (column == kStatus && row < ui_->Grid2->RowCount() - 1) ToggleLine(row);
  });
}

void frmJob::LoadTasksGrid() {
  ShowLines();
  const Date completed = RecomputeJobStatus(job_.jobID);
  LoadHeader();
  ShowJobStatus(!completed.IsNone(), HeaderDate(completed));
}

void frmJob::ShowLines() {
  std::vector<GridRow> rows;
  for (const JobLine& line : LoadJobLines(job_.jobID)) rows.push_back(RowOf(line));
  rows.push_back({});
  rows.push_back({{u"Total"_s}});
  for (auto row = rows.end() - kRowsBelow; row != rows.end(); ++row) row->cells.resize(kPartID + 1);
  ui_->Grid2->Refill(std::move(rows));
  const int last = ui_->Grid2->RowCount() - 1;
  for (int column = kTask; column <= kStatus; ++column) ui_->Grid2->SetCellColour(last, column, kTotalsBack);
  ShowTotal();
  CheckTaskComments();
}

/// Sums the price column above the totals row.
void frmJob::ShowTotal() {
  Grid& grid = *ui_->Grid2;
  const int last = grid.RowCount() - 1;
  Money total;
  for (int row = 0; row < last; ++row) total += Money::FromText(grid.Text(row, kPrice));
  grid.SetText(last, kPrice, Format(total, u"###,###,###,##0.00"_s));
}

void frmJob::ShowJobStatus(bool complete, const QString& date) {
  ui_->lblJobComplete->setVisible(complete);
  ui_->lblDateCompleted->setText(date);
  ui_->Grid2->SetText(ui_->Grid2->RowCount() - 1, kStatus, complete ? u"Completed"_s : QString());
}

int frmJob::SelectedTask() const { return ui_->Grid2->RowData(ui_->Grid2->CurrentRow()); }

void frmJob::EditCell(int row, int column) {
  const int task = ui_->Grid2->RowData(row);
  if (task == 0) return;
  if ((column == kRigger || column == kPrice) && TaskIsEvent(task)) {
    MsgBox(Lines({u"This entry is an event, not a rigging task."_s,
                  u"The %1 field is not available for events."_s.arg(column == kRigger ? u"rigger"_s : u"price"_s)}),
           u"Event: "_s + LineName(task));
    return;
  }
  const QString text = ui_->Grid2->Text(row, column).trimmed();
  switch (column) {
    case kRigger:
      PickLineRigger(task);
      break;
    case kStatus:
      ToggleLine(row);
      break;
    case kDate:
      // An incomplete line has no date.
      if (!text.isEmpty()) ui_->Grid2->EditInCell(row, column, text);
      break;
    default:
      ui_->Grid2->EditInCell(row, column, text);
  }
}

void frmJob::SaveCell(int row, int column, const QString& text, bool& keepOpen) {
  if (!ui_->Grid2->EditorIsChanged()) return;
  const int task = ui_->Grid2->RowData(row);
  EditResult result;
  if (column == kTask)
    result = SaveLineName(task, text);
  else if (column == kPrice)
    result = SaveLinePrice(task, text);
  else
    result = SaveLineDate(task, text);
  keepOpen = result.refused;
}

/// Shows by itself what it changes: until the next load the job is complete on the working date.
void frmJob::ToggleLine(int row) {
  const int task = ui_->Grid2->RowData(row);
  if (task == 0) return;
  {
    const QScopedValueRollback<bool> busy(busy_, true);
    if (!ToggleComplete(task, WorkDate(), rigComponentsCurrent_)) return;
  }
  const bool done = ui_->Grid2->Text(row, kStatus).isEmpty();
  const bool isPart = ui_->Grid2->Text(row, kPartID).toInt() != 0;
  ui_->Grid2->SetText(row, kStatus, done ? (isPart ? u"Installed"_s : u"Completed"_s) : QString());
  ui_->Grid2->SetText(row, kDate, done ? HeaderDate(WorkDate()) : QString());
  bool complete = true;
  for (int line = 0; line < ui_->Grid2->RowCount() - kRowsBelow; ++line)
    complete = complete && !ui_->Grid2->Text(line, kStatus).isEmpty();
  ShowJobStatus(complete, complete ? HeaderDate(WorkDate()) : u"(n/a)"_s);
}

void frmJob::CompleteAll(bool complete) { CompleteAllTasks(job_.jobID, complete, WorkDate(), rigComponentsCurrent_); }

void frmJob::DeleteCurrentTask() {
  if (LinesOfJob(job_.jobID).isEmpty()) return;
  if (const int task = SelectedTask(); task == 0)
    MsgBox(u"You must select an item to delete"_s, u"Nothing selected"_s);
  else
    DeleteLine(task, false);
}

void frmJob::DeleteAllTasks() { DeleteAllLines(job_.jobID); }

void frmJob::ChangeTaskRigger() {
  if (LinesOfJob(job_.jobID).isEmpty()) {
    MsgBox(u"There are no tasks to select"_s, u"Can't change rigger for task"_s);
    return;
  }
  if (SelectedTask() == 0)
    MsgBox(u"You must select a task"_s, u"Please select a task"_s);
  else
    EditCell(ui_->Grid2->CurrentRow(), kRigger);
}

void frmJob::PickLineRigger(int task) {
  const Picked picked = PickItem(kPickRigger, 0, LoadJobLine(task).riggerID);
  if (picked.id < 1) return;
  SetLineRigger(task, picked.id);
  ui_->Grid2->SelectCell(ui_->Grid2->FindRow(task), kRigger);
}

void frmJob::Restore(bool (*restore)(int taskID), const QString& what) {
  if (const int task = SelectedTask(); task == 0)
    MsgBox(what, u"Nothing selected"_s);
  else
    restore(task);
}

void frmJob::EditTaskComments() {
  const int task = SelectedTask();
  if (task == 0) {
    MsgBox(u"You must select a task or event"_s, u"Comments"_s);
    return;
  }
  if (const auto text = EditComments(LineHeading(task), LineComments(task))) SetLineComments(task, *text);
}

void frmJob::CheckTaskComments() {
  const int task = SelectedTask();
  const bool has = task != 0 && !LineComments(task).trimmed().isEmpty();
  ui_->lblTaskComments->setText(has ? u"(selected %1 has comments)"_s.arg(LineKind(task)) : QString());
}
