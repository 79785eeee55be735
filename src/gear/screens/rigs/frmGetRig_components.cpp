#include "core/clock.h"
#include "core/default_rows.h"
#include "core/prompts.h"
#include "gear/component_rules.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/rig_rules.h"
#include "gear/rigs.h"
#include "gear/screens.h"
#include "gear/screens/rigs/frmGetRig.h"
#include "gear/screens/rigs/ui_frmGetRig.h"
#include "schedule/completions.h"
#include "schedule/schedule.h"

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
  ui_->browser->ReloadRig();
}

void frmGetRig::EditQuickly() {
  const int component = ui_->browser->Component();
  if (hideButtons_ || component == 0 || !AgreesWithComponentList(component)) return;
  if (EditComponentQuickly(component)) ui_->browser->ReloadRig();
}

void frmGetRig::FillPlace(int type) {
  const QString command = AskNewOrOld(type);
  const auto behind = [&command](QStringView start) { return command.mid(start.size()); };
  if (command == "new"_L1) {
    CreateInPlace(type, PickModel(type), QString());
  } else if (command.startsWith("new with s/n:"_L1)) {
    CreateInPlace(type, PickModel(type), behind(u"new with s/n:"));
  } else if (command == "select"_L1) {
    if (const int component = PickComponent(type); component != 0) Install(component);
  } else if (command.startsWith("load component:"_L1)) {
    const int component = behind(u"load component:").toInt();
    if (VerifyComponent(component)) Install(component);
  } else if (command.startsWith("s/n "_L1)) {
    if (const int component = PickComponentBySerial(type, behind(u"s/n ")); component != 0) Install(component);
  }
}

void frmGetRig::CreateInPlace(int type, int model, const QString& serial) {
  if (model == 0) return;
  const int component = NewComponent(model, type, ui_->browser->Rig(), serial);
  if (component == 0) return;
  ui_->browser->ReloadRig();
  EditComponent(component);
  CheckComponentType(component);
}

void frmGetRig::Install(int component) {
  const int rig = ui_->browser->Rig();
  if (!InstallChosenComponent(rig, component, Today())) return;
  ui_->browser->ReloadRig();
  OfferRepack(component);
}

void frmGetRig::OfferRepack(int component) {
  const int rig = ui_->browser->Rig();
  if (RepackPartnerInRig(rig, component) == 0) return;
  int task = 0;
  const Date repack =
      LastRepackOfPair(ComponentOfTypeInRig(rig, kContainer), ComponentOfTypeInRig(rig, kReserveCanopy), task);
  if (!repack.IsNone() && AskAddRepackToSchedule(repack)) ReplaceSchedule(rig, RepackTaskLibID, repack, task, 0);
}

void frmGetRig::RemoveComponent() {
  if (hideButtons_) return;
  if (ui_->browser->SelectedRow() < 0) {
    MsgBox(u"Please select a component to delete"_s, u"Nothing selected"_s);
    return;
  }
  const int component = ui_->browser->Component();
  if (component != 0 && RemoveComponentFromRig(ui_->browser->Rig(), component)) ui_->browser->ReloadRig();
}
