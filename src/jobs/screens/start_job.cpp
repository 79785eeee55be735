#include "core/clock.h"
#include "core/prompts.h"
#include "core/screens.h"
#include "core/store/operation.h"
#include "core/value.h"
#include "gear/components.h"
#include "gear/locations.h"
#include "gear/people.h"
#include "gear/rig_rules.h"
#include "gear/rigs.h"
#include "gear/screens.h"
#include "jobs/delete_job.h"
#include "jobs/job_records.h"
#include "jobs/screens.h"
#include "jobs/screens/frmJobTypeSelect.h"
#include "jobs/screens/frmNewJob.h"
#include "jobs/screens/keep_shown.h"

using namespace Qt::StringLiterals;

namespace {

int ChooseLocation() {
  if (const int location = DefaultLocation(); location != 0) return location;
  if (!LocationsExist()) return 0;
  if (!AskYes(u"Would you like to select a location for this rigging job?"_s, u"Choose location?"_s)) return 0;
  return qMax(0, PickItem(kPickLocation).id);
}

int ChooseRigger() {
  const int usual = EffectiveRigger();
  if (NumberOfRiggers() < 2) return usual;
  const Picked picked = PickItemWithDefault(kPickRigger, 0, usual);
  if (picked.id < 1) return ValidDefaultRigger();
  if (picked.saveAsDefault) SetDefaultRigger(picked.id);
  return picked.id;
}

QString TitleSeed(int rigID) {
  const QString alias = rigID == 0 ? QString() : RigName(rigID);
  return alias == "n/a"_L1 ? QString() : alias;
}

QString ProposedName(QString seed, int customerID, int componentID) {
  if (seed.isEmpty()) seed = PersonLastName(customerID);
  if (componentID != 0) seed = ComponentDescription(componentID) + u'-' + seed;
  return seed + u' ' + Value(Today()).ToText();
}

QString RigOption(int rigID, int rigs) {
  return rigID != 0 ? u"Rig (%1)"_s.arg(RigName(rigID)) : u"Rig (has %1, select from list)"_s.arg(rigs);
}

/// What the customer has, of which a job can be performed on one.
struct Gear {
  int rigs = 0;
  int components = 0;
};

bool AskIncludeRig(int rigID) {
  return AskYes(Lines({u"This component is part of a rig ("_s + RigName(rigID) + u')',
                       u"Do you want to show all rig components for this new job"_s}),
                u"Include all rig components?"_s);
}

/// Lets the person choose one of the customer's components, and whether the job is for the whole rig that it is part
/// of; false when none was chosen.
bool ChooseComponent(int customerID, int& rigID, int& componentID) {
  componentID = PickComponent(0, customerID);
  if (componentID == 0) return false;
  rigID = ComponentRig(componentID);
  if (!RigExists(rigID) || !AskIncludeRig(rigID)) rigID = 0;
  MsgBox(u"hi"_s);
  return true;
}

/// Asks what the job is performed on; false to leave with nothing done.
bool ChooseGear(int customerID, const Gear& gear, int& rigID, int& componentID) {
  auto& form = SharedForm<frmJobTypeSelect>();
  form.SetCustomer(PersonDisplayName(customerID), RigOption(rigID, gear.rigs));
  form.SetRigEnabled(gear.rigs > 0);
  form.SetComponentEnabled(gear.components > 0);
  form.Choose(gear.rigs > 0 ? frmJobTypeSelect::kRig : frmJobTypeSelect::kComponent);
  form.ShowModal();
  const bool chosen = form.Tag() != "cancel"_L1;
  const frmJobTypeSelect::Choice choice = form.Chosen();
  form.UnloadForm();
  if (!chosen) return false;
  if (choice == frmJobTypeSelect::kComponent) return ChooseComponent(customerID, rigID, componentID);
  if (choice == frmJobTypeSelect::kNeither) rigID = componentID = 0;
  if (choice == frmJobTypeSelect::kNeither || rigID != 0) return true;
  int owner = customerID;
  return PickRig(rigID, owner);
}

/// One job is started at a time.
bool IsBeingStarted() { return ComesForward<frmJobTypeSelect>() || ComesForward<frmNewJob>(); }

/// Lets the person name the job that was just made; `jobID` is then the job to go to: this one, another one that was
/// chosen in its place, or 0. A job that is not wanted is deleted.
void NameNewJob(const QString& proposal, int customerID, int& jobID) {
  auto& form = SharedForm<frmNewJob>();
  form.SetJob(jobID, customerID, proposal, Today());
  form.ShowModal();
  const QString name = form.Tag() == "cancel"_L1 ? QString() : form.JobName();
  const int other = form.JobToLoad();
  const Date started = form.DateStarted();
  form.UnloadForm();

  if (name.isEmpty() || other != 0) {
    DeleteJobRow(jobID);
    jobID = other;
  } else {
    SetJobTitle(jobID, name);
    SetJobDateStarted(jobID, started);
  }
}

}  // namespace

bool StartNewJob(int customerID, int rigID, int componentID, Date date) {
  if (IsBeingStarted()) return false;
  if (customerID == 0) {
    MsgBox(Lines({u"This rig is not assigned to a customer.  You must assign this"_s,
                  u"rig to a customer before starting a new job."_s}),
           u"No customer for this rig"_s);
    return false;
  }
  int jobID = 0;
  if (rigID == 0) {
    const Gear gear{NumberOfRigs(customerID), NumberOfComponents(customerID)};
    if (gear.rigs == 1) rigID = FirstRigOf(customerID);
    if (gear.rigs + gear.components > 0) {
      if (!ChooseGear(customerID, gear, rigID, componentID)) return false;
    } else if (!AskYes(Lines({u"This customer has no rigs or components."_s, u"Do you want to create a job anyway?"_s}),
                       u"Create job for "_s + PersonDisplayName(customerID))) {
      return false;
    }
    date = Today();
  }
  StartJobDialog(customerID, rigID, componentID, jobID, 0, 0, date);
  return jobID != 0;
}

void StartJobDialog(int customerID, int rigID, int componentID, int& jobID, int riggerID, int locationID, Date date) {
  jobID = 0;
  if (IsBeingStarted()) return;
  const QString seed = TitleSeed(rigID);
  if (locationID == 0) locationID = ChooseLocation();
  if (riggerID == 0) riggerID = ChooseRigger();
  const bool written = Operation(u"Sub StartJobDialog"_s, [&] {
    CreateNewJob(seed, customerID, rigID, componentID, jobID, riggerID, locationID, date);
    if (jobID != 0) NameNewJob(ProposedName(seed, customerID, componentID), customerID, jobID);
  });
  if (!written) jobID = 0;
  if (jobID != 0) GotoJob(jobID);
}
