#include "gear/screens/rigs/frmGetRig.h"

#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>

#include "core/clock.h"
#include "core/data_folder.h"
#include "core/default_rows.h"
#include "core/picker.h"
#include "core/prompts.h"
#include "core/screens.h"
#include "core/store/operation.h"
#include "gear/people.h"
#include "gear/person_names.h"
#include "gear/rig_rules.h"
#include "gear/rigs.h"
#include "gear/screens.h"
#include "gear/screens/rigs/ui_frmGetRig.h"
#include "gear/screens/schedule_grid.h"
#include "history/screens.h"
#include "jobs/person_deletion.h"
#include "jobs/screens.h"
#include "schedule/gear_moves.h"
#include "schedule/rig_audit.h"
#include "schedule/scheduled_task.h"
#include "schedule/screens.h"

using namespace Qt::StringLiterals;

frmGetRig::frmGetRig() : ui_(std::make_unique<Ui::frmGetRig>()) {
  ui_->setupUi(this);
  ui_->browser->AddBelowGrid(ui_->panel, ui_->Grid2);
  ScheduleGrid::SetUp(*ui_->Grid2);
  MakeMenu();
  connect(ui_->browser, &RigBrowser::RigShown, this, &frmGetRig::ShowRig);
  connect(ui_->browser, &RigBrowser::CustomerShown, this, &frmGetRig::ShowState);
  connect(ui_->browser, &RigBrowser::ComponentRowChange, this, &frmGetRig::ShowState);
  connect(ui_->browser, &RigBrowser::SearchWanted, this, &frmGetRig::Search);
  connect(ui_->browser, &RigBrowser::ComponentWanted, this, &frmGetRig::EnterComponent);
  connect(ui_->browser, &RigBrowser::ComponentRemoveWanted, this, &frmGetRig::RemoveComponent);
  connect(ui_->browser, &RigBrowser::QuickEditWanted, this, &frmGetRig::EditQuickly);
  connect(ui_->browser, &RigBrowser::CommentsWanted, this, &frmGetRig::EditRigComments);
  connect(ui_->browser, &RigBrowser::RigDeleteWanted, this, &frmGetRig::DeleteRig);
  connect(ui_->cmdEnter, &QPushButton::clicked, this, &frmGetRig::EnterComponent);
  connect(ui_->cmdRemove, &QPushButton::clicked, this, &frmGetRig::RemoveComponent);
  connect(ui_->cmdAddRig, &QPushButton::clicked, this, &frmGetRig::AddRig);
  connect(ui_->cmdRename, &QPushButton::clicked, this, &frmGetRig::RenameRig);
  connect(ui_->cmdDeleteRig, &QPushButton::clicked, this, &frmGetRig::DeleteRig);
  connect(ui_->cmdRefresh, &QPushButton::clicked, this, &frmGetRig::ReloadForm);
  connect(ui_->cmdExit, &QPushButton::clicked, this, &frmGetRig::Cancel);
  connect(ui_->cmdUpdateTask, &QPushButton::clicked, this, &frmGetRig::UpdateTask);
  ui_->cmdHelp->setEnabled(false);
  ShowState();
}

frmGetRig::~frmGetRig() = default;

QStringList frmGetRig::ShowsTables() const { return RigBrowser::ShowsTables() + ScheduleGrid::ShowsTables(); }

void frmGetRig::MakeMenu() {
  const auto add = [this](QMenu* menu, const QString& text, auto command) {
    QAction* action = menu->addAction(text, this, command);
    changes_ << action;
    return action;
  };
  const auto later = [](QMenu* menu, const QString& text) { menu->addAction(text)->setEnabled(false); };

  auto* edit = MenuBar()->addMenu(u"Edit"_s);
  rigCommands_ << add(edit, u"Edit rig name"_s, &frmGetRig::RenameRig)
               << add(edit, u"Change rig owner"_s, &frmGetRig::ChangeOwner)
               << add(edit, u"Change rig type"_s, &frmGetRig::ChangeType);
  auto* customers = MenuBar()->addMenu(u"Customers"_s);
  add(customers, u"Add new customer"_s, &frmGetRig::AddCustomer);
  add(customers, u"Select customer"_s, &frmGetRig::Search);
  add(customers, u"Delete customer"_s, &frmGetRig::DeleteCustomer);
  rigCommands_ << add(customers, u"Change rig owner"_s, &frmGetRig::ChangeOwner);
  auto* rigs = MenuBar()->addMenu(u"Rigs"_s);
  add(rigs, u"Add new rig"_s, &frmGetRig::AddRig);
  add(rigs, u"Delete rig"_s, &frmGetRig::DeleteRig);
  rigCommands_ << add(rigs, u"Rename rig"_s, &frmGetRig::RenameRig);
  auto* jobs = MenuBar()->addMenu(u"Jobs"_s);
  add(jobs, u"Start new job"_s, [this] { StartNewJob(ui_->browser->Customer(), ui_->browser->Rig(), 0, Today()); });
  jobs->addAction(u"Review jobs"_s, this, [this] { OpenJobList({.customer = ui_->browser->Customer()}); });
  later(MenuBar()->addMenu(u"Photos"_s), u"Add/view more photos"_s);
  MenuBar()->addMenu(u"History"_s)->addAction(u"Show this rig's history"_s, this, &frmGetRig::ShowHistory);
  MenuBar()->addMenu(u"Schedule"_s)->addAction(u"Show schedule"_s, this, [this] {
    OpenSchedule({.rig = ui_->browser->Rig()});
  });
  auto* types = MenuBar()->addMenu(u"Rig Types"_s);
  types->addAction(u"Display all rig types"_s, this, [this] { ui_->browser->SetRigTypeFilter(0); });
  types->addAction(u"Display selected rig type only"_s, this, &frmGetRig::FilterByType);
  MenuBar()->addMenu(u"Forms"_s)->addAction(u"Arrange forms"_s, this, [] { ArrangeForms(); });
  changes_ << MenuBar()->addAction(u"Comments"_s, this, &frmGetRig::EditRigComments);
  MenuBar()->addAction(u"Print/Email"_s)->setEnabled(false);
  MenuBar()->addAction(u"Exit"_s, this, &frmGetRig::Cancel);
}

void frmGetRig::SetStart(const RigScreenStart& start) {
  SetMode(start);
  ui_->browser->Begin(start.customer, start.rig, start.rigType);
}

void frmGetRig::GoTo(const RigScreenStart& start) {
  SetMode(start);
  const bool isShown =
      start.rig != 0 ? start.rig == Rig() : start.customer == 0 || start.customer == ui_->browser->Customer();
  if (!isShown || (start.rigType != 0 && start.rigType != ui_->browser->RigTypeFilter()))
    ui_->browser->Begin(start.customer, start.rig, start.rigType);
  else
    ShowState();
}

int frmGetRig::Rig() const { return ui_->browser->Rig(); }

void frmGetRig::SetMode(const RigScreenStart& start) {
  hideButtons_ = start.hideButtons;
  setWindowTitle(start.caption.isEmpty() ? u"Rigs"_s : start.caption);
  ui_->cmdExit->setVisible(!hideButtons_);
  for (QPushButton* button :
       {ui_->cmdEnter, ui_->cmdRemove, ui_->cmdAddRig, ui_->cmdRename, ui_->cmdDeleteRig, ui_->cmdUpdateTask})
    button->setVisible(!hideButtons_);
  ui_->browser->SetFixed(hideButtons_);
}

void frmGetRig::ReloadForm() { ui_->browser->Reload(); }

void frmGetRig::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Delete)
    DeleteRig();
  else
    Form::keyPressEvent(event);
}

void frmGetRig::ShowRig() {
  ReloadSchedule();
  ShowState();
}

void frmGetRig::ReloadSchedule() {
  const int rig = ui_->browser->Rig();
  ScheduleGrid::Fill(*ui_->Grid2, rig == 0 ? QList<RigAuditRow>() : LoadRigAudit(rig));
}

void frmGetRig::UpdateTask() {
  const int rig = ui_->browser->Rig();
  const int entry = ScheduleGrid::EntryToUpdate(*ui_->Grid2);
  if (entry != 0) UpdateScheduledTask(entry, rig, ComponentOfEntry(rig, entry));
}

void frmGetRig::ShowState() {
  const bool hasRig = ui_->browser->Rig() != 0;
  for (QAction* change : std::as_const(changes_)) change->setEnabled(!hideButtons_);
  for (QAction* command : std::as_const(rigCommands_)) command->setEnabled(hasRig && !hideButtons_);
  ui_->cmdRename->setEnabled(hasRig);
  ui_->cmdEnter->setEnabled(hasRig && ui_->browser->ComponentRows() > 0);
  ui_->cmdRemove->setEnabled(ui_->cmdEnter->isEnabled());
}

void frmGetRig::Search() {
  const int picked = PickItem(kPickCustomer, 0, ui_->browser->Customer()).id;
  const int person = picked == kPickAddNewPerson || picked == kPickAddNew ? ShowPeople(kPeopleAddNew) : picked;
  if (person > 0) ui_->browser->SelectCustomer(person);
}

void frmGetRig::AddCustomer() {
  if (const int person = ::AddCustomer(); person != 0) ui_->browser->SelectCustomer(person);
}

void frmGetRig::DeleteCustomer() {
  const int customer = ui_->browser->Customer();
  if (customer == 0) {
    MsgBox(u"Please select a customer"_s, u"No Customer Selected"_s);
    return;
  }
  int neighbour = 0;
  if (DeleteCustomerFromRigScreen(customer, neighbour)) ui_->browser->ShowCustomer(neighbour);
}

void frmGetRig::AddRig() {
  const int customer = ui_->browser->Customer();
  if (customer == 0) {
    MsgBox(u"Please select a customer"_s, u"No Customer Selected"_s);
    return;
  }
  const QString name = AskNewRigName(customer);
  if (name.isEmpty()) return;
  int rig = 0;
  const bool written = Operation(u"Sub AddRig"_s, [&] {
    if (const int type = ChooseTypeOfNewRig(); type != 0) rig = CreateRig(customer, type, name);
  });
  if (!written || rig == 0) return;
  ui_->browser->ShowRig(rig);
  ui_->browser->SelectComponentRow(0);
  MsgBox(Lines({u"Rig: "_s + RigName(rig) + u" has been created."_s, QString(),
                u"To select this rig's components, click on the grid"_s,
                u"and select the Enter/Edit Component button."_s}),
         u"Select rig components"_s);
}

void frmGetRig::RenameRig() {
  if (Rig() != 0) ::RenameRig(Rig());
}

void frmGetRig::ChangeOwner() {
  const int rig = ui_->browser->Rig();
  if (rig == 0) return;
  const int picked = PickItem(kPickCustomer, 0, RigOwner(rig)).id;
  if (picked == kPickAddNew || picked == kPickAddNewPerson)
    MsgBox(u"new customer"_s);
  else if (ChangeRigOwner(rig, picked))
    ui_->browser->ShowRig(rig);
}

void frmGetRig::ChangeType() {
  const int rig = ui_->browser->Rig();
  if (rig == 0) return;
  const int picked = PickItem(kPickRigType, 0, RigType(rig)).id;
  if (picked == kPickAddNew || picked == kPickAddNewPerson)
    MsgBox(u"new customer"_s);
  else
    ChangeRigType(rig, picked);
}

void frmGetRig::DeleteRig() {
  if (hideButtons_) return;
  const int rig = ui_->browser->Rig();
  const int customer = ui_->browser->Customer();
  if (ui_->browser->ShowsSelectedOnly() && customer != 0 && NumberOfRigs(customer) == 0) {
    MsgBox(u"Selected customer doesn't have any rigs"_s, u"No rigs found for "_s + PersonDisplayName(customer));
    return;
  }
  if (rig == 0) {
    MsgBox(u"Please select a rig to delete"_s, u"No rig selected"_s);
    return;
  }
  if (ConfirmRigDeletion(rig)) ::DeleteRig(rig);
}

void frmGetRig::ShowHistory() {
  const int rig = ui_->browser->Rig();
  if (rig == 0)
    MsgBox(u"You must select a rig"_s, u"Rig History"_s);
  else
    OpenRigHistory(rig);
}

void frmGetRig::FilterByType() {
  const int type = PickItem(kPickRigType, 0, RigType(ui_->browser->Rig())).id;
  if (type > 0) ui_->browser->SetRigTypeFilter(type);
}

void frmGetRig::EditRigComments() {
  if (hideButtons_) return;
  const int rig = ui_->browser->Rig();
  if (rig == 0) {
    MsgBox(u"You must select a rig"_s, u"Comments"_s);
    return;
  }
  const auto comment = EditComments(u"Rig: "_s + RigName(rig), RigComment(rig));
  if (comment) SetRigComment(rig, *comment);
}
