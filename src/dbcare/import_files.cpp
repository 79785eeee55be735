#include "dbcare/import_files.h"

#include <QStringList>

#include "core/data_folder.h"
#include "core/files.h"
#include "core/platform.h"
#include "core/prompts.h"
#include "core/stand_by.h"
#include "core/text.h"
#include "core/trap.h"
#include "dbcare/copy_folder.h"
#include "dbcare/new_database.h"
#include "dbcare/version_file.h"
#include "gear/models_file.h"

using namespace Qt::StringLiterals;

namespace {

bool IsExportFolder(const QString& folder) {
  if (NumberFilesInFolder(folder) == 0) {
    MsgBox(u"There are no files in selected folder"_s, u"Selected folder is empty"_s);
    return false;
  }
  const QString database = JoinPath(folder, u"loftkeep.mdb"_s);
  if (!ExistFile(database)) {
    MsgBox(Lines({u"Can't import files from that folder."_s, u"The selected folder doesn't contain Loftkeep files"_s}));
    return false;
  }
  return VersionIsOK(folder) && AcceptDatabase(database);
}

bool PersonIsSure() {
  return AskYes(Lines({u"WARNING!  You are about to import files from "_s,
                       u"another installation of Loftkeep.  This will overwrite "_s,
                       u"you current files.  Once performed, this process cannot"_s, u"be reversed."_s, QString(),
                       u"This includes your photo files (your database has been"_s, u"backed up)."_s, QString(),
                       u"Are you sure you want to import these Loftkeep files?"_s}),
                u"Continue?"_s);
}

/// The only way back from an import.
void BackUpPresentDatabase() {
  if (!ExistFile(DatabaseFile())) return;
  QString name;
  MakeBackupCopy(false, name);
  if (name.isEmpty()) throw Failure(u"No backup could be made of the current database file"_s);
  MsgBox(Lines({u"A backup copy your current database file"_s, u"was just created ("_s + name + u')'}),
         u"Database backup performed"_s);
}

void ShowStep(const QString& text) {
  ShowStandBy(text);
  PauseOnStandBy();
}

bool ImportDatabase(const QString& folder) {
  ShowStandBy(u"copying database file......"_s);
  const bool copied = ReplaceDatabaseFile(JoinPath(folder, u"loftkeep.mdb"_s));
  if (copied) ShowStep(u"Database file imported"_s);
  return copied;
}

void ImportFolder(LongWork& work, const QString& folder, const QString& name) {
  ShowStandBy(u"copying "_s + name + u"......"_s);
  int count = 0;
  CopyFolder(work, PlatformPath(JoinPath(folder, name)), PlatformPath(DataPath + name), count);
  PauseOnStandBy();
}

/// Each one becomes a new backup: the numbers of two computers mean different files.
void ImportBackups(LongWork& work, const QString& folder) {
  const QString source = JoinPath(folder, u"backup"_s);
  QStringList names;
  GetFolderFiles(source, names);
  for (const QString& name : std::as_const(names)) {
    const QString target = NextDBfile();
    ShowStandBy(u"creating backup file "_s + target);
    MyFileCopy(JoinPath(source, name), BackupFolder() + target);
    work.Step();
  }
  PauseOnStandBy();
}

void CheckImportedFiles() {
  CheckBlankmb();
  ShowStep(u"Blank.mdb imported"_s);
  CheckModelsFile();
  ShowStep(u"Models table imported"_s);
  CheckHelpFile();
  ShowStep(u"Helptext.txt imported"_s);
  ShowStep(u"done"_s);
}

/// True when the database was imported. What has been overwritten can't be had back, so there is no way out midway.
bool ImportLoft(const QString& folder) {
  const QStringList copied = {u"support"_s, u"photos/hires"_s, u"photos/thumbnail"_s};
  int files = 1;  // the database
  for (const QString& name : copied + QStringList{u"backup"_s}) files += FilesToCopy(JoinPath(folder, name));
  LongWork work(u"copying"_s, files, LongWork::Cancelling::Impossible);
  const bool imported = ImportDatabase(folder);
  work.Step();
  for (const QString& name : copied) ImportFolder(work, folder, name);
  ImportBackups(work, folder);
  if (ExistFile(DatabaseFile())) CheckImportedFiles();
  return imported;
}

}  // namespace

bool Importingfiles(const QString& folder) {
  bool imported = false;
  Trap(u"Sub Importingfiles"_s, [&] {
    if (!IsExportFolder(folder) || !PersonIsSure()) return;
    CreateFolder(DataPath);
    if (!FolderExists(DataPath)) return;  // the box has told why
    CreateSubFolders();
    BackUpPresentDatabase();
    imported = ImportLoft(folder);
  });
  UnloadStandBy();
  return imported;
}
