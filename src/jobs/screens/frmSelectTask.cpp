#include "jobs/screens/frmSelectTask.h"

#include <QKeyEvent>
#include <QMenuBar>

#include "core/clock.h"
#include "core/prompts.h"
#include "core/store/tables.h"
#include "core/value.h"
#include "gear/models.h"
#include "jobs/library_delete.h"
#include "jobs/library_entry.h"
#include "jobs/screens/keep_shown.h"
#include "jobs/screens/ui_frmSelectTask.h"

using namespace Qt::StringLiterals;

frmSelectTask::frmSelectTask() : ui_(std::make_unique<Ui::frmSelectTask>()) {
  ui_->setupUi(this);
  MenuBar()->addAction(u"&New"_s, this, [this] { Create({}); })->setObjectName(u"mnuNew"_s);
  MenuBar()->addAction(u"Ed&it"_s, this, &frmSelectTask::Edit)->setObjectName(u"mnuEdit"_s);
  MenuBar()->addAction(u"&Delete"_s, this, &frmSelectTask::Delete)->setObjectName(u"mnuDelete"_s);
  MenuBar()->addAction(u"&Refresh"_s, this, &frmSelectTask::ReloadForm)->setObjectName(u"mnuRefresh"_s);
  ui_->lstCompTypes->Fill(LoadComponentTypes());
  connect(ui_->chkComp, &QCheckBox::clicked, this, &frmSelectTask::ShowList);
  connect(ui_->lstCompTypes, &List::ListChange, this, [this] {
    if (ui_->chkComp->isChecked()) ShowList();
  });
  connect(ui_->txt, &QLineEdit::textChanged, this, &frmSelectTask::LoadListBoxFromArray);
  ui_->txt->installEventFilter(this);
  connect(ui_->lstTasks, &List::ItemDoubleClick, this, &frmSelectTask::Select);
  connect(ui_->lstTasks, &List::ItemEnter, this, &frmSelectTask::Select);
  connect(ui_->lstTasks, &List::ItemDelete, this, &frmSelectTask::Delete);
  connect(ui_->cmdSelect, &QPushButton::clicked, this, &frmSelectTask::Select);
  connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmSelectTask::Cancel);
}

frmSelectTask::~frmSelectTask() = default;

QStringList frmSelectTask::ShowsTables() const {
  return {tblTaskLib::kTable, tblTaskLibComponentTypes::kTable, tblComponentTypes::kTable};
}

void frmSelectTask::Browse(bool events) { SetUp({.events = events}, false); }

void frmSelectTask::Pick(const LibraryQuestion& question) { SetUp(question, true); }

void frmSelectTask::SetUp(const LibraryQuestion& question, bool picking) {
  events_ = question.events;
  picking_ = picking;
  setWindowTitle(question.caption);
  ui_->lblHeading->setText(events_ ? u"Events"_s : u"Tasks"_s);
  ui_->cmdCancel->setText(picking ? u"&Cancel"_s : u"&Exit"_s);
  for (QWidget* part : QList<QWidget*>{ui_->lblDate, ui_->txtDate}) part->setVisible(!question.dateCaption.isEmpty());
  ui_->lblDate->setText(question.dateCaption);
  ui_->txtDate->setText(Value(Today()).ToText());
  ui_->chkComp->setChecked(false);
  ui_->txt->clear();
  ShowList();
  ui_->txt->setFocus();
}

LibraryChoice frmSelectTask::Choice() const { return {Entry(), ui_->txtDate->text()}; }

QString frmSelectTask::Noun() const { return events_ ? u"an event"_s : u"a task"_s; }

int frmSelectTask::Entry() const { return ui_->lstTasks->ItemData(ui_->lstTasks->ListIndex()); }

void frmSelectTask::ReloadForm() {
  RefillList(*ui_->lstCompTypes, LoadComponentTypes());
  LoadEntries();
  RefillList(*ui_->lstTasks, EntriesOfText());
}

void frmSelectTask::ShowList() {
  const bool byType = ui_->chkComp->isChecked();
  ui_->lstCompTypes->setEnabled(byType);
  if (byType && ui_->lstCompTypes->ListIndex() < 0) {
    const QSignalBlocker quiet(ui_->lstCompTypes);
    ui_->lstCompTypes->SetListIndex(0);
  }
  LoadEntries();
  LoadListBoxFromArray();
}

void frmSelectTask::LoadEntries() {
  if (ui_->chkComp->isChecked())
    ListTasksByComponent();
  else
    LoadArrayAll();
}

void frmSelectTask::LoadArrayAll() {
  entries_ = LoadTaskOrEventList(events_);
  ui_->lblTasks->setText(events_ ? u"All Events"_s : u"All Tasks"_s);
}

void frmSelectTask::ListTasksByComponent() {
  const int type = ui_->lstCompTypes->ItemData(ui_->lstCompTypes->ListIndex());
  entries_ = LoadTasksByComponentType(type, events_);
  ui_->lblTasks->setText((events_ ? u"Events (%1)"_s : u"Tasks (%1)"_s).arg(ComponentTypeName(type)));
}

/// The entries whose name holds the typed text.
IdList frmSelectTask::EntriesOfText() const {
  const QString wanted = ui_->txt->text().trimmed().toUpper();
  IdList shown;
  for (qsizetype i = 0; i < entries_.Size(); ++i)
    if (entries_.texts[i].toUpper().contains(wanted)) shown.Add(entries_.texts[i], entries_.ids[i]);
  return shown;
}

/// The first one is proposed to who typed.
void frmSelectTask::LoadListBoxFromArray() {
  ui_->lstTasks->Fill(EntriesOfText());
  if (!ui_->txt->text().trimmed().isEmpty()) ui_->lstTasks->SetListIndex(0);
}

void frmSelectTask::HighlightTaskType(int taskLibID) {
  if (!ui_->lstTasks->SelectData(taskLibID) && entries_.ids.contains(taskLibID)) {
    ui_->txt->clear();
    ui_->lstTasks->SelectData(taskLibID);
  }
}

bool frmSelectTask::TypedNothingKnown() const {
  return ui_->lstTasks->ListIndex() < 0 && !ui_->txt->text().trimmed().isEmpty();
}

void frmSelectTask::Select() {
  const QString text = ui_->txt->text().trimmed();
  if (TypedNothingKnown()) {
    if (AskYes(Lines({u"There isn't a task named "_s + text, u"Would you like to create a new task?"_s}),
               u"Create a new task?"_s))
      Create(text);
  } else if (!picking_) {
    Edit();
  } else if (ui_->lstTasks->ListIndex() < 0) {
    MsgBox(u"Please select "_s + Noun(), u"Nothing selected"_s);
  } else {
    SetTag(u"select"_s);
    Leave();
  }
}

void frmSelectTask::Create(const QString& name) {
  const int added = events_ ? EditEventType(0, name) : EditTaskType({.name = name});
  if (added != 0) HighlightTaskType(added);
}

void frmSelectTask::Edit() {
  if (TypedNothingKnown()) {
    const QString text = ui_->txt->text().trimmed();
    if (AskYes(Lines({u"There isn't %1 named '%2'"_s.arg(Noun(), text), u"Would you like to create one?"_s}),
               u"Create New %1?"_s.arg(events_ ? u"Event"_s : u"Task"_s)))
      Create(text);
    return;
  }
  if (ui_->lstTasks->ListIndex() < 0) {
    MsgBox(u"Please select %1 to edit"_s.arg(Noun()), u"Nothing selected"_s);
    return;
  }
  EditLibraryEntry(Entry());
}

void frmSelectTask::Delete() { DeleteTaskTypeFromList(Entry(), events_); }

bool frmSelectTask::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Down) {
    ui_->lstTasks->setFocus();
    if (ui_->lstTasks->ListIndex() < 0) ui_->lstTasks->SetListIndex(0);
    return true;
  }
  return Form::eventFilter(watched, event);
}

void OpenTaskLibrary(bool events) {
  auto& form = SharedForm<frmSelectTask>();
  if (!form.IsPicking()) form.Browse(events);
  form.Show();
}

LibraryChoice SelectTask(const LibraryQuestion& question) {
  if (auto* shown = FormIfLoaded<frmSelectTask>()) {
    if (shown->IsPicking() && ComesForward<frmSelectTask>()) return {};
    shown->UnloadForm();
  }
  auto& form = SharedForm<frmSelectTask>();
  form.Pick(question);
  form.ShowModal();
  LibraryChoice choice = form.Tag() == "select"_L1 ? form.Choice() : LibraryChoice();
  form.UnloadForm();
  return choice;
}
