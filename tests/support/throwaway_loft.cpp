#include "support/throwaway_loft.h"

#include <QUrl>
#include <QtTest>

#include <sqlite3.h>

#include "core/default_rows.h"
#include "core/failure.h"
#include "core/store/connection.h"
#include "core/store/database.h"
#include "core/store/operation.h"
#include "core/store/recordset.h"
#include "dbcare/check_fields.h"

using namespace Qt::StringLiterals;

namespace {

/// A connection of the test's own, so that it sees what lies in the file and not what the program remembers.
class PlainConnection {
 public:
  explicit PlainConnection(const QString& path) {
    SettleConnection();
    // What an operation that stands has written is not in the file yet; its lock is passed over.
    const bool inOperation = OperationScope::AnyStands();
    if (!inOperation && !ConnectionIsOpen) ReleaseDatabaseFile();
    const QByteArray name = inOperation ? QUrl::fromLocalFile(path).toEncoded() + "?immutable=1" : path.toUtf8();
    if (sqlite3_open_v2(name, &handle_, SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, nullptr) != SQLITE_OK)
      qFatal("Can't open %s", qUtf8Printable(path));
  }
  ~PlainConnection() { sqlite3_close(handle_); }
  PlainConnection(const PlainConnection&) = delete;
  PlainConnection& operator=(const PlainConnection&) = delete;

  QStringList Rows(const QString& sql, const QString& prefix = QString()) const {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(handle_, sql.toUtf8(), -1, &statement, nullptr) != SQLITE_OK)
      qFatal("%s: %s", qUtf8Printable(sql), sqlite3_errmsg(handle_));
    QStringList rows;
    while (sqlite3_step(statement) == SQLITE_ROW) {
      QStringList row;
      if (!prefix.isEmpty()) row << prefix;
      for (int column = 0; column < sqlite3_column_count(statement); ++column) {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
        row << (text ? QString::fromUtf8(text) : u"null"_s);
      }
      rows << row.join(u'|');
    }
    sqlite3_finalize(statement);
    return rows;
  }

 private:
  sqlite3* handle_ = nullptr;
};

/// The file of an empty loft; made once, since each of its many schema changes waits for the disk.
QByteArray EmptyLoft() {
  const TempFolder folder;
  const QString file = folder / u"loftkeep.mdb"_s;
  ReleaseDatabaseFile();
  Database::CreateFile(file);
  ConnectionString = ConnectionStringFor(file);
  Bracket bracket;
  CheckAllFields(false);
  CreateDefaultRows();
  bracket.Close();
  ReleaseDatabaseFile();
  return folder.Read(u"loftkeep.mdb"_s);
}

}  // namespace

QStringList RowsOfFile(const QString& path, const QString& sql) { return PlainConnection(path).Rows(sql); }

ThrowAwayLoft::ThrowAwayLoft() : connectionBefore_(ConnectionString) {
  static const QByteArray empty = EmptyLoft();
  ReleaseDatabaseFile();
  folder_.Write(u"loftkeep.mdb"_s, empty);
  ConnectionString = ConnectionStringFor(DatabaseFile());
}

ThrowAwayLoft::~ThrowAwayLoft() {
  KeepConnectionOpen = false;
  if (ConnectionIsOpen) ConnectionClose();
  ReleaseDatabaseFile();
  ConnectionString = connectionBefore_;
}

int ThrowAwayLoft::Add(const QString& table, const std::vector<std::pair<QString, Value>>& fields) const {
  Bracket bracket;
  int id = 0;
  {
    Recordset rows(table);
    rows.AddNew();
    for (const auto& [field, value] : fields) rows.Set(field, value);
    rows.Update();
    for (const Field& field : rows.Fields())
      if (field.name.compare("ID"_L1, Qt::CaseInsensitive) == 0) id = rows[field.name].ToInt();
  }
  bracket.Close();
  return id;
}

void ThrowAwayLoft::Run(const QString& statement) const {
  Bracket bracket;
  OpenDatabase().Execute(statement);
  bracket.Close();
}

void ThrowAwayLoft::ChangeSchema(const QByteArray& sql) const {
  Bracket bracket;
  OpenDatabase().ChangeSchema(sql);
  bracket.Close();
}

QStringList ThrowAwayLoft::Rows(const QString& sql) const { return PlainConnection(DatabaseFile()).Rows(sql); }

QStringList ThrowAwayLoft::Snapshot() const {
  const PlainConnection plain(DatabaseFile());
  QStringList rows;
  for (const QString& table : plain.Rows(u"select name from sqlite_master where type = 'table' and name not like "
                                         "'sqlite%' and name not like 'loft%' order by name"_s))
    rows += plain.Rows(u"select * from [%1] order by rowid"_s.arg(table), table);
  return rows;
}

QStringList ThrowAwayLoft::ChangesSince(const QStringList& snapshot) const {
  QStringList changes;
  QStringList gone = snapshot;
  QStringList added;
  for (const QString& row : Snapshot())
    if (!gone.removeOne(row)) added << u'+' + row;
  for (const QString& row : gone) changes << u'-' + row;
  return changes + added;
}

QStringList ThrowAwayLoft::TouchedSince(const QStringList& snapshot) const {
  QStringList touched;
  for (const QString& change : ChangesSince(snapshot)) touched << change.section(u'|', 0, 1);
  touched.sort();
  return touched;
}
