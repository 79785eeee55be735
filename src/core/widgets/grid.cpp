#include "core/widgets/grid.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QMetaMethod>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include "core/widgets/cell_editor.h"
#include "core/widgets/theme.h"

using namespace Qt::StringLiterals;

namespace {

const QColor kMarked(255, 255, 0);
constexpr int kRoomInRow = 8;

class CellPainter : public QStyledItemDelegate {
 public:
  explicit CellPainter(Grid* grid) : QStyledItemDelegate(grid), grid_(grid) {}

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    const QVariant own = index.data(Qt::BackgroundRole);
    const bool selected = option->state.testFlag(QStyle::State_Selected);
    const bool marked = grid_->MarksCell() && selected && index == grid_->currentIndex();
    if (!own.isValid() && !marked) return;
    const QColor back = own.isValid() ? own.value<QColor>() : kMarked;
    const QVariant fore = index.data(Qt::ForegroundRole);
    option->backgroundBrush = back;
    option->state &= ~QStyle::State_Selected;
    option->palette.setColor(QPalette::Text, own.isValid() && fore.isValid() ? fore.value<QColor>() : ReadableOn(back));
  }

 private:
  Grid* grid_;
};

}  // namespace

Grid::Grid(QWidget* parent) : QTableView(parent), model_(this) {
  setModel(&model_);
  setItemDelegate(new CellPainter(this));
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
  setSelectionBehavior(SelectItems);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setCornerButtonEnabled(false);
  setHorizontalScrollMode(ScrollPerPixel);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRoomInRow);
  QHeaderView* heading = horizontalHeader();
  heading->setHighlightSections(false);
  heading->setSectionsMovable(true);
  heading->setSectionsClickable(true);
  heading->setMinimumSectionSize(24);

  editor_ = new CellEditor(viewport());
  connect(editor_, &CellEditor::Entered, this, &Grid::SaveEditor);
  connect(editor_, &CellEditor::Left, this, &Grid::SaveEditor);
  connect(editor_, &CellEditor::Abandoned, this, &Grid::AbandonEditor);
  connect(editor_, &CellEditor::KeyPressed, this, &Grid::EditorKey);
  connect(editor_, &QLineEdit::textEdited, this, [this](const QString& text) {
    if (edited_.isValid()) Q_EMIT CellTyped(edited_.row(), edited_.column(), text);
  });
  connect(heading, &QHeaderView::sectionClicked, this, &Grid::ClickHeading);
  connect(heading, &QHeaderView::sectionResized, this, [this] {
    layoutChanged_ = true;
    PlaceEditor();
  });
  connect(heading, &QHeaderView::sectionMoved, this, [this] {
    layoutChanged_ = true;
    PlaceEditor();
  });
  connect(this, &QTableView::clicked, this, [this](const QModelIndex& index) {
    if (modifiers_.testFlag(Qt::ControlModifier)) {
      Q_EMIT CellCtrlClick(index.row(), index.column());
    } else {
      Q_EMIT CellClick(index.row(), index.column());
    }
  });
  connect(this, &QTableView::doubleClicked, this,
          [this](const QModelIndex& index) { Q_EMIT CellDoubleClick(index.row(), index.column()); });
}

Grid::~Grid() {
  Remember();
  disconnect(editor_, nullptr, this, nullptr);
  disconnect(horizontalHeader(), nullptr, this, nullptr);
  setModel(nullptr);  // the model goes before the view that reads it
}

void Grid::SetColumns(std::vector<GridColumn> columns) {
  CloseEditor();
  ForgetSort();
  model_.SetColumns(std::move(columns));
  ApplyColumns();
}

void Grid::ApplyColumns() {
  const bool changed = layoutChanged_;
  const auto& columns = model_.Columns();
  for (int i = 0; i < ColumnCount(); ++i) {
    const int width = columns[static_cast<size_t>(i)].width;
    setColumnHidden(i, width == 0);
    if (width > 0) setColumnWidth(i, width);
  }
  layoutChanged_ = changed;
}

void Grid::SetHeading(int column, const QString& heading) { model_.SetHeading(column, heading); }
void Grid::SetColumnHidden(int column, bool hidden) { setColumnHidden(column, hidden); }

void Grid::Fill(std::vector<GridRow> rows) {
  CloseEditor();
  filling_ = true;
  model_.SetRows(std::move(rows));
  AfterFill();
}

void Grid::FillLazily(int rows, GridModel::TextOf textOf, const std::function<int(int row)>& dataOf) {
  CloseEditor();
  std::vector<GridRow> content(static_cast<size_t>(rows));
  if (dataOf) {
    for (int row = 0; row < rows; ++row) content[static_cast<size_t>(row)].data = dataOf(row);
  }
  filling_ = true;
  model_.SetRows(std::move(content), std::move(textOf));
  AfterFill();
}

void Grid::Refill(std::vector<GridRow> rows) {
  const int row = CurrentRow();
  const int column = CurrentColumn();
  const int id = RowData(row);
  const int editedID = IsEditing() ? RowData(edited_.row()) : 0;
  const int editedColumn = edited_.column();
  const int scrolled = verticalScrollBar()->value();
  if (editedID == 0) CloseEditor();
  filling_ = true;
  model_.SetRows(std::move(rows));
  AfterFill();
  SelectAgain(row, column, id);
  verticalScrollBar()->setValue(scrolled);
  if (editedID == 0) return;
  edited_ = model_.index(FindRow(editedID), editedColumn);
  if (IsEditing())
    PlaceEditor();
  else
    HideEditor();
}

void Grid::SelectAgain(int row, int column, int id) {
  if (row < 0) return;
  const QScopedValueRollback<bool> untold(filling_, true);
  const int found = id == 0 ? -1 : FindRow(id);
  SelectCell(found >= 0 ? found : qMin(row, RowCount() - 1), column);
  toldRow_ = CurrentRow();
  toldColumn_ = CurrentColumn();
}

void Grid::AfterFill() {
  if (sortColumn_ >= 0) model_.Sort(sortColumn_, sortOrder_, fixedRows_);
  toldRow_ = -1;
  filling_ = false;
}

int Grid::AddRow(const QStringList& cells, int id) {
  const int row = RowCount() - qMin(fixedRows_, RowCount());
  InsertRow(row, cells, id);
  return row;
}

void Grid::InsertRow(int row, const QStringList& cells, int id) {
  model_.InsertRow(row, GridRow{{cells.begin(), cells.end()}, id});
}

void Grid::RemoveRow(int row) {
  if (!model_.Has(row, 0)) return;
  if (edited_.row() == row) CloseEditor();
  model_.RemoveRow(row);
  toldRow_ = -1;
}

void Grid::Clear() { Fill({}); }

int Grid::RowData(int row) const { return model_.Has(row, 0) ? const_cast<GridModel&>(model_).Row(row).data : 0; }
void Grid::SetRowData(int row, int id) {
  if (model_.Has(row, 0)) model_.Row(row).data = id;
}

void Grid::SetCellColour(int row, int column, const QColor& back, const QColor& fore) {
  CellLook look = model_.Look(row, column);
  look.back = back;
  look.fore = fore;
  model_.SetLook(row, column, look);
}

void Grid::ClearCellColour(int row, int column) { SetCellColour(row, column, {}, {}); }

void Grid::SetBold(int row, int column, bool bold) {
  CellLook look = model_.Look(row, column);
  look.bold = bold;
  model_.SetLook(row, column, look);
}

void Grid::SetSelectsRows(bool rows) { setSelectionBehavior(rows ? SelectRows : SelectItems); }

void Grid::SetStretchColumn(int column) { horizontalHeader()->setSectionResizeMode(column, QHeaderView::Stretch); }

void Grid::FitHeight(int mostRows) {
  const int rows = qMin(RowCount(), mostRows);
  setFixedHeight(horizontalHeader()->sizeHint().height() + rows * verticalHeader()->defaultSectionSize() +
                 2 * frameWidth());
}

int Grid::CurrentRow() const {
  const QModelIndex current = currentIndex();
  return current.isValid() && selectionModel()->isSelected(current) ? current.row() : -1;
}

int Grid::CurrentColumn() const { return CurrentRow() < 0 ? -1 : currentIndex().column(); }

void Grid::SelectRow(int row) {
  const QList<int> shown = ShownColumns();
  if (shown.isEmpty()) return;
  SelectCell(row, CurrentColumn() >= 0 ? CurrentColumn() : shown.constFirst());
}

void Grid::SelectCell(int row, int column) {
  if (!model_.Has(row, column)) return;
  const QModelIndex index = model_.index(row, column);
  selectionModel()->setCurrentIndex(
      index, QItemSelectionModel::ClearAndSelect |
                 (selectionBehavior() == SelectRows ? QItemSelectionModel::Rows : QItemSelectionModel::NoUpdate));
  scrollTo(index);
}

bool Grid::SelectData(int id) {
  const int row = FindRow(id);
  if (row >= 0) SelectRow(row);
  return row >= 0;
}

void Grid::SelectNone() {
  selectionModel()->clear();
  toldRow_ = -1;
}

void Grid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (marksCell_) viewport()->update();
  TellChange();
}

void Grid::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  QTableView::selectionChanged(selected, deselected);
  TellChange();
}

void Grid::TellChange() {
  const int row = CurrentRow();
  const int column = CurrentColumn();
  if (filling_ || row < 0 || (row == toldRow_ && column == toldColumn_)) return;
  toldRow_ = row;
  toldColumn_ = column;
  Q_EMIT CellChange(row, column);
}

QItemSelectionModel::SelectionFlags Grid::selectionCommand(const QModelIndex& index, const QEvent* event) const {
  // Ctrl and a click has a meaning of its own; it must not take the selection away.
  const bool mouse =
      event && (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease);
  if (mouse && selectionMode() == SingleSelection) {
    if (!index.isValid()) return QItemSelectionModel::NoUpdate;
    return QItemSelectionModel::ClearAndSelect |
           (selectionBehavior() == SelectRows ? QItemSelectionModel::Rows : QItemSelectionModel::NoUpdate);
  }
  return QTableView::selectionCommand(index, event);
}

bool Grid::SendKey(int key) {
  const int row = CurrentRow();
  const int column = CurrentColumn();
  if (row < 0) return false;
  const auto send = [&](void (Grid::*told)(int, int)) {
    if (!isSignalConnected(QMetaMethod::fromSignal(told))) return false;
    Q_EMIT(this->*told)(row, column);
    return true;
  };
  switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return send(&Grid::CellEnter);
    case Qt::Key_F2:
      return send(&Grid::CellF2);
    case Qt::Key_Space:
      return send(&Grid::CellSpace);
    case Qt::Key_Delete:
      return send(&Grid::CellDelete);
    default:
      return false;
  }
}

void Grid::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    Copy();
    event->accept();
    return;
  }
  const int key = event->key();
  if (SendKey(key)) {
    event->accept();
    return;
  }
  if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape) {
    event->ignore();  // the form's default and cancel buttons
    return;
  }
  if ((key == Qt::Key_Down || key == Qt::Key_Up) && CurrentRow() < 0 && RowCount() > 0) {
    SelectRow(0);
    return;
  }
  QTableView::keyPressEvent(event);
}

void Grid::mousePressEvent(QMouseEvent* event) {
  if (!SaveEditor()) return;
  QTableView::mousePressEvent(event);
  const QModelIndex index = indexAt(event->position().toPoint());
  if (event->button() == Qt::RightButton && index.isValid()) Q_EMIT CellRightClick(index.row(), index.column());
}

void Grid::mouseReleaseEvent(QMouseEvent* event) {
  modifiers_ = event->modifiers();
  QTableView::mouseReleaseEvent(event);
}

void Grid::contextMenuEvent(QContextMenuEvent* event) {
  QMenu menu(this);
  menu.addActions(actions());
  if (!menu.isEmpty()) menu.addSeparator();
  QAction* copy = menu.addAction(tr("&Copy"), this, &Grid::Copy);
  copy->setShortcut(QKeySequence::Copy);
  copy->setEnabled(CurrentRow() >= 0);
  menu.addAction(tr("&Save as CSV..."), this, &Grid::SaveAsCsv);
  menu.exec(event->globalPos());
}

void Grid::ClickHeading(int column) {
  if (!SaveEditor()) return;
  Q_EMIT HeadingClick(column);
  if (!sortable_ || model_.Columns()[static_cast<size_t>(column)].sort == GridSort::None) return;
  const bool again = column == sortColumn_ && sortOrder_ == Qt::AscendingOrder;
  SortBy(column, again ? Qt::DescendingOrder : Qt::AscendingOrder);
  layoutChanged_ = true;
}

void Grid::SortBy(int column, Qt::SortOrder order) {
  CloseEditor();
  sortColumn_ = column;
  sortOrder_ = order;
  filling_ = true;
  model_.Sort(column, order, fixedRows_);
  filling_ = false;
  horizontalHeader()->setSortIndicatorShown(true);
  horizontalHeader()->setSortIndicator(column, order);
  if (CurrentRow() >= 0) {
    toldRow_ = CurrentRow();
    scrollTo(currentIndex());
  }
}

void Grid::ForgetSort() {
  sortColumn_ = -1;
  horizontalHeader()->setSortIndicatorShown(false);
}

QList<int> Grid::ShownColumns() const {
  QList<int> shown;
  const QHeaderView* heading = horizontalHeader();
  for (int place = 0; place < ColumnCount(); ++place) {
    const int column = heading->logicalIndex(place);
    if (!isColumnHidden(column)) shown += column;
  }
  return shown;
}

QString Grid::Name(int column) const {
  return model_.headerData(column, Qt::Horizontal, Qt::AccessibleTextRole).toString();
}

void Grid::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRoomInRow);
  }
}

void Grid::hideEvent(QHideEvent* event) {
  Remember();
  QTableView::hideEvent(event);
}
