#pragma once
#include <QList>

#include "core/date.h"
#include "jobs/lines.h"

/// Gear that is taken off a job, and out of its rig where the rig wears it.

/// May the gear of this row be taken off the job? A box tells of no gear (`rows` 0), no row and of an empty row.
bool PlaceIsFilled(int rows, int componentType, int componentID);

/// The lines of a job that touched a component.
QList<int> LinesOfComponent(int jobID, int componentID);
/// Is one of these lines the installation of their component?
bool CancellingInstallation(const QList<int>& lines);

/// Takes a component off a job, after a question, and writes the line of the removal when there is a rig. One that the
/// job itself installed may have the installation cancelled instead. Lines that need the component keep it on the job.
/// A rig that wears what the job shows loses the component too, and with its container or reserve the due date of its
/// repack; any other rig is asked about. False when nothing was written.
bool RemoveFromJob(const JobContext& job, int componentID, Date date);
