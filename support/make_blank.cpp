#include <QFile>

#include <cstdio>
#include <exception>

#include "core/store/connection.h"
#include "core/store/database.h"
#include "dbcare/check_fields.h"

/// make_blank FILE: writes the empty database that a new loft starts from. A box has nobody to answer it here, so
/// whatever would show one ends the program with its text.
int main(int argc, char** argv) try {
  if (argc != 2) {
    std::fputs("usage: make_blank FILE\n", stderr);
    return 2;
  }
  const QString path = QFile::decodeName(argv[1]);
  QFile::remove(path);
  Database::CreateFile(path);
  ConnectionString = ConnectionStringFor(path);
  CheckAllFields(false);
  ReleaseDatabaseFile();
  QFile::remove(path + QStringLiteral("-journal"));  // the store leaves it behind, empty
  return 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "make_blank: %s\n", error.what());
  return 1;
}
