#include "jobs/screens/job_gear_commands.h"

#include "core/prompts.h"
#include "core/widgets/grid.h"
#include "gear/components.h"
#include "gear/rigs.h"
#include "gear/screens.h"
#include "jobs/gear_edits.h"
#include "jobs/remove_component.h"
#include "jobs/rig_sync.h"
#include "jobs/screens/choose_component.h"
#include "jobs/screens/gear_grid.h"

using namespace Qt::StringLiterals;

int JobGearCommands::Component(int row) const { return screen_.grid->RowData(row); }

int JobGearCommands::ComponentType(int row) const { return row < 0 ? 0 : screen_.grid->Text(row, kGearType).toInt(); }

void JobGearCommands::InstallComponent() {
  const JobContext& job = *screen_.job;
  if (RigExists(job.rigID)) {
    const int row = screen_.grid->CurrentRow();
    if (PlaceIsFree(ComponentType(row), Component(row))) InstallComponentGuts(ComponentType(row));
    return;
  }
  switch (AskInstallWithoutRig(job.rigID)) {
    case InstallWithoutRig::AddToJob:
      InstallComponentNoRig();
      break;
    case InstallWithoutRig::CreateRig:
      MakeArig();
      break;
    case InstallWithoutRig::Nothing:
      break;
  }
}

void JobGearCommands::InstallComponentGuts(int type) {
  const ChosenComponent chosen = ChooseComponentForJob(screen_.job->jobID, type);
  if (chosen.id != 0 && InstallOnJob(*screen_.job, chosen, screen_.date())) screen_.reloadGear();
}

void JobGearCommands::InstallComponentNoRig() {
  TellNoInstallation();
  const ChosenComponent chosen = ChooseComponentForJob(screen_.job->jobID, 0);
  if (chosen.id != 0 && AddToJobWithoutRig(screen_.job->jobID, chosen)) screen_.reloadGear();
}

void JobGearCommands::RemoveComponent() {
  Grid& grid = *screen_.grid;
  if (grid.RowCount() == 1) grid.SelectRow(0);
  const int row = grid.CurrentRow();
  if (!PlaceIsFilled(grid.RowCount(), ComponentType(row), Component(row))) return;
  if (RemoveFromJob(*screen_.job, Component(row), screen_.date())) screen_.reloadGear();
}

void JobGearCommands::EditSelectedComponent() {
  const int component = Component(screen_.grid->CurrentRow());
  if (component == 0) {
    MsgBox(u"You must select a component from the above grid"_s, u"Edit selected component"_s);
    return;
  }
  if (EditComponent(component) != 0) screen_.reloadGear();
}

void JobGearCommands::UpdateRig() {
  if (!UpdateRigFromJob(screen_.job->jobID, screen_.job->rigID)) return;
  screen_.reloadGear();
  MsgBox(u"Rig updated"_s);
}

void JobGearCommands::ClickCell(int row, int column) {
  const int component = Component(row);
  bool changed = false;
  if (!ComponentExists(component))
    TellEmptyPlace(ComponentType(row), screen_.job->rigID);
  else if (column == kGearSerial)
    changed = EditGearSerial(component);
  else if (column == kGearDom)
    changed = EditGearDom(component);
  if (!changed) return;
  screen_.reloadGear();
  screen_.grid->SelectCell(row, column);
}
