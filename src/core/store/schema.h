#pragma once
#include <QString>

#include <vector>

/// The tables and fields of the database, in the order in which an older file is checked against them.
/// The file has no foreign keys, no unique indexes and no cascades: all referential care is in the routines.

struct SchemaField {
  const char* name;
  int type;      ///< ADO's number, see jet::FieldType
  int size = 0;  ///< of a text, 0 for the store's default of 255
};

struct SchemaTable {
  const char* name;
  /// The field with which a missing table is created; the others follow by the field check.
  SchemaField key;
  bool autoIncrement;
  std::vector<SchemaField> fields;
};

const std::vector<SchemaTable>& Schema();

/// Creates a table with one field. Failure: box titled "Sub CreateTable()", and the database stays as it was.
void CreateTable(const QString& table, const QString& field, int type, bool autoIncrement);

/// Adds a column, through the shared connection. Throws Failure.
void AppendField(const QString& table, const QString& field, int type, int size);

/// Makes the indexes of the ids that are looked up; those that stand already stay. Throws Failure.
void CreateIndexes();
