#include "jobs/screens/frmNewMisc.h"

#include "core/format.h"
#include "core/widgets/screen_routines.h"
#include "jobs/screens/keep_shown.h"
#include "jobs/screens/ui_frmNewMisc.h"

using namespace Qt::StringLiterals;

frmNewMisc::frmNewMisc() : ui_(std::make_unique<Ui::frmNewMisc>()) {
  ui_->setupUi(this);
  SetRemembersPlace(false);
  MoveOnWithEnter({ui_->txtName, ui_->txtCost}, ui_->cmdOK);
  connect(ui_->cmdOK, &QPushButton::clicked, this, &frmNewMisc::Leave);
  connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmNewMisc::Cancel);
}

frmNewMisc::~frmNewMisc() = default;

void frmNewMisc::SetItem(const MiscItem& item, const MiscItemQuestion& question) {
  setWindowTitle(question.caption);
  ui_->lblTaskOnly->setVisible(question.thisJobOnly);
  ui_->txtName->setReadOnly(question.nameIsFixed);
  ui_->txtName->setText(item.name);
  ui_->txtCost->setText(item.name.isEmpty() ? QString() : Format(item.price, u"########0.00"_s));
  SelectAllInBox(question.nameIsFixed ? ui_->txtCost : ui_->txtName);
}

MiscItem frmNewMisc::Item() const { return {ui_->txtName->text().trimmed(), Money::FromText(ui_->txtCost->text())}; }

void frmNewMisc::Cancel() {
  ui_->txtName->clear();
  ui_->txtCost->clear();
  Form::Cancel();
}

bool EnterMiscItem(MiscItem& item, const MiscItemQuestion& question) {
  if (ComesForward<frmNewMisc>()) return false;
  auto& form = SharedForm<frmNewMisc>();
  form.SetItem(item, question);
  form.ShowModal();
  const MiscItem entered = form.Item();
  form.UnloadForm();
  if (entered.name.isEmpty()) return false;
  item = entered;
  return true;
}
