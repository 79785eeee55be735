#include "jobs/screens/frmSelectComponentThisTask.h"

#include "core/prompts.h"
#include "core/store/access.h"
#include "gear/components.h"
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
  return {u"tblTaskComponents"_s, u"tblComponents"_s, u"tblModels"_s};
}

void frmSelectComponentThisTask::SetTask(int taskID) {
  taskID_ = taskID;
  ReloadForm();
}

void frmSelectComponentThisTask::ReloadForm() {
  QList<int> ids;
  GetRecordsFromTable(u"tblTaskComponents"_s, u"TaskID"_s, taskID_, u"CompID"_s, ids);
  ids.removeAll(0);
  IdList components;
  for (int component : ids) components.Add(ComponentDescription(component), component);
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
