#pragma once
#include <QByteArray>
#include <QString>

/// All that a database file holds, one row to a line, in an order that hangs on the content alone; without the ids that
/// tblMisc remembers of what was shown last, and without the counters of ids: one that was given out and not used is
/// given out again or not. `error` is set for a file that is not sound.
QByteArray Dump(const QByteArray& file, QString* error);

/// The rows of a dump without the record of operations.
QByteArray WorkOf(const QByteArray& dump);
/// What the record of operations names: the operations without upkeep, and whether they are taken back.
QByteArray OperationsOf(const QByteArray& dump);

/// The rows that are gone and new, for a person.
QString Difference(const QByteArray& from, const QByteArray& to);
