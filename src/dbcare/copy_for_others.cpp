#include "dbcare/copy_for_others.h"

#include <QFile>
#include <QFileInfo>

#include "core/failure.h"
#include "core/files.h"
#include "core/platform.h"
#include "core/store/connection.h"
#include "core/store/snapshot.h"
#include "core/trap.h"

using namespace Qt::StringLiterals;

namespace {

const QString kRecord = QString::fromLatin1(kUndoTable);

/// False for what is no database.
bool HoldsRecord(LongWork& work, const QString& path) {
  try {
    return ReadAside(work, path, [](Database& file) { return !file.FieldsOf(kRecord).empty(); });
  } catch (const Failure&) {
    return false;
  }
}

/// The copy keeps the time at which the original was written.
void TakeOutRecord(LongWork& work, const QString& path, const QString& original) {
  InWorker(work, [&] { Database(path).DropAndCompact(kRecord); });
  QFile file(path);
  if (file.open(QFile::ReadWrite))
    file.setFileTime(QFileInfo(PlatformPath(original)).lastModified(), QFileDevice::FileModificationTime);
}

}  // namespace

bool CopyLoftForOthers(const QString& destination) {
  bool copied = false;
  Trap(u"Function CopyLoftForOthers"_s, [&] {
    LongWork work(u"copying database file"_s);
    const Snapshot snapshot;
    TakeOutRecord(work, snapshot.Path(), DatabasePath());
    copied = MyFileCopy(snapshot.Path(), destination);
  });
  return copied;
}

bool CopyFileForOthers(const QString& source, const QString& destination) {
  bool copied = false;
  Trap(u"Function CopyFileForOthers"_s, [&] {
    LongWork work(u"copying "_s + QFileInfo(source).fileName());
    if (!HoldsRecord(work, PlatformPath(source))) {
      copied = MyFileCopy(source, destination);
      return;
    }
    const ScratchFile scratch;
    if (!MyFileCopy(source, scratch.Path())) return;
    TakeOutRecord(work, scratch.Path(), source);
    copied = MyFileCopy(scratch.Path(), destination);
  });
  return copied;
}
