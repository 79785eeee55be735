#include "core/screens.h"

#include "core/screens/frmComments.h"
#include "core/screens/frmMessage.h"
#include "core/screens/frmPicker.h"
#include "core/screens/frmStandBy.h"
#include "core/stand_by.h"
#include "core/widgets/screen_routines.h"

using namespace Qt::StringLiterals;

namespace {

QString DefaultCaption(int pickerType) {
  switch (pickerType) {
    case kPickLocation:
      return u"Save as default location"_s;
    case kPickRigger:
      return u"Save as default rigger"_s;
    default:
      return u"Save as default"_s;
  }
}

Picked RunPicker(int pickerType, int modelTypeId, int presentId, bool withDefault) {
  auto& picker = SharedForm<frmPicker>();
  picker.SetPickerType(pickerType);
  picker.SetModelTypeID(modelTypeId);
  picker.SetDoingComponents(modelTypeId != 0 && modelTypeId != kPickMiscItem);
  picker.SetShowDefaultBox(withDefault, DefaultCaption(pickerType));
  picker.Load();
  picker.SelectPresent(presentId);
  picker.SetCaller(dynamic_cast<QWidget*>(Forms::Find(u"frmJob"_s)));
  picker.ShowModal();
  Picked picked;
  if (picker.Tag() != "cancel"_L1) {
    picked = {picker.SelectedID(), picker.SelectedText(), withDefault && picker.DefaultChecked()};
  }
  picker.UnloadForm();
  return picked;
}

}  // namespace

Picked PickItem(int pickerType, int modelTypeId, int presentId) {
  return RunPicker(pickerType, modelTypeId, presentId, false);
}

Picked PickItemWithDefault(int pickerType, int modelTypeId, int presentId) {
  return RunPicker(pickerType, modelTypeId, presentId, true);
}

int ShowMessageForm(const QString& title, const QString& myText, const QStringList& captions, int buttonType) {
  auto& form = SharedForm<frmMessage>();
  form.SetText(title, myText);
  if (form.SetButtons(buttonType, captions)) form.ShowModal();
  const int pressed = form.Pressed();
  form.UnloadForm();
  return pressed;
}

std::optional<QString> EditComments(const QString& heading, const QString& text, const QString& title) {
  auto& form = SharedForm<frmComments>();
  form.setWindowTitle(title);
  form.SetComments(heading, text);
  form.ShowModal();
  std::optional<QString> saved;
  if (form.Saved()) saved = form.Text();
  form.UnloadForm();
  return saved;
}

void InstallStandByNotice() {
  SetStandByNotice({[](const QString& text) { SharedForm<frmStandBy>().ShowText(text); },
                    [] {
                      if (auto* form = FormIfLoaded<frmStandBy>()) form->UnloadForm();
                    },
                    [] { WaitSeconds(0.3); }});
}
