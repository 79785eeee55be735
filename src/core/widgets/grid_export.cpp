#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QSettings>

#include "core/files.h"
#include "core/prompts.h"
#include "core/trap.h"
#include "core/widgets/grid.h"

using namespace Qt::StringLiterals;

namespace {

QString CsvField(QString text) {
  if (!text.contains(u',') && !text.contains(u'"') && !text.contains(u'\n') && !text.contains(u'\r')) return text;
  return u'"' + text.replace(u'"', u"\"\""_s) + u'"';
}

/// One line of the cells of a row that show; a line end within a cell would break the table that it is pasted into.
QString TabbedLine(QStringList cells) {
  for (QString& cell : cells) cell.replace(u'\t', u' ').replace(u'\n', u' ');
  return cells.join(u'\t');
}

}  // namespace

void Grid::Copy() const {
  if (CurrentRow() < 0) return;
  if (selectionBehavior() == SelectItems) {
    QGuiApplication::clipboard()->setText(Text(CurrentRow(), CurrentColumn()));
    return;
  }
  QStringList lines;
  const QList<int> shown = ShownColumns();
  QModelIndexList rows = selectionModel()->selectedRows();
  std::sort(rows.begin(), rows.end());
  for (const QModelIndex& row : std::as_const(rows)) {
    QStringList cells;
    for (const int column : shown) cells += Text(row.row(), column);
    lines += TabbedLine(cells);
  }
  QGuiApplication::clipboard()->setText(lines.join(u'\n'));
}

QString Grid::CsvText() const {
  const QList<int> shown = ShownColumns();
  QString csv;
  const auto line = [&](auto&& textOf) {
    QStringList fields;
    for (const int column : shown) fields += CsvField(textOf(column));
    csv += fields.join(u',') + "\r\n"_L1;
  };
  line([&](int column) { return Name(column); });
  for (int row = 0; row < RowCount(); ++row) line([&](int column) { return Text(row, column); });
  return csv;
}

void Grid::SaveAsCsv() {
  Trap(u"Sub SaveAsCsv"_s, [&] {
    const QString proposal = accessibleName().isEmpty() ? window()->windowTitle() : accessibleName();
    const QString path = SaveFileDialog({tr("Save as CSV"), proposal + ".csv"_L1, u"CSV files|*.csv|all files|*.*"_s});
    if (!path.isEmpty()) ReplaceFileSafely(path, "\xEF\xBB\xBF" + CsvText().toUtf8());
  });
}

void Grid::SetMemory(const QString& key) {
  memory_ = "grids/"_L1 + key;
  Recall();
}

void Grid::Remember() {
  if (memory_.isEmpty() || !layoutChanged_) return;
  layoutChanged_ = false;
  QSettings settings;
  settings.beginGroup(memory_);
  QStringList order;
  const QList<int> shown = ShownColumns();
  for (const int column : shown) {
    order += Name(column);
    settings.setValue("widths/"_L1 + Name(column), columnWidth(column));
  }
  settings.setValue("order", order);
  settings.setValue("sort", sortColumn_ < 0 ? QString() : Name(sortColumn_));
  settings.setValue("descending", sortOrder_ == Qt::DescendingOrder);
}

void Grid::Recall() {
  QSettings settings;
  settings.beginGroup(memory_);
  const QString sort = settings.value("sort").toString();
  const QList<int> shown = ShownColumns();
  for (const int column : shown) {
    const int width = settings.value("widths/"_L1 + Name(column)).toInt();
    if (width > 0) setColumnWidth(column, width);
    if (!sort.isEmpty() && Name(column) == sort && sortable_) {
      SortBy(column, settings.value("descending").toBool() ? Qt::DescendingOrder : Qt::AscendingOrder);
    }
  }
  const QStringList order = settings.value("order").toStringList();
  int place = 0;
  for (const QString& name : order) {
    for (const int column : shown) {
      if (Name(column) == name) horizontalHeader()->moveSection(horizontalHeader()->visualIndex(column), place++);
    }
  }
  layoutChanged_ = false;
}
