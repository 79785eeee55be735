#pragma once
#include <QByteArray>
#include <QMap>
#include <QString>

#include <functional>
#include <memory>
#include <random>

/// Stands between SQLite and the disk while it lives: counts what SQLite asks of one database, of its journal and of
/// its temporary files, lets requests fail, lets the room run out, and knows what a power cut would leave behind.
/// Databases that are opened meanwhile and are none of this pass through.
class FaultyDisk {
 public:
  enum class Request { Open, Read, Write, Truncate, Sync, Delete, FileSize, Lock };
  enum class Fault {
    Once,        ///< the request fails, those behind it don't
    FromThenOn,  ///< it and all behind it fail, as on a disk that was pulled out
    FullOnce,    ///< for a write: there is no room for it
    Full,        ///< for a write: there is no room for it, nor for any behind it
    BadPage      ///< for a read: these bytes can't be read any more
  };

  explicit FaultyDisk(const QString& database);
  ~FaultyDisk();
  FaultyDisk(const FaultyDisk&) = delete;
  FaultyDisk& operator=(const FaultyDisk&) = delete;

  /// Counts the requests from here on; the one of this place fails, the first being 0. A place of -1 is none.
  void FailAt(int place = -1, Fault fault = Fault::Once);
  /// The requests since then.
  const QList<Request>& Requests() const;
  /// Whether a request has failed since then, and whether one of them was to change the disk.
  bool HasFailed() const;
  bool HasFailedWriting() const;
  /// The files may grow by so many bytes from now on, together.
  void LeaveRoom(qint64 bytes);
  /// All works again, and there is room.
  void Mend();

  /// Calls `cut` before each request that changes what lies on the disk, and after it has been synced. What lies there
  /// now counts as synced. A null function ends it.
  void OnEachChange(std::function<void()> cut);
  /// What a power cut at this moment could leave behind, by the ends of the files' names ("" and "-journal"): all that
  /// was synced; of the rest each write whole, in part, as garbage or not at all, in whatever order; and a file that
  /// was made or deleted lately is there or not.
  QMap<QString, QByteArray> Survivors(std::mt19937& random) const;

  struct State;

 private:
  std::unique_ptr<State> state_;
};
