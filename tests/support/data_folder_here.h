#pragma once
#include <QDir>

#include "core/data_folder.h"
#include "support/temp_folder.h"

/// Makes a folder the program's data folder, with "support" in it, until this goes.
class DataFolderHere {
 public:
  explicit DataFolderHere(const TempFolder& folder) : before_(DataPath) {
    folder.MakeFolder(QStringLiteral("support"));
    DataPath = folder.Path() + QDir::separator();
  }
  ~DataFolderHere() { DataPath = before_; }
  DataFolderHere(const DataFolderHere&) = delete;
  DataFolderHere& operator=(const DataFolderHere&) = delete;

 private:
  QString before_;
};
