#pragma once
#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

/// What the program's own connection reads, in SQLite's dialect; each statement is prepared once. The fields of a row
/// between bars.
QStringList ReadRows(const QByteArray& sql);
/// The ids of a table, in their order.
QList<int> IdsOf(const char* table);
