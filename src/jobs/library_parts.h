#pragma once
#include <QString>

#include "core/money.h"

/// The parts that tasks of the library consume, kept from the task's form.

/// Adds a part; its id. A name in use is told with its price, and 0 returned.
int AddLibraryPart(const QString& name, Money price);
/// Deletes the part that is selected, 0 for none, after telling how many tasks use it; they drop it when they are used
/// next. True when it is gone.
bool DeleteLibraryPart(int partID);
