#include "jobs/remove_component.h"

#include <algorithm>

#include "core/default_rows.h"
#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/rigs.h"
#include "jobs/job_components.h"
#include "jobs/line_edits.h"
#include "schedule/schedule.h"

using namespace Qt::StringLiterals;

namespace {

bool IsInstallation(int taskID) { return TaskLibIDOf(taskID) == InstallTaskLibID; }

Answer AskCancelInstallation() {
  return Ask(Lines({u"You are removing a component that was installed"_s, u"during this job."_s,
                    u"Rather than removing this component, you can cancel"_s,
                    u"the installation.  This will delete the installation"_s,
                    u"task from the job as well as remove the component."_s,
                    u"Would you like to cancel the installation (recommended)"_s}),
             u"Cancel installation?"_s, Buttons::YesNoCancel, Answer::Yes);
}

bool CancelInstallation(const JobContext& job, int componentID, int taskID) {
  const bool leavesRig = RigComponentsCurrent(job.jobID, job.rigID) && ComponentRig(componentID) == job.rigID;
  const bool written = Operation(u"Sub CancelInstallation"_s, [&] {
    RemoveJobComponent(job.jobID, componentID);
    if (leavesRig) SetComponentRig(componentID, 0);
    DeleteTask(taskID);
  });
  return written;
}

/// The installation itself does not need the component to stay.
bool RefusedByOtherLines(const QList<int>& lines) {
  QStringList names;
  for (int line : lines)
    if (!IsInstallation(line)) names << u"    "_s + LineName(line);
  if (names.isEmpty()) return false;
  MsgBox(Lines(QStringList(u"This job has tasks that require this component:"_s) + names +
               QStringList(u"You must delete those tasks from this job before removing this component."_s)),
         u"Cannot remove component"_s);
  return true;
}

/// "Remove AAD - Cypres".
QString RemovalOf(int componentID) {
  return u"Remove %1 - %2"_s.arg(ComponentTypeName(ComponentTypeOf(componentID)), ComponentDescription(componentID));
}

bool AskRemove(const JobContext& job, int componentID) {
  return AskYes(
      u"Are you sure you want to remove this component from this"_s + (job.rigID != 0 ? u" rig?"_s : u" job?"_s),
      RemovalOf(componentID));
}

bool AskRemoveFromRigToo() {
  return AskYes(
      Lines({u"This job has different components than the current rig."_s,
             u"However the component you are removing is the current"_s, u"component in the actual rig."_s, QString(),
             u"Do you want the component removed from the current rig"_s, u"as well as from this job?"_s}),
      u"Update rig to show component removal?"_s);
}

bool IsHalfOfRepack(int componentType) { return componentType == kContainer || componentType == kReserveCanopy; }

}  // namespace

bool PlaceIsFilled(int rows, int componentType, int componentID) {
  const QString title = u"Remove component from rig"_s;
  const QString type = ComponentTypeName(componentType);
  if (rows == 0)
    MsgBox(u"There are no components to remove"_s, title);
  else if (componentType == 0)
    MsgBox(u"You must select a component from the above grid"_s, title);
  else if (!ComponentExists(componentID))
    MsgBox(type + u" doesn't exist"_s, u"Can't remove "_s + type);
  else
    return true;
  return false;
}

QList<int> LinesOfComponent(int jobID, int componentID) {
  QList<int> lines = LinesOfJob(jobID);
  lines.removeIf([&](int line) {
    return GetNumberRecordsComplex(tblTaskComponents::TaskID == line && tblTaskComponents::CompID == componentID)
               .ToInt() == 0;
  });
  return lines;
}

bool CancellingInstallation(const QList<int>& lines) {
  return std::any_of(lines.cbegin(), lines.cend(), &IsInstallation);
}

bool RemoveFromJob(const JobContext& job, int componentID, Date date) {
  const QList<int> lines = LinesOfComponent(job.jobID, componentID);
  if (CancellingInstallation(lines)) {
    if (lines.size() == 1) {
      const Answer answer = AskCancelInstallation();
      if (answer == Answer::Yes) return CancelInstallation(job, componentID, lines.first());
      if (answer == Answer::Cancel) return false;
    } else {
      MsgBox(u"other tasks present, continue below"_s);
    }
  }
  if (RefusedByOtherLines(lines) || !AskRemove(job, componentID)) return false;

  const int type = ComponentTypeOf(componentID);
  const bool current = RigComponentsCurrent(job.jobID, job.rigID);
  const bool rigExists = RigExists(job.rigID);
  const bool isInRig = rigExists && ComponentRig(componentID) == job.rigID;
  const bool leavesRig = isInRig && (current || AskRemoveFromRigToo());
  int repack = 0;
  if (leavesRig && current && IsHalfOfRepack(type)) GetRepackDue(job.rigID, repack);
  const bool written = Operation(u"Sub RemoveComponent"_s, [&] {
    RemoveJobComponent(job.jobID, componentID);
    if (rigExists)
      AddGearLine(job, RemoveTaskLibID, RemovalOf(componentID) + u" from "_s + RigName(job.rigID), componentID, date);
    if (leavesRig) SetComponentRig(componentID, 0);
    if (repack != 0) DeleteSchedule(job.rigID, RepackTaskLibID, 0);
  });
  if (written && repack != 0)
    MsgBox(u"Note: the reserve repack schedule for this rig has been deleted"_s, u"Reserve repack date removed"_s);
  return written;
}
