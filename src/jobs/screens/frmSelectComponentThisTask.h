#pragma once
#include <memory>

#include "core/widgets/form.h"

namespace Ui {
class frmSelectComponentThisTask;
}

/// Lets a person choose one of the components that a line touched. The tag is "ok" when one was chosen.
class frmSelectComponentThisTask : public Form {
  Q_OBJECT
 public:
  frmSelectComponentThisTask();
  ~frmSelectComponentThisTask() override;

  void SetTask(int taskID);
  void ReloadForm() override;
  QStringList ShowsTables() const override;
  int Component() const;

 private:
  void Accept();

  std::unique_ptr<Ui::frmSelectComponentThisTask> ui_;
  int taskID_ = 0;
};
