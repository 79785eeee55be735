#include "jobs/job_components.h"

#include <algorithm>

#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/store/rows.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/rig_types.h"
#include "gear/rigs.h"
#include "schedule/schedule.h"

using namespace Qt::StringLiterals;

namespace {

void DeleteVanishedComponents(int jobID) {
  QList<int> components;
  GetRecordsFromTable(tblJobComponents::JobID, jobID, tblJobComponents::ComponentID, components);
  components.removeIf([](int component) { return component == 0 || ComponentExists(component); });
  if (components.isEmpty()) return;
  Upkeep(u"Sub LoadJobGear"_s, [&] {
    for (int component : components) RemoveJobComponent(jobID, component);
  });
}

}  // namespace

QList<int> ComponentsOfJob(int jobID) {
  QList<int> components;
  GetRecordsFromTable(tblJobComponents::JobID, jobID, tblJobComponents::ComponentID, components);
  components.removeIf([](int component) { return !ComponentExists(component); });
  return components;
}

int JobComponentOfType(int jobID, int componentType) {
  const QList<int> components = ComponentsOfJob(jobID);
  const auto found = std::find_if(components.cbegin(), components.cend(),
                                  [&](int component) { return ComponentTypeOf(component) == componentType; });
  return found == components.cend() ? 0 : *found;
}

void AddJobComponent(int jobID, int componentID) {
  Operation(u"Sub AddJobComponent"_s, [&] {
    AddRow(tblJobComponents::kTable, {{tblJobComponents::JobID, jobID}, {tblJobComponents::ComponentID, componentID}});
  });
}

void RemoveJobComponent(int jobID, int componentID) {
  DeleteRows(tblJobComponents::JobID == jobID && tblJobComponents::ComponentID == componentID);
}

void SnapshotRig(int jobID, int rigID) {
  Operation(u"Sub SnapshotRig"_s, [&] {
    for (const Recordset& component : Rows(tblComponents::RigID == rigID))
      AddJobComponent(jobID, component[tblComponents::ID].ToInt());
  });
}

bool ComponentIsInGrid(int jobID, int componentID) { return ComponentsOfJob(jobID).contains(componentID); }

bool JobHasComponentType(int jobID, int componentType) { return JobComponentOfType(jobID, componentType) != 0; }

bool JobMatchesRig(int jobID, int rigID, QString& differences) {
  bool matches = true;
  Operation(u"Function JobMatchesRig"_s, [&] {
    const int rigType = RigType(rigID);
    if (rigType != 0) {
      for (int type : ComponentTypesOfRigType(rigType)) {
        if (JobComponentOfType(jobID, type) == ComponentOfTypeInRig(rigID, type)) continue;
        matches = false;
        differences += u'\n' + ComponentTypeName(type);
      }
    }
  });
  return matches;
}

bool RigComponentsCurrent(int jobID, int rigID) {
  QString differences;
  return RigExists(rigID) && JobMatchesRig(jobID, rigID, differences);
}

QList<GearPlace> LoadJobGear(int jobID, int rigID) {
  QList<GearPlace> places;
  DeleteVanishedComponents(jobID);
  Operation(u"Sub LoadJobGear"_s, [&] {
    if (const int rigType = rigID == 0 ? 0 : RigType(rigID); rigType != 0) {
      for (int type : ComponentTypesOfRigType(rigType)) places.append({type, JobComponentOfType(jobID, type)});
    } else {
      for (int component : ComponentsOfJob(jobID)) places.append({ComponentTypeOf(component), component});
    }
    std::stable_sort(places.begin(), places.end(),
                     [](const GearPlace& a, const GearPlace& b) { return a.componentType < b.componentType; });
  });
  return places;
}
