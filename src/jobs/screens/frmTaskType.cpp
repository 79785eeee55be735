#include "jobs/screens/frmTaskType.h"

#include <QIntValidator>

#include "core/default_rows.h"
#include "core/format.h"
#include "core/prompts.h"
#include "core/store/operation.h"
#include "core/store/tables.h"
#include "core/widgets/screen_routines.h"
#include "gear/catalogue.h"
#include "gear/models.h"
#include "gear/screens.h"
#include "jobs/library_delete.h"
#include "jobs/library_parts.h"
#include "jobs/screens/frmMiscTask.h"
#include "jobs/screens/keep_shown.h"
#include "jobs/screens/ui_frmTaskType.h"

using namespace Qt::StringLiterals;

namespace {

QString Rate(Money amount) { return Format(amount, u"#######0.00"_s); }

}  // namespace

frmTaskType::frmTaskType() : ui_(std::make_unique<Ui::frmTaskType>()) {
  ui_->setupUi(this);
  for (List* list : {ui_->lstComps, ui_->lstRigTypes, ui_->lstParts}) list->SetTickable(true);
  ui_->txtInt->setValidator(new QIntValidator(0, 99999, this));
  connect(ui_->chkSchedule, &QCheckBox::toggled, this, &frmTaskType::ShowScheduled);
  connect(ui_->chkSchedule, &QCheckBox::clicked, this, [this](bool on) {
    if (on) SelectAllInBox(ui_->txtInt);
  });
  for (QRadioButton* unit : {ui_->optDays, ui_->optMonths, ui_->optYears})
    connect(unit, &QRadioButton::toggled, this, &frmTaskType::ShowUnit);
  connect(ui_->chkModelSpecific, &QCheckBox::clicked, this, &frmTaskType::ChooseModel);
  connect(ui_->chkRigSpecific, &QCheckBox::toggled, this, &frmTaskType::ShowRigSpecific);
  connect(ui_->cmdAllNone, &QPushButton::clicked, this, &frmTaskType::TickAllOrNone);
  connect(ui_->txtSearch, &QLineEdit::textChanged, this, &frmTaskType::LoadParts);
  connect(ui_->cmdReset, &QPushButton::clicked, ui_->txtSearch, &QLineEdit::clear);
  connect(ui_->lstParts, &List::ItemTick, this, &frmTaskType::UpdateIsCheckedArray);
  connect(ui_->lstParts, &List::ItemDoubleClick, this, &frmTaskType::EditPart);
  connect(ui_->lstParts, &List::ItemDelete, this, &frmTaskType::DeletePart);
  connect(ui_->cmdNewPart, &QPushButton::clicked, this, &frmTaskType::NewPart);
  connect(ui_->cmdEditPart, &QPushButton::clicked, this, &frmTaskType::EditPart);
  connect(ui_->cmdDeletePart, &QPushButton::clicked, this, &frmTaskType::DeletePart);
  connect(ui_->cmdSave, &QPushButton::clicked, this, &frmTaskType::Save);
  connect(ui_->cmdDeleteTaskType, &QPushButton::clicked, this, &frmTaskType::DeleteThis);
  for (QPushButton* leave : {ui_->cmdCancel, ui_->cmdExit})
    connect(leave, &QPushButton::clicked, this, &frmTaskType::Cancel);
  connect(ui_->cmdExplain, &QPushButton::clicked, this, [] {
    MsgBox(Lines({u"Most tasks appear only once in a job, such as the repack of a reserve."_s,
                  u"Check this box for a task that can be done several times, such as a patch."_s}),
           u"Allow Multiple times"_s);
  });
  connect(ui_->cmdRepackHelp, &QPushButton::clicked, this, [] {
    MsgBox(Lines({u"The price of a reserve repack can depend on the rig type or on the model of the container."_s,
                  u"To change these prices, select REPACK PRICES in the SET UP menu of the home page."_s}),
           u"Repack Prices"_s);
  });
  connect(ui_->cmdHelpRigType, &QPushButton::clicked, this, [] {
    MsgBox(Lines({u"A task for specific rig types is shown as due for rigs of these types only."_s,
                  u"It can still be added to a job with any rig."_s}),
           u"Rig Types"_s);
  });
  ui_->lstRigTypes->Fill(LoadRigTypes());
  CreateTheArray();
}

frmTaskType::~frmTaskType() = default;

QStringList frmTaskType::ShowsTables() const {
  return {tblTaskLib::kTable, tblComponentTypes::kTable, tblRigTypes::kTable, tblModels::kTable};
}

void frmTaskType::ReloadForm() {
  if (taskLibID_ != 0 && !TaskLibExists(taskLibID_)) {
    Cancel();
    return;
  }
  RefillList(*ui_->lstRigTypes, LoadRigTypes());
  LetGoOfLostModel();
  RefillList(*ui_->lstComps, RequiredToChoose());
  CreateTheArray();
}

/// A task whose model has gone is tied to component types again.
void frmTaskType::LetGoOfLostModel() {
  if (modelID_ == 0 || ModelExists(modelID_)) return;
  modelID_ = 0;
  ui_->chkModelSpecific->setChecked(false);
  FillComponents(componentsBefore_);
}

void frmTaskType::SetStart(const TaskTypeStart& start) {
  openedForModel_ = start.modelID != 0;
  modelID_ = start.modelID;
  Load(start.taskLibID);
  if (start.taskLibID == 0) ui_->txtName->setText(start.name);
}

void frmTaskType::GetDataFromFormMiscTask() {
  const auto* misc = FormIfLoaded<frmMiscTask>();
  if (misc == nullptr) {
    MsgBox(u"you shouldn't be here - frmMiscTask should be loaded"_s);
    return;
  }
  const CustomEntry entry = misc->Entry();
  ui_->txtName->setText(entry.name);
  ui_->txtFlatRate->setText(Rate(entry.price));
  ui_->chkLogbook->setChecked(entry.logBook);
  const QStringList offered = misc->ComponentNames();
  bool identical = offered.size() == ui_->lstComps->Count();
  for (int row = 0; identical && row < offered.size(); ++row) identical = offered[row] == ui_->lstComps->ItemText(row);
  if (identical)
    ui_->lstComps->TickData(entry.componentTypes);
  else
    MsgBox(u"list boxes aren't identical"_s, u"frmTaskType - Sub GetDataFromFormMiscTask()"_s);
}

void frmTaskType::Load(int taskLibID) {
  TaskTypeEntry entry;
  taskLibID_ = LoadTaskType(taskLibID, entry) ? taskLibID : 0;
  if (taskLibID_ == 0) entry.modelID = modelID_;
  ShowEntry(entry);
  ui_->cmdSave->setText(taskLibID_ == 0 ? u"&Save"_s : u"&Update"_s);
  ui_->cmdDeleteTaskType->setEnabled(taskLibID_ != 0);
  SelectAllInBox(ui_->txtName);
}

void frmTaskType::ShowEntry(const TaskTypeEntry& entry) {
  ui_->txtName->setText(entry.name);
  ui_->txtFlatRate->setText(Rate(entry.flatRate));
  ui_->txtHourlyRate->setText(Rate(entry.hourlyRate));
  ui_->txtInt->setText(entry.interval);
  ui_->optDays->setChecked(entry.unit == kDays);
  ui_->optMonths->setChecked(entry.unit == kMonths);
  ui_->optYears->setChecked(entry.unit == kYears);
  ui_->chkSchedule->setChecked(entry.scheduled);
  ShowScheduled(entry.scheduled);
  ui_->chkMultiple->setChecked(entry.allowMultiple);
  ui_->chkLogbook->setChecked(entry.logBook);
  modelID_ = entry.modelID;
  componentsBefore_ = entry.componentTypes;
  ui_->chkModelSpecific->setChecked(modelID_ != 0);
  FillComponents(entry.componentTypes);
  LetGoOfLostModel();
  ui_->lstRigTypes->TickData(entry.rigTypes);
  ui_->chkRigSpecific->setChecked(entry.rigTypeSpecific);
  ShowRigSpecific(entry.rigTypeSpecific);
  checkedParts_ = {entry.parts.cbegin(), entry.parts.cend()};
  LoadParts();
}

TaskTypeEntry frmTaskType::Entry() const {
  TaskTypeEntry entry{.name = ui_->txtName->text(),
                      .flatRate = Money::FromText(ui_->txtFlatRate->text()),
                      .hourlyRate = Money::FromText(ui_->txtHourlyRate->text()),
                      .scheduled = ui_->chkSchedule->isChecked(),
                      .interval = ui_->txtInt->text(),
                      .unit = Unit(),
                      .allowMultiple = ui_->chkMultiple->isChecked(),
                      .logBook = ui_->chkLogbook->isChecked(),
                      .modelID = modelID_,
                      .rigTypeSpecific = ui_->chkRigSpecific->isChecked(),
                      .rigTypes = ui_->lstRigTypes->TickedData(),
                      .componentTypes = ui_->lstComps->TickedData()};
  for (int part : parts_.ids)
    if (checkedParts_.contains(part)) entry.parts << part;
  return entry;
}

IntervalUnit frmTaskType::Unit() const {
  if (ui_->optDays->isChecked()) return kDays;
  if (ui_->optMonths->isChecked()) return kMonths;
  return ui_->optYears->isChecked() ? kYears : kNoInterval;
}

void frmTaskType::ShowScheduled(bool scheduled) {
  for (QWidget* part :
       QList<QWidget*>{ui_->lblEvery, ui_->txtInt, ui_->lblFreq, ui_->optDays, ui_->optMonths, ui_->optYears})
    part->setEnabled(scheduled);
}

void frmTaskType::ShowUnit() {
  const QStringList names{QString(), u"days"_s, u"months"_s, u"years"_s};
  ui_->lblFreq->setText(names[Unit()]);
}

void frmTaskType::ChooseModel(bool specific) {
  if (specific) {
    componentsBefore_ = ui_->lstComps->TickedData();
    int type = componentsBefore_.value(0, kContainer);
    if (!SelectModel(type, modelID_)) ui_->chkModelSpecific->setChecked(false);
  } else {
    modelID_ = 0;
  }
  FillComponents(componentsBefore_);
}

/// The model alone for a task that is tied to one, all component types otherwise.
IdList frmTaskType::RequiredToChoose() const {
  if (modelID_ == 0) return LoadComponentTypes();
  IdList model;
  model.Add(ModelName(modelID_), ModelType(modelID_));
  return model;
}

void frmTaskType::FillComponents(const QList<int>& ticked) {
  ui_->lstComps->Fill(RequiredToChoose());
  if (modelID_ == 0)
    ui_->lstComps->TickData(ticked);
  else
    ui_->lstComps->TickAll(true);
}

void frmTaskType::ShowRigSpecific(bool specific) {
  ui_->lstRigTypes->setEnabled(specific);
  ui_->cmdAllNone->setEnabled(specific);
  ui_->cmdAllNone->setText(u"All"_s);
}

void frmTaskType::TickAllOrNone() {
  const bool all = ui_->cmdAllNone->text() == "All"_L1;
  ui_->lstRigTypes->TickAll(all);
  ui_->cmdAllNone->setText(all ? u"None"_s : u"All"_s);
}

void frmTaskType::CreateTheArray() {
  parts_ = LoadModelsOfType(kMisc);
  LoadParts();
}

/// The parts whose name holds the search text; ticks of the others are kept.
void frmTaskType::LoadParts() {
  const QString wanted = ui_->txtSearch->text().trimmed();
  IdList shown;
  for (qsizetype i = 0; i < parts_.Size(); ++i)
    if (parts_.texts[i].contains(wanted, Qt::CaseInsensitive)) shown.Add(parts_.texts[i], parts_.ids[i]);
  RefillList(*ui_->lstParts, shown);
  ui_->lstParts->TickData({checkedParts_.cbegin(), checkedParts_.cend()});
}

void frmTaskType::UpdateIsCheckedArray(int row, bool ticked) {
  const int part = ui_->lstParts->ItemData(row);
  if (ticked)
    checkedParts_.insert(part);
  else
    checkedParts_.remove(part);
}

int frmTaskType::Part() const { return ui_->lstParts->ItemData(ui_->lstParts->ListIndex()); }

void frmTaskType::NewPart() {
  MiscItem part;
  if (!EnterMiscItem(part)) return;
  const int added = AddLibraryPart(part.name, part.price);
  if (added != 0) ui_->lstParts->SelectData(added);
}

void frmTaskType::EditPart() {
  const int id = Part();
  if (id == 0) {
    MsgBox(u"Please select an item to edit"_s);
    return;
  }
  MiscItem part{ModelName(id), ModelPrice(id)};
  if (!EnterMiscItem(part, {.caption = u"Edit Part"_s})) return;
  Operation(u"Sub EditPart"_s, [&] { SavePart(id, part.name, part.price); });
}

void frmTaskType::DeletePart() { DeleteLibraryPart(Part()); }

void frmTaskType::Save() {
  int id = taskLibID_;
  switch (SaveTaskType(Entry(), id)) {
    case EntrySaved::Saved:
      taskLibID_ = id;
      SetTag(u"save"_s);
      Leave();
      break;
    case EntrySaved::ShowExisting:
      if (TaskLibIsEvent(id))
        EditEventType(id);
      else
        Load(id);
      break;
    case EntrySaved::Refused:
      if (openedForModel_ && taskLibID_ != 0) Load(taskLibID_);
      break;
  }
}

void frmTaskType::DeleteThis() {
  if (DeleteTaskTypeOfForm(taskLibID_)) Cancel();
}

int EditTaskType(const TaskTypeStart& start) {
  if (ComesForward<frmTaskType>()) return 0;
  auto& form = SharedForm<frmTaskType>();
  form.SetStart(start);
  form.ShowModal();
  const int saved = form.Tag() == "save"_L1 ? form.TaskLibID() : 0;
  form.UnloadForm();
  return saved;
}
