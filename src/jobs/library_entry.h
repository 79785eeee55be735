#pragma once
#include <QList>
#include <QString>

#include "core/lists.h"
#include "core/money.h"
#include "schedule/task_library.h"

/// What a rigger can do to gear: the tasks and events of the library, as their forms hold and save them.

struct TaskTypeEntry {
  QString name = {};
  Money flatRate = {};
  Money hourlyRate = {};
  bool scheduled = false;
  QString interval = {};  ///< how often, in units, as typed
  IntervalUnit unit = kNoInterval;
  bool allowMultiple = false;  ///< more than once on one job
  bool logBook = false;
  int modelID = 0;  ///< the one model that the task is tied to, 0 for any
  bool rigTypeSpecific = false;
  QList<int> rigTypes = {};
  QList<int> componentTypes = {};
  QList<int> parts = {};
};
/// False when there is no such task.
bool LoadTaskType(int taskLibID, TaskTypeEntry& entry);

struct EventTypeEntry {
  QString name = {};
  bool allowMultiple = false;
  QList<int> componentTypes = {};
};
bool LoadEventType(int taskLibID, EventTypeEntry& entry);

/// How saving an entry ended. `Refused` has told or asked why and changed nothing.
enum class EntrySaved { Refused, Saved, ShowExisting };

/// Audits a task and saves it. `taskLibID` 0 adds it and receives the new id; when its name is in use and the person
/// wants to see that entry, `taskLibID` is that one. The log-book mark goes to all lines made from the task before.
EntrySaved SaveTaskType(const TaskTypeEntry& entry, int& taskLibID);
/// Writes a task as it stands, with no audit and no word; false when its row has gone or the writing failed.
bool WriteTaskType(const TaskTypeEntry& entry, int& taskLibID);
/// Audits an event and saves it, as SaveTaskType does.
EntrySaved SaveEventType(const EventTypeEntry& entry, int& taskLibID);

/// Adds an event that was entered on a job; its id, 0 after a failure.
int SaveCustomEventToLib(const QString& desc, const QList<int>& CompsReq, bool AllowMultiple);
void AddNewRecordToTblTaskLibComponentTypes(int MyType, int TaskLibID);

/// The tasks, or the events, that require a component type.
IdList LoadTasksByComponentType(int componentType, bool events);

/// Writes another price for the installation or the removal of a component, and tells so; nothing for the same price.
void SaveInstallRemovePrice(int taskLibID, Money price);
