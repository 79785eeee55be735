#include "core/widgets/grid_model.h"

#include <QFont>

#include <algorithm>
#include <numeric>

#include "core/format.h"

namespace {

const QString kNoText = QLatin1String("");

/// yyyymmdd of "mm/dd/yyyy"; years of two digits lie between 1930 and 2029. 0 for what is no date.
double DateKey(const QString& text) {
  int parts[3] = {0, 0, 0};
  int part = 0;
  bool any = false;
  for (const QChar c : text) {
    if (c.isDigit()) {
      parts[part] = parts[part] * 10 + c.digitValue();
      any = true;
    } else if (c == u'/' && part < 2) {
      ++part;
    } else {
      break;
    }
  }
  if (!any || part != 2) return 0;
  const int year = parts[2] >= 100 ? parts[2] : parts[2] + (parts[2] < 30 ? 2000 : 1900);
  return year * 10000.0 + parts[0] * 100.0 + parts[1];
}

/// Four characters as one number: it decides most comparisons without touching the texts.
quint64 Prefix(const QString& folded, qsizetype from) {
  quint64 key = 0;
  for (qsizetype i = from; i < from + 4; ++i) key = (key << 16) | (i < folded.size() ? folded[i].unicode() : 0);
  return key;
}

/// How many characters all texts begin with in common.
qsizetype CommonLength(const std::vector<QString>& texts) {
  if (texts.empty()) return 0;
  qsizetype common = texts.front().size();
  for (const QString& text : texts) {
    common = std::min(common, text.size());
    const auto [end, other] = std::mismatch(text.cbegin(), text.cbegin() + common, texts.front().cbegin());
    common = end - text.cbegin();
  }
  return common;
}

template <typename Entry, typename Less>
std::vector<int> OrderOf(std::vector<Entry>& entries, Qt::SortOrder order, Less less) {
  if (order == Qt::AscendingOrder) {
    std::stable_sort(entries.begin(), entries.end(), less);
  } else {
    std::stable_sort(entries.begin(), entries.end(), [&](const Entry& a, const Entry& b) { return less(b, a); });
  }
  std::vector<int> result;
  result.reserve(entries.size());
  for (const Entry& entry : entries) result.push_back(entry.index);
  return result;
}

}  // namespace

std::vector<int> SortedOrder(const std::vector<const QString*>& texts, GridSort sort, Qt::SortOrder order) {
  const auto count = static_cast<int>(texts.size());
  if (sort == GridSort::Text) {
    struct Entry {
      quint64 prefix;
      int index;
    };
    std::vector<QString> folded;
    std::vector<Entry> entries;
    folded.reserve(texts.size());
    entries.reserve(texts.size());
    for (const QString* text : texts) folded.push_back(text->toCaseFolded());
    const qsizetype common = CommonLength(folded);
    for (int i = 0; i < count; ++i) entries.push_back({Prefix(folded[static_cast<size_t>(i)], common), i});
    return OrderOf(entries, order, [&](const Entry& a, const Entry& b) {
      if (a.prefix != b.prefix) return a.prefix < b.prefix;
      return folded[static_cast<size_t>(a.index)] < folded[static_cast<size_t>(b.index)];
    });
  }
  struct Entry {
    double key;
    int index;
  };
  std::vector<Entry> entries;
  entries.reserve(texts.size());
  for (int i = 0; i < count; ++i) {
    const QString& text = *texts[static_cast<size_t>(i)];
    entries.push_back({sort == GridSort::Date ? DateKey(text) : Val(text), i});
  }
  return OrderOf(entries, order, [](const Entry& a, const Entry& b) { return a.key < b.key; });
}

void GridModel::SetColumns(std::vector<GridColumn> columns) {
  beginResetModel();
  columns_ = std::move(columns);
  rows_.clear();
  textOf_ = nullptr;
  endResetModel();
}

void GridModel::SetHeading(int column, const QString& heading) {
  columns_[static_cast<size_t>(column)].heading = heading;
  Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
}

void GridModel::SetRows(std::vector<GridRow> rows, TextOf textOf) {
  beginResetModel();
  rows_ = std::move(rows);
  textOf_ = std::move(textOf);
  for (size_t i = 0; i < rows_.size(); ++i) {
    rows_[i].source = static_cast<int>(i);
    if (!textOf_) rows_[i].cells.resize(columns_.size());
  }
  endResetModel();
}

void GridModel::InsertRow(int row, GridRow content) {
  beginInsertRows({}, row, row);
  content.cells.resize(columns_.size(), kNoText);
  for (QString& text : content.cells) {
    if (text.isNull()) text = kNoText;
  }
  rows_.insert(rows_.begin() + row, std::move(content));
  endInsertRows();
}

void GridModel::RemoveRow(int row) {
  beginRemoveRows({}, row, row);
  rows_.erase(rows_.begin() + row);
  endRemoveRows();
}

bool GridModel::Has(int row, int column) const {
  return row >= 0 && row < rowCount() && column >= 0 && column < columnCount();
}

const QString& GridModel::Text(int row, int column) const {
  if (!Has(row, column)) return kNoText;
  GridRow& content = rows_[static_cast<size_t>(row)];
  if (content.cells.size() < columns_.size()) content.cells.resize(columns_.size());
  QString& text = content.cells[static_cast<size_t>(column)];
  if (text.isNull()) {
    if (textOf_ && content.source >= 0) text = textOf_(content.source, column);
    if (text.isNull()) text = kNoText;
  }
  return text;
}

void GridModel::SetText(int row, int column, const QString& text) {
  if (!Has(row, column) || Text(row, column) == text) return;
  Row(row).cells[static_cast<size_t>(column)] = text.isNull() ? kNoText : text;
  Q_EMIT dataChanged(index(row, column), index(row, column));
}

CellLook GridModel::Look(int row, int column) const {
  if (!Has(row, column)) return {};
  const auto& looks = rows_[static_cast<size_t>(row)].looks;
  if (!looks) return {};
  const auto found = looks->find(column);
  return found == looks->end() ? CellLook{} : found->second;
}

void GridModel::SetLook(int row, int column, const CellLook& look) {
  if (!Has(row, column)) return;
  auto& looks = Row(row).looks;
  if (!looks) looks = std::make_unique<std::map<int, CellLook>>();
  (*looks)[column] = look;
  Q_EMIT dataChanged(index(row, column), index(row, column));
}

int GridModel::FindRow(int data) const {
  const auto found = std::find_if(rows_.begin(), rows_.end(), [&](const GridRow& row) { return row.data == data; });
  return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

void GridModel::Sort(int column, Qt::SortOrder order, int fixedRows) {
  if (column < 0 || column >= columnCount()) return;
  const GridColumn& wanted = columns_[static_cast<size_t>(column)];
  if (wanted.sort == GridSort::None) return;
  const int sorted = std::max(0, rowCount() - fixedRows);
  const bool byKey = wanted.sortKey >= 0 && wanted.sortKey < columnCount();
  std::vector<const QString*> texts;
  texts.reserve(static_cast<size_t>(sorted));
  for (int row = 0; row < sorted; ++row) texts.push_back(&Text(row, byKey ? wanted.sortKey : column));
  const std::vector<int> brought = SortedOrder(texts, byKey ? GridSort::Number : wanted.sort, order);

  Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
  const QModelIndexList before = persistentIndexList();
  std::vector<GridRow> rows;
  rows.reserve(rows_.size());
  for (const int row : brought) rows.push_back(std::move(rows_[static_cast<size_t>(row)]));
  for (size_t row = brought.size(); row < rows_.size(); ++row) rows.push_back(std::move(rows_[row]));
  rows_ = std::move(rows);
  if (!before.isEmpty()) {
    std::vector<int> placeOf(rows_.size());
    std::iota(placeOf.begin(), placeOf.end(), 0);
    for (size_t place = 0; place < brought.size(); ++place) {
      placeOf[static_cast<size_t>(brought[place])] = static_cast<int>(place);
    }
    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex& old : before) after += index(placeOf[static_cast<size_t>(old.row())], old.column());
    changePersistentIndexList(before, after);
  }
  Q_EMIT layoutChanged({}, VerticalSortHint);
}

int GridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (!Has(index.row(), index.column())) return {};
  switch (role) {
    case Qt::DisplayRole:
      return Text(index.row(), index.column());
    case Qt::TextAlignmentRole:
      return QVariant::fromValue(columns_[static_cast<size_t>(index.column())].alignment | Qt::AlignVCenter);
    case Qt::BackgroundRole: {
      const QColor back = Look(index.row(), index.column()).back;
      return back.isValid() ? QVariant(back) : QVariant();
    }
    case Qt::ForegroundRole: {
      const QColor fore = Look(index.row(), index.column()).fore;
      return fore.isValid() ? QVariant(fore) : QVariant();
    }
    case Qt::FontRole:
      if (Look(index.row(), index.column()).bold) {
        QFont bold;
        bold.setBold(true);
        return bold;
      }
      return {};
    default:
      return {};
  }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
  const GridColumn& column = columns_[static_cast<size_t>(section)];
  switch (role) {
    case Qt::DisplayRole:
      return column.heading;
    case Qt::AccessibleTextRole:
      return column.heading.isEmpty() ? column.name : column.heading;
    case Qt::TextAlignmentRole:
      return QVariant::fromValue(column.alignment | Qt::AlignVCenter);
    default:
      return {};
  }
}
