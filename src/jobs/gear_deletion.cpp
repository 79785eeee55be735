#include "jobs/gear_deletion.h"

#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/rig_type_rules.h"
#include "gear/rig_types.h"
#include "schedule/schedule.h"

using namespace Qt::StringLiterals;

namespace {

QStringList UsesOf(int component) {
  QStringList uses;
  Operation(u"Function UsesOf"_s, [&] {
    if (ComponentRig(component) != 0) uses << u"    as part of a rig"_s;
    if (GetNumberRecords(tblJobComponents::ComponentID, component) > 0) uses << u"    is used in one or more jobs"_s;
    if (GetNumberRecords(tblTaskComponents::CompID, component) > 0) uses << u"    is used in one or more tasks"_s;
    if (GetNumberRecords(tblSchedules::ComponentID, component) > 0) uses << u"    is used in one or more schedules"_s;
  });
  return uses;
}

}  // namespace

bool DeleteComponent(int component) {
  if (component == 0) {
    MsgBox(u"Please select a component"_s, u"Nothing selected"_s);
    return false;
  }
  const QString name = ComponentDescription(component);
  const QStringList uses = UsesOf(component);
  if (uses.isEmpty()) {
    if (!AskYes(u"Are you sure you want to delete "_s + name + u'?',
                u"Delete "_s + ComponentTypeName(ComponentTypeOf(component))))
      return false;
  } else if (!AskYes(Lines(QStringList(u"This item, "_s + name + u", is being used:"_s) + uses +
                           QStringList{u"Deleting this component will affect the above items"_s,
                                       u"(You can see a list of these from the REPORTS menu)"_s,
                                       u"Are you sure you want to delete this component?"_s, u"(not recommended)"_s}),
                     u"Deleting NOT recommended"_s)) {
    return false;
  }
  return Operation(u"Sub DeleteComponent"_s, [&] {
    DeleteComponentRow(component);
    DeleteRecordsFromTable(tblJobComponents::ComponentID, component);
    DeleteSchedulesOfComponent(component);
    DeleteRecordsFromTable(tblTaskComponents::CompID, component);
  });
}

RigTypeDeletion DeleteRigType(int id) {
  if (id == 0) {
    MsgBox(u"You must select a rig type"_s);
    return RigTypeDeletion::Kept;
  }
  if (const int rigs = NumberOfRigsOfType(id); rigs > 0) {
    const QString text =
        Lines({(rigs == 1 ? u"There is one rig"_s : u"There are "_s + QString::number(rigs) + u" rigs"_s) +
                   u" of that type in your rig database"_s,
               QString(), u"This rig type cannot be deleted while being used."_s, QString(),
               u"Would you like to see of list of rigs of this type?"_s});
    return AskYes(text, u"Rig Type:  "_s + RigTypeName(id)) ? RigTypeDeletion::ShowRigs : RigTypeDeletion::Kept;
  }
  if (!AskYes(u"Delete "_s + RigTypeName(id) + u'?', u"Are you sure?"_s)) return RigTypeDeletion::Kept;
  const bool deleted = Operation(u"Sub DeleteRigType"_s, [&] {
    DeleteRecordsFromTable(tblRepackByType::TypeID, id);
    DeleteRigTypeRow(id);
  });
  return deleted ? RigTypeDeletion::Deleted : RigTypeDeletion::Kept;
}
