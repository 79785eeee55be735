#include "reports/gear_table.h"

#include "core/format.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/rig_types.h"
#include "gear/rigs.h"

using namespace Qt::StringLiterals;

GearRow GearRowOf(int componentID) {
  const Date dom = ComponentDom(componentID);
  return {ComponentTypeName(ComponentTypeOf(componentID)),
          QString(ComponentSubType(componentID) + u' ' + ModelName(ComponentModel(componentID))).trimmed(),
          ComponentSerial(componentID), dom.IsNone() ? QString() : Format(dom, u"mm/dd/yyyy"_s)};
}

QList<GearRow> GearRowsOfRig(int rigID) {
  QList<GearRow> rows;
  for (const int type : ComponentTypesOfRigType(RigType(rigID), true)) {
    rows << GearRowOf(ComponentOfTypeInRig(rigID, type));  // blank where the rig has none
    rows.last().type = ComponentTypeName(type);
  }
  return rows;
}

RigTable LoadRigTable(int rigID) {
  return {RigTypeName(RigType(rigID)) + u"  (Rig name: "_s + RigName(rigID) + u')', GearRowsOfRig(rigID)};
}
