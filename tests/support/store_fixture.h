#pragma once
#include "core/store/access.h"
#include "core/store/database.h"
#include "core/store/schema.h"
#include "support/temp_folder.h"

/// A throw-away database with the whole schema and no rows, for tests of the store itself.
class StoreFixture {
 public:
  StoreFixture() {
    Database::CreateFile(Path());
    ConnectionString = ConnectionStringFor(Path());
    Bracket bracket;
    for (const SchemaTable& table : Schema()) {
      CreateTable(table.table, table.key, table.key.type, table.autoIncrement);
      for (const Column& column : table.columns)
        if (column.name != table.key.name) AppendField(table.table, column, column.type, column.size);
    }
    CreateIndexes();
  }
  ~StoreFixture() {
    KeepConnectionOpen = false;
    if (ConnectionIsOpen) ConnectionClose();
    ReleaseDatabaseFile();
    ConnectionString.clear();
  }
  QString Path() const { return folder_ / "loftkeep.mdb"; }
  const TempFolder& Folder() const { return folder_; }

 private:
  TempFolder folder_;
};
