#pragma once
#include <memory>

#include "core/picker.h"
#include "core/widgets/form.h"

namespace Ui {
class frmPicker;
}

/// The general list from which a customer, a rig, a location and so on is chosen by clicking or typing. The caller sets
/// the inputs, shows it modally and reads the results before it unloads it.
class frmPicker : public Form {
  Q_OBJECT
 public:
  frmPicker();
  ~frmPicker() override;

  void SetPickerType(int type) { pickerType_ = type; }
  void SetModelTypeID(int type) { modelTypeId_ = type; }
  /// Lists the models of the component type, whatever the picker type.
  void SetDoingComponents(bool doing) { doingComponents_ = doing; }
  void SetShowDefaultBox(bool show, const QString& caption);
  void Load();                 ///< the rows and the title
  void SelectPresent(int id);  ///< the row that is selected when the list opens

  void ReloadForm() override;  ///< the rows: what is typed and selected stays
  QStringList ShowsTables() const override;

  int SelectedID() const { return selectedId_; }  ///< -1 when nothing was found, 0 for cancel
  QString SelectedText() const { return selectedText_; }
  bool DefaultChecked() const;

 protected:
  void Cancel() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  const PickerKind& Kind() const;
  int ListedType() const;  ///< the component type whose models are listed, 0 for none
  IdList LoadRows() const;
  void FindTyped(const QString& typed);
  void ShowRowText(int row);
  void Select();
  void SelectUnmatched(const QString& text);
  void OfferToAdd(const QString& text);
  void Delete();
  void Return(int id, const QString& text);

  std::unique_ptr<Ui::frmPicker> ui_;
  int pickerType_ = 0;
  int modelTypeId_ = 0;
  bool doingComponents_ = false;
  int selectedId_ = 0;
  QString selectedText_;
};
