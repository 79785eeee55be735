#pragma once
#include <memory>

#include "core/widgets/form.h"

namespace Ui {
class frmEventLib;
}

/// One event of the library. The tag is "save" when it was saved.
class frmEventLib : public Form {
  Q_OBJECT
 public:
  frmEventLib();
  ~frmEventLib() override;

  void SetEvent(int taskLibID, const QString& name);
  int TaskLibID() const { return taskLibID_; }
  /// Leaves what is being entered; an event that has gone can't be edited any more.
  void ReloadForm() override;
  QStringList ShowsTables() const override;

 private:
  void Save();

  std::unique_ptr<Ui::frmEventLib> ui_;
  int taskLibID_ = 0;
};
