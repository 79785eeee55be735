#pragma once
#include <QList>

#include <random>

#include "core/date.h"

/// How somebody keeps a rig, as it drives the years of the sample loft.
struct SampleRig {
  int id = 0;
  int owner = 0;
  int type = 0;
  int days = 180;        ///< between two repacks
  Date nextRepack = {};  ///< none once the owner has stopped jumping
};

/// Adds the rigs of these people with all their components, and some gear that is in no rig. Dates of manufacture lie
/// before `start`.
QList<SampleRig> AddSampleGear(const QList<int>& people, Date start, std::mt19937& random);
