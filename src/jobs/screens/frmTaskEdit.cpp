#include "jobs/screens/frmTaskEdit.h"

#include "core/clock.h"
#include "core/store/tables.h"
#include "core/value.h"
#include "core/widgets/screen_routines.h"
#include "jobs/lines.h"
#include "jobs/screens.h"
#include "jobs/screens/keep_shown.h"
#include "jobs/screens/ui_frmTaskEdit.h"

using namespace Qt::StringLiterals;

frmTaskEdit::frmTaskEdit() : ui_(std::make_unique<Ui::frmTaskEdit>()) {
  ui_->setupUi(this);
  SetRemembersPlace(false);
  MoveOnWithEnter({ui_->txtName, ui_->txtCost}, ui_->cmdOK);
  const QString today = Value(Today()).ToText();
  connect(ui_->cmdTodayStart, &QPushButton::clicked, this, [this, today] { ui_->txtDateStarted->setText(today); });
  connect(ui_->cmdTodayComplete, &QPushButton::clicked, this, [this, today] { ui_->txtDateCompleted->setText(today); });
  for (QRadioButton* option : {ui_->optComplete, ui_->optIncomplete, ui_->optWaiting})
    connect(option, &QRadioButton::clicked, this, &frmTaskEdit::ChooseStatus);
  connect(ui_->txtName, &QLineEdit::textChanged, this, &frmTaskEdit::OfferOriginalName);
  connect(ui_->cmdRestoreName, &QPushButton::clicked, this, [this] { ui_->txtName->setText(original_); });
  connect(ui_->cmdOK, &QPushButton::clicked, this, &frmTaskEdit::Save);
  connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmTaskEdit::Cancel);
}

frmTaskEdit::~frmTaskEdit() = default;

QStringList frmTaskEdit::ShowsTables() const { return {tblTasks::kTable, tblTaskLib::kTable}; }

void frmTaskEdit::ReloadForm() {
  TaskEntry entry;
  if (LoadTaskEntry(taskID_, entry))
    ShowOriginal();
  else
    Cancel();
}

void frmTaskEdit::ShowOriginal() {
  ui_->lblTaskName->setText(OriginalTaskName(taskID_));
  original_ = TaskLibIDOf(taskID_) == 0 ? QString() : OriginalTaskName(taskID_);
  OfferOriginalName();
}

void frmTaskEdit::OfferOriginalName() {
  ui_->cmdRestoreName->setEnabled(!original_.isEmpty() && ui_->txtName->text() != original_);
}

bool frmTaskEdit::SetTask(int taskID) {
  taskID_ = taskID;
  TaskEntry entry;
  if (!LoadTaskEntry(taskID, entry)) return false;
  ui_->chkRiggerLog->setVisible(!LineIsPart(taskID));
  ShowEntry(entry);
  ShowOriginal();
  SelectAllInBox(ui_->txtName);
  return true;
}

TaskEntry frmTaskEdit::Entry() const {
  return {ui_->txtName->text(),
          ui_->txtCost->text(),
          ui_->chkRiggerLog->isChecked(),
          ui_->optComplete->isChecked()  ? kComplete
          : ui_->optWaiting->isChecked() ? kWaitingOnParts
                                         : kIncomplete,
          ui_->txtDateStarted->text(),
          ui_->txtDateCompleted->text()};
}

void frmTaskEdit::ShowEntry(const TaskEntry& entry) {
  ui_->txtName->setText(entry.name);
  ui_->txtCost->setText(entry.price);
  ui_->chkRiggerLog->setChecked(entry.logBook);
  (entry.status == kComplete         ? ui_->optComplete
   : entry.status == kWaitingOnParts ? ui_->optWaiting
                                     : ui_->optIncomplete)
      ->setChecked(true);
  ui_->txtDateStarted->setText(entry.dateStarted);
  ui_->txtDateCompleted->setText(entry.dateCompleted);
}

void frmTaskEdit::ChooseStatus() {
  ui_->txtDateCompleted->setText(ui_->optComplete->isChecked() ? Value(Today()).ToText() : QString());
}

void frmTaskEdit::Save() {
  TaskEntry entry = Entry();
  if (!SaveTaskEntry(taskID_, entry)) return;
  SetTag(u"ok"_s);
  Leave();
}

bool EditTask(int taskID) {
  if (ComesForward<frmTaskEdit>()) return false;
  auto& form = SharedForm<frmTaskEdit>();
  if (form.SetTask(taskID)) form.ShowModal();
  const bool saved = form.Tag() == "ok"_L1;
  form.UnloadForm();
  return saved;
}
