#pragma once
#include <memory>

#include "core/widgets/form.h"

namespace Ui {
class frmModel;
}

/// A short form of editing a component of a rig: model, serial number, date of manufacture and sub type. The tag is
/// "save" when it was written.
class frmModel : public Form {
  Q_OBJECT
 public:
  frmModel();
  ~frmModel() override;

  void SetComponent(int component);
  void ReloadForm() override;  ///< the model's name alone: what is typed stays
  QStringList ShowsTables() const override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ChooseModel();
  void Save();

  std::unique_ptr<Ui::frmModel> ui_;
  int component_ = 0;
  int model_ = 0;
  int type_ = 0;
};
