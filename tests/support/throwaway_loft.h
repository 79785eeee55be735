#pragma once
#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

#include "core/value.h"
#include "support/temp_folder.h"

/// What a connection of the test's own reads from a database file, so that it sees what lies in the file and not what
/// the program remembers; see ThrowAwayLoft::Rows.
QStringList RowsOfFile(const QString& path, const QString& sql);

/// An empty loft with the program's own rows, in a database file that goes with the test. The shared connection points
/// to it for its lifetime.
///
///     ThrowAwayLoft loft;
///     const int ann = loft.Add("tblPeople", {{"FirstName", "Ann"}, {"LastName", "Jones"}});
///     const QStringList before = loft.Snapshot();
///     SetDefaultRigger(ann);
///     QCOMPARE(loft.ChangesSince(before), ...);
class ThrowAwayLoft {
 public:
  ThrowAwayLoft();
  ~ThrowAwayLoft();
  ThrowAwayLoft(const ThrowAwayLoft&) = delete;
  ThrowAwayLoft& operator=(const ThrowAwayLoft&) = delete;

  /// The folder of the loft; its database is "loftkeep.mdb" in it.
  const TempFolder& Folder() const { return folder_; }
  QString DatabaseFile() const { return folder_ / QStringLiteral("loftkeep.mdb"); }

  /// Adds a row; fields that are not named stay null. Its ID, or 0 in a table without one.
  int Add(const QString& table, const std::vector<std::pair<QString, Value>>& fields) const;
  /// Runs an action statement in the program's own dialect.
  void Run(const QString& statement) const;
  /// Damages the file on purpose, in SQLite's own dialect: "drop table tblRig".
  void ChangeSchema(const QByteArray& sql) const;

  /// What a second connection reads from the file, one text to a row, its fields between bars: dates as their days,
  /// money as ten-thousandths, true as -1, null as "null". The statement is in SQLite's own dialect.
  QStringList Rows(const QString& sql) const;
  /// Every row of every table but the record of operations: "tblPeople|1|...".
  QStringList Snapshot() const;
  /// The rows that are new ("+tblRig|...") or gone ("-tblRig|...") since a snapshot; a changed row is both.
  QStringList ChangesSince(const QStringList& snapshot) const;
  /// The same with the first field alone, sorted: "+tblRig|3".
  QStringList TouchedSince(const QStringList& snapshot) const;

 private:
  TempFolder folder_;
  QString connectionBefore_;
};
