#include "jobs/job_components.h"

#include <algorithm>

#include "core/access.h"
#include "core/trap.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/rig_types.h"
#include "gear/rigs.h"

using namespace Qt::StringLiterals;

namespace {

QString RowsOfJob(int jobID) { return u"Select * from tblJobComponents where Jobid = %1"_s.arg(jobID); }

void DeleteVanishedComponents(int jobID) {
  Recordset rows(RowsOfJob(jobID));
  if (!RecordsetHasRows(rows)) return;
  for (; !rows.Eof(); rows.MoveNext()) {
    if (!ComponentExists(rows[u"ComponentID"].ToInt())) rows.Delete();
  }
}

}  // namespace

QList<int> ComponentsOfJob(int jobID) {
  QList<int> components;
  GetRecordsFromTable(u"tblJobComponents"_s, u"JobID"_s, jobID, u"ComponentID"_s, components);
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
  Trap(u"Sub AddJobComponent"_s, [&] {
    Bracket bracket;
    {
      Recordset rows(u"tblJobComponents"_s);
      rows.AddNew();
      rows.Set(u"JobID", jobID);
      rows.Set(u"ComponentID", componentID);
      rows.Update();
    }
    bracket.Close();
  });
}

bool JobMatchesRig(int jobID, int rigID, QString& differences) {
  bool matches = true;
  Trap(u"Function JobMatchesRig"_s, [&] {
    Bracket bracket;
    const int rigType = RigType(rigID);
    if (rigType != 0) {
      for (int type : ComponentTypesOfRigType(rigType)) {
        if (JobComponentOfType(jobID, type) == ComponentOfTypeInRig(rigID, type)) continue;
        matches = false;
        differences += u'\n' + ComponentTypeName(type);
      }
    }
    bracket.Close();
  });
  return matches;
}

QList<GearPlace> LoadJobGear(int jobID, int rigID) {
  QList<GearPlace> places;
  Trap(u"Sub LoadJobGear"_s, [&] {
    Bracket bracket;
    if (const int rigType = rigID == 0 ? 0 : RigType(rigID); rigType != 0) {
      for (int type : ComponentTypesOfRigType(rigType, true)) places.append({type, JobComponentOfType(jobID, type)});
    } else {
      DeleteVanishedComponents(jobID);
      for (int component : ComponentsOfJob(jobID)) places.append({ComponentTypeOf(component), component});
    }
    std::stable_sort(places.begin(), places.end(),
                     [](const GearPlace& a, const GearPlace& b) { return a.componentType < b.componentType; });
    bracket.Close();
  });
  return places;
}
