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

 private:
  void Save();

  std::unique_ptr<Ui::frmEventLib> ui_;
  int taskLibID_ = 0;
};
