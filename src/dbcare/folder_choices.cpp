#include "dbcare/folder_choices.h"

#include <QDir>

#include "core/data_folder.h"
#include "core/files.h"
#include "core/prompts.h"
#include "core/text_files.h"
#include "core/trap.h"

using namespace Qt::StringLiterals;

namespace {

QString PathsFile() { return SupportFile(u"paths.txt"_s); }

}  // namespace

QStringList SavedPaths() {
  QStringList paths;
  if (ExistFile(PathsFile())) ReadFileIntoArray(PathsFile(), paths);
  paths.removeAll(QString());
  paths.removeDuplicates();
  return paths;
}

void SavePath(const QString& path) {
  Trap(u"Sub SavePath"_s, [&] {
    const QStringList lines = ExistFile(PathsFile()) ? ReadLines(PathsFile()) : QStringList();
    if (!lines.isEmpty() && StringExistsInFile(PathsFile(), path)) {
      MsgBox(u"Path has already been saved"_s);
      return;
    }
    WriteLines(PathsFile(), lines + QStringList{path});
    MsgBox(u"Path saved"_s);
  });
}

bool DeletePath(const QString& path) {
  if (!AskYes(u"Delete this path?"_s, kProgramTitle)) return false;
  RemoveItemFromFile(PathsFile(), path);
  return true;
}

QStringList FilesToOffer(const QString& folder, bool databasesOnly) {
  const QStringList patterns = databasesOnly ? QStringList{u"*.mdb"_s} : QStringList();
  return QDir(folder).entryList(patterns, QDir::Files, QDir::Name | QDir::IgnoreCase);
}
