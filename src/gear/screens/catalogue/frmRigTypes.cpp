#include "gear/screens/catalogue/frmRigTypes.h"

#include "core/default_rows.h"
#include "core/prompts.h"
#include "core/store/tables.h"
#include "gear/component_types.h"
#include "gear/rig_type_rules.h"
#include "gear/rig_types.h"
#include "gear/screens.h"
#include "gear/screens/catalogue/ui_frmRigTypes.h"
#include "jobs/gear_deletion.h"

using namespace Qt::StringLiterals;

frmRigTypes::frmRigTypes() : ui_(std::make_unique<Ui::frmRigTypes>()) {
  ui_->setupUi(this);
  CheckMiscRow();
  ui_->LstComp->SetTickable(true);
  connect(ui_->lstType, &List::ListChange, this, &frmRigTypes::ShowRigType);
  connect(ui_->lstType, &List::ItemDoubleClick, this, &frmRigTypes::Rename);
  connect(ui_->lstType, &List::ItemDelete, this, &frmRigTypes::DeleteSelected);
  connect(ui_->LstComp, &List::ItemTick, this, &frmRigTypes::WriteComponents);
  const QList<QRadioButton*> options = Options();
  for (int place = 0; place < options.size(); ++place)
    connect(options[place], &QRadioButton::clicked, this, [this, place] { ChooseReserve(place + 1); });
  connect(ui_->cmdEdit, &QPushButton::clicked, this, &frmRigTypes::EditComponentList);
  connect(ui_->cmdAdd, &QPushButton::clicked, this, &frmRigTypes::AddNew);
  connect(ui_->cmdRename, &QPushButton::clicked, this, &frmRigTypes::Rename);
  connect(ui_->cmdDelete, &QPushButton::clicked, this, &frmRigTypes::DeleteSelected);
  connect(ui_->cmdSave, &QPushButton::clicked, this, [this] { LeaveComponents(true); });
  connect(ui_->cmdCancel, &QPushButton::clicked, this, [this] { LeaveComponents(false); });
  connect(ui_->cmdExit, &QPushButton::clicked, this, &frmRigTypes::Cancel);
  ui_->LstComp->Fill(LoadMajorComponentTypes());
  LoadList(0);
}

frmRigTypes::~frmRigTypes() = default;

QStringList frmRigTypes::ShowsTables() const {
  return {tblRigTypes::kTable, tblRigTypeComponents::kTable, tblComponentTypes::kTable};
}

void frmRigTypes::ReloadForm() {
  const QList<int> before = ui_->lstType->Ids();
  const int type = RigType();
  const bool entered = ui_->cmdSave->isEnabled();
  const bool kept = ui_->lstType->Refill(LoadRigTypesById());
  ui_->LstComp->Refill(LoadMajorComponentTypes());
  if (!kept) ui_->lstType->SelectData(NeighbourOf(type, before, ui_->lstType->Ids()));
  ShowRigType();
  EnterComponents(entered && kept);
}

int frmRigTypes::RigType() const { return ui_->lstType->ItemData(ui_->lstType->ListIndex()); }

/// In the order of their values, from 1.
QList<QRadioButton*> frmRigTypes::Options() const { return {ui_->optBack, ui_->optSeat, ui_->optChest, ui_->optOther}; }

void frmRigTypes::LoadList(int select) {
  ui_->lstType->Fill(LoadRigTypesById());
  ui_->lstType->SelectData(select);
  ShowRigType();
}

void frmRigTypes::ShowRigType() {
  const QSignalBlocker quiet(ui_->LstComp);
  const bool any = ui_->lstType->Count() > 0;
  ui_->cmdDelete->setEnabled(any);
  ui_->cmdRename->setEnabled(any);
  const int type = RigType();
  for (int row = 0; row < ui_->LstComp->Count(); ++row)
    ui_->LstComp->SetTicked(row, type != 0 && RigTypeHasComponentType(type, ui_->LstComp->ItemData(row)));
  const int place = ReserveLocation(type);
  for (QRadioButton* option : Options()) {
    option->setAutoExclusive(false);
    option->setChecked(false);
    option->setAutoExclusive(true);
  }
  if (type != 0) Options().value(place - 1, ui_->optOther)->setChecked(true);
  EnterComponents(false);
}

void frmRigTypes::ChooseReserve(int place) {
  if (RigType() == 0)
    ShowRigType();  // there is nothing that the option could be of
  else
    SetReserveLocation(RigType(), place);
}

void frmRigTypes::WriteComponents() {
  if (!SetComponentTypesOfRigType(RigType(), ui_->LstComp->TickedData(), ui_->lstType->Count() == 0))
    ShowRigType();
  else
    EnterComponents(true);
}

void frmRigTypes::EditComponentList() { ShowComponentTypes(); }

void frmRigTypes::AddNew() {
  const int added = AddRigType();
  if (added == 0) return;
  ui_->lstType->SelectData(added);
  ui_->optOther->setAutoExclusive(false);
  ui_->optOther->setChecked(false);
  ui_->optOther->setAutoExclusive(true);
  MsgBox(Lines({u"Specify reserve location"_s, u"(or select OTHER if no reserve)"_s}), u"Reserve Location"_s);
  ui_->optBack->setFocus();
}

void frmRigTypes::Rename() { RenameRigType(RigType()); }

void frmRigTypes::DeleteSelected() {
  const int type = RigType();
  if (DeleteRigType(type) == RigTypeDeletion::ShowRigs)
    ShowRigs({.rigType = type, .hideButtons = true, .caption = u"Rig Type: "_s + RigTypeName(type)});
}

/// The ticks themselves are written already; what is saved is their sum.
void frmRigTypes::LeaveComponents(bool save) {
  if (save) SaveRequiredSum(RigType(), ui_->LstComp->TickedData());
  EnterComponents(false);
  ui_->lstType->setFocus();
}

void frmRigTypes::EnterComponents(bool entered) {
  ui_->cmdSave->setEnabled(entered);
  ui_->cmdCancel->setEnabled(entered);
}
