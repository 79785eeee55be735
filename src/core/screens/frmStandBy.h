#pragma once
#include <memory>

#include "core/widgets/form.h"

namespace Ui {
class frmStandBy;
}

/// A small notice beside long work. It can't be closed by hand: whoever shows it unloads it.
class frmStandBy : public Form {
  Q_OBJECT
 public:
  frmStandBy();
  ~frmStandBy() override;

  /// Shows the notice with this text and paints it at once, since the work that follows answers no events.
  void ShowText(const QString& text);

 protected:
  void Cancel() override {}

 private:
  std::unique_ptr<Ui::frmStandBy> ui_;
};
