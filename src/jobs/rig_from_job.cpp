#include "jobs/rig_from_job.h"

#include <QMap>

#include <algorithm>

#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/people.h"
#include "gear/rigs.h"
#include "jobs/install_component.h"
#include "jobs/job_components.h"
#include "jobs/job_records.h"
#include "schedule/gear_moves.h"

using namespace Qt::StringLiterals;

namespace {

/// Gear whose rig has been deleted is free.
bool IsInExistingRig(int componentID) { return RigExists(ComponentRig(componentID)); }

/// The rig of each component, 0 for none, before a new one is built of them.
using RigOfComponent = QMap<int, int>;

RigOfComponent RememberRigs(const QList<int>& components) {
  RigOfComponent rigs;
  for (int component : components) rigs[component] = ComponentRig(component);
  return rigs;
}

/// Puts all gear of the job into the rig, and the rig on the job.
void UpdateGridComponents(const JobContext& job, const QList<int>& components, int rigID) {
  Operation(u"Sub UpdateGridComponents"_s, [&] {
    for (int component : components) SetComponentRig(component, rigID);
    SetJobSystemID(job.jobID, rigID);
  });
}

/// Takes a rig under construction back.
void RestoreComponentRigs(const JobContext& job, const RigOfComponent& rigs, int newRig) {
  Operation(u"Sub RestoreComponentRigs"_s, [&] {
    for (auto it = rigs.cbegin(); it != rigs.cend(); ++it) SetComponentRig(it.key(), it.value());
    SetJobSystemID(job.jobID, job.rigID);
    DeleteRigRow(newRig);
  });
}

/// The rig takes its name, and the rigs that lost gear get their lines.
void FinishRig(int rigID, const QString& name, const RigOfComponent& rigs, const JobContext& job, Date date) {
  Operation(u"Sub FinishRig"_s, [&] {
    SetRigName(rigID, name);
    for (auto it = rigs.cbegin(); it != rigs.cend(); ++it)
      if (RigExists(it.value())) AddRemovalTask(it.key(), it.value(), date, job.locationID);
  });
}

}  // namespace

bool AskStartNewJobForRig() {
  return AskYes(
      Lines({u"This job already involves a rig.  "_s, u"Would you like to start a new job and create a new rig?"_s}),
      u"Start a new job?"_s);
}

bool CustomerCanOwnRig(const JobContext& job) {
  if (PersonExists(job.customerID)) return true;
  MsgBox(u"This customer as been deleted"_s, u"Can't create new rig"_s);
  return false;
}

bool AllComponentsArefree(int jobID) {
  const QList<int> components = ComponentsOfJob(jobID);
  return std::all_of(components.cbegin(), components.cend(), [](int component) {
    if (!IsInExistingRig(component)) return true;
    return AskYes(Lines({u"%1 belongs to %2 %3"_s.arg(RigName(ComponentRig(component)),
                                                      ComponentTypeName(ComponentTypeOf(component)),
                                                      ComponentDescription(component)),
                         QString(), u"Do you want to move that component to this rig?"_s}),
                  u"Component is part of a different rig"_s);
  });
}

RigOfOnlyComponent AskRigOfOnlyComponent(int jobID) {
  const QList<int> components = ComponentsOfJob(jobID);
  if (components.size() != 1 || !IsInExistingRig(components.first())) return RigOfOnlyComponent::NewRig;
  const QString alias = RigName(ComponentRig(components.first()));
  const Answer answer = Ask(
      Lines({u"You are creating a new rig using the above component."_s, QString(),
             u"However,that component (%1) is part of a "_s.arg(ComponentTypeName(ComponentTypeOf(components.first()))),
             u"rig called '%1'"_s.arg(alias), QString(), u"You can either:"_s, QString(),
             u"      1).  Add that rig to this job (recommended)"_s, u"      2).  Create a new rig "_s,
             u"           (component will be removed from current rig)"_s, QString(),
             u"Would you like to add that rig to this job?  (recommended)"_s, QString(),
             u"(if you select 'No', a new rig will be created)"_s}),
      u"Load %1?"_s.arg(alias), Buttons::YesNoCancel, Answer::Yes);
  if (answer == Answer::Cancel) return RigOfOnlyComponent::Cancel;
  return answer == Answer::Yes ? RigOfOnlyComponent::TakeRig : RigOfOnlyComponent::NewRig;
}

void TakeRig(int jobID, int rigID) {
  Operation(u"Sub TakeRig"_s, [&] {
    SetJobSystemID(jobID, rigID);
    DeleteRecordsFromTable(tblJobComponents::JobID, jobID);
    SnapshotRig(jobID, rigID);
  });
}

bool AskUseComponents() {
  return AskYes(u"Do you want to create a rig using the components shown above?"_s, u"Use these components?"_s);
}

bool RefuseDoubledTypes(int jobID) {
  QList<int> seen;
  for (int component : ComponentsOfJob(jobID)) {
    const int type = ComponentTypeOf(component);
    if (!seen.contains(type)) {
      seen << type;
      continue;
    }
    const QString name = ComponentTypeName(type);
    MsgBox(Lines({u"This job has more than one "_s + name, u"A rig can only have one "_s + name,
                  u"You can either remove some components or"_s, u"start a new job and create a new rig"_s}),
           u"Can't create rig with these components"_s);
    return true;
  }
  return false;
}

bool GearFitsRigType(int jobID, int rigType) {
  const QList<int> components = ComponentsOfJob(jobID);
  return std::all_of(components.cbegin(), components.cend(),
                     [&](int component) { return CheckCompentTypesVsRigType(component, rigType); });
}

QString AskNameOfNewRig(int owner) {
  for (;;) {
    QString list;
    RigNameIsTaken(QString(), owner, &list);
    const QString question = u"What do you want to call this new rig?"_s;
    const QString present = u"Current rigs owned by %1 are:"_s.arg(PersonDisplayName(owner));
    QString name = InputBox(list.isEmpty() ? question : Lines({present, list, QString(), question}))
                       .trimmed()
                       .left(kLongestRigName);
    if (name.isEmpty() || !RigNameIsTaken(name, owner)) return name;
    MsgBox(Lines({u"%1 already has a rig named %2"_s.arg(PersonDisplayName(owner), name), u"Rig list:"_s, list}),
           u"Duplicate rig name"_s);
  }
}

namespace {

int BuildRig(const JobContext& job, int rigType, Date date) {
  const QList<int> components = ComponentsOfJob(job.jobID);
  const RigOfComponent rigs = RememberRigs(components);
  const int rig = CreateRig(job.customerID, rigType, kTempRigName);
  if (rig == 0) return 0;
  const bool allMove = std::all_of(components.cbegin(), components.cend(), [](int component) {
    return !IsInExistingRig(component) || AskMoveToCurrentRig(component);
  });
  if (!allMove) {
    DeleteRigRow(rig);
    MsgBox(u"New rig not created"_s, u"Cancelled"_s);
    return 0;
  }
  UpdateGridComponents(job, components, rig);
  const QString name = AskNameOfNewRig(job.customerID);
  if (name.isEmpty()) {
    RestoreComponentRigs(job, rigs, rig);
    return 0;
  }
  FinishRig(rig, name, rigs, job, date);
  return rig;
}

}  // namespace

int BuildRigFromJob(const JobContext& job, int rigType, Date date) {
  int rig = 0;
  const bool written = Operation(u"Sub BuildRigFromJob"_s, [&] { rig = BuildRig(job, rigType, date); });
  return written ? rig : 0;
}

void TellRigCreated(int rigID) {
  MsgBox(u"%1 has been created"_s.arg(RigName(rigID)), u"New rig created successfully"_s);
}

bool MayImportRig(const JobContext& job) {
  QStringList reason;
  if (job.rigID != 0) {
    reason << u"This job already has a rig associated with it."_s;
    if (!RigExists(job.rigID)) reason << u"(although that rig has been deleted)"_s;
  } else if (ComponentsOfJob(job.jobID).size() > 1) {
    reason << u"This job already has one or more component associated with it."_s;
  } else {
    return true;
  }
  MsgBox(Lines(QStringList(u"You must create a new job to add a rig."_s) + reason), u"Rig already present"_s);
  return false;
}
