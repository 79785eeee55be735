#pragma once
#include "core/date.h"

/// When each recurring piece of work is next due. tblSchedules is derived data: one row to each rig and library entry
/// (or component and library entry) that has a completion on record, recomputed whenever a completion changes. Only
/// these routines write it. An entry without an interval has no rows; the reserve repack is keyed by the rig alone.

/// Rolls a date by an interval of days (1), months (2) or years (3); other types give no date. A roll by months or
/// years keeps the day: a day that the month lacks throws Failure("Type mismatch"). A start of 0 shows a notice.
Date GetNextDueDate(int number, int intervalType, Date startDate);

/// Recomputes one row after a line of work was completed, un-completed, edited or deleted. The row follows the latest
/// completion on record, never the line just touched. Does nothing for `taskLibID` 0 and entries without an interval.
void UpdateSchedule(int taskLibID, int rigID, int componentID);

/// Deletes and rewrites one row. A due date that can't be built shows the
/// routine's box and leaves no row.
void ReplaceSchedule(int rigID, int taskLibID, Date dateDone, int taskID, int componentID);

/// Deletes the row of a rig, or of a component when there is no rig; a repack's always by its rig.
void DeleteSchedule(int rigID, int taskLibID, int componentID);

/// The rows that came from one line of work, those of a component, those of a library entry; for what is deleted.
void DeleteSchedulesOfTask(int taskID);
void DeleteSchedulesOfComponent(int componentID);
void DeleteSchedulesOfEntry(int taskLibID);

/// Adds a row without deleting any; `scheduleID` is its id, 0 when the entry has no interval or the due date can't be
/// built.
void AddSchedule(int rigID, int taskLibID, int taskID, Date dateDone, int componentID, int& scheduleID);

/// A rig loses a component: a container or reserve takes the rig's repack row with it, the component's own rows stay
/// with it and leave the rig.
void RemoveComponentFromSchedule(int componentID, int rigID);

/// The due date of a row; no date when there is none.
Date GetDueDateByComponent(int componentID, int taskLibID);
Date GetDueDateByRig(int rigID, int taskLibID);
/// The earliest due date of a component's or a rig's rows.
Date GetEarliestDueByComponent(int componentID);
Date GetEarliestDueByRig(int rigID);
/// The due date of the rig's repack, and the id of its row (0 when there is none).
Date GetRepackDue(int rigID, int& scheduleID);
