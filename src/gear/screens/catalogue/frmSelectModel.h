#pragma once
#include <memory>

#include "core/widgets/form.h"

namespace Ui {
class frmSelectModel;
}

/// Lets a person choose a model by way of its component type. The tag is "select" when one was chosen.
class frmSelectModel : public Form {
  Q_OBJECT
 public:
  frmSelectModel();
  ~frmSelectModel() override;

  void SetModel(int type, int model);
  void ReloadForm() override;
  QStringList ShowsTables() const override;
  int Type() const;
  int Model() const;

 private:
  void Select();

  std::unique_ptr<Ui::frmSelectModel> ui_;
};
