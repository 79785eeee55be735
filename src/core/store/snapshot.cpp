#include "core/store/snapshot.h"

#include <QFile>

#include "core/failure.h"
#include "core/store/connection.h"
#include "core/store/operation.h"

using namespace Qt::StringLiterals;

namespace {

bool inUse = false;

void RemoveWithJournal(const QString& path) {
  QFile::remove(path);
  QFile::remove(path + u"-journal"_s);
}

}  // namespace

ScratchFile::ScratchFile() : path_(DatabasePath() + u".scratch"_s) {
  if (inUse) throw Failure(u"Could not use '%1'; file already in use."_s.arg(path_));
  inUse = true;
  RemoveWithJournal(path_);
}

ScratchFile::~ScratchFile() {
  RemoveWithJournal(path_);
  inUse = false;
}

Snapshot::Snapshot() {
  if (OperationScope::AnyStands()) throw Failure(u"The database file is in use."_s);
  Bracket bracket;
  Database& live = OpenDatabase();
  CommitConnection();
  LongWork work(u"Reading the database"_s);
  live.CopyTo(file_.Path(), [&work](int done, int total) {
    work.SetTotal(total);
    work.Done(done);
    if (work.Cancelled()) throw WorkCancelled();
  });
  bracket.Close();
}
