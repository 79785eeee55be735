#pragma once
#include <memory>

#include "core/widgets/form.h"

namespace Ui {
class frmNewOrOld;
}

/// Asks how the empty place of a component type in a rig is to be filled.
class frmNewOrOld : public Form {
  Q_OBJECT
 public:
  frmNewOrOld();
  ~frmNewOrOld() override;

  void SetComponentType(int type);
  void ReloadForm() override;  ///< the title alone: what is typed stays
  QStringList ShowsTables() const override;
  /// "new", "select", "load component:<id>", "s/n <serial>", "new with s/n:<serial>" or "cancel".
  QString Command() const { return command_; }

 protected:
  void Cancel() override;

 private:
  void EnterSerial();
  void End(const QString& command);

  std::unique_ptr<Ui::frmNewOrOld> ui_;
  QString command_;
  int type_ = 0;
};
