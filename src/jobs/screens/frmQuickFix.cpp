#include "jobs/screens/frmQuickFix.h"

#include "core/clock.h"
#include "core/dates.h"
#include "core/format.h"
#include "core/prompts.h"
#include "core/store/tables.h"
#include "core/widgets/screen_routines.h"
#include "gear/people.h"
#include "gear/rigs.h"
#include "jobs/quick_fix.h"
#include "jobs/screens.h"
#include "jobs/screens/keep_shown.h"
#include "jobs/screens/ui_frmQuickFix.h"
#include "schedule/task_library.h"

using namespace Qt::StringLiterals;

frmQuickFix::frmQuickFix() : ui_(std::make_unique<Ui::frmQuickFix>()) {
  ui_->setupUi(this);
  SetRemembersPlace(false);
  connect(ui_->cmdSave, &QPushButton::clicked, this, &frmQuickFix::Save);
  connect(ui_->cmdHelp, &QPushButton::clicked, this, [] { ShowQuickFixHelp(); });
  connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmQuickFix::Cancel);
}

frmQuickFix::~frmQuickFix() = default;

void frmQuickFix::SetTask(int rigID, int customerID, int taskLibID) {
  rigID_ = rigID;
  customerID_ = customerID;
  taskLibID_ = taskLibID;
  ShowNames();
  ui_->txtDate->setText(Format(Today(), u"mm/dd/yy"_s));
  SelectAllInBox(ui_->txtDate);
}

void frmQuickFix::ShowNames() {
  ui_->lblCustomer->setText(PersonDisplayName(customerID_));
  ui_->lblRig->setText(RigName(rigID_));
  ui_->lblTask->setText(TaskLibName(taskLibID_));
}

QStringList frmQuickFix::ShowsTables() const { return {tblPeople::kTable, tblRig::kTable, tblTaskLib::kTable}; }

void frmQuickFix::ReloadForm() {
  if (TaskLibExists(taskLibID_) && (rigID_ == 0 || RigExists(rigID_)))
    ShowNames();
  else
    Cancel();
}

void frmQuickFix::Save() {
  const QString typed = ui_->txtDate->text().trimmed();
  if (!IsValidDate(typed)) {
    MsgBox(typed + u" is not a valid date"_s, u"Invalid date"_s);
    SelectAllInBox(ui_->txtDate);
    return;
  }
  if (QuickFix(rigID_, customerID_, taskLibID_, ParseDate(typed)) != 0) Leave();
}

void ShowQuickFix(int rigID, int customerID, int taskLibID) {
  if (ComesForward<frmQuickFix>()) return;
  auto& form = SharedForm<frmQuickFix>();
  form.SetTask(rigID, customerID, taskLibID);
  form.ShowModal();
  form.UnloadForm();
}
