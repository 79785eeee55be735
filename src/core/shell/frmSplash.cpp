#include "core/shell/frmSplash.h"

#include <QEvent>

#include "core/screens.h"
#include "core/shell/ui_frmSplash.h"
#include "core/splash_info.h"
#include "core/store/operation.h"

using namespace Qt::StringLiterals;

frmSplash::frmSplash() : ui_(std::make_unique<Ui::frmSplash>()) {
  ui_->setupUi(this);
  SetRemembersPlace(false);
  constexpr int kLogo = 128;
  ui_->imageLogo->setPixmap(ProgramIcon().pixmap(kLogo, kLogo));
  ui_->imageLogo->setAccessibleName(u"Loftkeep"_s);
  Operation(u"frmSplash - Sub Form_Load()"_s, [this] {
    ui_->lblInfo->setText(GetSplashInfo());
    ui_->lblBackup->setText(LastBackupText());
  });
  for (QWidget* child : findChildren<QWidget*>()) child->installEventFilter(this);
}

frmSplash::~frmSplash() = default;

bool frmSplash::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress) UnloadForm();
  return Form::eventFilter(watched, event);
}

void frmSplash::mousePressEvent(QMouseEvent*) { UnloadForm(); }

void frmSplash::keyPressEvent(QKeyEvent*) { UnloadForm(); }
