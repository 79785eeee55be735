#include "dbcare/copy_folder.h"

#include <QDir>
#include <QStringList>

#include "core/platform.h"
#include "core/stand_by.h"
#include "core/text.h"

using namespace Qt::StringLiterals;

bool CopyFolder(LongWork& work, const QString& from, const QString& to, int& count, const CopyFile& copy) {
  count = 0;
  CreateFolder(to);
  QStringList names;
  GetFolderFiles(from, names);
  for (qsizetype i = 0; i < names.size() && !work.Cancelled(); ++i) {
    ShowStandBy(u"copying "_s + names[i]);
    if (copy(JoinPath(from, names[i]), JoinPath(to, names[i]))) ++count;
    work.Done(work.Done() + 1);
  }
  return count == names.size();
}

int FilesToCopy(const QString& folder) {
  return static_cast<int>(QDir(PlatformPath(folder)).entryList(QDir::Files).size());
}
