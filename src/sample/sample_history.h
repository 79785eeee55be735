#pragma once
#include "sample/sample_gear.h"

/// The last repack of some rigs before their owners came to this loft, entered straight into their histories.
void AddSampleHistory(const QList<SampleRig>& rigs);
