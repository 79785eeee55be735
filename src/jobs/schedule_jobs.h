#pragma once

/// The way from what falls due to the jobs: each with the questions that the gear's past raises.

/// The job on which a line of work was done, after telling where gear and owners have changed since; 0, told, when the
/// work was not part of a job. `rigID` is the rig that the row shows, 0 for none.
int JobOfScheduledTask(int taskID, int rigID);

/// Asks before a job is started for gear without a rig, or for a rig without a customer. True to go on.
bool AskNewJobFor(int customerID, int rigID);
