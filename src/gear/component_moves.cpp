#include "core/access.h"
#include "core/default_rows.h"
#include "core/trap.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/people.h"
#include "gear/rigs.h"

using namespace Qt::StringLiterals;

namespace {

int WriteRemoval(int component, int rig, Date date, int location) {
  Recordset tasks(u"tblTasks"_s);
  tasks.AddNew();
  tasks.Set(u"JobID", 0);
  tasks.Set(u"CustomerID", RigOwner(rig));
  tasks.Set(u"RiggerID", 0);
  tasks.Set(u"FlatRate", Money());
  tasks.Set(u"HourlyRate", Money());
  tasks.Set(u"NumHours", 0);
  tasks.Set(u"Tax", Money());
  tasks.Set(u"comments", u" ");
  tasks.Set(u"DateTaskCompleted", date);
  tasks.Set(u"DateTaskStarted", date);
  tasks.Set(u"TaskLibID", RemoveTaskLibID);
  tasks.Set(u"LogBook", false);
  tasks.Set(u"status", -1);
  tasks.Set(u"TaskName", u"Remove "_s + ComponentTypeName(ComponentTypeOf(component)) + u' ' +
                             ComponentDescription(component) + u" from "_s + RigName(rig));
  tasks.Set(u"systemID", rig);
  tasks.Set(u"PartID", 0);
  tasks.Set(u"IsEvent", false);
  tasks.Set(u"LocationID", location);
  tasks.Update();
  return tasks[u"ID"].ToInt();
}

/// An owner whose row has gone counts as none.
int LivingOwner(int owner) { return owner > 0 && PersonExists(owner) ? owner : 0; }

}  // namespace

void AddRemovalTask(int component, int rig, Date date, int location) {
  Trap(u"Sub AddRemovalTask"_s, [&] {
    Bracket bracket;
    const int task = WriteRemoval(component, rig, date, location);
    {
      Recordset touched(u"tblTaskComponents"_s);
      touched.AddNew();
      touched.Set(u"TaskID", task);
      touched.Set(u"CompID", component);
      touched.Set(u"Complete", true);
      touched.Update();
    }
    bracket.Close();
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
  Trap(u"Sub CheckMove"_s, [&] {
    Bracket bracket;
    if (!date.IsNone()) AddRemovalTask(moved, oldRig, date, location);
    FreePlace(rig, type);
    InstallComponent(rig, moved, oldOwner);
    bracket.Close();
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
