#include "jobs/screens/frmQuickFix.h"

#include "core/clock.h"
#include "core/dates.h"
#include "core/format.h"
#include "core/prompts.h"
#include "core/widgets/screen_routines.h"
#include "gear/people.h"
#include "gear/rigs.h"
#include "jobs/quick_fix.h"
#include "jobs/screens.h"
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
  ui_->lblCustomer->setText(PersonDisplayName(customerID));
  ui_->lblRig->setText(RigName(rigID));
  ui_->lblTask->setText(TaskLibName(taskLibID));
  ui_->txtDate->setText(Format(Today(), u"mm/dd/yy"_s));
  SelectAllInBox(ui_->txtDate);
}

void frmQuickFix::Save() {
  const QString typed = ui_->txtDate->text().trimmed();
  if (!IsValidDate(typed)) {
    MsgBox(typed + u" is not a valid date"_s, u"Invalid date"_s);
    SelectAllInBox(ui_->txtDate);
    return;
  }
  QuickFix(rigID_, customerID_, taskLibID_, ParseDate(typed));
  Leave();
}

void ShowQuickFix(int rigID, int customerID, int taskLibID) {
  auto& form = SharedForm<frmQuickFix>();
  form.SetTask(rigID, customerID, taskLibID);
  form.ShowModal();
  form.UnloadForm();
}
