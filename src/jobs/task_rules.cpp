#include "jobs/task_rules.h"

#include "core/dates.h"
#include "core/default_rows.h"
#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/text.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/rigs.h"
#include "jobs/job_components.h"
#include "jobs/job_records.h"
#include "schedule/task_library.h"

using namespace Qt::StringLiterals;

namespace {

/// An entry that may stand on a job only once is there already.
bool IsDuplicate(int jobID, int taskLibID) {
  if (TaskLibAllowMultiple(taskLibID) || !TaskOnJob(jobID, taskLibID)) return false;
  const QString kind = TaskLibKind(taskLibID);
  QStringList lines{u"This job already has the %1 '%2'"_s.arg(kind, TaskLibName(taskLibID)),
                    u"This %1 is only allowed once per job"_s.arg(kind)};
  if (TaskLibIsEvent(taskLibID))
    lines << u"You can change this setting on the main menu"_s << u"Select Setup/Event Library"_s;
  else
    lines << u"(you can change this in the TASK TYPE LIBRARY)"_s;
  MsgBox(Lines(lines), u"Duplicate "_s + kind);
  return true;
}

bool MayStandOnJob(const JobContext& job, int taskLibID) {
  QString message;
  if (ModelMissingFromJob(taskLibID, message, job.jobID)) {
    MsgBox(message, u"This is a model specific task"_s);
    return false;
  }
  int missingType = 0;
  return RequiredComponentsPresent(job.jobID, taskLibID, missingType) && !IsDuplicate(job.jobID, taskLibID);
}

}  // namespace

bool RequiredComponentsPresent(int jobID, int taskLibID, int& missingType) {
  missingType = 0;
  for (int type : RequiredComponentTypes(taskLibID)) {
    if (JobComponentOfType(jobID, type) != 0) continue;
    missingType = type;
    const QString name = ComponentTypeName(type).toLower();
    MsgBox(JobSystemID(jobID) != 0 ? u"There is no %1 in this rig"_s.arg(name)
                                   : u"This %1 requires %2%3"_s.arg(TaskLibKind(taskLibID), ArticleFor(name), name),
           u"Can't add "_s + TaskLibName(taskLibID));
    return false;
  }
  return true;
}

bool ModelMissingFromJob(int taskLibID, QString& message, int jobID) {
  const int model = TaskLibModelID(taskLibID);
  if (model == 0 || ComponentModel(JobComponentOfType(jobID, ModelType(model))) == model) return false;
  message += u"There is no %1 in this rig"_s.arg(ModelName(model));
  return true;
}

bool TaskOnJob(int jobID, int taskLibID) {
  return GetNumberRecordsComplex(tblTasks::JobID == jobID && tblTasks::TaskLibID == taskLibID).ToInt() > 0;
}

bool TaskRequiresParts(int taskLibID) {
  return GetNumberRecordsComplex(tblTaskLibParts::TaskLibID == taskLibID).ToInt() > 0;
}

bool RepackIsPossible(int rigID) {
  if (rigID != 0 && RigExists(rigID)) return true;
  MsgBox(Lines({rigID == 0 ? u"This job doesn't have a rig."_s : u"The rig for this job has been deleted."_s,
                u"Reserve repacks can only be added to jobs"_s, u"with a valid rig."_s,
                u"You can create a rig using the RIG menu."_s}),
         u"Can't enter repack"_s);
  return false;
}

LibraryOutcome AddLibraryTask(const JobContext& job, int taskLibID, Date date, bool rigComponentsCurrent) {
  if (taskLibID == InstallTaskLibID) return LibraryOutcome::Install;
  if (taskLibID == RemoveTaskLibID) return LibraryOutcome::Remove;
  if (taskLibID < 1) return LibraryOutcome::Refused;
  auto outcome = LibraryOutcome::Refused;
  const bool written = Operation(u"Sub GetLibraryTask"_s, [&] {
    int taskID = 0;
    if (MayStandOnJob(job, taskLibID)) AddTaskToJob(job, taskLibID, false, date, taskID);
    if (taskID != 0) {
      AddComponentsToTask(taskLibID, taskID, job.jobID);
      if (TaskRequiresParts(taskLibID)) AddLibraryParts(job, taskLibID, date);
      outcome = LibraryOutcome::Added;
    }
  });
  if (!written) return LibraryOutcome::Refused;
  if (outcome == LibraryOutcome::Added && taskLibID == RepackTaskLibID && !rigComponentsCurrent) {
    MsgBox(Lines({u"Please note:"_s, u"This repack entry will not show up on the schedule."_s,
                  u"This is because this job has components that are different"_s, u"than those in the current rig"_s}),
           u"Repack won't affect schedule"_s);
  }
  return outcome;
}

Date WorkingDate(const QString& text) {
  if (IsValidDate(text)) return ParseDate(text);
  MsgBox(text + u" is not a valid date"_s, u"Date is invalid"_s);
  return {};
}
