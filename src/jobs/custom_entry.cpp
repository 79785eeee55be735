#include "jobs/custom_entry.h"

#include "core/format.h"
#include "core/prompts.h"
#include "core/store/connection.h"
#include "core/store/operation.h"
#include "gear/models.h"
#include "jobs/job_components.h"
#include "jobs/library_entry.h"

using namespace Qt::StringLiterals;

namespace {

/// Tells the ticked types that the job has no component of.
bool MissingComponents(const CustomEntry& entry, const QString& kind, int jobID) {
  QStringList missing;
  for (int type : entry.componentTypes)
    if (JobComponentOfType(jobID, type) == 0) missing << u"    "_s + ComponentTypeName(type);
  if (missing.isEmpty()) return false;
  missing.prepend(u"The following components are required for this task:"_s);
  missing << u"This %1 cannot be added to this job"_s.arg(kind);
  MsgBox(Lines(missing), u"Missing Components"_s);
  return true;
}

bool TakesLibraryEntry(const QString& name, const QString& kind, int taskLibID) {
  QStringList lines{u"The custom %1 you entered (%2) is found in the %1 library."_s.arg(kind, name)};
  if (const Money price = TaskLibFlatRate(taskLibID); !price.IsZero())
    lines << u"The cost is "_s + Format(price, u"$###,###,##0.00"_s);
  lines << u"Do you still want to add this %1 to the current job?"_s.arg(kind);
  return AskYes(Lines(lines), u"Custom %1 - %2"_s.arg(kind, name));
}

int AddEventToLibrary(const CustomEntry& entry) {
  const bool multiple =
      AskYes(Lines({u"Can this event be used multiple times"_s, u"in the same job?"_s}), u"Multiple events"_s);
  const int id = SaveCustomEventToLib(entry.name, entry.componentTypes, multiple);
  if (id != 0) MsgBox(entry.name + u" has been added to the event library"_s, u"Event saved to library"_s);
  return id;
}

}  // namespace

CustomRoad ChooseCustomRoad(const CustomEntry& entry, int jobID, int& taskLibID) {
  taskLibID = 0;
  const QString kind = entry.isEvent ? u"event"_s : u"task"_s;
  if (MissingComponents(entry, kind, jobID)) return CustomRoad::None;
  if (const int known = FindTaskLib(entry.name); known != 0) {
    if (!TakesLibraryEntry(entry.name, kind, known)) return CustomRoad::None;
    taskLibID = known;
    return CustomRoad::Library;
  }
  if (!AskYes(u"Would you like to add this %1 to the %1 library for future use?"_s.arg(kind),
              u"New %1: %2"_s.arg(kind, entry.name)))
    return CustomRoad::OneOff;
  if (!entry.isEvent) return CustomRoad::NewTaskType;
  taskLibID = AddEventToLibrary(entry);
  return taskLibID == 0 ? CustomRoad::None : CustomRoad::Library;
}

int AddOneOffLine(const JobContext& job, const CustomEntry& entry, Date date) {
  int taskID = 0;
  const bool written = Operation(u"Sub AddOneOffLine"_s, [&] {
    AddCustomLine(job, {.name = entry.name, .price = entry.price, .logBook = entry.logBook, .isEvent = entry.isEvent},
                  date, taskID);
    if (taskID != 0) {
      const QList<int> types =
          job.rigID == 0 ? entry.componentTypes.first(qMin(1, entry.componentTypes.size())) : entry.componentTypes;
      for (int type : types) AddTaskComponent(taskID, JobComponentOfType(job.jobID, type), entry.isEvent);
    }
  });
  return written ? taskID : 0;
}
