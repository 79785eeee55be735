#include "support/faulty_disk.h"

#include <QFile>
#include <QList>
#include <QSet>

#include <optional>
#include <sqlite3.h>
#include <vector>

namespace {

using Request = FaultyDisk::Request;
using Fault = FaultyDisk::Fault;

constexpr qsizetype kSector = 512;

/// One write or, without bytes, one cut of the length to `offset`.
struct Change {
  qint64 offset;
  std::optional<QByteArray> bytes;
};

void Apply(QByteArray& content, const Change& change) {
  if (!change.bytes) {
    content.truncate(change.offset);
    return;
  }
  if (content.size() < change.offset + change.bytes->size())
    content.append(change.offset + change.bytes->size() - content.size(), '\0');
  content.replace(change.offset, change.bytes->size(), *change.bytes);
}

/// A file on the platter, and what waits to be written to it.
struct Platter {
  QByteArray synced;
  std::vector<Change> pending;
  bool exists = false;
  bool existsSynced = false;
};

QByteArray Garbage(qsizetype size, std::mt19937& random) {
  QByteArray bytes(size, '\0');
  for (char& byte : bytes) byte = static_cast<char>(random());
  return bytes;
}

/// How far what was not synced has come when the power goes.
enum class Damage { NothingWritten, AllWritten, SomeSectors, SomeGarbled, kHowMany };

void ApplySectors(QByteArray& content, const Change& change, bool garbled, std::mt19937& random) {
  for (qsizetype at = 0; at < change.bytes->size(); at += kSector) {
    if (random() % 2 == 0) continue;
    QByteArray sector = change.bytes->mid(at, kSector);
    if (garbled && random() % 10 == 0) sector = Garbage(sector.size(), random);
    Apply(content, {change.offset + at, sector});
  }
}

QByteArray Survivor(const Platter& file, std::mt19937& random) {
  QByteArray content = file.synced;
  const auto damage = static_cast<Damage>(random() % static_cast<unsigned>(Damage::kHowMany));
  if (damage == Damage::NothingWritten) return content;
  for (const Change& change : file.pending) {
    if (damage == Damage::AllWritten)
      Apply(content, change);
    else if (change.bytes)
      ApplySectors(content, change, damage == Damage::SomeGarbled, random);
    else if (random() % 2 == 0)
      Apply(content, change);
  }
  return content;
}

}  // namespace

struct FaultyDisk::State {
  QString database;
  sqlite3_vfs vfs = {};

  QList<Request> requests;
  int failAt = -1;
  Fault fault = Fault::Once;
  QSet<Request> failed;
  std::optional<std::pair<const void*, qint64>> badPage;  // file and offset
  std::optional<qint64> room;

  std::function<void()> onChange;
  QMap<QString, Platter> platters;

  bool Owns(const QString& path) const { return path.isEmpty() || path.startsWith(database); }
  QString EndOf(const QString& path) const { return path.mid(database.size()); }

  void TellChange() {
    if (onChange) onChange();
  }

  /// Counts a request; true when it has to fail.
  bool Fails(Request request) {
    const auto place = static_cast<int>(requests.size());
    requests << request;
    if (failAt < 0 || place < failAt) return false;
    const bool first = place == failAt;
    const bool onlyWrites = fault == Fault::Full || fault == Fault::FullOnce;
    const bool goesOn = fault == Fault::FromThenOn || fault == Fault::Full;
    if (fault == Fault::BadPage || (onlyWrites && request != Request::Write)) return false;
    if (!first && !goesOn) return false;
    failed << request;
    return true;
  }
  bool IsNext(Request request) const {
    return failAt == static_cast<int>(requests.size()) - 1 && requests.last() == request;
  }
};

namespace {

FaultyDisk::State* disk = nullptr;

/// What SQLite holds of an open file: ours first, the platform's own file behind it.
struct WatchedFile {
  sqlite3_file base;
  QString* end;  // of the name, null for a file that passes through
  bool isNamed;
};

WatchedFile& Ours(sqlite3_file* file) { return *reinterpret_cast<WatchedFile*>(file); }

sqlite3_file* Platform(sqlite3_file* file) {
  return reinterpret_cast<sqlite3_file*>(reinterpret_cast<WatchedFile*>(file) + 1);
}

bool Fails(sqlite3_file* file, Request request) { return disk && Ours(file).end && disk->Fails(request); }

Platter* PlatterOf(sqlite3_file* file) {
  return disk && disk->onChange && Ours(file).end && Ours(file).isNamed ? &disk->platters[*Ours(file).end] : nullptr;
}

qint64 SizeOf(sqlite3_file* file) {
  sqlite3_int64 size = 0;
  Platform(file)->pMethods->xFileSize(Platform(file), &size);
  return size;
}

/// What a write takes of the room that is left; false when there is too little.
bool TakeRoom(sqlite3_file* file, qint64 end) {
  if (!disk || !disk->room || !Ours(file).end) return true;
  const qint64 growth = qMax<qint64>(0, end - SizeOf(file));
  if (growth > *disk->room) return false;
  *disk->room -= growth;
  return true;
}

void GiveRoom(sqlite3_file* file, qint64 newSize) {
  if (disk && disk->room && Ours(file).end) *disk->room += qMax<qint64>(0, SizeOf(file) - newSize);
}

int Write(sqlite3_file* file, const void* bytes, int count, sqlite3_int64 offset) {
  if (Fails(file, Request::Write))
    return disk->fault == Fault::Full || disk->fault == Fault::FullOnce ? SQLITE_FULL : SQLITE_IOERR_WRITE;
  if (!TakeRoom(file, offset + count)) {
    disk->failed << Request::Write;
    return SQLITE_FULL;
  }
  if (Platter* platter = PlatterOf(file)) {
    disk->TellChange();
    platter->pending.push_back({offset, QByteArray(static_cast<const char*>(bytes), count)});
  }
  return Platform(file)->pMethods->xWrite(Platform(file), bytes, count, offset);
}

int Truncate(sqlite3_file* file, sqlite3_int64 size) {
  if (Fails(file, Request::Truncate)) return SQLITE_IOERR_TRUNCATE;
  GiveRoom(file, size);
  if (Platter* platter = PlatterOf(file)) {
    disk->TellChange();
    platter->pending.push_back({size, {}});
  }
  return Platform(file)->pMethods->xTruncate(Platform(file), size);
}

int Sync(sqlite3_file* file, int flags) {
  if (Fails(file, Request::Sync)) return SQLITE_IOERR_FSYNC;
  if (Platter* platter = PlatterOf(file)) {
    disk->TellChange();
    for (const Change& change : platter->pending) Apply(platter->synced, change);
    platter->pending.clear();
    platter->existsSynced = platter->exists;
    disk->TellChange();
  }
  return Platform(file)->pMethods->xSync(Platform(file), flags);
}

int Close(sqlite3_file* file) {
  const int result = Platform(file)->pMethods->xClose(Platform(file));
  delete Ours(file).end;
  return result;
}

int Read(sqlite3_file* file, void* bytes, int count, sqlite3_int64 offset) {
  if (Fails(file, Request::Read)) return SQLITE_IOERR_READ;
  if (disk && Ours(file).end) {
    if (disk->fault == Fault::BadPage && disk->IsNext(Request::Read)) disk->badPage = {file, offset};
    if (disk->badPage && disk->badPage->first == file && offset < disk->badPage->second + count &&
        disk->badPage->second < offset + count) {
      disk->failed << Request::Read;
      return SQLITE_IOERR_READ;
    }
  }
  return Platform(file)->pMethods->xRead(Platform(file), bytes, count, offset);
}

int FileSize(sqlite3_file* file, sqlite3_int64* size) {
  if (Fails(file, Request::FileSize)) return SQLITE_IOERR_FSTAT;
  return Platform(file)->pMethods->xFileSize(Platform(file), size);
}

int Lock(sqlite3_file* file, int level) {
  if (Fails(file, Request::Lock)) return SQLITE_IOERR_LOCK;
  return Platform(file)->pMethods->xLock(Platform(file), level);
}

int Unlock(sqlite3_file* file, int level) { return Platform(file)->pMethods->xUnlock(Platform(file), level); }
int CheckLock(sqlite3_file* file, int* held) {
  return Platform(file)->pMethods->xCheckReservedLock(Platform(file), held);
}
int Control(sqlite3_file* file, int op, void* argument) {
  return Platform(file)->pMethods->xFileControl(Platform(file), op, argument);
}
int SectorSize(sqlite3_file* file) { return Platform(file)->pMethods->xSectorSize(Platform(file)); }
/// Nothing is promised but what every disk keeps: a torn write leaves the bytes beside it alone.
int Characteristics(sqlite3_file*) { return SQLITE_IOCAP_POWERSAFE_OVERWRITE; }

const sqlite3_io_methods kMethods = {
    1,          Close,           Read,    Write,   Truncate, Sync,    FileSize, Lock,   Unlock, CheckLock, Control,
    SectorSize, Characteristics, nullptr, nullptr, nullptr,  nullptr, nullptr,  nullptr};

sqlite3_vfs* PlatformVfs(sqlite3_vfs* vfs) { return static_cast<sqlite3_vfs*>(vfs->pAppData); }

int Open(sqlite3_vfs* vfs, const char* path, sqlite3_file* file, int flags, int* outFlags) {
  Ours(file).base.pMethods = nullptr;
  const QString name = QString::fromUtf8(path);
  const bool watched = disk && disk->Owns(name);
  if (watched && disk->Fails(Request::Open)) return SQLITE_CANTOPEN;
  Platter* platter = watched && disk->onChange && path ? &disk->platters[disk->EndOf(name)] : nullptr;
  if (platter && !platter->exists) disk->TellChange();
  const int result = PlatformVfs(vfs)->xOpen(PlatformVfs(vfs), path, Platform(file), flags, outFlags);
  if (result != SQLITE_OK) return result;
  if (platter && !std::exchange(platter->exists, true)) platter->pending.clear();
  Ours(file).base.pMethods = &kMethods;
  Ours(file).end = watched ? new QString(disk->EndOf(name)) : nullptr;
  Ours(file).isNamed = path != nullptr;
  return SQLITE_OK;
}

int Delete(sqlite3_vfs* vfs, const char* path, int syncFolder) {
  const QString name = QString::fromUtf8(path);
  if (disk && disk->Owns(name)) {
    if (disk->Fails(Request::Delete)) return SQLITE_IOERR_DELETE;
    if (disk->onChange) {
      disk->TellChange();
      Platter& platter = disk->platters[disk->EndOf(name)];
      platter.exists = false;
      if (syncFolder) platter = {};
    }
  }
  return PlatformVfs(vfs)->xDelete(PlatformVfs(vfs), path, syncFolder);
}

}  // namespace

FaultyDisk::FaultyDisk(const QString& database) : state_(std::make_unique<State>()) {
  disk = state_.get();
  disk->database = database;
  sqlite3_vfs* platform = sqlite3_vfs_find(nullptr);
  disk->vfs = *platform;
  disk->vfs.zName = "faulty disk";
  disk->vfs.pAppData = platform;
  disk->vfs.szOsFile = platform->szOsFile + static_cast<int>(sizeof(WatchedFile));
  disk->vfs.xOpen = Open;
  disk->vfs.xDelete = Delete;
  sqlite3_vfs_register(&disk->vfs, 1);
}

FaultyDisk::~FaultyDisk() {
  sqlite3_vfs_unregister(&state_->vfs);
  disk = nullptr;
}

void FaultyDisk::FailAt(int place, Fault fault) {
  Mend();
  state_->requests.clear();
  state_->failAt = place;
  state_->fault = fault;
  state_->failed.clear();
}

const QList<FaultyDisk::Request>& FaultyDisk::Requests() const { return state_->requests; }

bool FaultyDisk::HasFailed() const { return !state_->failed.isEmpty(); }

bool FaultyDisk::HasFailedWriting() const {
  return state_->failed.intersects({Request::Write, Request::Truncate, Request::Sync, Request::Delete});
}

void FaultyDisk::LeaveRoom(qint64 bytes) { state_->room = bytes; }

void FaultyDisk::Mend() {
  state_->failAt = -1;
  state_->badPage.reset();
  state_->room.reset();
}

void FaultyDisk::OnEachChange(std::function<void()> cut) {
  state_->onChange = std::move(cut);
  state_->platters.clear();
  for (const QString& end : {QString(), QStringLiteral("-journal")}) {
    QFile file(state_->database + end);
    if (file.open(QIODevice::ReadOnly)) state_->platters[end] = {file.readAll(), {}, true, true};
  }
}

QMap<QString, QByteArray> FaultyDisk::Survivors(std::mt19937& random) const {
  QMap<QString, QByteArray> survivors;
  for (auto it = state_->platters.cbegin(); it != state_->platters.cend(); ++it) {
    const bool certain = it->exists == it->existsSynced;
    if (certain ? it->exists : random() % 2 == 0) survivors[it.key()] = Survivor(*it, random);
  }
  return survivors;
}
