#include "invariants/file_rows.h"

#include <sqlite3.h>

#include "core/store/connection.h"
#include "core/store/database.h"

QStringList ReadRows(const QByteArray& sql) {
  Bracket bracket;
  Database& database = OpenDatabase();
  sqlite3_stmt* statement = database.Plain(sql);
  QStringList rows;
  while (database.Step(statement)) {
    QStringList fields;
    for (int column = 0; column < sqlite3_column_count(statement); ++column)
      fields << QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, column)));
    rows << fields.join(QChar(u'|'));
  }
  sqlite3_reset(statement);
  bracket.Close();
  return rows;
}

QList<int> IdsOf(const char* table) {
  QList<int> ids;
  for (const QString& row : ReadRows(QByteArray("SELECT ID FROM ") + table + " ORDER BY ID")) ids << row.toInt();
  return ids;
}
