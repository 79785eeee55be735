#pragma once
#include <random>

#include "sample/sample_gear.h"

/// Who works in the sample loft, and where.
struct SampleShop {
  QList<int> riggers;
  QList<int> locations;
  int closingLoop = 0;  ///< the part that repacks use up
};

/// Repack prices, and parts with theirs.
void AddSampleLibrary(SampleShop& shop);

/// The jobs from `start` to `today`, each on its day: repacks when they are due or when the owner remembers them, other
/// work and parts beside them, events, and the jobs that are on the bench now.
void AddSampleJobs(QList<SampleRig> rigs, const SampleShop& shop, Date start, Date today, std::mt19937& random);
