#pragma once
#include <memory>

#include "core/widgets/form.h"

namespace Ui {
class frmRecentChanges;
}

/// What was done lately, in words: when, what, and how many rows it wrote. The last operation can be taken back from
/// here, and one after the other those before it.
class frmRecentChanges : public Form {
  Q_OBJECT
 public:
  frmRecentChanges();
  ~frmRecentChanges() override;

  void ReloadForm() override;
  QStringList ShowsTables() const override;

 private:
  std::unique_ptr<Ui::frmRecentChanges> ui_;
};
