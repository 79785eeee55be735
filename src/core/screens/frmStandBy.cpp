#include "core/screens/frmStandBy.h"

#include <QApplication>

#include "core/prompts.h"
#include "core/screens/ui_frmStandBy.h"

namespace {

constexpr int kWhole = 1000;  // of the bar

}  // namespace

frmStandBy::frmStandBy() : ui_(std::make_unique<Ui::frmStandBy>()) {
  setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
  setAttribute(Qt::WA_ShowWithoutActivating);
  ui_->setupUi(this);
  SetRemembersPlace(false);
  SetIsWorkedOn(false);
  connect(ui_->cmdCancel, &QPushButton::clicked, this, [this] { Cancel(); });
}

frmStandBy::~frmStandBy() = default;

void frmStandBy::ShowText(const QString& text) {
  ui_->lbl->setText(text);
  FitText();
  if (!isVisible()) Show();
  const EventsRun events;
  QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void frmStandBy::EndText() {
  if (works_)
    ui_->lbl->setText(caption_);
  else
    UnloadForm();
}

bool frmStandBy::ShowWork(const WorkProgress& progress) {
  if (!works_) BecomeWaitForm(progress.caption);
  const bool known = progress.total > 0;
  ui_->bar->setRange(0, known ? kWhole : 0);
  if (known) ui_->bar->setValue(static_cast<int>(qMin(progress.done, progress.total) * kWhole / progress.total));
  ui_->cmdCancel->setEnabled(progress.canCancel && !cancelled_);
  QApplication::processEvents();
  return cancelled_;
}

/// A text that stands already stays: it tells more of the step than the caption of the whole.
void frmStandBy::BecomeWaitForm(const QString& caption) {
  works_ = true;
  caption_ = caption;
  if (!isVisible()) ui_->lbl->setText(caption);
  hide();
  ui_->bar->show();
  ui_->cmdCancel->show();
  FitText();
  setAttribute(Qt::WA_ShowWithoutActivating, false);
  ui_->bar->setFocus();  // a key that is still typed for the screen behind presses nothing
  pointer_.emplace();
  ShowAlone();
}

void frmStandBy::FitText() {
  const QSize wanted = sizeHint().expandedTo({320, 90});
  if (!isVisible() || wanted.width() > width()) resize(wanted);
}

void frmStandBy::Cancel() {
  if (!works_ || !ui_->cmdCancel->isEnabled()) return;
  cancelled_ = true;
  ui_->cmdCancel->setEnabled(false);
}
