#pragma once
#include <memory>

#include "core/widgets/form.h"

namespace Ui {
class frmJobTypeSelect;
}

/// What a new job is performed on: the customer's rig, one component, or neither.
class frmJobTypeSelect : public Form {
  Q_OBJECT
 public:
  enum Choice { kRig, kComponent, kNeither };

  frmJobTypeSelect();
  ~frmJobTypeSelect() override;

  /// `rigText` is what the rig option reads.
  void SetCustomer(const QString& name, const QString& rigText);
  void SetRigEnabled(bool enabled);
  void SetComponentEnabled(bool enabled);
  void Choose(Choice choice);
  Choice Chosen() const;

 private:
  std::unique_ptr<Ui::frmJobTypeSelect> ui_;
};
