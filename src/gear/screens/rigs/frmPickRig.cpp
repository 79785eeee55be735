#include "gear/screens/rigs/frmPickRig.h"

#include "core/picker.h"
#include "core/prompts.h"
#include "core/screens.h"
#include "gear/screens/rigs/ui_frmPickRig.h"

using namespace Qt::StringLiterals;

frmPickRig::frmPickRig() : ui_(std::make_unique<Ui::frmPickRig>()) {
  ui_->setupUi(this);
  connect(ui_->cmdSelect, &QPushButton::clicked, this, &frmPickRig::Select);
  connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmPickRig::Cancel);
  connect(ui_->browser, &RigBrowser::RigWanted, this, &frmPickRig::Select);
  connect(ui_->browser, &RigBrowser::PhotoClick, this,
          [] { MsgBox(u"Photo disabled during rig selection"_s, u"Sorry......."_s); });
  connect(ui_->browser, &RigBrowser::SearchWanted, this, &frmPickRig::Search);
}

frmPickRig::~frmPickRig() = default;

QStringList frmPickRig::ShowsTables() const { return RigBrowser::ShowsTables(); }

void frmPickRig::ReloadForm() { ui_->browser->Reload(); }

void frmPickRig::SetStart(int customer, int rig, int rigType) { ui_->browser->Begin(customer, rig, rigType); }

int frmPickRig::Rig() const { return ui_->browser->Rig(); }

int frmPickRig::Customer() const { return ui_->browser->Customer(); }

void frmPickRig::Select() {
  if (Rig() == 0) {
    MsgBox(u"You must select a rig"_s, u"Nothing selected"_s);
    return;
  }
  SetTag(u"select"_s);
  Leave();
}

void frmPickRig::Search() {
  const int person = PickItem(kPickCustomer, 0, Customer()).id;
  if (person > 0) ui_->browser->SelectCustomer(person);
}
