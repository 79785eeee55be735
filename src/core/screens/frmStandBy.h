#pragma once
#include <memory>
#include <optional>

#include "core/long_work.h"
#include "core/widgets/form.h"
#include "core/widgets/qt_prompts.h"

namespace Ui {
class frmStandBy;
}

/// What a person sees while long work runs: a small notice beside it, or the wait form, with a bar and a Cancel button,
/// which has all input to itself. It can't be closed by hand: whoever shows it unloads it.
class frmStandBy : public Form {
  Q_OBJECT
 public:
  frmStandBy();
  ~frmStandBy() override;

  /// Shows the text, as a notice where no work shows already, and paints it at once, since what follows may answer no
  /// events.
  void ShowText(const QString& text);
  /// Takes the notice away; the work that shows has its own caption again.
  void EndText();

  /// Shows how far the work is, and handles the events that wait. True once the person has cancelled it.
  bool ShowWork(const WorkProgress& progress);

 protected:
  /// Esc and the button cancel the work, where that can be done.
  void Cancel() override;

 private:
  void BecomeWaitForm(const QString& caption);
  void FitText();

  std::unique_ptr<Ui::frmStandBy> ui_;
  bool works_ = false;  // as wait form; otherwise it is a notice alone
  QString caption_;
  bool cancelled_ = false;
  std::optional<PointerAside> pointer_;
};
