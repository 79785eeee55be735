#include "core/widgets/cell_editor.h"
#include "core/widgets/grid.h"

bool Grid::EditInCell(int row, int column, const std::optional<QString>& text) {
  if (!SaveEditor() || !model_.Has(row, column)) return false;
  SelectCell(row, column);
  edited_ = model_.index(row, column);
  editor_->setAlignment(model_.Columns()[static_cast<size_t>(column)].alignment | Qt::AlignVCenter);
  editor_->setText(text.value_or(Text(row, column)));
  editor_->setAccessibleName(Name(column));
  PlaceEditor();
  editor_->show();
  editor_->setFocus();
  editor_->selectAll();
  return true;
}

QLineEdit* Grid::Editor() const { return editor_; }

bool Grid::SaveEditor() {
  if (!IsEditing()) return true;
  if (saving_) return false;  // a box shown by the one who refuses takes the focus away
  bool keepOpen = false;
  const QPersistentModelIndex saved = edited_;
  saving_ = true;
  Q_EMIT CellSaved(edited_.row(), edited_.column(), editor_->text(), keepOpen);
  saving_ = false;
  if (edited_ != saved || !edited_.isValid()) return true;  // the grid was filled anew, or another cell is edited
  if (!keepOpen) {
    CloseEditor();
    return true;
  }
  editor_->setFocus();
  editor_->selectAll();
  return false;
}

void Grid::AbandonEditor() {
  if (!saving_) CloseEditor();
}

void Grid::CloseEditor() {
  if (!IsEditing()) return;
  const bool focused = editor_->hasFocus();
  edited_ = QPersistentModelIndex();  // before hiding, which counts as leaving
  editor_->hide();
  if (focused) setFocus();
  Q_EMIT EditorClosed();
}

void Grid::PlaceEditor() {
  if (edited_.isValid()) editor_->setGeometry(visualRect(edited_).adjusted(0, 0, -1, -1));
}

void Grid::updateGeometries() {
  QTableView::updateGeometries();
  PlaceEditor();
}

void Grid::scrollContentsBy(int dx, int dy) {
  QTableView::scrollContentsBy(dx, dy);
  PlaceEditor();
}
