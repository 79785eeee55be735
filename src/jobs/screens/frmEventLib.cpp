#include "jobs/screens/frmEventLib.h"

#include "core/lists.h"
#include "core/prompts.h"
#include "core/store/tables.h"
#include "core/widgets/screen_routines.h"
#include "jobs/library_entry.h"
#include "jobs/screens.h"
#include "jobs/screens/keep_shown.h"
#include "jobs/screens/ui_frmEventLib.h"

using namespace Qt::StringLiterals;

frmEventLib::frmEventLib() : ui_(std::make_unique<Ui::frmEventLib>()) {
  ui_->setupUi(this);
  ui_->lstComps->SetTickable(true);
  ui_->lstComps->Fill(LoadComponentTypes());
  connect(ui_->cmdSave, &QPushButton::clicked, this, &frmEventLib::Save);
  for (QPushButton* leave : {ui_->cmdCancel, ui_->cmdExit})
    connect(leave, &QPushButton::clicked, this, &frmEventLib::Cancel);
  connect(ui_->cmdRepackHelp, &QPushButton::clicked, this, [] {
    MsgBox(Lines({u"Events are unplanned occurences, such as a reserve deployment."_s,
                  u"They enter the history of the components that are checked here."_s, u"If the component"_s,
                  u"type is left blank, the event will not be displayed in the history"_s}),
           u"Events"_s);
  });
}

frmEventLib::~frmEventLib() = default;

QStringList frmEventLib::ShowsTables() const { return {tblTaskLib::kTable, tblComponentTypes::kTable}; }

void frmEventLib::ReloadForm() {
  if (taskLibID_ != 0 && !TaskLibExists(taskLibID_))
    Cancel();
  else
    RefillList(*ui_->lstComps, LoadComponentTypes());
}

void frmEventLib::SetEvent(int taskLibID, const QString& name) {
  EventTypeEntry entry{.name = name};
  taskLibID_ = LoadEventType(taskLibID, entry) ? taskLibID : 0;
  ui_->txtName->setText(entry.name);
  ui_->chkMulti->setChecked(entry.allowMultiple);
  ui_->lstComps->TickData(entry.componentTypes);
  ui_->cmdSave->setText(taskLibID_ == 0 ? u"&Save"_s : u"&Update"_s);
  SelectAllInBox(ui_->txtName);
}

void frmEventLib::Save() {
  int id = taskLibID_;
  const EventTypeEntry entry{ui_->txtName->text(), ui_->chkMulti->isChecked(), ui_->lstComps->TickedData()};
  const EntrySaved saved = SaveEventType(entry, id);
  if (saved == EntrySaved::Saved) {
    taskLibID_ = id;
    SetTag(u"save"_s);
    Leave();
  } else if (saved == EntrySaved::ShowExisting) {
    if (TaskLibIsEvent(id))
      SetEvent(id, {});
    else
      EditLibraryEntry(id);
  }
}

int EditEventType(int taskLibID, const QString& name) {
  if (ComesForward<frmEventLib>()) return 0;
  auto& form = SharedForm<frmEventLib>();
  form.SetEvent(taskLibID, name);
  form.ShowModal();
  const int saved = form.Tag() == "save"_L1 ? form.TaskLibID() : 0;
  form.UnloadForm();
  return saved;
}
