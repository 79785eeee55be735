#include "core/prompts.h"
#include "gear/component_rules.h"
#include "gear/components.h"
#include "gear/rig_rules.h"
#include "gear/rigs.h"
#include "gear/screens.h"
#include "gear/screens/rigs/frmGetRig.h"
#include "gear/screens/rigs/ui_frmGetRig.h"
#include "schedule/gear_moves.h"

using namespace Qt::StringLiterals;

// What the rig screen does to the components of a rig.

void frmGetRig::EnterComponent() {
  if (hideButtons_ || ui_->browser->Rig() == 0) return;
  if (ui_->browser->SelectedRow() < 0) {
    MsgBox(u"Select a component form the above grid"_s, u"Please select a component"_s);
    return;
  }
  if (const int component = ui_->browser->Component(); component != 0)
    ShowComponent(component);
  else
    FillPlace(ui_->browser->ComponentType());
}

void frmGetRig::EditQuickly() {
  const int component = ui_->browser->Component();
  if (hideButtons_ || component == 0 || !AgreesWithComponentList(component)) return;
  EditComponentQuickly(component);
}

void frmGetRig::FillPlace(int type) {
  const int rig = Rig();
  const QString command = AskNewOrOld(type);
  const auto behind = [&command](QStringView start) { return command.mid(start.size()); };
  if (command == "new"_L1) {
    CreateInPlace(rig, type, PickModel(type), QString());
  } else if (command.startsWith("new with s/n:"_L1)) {
    CreateInPlace(rig, type, PickModel(type), behind(u"new with s/n:"));
  } else if (command == "select"_L1) {
    if (const int component = PickComponent(type); component != 0) Install(rig, component);
  } else if (command.startsWith("load component:"_L1)) {
    const int component = behind(u"load component:").toInt();
    if (VerifyComponent(component)) Install(rig, component);
  } else if (command.startsWith("s/n "_L1)) {
    if (const int component = PickComponentBySerial(type, behind(u"s/n ")); component != 0) Install(rig, component);
  }
}

void frmGetRig::CreateInPlace(int rig, int type, int model, const QString& serial) {
  if (model == 0 || !RigExists(rig)) return;
  const int component = NewComponent(model, type, rig, serial);
  if (component == 0) return;
  EditComponent(component);
  CheckComponentType(component);
}

void frmGetRig::Install(int rig, int component) {
  if (RigExists(rig)) InstallAndOfferRepack(rig, component);
}

void frmGetRig::RemoveComponent() {
  if (hideButtons_) return;
  if (ui_->browser->SelectedRow() < 0) {
    MsgBox(u"Please select a component to delete"_s, u"Nothing selected"_s);
    return;
  }
  const int component = ui_->browser->Component();
  if (component != 0) RemoveComponentFromRig(Rig(), component);
}
