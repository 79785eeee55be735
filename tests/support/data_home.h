#pragma once
#include <QDir>

#include "core/data_folder.h"
#include "core/store/connection.h"
#include "support/temp_folder.h"

/// A machine without a data folder: the data home and the working folder are throw-away ones for its lifetime.
class DataHome {
 public:
  DataHome() : before_(QDir::currentPath()) {
    QDir::setCurrent(folder_.MakeFolder(QStringLiteral("work")));
    qputenv("XDG_DATA_HOME", folder_.MakeFolder(QStringLiteral("home")).toUtf8());
    SetDataFolder();
  }
  ~DataHome() {
    KeepConnectionOpen = false;
    if (ConnectionIsOpen) ConnectionClose();
    ReleaseDatabaseFile();
    ConnectionCount = 0;
    QDir::setCurrent(before_);
  }
  DataHome(const DataHome&) = delete;
  DataHome& operator=(const DataHome&) = delete;

  const TempFolder& Folder() const { return folder_; }

 private:
  TempFolder folder_;
  QString before_;
};
