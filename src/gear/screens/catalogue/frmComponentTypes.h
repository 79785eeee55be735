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

 private:
  int Type() const;
  void LoadList(int select);

  std::unique_ptr<Ui::frmComponentTypes> ui_;
};
