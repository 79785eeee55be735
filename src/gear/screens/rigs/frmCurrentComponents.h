#pragma once
#include <memory>

#include "core/widgets/form.h"

namespace Ui {
class frmCurrentComponents;
}

/// The components that a rig has now; nothing can be changed here.
class frmCurrentComponents : public Form {
  Q_OBJECT
 public:
  frmCurrentComponents();
  ~frmCurrentComponents() override;

  void SetRig(int rig);
  void ReloadForm() override;
  QStringList ShowsTables() const override;

 private:
  std::unique_ptr<Ui::frmCurrentComponents> ui_;
  int rig_ = 0;
};
