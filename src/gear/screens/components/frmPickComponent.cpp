#include "gear/screens/components/frmPickComponent.h"

#include <QKeyEvent>

#include "core/format.h"
#include "core/picker.h"
#include "core/prompts.h"
#include "core/screens.h"
#include "core/store/tables.h"
#include "gear/component_rules.h"
#include "gear/component_types.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/people.h"
#include "gear/rig_rules.h"
#include "gear/screens/components/ui_frmPickComponent.h"
#include "jobs/gear_deletion.h"

using namespace Qt::StringLiterals;

frmPickComponent::frmPickComponent() : ui_(std::make_unique<Ui::frmPickComponent>()) {
  ui_->setupUi(this);
  ui_->grid->setObjectName(u"Grid"_s);
  ui_->grid->SetColumns({{.heading = u"Model"_s, .width = 150},
                         {.heading = u"Rig Name"_s, .width = 110},
                         {.heading = u"Owner"_s, .width = 120},
                         {.heading = u"Serial Number"_s, .width = 105},
                         {.heading = u"Date of Mfg"_s, .width = 95, .sortKey = 5},
                         {.heading = u"yyyymmdd"_s, .width = 0},
                         {.heading = u"ID"_s, .width = 0},
                         {.heading = u"OwnerID"_s, .width = 0},
                         {.heading = u"RigID"_s, .width = 0}});
  ui_->grid->SetSelectsRows(true);
  ui_->grid->SetStretchColumn(0);
  ui_->grid->SetMemory(u"pick-component"_s);
  ui_->lstTypes->Fill(LoadMajorComponentTypes());
  ui_->optAnyOwner->setChecked(true);
  ui_->optBoth->setChecked(true);
  connect(ui_->lstTypes, &List::ListChange, this, [this](int row) {
    if (row < 0) return;
    const QSignalBlocker quiet(ui_->chkAllTypes);
    ui_->chkAllTypes->setChecked(false);
    model_ = 0;
    LoadGrid();
  });
  connect(ui_->chkAllTypes, &QCheckBox::toggled, this, &frmPickComponent::LoadGrid);
  connect(ui_->optAnyOwner, &QRadioButton::toggled, this, [this](bool any) {
    if (!any && owner_ == 0)
      ChooseOwner();
    else
      LoadGrid();
  });
  for (QRadioButton* option : {ui_->optBoth, ui_->optInRig, ui_->optNotInRig})
    connect(option, &QRadioButton::clicked, this, &frmPickComponent::LoadGrid);
  connect(ui_->cmdSelectCustomer, &QPushButton::clicked, this, &frmPickComponent::ChooseOwner);
  connect(ui_->lblModels, &QToolButton::clicked, this, &frmPickComponent::ChooseModels);
  connect(ui_->grid, &Grid::CellChange, this, [this](int row) { ChooseRow(row); });
  connect(ui_->grid, &Grid::CellDoubleClick, this, &frmPickComponent::Select);
  connect(ui_->grid, &Grid::CellEnter, this, &frmPickComponent::Select);
  connect(ui_->grid, &Grid::CellDelete, this, &frmPickComponent::Delete);
  ui_->chkHidePhoto->setChecked(PhotosAreHidden());
  ui_->imageComponent->setVisible(!PhotosAreHidden());
  connect(ui_->chkHidePhoto, &QCheckBox::toggled, this, [this](bool hidden) {
    SetPhotosHidden(hidden);
    ui_->imageComponent->setVisible(!hidden);
  });
  connect(ui_->cmdSelect, &QPushButton::clicked, this, &frmPickComponent::Select);
  connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmPickComponent::Cancel);
}

frmPickComponent::~frmPickComponent() = default;

void frmPickComponent::SetChoice(int type, int owner) {
  const QSignalBlocker quietBox(ui_->chkAllTypes);
  const QSignalBlocker quietOwner(ui_->optAnyOwner);
  const QSignalBlocker quietTypes(ui_->lstTypes);
  ui_->chkAllTypes->setChecked(!ui_->lstTypes->SelectData(type));
  owner_ = owner;
  chosen_ = 0;
  (owner == 0 ? ui_->optAnyOwner : ui_->optSelectedOwner)->setChecked(true);
  LoadGrid();
}

int frmPickComponent::Selected() const { return ui_->grid->RowData(ui_->grid->CurrentRow()); }

ComponentFilter frmPickComponent::Filter() const {
  using Rigs = ComponentFilter::Rigs;
  const bool all = ui_->chkAllTypes->isChecked();
  const Rigs rigs = ui_->optInRig->isChecked()      ? Rigs::InRig
                    : ui_->optNotInRig->isChecked() ? Rigs::NotInRig
                                                    : Rigs::Both;
  return {all ? 0 : ui_->lstTypes->ItemData(ui_->lstTypes->ListIndex()),
          ui_->optSelectedOwner->isChecked() ? owner_ : 0, model_, rigs};
}

QStringList frmPickComponent::ShowsTables() const {
  return {tblComponents::kTable, tblModels::kTable, tblComponentTypes::kTable, tblPeople::kTable, tblRig::kTable};
}

/// Keeps the row that is selected without choosing it anew, which may ask and write.
void frmPickComponent::ReloadForm() {
  const QSignalBlocker quietBox(ui_->chkAllTypes);
  const QSignalBlocker quietOwner(ui_->optAnyOwner);
  const QSignalBlocker quietGrid(ui_->grid);
  if (!ui_->lstTypes->Refill(LoadMajorComponentTypes())) ui_->chkAllTypes->setChecked(true);
  if (!PersonExists(owner_)) owner_ = 0;
  if (owner_ == 0) ui_->optAnyOwner->setChecked(true);
  if (!ModelExists(model_)) model_ = 0;
  const int component = Selected();
  const int column = ui_->grid->CurrentColumn();
  LoadGrid();
  if (component != 0) ui_->grid->SelectCell(ui_->grid->FindRow(component), column);
}

void frmPickComponent::LoadGrid() {
  std::vector<GridRow> rows;
  for (const ComponentListRow& row : LoadComponentList(Filter())) {
    const bool dated = !row.dom.IsNone();
    rows.push_back({.cells = {row.model, row.rigName, row.ownerName, row.serial,
                              dated ? Format(row.dom, u"mm/dd/yyyy"_s) : QString(),
                              dated ? Format(row.dom, u"yyyymmdd"_s) : QString(), QString::number(row.id),
                              QString::number(row.owner), QString::number(row.rig)},
                    .data = row.id});
  }
  ui_->grid->Fill(std::move(rows));
  ShowChoices();
}

void frmPickComponent::ShowChoices() {
  ui_->lblModels->setText(model_ == 0 ? u"Showing all models"_s : u"Showing "_s + ModelName(model_) + u" only"_s);
  ui_->lblOwner->setText(owner_ == 0 ? u"Owner:  (none)"_s : u"Customer: "_s + PersonDisplayName(owner_));
}

void frmPickComponent::ChooseRow(int row) {
  const int component = ui_->grid->RowData(row);
  if (component == 0) return;
  if (std::exchange(choosing_, true)) {
    MsgBox(u"ignoreme is already true - look into this"_s);
    return;
  }
  if (ComponentTypeOf(component) == 0) {
    TellLostComponentType(component);
    SetLostComponentType(component, PickItem(kPickComponentType).id);
  }
  RepairComponentOwner(component);
  choosing_ = false;
}

void frmPickComponent::ChooseOwner() {
  const int picked = PickItem(kPickCustomer, 0, owner_).id;
  if (picked > 0) owner_ = picked;
  const QSignalBlocker quiet(ui_->optAnyOwner);
  (owner_ == 0 ? ui_->optAnyOwner : ui_->optSelectedOwner)->setChecked(true);
  LoadGrid();
}

void frmPickComponent::ChooseModels() {
  const bool showsAll = model_ == 0;
  if (!AskYes(showsAll ? u"Would you like to show a selected model only?"_s : u"Would you like to show all models?"_s,
              u"Show all models?"_s))
    return;
  const int type = Filter().type;
  const int picked = showsAll ? PickItem(kPickMiscItem, type).id : 0;
  model_ = qMax(picked, 0);
  LoadGrid();
}

void frmPickComponent::Select() {
  const int component = Selected();
  if (component == 0) {
    MsgBox(u"Please select a component"_s, u"Nothing selected"_s);
    return;
  }
  chosen_ = component;
  CheckComponentType(component);
  SetTag(u"select"_s);
  Leave();
}

void frmPickComponent::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Delete)  // the grid keeps it for itself while a row is selected
    Delete();
  else
    Form::keyPressEvent(event);
}

void frmPickComponent::Delete() { DeleteComponent(Selected()); }
