#include "faults/dump.h"

#include <QList>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

/// A database in memory, as it lies in a file.
class Content {
 public:
  explicit Content(const QByteArray& file) {
    sqlite3_open(":memory:", &handle_);
    sqlite3_create_collation(
        handle_, "NOCASE", SQLITE_UTF8, nullptr, [](void*, int lengthA, const void* a, int lengthB, const void* b) {
          const QByteArrayView textA(static_cast<const char*>(a), lengthA);
          return textA.compare(QByteArrayView(static_cast<const char*>(b), lengthB), Qt::CaseInsensitive);
        });
    const auto size = static_cast<sqlite3_uint64>(file.size());
    auto* copy = static_cast<unsigned char*>(sqlite3_malloc64(size));
    std::copy(file.cbegin(), file.cend(), copy);
    sqlite3_deserialize(handle_, "main", copy, file.size(), file.size(),
                        SQLITE_DESERIALIZE_FREEONCLOSE | SQLITE_DESERIALIZE_READONLY);
  }
  ~Content() { sqlite3_close(handle_); }
  Content(const Content&) = delete;
  Content& operator=(const Content&) = delete;

  /// Each row as the texts of its columns, bars between.
  QList<QByteArray> Rows(const QByteArray& sql, QString* error) const {
    QList<QByteArray> rows;
    sqlite3_stmt* statement = nullptr;
    int result = sqlite3_prepare_v2(handle_, sql, -1, &statement, nullptr);
    if (result == SQLITE_OK) {
      while ((result = sqlite3_step(statement)) == SQLITE_ROW) rows << RowOf(statement);
    }
    sqlite3_finalize(statement);
    if (result != SQLITE_DONE) *error = QString::fromUtf8(sqlite3_errmsg(handle_));
    return rows;
  }

 private:
  static QByteArray RowOf(sqlite3_stmt* statement) {
    QByteArray row;
    for (int column = 0; column < sqlite3_column_count(statement); ++column) {
      const int type = sqlite3_column_type(statement, column);
      row += '|';
      const QByteArray bytes(static_cast<const char*>(sqlite3_column_blob(statement, column)),
                             sqlite3_column_bytes(statement, column));
      row += type == SQLITE_NULL ? "null" : type == SQLITE_BLOB ? bytes.toHex() : bytes;
    }
    return row;
  }

  sqlite3* handle_ = nullptr;
};

}  // namespace

QByteArray Dump(const QByteArray& file, QString* error) {
  const Content content(file);
  const QList<QByteArray> verdict = content.Rows("PRAGMA integrity_check", error);
  if (error->isEmpty() && verdict != QList<QByteArray>{"|ok"}) *error = QString::fromUtf8(verdict.join('\n'));
  QByteArray dump;
  for (const QByteArray& line : content.Rows("SELECT type, name, sql FROM sqlite_master ORDER BY type, name", error))
    dump += line + '\n';
  for (QByteArray table : content.Rows(
           "SELECT name FROM sqlite_master WHERE type = 'table' AND name <> 'sqlite_sequence' ORDER BY name", error)) {
    table.remove(0, 1);
    QByteArray columns = "*";
    if (table == "tblMisc") {
      columns = content
                    .Rows(
                        "SELECT group_concat('[' || name || ']') FROM pragma_table_info('tblMisc') WHERE name NOT IN "
                        "('LastSystemID', 'LastJobID', 'LastCustomerID', 'LastComponentID')",
                        error)
                    .value(0)
                    .mid(1);
    }
    for (const QByteArray& row : content.Rows("SELECT " + columns + " FROM [" + table + "] ORDER BY rowid", error))
      dump += table + row + '\n';
  }
  return dump;
}

QByteArray WorkOf(const QByteArray& dump) {
  QByteArray work;
  for (const QByteArray& row : dump.split('\n'))
    if (!row.startsWith("loft_operations|")) work += row + '\n';
  return work;
}

QByteArray OperationsOf(const QByteArray& dump) {
  QByteArray operations;
  for (const QByteArray& row : dump.split('\n')) {
    const QList<QByteArray> fields = row.split('|');
    constexpr qsizetype kName = 2;
    constexpr qsizetype kUndone = 6;
    if (fields.first() == "loft_operations" && !fields.value(kName).isEmpty())
      operations += fields.value(kName) + '|' + fields.value(kUndone) + '\n';
  }
  return operations;
}

QString Difference(const QByteArray& from, const QByteArray& to) {
  QList<QByteArray> gone = from.split('\n');
  QString text;
  for (const QByteArray& row : to.split('\n'))
    if (!gone.removeOne(row)) text += u"\n    +"_s + QString::fromUtf8(row.left(150));
  for (const QByteArray& row : std::as_const(gone)) text += u"\n    -"_s + QString::fromUtf8(row.left(150));
  return text;
}
