#pragma once
#include <QByteArray>
#include <QString>

#include <vector>

#include "core/store/changes.h"

struct sqlite3;

/// What the running transaction writes, row by row, as SQLite tells it just before it does. A row that gets the values
/// it had is no change, nor are the ids that `tblMisc` remembers of what was shown last.
///
/// The rows are kept as bytes: kind, table (its place in TableNames), rowid, how many columns (16 bits), then values:
/// of an insert the new ones of all columns, of a deletion the old ones, of an update of each column that differs its
/// place (16 bits), its old and its new value.
class ChangeLog {
 public:
  enum class Kind : char { Insert = 1, Delete, Update };

  /// The table whose columns, by place, are only memories of what was shown.
  void SetRemembered(const QByteArray& table, std::vector<int> columns);
  bool KnowsRemembered() const { return !rememberedIn_.isEmpty(); }
  bool IsRemembered(const QByteArray& table, int column) const;
  /// SQLite's notice, from within its preupdate hook.
  void Row(sqlite3* handle, int what, const char* table, qint64 oldRow, qint64 newRow);

  /// A place to go back to when the statement that follows fails.
  struct Mark {
    qsizetype bytes = 0;
    int rows = 0;
  };
  Mark Here() const { return {bytes_.size(), rows_}; }
  void GoBackTo(const Mark& mark);
  /// Forgets all; for a transaction that has ended.
  void Clear();
  /// The file's tables have been altered: they are met anew.
  void ForgetTables() {
    lastName_ = nullptr;
    rememberedIn_.clear();
  }

  const Changes& Tables() const { return changes_; }
  int RowCount() const { return rows_; }
  const QByteArray& Bytes() const { return bytes_; }
  /// The names of the tables that the bytes speak of, by place.
  const std::vector<QByteArray>& TableNames() const { return names_; }

 private:
  int PlaceOf(const char* table);
  qsizetype PutHead(Kind kind, int table, qint64 rowid, int columns);

  QByteArray bytes_;
  int rows_ = 0;
  Changes changes_;
  std::vector<QByteArray> names_;
  const char* lastName_ = nullptr;  // SQLite hands out the same pointer for the same table
  int lastPlace_ = 0;
  QByteArray rememberedIn_;
  std::vector<int> remembered_;
  bool inRemembered_ = false;  // the table met last is the one that remembers
};

/// The table of the record itself, whose rows no log keeps.
inline constexpr char kUndoTable[] = "loft_operations";
