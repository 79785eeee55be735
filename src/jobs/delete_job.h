#pragma once

/// Ends of a job.

/// Asks, then deletes a job with its lines and its snapshot of gear. A line of a scheduled entry takes its completion
/// back from the rig's schedule. A job with lines is deleted unasked when `ask` is false. `cancelled` tells a No,
/// or that it could not be written.
void DeleteJob(int jobID, bool ask, bool& cancelled);

/// Deletes a job's row and its snapshot of gear; lines stay.
void DeleteJobRow(int jobID);

/// Clears what starts of jobs that were never finished left behind: jobs with a blank title or the title "loadme".
void AuditJobs();

/// Asks, then deletes every job without lines. True when jobs were deleted.
bool DeleteAllEmptyJobs();
