#pragma once
#include <QList>
#include <QString>

#include "core/store/connection.h"
#include "core/store/recordset.h"
#include "core/store/statement.h"
#include "core/value.h"

/// The thin layer through which everything reaches the database. Statements are text in the Jet dialect; values are
/// joined in as they stand, and none is escaped. A failure never reaches the caller: it shows the routine's box and the
/// caller receives the result as it stood. Where columns are given, they tell the table.

/// One field of the first record with `keyField` = `keyValue`. A missing record reads empty; a null text field reads
/// the empty text, a null other field 0.
Value GetValueFromTable(const QString& tableName, const QString& keyField, const Value& keyValue,
                        const QString& returnField);
/// The same with the key between single quotes.
Value GetValueFromTableString(const QString& tableName, const QString& keyField, const QString& keyValue,
                              const QString& returnField);
Value GetValueFromTable(const Column& keyField, const Value& keyValue, const Column& returnField);
/// One field of the first record of a statement or of a bare table name. A null reads empty.
Value GetValueFromTableBySQL(const QString& mySQL, const QString& returnField);

/// One field of all records with `keyField` = `keyValue`. No record gives the one element 0, as one record holding 0
/// does: test the first element. More than 32,767 records end in the failure box.
void GetRecordsFromTable(const QString& tableName, const QString& keyField, const Value& keyValue,
                         const QString& returnField, QList<int>& array);
void GetRecordsFromTable(const Column& keyField, const Value& keyValue, const Column& returnField, QList<int>& array);
/// One field of all records of a statement. No record gives one empty element. A null gives the empty text when the
/// first column of the statement is a memo, 0 otherwise.
void GetRecordsFromTableBySQL(const QString& mySQL, const QString& returnField, QList<Value>& array);

/// The number of records of a table.
int GetNumberRecordsInTable(const QString& tableName);
/// The number of records with `keyField` = `keyValue`. Traps nothing: throws Failure.
int GetNumberRecords(const QString& tableName, const QString& keyField, const Value& keyValue);
int GetNumberRecords(const Column& keyField, const Value& keyValue);
/// The number of records of a statement; empty when there are none.
Value GetNumberRecordsComplex(const QString& mySQL);

/// Sets a field in every record with `keyField` = `keyValue`; no match is no error.
void UpdateTable(const QString& tableName, const QString& fieldName, const Value& newValue, const QString& keyField,
                 const Value& keyValue);
void UpdateTable(const Column& field, const Value& newValue, const Column& keyField, const Value& keyValue);
/// Runs an action statement.
void UpdateTableBySQL(const QString& mySQL);
void DeleteRecordsFromTable(const QString& tableName, const QString& keyField, const Value& keyValue);
void DeleteRecordsFromTable(const Column& keyField, const Value& keyValue);
void DeleteRecordsFromTableBySQL(const QString& mySQL);
/// The same of rows that a condition picks.
void DeleteRows(const Condition& which);
void UpdateRows(const Column& column, const Value& newValue, const Condition& which);
/// In every row of its table.
void UpdateRows(const Column& column, const Value& newValue);
/// Empties a table, after a question when `ask` is set. Traps nothing: throws Failure.
void DeleteAllRecords(const QString& tableName, bool ask);

/// Takes the default mark from every location.
void TurnOffAllLocationDefaults();
