#pragma once
#include <memory>

#include "core/widgets/form.h"

namespace Ui {
class frmComponentVerify;
}

/// Shows one component and asks whether it is the one; the tag is "yes" then.
class frmComponentVerify : public Form {
  Q_OBJECT
 public:
  frmComponentVerify();
  ~frmComponentVerify() override;

  /// With `exitOnly` there is nothing to decide. An empty caption leaves the screen's own.
  void SetComponent(int component, const QString& caption, bool exitOnly);
  void ReloadForm() override;  ///< leaves when the component has gone
  QStringList ShowsTables() const override;

 private:
  void ShowDetails();

  int component_ = 0;
  std::unique_ptr<Ui::frmComponentVerify> ui_;
};
