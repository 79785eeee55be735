#include "core/screens.h"

#include "core/screens/frmComments.h"
#include "core/screens/frmMessage.h"
#include "core/screens/frmPicker.h"
#include "core/screens/frmStandBy.h"
#include "core/stand_by.h"
#include "core/widgets/modal_use.h"
#include "core/widgets/screen_routines.h"

using namespace Qt::StringLiterals;

namespace {

Picked RunPicker(int pickerType, int modelTypeId, int presentId, bool withDefault) {
  const ModalUse<frmPicker> picker;
  if (!picker) return {};
  const QString& caption = PickerKindOf(pickerType).defaultCaption;
  picker->SetPickerType(pickerType);
  picker->SetModelTypeID(modelTypeId);
  picker->SetDoingComponents(modelTypeId != 0 && modelTypeId != kPickMiscItem);
  picker->SetShowDefaultBox(withDefault, caption.isEmpty() ? u"Save as default"_s : caption);
  picker->Load();
  picker->SelectPresent(presentId);
  picker->SetCaller(dynamic_cast<QWidget*>(Forms::Find(u"frmJob"_s)));
  picker->ShowModal();
  if (picker->Tag() == "cancel"_L1) return {};
  return {picker->SelectedID(), picker->SelectedText(), withDefault && picker->DefaultChecked()};
}

class StandByScreen : public WorkScreen {
 public:
  bool Show(const WorkProgress& progress) override { return SharedForm<frmStandBy>().ShowWork(progress); }
  void Hide() override {
    if (auto* form = FormIfLoaded<frmStandBy>()) form->UnloadForm();
  }
};

}  // namespace

Picked PickItem(int pickerType, int modelTypeId, int presentId) {
  return RunPicker(pickerType, modelTypeId, presentId, false);
}

Picked PickItemWithDefault(int pickerType, int modelTypeId, int presentId) {
  return RunPicker(pickerType, modelTypeId, presentId, true);
}

int ShowMessageForm(const QString& title, const QString& myText, const QStringList& captions, int buttonType) {
  const ModalUse<frmMessage> form;
  if (!form) return 0;
  form->SetText(title, myText);
  if (form->SetButtons(buttonType, captions)) form->ShowModal();
  return form->Pressed();
}

std::optional<QString> EditComments(const QString& heading, const QString& text, const QString& title) {
  const ModalUse<frmComments> form;
  if (!form) return std::nullopt;
  form->setWindowTitle(title);
  form->SetComments(heading, text);
  form->ShowModal();
  if (!form->Saved()) return std::nullopt;
  return form->Text();
}

void InstallStandByNotice() {
  static StandByScreen screen;
  SetWorkScreen(&screen);
  SetStandByNotice({[](const QString& text) { SharedForm<frmStandBy>().ShowText(text); },
                    [] {
                      if (auto* form = FormIfLoaded<frmStandBy>()) form->EndText();
                    },
                    [] { WaitSeconds(0.3); }});
}
