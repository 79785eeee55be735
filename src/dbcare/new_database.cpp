#include "dbcare/new_database.h"

#include <QFile>

#include "core/data_folder.h"
#include "core/files.h"
#include "core/format.h"
#include "core/platform.h"
#include "core/prompts.h"
#include "core/stand_by.h"
#include "core/store/connection.h"
#include "core/store/recordset.h"
#include "core/store/snapshot.h"
#include "core/trap.h"
#include "dbcare/check_fields.h"

using namespace Qt::StringLiterals;

namespace {

void RemoveFile(const QString& path) {
  if (ExistFile(path) && !QFile::remove(path)) throw Failure(u"Path/File access error"_s);
}

}  // namespace

void LetGoOfDatabaseFile() {
  if (ConnectionIsOpen) ConnectionClose();
  ReleaseDatabaseFile();
}

QString BackupFolder() { return PlatformPath(DataPath + u"backup/"_s); }

void xCreatedbFile(const QString& myDb) {
  Trap(u"Sub xCreatedbFile"_s, [&] {
    LetGoOfDatabaseFile();
    QString source = SupportFile(u"blank.mdb"_s);
    if (!ExistFile(source)) source = ProgramFile(u"blank.mdb"_s);
    if (!source.isEmpty()) {
      MyFileCopy(source, myDb);
    } else {
      MsgBox(
          Lines({u"The file 'blank.mdb' could not be found."_s, QString(), u"A database file will now be created."_s}),
          u"Creating new database file"_s);
      Database::CreateFile(myDb);
    }
    ConnectionString = ConnectionStringFor(myDb);
  });
}

void CreateNewDatabase() {
  MsgBox(
      Lines({u"Preparing to create new database."_s, QString(), u"This should take just a few seconds .........."_s}),
      u"Create new database"_s);
  ShowStandBy();
  xCreatedbFile(DatabaseFile());
  CheckAllFields(false);
  UnloadStandBy();
}

bool IsValidDatabase(const QString& path) {
  LetGoOfDatabaseFile();
  LongWork work(kPleaseWait, 0, LongWork::Cancelling::Impossible);
  try {
    ReadAside(work, path, [](Database& file) {
      for (const Table& table : {tblPeople::kTable, tblRig::kTable, tblComponents::kTable, tblModels::kTable,
                                 tblTasks::kTable, tblJobs::kTable, tblSchedules::kTable, tblMisc::kTable})
        const Recordset opened(file, table);
    });
  } catch (const Failure&) {
    return false;
  }
  return true;
}

bool AcceptDatabase(const QString& path) {
  if (IsValidDatabase(path)) return true;
  MsgBox(path + u" is NOT a valid Loftkeep database file"_s, u"Invalid file"_s);
  return false;
}

QString NextDBfile() {
  constexpr int kNameLength = 11;  // "db" + five digits + ".mdb"
  QStringList names;
  GetFolderFiles(BackupFolder(), names);
  int highest = 0;
  for (const QString& name : std::as_const(names)) {
    if (name.size() != kNameLength || !name.startsWith("db"_L1) || !name.endsWith(".mdb"_L1)) continue;
    highest = qMax(highest, static_cast<int>(Val(name.mid(2, 5))));
  }
  return u"db"_s + Format(highest + 1, u"00000"_s) + u".mdb"_s;
}

void MakeBackupCopy(bool deleteOriginal, QString& fileName) {
  fileName.clear();
  Trap(u"Sub MakeBackupCopy"_s, [&] {
    LetGoOfDatabaseFile();
    const QString name = NextDBfile();
    if (!MyFileCopy(DatabaseFile(), BackupFolder() + name)) return;
    fileName = name;
    if (deleteOriginal) RemoveFile(DatabaseFile());
  });
}

bool ReplaceDatabaseFile(const QString& path) {
  LetGoOfDatabaseFile();
  // What an interrupted write of the old database left behind would be rolled back into the new one. It belongs to the
  // old one as long as that is there.
  const QString journal = DatabaseFile() + u"-journal"_s;
  if (!ExistFile(DatabaseFile())) RemoveFile(journal);
  if (!MyFileCopy(path, DatabaseFile())) return false;
  RemoveFile(journal);
  return true;
}

bool InstallDatabaseFile(const QString& path) {
  if (!ExistFile(path)) {
    MsgBox(path, u"File doesn't exist"_s);
    return false;
  }
  if (!AcceptDatabase(path)) return false;
  return Trap(u"Sub InstallDatabaseFile"_s, [&] {
    if (ExistFile(DatabaseFile())) {
      QString backup;
      MakeBackupCopy(false, backup);
      if (backup.isEmpty()) throw Failure(u"No backup could be made of the current database file"_s);
      MsgBox(Lines({u"A backup copy of your current database file"_s,
                    u"named '"_s + backup + u"' has been created and placed  "_s, u"in the Loftkeep backup folder"_s}),
             u"Back up created"_s);
    }
    if (!ReplaceDatabaseFile(path)) throw Failure(u"The file could not be copied"_s);
    CheckAllFields(false);
    CreateSubFolders();
    MsgBox(u"Database installation complete"_s, u"Done"_s);
  });
}
