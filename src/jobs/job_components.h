#pragma once
#include <QList>
#include <QString>

/// The gear that a job was done on: a snapshot (tblJobComponents), since the rig lives on and its gear changes.

/// The job's component of a type: the first of its rows, 0 if none.
int JobComponentOfType(int jobID, int componentType);
/// The components on a job, in the order they were added; a row whose component has gone is left out.
QList<int> ComponentsOfJob(int jobID);
/// Is this component on the job, or one of this type?
bool ComponentIsInGrid(int jobID, int componentID);
bool JobHasComponentType(int jobID, int componentType);
/// Puts a component on a job.
void AddJobComponent(int jobID, int componentID);
void RemoveJobComponent(int jobID, int componentID);
/// Puts all that a rig wears on a job.
void SnapshotRig(int jobID, int rigID);

/// Does the job's gear equal the rig's present gear, type by type of the rig type? Each type that differs appends a
/// line end and its name to `differences`. A rig without a rig type always matches.
bool JobMatchesRig(int jobID, int rigID, QString& differences);

/// Is what the job shows what its rig wears now, so that gear put on the job or taken off it goes into the rig or
/// leaves it too? False for a job without an existing rig.
bool RigComponentsCurrent(int jobID, int rigID);

/// A place for gear as the job shows it: a type, and the component that fills it (0 for an empty place).
struct GearPlace {
  int componentType = 0;
  int componentID = 0;
};
/// The places of a job's gear in the order of their types: one to each type of its rig's type, or one to each component
/// when there is no rig or no rig type. Rows whose component has gone are deleted on the spot.
QList<GearPlace> LoadJobGear(int jobID, int rigID);
