#include "jobs/screens/frmJobTypeSelect.h"

#include "jobs/screens/ui_frmJobTypeSelect.h"

using namespace Qt::StringLiterals;

frmJobTypeSelect::frmJobTypeSelect() : ui_(std::make_unique<Ui::frmJobTypeSelect>()) {
  ui_->setupUi(this);
  SetRemembersPlace(false);
  connect(ui_->cmdOK, &QPushButton::clicked, this, [this] {
    SetTag(u"ok"_s);
    Leave();
  });
  connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmJobTypeSelect::Cancel);
}

frmJobTypeSelect::~frmJobTypeSelect() = default;

void frmJobTypeSelect::SetCustomer(const QString& name, const QString& rigText) {
  ui_->lblCustomer->setText(name);
  ui_->optRig->setText(QString(rigText).replace(u'&', u"&&"_s));
}

void frmJobTypeSelect::SetRigEnabled(bool enabled) { ui_->optRig->setEnabled(enabled); }

void frmJobTypeSelect::SetComponentEnabled(bool enabled) { ui_->optComp->setEnabled(enabled); }

void frmJobTypeSelect::Choose(Choice choice) {
  (choice == kRig ? ui_->optRig : choice == kComponent ? ui_->optComp : ui_->optNeither)->setChecked(true);
}

frmJobTypeSelect::Choice frmJobTypeSelect::Chosen() const {
  if (ui_->optRig->isChecked()) return kRig;
  return ui_->optComp->isChecked() ? kComponent : kNeither;
}
