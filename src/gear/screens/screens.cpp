#include "gear/screens.h"

#include "core/prompts.h"
#include "core/widgets/modal_use.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/screens/catalogue/frmModel.h"
#include "gear/screens/components/frmComponent.h"
#include "gear/screens/components/frmComponentEdit.h"
#include "gear/screens/components/frmComponentVerify.h"
#include "gear/screens/components/frmNewOrOld.h"
#include "gear/screens/components/frmPickComponent.h"
#include "gear/screens/components/frmSerialNumber.h"
#include "gear/screens/people/frmPeople.h"
#include "gear/screens/rigs/frmCurrentComponents.h"
#include "gear/screens/rigs/frmDeleteSystem.h"
#include "gear/screens/rigs/frmGetRig.h"
#include "gear/screens/rigs/frmPickRig.h"

using namespace Qt::StringLiterals;

namespace {

EnteredComponent EditEntry(const ComponentEntry& entry) {
  const ModalUse<frmComponentEdit> form;
  if (!form) return {};
  form->SetEntry(entry);
  form->ShowModal();
  return {form->Result(), form->Tag() == "save"_L1};
}

}  // namespace

int ShowPeople(int start, bool ownerSetup) {
  auto& form = SharedForm<frmPeople>();
  if (form.FormIsShown()) {
    form.Show();
    return form.GoTo(start);
  }
  form.SetStart(start);
  form.SetOwnerSetup(ownerSetup);
  form.ShowModal();
  const int person = ownerSetup ? form.SavedOwner() : qMax(form.CurrentPerson(), 0);
  form.UnloadForm();
  return person;
}

void OpenPeople(int start) {
  auto& form = SharedForm<frmPeople>();
  const bool wasShown = form.FormIsShown();
  if (!wasShown) form.SetStart(start);
  form.Show();
  if (wasShown) form.GoTo(start);
}

bool ShowRigs(const RigScreenStart& start) {
  auto& form = SharedForm<frmGetRig>();
  if (form.FormIsShown()) {
    MsgBox(u"Rig screen is already showing"_s);
    return false;
  }
  form.SetStart(start);
  form.ShowModal();
  form.UnloadForm();
  return true;
}

void OpenRigs(const RigScreenStart& start) {
  auto& form = SharedForm<frmGetRig>();
  if (!form.FormIsShown())
    form.SetStart(start);
  else if (!form.isModal())
    form.GoTo(start);
  form.Show();
  if (form.isModal() && start.rig != 0 && start.rig != form.Rig()) ConfirmRigDeletion(start.rig, true);
}

void ShowRig(int rig) {
  if (Forms::IsShown(u"frmGetRig"_s))
    ConfirmRigDeletion(rig, true);
  else
    ShowRigs({.rig = rig, .hideButtons = true});
}

void ShowCurrentComponents(int rig) {
  const ModalUse<frmCurrentComponents> form;
  if (!form) return;
  form->SetRig(rig);
  form->ShowModal();
}

bool PickRig(int& rig, int& customer, int rigType) {
  const ModalUse<frmPickRig> form;
  if (form) {
    form->SetStart(customer, rig, rigType);
    form->ShowModal();
  }
  const bool chosen = form && form->Tag() == "select"_L1;
  rig = chosen ? form->Rig() : 0;
  customer = chosen ? form->Customer() : 0;
  return chosen;
}

bool ConfirmRigDeletion(int rig, bool showOnly) {
  auto& form = SharedForm<frmDeleteSystem>();
  if (form.FormIsShown()) {
    MsgBox(u"frmDeleteSystem list already showing"_s);
    return false;
  }
  form.SetRig(rig, showOnly);
  form.ShowModal();
  const bool yes = form.Tag() == "yes"_L1;
  form.UnloadForm();
  return yes;
}

QString AskNewOrOld(int componentType) {
  const ModalUse<frmNewOrOld> form;
  if (!form) return u"cancel"_s;
  form->SetComponentType(componentType);
  form->ShowModal();
  return form->Command();
}

void ShowComponent(int component) {
  if (!ComponentExists(component)) return;
  auto& form = SharedForm<frmComponent>();
  form.SetComponent(component);
  if (form.FormIsShown()) {
    form.Show();
    return;
  }
  form.ShowModal();
  form.UnloadForm();
}

bool EditComponentQuickly(int component) {
  if (!ComponentExists(component)) return false;
  const ModalUse<frmModel> form;
  if (!form) return false;
  form->SetComponent(component);
  form->ShowModal();
  return form->Tag() == "save"_L1;
}

int EditComponent(int component) {
  ComponentEntry entry;
  return LoadComponentEntry(component, entry) ? EditEntry(entry).id : 0;
}

EnteredComponent EnterNewComponent(int model, const QString& serial) {
  return EditEntry({.model = model, .type = ModelType(model), .serial = serial});
}

bool VerifyComponent(int component, const QString& caption, bool exitOnly) {
  const ModalUse<frmComponentVerify> form;
  if (!form) return false;
  form->SetComponent(component, caption, exitOnly);
  form->ShowModal();
  return form->Tag() == "yes"_L1;
}

int PickComponentBySerial(int componentType, const QString& serial) {
  const ModalUse<frmSerialNumber> form;
  if (!form) return 0;
  form->SetSearch(componentType, serial);
  form->ShowModal();
  return form->Tag() == "select"_L1 ? form->Component() : 0;
}

int PickComponent(int componentType, int owner) {
  const ModalUse<frmPickComponent> form;
  if (!form) return 0;
  form->SetChoice(componentType, owner);
  form->ShowModal();
  return form->Tag() == "select"_L1 ? form->Component() : 0;
}
