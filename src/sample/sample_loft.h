#pragma once
#include "core/date.h"

/// A loft to look at: about forty customers, sixty rigs of all four types, three years of jobs, gear that is overdue,
/// soon due, expired, grounded or loose, two riggers and two locations. It is made by the routines that a person's
/// clicks call, day by day on the program's clock, and ends on `today`; the same day always gives the same loft.

/// Fills a data folder that is not there yet. Throws Failure when a file can't be written; where a routine would show a
/// box, something is wrong with the sample itself. The clock runs freely again afterwards.
void MakeSampleLoft(Date today);
