#pragma once
#include <QString>

#include <functional>

/// Stands between SQLite and the disk, for the databases that are opened while it lives. Before and after each write it
/// builds what a power cut at this moment could leave behind - all that was synced, and of the rest each write whole,
/// half or not at all - and hands the copies of the files, and how many cuts there were, to `check`.
class PowerCut {
 public:
  /// `folder` takes the copies, under the names of the files; `seed` decides what survives.
  PowerCut(const QString& folder, quint32 seed, std::function<void(int cut)> check);
  ~PowerCut();
  PowerCut(const PowerCut&) = delete;
  PowerCut& operator=(const PowerCut&) = delete;

  /// How many cuts there were.
  int Count() const;
};
