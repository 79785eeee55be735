#pragma once
#include <memory>

#include "core/widgets/form.h"

class QLabel;
class QLineEdit;

namespace Ui {
class frmCalc;
}

/// Counts from the day of a repack to its expiration, or back. Plain days, whatever the shop's own cycle.
class frmCalc : public Form {
  Q_OBJECT
 public:
  frmCalc();
  ~frmCalc() override;

 private:
  QLineEdit* Result() const;
  void CalcFrom(const QLineEdit* box);
  void DoCalc();
  void MarkLabel(QLabel* label, bool wrong);

  std::unique_ptr<Ui::frmCalc> ui_;
};
