#pragma once
#include <QAbstractTableModel>
#include <QColor>

#include <functional>
#include <map>
#include <memory>
#include <vector>

/// How a column orders its rows: text without regard to case, the number a text begins with, a date written
/// "mm/dd/yyyy" or "mm/dd/yy", or not at all.
enum class GridSort { Text, Number, Date, None };

struct GridColumn {
  QString heading;
  int width = 100;  ///< pixels (FromTwips helps); 0 hides the column for good
  Qt::Alignment alignment = Qt::AlignLeft;
  GridSort sort = GridSort::Text;
  int sortKey = -1;   ///< the column whose numbers order the rows in this one's place, such as a hidden "yyyymmdd"
  QString name = {};  ///< for memory and screen readers, where the heading is empty
};

struct CellLook {
  QColor back;
  QColor fore;
  bool bold = false;
};

/// One row: its texts by column and the id it stands for.
struct GridRow {
  std::vector<QString> cells;
  int data = 0;
  int source = -1;  ///< set by the grid
  std::unique_ptr<std::map<int, CellLook>> looks = {};
};

/// The rows behind a Grid. Rows count from 0, the heading row not among them. Texts are stored, or asked of a routine
/// the first time that they show or sort.
class GridModel : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;
  using TextOf = std::function<QString(int row, int column)>;

  void SetColumns(std::vector<GridColumn> columns);
  const std::vector<GridColumn>& Columns() const { return columns_; }
  void SetHeading(int column, const QString& heading);

  void SetRows(std::vector<GridRow> rows, TextOf textOf = nullptr);
  void InsertRow(int row, GridRow content);
  void RemoveRow(int row);
  GridRow& Row(int row) { return rows_[static_cast<size_t>(row)]; }

  bool Has(int row, int column) const;
  const QString& Text(int row, int column) const;
  void SetText(int row, int column, const QString& text);
  CellLook Look(int row, int column) const;
  void SetLook(int row, int column, const CellLook& look);
  int FindRow(int data) const;  ///< -1 when no row stands for it

  /// Sorts all rows but the last `fixedRows`, keeping the order of equals.
  void Sort(int column, Qt::SortOrder order, int fixedRows);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  std::vector<GridColumn> columns_;
  mutable std::vector<GridRow> rows_;
  TextOf textOf_;
};

/// The order that sorting brings texts into, as indexes into them.
std::vector<int> SortedOrder(const std::vector<const QString*>& texts, GridSort sort, Qt::SortOrder order);
