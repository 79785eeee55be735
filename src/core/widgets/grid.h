#pragma once
#include <QPersistentModelIndex>
#include <QTableView>

#include <optional>

#include "core/widgets/grid_model.h"

class CellEditor;
class QLineEdit;

/// The grid of every screen: rows of texts below a heading row, each standing for an id. Rows and columns count from 0,
/// the heading row not among them. It shows and edits; what a click means is told by its signals.
class Grid : public QTableView {
  Q_OBJECT
 public:
  explicit Grid(QWidget* parent = nullptr);
  ~Grid() override;

  // Content.
  void SetColumns(std::vector<GridColumn> columns);  ///< takes all rows away
  void SetHeading(int column, const QString& heading);
  void SetColumnHidden(int column, bool hidden);
  /// Fills the grid anew: at once from rows, or from a routine that is asked only for what shows or sorts. The order a
  /// person has chosen is applied again; nothing is selected afterwards.
  void Fill(std::vector<GridRow> rows);
  void FillLazily(int rows, GridModel::TextOf textOf, const std::function<int(int row)>& dataOf = nullptr);
  /// Fills it with what the same rows read now. By their ids, the selected cell stays selected and a text box that is
  /// open stays open with what was typed; where the selected row has gone, the one in its place is selected. Nothing is
  /// told of it.
  void Refill(std::vector<GridRow> rows);
  int AddRow(const QStringList& cells, int id = 0);  ///< for a few rows; Fill is for many
  void InsertRow(int row, const QStringList& cells, int id = 0);
  void RemoveRow(int row);
  void Clear();  ///< no rows
  int RowCount() const { return model_.rowCount(); }
  int ColumnCount() const { return model_.columnCount(); }
  QString Text(int row, int column) const { return model_.Text(row, column); }
  void SetText(int row, int column, const QString& text) { model_.SetText(row, column, text); }
  int RowData(int row) const;  ///< the row's id, 0 where there is no such row
  void SetRowData(int row, int id);
  int FindRow(int id) const { return model_.FindRow(id); }

  // Looks.
  /// The text takes black or white, whichever can be read, unless a colour is named.
  void SetCellColour(int row, int column, const QColor& back, const QColor& fore = {});
  void ClearCellColour(int row, int column);
  QColor CellColour(int row, int column) const { return model_.Look(row, column).back; }
  void SetBold(int row, int column, bool bold);
  /// The selected cell shows yellow, except where a cell has a colour of its own.
  void SetMarksCell(bool marks) { marksCell_ = marks; }
  bool MarksCell() const { return marksCell_; }
  void SetSelectsRows(bool rows);
  void SetStretchColumn(int column);
  void FitHeight(int mostRows);  ///< as tall as its rows, but at most so many

  // Order.
  void SetSortable(bool sortable) { sortable_ = sortable; }  ///< by a click on a heading
  void SetFixedBottomRows(int rows) { fixedRows_ = rows; }   ///< such as totals, kept last
  void SortBy(int column, Qt::SortOrder order = Qt::AscendingOrder);
  void ForgetSort();
  int SortColumn() const { return sortColumn_; }  ///< -1 while rows stand as they were filled
  Qt::SortOrder SortDirection() const { return sortOrder_; }
  /// Remembers widths, order of columns and sort between runs, by the columns' names. Called once they are set.
  void SetMemory(const QString& key);

  // Selection. -1 is none.
  int CurrentRow() const;
  int CurrentColumn() const;
  void SelectRow(int row);
  void SelectCell(int row, int column);
  bool SelectData(int id);  ///< the row of an id; false when there is none
  void SelectNone();

  // Editing.
  /// Lays a text box over a cell, its text selected; `text` stands in it in place of the cell's. Enter or leaving saves
  /// through CellSaved, Esc abandons. False when the box of another cell had to stay open.
  bool EditInCell(int row, int column, const std::optional<QString>& text = std::nullopt);
  bool IsEditing() const { return edited_.isValid(); }
  bool SaveEditor();  ///< false when the text was refused and the box is still open
  void AbandonEditor();
  bool EditorIsChanged() const;  ///< false while the box holds the text that it was opened with
  QLineEdit* Editor() const;

  void Copy() const;  ///< the selected cell, or the shown cells of the selected rows, to the clipboard
  QString CsvText() const;
  void SaveAsCsv();

 Q_SIGNALS:
  void CellChange(int row, int column);  ///< another cell was selected
  void CellClick(int row, int column);
  void CellCtrlClick(int row, int column);
  void CellRightClick(int row, int column);
  void CellDoubleClick(int row, int column);
  void CellEnter(int row, int column);
  void CellF2(int row, int column);
  void CellSpace(int row, int column);
  void CellDelete(int row, int column);
  void HeadingClick(int column);
  void CellSaved(int row, int column, const QString& text, bool& keepOpen);  ///< keepOpen refuses the text
  void CellTyped(int row, int column, const QString& text);
  void EditorKey(int key, bool& handled);
  void EditorClosed();

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void updateGeometries() override;
  void scrollContentsBy(int dx, int dy) override;
  void changeEvent(QEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void ApplyColumns();
  void AfterFill();
  void SelectAgain(int row, int column, int id);
  void TellChange();
  void ClickHeading(int column);
  void PlaceEditor();
  void CloseEditor();
  void HideEditor();
  bool SendKey(int key);
  QString Name(int column) const;
  QList<int> ShownColumns() const;
  void Remember();
  void Recall();

  GridModel model_;
  CellEditor* editor_ = nullptr;
  QPersistentModelIndex edited_;
  QString editedText_;  // what the box was opened with
  QString memory_;
  Qt::KeyboardModifiers modifiers_;
  Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
  int sortColumn_ = -1;
  int fixedRows_ = 0;
  int toldRow_ = -1;
  int toldColumn_ = -1;
  bool marksCell_ = false;
  bool sortable_ = true;
  bool filling_ = false;
  bool saving_ = false;
  bool layoutChanged_ = false;
};
