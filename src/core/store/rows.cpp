#include "core/store/rows.h"

#include <sqlite3.h>

#include "core/store/connection.h"
#include "core/store/recordset.h"

using namespace Qt::StringLiterals;

void EditRow(Recordset& row, const RowValues& values) {
  for (const auto& [column, value] : values) row.Set(column, value);
  row.Update();
}

int AddRow(const Table& table, const RowValues& values) {
  Database& database = OpenDatabase();
  const std::vector<Field>& fields = database.FieldsOf(table);
  QStringList names;
  for (const auto& [column, value] : values) names << u'[' + QString(column) + u']';
  database.FreezeRecordsets();
  sqlite3_stmt* insert =
      database.Plain(u"INSERT INTO [%1] (%2) VALUES (%3)"_s
                         .arg(QString(table), names.join(u", "_s), QStringList(names.size(), u"?"_s).join(u','))
                         .toUtf8());
  int parameter = 0;
  for (const auto& [column, value] : values)
    BindValue(insert, ++parameter, value, fields[static_cast<size_t>(ColumnOfField(fields, column))].type);
  database.Step(insert);
  sqlite3_reset(insert);
  return static_cast<int>(database.LastInsertId());
}

bool EditRow(const Condition& which, const RowValues& values) {
  Recordset rows(which);
  if (!RecordsetHasRows(rows)) return false;
  EditRow(rows, values);
  return true;
}

bool DeleteRow(const Condition& which) {
  Recordset rows(which);
  if (!RecordsetHasRows(rows)) return false;
  rows.Delete();
  return true;
}
