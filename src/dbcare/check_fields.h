#pragma once
#include <QString>

/// Brings any database file to the present schema by adding what it lacks; no row is lost.

/// Walks the whole schema and adds missing tables and fields, announcing each when `showMessages` is set. A failure
/// shows its box and ends the walk; the next start tries again.
void CheckAllFields(bool showMessages);

/// True when the table can be opened; otherwise, with `showMessages`, a box says that it is being added.
bool TableExists(const QString& tableName, bool showMessages);
/// True when the table has the field; otherwise adds it and returns false.
bool FieldExists(int fieldSize, bool showMessages, const QString& tableName, const QString& myField, int fieldType);
/// Adds a field, with a box first when `showMessages` is set. Throws Failure.
void AddField(const QString& tableName, const QString& myField, int fieldType, bool showMessages, int fieldSize);

/// One box that lists the components whose type was lost (type 0), or none.
void ReportLostComponentTypes();

/// Components whose rig has gone lose their reference to it.
void FreeComponentsOfVanishedRigs();
