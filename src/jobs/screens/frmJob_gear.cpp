#include "core/prompts.h"
#include "gear/rig_rules.h"
#include "gear/rigs.h"
#include "gear/screens.h"
#include "jobs/job_components.h"
#include "jobs/screens/frmJob.h"
#include "jobs/screens/gear_grid.h"
#include "jobs/screens/job_gear_commands.h"
#include "jobs/screens/ui_frmJob.h"

using namespace Qt::StringLiterals;

namespace {
constexpr int kMostGearRows = 8;
}

void frmJob::ConnectGear() {
  SetUpGearGrid(*ui_->grid);
  gear_ = std::make_unique<JobGearCommands>(
      JobGearCommands::Screen{.grid = ui_->grid, .job = &job_, .date = [this] { return WorkDate(); }});
  const auto act = [this](int row, int column) { gear_->ClickCell(row, column); };
  connect(ui_->grid, &Grid::CellClick, this, act);
  connect(ui_->grid, &Grid::CellEnter, this, act);
  connect(ui_->grid, &Grid::CellF2, this, act);
  connect(ui_->grid, &Grid::CellDelete, this, [this] { gear_->RemoveComponent(); });
  connect(ui_->chkHidePhotos, &QCheckBox::clicked, this, [this](bool hidden) {
    SetPhotosHidden(hidden);
    ShowPhotos();
  });
  connect(ui_->cmdGearChange, &QPushButton::clicked, this, &frmJob::ExplainGearChange);
  connect(ui_->cmdCurrentComp, &QPushButton::clicked, this, [this] { ShowCurrentComponents(job_.rigID); });
}

void frmJob::LoadSystemInfo() {
  FillGearGrid(*ui_->grid, job_.jobID, RigExists(job_.rigID) ? job_.rigID : 0);
  ui_->grid->FitHeight(kMostGearRows);
  ui_->gearPanel->setVisible(job_.rigID != 0 || componentID_ != 0 || ui_->grid->RowCount() > 0);
  ShowPhotos();
  CheckRigChange();
}

void frmJob::ShowPhotos() {
  const bool hidden = PhotosAreHidden();
  ui_->chkHidePhotos->setChecked(hidden);
  for (QLabel* photo : {ui_->imageRig, ui_->imageCanopy}) photo->setVisible(!hidden);
}

void frmJob::CheckRigChange() {
  const bool hasRig = job_.rigID != 0;
  const bool rigExists = hasRig && RigExists(job_.rigID);
  QString differences;
  if (rigExists) rigComponentsCurrent_ = JobMatchesRig(job_.jobID, job_.rigID, differences);
  const bool differs = hasRig && (!rigExists || !rigComponentsCurrent_);
  for (QWidget* button : {ui_->cmdGearChange, ui_->cmdCurrentComp}) button->setVisible(differs);
  ui_->lblSystem->setText(rigExists ? RigName(job_.rigID) : u"(n/a)"_s);
}

void frmJob::ExplainGearChange() {
  if (job_.rigID == 0 || !RigExists(job_.rigID)) {
    MsgBox(job_.rigID == 0 ? u"There is no rig for this job"_s : u"The rig for this job has been deleted"_s,
           u"Can't show rig"_s);
    return;
  }
  MsgBox(
      Lines({u"Components in this rig have changed since this job was started"_s,
             u"Any components installed or removed during this"_s, u"job will not affect the current rig components."_s,
             u"These events will be displayed in the rig's history."_s,
             u"Note:  If you would like the current rig to match these"_s, u"components, see the TOOLS menu above"_s}),
      u"Rig components may have changed"_s);
}
