#include "gear/screens/components/frmComponentVerify.h"

#include "gear/component_types.h"
#include "gear/components.h"
#include "gear/screens/components/component_details.h"
#include "gear/screens/components/ui_frmComponentVerify.h"

using namespace Qt::StringLiterals;

frmComponentVerify::frmComponentVerify() : ui_(std::make_unique<Ui::frmComponentVerify>()) {
  ui_->setupUi(this);
  SetRemembersPlace(false);
  connect(ui_->cmdYes, &QPushButton::clicked, this, [this] {
    SetTag(u"yes"_s);
    Leave();
  });
  connect(ui_->cmdNo, &QPushButton::clicked, this, &frmComponentVerify::Cancel);
}

frmComponentVerify::~frmComponentVerify() = default;

QStringList frmComponentVerify::ShowsTables() const { return ComponentDetails::ShowsTables(); }

void frmComponentVerify::ReloadForm() {
  if (ComponentExists(component_))
    ShowDetails();
  else
    Cancel();
}

void frmComponentVerify::ShowDetails() {
  const ComponentDetails details = DetailsOf(component_);
  ui_->lblModel->setText(details.model);
  ui_->lblSerial->setText(details.serial);
  ui_->lblOwner->setText(details.owner);
  ui_->lblType->setText(details.type);
  ui_->lblRig->setText(details.rig);
  ui_->lblDom->setText(details.dom);
  ui_->capRig->setVisible(details.hasRig);
  ui_->lblRig->setVisible(details.hasRig);
  ui_->lblQuestion->setText(u"Select this "_s + TypeInSentence(ComponentTypeOf(component_)) + u'?');
}

void frmComponentVerify::SetComponent(int component, const QString& caption, bool exitOnly) {
  component_ = component;
  setWindowTitle(caption.isEmpty() ? u"Select Component"_s : caption);
  ShowDetails();
  ui_->lblQuestion->setVisible(!exitOnly);
  ui_->cmdYes->setVisible(!exitOnly);
  ui_->cmdNo->setText(exitOnly ? u"Exit"_s : u"&No"_s);
}
