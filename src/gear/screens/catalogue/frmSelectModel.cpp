#include "gear/screens/catalogue/frmSelectModel.h"

#include "core/lists.h"
#include "core/prompts.h"
#include "core/store/tables.h"
#include "gear/component_types.h"
#include "gear/screens/catalogue/ui_frmSelectModel.h"

using namespace Qt::StringLiterals;

frmSelectModel::frmSelectModel() : ui_(std::make_unique<Ui::frmSelectModel>()) {
  ui_->setupUi(this);
  ui_->lstTypes->Fill(LoadMajorComponentTypes());
  connect(ui_->lstTypes, &List::ListChange, this, [this] { ui_->lstModels->Fill(LoadModelsOfType(Type())); });
  connect(ui_->lstModels, &List::ItemDoubleClick, this, &frmSelectModel::Select);
  connect(ui_->lstModels, &List::ItemEnter, this, &frmSelectModel::Select);
  connect(ui_->cmdSelect, &QPushButton::clicked, this, &frmSelectModel::Select);
  connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmSelectModel::Cancel);
}

frmSelectModel::~frmSelectModel() = default;

QStringList frmSelectModel::ShowsTables() const { return {tblModels::kTable, tblComponentTypes::kTable}; }

void frmSelectModel::ReloadForm() {
  ui_->lstTypes->Refill(LoadMajorComponentTypes());
  ui_->lstModels->Refill(LoadModelsOfType(Type()));
}

void frmSelectModel::SetModel(int type, int model) {
  ui_->lstTypes->SelectData(type);
  ui_->lstModels->SelectData(model);
}

int frmSelectModel::Type() const { return ui_->lstTypes->ItemData(ui_->lstTypes->ListIndex()); }
int frmSelectModel::Model() const { return ui_->lstModels->ItemData(ui_->lstModels->ListIndex()); }

void frmSelectModel::Select() {
  if (ui_->lstModels->Count() == 0) {
    MsgBox(Lines({u"Model list is empty.  To enter one or more"_s, u"models for this component type, select"_s,
                  u"'MODELS' from the menu or main screen."_s}),
           u"Can't select model"_s);
  } else if (Model() == 0) {
    MsgBox(u"Please select a model"_s, u"Nothing selected"_s);
  } else {
    SetTag(u"select"_s);
    Leave();
  }
}
