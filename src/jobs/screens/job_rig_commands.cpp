#include "core/clock.h"
#include "core/picker.h"
#include "core/prompts.h"
#include "core/screens.h"
#include "core/store/operation.h"
#include "gear/components.h"
#include "gear/people.h"
#include "gear/rigs.h"
#include "gear/screens.h"
#include "jobs/job_components.h"
#include "jobs/job_records.h"
#include "jobs/rig_from_job.h"
#include "jobs/screens.h"
#include "jobs/screens/job_gear_commands.h"

using namespace Qt::StringLiterals;

// What the job screen does about the rig of its job.

namespace {

bool IsUntouched(int jobID) {
  return JobSystemID(jobID) == 0 && ComponentsOfJob(jobID).isEmpty() && LinesOfJob(jobID).isEmpty();
}

}  // namespace

void JobGearCommands::MakeArig() {
  const JobContext job = *screen_.job;
  if (RigExists(job.rigID)) {
    if (AskStartNewJobForRig()) CreateNewJobNewRig();
    return;
  }
  if (!CustomerCanOwnRig(job)) return;
  if (!ComponentsOfJob(job.jobID).isEmpty()) {
    if (AllComponentsArefree(job.jobID)) CheckComponentsForNewRig();
    return;
  }
  MsgBox(u"no components, continue"_s);
  AddNewRig(job);
}

void JobGearCommands::CheckComponentsForNewRig() {
  const JobContext job = *screen_.job;
  if (!AskUseComponents()) return;
  const RigOfOnlyComponent choice = AskRigOfOnlyComponent(job.jobID);
  if (choice == RigOfOnlyComponent::Cancel) return;
  if (choice == RigOfOnlyComponent::TakeRig) {
    TakeRig(job.jobID, ComponentRig(ComponentsOfJob(job.jobID).value(0)));
    return;
  }
  if (RefuseDoubledTypes(job.jobID)) return;
  int rig = 0;
  const bool written = Operation(u"Sub BuildRigFromJob"_s, [&] {
    const int type = ChooseTypeOfNewRig();
    if (type != 0 && GearFitsRigType(job.jobID, type)) rig = BuildRigFromJob(job, type, screen_.date());
  });
  if (written && rig != 0) TellRigCreated(rig);
}

int JobGearCommands::AddNewRig(const JobContext& job) {
  const QString name = AskNameOfNewRig(job.customerID);
  int rig = 0;
  const bool written = Operation(u"Sub AddNewRig"_s, [&] {
    const int type = name.isEmpty() ? 0 : ChooseTypeOfNewRig();
    if (type == 0 || !JobExists(job.jobID) || !PersonExists(job.customerID)) return;
    rig = CreateRig(job.customerID, type, name);
    if (rig != 0) SetJobSystemID(job.jobID, rig);
  });
  return written ? rig : 0;
}

void JobGearCommands::CreateNewJobNewRig() {
  const Picked customer = PickItem(kPickCustomer);
  int jobID = 0;
  if (customer.id > 0) StartJobDialog(customer.id, 0, 0, jobID, 0, 0, Today());
  // In the place of a new job, an older one may have been loaded.
  if (jobID == 0 || !IsUntouched(jobID)) return;
  const int rig = AddNewRig(JobContextOf(jobID));
  if (rig == 0) return;
  MsgBox(Lines({u"Rig called '%1' has been created."_s.arg(RigName(rig)),
                u"To add components to this rig, select INSTALL COMPONENT"_s, u"from the task menu on the left."_s}),
         u"Ready to install components"_s);
}

void JobGearCommands::ImportRig() {
  const JobContext job = *screen_.job;
  if (!MayImportRig(job)) return;
  int rig = 0;
  int customer = job.customerID;
  if (PickRig(rig, customer) && rig != 0 && StillShows(job.jobID)) TakeRig(job.jobID, rig);
}
