#include "jobs/library_entry.h"

#include "core/format.h"
#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/store/rows.h"
#include "gear/models.h"

using namespace Qt::StringLiterals;

namespace {

/// The ids that a side table ties to an entry; an entry without any has none.
QList<int> TiedIDs(const Column& entry, int taskLibID, const Column& tied) {
  QList<int> ids;
  GetRecordsFromTable(entry, taskLibID, tied, ids);
  ids.removeAll(0);
  return ids;
}

/// Ties these ids to an entry in the place of those before.
void TieIDs(const Table& table, const Column& entry, int taskLibID, const Column& tied, const QList<int>& ids) {
  DeleteRecordsFromTable(entry, taskLibID);
  for (int id : ids) AddRow(table, {{entry, taskLibID}, {tied, id}});
}

void UpdateTaskLibRigTypes(int taskLibID, const QList<int>& rigTypes) {
  TieIDs(tblTaskLibRigType::kTable, tblTaskLibRigType::TaskLibID, taskLibID, tblTaskLibRigType::RigType, rigTypes);
}

void UpdateTaskLibComponentTypes(int taskLibID, const QList<int>& types) {
  TieIDs(tblTaskLibComponentTypes::kTable, tblTaskLibComponentTypes::TaskLibID, taskLibID,
         tblTaskLibComponentTypes::ComponentTypeID, types);
}

/// A new entry's name is in use; `taskLibID` becomes the one that has it when the person wants to see that.
std::optional<EntrySaved> FindDuplicate(const QString& kind, const QString& name, int& taskLibID) {
  if (taskLibID != 0) return std::nullopt;
  const int existing = FindTaskLib(name);
  if (existing == 0) return std::nullopt;
  if (!AskYes(Lines({u"There is already %1 named '%2'"_s.arg(kind == "event"_L1 ? u"an event"_s : u"a task"_s,
                                                             name.trimmed()),
                     u"Would you like to see it?"_s}),
              u"Duplicate %1 name"_s.arg(kind)))
    return EntrySaved::Refused;
  taskLibID = existing;
  return EntrySaved::ShowExisting;
}

bool SavesWithoutComponents(const QString& kind) {
  return !AskYes(
      Lines({u"You didn't select any required components."_s, u"Would you like to select one or more components"_s,
             u"before saving this %1 type?"_s.arg(kind)}),
      u"No Required Components?"_s);
}

bool FailedIntervalAudit(const TaskTypeEntry& entry) {
  if (!entry.scheduled) return false;
  if (entry.unit == kNoInterval) {
    MsgBox(u"You must select an interval type (day, months, years)"_s, u"Interval?"_s);
    return true;
  }
  if (Val(entry.interval) >= 1) return false;
  MsgBox(Lines({u"You must enter a frequency"_s, u"(This task must be peformed every ___ )"_s}), u"Interval?"_s);
  return true;
}

bool FailedRigTypeAudit(const TaskTypeEntry& entry) {
  if (!entry.rigTypeSpecific) return false;
  if (entry.rigTypes.isEmpty()) {
    MsgBox(Lines({u"You must select one or more rig types or uncheck the"_s,
                  u"check box called 'Task is rig specific'"_s}),
           u"No rig types checked"_s);
    return true;
  }
  if (entry.rigTypes.size() < GetNumberRecordsInTable(tblRigTypes::kTable)) return false;
  MsgBox(Lines({u"You have selected every rig type.  If you want to"_s,
                u"have a task available for all rig types, it is best"_s,
                u"to uncheck the check box called 'Task is rig specific'"_s}),
         u"All rig types checked"_s);
  return true;
}

/// Why a task can't be saved as it stands; nothing when it can.
std::optional<EntrySaved> FailedAudit(const TaskTypeEntry& entry, int& taskLibID) {
  if (entry.name.trimmed().isEmpty()) {
    MsgBox(u"Task must have a name"_s, u"No task name"_s);
    return EntrySaved::Refused;
  }
  if (const auto duplicate = FindDuplicate(u"task"_s, entry.name, taskLibID)) return duplicate;
  if (FailedIntervalAudit(entry)) return EntrySaved::Refused;
  if (entry.componentTypes.isEmpty() && !SavesWithoutComponents(u"task"_s)) return EntrySaved::Refused;
  if (FailedRigTypeAudit(entry)) return EntrySaved::Refused;
  return std::nullopt;
}

std::optional<EntrySaved> FailedAudit(const EventTypeEntry& entry, int& taskLibID) {
  if (entry.name.trimmed().isEmpty()) {
    MsgBox(u"Event must have a name"_s, u"No name"_s);
    return EntrySaved::Refused;
  }
  if (const auto duplicate = FindDuplicate(u"event"_s, entry.name, taskLibID)) return duplicate;
  if (entry.componentTypes.isEmpty() && !SavesWithoutComponents(u"event"_s)) return EntrySaved::Refused;
  return std::nullopt;
}

/// Writes one entry, on a new row for id 0. False, after a box, when the row has gone.
bool WriteEntry(int& taskLibID, const RowValues& values) {
  if (taskLibID == 0) {
    taskLibID = AddRow(tblTaskLib::kTable, values);
    return true;
  }
  if (EditRow(tblTaskLib::ID == taskLibID, values)) return true;
  MsgBox(u"You shouldn't be here"_s);
  return false;
}

bool UpdateTaskType(const TaskTypeEntry& entry, int& taskLibID) {
  RowValues values = {{tblTaskLib::Name, entry.name.trimmed()},
                      {tblTaskLib::Flatrate, entry.flatRate},
                      {tblTaskLib::HourlyRate, entry.hourlyRate},
                      {tblTaskLib::ModelID, ModelExists(entry.modelID) ? entry.modelID : 0},
                      {tblTaskLib::Logbook, entry.logBook},
                      {tblTaskLib::AllowMultiple, entry.allowMultiple},
                      {tblTaskLib::IsRigTypeSpecific, entry.rigTypeSpecific},
                      {tblTaskLib::IntervalNumber, entry.scheduled ? Value(Val(entry.interval)).ToInt() : 0},
                      {tblTaskLib::IntervalType, static_cast<int>(entry.scheduled ? entry.unit : kNoInterval)}};
  if (taskLibID == 0) values.Set(tblTaskLib::IsEvent, false);
  if (!WriteEntry(taskLibID, values)) return false;
  UpdateTaskLibRigTypes(taskLibID, entry.rigTypes);
  UpdateTaskLibComponentTypes(taskLibID, entry.componentTypes);
  UpdateTable(tblTasks::LogBook, entry.logBook, tblTasks::TaskLibID, taskLibID);
  TieIDs(tblTaskLibParts::kTable, tblTaskLibParts::TaskLibID, taskLibID, tblTaskLibParts::PartID, entry.parts);
  return true;
}

bool UpdateEventType(const EventTypeEntry& entry, int& taskLibID) {
  const bool written = WriteEntry(taskLibID, {{tblTaskLib::Name, entry.name.trimmed()},
                                              {tblTaskLib::Flatrate, Money()},
                                              {tblTaskLib::HourlyRate, Money()},
                                              {tblTaskLib::IsEvent, true},
                                              {tblTaskLib::AllowMultiple, entry.allowMultiple},
                                              {tblTaskLib::ModelID, 0},
                                              {tblTaskLib::IntervalNumber, 0},
                                              {tblTaskLib::IntervalType, static_cast<int>(kNoInterval)}});
  if (written) UpdateTaskLibComponentTypes(taskLibID, entry.componentTypes);
  return written;
}

/// Saves an entry. A new one's id goes to the caller only when all that belongs to it was written.
template <typename Save>
bool SaveEntry(const QString& routine, int& taskLibID, Save&& save) {
  int id = taskLibID;
  bool saved = false;
  const bool written = Operation(routine, [&] { saved = save(id); }) && saved;
  if (written) taskLibID = id;
  return written;
}

}  // namespace

bool LoadTaskType(int taskLibID, TaskTypeEntry& entry) {
  bool found = false;
  Operation(u"Function LoadTaskType"_s, [&] {
    for (const Recordset& row : Rows(tblTaskLib::ID == taskLibID)) {
      found = true;
      entry = {.name = row[tblTaskLib::Name].ToText(),
               .flatRate = row[tblTaskLib::Flatrate].ToMoney(),
               .hourlyRate = row[tblTaskLib::HourlyRate].ToMoney(),
               .scheduled = row[tblTaskLib::IntervalNumber].ToInt() != 0,
               .unit = static_cast<IntervalUnit>(row[tblTaskLib::IntervalType].ToInt()),
               .allowMultiple = row[tblTaskLib::AllowMultiple].ToBool(),
               .logBook = row[tblTaskLib::Logbook].ToBool(),
               .modelID = row[tblTaskLib::ModelID].ToInt(),
               .rigTypeSpecific = row[tblTaskLib::IsRigTypeSpecific].ToBool()};
      if (entry.scheduled) entry.interval = row[tblTaskLib::IntervalNumber].ToText();
    }
    entry.rigTypes = TiedIDs(tblTaskLibRigType::TaskLibID, taskLibID, tblTaskLibRigType::RigType);
    entry.componentTypes = RequiredComponentTypes(taskLibID);
    entry.parts = TiedIDs(tblTaskLibParts::TaskLibID, taskLibID, tblTaskLibParts::PartID);
  });
  return found;
}

bool LoadEventType(int taskLibID, EventTypeEntry& entry) {
  bool found = false;
  Operation(u"Function LoadEventType"_s, [&] {
    found = TaskLibExists(taskLibID);
    if (found) entry = {TaskLibName(taskLibID), TaskLibAllowMultiple(taskLibID), RequiredComponentTypes(taskLibID)};
  });
  return found;
}

EntrySaved SaveTaskType(const TaskTypeEntry& entry, int& taskLibID) {
  if (const auto failed = FailedAudit(entry, taskLibID)) return *failed;
  const bool isNew = taskLibID == 0;
  if (!WriteTaskType(entry, taskLibID)) return EntrySaved::Refused;
  MsgBox(isNew ? u"Task saved to task library"_s : u"Task type updated"_s, u"Done"_s);
  return EntrySaved::Saved;
}

bool WriteTaskType(const TaskTypeEntry& entry, int& taskLibID) {
  return SaveEntry(u"Sub UpdateTaskType"_s, taskLibID, [&](int& id) { return UpdateTaskType(entry, id); });
}

EntrySaved SaveEventType(const EventTypeEntry& entry, int& taskLibID) {
  if (const auto failed = FailedAudit(entry, taskLibID)) return *failed;
  const bool isNew = taskLibID == 0;
  if (!SaveEntry(u"Sub UpdateEventType"_s, taskLibID, [&](int& id) { return UpdateEventType(entry, id); }))
    return EntrySaved::Refused;
  MsgBox(isNew ? u"Event saved to event library"_s : u"Event library updated"_s, u"Done"_s);
  return EntrySaved::Saved;
}

int SaveCustomEventToLib(const QString& desc, const QList<int>& CompsReq, bool AllowMultiple) {
  int id = 0;
  SaveEntry(u"Sub SaveCustomEventToLib"_s, id, [&](int& newID) {
    if (!UpdateEventType({.name = desc, .allowMultiple = AllowMultiple}, newID)) return false;
    for (int type : CompsReq) AddNewRecordToTblTaskLibComponentTypes(type, newID);
    return true;
  });
  return id;
}

void AddNewRecordToTblTaskLibComponentTypes(int MyType, int TaskLibID) {
  AddRow(tblTaskLibComponentTypes::kTable,
         {{tblTaskLibComponentTypes::TaskLibID, TaskLibID}, {tblTaskLibComponentTypes::ComponentTypeID, MyType}});
}

IdList LoadTasksByComponentType(int componentType, bool events) {
  IdList entries;
  Operation(u"Function LoadTasksByComponentType"_s, [&] {
    for (const Recordset& row : Rows(tblTaskLibComponentTypes::ComponentTypeID == componentType)) {
      const int id = row[tblTaskLibComponentTypes::TaskLibID].ToInt();
      if (TaskLibExists(id) && TaskLibIsEvent(id) == events) entries.Add(TaskLibName(id), id);
    }
  });
  return entries;
}

void SaveInstallRemovePrice(int taskLibID, Money price) {
  if (price == TaskLibFlatRate(taskLibID)) return;
  if (Operation(u"Sub DoInstallRemove"_s, [&] { UpdateTable(tblTaskLib::Flatrate, price, tblTaskLib::ID, taskLibID); }))
    MsgBox(u"Price updated"_s);
}
