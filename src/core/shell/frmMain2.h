#pragma once
#include <memory>

#include "core/widgets/form.h"

namespace Ui {
class frmMain2;
}
class QMenu;

/// The home page: the doors to all other screens, as buttons and as the menu bar. It shows no data.
class frmMain2 : public Form {
  Q_OBJECT
 public:
  frmMain2();
  ~frmMain2() override;

  /// Keeps a connection that was left open through the next activation; the job list asks for it once.
  void KeepConnectionOnce() { keepConnection_ = true; }

 protected:
  void Cancel() override;
  void changeEvent(QEvent* event) override;

 private:
  void BuildMenu();
  QMenu* MenuFor(const QStringList& menus);
  void Activated();

  std::unique_ptr<Ui::frmMain2> ui_;
  bool keepConnection_ = false;
};
