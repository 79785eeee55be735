#pragma once
#include <memory>

#include "core/widgets/form.h"

namespace Ui {
class frmComponentTypes;
}

/// The general categories of gear.
class frmComponentTypes : public Form {
  Q_OBJECT
 public:
  frmComponentTypes();
  ~frmComponentTypes() override;

  void ReloadForm() override;
  QStringList ShowsTables() const override;

 private:
  int Type() const;

  std::unique_ptr<Ui::frmComponentTypes> ui_;
};
