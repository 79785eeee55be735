#include "faults/commands.h"
#include "faults/ground.h"
#include "jobs/install_component.h"
#include "jobs/remove_component.h"
#include "jobs/rig_from_job.h"
#include "jobs/rig_sync.h"
#include "jobs/screens.h"
#include "support/screens/controls.h"

using namespace Qt::StringLiterals;

namespace {

const Date kDay = Day(3, 10, 2026);

QWidget& Screen() { return dynamic_cast<QWidget&>(*Forms::Find(u"frmJob"_s)); }

void ShowOther(Ground& ground) { GotoJob(ground.other); }

void MakeARig(Ground& ground) {
  ground.person.answers[u"Load Vigil?"_s] = Answer::No;
  ground.person.typed << u"Green"_s;
  ground.Pick(u"Sport"_s);
  ChooseMenu(Screen(), {u"Rig"_s, u"Create a new rig"_s});
}

}  // namespace

std::vector<Command> CommandsOnGearOfJobs() {
  return {
      {"install a loose component on a job", "Sub InstallComponentGuts",
       [](Ground& ground) {
         InstallOnJob(ground.Context(), {ground.spare, ChosenComponent::FromDatabase}, kDay);
       }},
      {"install a component of another's rig on a job", "Sub InstallComponentGuts",
       [](Ground& ground) {
         InstallOnJob(ground.Context(), {ground.vigil, ChosenComponent::FromDatabase}, kDay);
       }},
      {"remove a component from a job and its rig", "Sub RemoveComponent",
       [](Ground& ground) { RemoveFromJob(ground.Context(), ground.reserve, kDay); },
       [](Ground& ground) {
         ground.AddRepack(kDay);
         ground.AddSchedule(ground.rig, RepackTaskLibID, kDay + 180, 1, 0);
       }},
      {"cancel an installation", "Sub CancelInstallation|Sub RemoveComponent",
       [](Ground& ground) { RemoveFromJob(ground.Context(), ground.spare, kDay); },
       [](Ground& ground) {
         InstallOnJob(ground.Context(), {ground.spare, ChosenComponent::FromDatabase}, kDay);
       }},
      {"bring a rig in line with its job", "Sub UpdateRigFromJob",
       [](Ground& ground) { UpdateRigFromJob(ground.job, ground.rig); },
       [](Ground& ground) {
         SetComponentRig(ground.mainCanopy, 0);
         SetComponentRig(ground.looseReserve, ground.rig);
       }},
      {"make a rig of a job's gear", "Sub BuildRigFromJob|Sub MakeArig", MakeARig,
       [](Ground& ground) { ground.other = ground.AddJob("Loose", 0, ground.spare); }, ShowOther},
      {"make an empty rig for a job", "Sub AddNewRig", MakeARig,
       [](Ground& ground) { ground.other = ground.AddJob("Loose", 0, 0); }, ShowOther},
      {"put an existing rig on a job", "Sub TakeRig", [](Ground& ground) { TakeRig(ground.other, ground.red); },
       [](Ground& ground) { ground.other = ground.AddJob("Loose", 0, 0); }},
  };
}
