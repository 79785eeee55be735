#pragma once
#include <memory>

#include "core/widgets/form.h"

namespace Ui {
class frmGetBackup2;
}

/// Where the database comes from when there is none. Its tag tells the start-up what was chosen: "new" for an empty
/// database, "end" to leave the program, "cancel" when nothing came of it, empty when a file was installed.
class frmGetBackup2 : public Form {
  Q_OBJECT
 public:
  frmGetBackup2();
  ~frmGetBackup2() override;

 protected:
  void Cancel() override;

 private:
  void End(const QString& tag);
  void InstallFromAnyFolder();

  std::unique_ptr<Ui::frmGetBackup2> ui_;
};
