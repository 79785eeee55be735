#include "gear/screens/rigs/frmCurrentComponents.h"

#include "core/store/tables.h"
#include "gear/rig_rules.h"
#include "gear/rig_types.h"
#include "gear/rigs.h"
#include "gear/screens/rigs/rig_grid.h"
#include "gear/screens/rigs/ui_frmCurrentComponents.h"

frmCurrentComponents::frmCurrentComponents() : ui_(std::make_unique<Ui::frmCurrentComponents>()) {
  ui_->setupUi(this);
  SetRemembersPlace(false);
  RigGrid::SetUp(*ui_->grid);
  connect(ui_->cmdExit, &QPushButton::clicked, this, &frmCurrentComponents::Cancel);
}

frmCurrentComponents::~frmCurrentComponents() = default;

QStringList frmCurrentComponents::ShowsTables() const { return RigGrid::ShowsTables() + QStringList{tblMisc::kTable}; }

void frmCurrentComponents::SetRig(int rig) {
  rig_ = rig;
  ReloadForm();
}

void frmCurrentComponents::ReloadForm() {
  const int shown = RigExists(rig_) ? rig_ : 0;
  ui_->lblRigName->setText(RigName(shown));
  ui_->lblRigType->setText(RigTypeName(RigType(shown)));
  RigGrid::Refill(*ui_->grid, shown);
  for (QLabel* photo : {ui_->lblRigPhoto, ui_->lblCanopyPhoto}) photo->setVisible(!PhotosAreHidden());
}
