#pragma once
#include <memory>

#include "core/widgets/form.h"

namespace Ui {
class frmInstall;
}

/// The first question of a new installation.
class frmInstall : public Form {
  Q_OBJECT
 public:
  enum class Choice { None, NewUser, CurrentUser };

  frmInstall();
  ~frmInstall() override;

  /// None when the person cancelled, or pressed OK with neither option chosen.
  Choice Result() const;

 protected:
  void Cancel() override;

 private:
  std::unique_ptr<Ui::frmInstall> ui_;
};
