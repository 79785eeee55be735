#pragma once
#include "core/date.h"

/// Work that was done outside any job, written as a completed line of its own so that it counts for the schedule.

/// Asks for the day on which a library entry was performed on a rig (or, without one, on a component), and writes it: a
/// completed line without a job, its ties to the gear that the entry requires, and the row of the schedule. The rig
/// must hold that gear. The day must lie after `minimumDate`, so that work already on record keeps its place; `date`
/// receives it. False when nothing was written.
bool CreateJoblessTask(int taskLibID, int rigID, int componentID, Date& date, Date minimumDate);

/// Writes such a line and its ties, and leaves the schedule alone: on a rig one tie to each component that the entry
/// requires, without a rig the component itself. The line's id.
int AddJoblessLine(int taskLibID, int rigID, int componentID, Date date);
