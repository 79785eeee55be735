#include "core/shell/frmInstall.h"

#include "core/shell/ui_frmInstall.h"

frmInstall::frmInstall() : ui_(std::make_unique<Ui::frmInstall>()) {
  ui_->setupUi(this);
  SetRemembersPlace(false);
  connect(ui_->cmdOK, &QPushButton::clicked, this, [this] { Leave(); });
  connect(ui_->cmdCancel, &QPushButton::clicked, this, [this] { Cancel(); });
}

frmInstall::~frmInstall() = default;

frmInstall::Choice frmInstall::Result() const {
  if (ui_->optNew->isChecked()) return Choice::NewUser;
  return ui_->optCurrent->isChecked() ? Choice::CurrentUser : Choice::None;
}

void frmInstall::Cancel() {
  for (QRadioButton* option : {ui_->optNew, ui_->optCurrent}) {
    option->setAutoExclusive(false);
    option->setChecked(false);
    option->setAutoExclusive(true);
  }
  Form::Cancel();
}
