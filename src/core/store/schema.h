#pragma once
#include <QString>

#include <vector>

#include "core/store/tables.h"

/// The tables and columns of the database, in the order in which an older file is checked against them.
/// The file has no foreign keys, no unique indexes and no cascades: all referential care is in the routines.

struct SchemaTable {
  Table table;
  /// The column with which a missing table is created; the others follow by the field check.
  Column key;
  bool autoIncrement;
  std::vector<Column> columns;
};

const std::vector<SchemaTable>& Schema();

/// Creates a table with one field. Failure: box titled "Sub CreateTable()", and the database stays as it was.
void CreateTable(const QString& table, const QString& field, int type, bool autoIncrement);

/// Adds a column, through the shared connection. Throws Failure.
void AppendField(const QString& table, const QString& field, int type, int size);

/// Makes the indexes of the ids that are looked up; those that stand already stay. Throws Failure.
void CreateIndexes();
