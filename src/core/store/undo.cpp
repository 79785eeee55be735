#include "core/store/undo.h"

#include <sqlite3.h>

#include "core/clock.h"
#include "core/failure.h"
#include "core/prompts.h"
#include "core/store/connection.h"
#include "core/store/database.h"
#include "core/store/operation.h"
#include "core/store/undo_rows.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kMostBytes = qint64{20} * 1024 * 1024;
constexpr int kMostOperations = 2000;
/// What writes no more than this may have taken itself back, as the start of a job does that is cancelled.
constexpr qsizetype kLooksForDifference = qsizetype{16} * 1024;

bool recording = true;

const QByteArray kTable(kUndoTable);

bool HasRecord(Database& database) { return !database.FieldsOf(QString::fromUtf8(kTable)).empty(); }

void MakeTable(Database& database) {
  if (HasRecord(database)) return;
  database.ChangeSchema("CREATE TABLE [" + kTable +
                        "] (id INTEGER PRIMARY KEY, name MemoText, screen MemoText, at Date, rows Int32, "
                        "undone Bool, bytes Int32, total Double, changes BLOB)");
}

void Run(Database& database, const QByteArray& sql) {
  sqlite3_stmt* statement = database.Plain(sql);
  database.Step(statement);
  sqlite3_reset(statement);
}

qint64 Ask(Database& database, const QByteArray& sql) {
  sqlite3_stmt* statement = database.Plain(sql);
  const qint64 answer = database.Step(statement) ? sqlite3_column_int64(statement, 0) : 0;
  sqlite3_reset(statement);
  return answer;
}

void BindText(sqlite3_stmt* statement, int parameter, const QString& text) {
  const QByteArray bytes = text.toUtf8();
  sqlite3_bind_text(statement, parameter, bytes.constData(), static_cast<int>(bytes.size()), SQLITE_TRANSIENT);
}

/// The end of the record: how many bytes were ever entered, and whether its last operation is taken back.
struct Tail {
  qint64 total = 0;
  bool undone = false;
};

Tail ReadTail(Database& database) {
  Tail tail;
  sqlite3_stmt* last = database.Plain("SELECT total, undone FROM [" + kTable + "] ORDER BY id DESC LIMIT 1");
  if (database.Step(last)) tail = {sqlite3_column_int64(last, 0), sqlite3_column_int(last, 1) != 0};
  sqlite3_reset(last);
  return tail;
}

void Insert(Database& database, const OperationEntry& entry, int rows, const QByteArray& changes, qint64 total) {
  sqlite3_stmt* insert = database.Plain(
      "INSERT INTO [" + kTable +
      "] (name, screen, at, rows, undone, bytes, total, changes) VALUES (?1, ?2, ?3, ?4, 0, ?5, ?6, ?7)");
  BindText(insert, 1, entry.name);
  BindText(insert, 2, entry.screen);
  sqlite3_bind_double(insert, 3, Now().Serial());
  sqlite3_bind_int(insert, 4, rows);
  const bool kept = changes.size() <= kMostBytes;
  sqlite3_bind_int64(insert, 5, kept ? changes.size() : 0);
  sqlite3_bind_int64(insert, 6, total + (kept ? changes.size() : 0));
  if (kept)
    sqlite3_bind_blob64(insert, 7, changes.constData(), static_cast<sqlite3_uint64>(changes.size()), SQLITE_STATIC);
  else
    sqlite3_bind_null(insert, 7);
  database.Step(insert);
  sqlite3_reset(insert);
  sqlite3_clear_bindings(insert);
}

/// Drops the oldest until the rest is within the bounds. Running totals tell the size without reading it all.
void Trim(Database& database) {
  const qint64 floor = ReadTail(database).total - kMostBytes;
  const qint64 oldest = database.LastInsertId() - kMostOperations;
  sqlite3_stmt* first = database.Plain("SELECT id, total - bytes FROM [" + kTable + "] ORDER BY id LIMIT 1");
  const bool fits =
      !database.Step(first) || (sqlite3_column_int64(first, 0) > oldest && sqlite3_column_int64(first, 1) >= floor);
  sqlite3_reset(first);
  if (fits) return;
  sqlite3_stmt* drop = database.Plain("DELETE FROM [" + kTable + "] WHERE id <= ?1 OR total - bytes < ?2");
  sqlite3_bind_int64(drop, 1, oldest);
  sqlite3_bind_int64(drop, 2, floor);
  database.Step(drop);
  sqlite3_reset(drop);
}

RecordedOperation ReadOperation(sqlite3_stmt* row) {
  return {.id = sqlite3_column_int(row, 0),
          .name = ReadColumn(row, 1, jet::kMemo).ToText(),
          .screen = ReadColumn(row, 2, jet::kMemo).ToText(),
          .at = ReadColumn(row, 3, jet::kDate).ToDate(),
          .rows = sqlite3_column_int(row, 4),
          .undone = sqlite3_column_int(row, 5) != 0,
          .kept = sqlite3_column_int(row, 6) != 0};
}

QList<RecordedOperation> Read(const QByteArray& rest) {
  QList<RecordedOperation> operations;
  Operation(u"Function RecentOperations"_s, [&] {
    Database& database = OpenDatabase();
    if (!HasRecord(database)) return;
    sqlite3_stmt* rows = database.Plain("SELECT id, name, screen, at, rows, undone, changes IS NOT NULL FROM [" +
                                        kTable + "] WHERE name <> '' " + rest);
    while (database.Step(rows)) operations << ReadOperation(rows);
    sqlite3_reset(rows);
  });
  return operations;
}

std::optional<RecordedOperation> First(const QList<RecordedOperation>& operations) {
  return operations.isEmpty() ? std::nullopt : std::optional(operations.first());
}

/// The rows of an operation and of the upkeep behind it.
QByteArray Range(Database& database, const RecordedOperation& operation) {
  const qint64 next = Ask(
      database, "SELECT min(id) FROM [" + kTable + "] WHERE name <> '' AND id > " + QByteArray::number(operation.id));
  QByteArray range = " WHERE id >= " + QByteArray::number(operation.id);
  if (next != 0) range += " AND id < " + QByteArray::number(next);
  return range;
}

enum class Direction { Back, Forth };

void Apply(Database& database, const RecordedOperation& operation, Direction direction) {
  const QByteArray range = Range(database, operation);
  QList<QByteArray> changes;
  sqlite3_stmt* rows = database.Plain("SELECT changes FROM [" + kTable + "]" + range + " ORDER BY id" +
                                      (direction == Direction::Back ? " DESC" : ""));
  while (database.Step(rows))
    changes << QByteArray(static_cast<const char*>(sqlite3_column_blob(rows, 0)), sqlite3_column_bytes(rows, 0));
  sqlite3_reset(rows);
  for (const QByteArray& change : std::as_const(changes)) {
    if (direction == Direction::Back)
      TakeRowsBack(database, change);
    else
      WriteRowsAgain(database, change);
  }
  Run(database, "UPDATE [" + kTable + "] SET undone = " + (direction == Direction::Back ? "-1" : "0") + range);
}

bool Redirect(const std::optional<RecordedOperation>& operation, Direction direction) {
  if (!operation) return false;
  const QString verb = direction == Direction::Back ? u"Undo"_s : u"Redo"_s;
  if (!operation->kept) {
    MsgBox(u"\"%1\" changed too much to be taken back."_s.arg(operation->name), verb);
    return false;
  }
  QString conflict;
  const bool written = UnrecordedOperation(verb, [&] {
    Database& database = OpenDatabase();
    Run(database, "SAVEPOINT undo");
    try {
      Apply(database, *operation, direction);
    } catch (const StorageFailure&) {
      throw;
    } catch (const Failure& failure) {
      Run(database, "ROLLBACK TO undo");
      conflict = failure.Text();
    }
    Run(database, "RELEASE undo");
  });
  if (!conflict.isEmpty())
    MsgBox(
        Lines({u"\"%1\" can't be %2:"_s.arg(operation->name, direction == Direction::Back ? u"undone"_s : u"redone"_s),
               conflict, QString(), u"Nothing was changed."_s}),
        verb, Icon::Exclamation);
  return written && conflict.isEmpty();
}

}  // namespace

void SetRecordsOperations(bool records) { recording = records; }

void RecordOperation(const OperationEntry& entry) {
  Database& database = OpenDatabase();
  ChangeLog& log = database.Log();
  if (!recording || log.RowCount() == 0) return;
  const QByteArray changes = PackRows(log);
  if (changes.size() < kLooksForDifference && !RowsMakeADifference(changes)) return;
  const int rows = log.RowCount();
  MakeTable(database);
  const Tail tail = ReadTail(database);
  if (tail.undone) Run(database, "DELETE FROM [" + kTable + "] WHERE undone <> 0");
  Insert(database, entry, rows, changes, tail.total);
  Trim(database);
}

std::optional<RecordedOperation> NextUndo() { return First(Read("AND undone = 0 ORDER BY id DESC LIMIT 1")); }

std::optional<RecordedOperation> NextRedo() { return First(Read("AND undone <> 0 ORDER BY id LIMIT 1")); }

QList<RecordedOperation> RecentOperations(int most) {
  return Read("ORDER BY id DESC LIMIT " + QByteArray::number(most));
}

bool UndoOperation() { return Redirect(NextUndo(), Direction::Back); }

bool RedoOperation() { return Redirect(NextRedo(), Direction::Forth); }
