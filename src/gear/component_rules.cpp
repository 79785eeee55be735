#include "gear/component_rules.h"

#include "core/forms.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/people.h"
#include "gear/rigs.h"
#include "gear/selected_component.h"

using namespace Qt::StringLiterals;

namespace {

int LivingOwner(int owner) { return owner > 0 && PersonExists(owner) ? owner : 0; }

QStringList UsesOf(int component) {
  QStringList uses;
  Operation(u"Function UsesOf"_s, [&] {
    if (ComponentRig(component) != 0) uses << u"    as part of a rig"_s;
    if (GetNumberRecords(u"tblJobComponents"_s, u"ComponentID"_s, component) > 0)
      uses << u"    is used in one or more jobs"_s;
    if (GetNumberRecords(u"tblTaskComponents"_s, u"CompID"_s, component) > 0)
      uses << u"    is used in one or more tasks"_s;
    if (GetNumberRecords(u"tblSchedules"_s, u"ComponentID"_s, component) > 0)
      uses << u"    is used in one or more schedules"_s;
  });
  return uses;
}

QString WithRig(int component) {
  const int rig = ComponentRig(component);
  return ComponentDescription(component) +
         (RigExists(rig) ? u" (from "_s + RigName(rig) + u')' : u" (not part of a rig)"_s);
}

}  // namespace

QString CommandForSerial(const QString& serial, int type) {
  const QString typed = serial.trimmed();
  if (typed.isEmpty()) return {};
  const QString typeName = type == 0 ? u"component"_s : ComponentTypeName(type);
  int id = 0;
  const int count = FindBySerial(typed, type, id);
  if (count == 1) return u"load component:"_s + QString::number(id);
  if (count == 0) {
    const bool create =
        AskYes(Lines({u"Serial number "_s + typed + u" is not found in the "_s + typeName + u" database"_s,
                      u"Would you like to create a new "_s + typeName + u" using that serial number?"_s}),
               u"Add new "_s + typeName + u'?');
    return create ? u"new with s/n:"_s + typed : QString();
  }
  const bool show = AskYes(Lines({u"The "_s + typeName + u" database shows "_s + QString::number(count) +
                                      u" components with that serial number"_s,
                                  u"Would you like to see them?"_s}),
                           u"Serial number "_s + typed + u" has "_s + QString::number(count) + u" matches"_s);
  return show ? u"s/n "_s + typed.toUpper() : u"cancel"_s;
}

IdList LoadSerials(int type) {
  IdList serials;
  Operation(u"Function LoadSerials"_s, [&] {
    const QString ofType = type == 0 ? QString() : u"TypeID = %1 and "_s.arg(type);
    Recordset rows(u"Select * from tblcomponents where "_s + ofType + u"SerialNumber <> '' order by serialnumber "_s);
    if (RecordsetHasRows(rows))
      for (; !rows.Eof(); rows.MoveNext()) serials.Add(rows[u"SerialNumber"].ToText(), rows[u"ID"].ToInt());
  });
  return serials;
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

bool AgreesWithComponentList(int component) {
  const QString list = u"frmComponentList2"_s;
  const auto* selecting = Forms::IsShown(list) ? dynamic_cast<SelectsComponent*>(Forms::Find(list)) : nullptr;
  const int selected = selecting ? selecting->SelectedComponent() : 0;
  if (selected == 0 || selected == component) return true;
  return AskYes(
      Lines({u"Please notice:"_s, u"You are about to edit this component: "_s, u"           "_s + WithRig(component),
             u"but you have selected "_s + WithRig(selected), u"from the components list."_s,
             u"Are you sure you want to edit "_s + ComponentDescription(component)}),
      u"Different component selected"_s);
}

bool ChangeComponentOwner(int component, int newOwner) {
  const int rig = ComponentRig(component);
  const int rigOwner = RigOwner(rig);
  if (RigExists(rig) && rigOwner != newOwner &&
      !AskYes(
          Lines({u"This component is part of a rig ("_s + RigName(rig) + u") which is "_s,
                 u"owner by "_s + PersonDisplayName(rigOwner), QString(),
                 u"Are you sure you want to change the component's owner to "_s + PersonDisplayName(newOwner) + u'?'}),
          u"Change component owner?"_s))
    return false;
  return Operation(u"Sub ChangeComponentOwner"_s, [&] { SetComponentOwner(component, newOwner); });
}

bool RemoveFromItsRig(int component) {
  const int rig = ComponentRig(component);
  const int type = ComponentTypeOf(component);
  if (!AskYes(u"Remove "_s + ComponentDescription(component) + u" from "_s + RigName(rig) + u'?',
              u"Remove "_s + ComponentTypeName(type) + u'?'))
    return false;
  return Operation(u"Sub RemoveFromItsRig"_s, [&] {
    DetachComponent(rig, component, type);
    InstallComponent(0, component, ComponentOwner(component));
    UpdateTable(u"tblPhotos"_s, u"rigid"_s, 0, u"componentid"_s, component);
  });
}

void RepairComponentOwner(int component) {
  const int rigOwner = LivingOwner(RigOwner(ComponentRig(component)));
  if (rigOwner == 0 || LivingOwner(ComponentOwner(component)) != 0) return;
  Upkeep(u"Sub RepairComponentOwner"_s, [&] { SetComponentOwner(component, rigOwner); });
}

void TellLostComponentType(int component) {
  MsgBox(
      Lines({u"This component has lost its component type"_s, QString(), u"     "_s + ComponentDescription(component),
             QString(), u"Please select a component type on the next screen"_s}));
}

bool SetLostComponentType(int component, int type) {
  if (type <= 0) {
    MsgBox(u"You must select a component type"_s);
    return false;
  }
  if (!AskYes(
          Lines({ComponentDescription(component) + u" = "_s + ComponentTypeName(type) + u'?', u"Is this correct?"_s}),
          kProgramTitle))
    return false;
  return Operation(u"Sub SetLostComponentType"_s, [&] { SetComponentType(component, type); });
}

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
    DeleteRecordsFromTable(u"tblComponents"_s, u"ID"_s, component);
    DeleteRecordsFromTable(u"tblJobComponents"_s, u"ComponentID"_s, component);
    DeleteRecordsFromTable(u"tblSchedules"_s, u"ComponentID"_s, component);
    DeleteRecordsFromTable(u"tblTaskComponents"_s, u"CompID"_s, component);
  });
}
