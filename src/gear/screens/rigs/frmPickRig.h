#pragma once
#include <memory>

#include "core/widgets/form.h"

namespace Ui {
class frmPickRig;
}

/// The rig screen without editing: lets a person choose a rig. The tag is "select" when one was chosen.
class frmPickRig : public Form {
  Q_OBJECT
 public:
  frmPickRig();
  ~frmPickRig() override;

  void SetStart(int customer, int rig, int rigType);
  int Rig() const;
  int Customer() const;
  void ReloadForm() override;
  QStringList ShowsTables() const override;

 private:
  void Select();
  void Search();

  std::unique_ptr<Ui::frmPickRig> ui_;
};
