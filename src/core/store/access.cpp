#include "core/store/access.h"

#include <QStringBuilder>

#include <limits>

#include "core/prompts.h"
#include "core/store/database.h"
#include "core/store/operation.h"
#include "core/trap.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kBString = 8;  // ADO's number of a type that no field of the schema has, kept in the rules for nulls
constexpr qsizetype kGrowth = 25;

QString WhereStatement(const QString& tableName, const QString& keyField, const QString& key, const QString& what) {
  return QString("Select "_L1 % what % " from "_L1 % tableName % " where "_L1 % keyField % " = "_L1 % key);
}

/// Lines behind the description of an error, each ended by a line break.
QString Details(const QStringList& lines) { return Lines(lines) + u'\n'; }

QString LookupDetails(const QString& statement, const QString& tableName, const QString& keyField, const QString& key,
                      const QString& returnField) {
  return Details({QString(), u"SQL = "_s + statement, QString(), u"Looking in table: "_s + tableName,
                  u"Where "_s + keyField + u" = "_s + key, QString(), u"Returning field: "_s + returnField});
}

QString StatementDetails(const QString& statement, const QString& returnField) {
  return Details({QString(), u"SQL = "_s + statement, QString(), u"Returning field: "_s + returnField});
}

QString ActionDetails(const QString& statement) {
  return Details({u"The following SQL statement caused on error"_s, QString(), u"SQL = "_s + statement});
}

bool IsTextType(int type) { return type == kBString || type == jet::kText || type == jet::kMemo; }

Value ReadOne(const QString& statement, const QString& returnField, bool defaultsForNull) {
  Bracket bracket;
  Value result;
  int type = 0;
  if (OpenDatabase().ReadFirst(statement, returnField, result, type) && result.IsNull()) {
    if (!defaultsForNull)
      result = Value();
    else
      result = IsTextType(type) ? Value(QString()) : Value(0);
  }
  bracket.Close();
  return result;
}

Value ReadByKey(const QString& routine, const QString& tableName, const QString& keyField, const QString& key,
                const QString& shownKey, const QString& returnField) {
  const QString statement = WhereStatement(tableName, keyField, key, returnField);
  Value result;
  TrapWith(
      routine, [&] { result = ReadOne(statement, returnField, true); },
      [&] { return LookupDetails(statement, tableName, keyField, shownKey, returnField); });
  return result;
}

/// Fills an array the way it has always grown: bounds 0 to 25 first, 25 more whenever the index passes them, and cut to
/// the records at the end. A failure leaves it as far as it got.
template <typename Element, typename Convert>
void ReadColumnInto(const QString& statement, const QString& returnField, QList<Element>& array, Convert convert) {
  array = QList<Element>(kGrowth + 1);
  Bracket bracket;
  qsizetype index = 0;
  {
    Recordset records(statement);
    if (RecordsetHasRows(records)) {
      const int column = records.ColumnOf(returnField);
      const int firstType = records.FieldType(0);
      for (; !records.Eof(); records.MoveNext()) {
        Value value = records.At(column);
        if (value.IsNull()) value = firstType == kBString || firstType == jet::kMemo ? Value(QString()) : Value(0);
        array[index] = convert(value);
        if (index == std::numeric_limits<qint16>::max()) throw Failure(u"Overflow"_s);
        ++index;
        if (index >= array.size()) array.resize(index + kGrowth + 1);
      }
    }
  }
  bracket.Close();
  array.resize(qMax<qsizetype>(index, 1));
}

Value CountOf(const QString& statement) {
  Bracket bracket;
  Value count;
  {
    Recordset records(statement);
    if (RecordsetHasRows(records)) count = records.RecordCount();
  }
  bracket.Close();
  return count;
}

void Execute(const QString& routine, const QString& statement) {
  OperationWith(
      routine, [&] { OpenDatabase().Execute(statement); }, [&] { return ActionDetails(statement); },
      OnFailure::LeaveConnectionOpen);
}

}  // namespace

Value GetValueFromTable(const QString& tableName, const QString& keyField, const Value& keyValue,
                        const QString& returnField) {
  const QString key = keyValue.ToText();
  return ReadByKey(u"Function GetValueFromTable "_s, tableName, keyField, key, key, returnField);
}

Value GetValueFromTable(const Column& keyField, const Value& keyValue, const Column& returnField) {
  return GetValueFromTable(keyField.table.toString(), keyField, keyValue, returnField);
}

Value GetValueFromTableString(const QString& tableName, const QString& keyField, const QString& keyValue,
                              const QString& returnField) {
  return ReadByKey(u"Function GetValueFromTableString "_s, tableName, keyField, u'\'' + keyValue + u'\'', keyValue,
                   returnField);
}

Value GetValueFromTableBySQL(const QString& mySQL, const QString& returnField) {
  Value result;
  TrapWith(
      u"Function GetValueFromTableBySQL "_s, [&] { result = ReadOne(mySQL, returnField, false); },
      [&] { return StatementDetails(mySQL, returnField); });
  return result;
}

void GetRecordsFromTable(const QString& tableName, const QString& keyField, const Value& keyValue,
                         const QString& returnField, QList<int>& array) {
  const QString key = keyValue.ToText();
  const QString statement = WhereStatement(tableName, keyField, key, returnField);
  TrapWith(
      u"Function GetRecordsFromTable "_s,
      [&] { ReadColumnInto(statement, returnField, array, [](const Value& value) { return value.ToInt(); }); },
      [&] { return LookupDetails(statement, tableName, keyField, key, returnField); });
}

void GetRecordsFromTable(const Column& keyField, const Value& keyValue, const Column& returnField, QList<int>& array) {
  GetRecordsFromTable(keyField.table.toString(), keyField, keyValue, returnField, array);
}

void GetRecordsFromTableBySQL(const QString& mySQL, const QString& returnField, QList<Value>& array) {
  TrapWith(
      u"Function GetRecordsFromTableBySQL"_s,
      [&] { ReadColumnInto(mySQL, returnField, array, [](const Value& value) { return value; }); },
      [&] { return StatementDetails(mySQL, returnField); });
}

int GetNumberRecordsInTable(const QString& tableName) {
  int count = 0;
  TrapWith(
      u"Function GetNumberRecordsInTable(TableName As String)"_s, [&] { count = CountOf(tableName).ToInt(); },
      [&] { return Details({u"TableName = "_s + tableName}); }, Icon::Information);
  return count;
}

int GetNumberRecords(const QString& tableName, const QString& keyField, const Value& keyValue) {
  return CountOf(WhereStatement(tableName, keyField, keyValue.ToText(), u"*"_s)).ToInt();
}

int GetNumberRecords(const Column& keyField, const Value& keyValue) {
  return GetNumberRecords(keyField.table.toString(), keyField, keyValue);
}

Value GetNumberRecordsComplex(const QString& mySQL) {
  Value count;
  TrapWith(
      u"Function GetNumberRecordsComplex(MySQL As String)"_s, [&] { count = CountOf(mySQL); },
      [&] { return Details({u"SQL = "_s + mySQL}); }, Icon::Information);
  return count;
}

void UpdateTable(const QString& tableName, const QString& fieldName, const Value& newValue, const QString& keyField,
                 const Value& keyValue) {
  const QString statement = WhereStatement(tableName, keyField, keyValue.ToText(), u"*"_s);
  OperationWith(
      u"Sub UpdateTable()"_s,
      [&] {
        for (Recordset& record : Rows(statement)) {
          record.Set(fieldName, newValue);
          record.Update();
        }
      },
      [&] { return ActionDetails(statement); }, OnFailure::LeaveConnectionOpen);
}

void UpdateTable(const Column& field, const Value& newValue, const Column& keyField, const Value& keyValue) {
  UpdateTable(field.table.toString(), field, newValue, keyField, keyValue);
}

void UpdateTableBySQL(const QString& mySQL) { Execute(u"Sub UpdateTableBySQL(MySQL)"_s, mySQL); }

void DeleteRecordsFromTable(const QString& tableName, const QString& keyField, const Value& keyValue) {
  Execute(u"Sub DeleteRecordsFromTable(MySQL)"_s,
          u"Delete * from "_s + tableName + u" where "_s + keyField + u" = "_s + keyValue.ToText());
}

void DeleteRecordsFromTable(const Column& keyField, const Value& keyValue) {
  DeleteRecordsFromTable(keyField.table.toString(), keyField, keyValue);
}

void DeleteRecordsFromTableBySQL(const QString& mySQL) { Execute(u"Sub DeleteRecordsFromTableBySQL(MySQL)"_s, mySQL); }

void DeleteRows(const Condition& which) {
  DeleteRecordsFromTableBySQL(u"Delete * from "_s % which.TableName() % u" where "_s % which.Text());
}

namespace {

QString Setting(const Column& column, const Value& newValue) {
  return u"Update "_s % column.table % u" set "_s % column.name % u" = "_s % Literal(newValue);
}

}  // namespace

void UpdateRows(const Column& column, const Value& newValue) { UpdateTableBySQL(Setting(column, newValue)); }

void UpdateRows(const Column& column, const Value& newValue, const Condition& which) {
  UpdateTableBySQL(Setting(column, newValue) + u" where "_s + which.Text());
}

void DeleteAllRecords(const QString& tableName, bool ask) {
  if (ask && !AskYes(u"Delete "_s + tableName + u"?"_s, kProgramTitle)) return;
  Bracket bracket;
  OpenDatabase().Execute(u"delete * from "_s + tableName);
  bracket.Close();
}

void TurnOffAllLocationDefaults() {
  Trap(u"Sub TurnOffAllLocationDefaults"_s, [] {
    Bracket bracket;
    for (Recordset& location : Rows(tblLocation::kTable)) {
      location.Set(tblLocation::Default, false);
      location.Update();
    }
    bracket.Close();
  });
}
