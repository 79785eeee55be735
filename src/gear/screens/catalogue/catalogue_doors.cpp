#include "core/picker.h"
#include "core/screens.h"
#include "core/widgets/modal_use.h"
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
  const ModalUse<frmLocation> form;
  if (!form) return 0;
  form->SetLocation(location);
  form->ShowModal();
  return form->Tag() == "select"_L1 ? form->Location() : 0;
}

void OpenModels(const ModelScreenStart& start) {
  auto& form = SharedForm<frmComponentModels>();
  if (!form.FormIsShown() || !form.isModal()) form.SetStart(start);
  form.Show();
}

void ShowModels(const ModelScreenStart& start) {
  const ModalUse<frmComponentModels> form;
  if (!form) return;
  form->SetStart(start);
  form->ShowModal();
}

int CreateModel(int type) {
  const ModalUse<frmComponentModels> form;
  if (!form) return 0;
  form->SetStart({.type = type, .create = true});
  form->ShowModal();
  return form->CreatedModel();
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
  const ModalUse<frmSelectModel> form;
  if (!form) return false;
  form->SetModel(type, model);
  form->ShowModal();
  if (form->Tag() != "select"_L1) return false;
  type = form->Type();
  model = form->Model();
  return true;
}

void ShowComponentTypes() {
  if (const ModalUse<frmComponentTypes> form; form) form->ShowModal();
}

void OpenRigTypes() { SharedForm<frmRigTypes>().Show(); }

void ShowRigTypes() {
  if (const ModalUse<frmRigTypes> form; form) form->ShowModal();
}
