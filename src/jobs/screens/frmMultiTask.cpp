#include "jobs/screens/frmMultiTask.h"

#include "core/lists.h"
#include "core/store/tables.h"
#include "jobs/screens.h"
#include "jobs/screens/keep_shown.h"
#include "jobs/screens/ui_frmMultiTask.h"

using namespace Qt::StringLiterals;

frmMultiTask::frmMultiTask() : ui_(std::make_unique<Ui::frmMultiTask>()) {
  ui_->setupUi(this);
  ui_->lstTasks->SetTickable(true);
  for (QRadioButton* option : {ui_->optBoth, ui_->optTasks, ui_->optEvents})
    connect(option, &QRadioButton::clicked, this, &frmMultiTask::LoadEntries);
  connect(ui_->cmdNewTask, &QPushButton::clicked, this, &frmMultiTask::NewEntry);
  connect(ui_->cmdSearch, &QPushButton::clicked, this, &frmMultiTask::Search);
  connect(ui_->txtSearch, &QLineEdit::returnPressed, this, &frmMultiTask::Search);
  connect(ui_->cmdClear, &QPushButton::clicked, this, [this] { ui_->lstTasks->TickAll(false); });
  connect(ui_->cmdOK, &QPushButton::clicked, this, [this] {
    SetTag(u"ok"_s);
    Leave();
  });
  connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmMultiTask::Cancel);
  for (QPushButton* button : findChildren<QPushButton*>()) button->setAutoDefault(false);  // Enter searches
  ui_->optTasks->setChecked(true);
  LoadEntries();
  ui_->txtSearch->setFocus();
}

frmMultiTask::~frmMultiTask() = default;

QStringList frmMultiTask::ShowsTables() const { return {tblTaskLib::kTable}; }

QList<int> frmMultiTask::Ticked() const { return ui_->lstTasks->TickedData(); }

/// The entries of the kind chosen; those that stay keep their ticks.
void frmMultiTask::LoadEntries() {
  const bool both = ui_->optBoth->isChecked();
  const bool events = ui_->optEvents->isChecked();
  setWindowTitle(both     ? u"Select multiple tasks/events"_s
                 : events ? u"Select multiple events"_s
                          : u"Select multiple tasks"_s);
  ui_->cmdNewTask->setVisible(!both);
  ui_->cmdNewTask->setText(events ? u"&New event"_s : u"&New task"_s);
  RefillList(*ui_->lstTasks, both ? LoadTaskList() : LoadTaskOrEventList(events));
}

void frmMultiTask::NewEntry() {
  const int added = ui_->optEvents->isChecked() ? EditEventType() : EditTaskType();
  if (added != 0) ui_->lstTasks->SelectData(added);
}

void frmMultiTask::Search() {
  const QString wanted = ui_->txtSearch->text().trimmed();
  const int count = ui_->lstTasks->Count();
  const int from = ui_->lstTasks->ListIndex() + 1;
  for (int step = 0; step < count && !wanted.isEmpty(); ++step) {
    const int row = (from + step) % count;
    if (!ui_->lstTasks->ItemText(row).contains(wanted, Qt::CaseInsensitive)) continue;
    ui_->lstTasks->SetListIndex(row);
    break;
  }
  ui_->txtSearch->clear();
}

QList<int> SelectMultipleTasks() {
  if (ComesForward<frmMultiTask>()) return {};
  auto& form = SharedForm<frmMultiTask>();
  form.ShowModal();
  QList<int> ticked = form.Tag() == "ok"_L1 ? form.Ticked() : QList<int>();
  form.UnloadForm();
  return ticked;
}
