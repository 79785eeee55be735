#pragma once
#include <memory>

#include "core/widgets/form.h"
#include "jobs/task_edit.h"

namespace Ui {
class frmTaskEdit;
}

/// Edits one line outside the job screen. The tag is "ok" when it was written.
class frmTaskEdit : public Form {
  Q_OBJECT
 public:
  frmTaskEdit();
  ~frmTaskEdit() override;

  /// False when the line has gone.
  bool SetTask(int taskID);
  /// Leaves what is being entered; a line that has gone can't be edited any more.
  void ReloadForm() override;
  QStringList ShowsTables() const override;

 private:
  TaskEntry Entry() const;
  void ShowEntry(const TaskEntry& entry);
  void ShowOriginal();
  void OfferOriginalName();
  void ChooseStatus();
  void Save();

  std::unique_ptr<Ui::frmTaskEdit> ui_;
  int taskID_ = 0;
  QString original_;
};
