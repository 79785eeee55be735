#pragma once

/// Empties tblSchedules and rebuilds it from the completed work, with no question asked. A repack row comes from the
/// container alone. The present gear of a rig is not looked at, unlike in UpdateSchedule, and doubles are not looked
/// for: an entry of two component types other than the repack gets one row to each component. Cancelled, it leaves
/// everything as it was.
void ReconstructSchedules();

/// Gives every schedule row the library entry of its line, and tells how many were put right. A row whose line is gone
/// stays as it is.
void AuditScheduleTaskLib();
