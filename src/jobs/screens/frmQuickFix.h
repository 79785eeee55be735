#pragma once
#include <memory>

#include "core/widgets/form.h"

namespace Ui {
class frmQuickFix;
}

/// Asks for the day on which a scheduled task was done, and records it as a job of its own.
class frmQuickFix : public Form {
  Q_OBJECT
 public:
  frmQuickFix();
  ~frmQuickFix() override;

  void SetTask(int rigID, int customerID, int taskLibID);
  /// A task or a rig that has gone can't be recorded any more.
  void ReloadForm() override;
  QStringList ShowsTables() const override;

 private:
  void ShowNames();
  void Save();

  std::unique_ptr<Ui::frmQuickFix> ui_;
  int rigID_ = 0;
  int customerID_ = 0;
  int taskLibID_ = 0;
};
