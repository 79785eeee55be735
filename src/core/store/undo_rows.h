#pragma once
#include <QByteArray>

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
