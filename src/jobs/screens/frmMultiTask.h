#pragma once
#include <memory>

#include "core/widgets/form.h"

namespace Ui {
class frmMultiTask;
}

/// Lets a person tick several tasks and events of the library. The tag is "ok" when they are wanted.
class frmMultiTask : public Form {
  Q_OBJECT
 public:
  frmMultiTask();
  ~frmMultiTask() override;

  QList<int> Ticked() const;
  void ReloadForm() override { LoadEntries(); }
  QStringList ShowsTables() const override;

 private:
  void LoadEntries();
  void NewEntry();
  void Search();

  std::unique_ptr<Ui::frmMultiTask> ui_;
};
