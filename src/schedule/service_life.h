#pragma once
#include <QList>

#include "core/date.h"

/// The end of a component's life: its date of manufacture plus the service life of its model. No date when either is
/// missing.
Date ServiceLifeExpiry(int componentID);

/// The models that have a service life; the one element 0 when none has.
void GetArrayOfModelsWithServiceLife(QList<int>& models);
/// A customer's components among them, models in order; empty when there are none.
void GetArrayOfCompIDWithServiceLifeThisCustomer(QList<int>& components, int customerID);

/// Has this customer anything due inside a time limit? Always, when the limit is off. The limit is `number` days from
/// today, or the last day of the month `number` months from today.
bool WithinCorrectTimeFrame(int customerID, bool limitOn, bool limitInDays, int number);
