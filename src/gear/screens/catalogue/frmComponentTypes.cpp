#include "gear/screens/catalogue/frmComponentTypes.h"

#include "gear/component_types.h"
#include "gear/screens/catalogue/ui_frmComponentTypes.h"

frmComponentTypes::frmComponentTypes() : ui_(std::make_unique<Ui::frmComponentTypes>()) {
  ui_->setupUi(this);
  const auto rename = [this] {
    if (Type() != 0 && RenameComponentType(Type())) LoadList(Type());
  };
  const auto remove = [this] {
    if (DeleteComponentType(Type())) LoadList(0);
  };
  connect(ui_->cmdAdd, &QPushButton::clicked, this, [this] {
    if (const int added = AddNewComponentType(); added != 0) LoadList(added);
  });
  connect(ui_->cmdRename, &QPushButton::clicked, this, rename);
  connect(ui_->lst, &List::ItemDoubleClick, this, rename);
  connect(ui_->cmdDelete, &QPushButton::clicked, this, remove);
  connect(ui_->lst, &List::ItemDelete, this, remove);
  connect(ui_->cmdHelp, &QPushButton::clicked, this, [] { ShowComponentTypeHelp(); });
  connect(ui_->cmdExit, &QPushButton::clicked, this, &frmComponentTypes::Cancel);
  LoadList(0);
}

frmComponentTypes::~frmComponentTypes() = default;

int frmComponentTypes::Type() const { return ui_->lst->ItemData(ui_->lst->ListIndex()); }

void frmComponentTypes::LoadList(int select) {
  ui_->lst->Fill(LoadMajorComponentTypes());
  ui_->lst->SelectData(select);
}
