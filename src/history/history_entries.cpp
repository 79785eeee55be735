#include "history/history_entries.h"

#include "core/dates.h"
#include "core/default_rows.h"
#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/text.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/people.h"
#include "gear/rigs.h"
#include "jobs/completion.h"
#include "jobs/job_records.h"
#include "jobs/lines.h"
#include "schedule/rig_audit.h"
#include "schedule/schedule.h"
#include "schedule/scheduled_task.h"
#include "schedule/task_library.h"

using namespace Qt::StringLiterals;

namespace {

QString OneOf(const QString& name) { return ArticleFor(name) + name; }

bool RigHasWhatItRequires(int rigID, int taskLibID) {
  const QString kind = TaskLibIsEvent(taskLibID) ? u"event"_s : u"task"_s;
  for (int type : RequiredComponentTypes(taskLibID)) {
    if (type == 0 || ComponentOfTypeInRig(rigID, type) != 0) continue;
    const QString name = OneOf(ComponentTypeName(type).toLower());
    MsgBox(Lines({u"The %1 '%2' requires"_s.arg(kind, TaskLibName(taskLibID)), name, QString(),
                  u"This system doesn't have "_s + name, QString(),
                  u"This %1 can't be added to this rig's history."_s.arg(kind)}),
           u"Can't add selected "_s + kind);
    return false;
  }
  const int model = TaskLibModelID(taskLibID);
  if (model == 0 || ComponentModel(ComponentOfTypeInRig(rigID, ModelType(model))) == model) return true;
  const QString name = OneOf(ModelName(model));
  MsgBox(Lines({u"This task is specific for "_s + name, u"but the selected rig doesn't have "_s + name}),
         u"Can't add task"_s);
  return false;
}

bool ComponentFits(const HistoryView& view, int taskLibID) {
  const int viewed = view.componentTypeID != 0 ? view.componentTypeID : ComponentTypeOf(view.componentID);
  for (int type : RequiredComponentTypes(taskLibID)) {
    if (type == 0 || type == viewed) continue;
    MsgBox(taskLibID == RepackTaskLibID
               ? Lines({u"You are viewing the history of a single component.   "_s,
                        u"In order to record a reserve repack, you must be"_s, u"viewing a rig's history."_s})
               : Lines({u"You are viewing the history of "_s + OneOf(ComponentTypeName(viewed).toLower()), QString(),
                        u"The selected task or event requires "_s + OneOf(ComponentTypeName(type).toLower())}));
    return false;
  }
  const int model = TaskLibModelID(taskLibID);
  if (model == 0 || ComponentModel(view.componentID) == model) return true;
  MsgBox(Lines({u"This task is model specific"_s, u"It can only be added to "_s + OneOf(ModelName(model))}));
  return false;
}

/// Of a rig or a component that has gone the history can only be read.
bool StillThere(const HistoryView& view) {
  if (view.mode == HistoryMode::Component) return ComponentExists(view.componentID);
  return view.rigID == 0 || RigExists(view.rigID);
}

bool MayBeAdded(const HistoryView& view, int taskLibID) {
  if (view.mode != HistoryMode::Rig) return ComponentFits(view, taskLibID);
  return view.rigID == 0 || RigHasWhatItRequires(view.rigID, taskLibID);
}

/// Rebuilds the row of an entry. One that concerns neither a rig nor a component has none.
void Reschedule(int taskLibID, int rigID, int componentID) {
  if (rigID != 0 || componentID != 0) UpdateSchedule(taskLibID, rigID, componentID);
}

/// The same after an entry has gone. Work on one component that has left the rig since counts for the component alone.
void RescheduleWithout(int taskLibID, const HistoryLine& line) {
  const bool ofOneType = EntryIsOfOneType(taskLibID);
  const bool countsForRig = RigExists(line.rigID) && (!ofOneType || ComponentRig(line.componentID) == line.rigID);
  Reschedule(taskLibID, countsForRig ? line.rigID : 0, ofOneType ? line.componentID : 0);
}

}  // namespace

HistoryView HistoryViewOfRig(int rigID, int componentTypeID) {
  const int rig = rigID != 0 ? rigID : LastSystemID();
  if (componentTypeID == 0) return {.rigID = rig, .personID = RigOwner(rig)};
  return {HistoryMode::RigByType, rig, RigOwner(rig), ComponentOfTypeInRig(rig, componentTypeID), componentTypeID};
}

HistoryView HistoryViewOfComponent(int componentID) {
  const int rig = ComponentRig(componentID);
  return {HistoryMode::Component, RigExists(rig) ? rig : 0, ComponentOwner(componentID), componentID,
          ComponentTypeOf(componentID)};
}

bool AddHistoryEntry(const HistoryView& view, int taskLibID, const QString& dateText) {
  if (taskLibID < 1 || !StillThere(view)) return false;
  if (taskLibID == InstallTaskLibID || taskLibID == RemoveTaskLibID) {
    MsgBox(Lines({u"The task '%1' cannot be added to a rig's history. "_s.arg(TaskLibName(taskLibID)), QString(),
                  u"This task can only be added during a job"_s}));
    return false;
  }
  const Date date = ParseDate(dateText);
  if (date.IsNone() || !MayBeAdded(view, taskLibID)) return false;
  return Operation(u"Sub AddTaskOrEvent"_s, [&] {
    const int component = view.mode == HistoryMode::Rig ? 0 : view.componentID;
    const int taskID = WriteJoblessWork(taskLibID, view.rigID, component, date);
    Reschedule(taskLibID, view.rigID, GetThisComponentID(taskID));
  });
}

bool DeleteHistoryEntry(const HistoryLine& line) {
  if (!AskYes(u"Are you sure you want to delete this event?"_s, line.component + u" - "_s + line.task)) return false;
  return Operation(u"Sub DeleteEvent"_s, [&] {
    const int taskLibID = TaskLibIDOf(line.taskID);
    DeleteTask(line.taskID);
    DeleteSchedulesOfTask(line.taskID);
    RescheduleWithout(taskLibID, line);
  });
}

bool AskShowJobOfEntry() {
  return AskYes(Lines({u"This event was performed as part of a rigging job."_s, QString(),
                       u"Would you like to load that job?"_s}),
                u"Show this job?"_s);
}

bool AskEditEntry() {
  return AskYes(Lines({u"The selected event is not part of a job. It was entered manually."_s, QString(),
                       u"Would you like to edit this entry?"_s}),
                u"Edit entry?"_s);
}

void TellDifferentOwner(int jobID, int personID) {
  const int customer = JobCustomerID(jobID);
  if (customer == personID) return;
  MsgBox(Lines({u"Please note:"_s, QString(), u"This component is currently owned by "_s + PersonDisplayName(personID),
                u"but the component was owned by "_s + PersonDisplayName(customer), u"when the job was performed."_s}),
         u"Different Owner"_s);
}
