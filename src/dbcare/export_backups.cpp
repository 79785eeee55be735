#include "dbcare/export_backups.h"

#include "core/files.h"
#include "core/prompts.h"
#include "core/stand_by.h"
#include "core/trap.h"
#include "dbcare/copy_folder.h"
#include "dbcare/copy_for_others.h"
#include "dbcare/new_database.h"

using namespace Qt::StringLiterals;

namespace {

bool PersonIsReady(int count, const QString& folder) {
  const QString present = count == 1 ? u"There is one backup database file present"_s
                                     : u"There are "_s + QString::number(count) + u" backup database files present"_s;
  return AskYes(
      Lines({present, u"You are about to copy your backup "_s, u"database files from:"_s, u"   "_s + BackupFolder(),
             u"              to"_s, u"   "_s + folder, u"Are you ready to copy?"_s}),
      u"Export backup database files"_s);
}

}  // namespace

QString BackupCountText() {
  const int count = NumberFilesInFolder(BackupFolder());
  if (count == 0) return u"There are no files in the backup folder"_s;
  if (count == 1) return u"There is one file in the backup folder"_s;
  return QString::number(count) + u" files in the backup folder"_s;
}

bool ExportBackups(const QString& folder) {
  const int count = NumberFilesInFolder(BackupFolder());
  if (count == 0) {
    MsgBox(Lines({u"There are no backup database files in this directory:"_s, BackupFolder()}), u"No backup files"_s);
    return false;
  }
  if (!PersonIsReady(count, folder)) return false;
  bool cancelled = false;
  Trap(u"Sub ExportBackups"_s, [&] {
    SetBusyPointer(true);
    LongWork work(u"copying"_s, count);
    int copied = 0;
    CopyFolder(work, BackupFolder(), folder, copied, CopyFileForOthers);
    cancelled = work.Cancelled();
  });
  UnloadStandBy();
  SetBusyPointer(false);
  return !cancelled;
}
