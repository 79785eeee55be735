#pragma once
#include <random>

#include "sample/sample_gear.h"

/// Who works in the sample loft, and where.
struct SampleShop {
  QList<int> riggers;
  QList<int> locations;
  int closingLoop = 0;  ///< the part that repacks use up
  // Of the library.
  int lineCheck = 0;
  int tandemCheck = 0;
  int patch = 0;
  int ride = 0;  ///< the event of a reserve ride
};

/// Repack prices, parts with theirs, and the tasks and events of the library.
void AddSampleLibrary(SampleShop& shop);

/// The jobs from `start` to `today`, each on its day: repacks when they are due or when the owner remembers them, other
/// work and parts beside them, events, and the jobs that are on the bench now.
void AddSampleJobs(QList<SampleRig> rigs, const SampleShop& shop, Date start, Date today, std::mt19937& random);
