#include "core/picker.h"
#include "core/screens.h"
#include "gear/catalogue.h"
#include "gear/rig_types.h"
#include "gear/screens.h"
#include "gear/screens/catalogue/frmComponentModels.h"
#include "gear/screens/catalogue/frmComponentTypes.h"
#include "gear/screens/catalogue/frmLocation.h"
#include "gear/screens/catalogue/frmRigTypes.h"
#include "gear/screens/catalogue/frmSelectModel.h"

using namespace Qt::StringLiterals;

int ShowLocations(int location) {
  auto& form = SharedForm<frmLocation>();
  form.SetLocation(location);
  form.ShowModal();
  const int chosen = form.Tag() == "select"_L1 ? form.Location() : 0;
  form.UnloadForm();
  return chosen;
}

void OpenModels(const ModelScreenStart& start) {
  auto& form = SharedForm<frmComponentModels>();
  form.SetStart(start);
  form.Show();
}

void ShowModels(const ModelScreenStart& start) {
  auto& form = SharedForm<frmComponentModels>();
  form.SetStart(start);
  form.ShowModal();
  form.UnloadForm();
}

int CreateModel(int type) {
  auto& form = SharedForm<frmComponentModels>();
  form.SetStart({.type = type, .create = true});
  form.ShowModal();
  const int created = form.CreatedModel();
  form.UnloadForm();
  return created;
}

int PickModel(int type, int presentModel) {
  const int picked = PickItem(kPickMiscItem, type, presentModel).id;
  return qMax(0, picked == kPickAddNew ? AddModelFromPicker(type) : picked);
}

int ChooseTypeOfNewRig() {
  const Picked picked = PickItemWithDefault(kPickRigType, 0, DefaultRigType());
  if (picked.id > 0 && picked.saveAsDefault) SetDefaultRigType(picked.id);
  return qMax(0, picked.id);
}

bool SelectModel(int& type, int& model) {
  auto& form = SharedForm<frmSelectModel>();
  form.SetModel(type, model);
  form.ShowModal();
  const bool chosen = form.Tag() == "select"_L1;
  if (chosen) {
    type = form.Type();
    model = form.Model();
  }
  form.UnloadForm();
  return chosen;
}

void ShowComponentTypes() {
  auto& form = SharedForm<frmComponentTypes>();
  form.ShowModal();
  form.UnloadForm();
}

void OpenRigTypes() { SharedForm<frmRigTypes>().Show(); }

void ShowRigTypes() {
  auto& form = SharedForm<frmRigTypes>();
  form.ShowModal();
  form.UnloadForm();
}
