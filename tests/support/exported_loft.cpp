#include "support/exported_loft.h"

#include <QDir>
#include <QDirIterator>

#include "core/files.h"
#include "core/store/access.h"
#include "core/store/database.h"
#include "dbcare/check_fields.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

void MakeDatabaseFile(const QString& path, const QString& lastName) {
  ReleaseDatabaseFile();
  const QString before = std::exchange(ConnectionString, ConnectionStringFor(path));
  Database::CreateFile(path);
  CheckAllFields(false);
  UpdateTableBySQL(u"insert into tblPeople (LastName) values ('%1')"_s.arg(lastName));
  UpdateTableBySQL(u"insert into tblModels (Name, TypeID) values ('Raven', 3)"_s);
  ReleaseDatabaseFile();
  ConnectionString = before.isEmpty() ? ConnectionStringFor(path) : before;
}

QStringList CustomersIn(const QString& path) {
  return RowsOfFile(path, u"SELECT LastName FROM tblPeople ORDER BY ID"_s);
}

QString MakeExport(const TempFolder& folder, const QString& name) {
  QString path = folder.MakeFolder(name);
  MakeDatabaseFile(path + u"/loftkeep.mdb"_s, u"New"_s);
  folder.Write(name + u"/loftkeep.lock"_s, "another computer's");
  folder.Write(name + u"/photos/hires/c1.jpg"_s, "new and large");
  folder.Write(name + u"/photos/thumbnail/c1.jpg"_s, "new and small");
  folder.Write(name + u"/backup/db00001.mdb"_s, "their first");
  folder.Write(name + u"/backup/db00002.mdb"_s, "their second");
  folder.Write(name + u"/support/address.txt"_s, "Ann's Loft\r\n");
  folder.Write(name + u"/support/Version.txt"_s, "010\r\n");
  return path;
}

QMap<QString, QByteArray> FilesBelow(const QString& folder) {
  QMap<QString, QByteArray> files;
  QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
  while (entries.hasNext()) {
    const QString path = entries.next();
    files.insert(QDir(folder).relativeFilePath(path), entries.fileInfo().isDir() ? "(folder)" : ReadFile(path));
  }
  return files;
}
