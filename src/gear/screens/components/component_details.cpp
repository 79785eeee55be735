#include "gear/screens/components/component_details.h"

#include "core/format.h"
#include "core/store/tables.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/people.h"
#include "gear/rigs.h"

using namespace Qt::StringLiterals;

QStringList ComponentDetails::ShowsTables() {
  return {tblComponents::kTable, tblModels::kTable, tblComponentTypes::kTable, tblPeople::kTable, tblRig::kTable};
}

ComponentDetails DetailsOf(int component) {
  const int rig = ComponentRig(component);
  const Date dom = ComponentDom(component);
  const bool hasRig = RigExists(rig);
  return {ComponentDescription(component),
          ComponentSerial(component),
          PersonDisplayName(ComponentOwner(component)),
          ComponentTypeName(ComponentTypeOf(component)),
          hasRig ? RigName(rig) : u"n/a"_s,
          dom.IsNone() ? u"(not entered)"_s : Format(dom, u"mm/dd/yyyy"_s),
          hasRig};
}
