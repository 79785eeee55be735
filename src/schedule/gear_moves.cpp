#include "schedule/gear_moves.h"

#include "core/clock.h"
#include "core/default_rows.h"
#include "core/prompts.h"
#include "core/store/operation.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/people.h"
#include "gear/rig_rules.h"
#include "gear/rigs.h"
#include "schedule/completions.h"
#include "schedule/jobless_task.h"
#include "schedule/schedule.h"

using namespace Qt::StringLiterals;

namespace {

/// An owner whose row has gone counts as none.
int LivingOwner(int owner) { return owner > 0 && PersonExists(owner) ? owner : 0; }

void OfferRepack(int rigID, int componentID) {
  if (RepackPartnerInRig(rigID, componentID) == 0) return;
  int taskID = 0;
  const Date repack =
      LastRepackOfPair(ComponentOfTypeInRig(rigID, kContainer), ComponentOfTypeInRig(rigID, kReserveCanopy), taskID);
  if (!repack.IsNone() && AskAddRepackToSchedule(repack)) ReplaceSchedule(rigID, RepackTaskLibID, repack, taskID, 0);
}

}  // namespace

void AddRemovalTask(int component, int rig, Date date, int location) {
  Operation(u"Sub AddRemovalTask"_s, [&] {
    WriteJoblessTask({.taskLibID = RemoveTaskLibID,
                      .name = u"Remove %1 %2 from %3"_s.arg(ComponentTypeName(ComponentTypeOf(component)),
                                                            ComponentDescription(component), RigName(rig)),
                      .rigID = rig,
                      .date = date,
                      .locationID = location,
                      .components = {component}});
  });
}

bool CheckMove(int type, int rig, int& component, bool silent, Date date, int location) {
  if (component == 0 || silent) return true;
  const int oldRig = ComponentRig(component);
  if (oldRig == 0) return true;
  if (oldRig == rig) {
    MsgBox(u"You have selected a "_s + ComponentDescription(component) +
               u" that is part of the same rig.  Selection cancelled"_s,
           kProgramTitle, Icon::Exclamation);
    return true;
  }
  const QString typeName = ComponentTypeName(type);
  const int oldOwner = RigOwner(oldRig);
  if (!AskYes(Lines({u"The "_s + typeName + u" you selected:"_s, u"     "_s + ComponentDescription(component),
                     u"is already part of a rig: "_s, RigName(oldRig), u"Owned by: "_s, PersonSortName(oldOwner),
                     u"Do you want to move this "_s + typeName + u" to the current rig?"_s}),
              u"Move "_s + typeName + u'?')) {
    component = 0;
    return false;
  }
  const int moved = component;
  Operation(u"Sub CheckMove"_s, [&] {
    if (!date.IsNone()) AddRemovalTask(moved, oldRig, date, location);
    FreePlace(rig, type);
    InstallComponent(rig, moved, oldOwner);
  });
  return true;
}

bool CheckOwner(int rig, int component) {
  const int rigOwner = LivingOwner(RigOwner(rig));
  const int owner = LivingOwner(ComponentOwner(component));
  if (rigOwner == 0 || owner == 0 || rigOwner == owner) return true;
  const QString rigOwnerName = PersonDisplayName(rigOwner);
  const Answer answer = Ask(
      Lines({u"This component ("_s + ComponentDescription(component) + u") is owned by "_s + PersonDisplayName(owner),
             u"but you are adding it to a rig owned by "_s + rigOwnerName, QString(),
             u"Do you want to change component owner to "_s + rigOwnerName + u'?'}),
      u"Change component owner?"_s, Buttons::YesNoCancel, Answer::No);
  if (answer == Answer::Cancel) return false;
  if (answer == Answer::Yes) SetComponentOwner(component, rigOwner);
  return true;
}

bool AskAddToRig(int type, int rig, int component) {
  const QString typeName = ComponentTypeName(type);
  if (!AskYes(Lines({u"The "_s + typeName + u" you selected:"_s, u"     "_s + ComponentDescription(component),
                     u"is not part of the rig: "_s + RigName(rig),
                     u"Do you want to add this "_s + typeName + u" to this rig?"_s}),
              u"Add "_s + typeName + u'?'))
    return false;
  return Operation(u"Sub AskAddToRig"_s, [&] {
    FreePlace(rig, type);
    InstallComponent(rig, component, ComponentOwner(component));
  });
}

bool InstallChosenComponent(int rig, int component, Date today) {
  bool installed = false;
  const bool written = Operation(u"Sub InstallChosenComponent"_s, [&] {
    SetLastComponentID(component);
    const int type = ComponentTypeOf(component);
    if (!CheckMove(type, rig, component, false, today) || !CheckOwner(rig, component)) return;
    if (ComponentRig(component) != rig) FreePlace(rig, type);
    SetComponentRig(component, rig);
    MovePhotos(component, rig);
    CheckComponentType(component);
    installed = true;
  });
  return written && installed;
}

bool InstallAndOfferRepack(int rigID, int componentID) {
  bool installed = false;
  const bool written = Operation({u"Sub InstallChosenComponent"_s, u"Install component"_s}, [&] {
    installed = InstallChosenComponent(rigID, componentID, Today());
    if (installed) OfferRepack(rigID, componentID);
  });
  return written && installed;
}

bool RemoveFromItsRig(int component) {
  const int rig = ComponentRig(component);
  if (!AskYes(u"Remove "_s + ComponentDescription(component) + u" from "_s + RigName(rig) + u'?',
              u"Remove "_s + ComponentTypeName(ComponentTypeOf(component)) + u'?'))
    return false;
  return Operation(u"Sub RemoveFromItsRig"_s, [&] {
    RemoveComponentFromSchedule(component, rig);
    InstallComponent(0, component, ComponentOwner(component));
    MovePhotos(component, 0);
  });
}

bool RemoveComponentFromRig(int rig, int component) {
  if (!AskYes(Lines({u"Remove "_s + ComponentDescription(component) + u" from "_s + RigName(rig) + u'?', QString(),
                     u"(component will still be in the database)"_s}),
              u"Remove "_s + ComponentTypeName(ComponentTypeOf(component)) + u'?'))
    return false;
  return Operation(u"Sub RemoveComponentFromRig"_s, [&] {
    RemoveComponentFromSchedule(component, rig);
    SetComponentRig(component, 0);
  });
}

bool DeleteRig(int rig) {
  return Operation(u"Sub DeleteRig"_s, [&] {
    DeleteSchedule(rig, RepackTaskLibID, 0);
    DeleteRigRow(rig);
  });
}
