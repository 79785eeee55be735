#pragma once
#include <memory>

#include "core/widgets/form.h"

namespace Ui {
class frmSerialNumber;
}

/// Looks a component up by its serial number. The tag is "select" when one was chosen.
class frmSerialNumber : public Form {
  Q_OBJECT
 public:
  frmSerialNumber();
  ~frmSerialNumber() override;

  void SetSearch(int componentType, const QString& serial);
  int Component() const;
  void ReloadForm() override;
  QStringList ShowsTables() const override;

 private:
  int ListedType() const;
  void LoadSerials();
  void FindTyped(const QString& typed);
  void ShowDetails();
  QString TextOfRow(int row) const;
  void Select();
  void SelectTyped();
  void Edit();
  void ShowRig();

  std::unique_ptr<Ui::frmSerialNumber> ui_;
};
