#include "jobs/rig_sync.h"

#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/people.h"
#include "gear/rig_types.h"
#include "gear/rigs.h"
#include "jobs/job_components.h"

using namespace Qt::StringLiterals;

namespace {

bool MayUpdate(int jobID, int rigID) {
  const QString title = u"Can't Update rig?"_s;
  if (rigID == 0) {
    MsgBox(u"This job doesn't have a rig.  "_s, title);
    return false;
  }
  if (!RigExists(rigID)) {
    MsgBox(u"The rig for this job has been deleted"_s, title);
    return false;
  }
  QString differences;
  if (JobMatchesRig(jobID, rigID, differences)) {
    MsgBox(u"The rig components for this job are the rig's current components"_s, u"Components are current"_s);
    return false;
  }
  return AskYes(u"This will change the following components in rig %1:"_s.arg(RigName(rigID)) + differences +
                    u"\nAre you sure you want to do this?"_s,
                u"Update rig?"_s);
}

/// A component that is in another owner's rig leaves it only when the person says so.
bool MayTake(int componentID, int rigID) {
  const int otherRig = ComponentRig(componentID);
  const int otherOwner = RigOwner(otherRig);
  if (!RigExists(otherRig) || otherOwner == RigOwner(rigID)) return true;
  const QString name = RigName(otherRig);
  return Ask(Lines({u"Records indicate that he %1 %2 listed above is"_s.arg(
                        ComponentTypeName(ComponentTypeOf(componentID)), ComponentDescription(componentID)),
                    u"installed in %1 owned by %2"_s.arg(name, PersonDisplayName(otherOwner)), QString(),
                    u"If you proceed, that rig will have the component removed and installed in the current rig"_s,
                    u"Do you want to do this?"_s}),
             u"Remove component from "_s + name, Buttons::YesNoCancel, Answer::No) == Answer::Yes;
}

/// Component 0 leaves the place empty.
void PutIntoRig(int componentID, int type, int rigID) {
  Operation(u"Sub PutIntoRig"_s, [&] {
    FreePlace(rigID, type);
    if (ComponentTypeOf(componentID) == type) SetComponentRig(componentID, rigID);
  });
}

}  // namespace

bool UpdateRigFromJob(int jobID, int rigID) {
  if (!MayUpdate(jobID, rigID)) return false;
  return Operation(u"Sub UpdateRigFromJob"_s, [&] {
    for (int type : ComponentTypesOfRigType(RigType(rigID))) {
      const int component = JobComponentOfType(jobID, type);
      const bool isInRig = component != 0 && ComponentRig(component) == rigID;
      if (!isInRig && MayTake(component, rigID)) PutIntoRig(component, type, rigID);
    }
  });
}
