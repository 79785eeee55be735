#include "gear/screens/catalogue/frmComponentModels.h"

#include <QMenu>
#include <QMenuBar>

#include "core/default_rows.h"
#include "core/format.h"
#include "core/prompts.h"
#include "core/store/tables.h"
#include "core/trap.h"
#include "gear/catalogue.h"
#include "gear/component_types.h"
#include "gear/diagnostic_ids.h"
#include "gear/models.h"
#include "gear/models_file.h"
#include "gear/screens/catalogue/ui_frmComponentModels.h"
#include "gear/service_lives.h"
#include "jobs/screens.h"

using namespace Qt::StringLiterals;

frmComponentModels::frmComponentModels() : ui_(std::make_unique<Ui::frmComponentModels>()) {
  ui_->setupUi(this);
  BuildMenus();
  ui_->optAll->setChecked(true);
  connect(ui_->lstTypes, &List::ListChange, this, &frmComponentModels::ShowType);
  for (QRadioButton* option : {ui_->optAll, ui_->optManufacturer})
    connect(option, &QRadioButton::clicked, this, [this] { LoadModelList(Model()); });
  connect(ui_->lstModels, &List::ListChange, this, &frmComponentModels::ShowModel);
  connect(ui_->lstModels, &List::ItemDoubleClick, this, &frmComponentModels::RenameSelectedModel);
  connect(ui_->lstModels, &List::ItemEnter, this, &frmComponentModels::RenameSelectedModel);
  connect(ui_->lstModels, &List::ItemDelete, this, &frmComponentModels::DeleteSelectedModel);
  connect(ui_->lstManufacturers, &List::ListChange, this, [this] {
    SavePendingLife();
    if (ui_->optManufacturer->isChecked()) LoadModelList(0);
  });
  connect(ui_->lstManufacturers, &List::ItemDoubleClick, this, &frmComponentModels::AddModel);
  connect(ui_->lstManufacturers, &List::ItemEnter, this, &frmComponentModels::AddModel);
  connect(ui_->cmdAdd, &QPushButton::clicked, this, &frmComponentModels::AddModel);
  connect(ui_->cmdRename, &QPushButton::clicked, this, &frmComponentModels::RenameSelectedModel);
  connect(ui_->cmdDelete, &QPushButton::clicked, this, &frmComponentModels::DeleteSelectedModel);
  connect(ui_->cmdAddManufacturer, &QPushButton::clicked, this, &frmComponentModels::AddMaker);
  connect(ui_->cmdRenameManufacturer, &QPushButton::clicked, this, &frmComponentModels::RenameMaker);
  connect(ui_->cmdDeleteManufacturer, &QPushButton::clicked, this, &frmComponentModels::DeleteMaker);
  connect(ui_->cmdLink, &QPushButton::clicked, this, &frmComponentModels::Link);
  connect(ui_->chkServiceLife, &QCheckBox::clicked, this, &frmComponentModels::DefineServiceLife);
  connect(ui_->txtServiceLife, &QLineEdit::textEdited, this, &frmComponentModels::ServiceLifeTyped);
  for (QRadioButton* unit : {ui_->optMonths, ui_->optYears})
    connect(unit, &QRadioButton::clicked, this, &frmComponentModels::ServiceLifeTyped);
  connect(ui_->cmdSaveServiceLife, &QPushButton::clicked, this, [this] { SavePendingLife(true); });
  connect(ui_->cmdExplain, &QPushButton::clicked, this, [] { ShowServiceLifeHelp(); });
  connect(ui_->cmdExit, &QPushButton::clicked, this, &frmComponentModels::Cancel);
}

frmComponentModels::~frmComponentModels() = default;

void frmComponentModels::BuildMenus() {
  QMenu* models = MenuBar()->addMenu(u"Models"_s);
  models->setObjectName(u"mnuModels"_s);
  const auto add = [this](QMenu* menu, const QString& text, const char* name, auto command) {
    menu->addAction(text, this, command)->setObjectName(QString::fromLatin1(name));
  };
  add(models, u"Link model to manufacturer"_s, "mnuLink", &frmComponentModels::Link);
  models->addSeparator();
  add(models, u"Export models"_s, "mnuExportModels", [] { ExportModels(); });
  add(models, u"Import models"_s, "mnuImportModels", [] { ImportModels(false); });
  QMenu* makers = MenuBar()->addMenu(u"Manufacturers"_s);
  add(makers, u"Add new manufacturer"_s, "mnuAddManufacturer", &frmComponentModels::AddMaker);
  add(makers, u"Rename manufacturer"_s, "mnuRenameManufacturer", &frmComponentModels::RenameMaker);
  add(makers, u"Delete manufacturer"_s, "mnuDeleteManufacturer", &frmComponentModels::DeleteMaker);
  add(MenuBar()->addMenu(u"Component Types"_s), u"Edit component types"_s, "mnuComponentTypes",
      [] { ShowComponentTypes(); });
  MenuBar()->addAction(u"Exit"_s, this, &frmComponentModels::Cancel);
}

void frmComponentModels::SetStart(const ModelScreenStart& start) {
  start_ = start;
  created_ = 0;
  const bool parts = start.type == kMisc;
  ui_->lblTypes->setVisible(!parts);
  ui_->lstTypes->setVisible(!parts);
  LoadManufacturerList(0);
  ui_->lstTypes->Fill(LoadMajorComponentTypes());
  if (parts)
    ShowType();
  else
    ui_->lstTypes->SelectData(start.type == 0 ? int{kContainer} : start.type);
  if (start.onManufacturers) ui_->lstManufacturers->setFocus();
}

int frmComponentModels::Type() const {
  return start_.type == kMisc ? int{kMisc} : ui_->lstTypes->ItemData(ui_->lstTypes->ListIndex());
}
int frmComponentModels::Model() const { return ui_->lstModels->ItemData(ui_->lstModels->ListIndex()); }

int frmComponentModels::Manufacturer() const {
  const int row = ui_->lstManufacturers->ListIndex();
  return row < 0 ? kNoManufacturerSelected : ui_->lstManufacturers->ItemData(row);
}

void frmComponentModels::ShowType() {
  SavePendingLife();
  ShowCaptions();
  LoadModelList(0);
}

void frmComponentModels::ShowCaptions() {
  const int type = Type();
  const QString name = ComponentTypeName(type).isEmpty() || type == kMisc ? u"Misc Items"_s : TypeInSentence(type);
  ui_->cmdAdd->setText(u"&Add new "_s + name);
  ui_->cmdDelete->setText(u"&Delete "_s + name);
  ui_->cmdRename->setText(u"&Rename "_s + name);
  ui_->optAll->setText(type == kAad ? u"Display a&ll AAD's"_s : u"Display a&ll"_s);
  ui_->fraLife->setVisible(type != kMisc);
}

QStringList frmComponentModels::ShowsTables() const {
  return {tblModels::kTable, tblManufacturers::kTable, tblComponentTypes::kTable};
}

void frmComponentModels::ReloadForm() {
  const QList<int> modelsBefore = ui_->lstModels->Ids();
  const int model = Model();
  const bool keepsType = ui_->lstTypes->Refill(LoadMajorComponentTypes());
  const bool keepsMaker = ui_->lstManufacturers->Refill(WithIds(LoadManufacturers()));
  if (!keepsType) {
    lifeChanged_ = false;
    ui_->lstTypes->SetListIndex(0);
    return;
  }
  ShowCaptions();
  if (!ModelExists(lifeOf_)) lifeChanged_ = false;
  if (!ui_->lstModels->Refill(ModelsToList())) {
    const QSignalBlocker quiet(ui_->lstModels);
    ui_->lstModels->SelectData(NeighbourOf(model, modelsBefore, ui_->lstModels->Ids()));
    ShowModel();
    return;
  }
  if (!keepsMaker) ShowMaker();
  if (!lifeChanged_) ShowServiceLife();
}

IdList frmComponentModels::ModelsToList() const {
  const bool byMaker = ui_->optManufacturer->isChecked();
  return WithIds(LoadModels(Type(), byMaker ? qMax(Manufacturer(), 0) : kNoManufacturerSelected));
}

void frmComponentModels::LoadModelList(int select) {
  SavePendingLife();
  const bool byMaker = ui_->optManufacturer->isChecked();
  ui_->lstModels->Fill(ModelsToList());
  ui_->lstModels->SelectData(select);
  for (QObject* link : QObjectList{ui_->cmdLink, MenuBar()->findChild<QAction*>(u"mnuLink"_s)})
    link->setProperty("enabled", !byMaker);
  ShowModel();
}

void frmComponentModels::LoadManufacturerList(int select) {
  const QSignalBlocker quiet(ui_->lstManufacturers);
  ui_->lstManufacturers->Fill(WithIds(LoadManufacturers()));
  ui_->lstManufacturers->SelectData(select);
}

void frmComponentModels::ShowModel() {
  SavePendingLife();
  ShowMaker();
  for (QWidget* button : {ui_->cmdRename, ui_->cmdDelete}) button->setEnabled(Model() != 0);
  ShowServiceLife();
}

void frmComponentModels::ShowMaker() {
  if (Model() == 0) return;
  const int maker = RepairModelManufacturer(Model());
  const QSignalBlocker quiet(ui_->lstManufacturers);
  ui_->lstManufacturers->SelectData(maker);
}

void frmComponentModels::ShowServiceLife() {
  lifeOf_ = Model();
  const ServiceLifeEntry life = lifeOf_ == 0 ? ServiceLifeEntry() : ServiceLifeOfModel(lifeOf_);
  ui_->chkServiceLife->setEnabled(lifeOf_ != 0);
  ui_->chkServiceLife->setChecked(life.defined);
  ui_->txtServiceLife->setText(life.defined ? QString::number(life.number) : QString());
  (life.inYears ? ui_->optYears : ui_->optMonths)->setChecked(true);
  for (QWidget* field : QList<QWidget*>{ui_->txtServiceLife, ui_->optMonths, ui_->optYears})
    field->setEnabled(life.defined);
  ui_->cmdSaveServiceLife->setEnabled(false);
  lifeChanged_ = false;
}

void frmComponentModels::AddModel() {
  SavePendingLife();
  if (Type() == kMisc) {
    AddEnteredPart();
    return;
  }
  const QString caption = ui_->cmdAdd->text().remove(u'&');
  const NewModel added = AddModelByAsking(Type(), Manufacturer(), caption);
  if (added.id == 0) return;
  ShowModelOfItsMaker(added);
  if (added.isNew && start_.create) {
    created_ = added.id;
    Cancel();
  }
}

void frmComponentModels::AddEnteredPart() {
  MiscItem part;
  if (EnterMiscItem(part, {.caption = u"Enter New Misc Item"_s}))
    ShowModelOfItsMaker(AddPart(part.name, part.price, Manufacturer()));
}

/// One that was there before may be another maker's than the one that is listed.
void frmComponentModels::ShowModelOfItsMaker(const NewModel& added) {
  if (added.id == 0) return;
  if (!added.isNew && ui_->optManufacturer->isChecked()) LoadManufacturerList(ModelManufacturer(added.id));
  LoadModelList(added.id);
}

void frmComponentModels::RenameSelectedModel() {
  const int model = Model();
  if (model == 0) return;
  SavePendingLife();
  if (Type() == kMisc) {
    MiscItem part{ModelName(model), ModelPrice(model)};
    if (EnterMiscItem(part, {.caption = u"Edit Part"_s})) SavePart(model, part.name, part.price);
  } else {
    RenameModel(model);
  }
}

void frmComponentModels::DeleteSelectedModel() {
  const int model = Model();
  if (model == 0) return;
  SavePendingLife();
  DeleteModel(model);
}

void frmComponentModels::AddMaker() {
  SavePendingLife();
  if (const int added = AddManufacturer(); added != 0) {
    LoadManufacturerList(added);
    if (ui_->optManufacturer->isChecked()) LoadModelList(0);
  }
}

void frmComponentModels::RenameMaker() {
  const int maker = Manufacturer();
  if (maker > 0) RenameManufacturer(maker);
}

void frmComponentModels::DeleteMaker() {
  const int maker = Manufacturer();
  if (maker > 0) DeleteManufacturer(maker);
}

void frmComponentModels::Link() {
  if (Model() != 0) LinkModelToManufacturer(Model(), Manufacturer());
}

void frmComponentModels::DefineServiceLife(bool defined) {
  if (!defined) {
    lifeChanged_ = false;
    SaveServiceLife(lifeOf_, 0);
    ShowServiceLife();
    return;
  }
  for (QWidget* field : QList<QWidget*>{ui_->txtServiceLife, ui_->optMonths, ui_->optYears}) field->setEnabled(true);
  ui_->txtServiceLife->setFocus();
}

void frmComponentModels::ServiceLifeTyped() {
  lifeChanged_ = true;
  ui_->cmdSaveServiceLife->setEnabled(true);
}

void frmComponentModels::SavePendingLife(bool tell) {
  if (!std::exchange(lifeChanged_, false)) return;
  ui_->cmdSaveServiceLife->setEnabled(false);
  const bool saved = Trap(u"Sub SaveServiceLife"_s, [&] {
    SaveServiceLife(lifeOf_, ServiceLifeMonths(ui_->txtServiceLife->text(), ui_->optYears->isChecked()));
  });
  if (saved && tell) MsgBox(u"Service life saved"_s, u"Done"_s);
}

void frmComponentModels::Cancel() {
  SavePendingLife();
  Form::Cancel();
}
