#include "jobs/screens/frmSelectComponentThisTask.h"

#include "core/prompts.h"
#include "core/store/tables.h"
#include "gear/components.h"
#include "jobs/lines.h"
#include "jobs/screens.h"
#include "jobs/screens/keep_shown.h"
#include "jobs/screens/ui_frmSelectComponentThisTask.h"

using namespace Qt::StringLiterals;

frmSelectComponentThisTask::frmSelectComponentThisTask() : ui_(std::make_unique<Ui::frmSelectComponentThisTask>()) {
  ui_->setupUi(this);
  SetRemembersPlace(false);
  connect(ui_->lst, &List::ItemDoubleClick, this, &frmSelectComponentThisTask::Accept);
  connect(ui_->lst, &List::ItemEnter, this, &frmSelectComponentThisTask::Accept);
  connect(ui_->cmdOK, &QPushButton::clicked, this, &frmSelectComponentThisTask::Accept);
  connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmSelectComponentThisTask::Cancel);
}

frmSelectComponentThisTask::~frmSelectComponentThisTask() = default;

QStringList frmSelectComponentThisTask::ShowsTables() const {
  return {tblTaskComponents::kTable, tblComponents::kTable, tblModels::kTable};
}

void frmSelectComponentThisTask::SetTask(int taskID) {
  taskID_ = taskID;
  ReloadForm();
}

void frmSelectComponentThisTask::ReloadForm() {
  IdList components;
  for (int component : ComponentsOfLine(taskID_)) components.Add(ComponentDescription(component), component);
  RefillList(*ui_->lst, components);
}

int frmSelectComponentThisTask::Component() const { return ui_->lst->ItemData(ui_->lst->ListIndex()); }

void frmSelectComponentThisTask::Accept() {
  if (Component() == 0) {
    MsgBox(u"Please select a component"_s, u"Nothing selected"_s);
    return;
  }
  SetTag(u"ok"_s);
  Leave();
}

int SelectComponentOfTask(int taskID) {
  if (ComesForward<frmSelectComponentThisTask>()) return 0;
  auto& form = SharedForm<frmSelectComponentThisTask>();
  form.SetTask(taskID);
  form.ShowModal();
  const int chosen = form.Tag() == "ok"_L1 ? form.Component() : 0;
  form.UnloadForm();
  return chosen;
}
