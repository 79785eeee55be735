#include "jobs/screens/frmMiscTask.h"

#include "core/lists.h"
#include "core/prompts.h"
#include "core/store/tables.h"
#include "jobs/screens/keep_shown.h"
#include "jobs/screens/ui_frmMiscTask.h"

using namespace Qt::StringLiterals;

frmMiscTask::frmMiscTask() : ui_(std::make_unique<Ui::frmMiscTask>()) {
  ui_->setupUi(this);
  ui_->lstComps->SetTickable(true);
  ui_->lstComps->Fill(LoadComponentTypes());
  connect(ui_->cmdCheckAll, &QPushButton::clicked, this, [this] { ui_->lstComps->TickAll(true); });
  connect(ui_->cmdCheckNone, &QPushButton::clicked, this, [this] { ui_->lstComps->TickAll(false); });
  connect(ui_->cmdOK, &QPushButton::clicked, this, &frmMiscTask::Accept);
  connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmMiscTask::Cancel);
}

frmMiscTask::~frmMiscTask() = default;

QStringList frmMiscTask::ShowsTables() const { return {tblComponentTypes::kTable}; }

void frmMiscTask::ReloadForm() { RefillList(*ui_->lstComps, LoadComponentTypes()); }

void frmMiscTask::DoEventCaptions() {
  isEvent_ = true;
  setWindowTitle(u"Enter custom event"_s);
  for (QWidget* part : QList<QWidget*>{ui_->lblCost, ui_->txtCost, ui_->chkRiggerLog}) part->hide();
}

CustomEntry frmMiscTask::Entry() const {
  return {.name = ui_->txtName->text().trimmed(),
          .price = Money::FromText(ui_->txtCost->text()),
          .logBook = ui_->chkRiggerLog->isChecked(),
          .isEvent = isEvent_,
          .componentTypes = ui_->lstComps->TickedData()};
}

QStringList frmMiscTask::ComponentNames() const {
  QStringList names;
  for (int row = 0; row < ui_->lstComps->Count(); ++row) names << ui_->lstComps->ItemText(row);
  return names;
}

void frmMiscTask::Accept() {
  const CustomEntry entry = Entry();
  if (!entry.name.isEmpty() && entry.componentTypes.isEmpty() &&
      !AskYes(Lines({u"You didn't select any components. "_s, u"Continue anyway?"_s}), u"No components selected"_s))
    return;
  Leave();
}

void frmMiscTask::Cancel() {
  ui_->txtName->clear();
  ui_->txtCost->clear();
  Form::Cancel();
}
