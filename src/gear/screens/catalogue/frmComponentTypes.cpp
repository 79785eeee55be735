#include "gear/screens/catalogue/frmComponentTypes.h"

#include "core/store/tables.h"
#include "gear/component_types.h"
#include "gear/screens/catalogue/ui_frmComponentTypes.h"

using namespace Qt::StringLiterals;

frmComponentTypes::frmComponentTypes() : ui_(std::make_unique<Ui::frmComponentTypes>()) {
  ui_->setupUi(this);
  const auto rename = [this] {
    if (Type() != 0) RenameComponentType(Type());
  };
  const auto remove = [this] { DeleteComponentType(Type()); };
  connect(ui_->cmdAdd, &QPushButton::clicked, this, [this] {
    if (const int added = AddNewComponentType(); added != 0) ui_->lst->SelectData(added);
  });
  connect(ui_->cmdRename, &QPushButton::clicked, this, rename);
  connect(ui_->lst, &List::ItemDoubleClick, this, rename);
  connect(ui_->cmdDelete, &QPushButton::clicked, this, remove);
  connect(ui_->lst, &List::ItemDelete, this, remove);
  connect(ui_->cmdHelp, &QPushButton::clicked, this, [] { ShowComponentTypeHelp(); });
  connect(ui_->cmdExit, &QPushButton::clicked, this, &frmComponentTypes::Cancel);
  ReloadForm();
}

frmComponentTypes::~frmComponentTypes() = default;

int frmComponentTypes::Type() const { return ui_->lst->ItemData(ui_->lst->ListIndex()); }

QStringList frmComponentTypes::ShowsTables() const { return {tblComponentTypes::kTable}; }

void frmComponentTypes::ReloadForm() { ui_->lst->Refill(LoadMajorComponentTypes()); }
