#pragma once
#include "core/date.h"

/// A job is complete when every line on it is complete; it follows its lines and nothing else.

/// Writes a line's status and completion date (none when the flag is clear), and the flag to its ties to components.
void SetTaskStatus(int taskID, bool complete, Date date);

/// The one component that a line touched; 0 when it touched several or none.
int GetThisComponentID(int taskID);

/// Work reaches the schedule unless it was done on gear that the rig no longer wears. A job without a rig always does.
bool ShouldAdd2Schedule(int rigID, bool rigComponentsCurrent);

/// Does the Status column show the line as done? Events always, other lines when they are complete.
bool LineIsDone(int taskID);
/// False for a job without lines and for one with a line that is not done.
bool AllChecked(int jobID);

/// Flips a line: an incomplete one (waiting on parts counts as such) is completed on `date`, a complete one is taken
/// back. The schedule and the job's status follow. An event never changes, nor does a line that has gone: false, as
/// after a failure.
bool ToggleComplete(int taskID, Date date, bool rigComponentsCurrent);

/// Brings the job's status in line with its lines, `date` being the completion date when all are done; whether they
/// are.
bool CheckJobStatus(int jobID, Date date);

/// Recomputes the job's status whenever it is loaded, and writes it where it differs. A complete job takes the
/// completion date of its first line; a job without lines is complete with no date. A line whose status and date
/// disagree shows a notice and stays as it is. The completion date that results, none for an incomplete job.
Date RecomputeJobStatus(int jobID);

/// Completes all lines on `date`, or takes all back; each line passes through ToggleComplete.
void CompleteAllTasks(int jobID, bool complete, Date date, bool rigComponentsCurrent);
