#include "core/screens/frmStandBy.h"

#include <QApplication>

#include "core/screens/ui_frmStandBy.h"
#include "core/widgets/screen_routines.h"

frmStandBy::frmStandBy() : ui_(std::make_unique<Ui::frmStandBy>()) {
  setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
  setAttribute(Qt::WA_ShowWithoutActivating);
  ui_->setupUi(this);
  SetRemembersPlace(false);
}

frmStandBy::~frmStandBy() = default;

void frmStandBy::ShowText(const QString& text) {
  ui_->lbl->setText(text);
  const QSize wanted = sizeHint().expandedTo({320, 90});
  if (!isVisible()) {
    resize(wanted);
    Show();
  } else if (wanted.width() > width()) {
    resize(wanted);
  }
  QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}
