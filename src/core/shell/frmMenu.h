#pragma once
#include <memory>

#include "core/widgets/form.h"

namespace Ui {
class frmMenu;
}

/// The floating menu: one list at the top left of the screen, always at hand. Its caption counts the opens of the
/// database when the developer asks for it.
class frmMenu : public Form {
  Q_OBJECT
 public:
  frmMenu();
  ~frmMenu() override;

 protected:
  void Cancel() override;
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void Choose(int row);

  std::unique_ptr<Ui::frmMenu> ui_;
};
