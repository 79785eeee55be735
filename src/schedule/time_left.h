#pragma once
#include <QString>

#include "core/date.h"

/// The wording of the time from today to a date, counted in whole days: years above 1464 days, months above 366, days
/// below.

/// Of work that falls due: "3 months", "12 days", "1 day", "Due today!", "Overdue!".
QString TimeLeftText(Date due);
/// Of a service life in a grid: as above with "Expires today!" and "Expired!".
QString ExpiryTimeLeftText(Date expiry);
/// Of a service life in a sentence: "3 months left", "Expires tomorrow! ", "Expired!".
QString LifeLeftText(Date expiry);
