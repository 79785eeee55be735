#include "dbcare/copy_folder.h"

#include <QStringList>

#include "core/files.h"
#include "core/stand_by.h"
#include "core/text.h"

using namespace Qt::StringLiterals;

bool CopyFolder(const QString& from, const QString& to, int& count) {
  count = 0;
  CreateFolder(to);
  QStringList names;
  GetFolderFiles(from, names);
  for (const QString& name : std::as_const(names)) {
    ShowStandBy(u"copying "_s + name);
    if (MyFileCopy(JoinPath(from, name), JoinPath(to, name))) ++count;
  }
  return count == names.size();
}
