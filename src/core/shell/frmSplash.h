#pragma once
#include <memory>

#include "core/widgets/form.h"

namespace Ui {
class frmSplash;
}

/// What the loft's data holds, at start and under About. Every click and key closes it.
class frmSplash : public Form {
  Q_OBJECT
 public:
  frmSplash();
  ~frmSplash() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  std::unique_ptr<Ui::frmSplash> ui_;
};
