#include "support/power_cut.h"

#include <QFile>
#include <QFileInfo>

#include <map>
#include <optional>
#include <random>
#include <sqlite3.h>
#include <vector>

namespace {

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

/// What lies on the platter, and what waits to be written to it.
struct Disk {
  struct File {
    QByteArray synced;
    std::vector<Change> pending;
  };
  QString folder;
  std::mt19937 random;
  std::function<void(int cut)> check;
  std::map<QString, File> files;
  int cuts = 0;

  void Cut() {
    ++cuts;
    for (const auto& [name, file] : files) {
      QByteArray left = file.synced;
      for (Change change : file.pending) {
        const auto fate = random() % 3;
        if (fate == 0) continue;
        if (fate == 1 && change.bytes) change.bytes->truncate(change.bytes->size() / 2);
        Apply(left, change);
      }
      QFile copy(folder + u'/' + name);
      if (!copy.open(QIODevice::WriteOnly) || copy.write(left) != left.size()) qFatal("no room for the copies");
    }
    check(cuts);
  }
};

Disk* disk = nullptr;

/// What SQLite holds of an open file: ours first, the platform's own file behind it.
struct WatchedFile {
  sqlite3_file base;
  QString* name;
};

sqlite3_file* Platform(sqlite3_file* file) {
  return reinterpret_cast<sqlite3_file*>(reinterpret_cast<WatchedFile*>(file) + 1);
}

Disk::File* Watched(sqlite3_file* file) {
  const QString* name = reinterpret_cast<WatchedFile*>(file)->name;
  return disk && name ? &disk->files[*name] : nullptr;
}

void Record(sqlite3_file* file, Change change) {
  Disk::File* watched = Watched(file);
  if (!watched) return;
  watched->pending.push_back(std::move(change));
  disk->Cut();
}

int Write(sqlite3_file* file, const void* bytes, int count, sqlite3_int64 offset) {
  Record(file, {offset, QByteArray(static_cast<const char*>(bytes), count)});
  return Platform(file)->pMethods->xWrite(Platform(file), bytes, count, offset);
}

int Truncate(sqlite3_file* file, sqlite3_int64 size) {
  Record(file, {size, {}});
  return Platform(file)->pMethods->xTruncate(Platform(file), size);
}

int Sync(sqlite3_file* file, int flags) {
  if (Disk::File* watched = Watched(file)) {
    for (const Change& change : watched->pending) Apply(watched->synced, change);
    watched->pending.clear();
    disk->Cut();
  }
  return Platform(file)->pMethods->xSync(Platform(file), flags);
}

int Close(sqlite3_file* file) {
  const int result = Platform(file)->pMethods->xClose(Platform(file));
  delete reinterpret_cast<WatchedFile*>(file)->name;
  return result;
}

int Read(sqlite3_file* file, void* bytes, int count, sqlite3_int64 offset) {
  return Platform(file)->pMethods->xRead(Platform(file), bytes, count, offset);
}
int FileSize(sqlite3_file* file, sqlite3_int64* size) {
  return Platform(file)->pMethods->xFileSize(Platform(file), size);
}
int Lock(sqlite3_file* file, int level) { return Platform(file)->pMethods->xLock(Platform(file), level); }
int Unlock(sqlite3_file* file, int level) { return Platform(file)->pMethods->xUnlock(Platform(file), level); }
int CheckLock(sqlite3_file* file, int* held) {
  return Platform(file)->pMethods->xCheckReservedLock(Platform(file), held);
}
int Control(sqlite3_file* file, int op, void* argument) {
  return Platform(file)->pMethods->xFileControl(Platform(file), op, argument);
}
int SectorSize(sqlite3_file* file) { return Platform(file)->pMethods->xSectorSize(Platform(file)); }
int Characteristics(sqlite3_file*) { return 0; }

const sqlite3_io_methods kMethods = {
    1,          Close,           Read,    Write,   Truncate, Sync,    FileSize, Lock,   Unlock, CheckLock, Control,
    SectorSize, Characteristics, nullptr, nullptr, nullptr,  nullptr, nullptr,  nullptr};

int Open(sqlite3_vfs* vfs, const char* path, sqlite3_file* file, int flags, int* outFlags) {
  auto* platform = static_cast<sqlite3_vfs*>(vfs->pAppData);
  auto* watched = reinterpret_cast<WatchedFile*>(file);
  watched->base.pMethods = nullptr;
  const int result = platform->xOpen(platform, path, Platform(file), flags, outFlags);
  if (result != SQLITE_OK) return result;
  watched->base.pMethods = &kMethods;
  watched->name = nullptr;
  const QString name = QString::fromUtf8(path);
  if (disk && !name.isEmpty() && !name.startsWith(disk->folder)) {
    watched->name = new QString(QFileInfo(name).fileName());
    QFile present(name);
    if (present.open(QIODevice::ReadOnly)) disk->files[*watched->name].synced = present.readAll();
  }
  return SQLITE_OK;
}

sqlite3_vfs watchingVfs;

}  // namespace

PowerCut::PowerCut(const QString& folder, quint32 seed, std::function<void(int cut)> check) {
  disk = new Disk{folder, std::mt19937(seed), std::move(check), {}};
  sqlite3_vfs* platform = sqlite3_vfs_find(nullptr);
  watchingVfs = *platform;
  watchingVfs.zName = "power cut";
  watchingVfs.pAppData = platform;
  watchingVfs.szOsFile = platform->szOsFile + static_cast<int>(sizeof(WatchedFile));
  watchingVfs.xOpen = Open;
  sqlite3_vfs_register(&watchingVfs, 1);
}

PowerCut::~PowerCut() {
  sqlite3_vfs_unregister(&watchingVfs);
  delete std::exchange(disk, nullptr);
}

int PowerCut::Count() const { return disk->cuts; }
