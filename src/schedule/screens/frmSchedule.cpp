#include "schedule/screens/frmSchedule.h"

#include <QMenu>
#include <QMenuBar>

#include "core/clock.h"
#include "core/format.h"
#include "core/picker.h"
#include "core/prompts.h"
#include "core/screens.h"
#include "core/store/tables.h"
#include "gear/components.h"
#include "gear/people.h"
#include "gear/rigs.h"
#include "gear/screens.h"
#include "history/screens.h"
#include "jobs/schedule_jobs.h"
#include "jobs/screens.h"
#include "schedule/screens/ui_frmSchedule.h"
#include "schedule/task_library.h"

using namespace Qt::StringLiterals;

namespace {

using Whose = ScheduleFilter::Whose;

constexpr int kTaskColumn = 3;

/// What orders rows by the calendar, since the shown dates do not.
QString SortKey(Date date) { return date.IsNone() ? QString() : Format(date, u"yyyymmdd"_s); }

std::vector<GridColumn> Columns() {
  return {{.heading = u"ID"_s, .width = 0},
          {.heading = u"Customer"_s, .width = 150},
          {.heading = u"Rig/Component"_s, .width = 220},
          {.heading = u"Task"_s, .width = 195},
          {.heading = u"Date Done"_s, .width = 90, .sortKey = 12},
          {.heading = u"Date Due"_s, .width = 90, .sortKey = 13},
          {.heading = u"TaskLibID"_s, .width = 0},
          {.heading = u"RigID"_s, .width = 0},
          {.heading = u"TaskID"_s, .width = 0},
          {.heading = u"OwnerID"_s, .width = 0},
          {.heading = u"Time Left"_s, .width = 90},
          {.heading = u"ComponentID"_s, .width = 0},
          {.heading = u"DoneKey"_s, .width = 0},
          {.heading = u"DueKey"_s, .width = 0}};
}

GridRow RowOf(const ScheduleEntry& entry, int number) {
  const auto text = [](int id) { return QString::number(id); };
  return {
      .cells = {text(entry.id), entry.customer, entry.gear, entry.task, entry.dateDone,
                Format(entry.due, u"mm/dd/yyyy"_s), text(entry.taskLibID), text(entry.rigID), text(entry.taskID),
                text(entry.ownerID), entry.timeLeft, text(entry.componentID), SortKey(entry.done), SortKey(entry.due)},
      .data = number};
}

}  // namespace

frmSchedule::frmSchedule() : ui_(std::make_unique<Ui::frmSchedule>()) {
  ui_->setupUi(this);
  BuildMenus();
  ui_->grid->setObjectName(u"Grid"_s);
  ui_->grid->SetColumns(Columns());
  ui_->grid->SetMarksCell(true);
  ui_->grid->SetStretchColumn(2);
  ui_->grid->SetMemory(u"schedule"_s);
  connect(ui_->grid, &Grid::CellChange, this, [this](int row) { RememberRow(row); });
  connect(ui_->grid, &Grid::CellDoubleClick, this, &frmSchedule::DisplayRig);
  connect(ui_->grid, &Grid::CellEnter, this, &frmSchedule::DisplayRig);
  connect(ui_->grid, &Grid::CellDelete, this, &frmSchedule::DeleteSelection);
  for (QRadioButton* option : {ui_->optTasksAll, ui_->optTasksSelected})
    connect(option, &QRadioButton::clicked, this, &frmSchedule::ChooseTask);
  for (QRadioButton* option : {ui_->optRigOnly, ui_->optCustomerSelected, ui_->optCustomersAll})
    connect(option, &QRadioButton::clicked, this, &frmSchedule::ChooseFilter);
  connect(ui_->cmdSelectCustomer, &QPushButton::clicked, this, &frmSchedule::ChooseCustomer);
  connect(ui_->cmdRefresh, &QPushButton::clicked, this, &frmSchedule::ReloadForm);
  connect(ui_->cmdExit, &QPushButton::clicked, this, &frmSchedule::Cancel);
}

frmSchedule::~frmSchedule() = default;

QStringList frmSchedule::ShowsTables() const {
  return {tblSchedules::kTable, tblComponents::kTable, tblRig::kTable,           tblPeople::kTable,
          tblTaskLib::kTable,   tblModels::kTable,     tblTaskComponents::kTable};
}

void frmSchedule::BuildMenus() {
  QMenuBar* bar = MenuBar();
  bar->addMenu(u"&Delete"_s)->addAction(u"Delete selected item"_s, this, &frmSchedule::DeleteSelection);
  bar->addMenu(u"&Rig"_s)->addAction(u"Diplay rig"_s, this, &frmSchedule::DisplayRig);
  bar->addMenu(u"C&omponent"_s)->addAction(u"Display component"_s, this, &frmSchedule::DisplayComponent);
  bar->addMenu(u"&Customer"_s)->addAction(u"Display customer"_s, this, &frmSchedule::DisplayCustomer);
  QMenu* jobs = bar->addMenu(u"&Jobs"_s);
  jobs->addAction(u"Display job"_s, this, &frmSchedule::DisplayJob);
  jobs->addAction(u"Start new job"_s, this, &frmSchedule::StartJob);
  jobs->addSeparator();
  jobs->addAction(u"Quick Fix"_s, this, &frmSchedule::StartQuickFix);
  bar->addMenu(u"&History"_s)->addAction(u"Show history"_s, this, &frmSchedule::ShowHistory);
  bar->addMenu(u"&Print"_s)->addAction(u"Print schedule"_s)->setEnabled(false);
  bar->addMenu(u"&Forms"_s)->addAction(u"Arrange forms"_s, this, [] { ArrangeForms(); });
  bar->addAction(u"Exit"_s, this, &frmSchedule::Cancel);
}

void frmSchedule::SetStart(const ScheduleStart& start) {
  chosen_ = {.whose = start.rig != 0        ? Whose::Rig
                      : start.customer != 0 ? Whose::Customer
                                            : Whose::AllCustomers,
             .customer = start.customer,
             .rig = start.rig};
  rig_ = start.rig;
  ReloadForm();
}

void frmSchedule::ShowFilter() {
  ui_->optRigOnly->setChecked(chosen_.whose == Whose::Rig);
  ui_->optCustomerSelected->setChecked(chosen_.whose == Whose::Customer);
  ui_->optCustomersAll->setChecked(chosen_.whose == Whose::AllCustomers);
  ui_->optTasksAll->setChecked(chosen_.taskLibID == 0);
  ui_->optTasksSelected->setChecked(chosen_.taskLibID != 0);
  ui_->lblCustomer->setText(u"Customer:  "_s +
                            (chosen_.customer == 0 ? u"(none)"_s : PersonDisplayName(chosen_.customer)));
}

void frmSchedule::ReloadForm() {
  ForgetWhatHasGone();
  ShowFilter();
  const auto selected = EntryOf(ui_->grid->CurrentRow());
  const int id = selected ? selected->id : 0;
  const int component = selected ? selected->componentID : 0;
  const int column = ui_->grid->CurrentColumn();
  entries_ = LoadSchedule(chosen_);
  std::vector<GridRow> rows;
  int again = 0;
  for (const ScheduleEntry& entry : std::as_const(entries_)) {
    rows.push_back(RowOf(entry, static_cast<int>(rows.size()) + 1));
    if (selected && entry.id == id && entry.componentID == component) again = static_cast<int>(rows.size());
  }
  ui_->grid->Fill(std::move(rows));
  if (again != 0) ui_->grid->SelectCell(ui_->grid->FindRow(again), column);
}

/// A filter by what is no longer there lets everything through.
void frmSchedule::ForgetWhatHasGone() {
  if (rig_ != 0 && !RigExists(rig_)) rig_ = 0;
  if (chosen_.customer != 0 && !PersonExists(chosen_.customer)) chosen_.customer = 0;
  if (chosen_.taskLibID != 0 && !TaskLibExists(chosen_.taskLibID)) chosen_.taskLibID = 0;
  if ((chosen_.whose == Whose::Rig && !RigExists(chosen_.rig)) ||
      (chosen_.whose == Whose::Customer && chosen_.customer == 0))
    chosen_.whose = Whose::AllCustomers;
}

std::optional<ScheduleEntry> frmSchedule::EntryOf(int row) const {
  const int number = ui_->grid->RowData(row);
  if (number < 1 || number > entries_.size()) return std::nullopt;
  return entries_[number - 1];
}

std::optional<ScheduleEntry> frmSchedule::Selected() const {
  std::optional<ScheduleEntry> entry = EntryOf(ui_->grid->CurrentRow());
  if (!entry) MsgBox(u"You must select an event"_s, u"Nothing selected"_s);
  if (entry && !RigExists(entry->rigID)) entry->rigID = 0;
  return entry;
}

void frmSchedule::RememberRow(int row) {
  if (const auto entry = EntryOf(row)) rig_ = entry->rigID;
}

void frmSchedule::ChooseTask() {
  chosen_.taskLibID = 0;
  if (ui_->optTasksSelected->isChecked()) {
    const auto entry = EntryOf(ui_->grid->CurrentRow());
    if (entry && entry->id != kServiceLifeRow && ui_->grid->CurrentColumn() == kTaskColumn)
      chosen_.taskLibID = entry->taskLibID;
    else
      MsgBox(u"Please select a task from the TASK column"_s);
  }
  ReloadForm();
}

void frmSchedule::ChooseFilter() {
  if (ui_->optCustomersAll->isChecked()) {
    chosen_.whose = Whose::AllCustomers;
  } else if (ui_->optCustomerSelected->isChecked()) {
    if (chosen_.customer == 0) {
      ChooseCustomer();
      return;
    }
    chosen_.whose = Whose::Customer;
  } else if (rig_ == 0) {
    MsgBox(u"Please select a rig"_s, u"No rig selected"_s);
  } else {
    chosen_.whose = Whose::Rig;
    chosen_.rig = rig_;
  }
  ReloadForm();
}

void frmSchedule::ChooseCustomer() {
  const int picked = PickItem(kPickCustomer, 0, chosen_.customer).id;
  if (picked > 0) {
    chosen_.customer = picked;
    chosen_.whose = Whose::Customer;
  }
  ReloadForm();
}

void frmSchedule::DeleteSelection() {
  const auto entry = Selected();
  if (entry) DeleteScheduleEntry(entry->id, RigName(entry->rigID));
}

void frmSchedule::DisplayRig() {
  const auto entry = Selected();
  if (!entry) return;
  if (entry->rigID != 0) {
    OpenRigs({.customer = RigOwner(entry->rigID), .rig = entry->rigID});
    return;
  }
  const int component = entry->componentID;
  const QString description = ComponentDescription(component).trimmed();
  if (AskYes(Lines({description + u" is not part of a rig"_s, u"Would you like to see "_s + description + u'?'}),
             u"No rig"_s))
    ShowComponent(component);
}

void frmSchedule::DisplayComponent() {
  const auto entry = Selected();
  if (!entry) return;
  if (entry->componentID == 0)
    MsgBox(u"schedule has multiple components"_s);
  else
    ShowComponent(entry->componentID);
}

void frmSchedule::DisplayCustomer() {
  if (const auto entry = Selected()) OpenPeople(entry->ownerID);
}

void frmSchedule::DisplayJob() {
  const auto entry = Selected();
  if (!entry) return;
  if (const int job = JobOfScheduledTask(entry->taskID, entry->rigID); job != 0) GotoJob(job);
}

void frmSchedule::StartJob() {
  const auto entry = Selected();
  if (!entry) return;
  int job = 0;
  if (AskNewJobFor(entry->ownerID, entry->rigID))
    StartJobDialog(entry->ownerID, entry->rigID, entry->componentID, job, 0, 0, Today());
}

void frmSchedule::StartQuickFix() {
  const auto entry = Selected();
  if (!entry) return;
  if (entry->rigID == 0 || entry->id == kServiceLifeRow)
    MsgBox(u"Please select a rig"_s, u"No rig selected"_s);
  else
    ShowQuickFix(entry->rigID, entry->ownerID, entry->taskLibID);
}

void frmSchedule::ShowHistory() {
  const auto entry = Selected();
  if (!entry) return;
  if (entry->rigID != 0)
    OpenRigHistory(entry->rigID);
  else
    OpenComponentHistory(entry->componentID);
}

void OpenSchedule(const ScheduleStart& start) {
  if (auto* open = FormIfLoaded<frmSchedule>()) open->UnloadForm();
  auto& form = SharedForm<frmSchedule>();
  form.SetStart(start);
  form.Show();
}
