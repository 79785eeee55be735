#pragma once
#include <memory>

#include "core/widgets/form.h"
#include "jobs/screens.h"

namespace Ui {
class frmNewMisc;
}

/// Asks for the name and the price of a part. Cancel empties both.
class frmNewMisc : public Form {
  Q_OBJECT
 public:
  frmNewMisc();
  ~frmNewMisc() override;

  void SetItem(const MiscItem& item, const MiscItemQuestion& question);
  MiscItem Item() const;

 protected:
  void Cancel() override;

 private:
  std::unique_ptr<Ui::frmNewMisc> ui_;
};
