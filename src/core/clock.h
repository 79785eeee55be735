#pragma once
#include <optional>

#include "core/date.h"

/// The one clock of the program.
Date Today();  ///< this day, without a time
Date Now();    ///< this moment

/// Fixes the clock at a moment, or lets it run again; for tests and for the making of sample data.
void SetClock(std::optional<Date> moment);
