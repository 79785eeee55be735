#include "gear/screens.h"

#include "core/prompts.h"
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
  auto& form = SharedForm<frmComponentEdit>();
  form.SetEntry(entry);
  form.ShowModal();
  const EnteredComponent result{form.Result(), form.Tag() == "save"_L1};
  form.UnloadForm();
  return result;
}

}  // namespace

int ShowPeople(int start, bool ownerSetup) {
  auto& form = SharedForm<frmPeople>();
  if (form.FormIsShown()) {
    form.Show();
    return form.CurrentPerson();
  }
  form.SetStart(start);
  form.SetOwnerSetup(ownerSetup);
  form.ShowModal();
  const int person = qMax(form.CurrentPerson(), 0);
  form.UnloadForm();
  return person;
}

void OpenPeople(int start) {
  auto& form = SharedForm<frmPeople>();
  if (!form.FormIsShown()) form.SetStart(start);
  form.Show();
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
  if (!form.FormIsShown()) form.SetStart(start);
  form.Show();
}

void ShowRig(int rig) {
  if (Forms::IsShown(u"frmGetRig"_s))
    ConfirmRigDeletion(rig, true);
  else
    ShowRigs({.rig = rig, .hideButtons = true});
}

void ShowCurrentComponents(int rig) {
  auto& form = SharedForm<frmCurrentComponents>();
  form.SetRig(rig);
  form.ShowModal();
  form.UnloadForm();
}

bool PickRig(int& rig, int& customer, int rigType) {
  auto& form = SharedForm<frmPickRig>();
  form.SetStart(customer, rig, rigType);
  form.ShowModal();
  const bool chosen = form.Tag() == "select"_L1;
  rig = chosen ? form.Rig() : 0;
  customer = chosen ? form.Customer() : 0;
  form.UnloadForm();
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
  auto& form = SharedForm<frmNewOrOld>();
  form.SetComponentType(componentType);
  form.ShowModal();
  const QString command = form.Command();
  form.UnloadForm();
  return command;
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
  auto& form = SharedForm<frmModel>();
  form.SetComponent(component);
  form.ShowModal();
  const bool saved = form.Tag() == "save"_L1;
  form.UnloadForm();
  return saved;
}

int EditComponent(int component) {
  ComponentEntry entry;
  return LoadComponentEntry(component, entry) ? EditEntry(entry).id : 0;
}

EnteredComponent EnterNewComponent(int model, const QString& serial) {
  return EditEntry({.model = model, .type = ModelType(model), .serial = serial});
}

bool VerifyComponent(int component, const QString& caption, bool exitOnly) {
  auto& form = SharedForm<frmComponentVerify>();
  form.SetComponent(component, caption, exitOnly);
  form.ShowModal();
  const bool yes = form.Tag() == "yes"_L1;
  form.UnloadForm();
  return yes;
}

int PickComponentBySerial(int componentType, const QString& serial) {
  auto& form = SharedForm<frmSerialNumber>();
  form.SetSearch(componentType, serial);
  form.ShowModal();
  const int component = form.Tag() == "select"_L1 ? form.Component() : 0;
  form.UnloadForm();
  return component;
}

int PickComponent(int componentType, int owner) {
  auto& form = SharedForm<frmPickComponent>();
  form.SetChoice(componentType, owner);
  form.ShowModal();
  const int component = form.Tag() == "select"_L1 ? form.Component() : 0;
  form.UnloadForm();
  return component;
}
