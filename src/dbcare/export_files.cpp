#include "dbcare/export_files.h"

#include <QFileInfo>
#include <QStringList>

#include "core/data_folder.h"
#include "core/files.h"
#include "core/platform.h"
#include "core/prompts.h"
#include "core/stand_by.h"
#include "core/text.h"
#include "core/trap.h"
#include "dbcare/copy_folder.h"
#include "dbcare/copy_for_others.h"
#include "dbcare/new_database.h"
#include "dbcare/version_file.h"

using namespace Qt::StringLiterals;

namespace {

QString PhotoFolder(const QString& name) { return PlatformPath(DataPath + u"photos/"_s + name); }

double SizeOfFolder(const QString& folder) {
  QStringList names;
  GetFolderFiles(folder, names);
  double size = 0;
  for (const QString& name : std::as_const(names))
    size += static_cast<double>(QFileInfo(JoinPath(folder, name)).size());
  return size;
}

bool PersonWantsToMove() {
  const QString title = u"Move Loftkeep"_s;
  return AskYes(Lines({u"If you are installing Loftkeep on a new computer,"_s,
                       u"this tool will allow you to move your data files"_s,
                       u"to a temporary location for exporting.  This location can be"_s,
                       u"a USB flash drive, portable hard drive, local folder, etc."_s, QString(),
                       u"Would you like to move your data files to a location"_s, u"for exporting?"_s}),
                title) &&
         AskYes(Lines({u"This will copy your database and photo files for moving to"_s,
                       u"another computer.  Remember that this moves your data files"_s,
                       u"only, not the actual Loftkeep program."_s, QString(),
                       u"The actual Loftkeep program must be installed on your new"_s,
                       u"computer by running 'LK_install.exe'"_s, QString(), u"Are you ready to export your files?"_s}),
                title);
}

bool PersonIsReadyToSelect(double size) {
  return AskYes(
      Lines({u"On the next screen, you will select a folder for exporting"_s,
             u"your database and photo files.  The folder can exist on a USB"_s,
             u"flash drive or portable hard drive for moving files to a new computer"_s, QString(),
             u"The space required depends on the size of your database file and"_s, u"by the number of photos."_s,
             QString(), u"The folder must be able to hold "_s + FormatFileSize(size), QString(),
             u"It is necessary that you select or create an empty folder"_s, u"for exporting these files"_s, QString(),
             u"Are you ready to select a folder for exporting?"_s}),
      u"Select a destingation folder"_s);
}

bool PersonIsReadyToExport(const QString& folder) {
  return AskYes(Lines({u"Preparing to export files to "_s + folder, QString(),
                       u"(Please remember that folder location) "_s, QString(), u"Are you ready to export files?"_s}),
                u"Export files"_s);
}

bool ExportDatabase(const QString& folder) {
  ShowStandBy(u"copying database file"_s);
  LetGoOfDatabaseFile();
  return CopyLoftForOthers(JoinPath(folder, u"loftkeep.mdb"_s));
}

struct ExportedFolder {
  QString name;
  QString words;
};

QList<ExportedFolder> ExportedFolders(bool withArchive) {
  QList<ExportedFolder> folders = {{u"photos/hires"_s, u" hi resolution photos"_s},
                                   {u"photos/thumbnail"_s, u" thumbnail photos"_s}};
  if (withArchive) folders << ExportedFolder{u"photos/archive"_s, u" archived photos"_s};
  folders << ExportedFolder{u"backup"_s, u" backup database files"_s}
          << ExportedFolder{u"support"_s, u" support files"_s};
  return folders;
}

/// True when every file was copied; `listing` tells what was.
bool ExportLoft(const QString& folder, bool withArchive, QStringList& listing) {
  const QList<ExportedFolder> folders = ExportedFolders(withArchive);
  int files = 1;  // the database
  for (const ExportedFolder& exported : folders) files += FilesToCopy(DataPath + exported.name);
  LongWork work(u"copying"_s, files);
  listing = {u"The following files were copied:"_s, QString()};
  bool complete = ExportDatabase(folder);
  if (complete) listing << u"Your main database file."_s;
  work.Done(1);
  CreateFolder(JoinPath(folder, u"photos"_s));
  for (const ExportedFolder& exported : folders) {
    int count = 0;
    complete = ExportFiles(work, folder, exported.name, count) && complete;
    listing << QString::number(count) + exported.words;
  }
  return complete;
}

void TellWhatComesNext(const QString& folder) {
  MsgBox(Lines({u"Files exported successfully to the following location:"_s, QString(), u"      "_s + folder, QString(),
                u"You are now ready to move these files to your new computer."_s, QString(),
                u"You will need to copy your export folder to portable media such as"_s,
                u"a flash drive or portable hard drive."_s, QString(),
                u"Once you have downloaded and installed Loftkeep on your new "_s,
                u"computer, you can import these files from the TOOLS menu."_s,
                u"(see 'import files from another computer')"_s}),
         u"Done"_s);
}

}  // namespace

void MoveProgram(const std::function<QString()>& selectFolder) {
  Trap(u"Sub MoveProgram"_s, [&] {
    if (!PersonWantsToMove()) return;
    CreateVersionFile();
    double archiveSize = 0;
    const bool withArchive = AskArchivePhotos(archiveSize);
    if (!PersonIsReadyToSelect(GetTotalExportSize() + (withArchive ? archiveSize : 0))) return;
    const QString folder = selectFolder();
    if (folder.isEmpty() || folder == "cancel"_L1) return;
    if (!FolderExists(folder)) {
      MsgBox(u"Can't find folder called "_s + folder, u"Error"_s);
      return;
    }
    if (!PersonIsReadyToExport(folder)) return;
    SetBusyPointer(true);
    QStringList listing;
    const bool complete = ExportLoft(folder, withArchive, listing);
    UnloadStandBy();
    SetBusyPointer(false);
    MsgBox(Lines(listing));
    // Who reads of success may wipe the old computer.
    if (complete) TellWhatComesNext(folder);
  });
  UnloadStandBy();
  SetBusyPointer(false);
}

double GetTotalExportSize() {
  return SizeOfFolder(PhotoFolder(u"hires"_s)) + SizeOfFolder(PhotoFolder(u"thumbnail"_s)) +
         static_cast<double>(QFileInfo(DatabaseFile()).size());
}

bool AskArchivePhotos(double& size) {
  size = 0;
  const QString folder = PhotoFolder(u"archive"_s);
  const int count = NumberFilesInFolder(folder);
  if (count == 0) return false;
  size = SizeOfFolder(folder);
  return AskYes(Lines({u"There are "_s + QString::number(count) + u" photos in your deleted photos folder (archive)"_s,
                       u"Space required = "_s + FormatFileSize(size), u"They are stored in this location:"_s,
                       u"      "_s + folder, u"Do you want these deleted photos copied also?"_s}),
                u"Includ deleted photos?"_s);
}

bool ExportFiles(LongWork& work, const QString& ToFolder, const QString& FolderName, int& count) {
  return CopyFolder(work, PlatformPath(DataPath + FolderName), PlatformPath(JoinPath(ToFolder, FolderName)), count,
                    CopyFileForOthers);
}

bool AcceptExportFolder(const QString& folder) {
  const int count = NumberFilesInFolder(folder);
  if (count == 0) return true;
  const QString files = count == 1 ? u"There is 1 file"_s : u"There are "_s + QString::number(count) + u" files"_s;
  MsgBox(Lines({files + u" in the selected folder."_s, u"Please select or create an empty folder"_s}));
  return false;
}
