#pragma once
#include <QList>

#include "gear/person_record.h"

/// The people of the sample loft: the two riggers first, the owner of the program before the other, then the customers.
/// All numbers and addresses are made up.
QList<Person> SamplePeople();

constexpr int kSampleRiggers = 2;
