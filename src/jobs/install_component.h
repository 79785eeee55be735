#pragma once
#include <QString>

#include "core/date.h"
#include "jobs/lines.h"

/// Gear that is put on a job, and into its rig as long as the job shows what the rig wears.

/// A component that was chosen for a job, and how.
struct ChosenComponent {
  enum How { New, FromDatabase, BySerial };
  int id = 0;  ///< 0 for none
  How how = FromDatabase;
};

/// What the command to install leads to on a job without a rig, or whose rig has been deleted.
enum class InstallWithoutRig { Nothing, AddToJob, CreateRig };
InstallWithoutRig AskInstallWithoutRig(int rigID);

/// May a component go into this row of the job's gear? A box tells of no row (`componentType` 0) and of a row that
/// holds a component.
bool PlaceIsFree(int componentType, int componentID);

/// Tells that the job has a component of this type; true when it has.
bool RefuseDuplicateType(int jobID, int componentType, ChosenComponent::How how = ChosenComponent::FromDatabase);

/// Can a rig of this type be built with the component? A box tells that it can't.
bool CheckCompentTypesVsRigType(int componentID, int rigType);

/// Puts a component on a job of an existing rig and writes the line of the installation. A component that comes from
/// another rig or another owner is asked about; a job that shows other gear than its rig takes it alone. False when it
/// was refused, and then nothing was written.
bool InstallOnJob(const JobContext& job, const ChosenComponent& chosen, Date date);

/// Tells that no installation is recorded on a job without a rig.
void TellNoInstallation();
/// Puts a component on a job without a rig, and nothing else; false when it was refused.
bool AddToJobWithoutRig(int jobID, const ChosenComponent& chosen);

/// Asks before a component leaves its rig for another one.
bool AskMoveToCurrentRig(int componentID);
