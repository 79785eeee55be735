#pragma once
#include "core/date.h"

/// Records a completion in one step: a new job of one line for the rig's customer, done on that day by the default
/// rigger at the default location, and complete at once. The schedule follows. Each call makes a job and an invoice of
/// its own; titles are not compared. The job's id, 0 after a failure.
int QuickFix(int rigID, int customerID, int taskLibID, Date date);

/// What a quick fix does, and does not, in words.
void ShowQuickFixHelp();
