#pragma once
#include "core/date.h"

/// Bringing the schedule up to date by hand, without a job.

/// Asks when work of a library entry was performed, `date` proposed, and writes it as a completed line without a job,
/// which the schedule then follows. The date must lie after `minimum`. An entry of one component type touches
/// `componentID`; one of several touches the rig's components, which the rig must hold. True when it was written.
bool CreateJoblessTask(int taskLibID, int rigID, int componentID, Date date, Date minimum);

/// Writes work of a library entry as a completed line without a job: on `componentID` or (0) on the components of the
/// rig that the entry requires. The line's id. The schedule is left to the caller; throws Failure.
int WriteJoblessWork(int taskLibID, int rigID, int componentID, Date date);

/// Updates the row of an entry in the list of what a rig or a component owes: a row of service life is explained, a
/// repack that is on record but not on the schedule is offered, anything else is performed without a job after the date
/// on the schedule. `componentID` is 0 where the row is the rig's. True when the schedule was written.
bool UpdateScheduledTask(int taskLibID, int rigID, int componentID);
