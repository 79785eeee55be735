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
  const int job = screen_.job->jobID;
  const ChosenComponent chosen = ChooseComponentForJob(job, type);
  if (chosen.id != 0 && StillShows(job)) InstallOnJob(*screen_.job, chosen, screen_.date());
}

void JobGearCommands::InstallComponentNoRig() {
  TellNoInstallation();
  const int job = screen_.job->jobID;
  const ChosenComponent chosen = ChooseComponentForJob(job, 0);
  if (chosen.id != 0 && StillShows(job)) AddToJobWithoutRig(job, chosen);
}

void JobGearCommands::RemoveComponent() {
  Grid& grid = *screen_.grid;
  if (grid.RowCount() == 1) grid.SelectRow(0);
  const int row = grid.CurrentRow();
  if (!PlaceIsFilled(grid.RowCount(), ComponentType(row), Component(row))) return;
  RemoveFromJob(*screen_.job, Component(row), screen_.date());
}

void JobGearCommands::EditSelectedComponent() {
  const int component = Component(screen_.grid->CurrentRow());
  if (component == 0) {
    MsgBox(u"You must select a component from the above grid"_s, u"Edit selected component"_s);
    return;
  }
  EditComponent(component);
}

void JobGearCommands::UpdateRig() {
  if (UpdateRigFromJob(screen_.job->jobID, screen_.job->rigID)) MsgBox(u"Rig updated"_s);
}

void JobGearCommands::ClickCell(int row, int column) {
  const int component = Component(row);
  if (!ComponentExists(component))
    TellEmptyPlace(ComponentType(row), screen_.job->rigID);
  else if (column == kGearSerial)
    EditGearSerial(component);
  else if (column == kGearDom)
    EditGearDom(component);
}
