#pragma once
#include <random>

#include "sample/sample_gear.h"

/// Who works in the sample loft, and where.
struct SampleShop {
  QList<int> riggers;
  QList<int> locations;
};

/// Prices, library entries and parts that the jobs use.
void AddSampleLibrary();

/// The jobs from `start` to `today`, each on its day: repacks when they are due or when the owner remembers them, other
/// work and parts beside them, events, and the jobs that are on the bench now.
void AddSampleJobs(QList<SampleRig> rigs, const SampleShop& shop, Date start, Date today, std::mt19937& random);
