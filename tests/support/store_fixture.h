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
      const QString name = QString::fromLatin1(table.name);
      CreateTable(name, QString::fromLatin1(table.key.name), table.key.type, table.autoIncrement);
      for (const SchemaField& field : table.fields)
        if (qstricmp(field.name, table.key.name) != 0)
          AppendField(name, QString::fromLatin1(field.name), field.type, field.size);
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
