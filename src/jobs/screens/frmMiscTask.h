#pragma once
#include <memory>

#include "core/widgets/form.h"
#include "jobs/custom_entry.h"

namespace Ui {
class frmMiscTask;
}

/// A task or event that is entered by hand. An empty name means that it was left.
class frmMiscTask : public Form {
  Q_OBJECT
 public:
  frmMiscTask();
  ~frmMiscTask() override;

  void DoEventCaptions();
  CustomEntry Entry() const;
  void ReloadForm() override;
  QStringList ShowsTables() const override;
  QStringList ComponentNames() const;  ///< as they stand in the list

 protected:
  void Cancel() override;

 private:
  void Accept();

  std::unique_ptr<Ui::frmMiscTask> ui_;
  bool isEvent_ = false;
};
