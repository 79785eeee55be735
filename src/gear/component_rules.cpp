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
    Condition wanted = tblComponents::SerialNumber != u"";
    if (type != 0) wanted = tblComponents::TypeID == type && wanted;
    for (const Recordset& row : Rows(Select(wanted).OrderBy(tblComponents::SerialNumber)))
      serials.Add(row[tblComponents::SerialNumber].ToText(), row[tblComponents::ID].ToInt());
  });
  return serials;
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
