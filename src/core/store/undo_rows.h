#pragma once
#include <QByteArray>

#include "core/store/changes.h"

class ChangeLog;
class Database;

/// The rows that an operation wrote, as its record keeps them: the log's bytes with the names of its tables before
/// them.

QByteArray PackRows(const ChangeLog& log);

/// Gives the rows the values that they had before, the last one first. Throws Failure with what is in the way: a row
/// that was changed since, in a column that this would overwrite.
void TakeRowsBack(Database& database, const QByteArray& packed);
/// Gives the rows the values that they had after, by the same rule.
void WriteRowsAgain(Database& database, const QByteArray& packed);

/// False when each row is in the end what it was before.
bool RowsMakeADifference(const QByteArray& packed);
/// Whether the rows are in the file, of which either all are or none; false when they make no difference.
bool RowsStand(Database& database, const QByteArray& packed);
/// The tables of the rows.
Changes TablesOf(const QByteArray& packed);
