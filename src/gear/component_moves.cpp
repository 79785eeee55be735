#include "core/default_rows.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "gear/components.h"
#include "gear/jobless_task.h"
#include "gear/models.h"
#include "gear/people.h"
#include "gear/rigs.h"

using namespace Qt::StringLiterals;

namespace {

/// An owner whose row has gone counts as none.
int LivingOwner(int owner) { return owner > 0 && PersonExists(owner) ? owner : 0; }

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
