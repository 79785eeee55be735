#pragma once
#include <QString>

#include "core/long_work.h"
#include "core/store/database.h"

/// A file beside the live loft that goes with this object, and with it the journal that SQLite lays beside it. What an
/// earlier run left there goes first; a second one meanwhile throws Failure.
class ScratchFile {
 public:
  ScratchFile();
  ~ScratchFile();
  ScratchFile(const ScratchFile&) = delete;
  ScratchFile& operator=(const ScratchFile&) = delete;
  const QString& Path() const { return path_; }

 private:
  QString path_;
};

/// A copy of the live loft as it stands now, for whoever reads it in a worker while the loft goes on being written: the
/// live file itself lets no second reader in. Throws Failure while an operation stands, whose writing is not done yet.
class Snapshot {
 public:
  Snapshot();
  const QString& Path() const { return file_.Path(); }

 private:
  ScratchFile file_;
};

/// Reads a database file, other than the live one, in a worker thread with a Database of its own, and hands back what
/// `reading` returns; what it throws is thrown here. A file that does not open throws Failure.
///
///     LongWork work(u"Reading the backup"_s);
///     const int rigs = ReadAside(work, path, [](Database& file) { return Recordset(file, u"tblRig"_s).RecordCount();
///     });
///
/// The live loft is read through a Snapshot.
template <typename Reading>
auto ReadAside(LongWork& work, const QString& path, Reading&& reading) {
  return InWorker(work, [&] {
    Database file(path, Database::Use::Read);
    return reading(file);
  });
}
