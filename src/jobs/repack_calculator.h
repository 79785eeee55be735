#pragma once
#include <QString>

#include "core/date.h"

/// The words for an expiration date, counted in days from today: "Expires today", "Expires in 12 days from today's
/// date", "Expired 3 days ago".
QString ExpirationText(Date end);
