#include <QScopedValueRollback>

#include "core/widgets/cell_editor.h"
#include "core/widgets/grid.h"

bool Grid::EditInCell(int row, int column, const std::optional<QString>& text) {
  if (!SaveEditor() || !model_.Has(row, column)) return false;
  SelectCell(row, column);
  edited_ = model_.index(row, column);
  editor_->setAlignment(model_.Columns()[static_cast<size_t>(column)].alignment | Qt::AlignVCenter);
  editedText_ = text.value_or(Text(row, column));
  editor_->setText(editedText_);
  editor_->setAccessibleName(Name(column));
  PlaceEditor();
  editor_->show();
  editor_->setFocus();
  editor_->selectAll();
  return true;
}

QLineEdit* Grid::Editor() const { return editor_; }

bool Grid::EditorIsChanged() const { return IsEditing() && editor_->text() != editedText_; }

bool Grid::SaveEditor() {
  if (!IsEditing()) return true;
  if (saving_) return false;  // a box shown by the one who refuses takes the focus away
  bool keepOpen = false;
  const QPersistentModelIndex saved = edited_;
  const int id = RowData(edited_.row());
  {
    const QScopedValueRollback<bool> saving(saving_, true);
    Q_EMIT CellSaved(edited_.row(), edited_.column(), editor_->text(), keepOpen);
  }
  // Meanwhile the grid may have been filled anew, or the screen refilled it with what was saved.
  const bool isOpen = IsEditing() && (edited_ == saved || (id != 0 && RowData(edited_.row()) == id));
  if (!isOpen) return true;
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
  if (IsEditing()) HideEditor();
}

void Grid::HideEditor() {
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
