#include "core/store/undo_rows.h"

#include <QHash>

#include <algorithm>
#include <cstring>
#include <map>
#include <sqlite3.h>
#include <vector>

#include "core/failure.h"
#include "core/store/database.h"

using namespace Qt::StringLiterals;

namespace {

/// A stored value, still in the bytes of the record.
struct Stored {
  Stored(int stored = SQLITE_NULL) : type(stored) {}

  int type;
  qint64 whole = 0;
  double real = 0;
  QByteArray bytes;

  bool IsNumber() const { return type == SQLITE_INTEGER || type == SQLITE_FLOAT; }
  double Number() const { return type == SQLITE_INTEGER ? static_cast<double>(whole) : real; }

  /// A whole number in a column of real ones is an integer to the hook that notes it, a real one to a query.
  friend bool operator==(const Stored& a, const Stored& b) {
    if (a.type != b.type && a.IsNumber() && b.IsNumber()) return a.Number() == b.Number();
    return a.type == b.type && a.whole == b.whole && a.real == b.real && a.bytes == b.bytes;
  }
};

struct Cell {
  int column;
  Stored before;
  Stored after;
};

struct Row {
  ChangeLog::Kind kind;
  int table;
  qint64 rowid;
  std::vector<Cell> cells;
};

class Reader {
 public:
  explicit Reader(const QByteArray& bytes) : bytes_(bytes) {}
  bool AtEnd() const { return at_ >= bytes_.size(); }

  template <typename Plain>
  Plain Take() {
    Plain value;
    if (at_ + static_cast<qsizetype>(sizeof value) > bytes_.size()) throw Failure(u"The record is damaged."_s);
    std::memcpy(&value, bytes_.constData() + at_, sizeof value);
    at_ += static_cast<qsizetype>(sizeof value);
    return value;
  }

  QByteArray TakeBytes(qsizetype size) {
    if (size < 0 || at_ + size > bytes_.size()) throw Failure(u"The record is damaged."_s);
    at_ += size;
    return bytes_.mid(at_ - size, size);
  }

  Stored TakeValue() {
    Stored value(Take<char>());
    if (value.type == SQLITE_INTEGER)
      value.whole = Take<qint64>();
    else if (value.type == SQLITE_FLOAT)
      value.real = Take<double>();
    else if (value.type != SQLITE_NULL)
      value.bytes = TakeBytes(Take<qint32>());
    return value;
  }

  Row TakeRow() {
    Row row{.kind = static_cast<ChangeLog::Kind>(Take<char>()),
            .table = Take<quint8>(),
            .rowid = Take<qint64>(),
            .cells = {}};
    const int count = Take<qint16>();
    for (int i = 0; i < count; ++i) {
      const int column = row.kind == ChangeLog::Kind::Update ? Take<qint16>() : i;
      Stored first = TakeValue();
      switch (row.kind) {
        case ChangeLog::Kind::Insert:
          row.cells.push_back({column, {}, std::move(first)});
          break;
        case ChangeLog::Kind::Delete:
          row.cells.push_back({column, std::move(first), {}});
          break;
        case ChangeLog::Kind::Update:
          row.cells.push_back({column, std::move(first), TakeValue()});
          break;
      }
    }
    return row;
  }

 private:
  const QByteArray& bytes_;
  qsizetype at_ = 0;
};

struct Record {
  std::vector<QByteArray> tables;
  std::vector<Row> rows;
};

Record Unpack(const QByteArray& packed) {
  Record record;
  Reader reader(packed);
  const int tables = reader.Take<quint8>();
  for (int i = 0; i < tables; ++i) record.tables.push_back(reader.TakeBytes(reader.Take<quint8>()));
  while (!reader.AtEnd()) record.rows.push_back(reader.TakeRow());
  return record;
}

void Bind(sqlite3_stmt* statement, int parameter, const Stored& value) {
  switch (value.type) {
    case SQLITE_INTEGER:
      sqlite3_bind_int64(statement, parameter, value.whole);
      break;
    case SQLITE_FLOAT:
      sqlite3_bind_double(statement, parameter, value.real);
      break;
    case SQLITE_TEXT:
      sqlite3_bind_text(statement, parameter, value.bytes.constData(), static_cast<int>(value.bytes.size()),
                        SQLITE_STATIC);
      break;
    case SQLITE_BLOB:
      sqlite3_bind_blob(statement, parameter, value.bytes.constData(), static_cast<int>(value.bytes.size()),
                        SQLITE_STATIC);
      break;
    default:
      sqlite3_bind_null(statement, parameter);
  }
}

Stored ValueAt(sqlite3_stmt* statement, int column) {
  Stored value(sqlite3_column_type(statement, column));
  switch (value.type) {
    case SQLITE_INTEGER:
      value.whole = sqlite3_column_int64(statement, column);
      break;
    case SQLITE_FLOAT:
      value.real = sqlite3_column_double(statement, column);
      break;
    case SQLITE_NULL:
      break;
    default:
      value.bytes = QByteArray(static_cast<const char*>(sqlite3_column_blob(statement, column)),
                               sqlite3_column_bytes(statement, column));
  }
  return value;
}

/// Writes the rows of a record, each only over what the record says that it finds.
class Writer {
 public:
  Writer(Database& database, const Record& record) : database_(database), record_(record) {}

  bool Exists(const Row& row) {
    sqlite3_stmt* find = database_.Plain("SELECT 1 FROM [" + Table(row) + "] WHERE rowid = ?1");
    sqlite3_bind_int64(find, 1, row.rowid);
    const bool exists = database_.Step(find);
    sqlite3_reset(find);
    return exists;
  }

  /// Whether the row holds what it got.
  bool Holds(const Row& row) {
    try {
      CheckCells(row, true);
    } catch (const StorageFailure&) {
      throw;
    } catch (const Failure&) {
      return false;
    }
    return true;
  }

  /// From the one value of each cell to the other.
  void Turn(const Row& row, bool back) {
    const bool adds = (row.kind == ChangeLog::Kind::Insert) != back;
    if (row.kind == ChangeLog::Kind::Update)
      Change(row, back);
    else if (adds)
      Add(row, back);
    else
      Remove(row, back);
  }

 private:
  const QByteArray& Table(const Row& row) const { return record_.tables[static_cast<size_t>(row.table)]; }
  const std::vector<Field>& Fields(const Row& row) { return database_.FieldsOf(QString::fromUtf8(Table(row))); }
  QByteArray Name(const Row& row, int column) {
    const std::vector<Field>& fields = Fields(row);
    if (column >= static_cast<int>(fields.size())) throw Failure(u"The record is damaged."_s);
    return '[' + fields[static_cast<size_t>(column)].name.toUtf8() + ']';
  }

  [[noreturn]] void Refuse(const Row& row, const QString& what) const {
    throw Failure(u"%1, row %2: %3"_s.arg(QString::fromUtf8(Table(row))).arg(row.rowid).arg(what));
  }

  bool IsRemembered(const Row& row, int column) const { return database_.Log().IsRemembered(Table(row), column); }

  /// The row must hold what the record says that it holds now.
  void CheckCells(const Row& row, bool back) {
    QByteArray names;
    for (const Cell& cell : row.cells) names += (names.isEmpty() ? "" : ", ") + Name(row, cell.column);
    sqlite3_stmt* select = database_.Plain("SELECT " + names + " FROM [" + Table(row) + "] WHERE rowid = ?1");
    sqlite3_bind_int64(select, 1, row.rowid);
    const bool exists = database_.Step(select);
    QString changed;
    for (size_t i = 0; exists && i < row.cells.size(); ++i) {
      const Cell& cell = row.cells[i];
      const Stored& expected = back ? cell.after : cell.before;
      if (!IsRemembered(row, cell.column) && !(ValueAt(select, static_cast<int>(i)) == expected))
        changed = QString::fromUtf8(Name(row, cell.column));
    }
    sqlite3_reset(select);
    if (!exists) Refuse(row, u"has been deleted since"_s);
    if (!changed.isEmpty()) Refuse(row, changed.mid(1).chopped(1) + u" was changed since"_s);
  }

  void Change(const Row& row, bool back) {
    CheckCells(row, back);
    QByteArray sets;
    for (const Cell& cell : row.cells) sets += (sets.isEmpty() ? "" : ", ") + Name(row, cell.column) + " = ?";
    sqlite3_stmt* update = database_.Plain("UPDATE [" + Table(row) + "] SET " + sets + " WHERE rowid = ?");
    int parameter = 0;
    for (const Cell& cell : row.cells) Bind(update, ++parameter, back ? cell.before : cell.after);
    sqlite3_bind_int64(update, ++parameter, row.rowid);
    Finish(update);
  }

  void Remove(const Row& row, bool back) {
    CheckCells(row, back);
    sqlite3_stmt* remove = database_.Plain("DELETE FROM [" + Table(row) + "] WHERE rowid = ?1");
    sqlite3_bind_int64(remove, 1, row.rowid);
    Finish(remove);
  }

  void Add(const Row& row, bool back) {
    if (Exists(row)) Refuse(row, u"its place has been taken since"_s);
    // A column that is the row's number gets it by itself.
    QByteArray names = "rowid";
    QByteArray places = "?";
    for (const Cell& cell : row.cells) {
      if (IsRowNumber(row, cell.column)) continue;
      names += ", " + Name(row, cell.column);
      places += ",?";
    }
    sqlite3_stmt* insert = database_.Plain("INSERT INTO [" + Table(row) + "] (" + names + ") VALUES (" + places + ')');
    sqlite3_bind_int64(insert, 1, row.rowid);
    int parameter = 1;
    for (const Cell& cell : row.cells)
      if (!IsRowNumber(row, cell.column)) Bind(insert, ++parameter, back ? cell.before : cell.after);
    Finish(insert);
  }

  bool IsRowNumber(const Row& row, int column) {
    auto known = rowNumbers_.find(row.table);
    if (known == rowNumbers_.end()) {
      sqlite3_stmt* info = database_.Plain("SELECT cid FROM pragma_table_info(?1) WHERE pk = 1 AND type = 'INTEGER'");
      sqlite3_bind_text(info, 1, Table(row).constData(), static_cast<int>(Table(row).size()), SQLITE_STATIC);
      known = rowNumbers_.insert(row.table, database_.Step(info) ? sqlite3_column_int(info, 0) : -1);
      sqlite3_reset(info);
    }
    return *known == column;
  }

  void Finish(sqlite3_stmt* statement) {
    database_.Step(statement);
    sqlite3_reset(statement);
    sqlite3_clear_bindings(statement);
  }

  Database& database_;
  const Record& record_;
  QHash<int, int> rowNumbers_;
};

}  // namespace

QByteArray PackRows(const ChangeLog& log) {
  QByteArray packed(1, static_cast<char>(log.TableNames().size()));
  for (const QByteArray& name : log.TableNames()) packed += static_cast<char>(name.size()) + name;
  return packed + log.Bytes();
}

void TakeRowsBack(Database& database, const QByteArray& packed) {
  const Record record = Unpack(packed);
  Writer writer(database, record);
  std::for_each(record.rows.rbegin(), record.rows.rend(), [&](const Row& row) { writer.Turn(row, true); });
}

void WriteRowsAgain(Database& database, const QByteArray& packed) {
  const Record record = Unpack(packed);
  Writer writer(database, record);
  for (const Row& row : record.rows) writer.Turn(row, false);
}

namespace {

/// What became of one row in all that was written to it.
struct Fate {
  bool existed;
  bool exists;
  Row changes;  // from what it was to what it is

  bool MakesADifference() const { return existed != exists || (exists && !changes.cells.empty()); }
};

void Follow(Fate& fate, const Row& row) {
  fate.exists = row.kind != ChangeLog::Kind::Delete;
  for (const Cell& cell : row.cells) {
    std::vector<Cell>& cells = fate.changes.cells;
    auto known = std::find_if(cells.begin(), cells.end(), [&](const Cell& own) { return own.column == cell.column; });
    if (known == cells.end()) known = cells.insert(known, cell);
    if (fate.exists) known->after = cell.after;
  }
}

std::vector<Fate> FatesOf(const Record& record) {
  std::vector<Fate> fates;
  std::map<std::pair<int, qint64>, size_t> places;
  for (const Row& row : record.rows) {
    const auto [place, isNew] = places.try_emplace({row.table, row.rowid}, fates.size());
    if (isNew)
      fates.push_back({row.kind != ChangeLog::Kind::Insert, true, {ChangeLog::Kind::Update, row.table, row.rowid, {}}});
    Follow(fates[place->second], row);
  }
  for (Fate& fate : fates)
    std::erase_if(fate.changes.cells, [](const Cell& cell) { return cell.before == cell.after; });
  return fates;
}

}  // namespace

bool RowsMakeADifference(const QByteArray& packed) {
  const std::vector<Fate> fates = FatesOf(Unpack(packed));
  return std::any_of(fates.cbegin(), fates.cend(), [](const Fate& fate) { return fate.MakesADifference(); });
}

bool RowsStand(Database& database, const QByteArray& packed) {
  const Record record = Unpack(packed);
  Writer writer(database, record);
  for (const Fate& fate : FatesOf(record)) {
    if (!fate.MakesADifference()) continue;
    return fate.existed == fate.exists ? writer.Holds(fate.changes) : writer.Exists(fate.changes) == fate.exists;
  }
  return false;
}

Changes TablesOf(const QByteArray& packed) {
  Changes changes;
  for (const QByteArray& table : Unpack(packed).tables) changes.Note(QString::fromUtf8(table));
  return changes;
}
