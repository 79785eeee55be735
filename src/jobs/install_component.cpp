#include "jobs/install_component.h"

#include "core/default_rows.h"
#include "core/prompts.h"
#include "core/store/connection.h"
#include "core/store/operation.h"
#include "core/text.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/people.h"
#include "gear/rig_types.h"
#include "gear/rigs.h"
#include "jobs/job_components.h"
#include "schedule/gear_moves.h"

using namespace Qt::StringLiterals;

namespace {

bool RefuseDuplicate(int jobID, const ChosenComponent& chosen) {
  if (!ComponentIsInGrid(jobID, chosen.id)) return RefuseDuplicateType(jobID, ComponentTypeOf(chosen.id), chosen.how);
  MsgBox(u"Selected component (%1) is already part of this job."_s.arg(ComponentDescription(chosen.id)),
         u"Selected components already part of this job"_s);
  return true;
}

/// The serial number that was typed names a component which the rig wears already.
bool RefuseSameRig(const JobContext& job, const ChosenComponent& chosen) {
  if (chosen.how != ChosenComponent::BySerial || ComponentRig(chosen.id) != job.rigID) return false;
  MsgBox(u"You have selected a %1 that is part of the same rig.  Selection cancelled"_s.arg(
      ComponentTypeName(ComponentTypeOf(chosen.id))));
  return true;
}

QString InstallLineName(int componentID, int rigID) {
  return u"Install %1 %2 to %3"_s.arg(ComponentTypeName(ComponentTypeOf(componentID)),
                                      ComponentDescription(componentID), RigName(rigID));
}

}  // namespace

InstallWithoutRig AskInstallWithoutRig(int rigID) {
  if (AskYes(Lines({rigID == 0 ? u"This job doesn't have a rig."_s : u"The rig for this job has been deleted."_s,
                    u"Would you like to add a component to"_s, u"this job without creating a rig?"_s}),
             u"Add component to job?"_s))
    return InstallWithoutRig::AddToJob;
  if (rigID == 0 && AskYes(u"Would you like to create a new rig?"_s, u"Create new rig"_s))
    return InstallWithoutRig::CreateRig;
  return InstallWithoutRig::Nothing;
}

bool PlaceIsFree(int componentType, int componentID) {
  if (componentType == 0) {
    MsgBox(u"You must select a component from the above grid"_s, u"Install component"_s);
    return false;
  }
  if (componentID == 0) return true;
  MsgBox(u"Current component must be removed before installing new component"_s, u"Component exists"_s);
  return false;
}

bool RefuseDuplicateType(int jobID, int componentType, ChosenComponent::How how) {
  if (!JobHasComponentType(jobID, componentType)) return false;
  const QString name = ComponentTypeName(componentType).toLower();
  MsgBox(u"This job already has "_s + ArticleFor(name) + name,
         how == ChosenComponent::BySerial ? u"Duplicate component type"_s : u"Duplicate component"_s);
  return true;
}

bool CheckCompentTypesVsRigType(int componentID, int rigType) {
  if (RigTypeHasComponentType(rigType, ComponentTypeOf(componentID))) return true;
  MsgBox(Lines({u"This rig type (%1) cannot contain"_s.arg(RigTypeName(rigType)), u"this component:"_s,
                u"   "_s + ComponentDescription(componentID)}),
         u"Component not compatible with rig type"_s);
  return false;
}

bool AskMoveToCurrentRig(int componentID) {
  const QString type = ComponentTypeName(ComponentTypeOf(componentID));
  const int rig = ComponentRig(componentID);
  return AskYes(Lines({u"The %1 you selected:"_s.arg(type), u"     "_s + ComponentDescription(componentID),
                       u"is already part of a rig: "_s + RigName(rig), u"Owned by: "_s + PersonSortName(RigOwner(rig)),
                       u"Do you want to move this %1 to the current rig?"_s.arg(type)}),
                u"Move %1?"_s.arg(type));
}

namespace {

bool Install(const JobContext& job, const ChosenComponent& chosen, Date date) {
  const bool current = RigComponentsCurrent(job.jobID, job.rigID);
  const int oldRig = ComponentRig(chosen.id);
  const bool moves = current && oldRig != job.rigID && RigExists(oldRig);
  const bool isNew = chosen.how == ChosenComponent::New;
  // All is asked before anything is written: a refusal leaves everything as it was.
  if (!isNew) {
    if (RefuseDuplicate(job.jobID, chosen) || RefuseSameRig(job, chosen)) return false;
    if (!CheckCompentTypesVsRigType(chosen.id, RigType(job.rigID))) return false;
    if (moves && !AskMoveToCurrentRig(chosen.id)) return false;
    if (!CheckOwner(job.rigID, chosen.id)) return false;
  }
  if (isNew) SetComponentOwner(chosen.id, RigOwner(job.rigID));
  if (moves) AddRemovalTask(chosen.id, oldRig, date, job.locationID);
  if (current) {
    FreePlace(job.rigID, ComponentTypeOf(chosen.id));
    SetComponentRig(chosen.id, job.rigID);
  }
  AddJobComponent(job.jobID, chosen.id);
  AddGearLine(job, InstallTaskLibID, InstallLineName(chosen.id, job.rigID), chosen.id, date);
  CheckComponentType(chosen.id);
  return true;
}

}  // namespace

bool InstallOnJob(const JobContext& job, const ChosenComponent& chosen, Date date) {
  bool installed = false;
  const bool written = Operation(u"Sub InstallComponentGuts"_s, [&] { installed = Install(job, chosen, date); });
  return written && installed;
}

void TellNoInstallation() {
  MsgBox(Lines({u"There is no rig associated with this job."_s, u"This will add a component to this job but will not"_s,
                u"record a component installation task"_s}),
         u"Not a component installation"_s);
}

bool AddToJobWithoutRig(int jobID, const ChosenComponent& chosen) {
  if (RefuseDuplicate(jobID, chosen)) return false;
  AddJobComponent(jobID, chosen.id);
  return true;
}
