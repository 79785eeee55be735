#include "history/history.h"

#include <QSet>

#include "core/remembered.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "gear/components.h"
#include "history/history_texts.h"

using namespace Qt::StringLiterals;

namespace {

Condition TasksOfRig(int rigID) { return tblTasks::SystemID == rigID; }

/// The components whose lives make up a rig's history, in the order in which they are found.
class ComponentArray {
 public:
  void GetJobComponents(int rigID) {
    for (const Recordset& job : Rows(tblJobs::SystemID == rigID))
      AddAll(Select(tblJobComponents::JobID == job[tblJobs::ID].ToInt()).OrderBy(tblJobComponents::ComponentID),
             tblJobComponents::ComponentID);
  }
  void AddCurrentRigComponentsToArray(int rigID) { AddAll(tblComponents::RigID == rigID, tblComponents::ID); }
  void AddAllRigTaskCompsToArray(int rigID) {
    for (const Recordset& task : Rows(TasksOfRig(rigID)))
      AddAll(tblTaskComponents::TaskID == task[tblTasks::ID].ToInt(), tblTaskComponents::CompID);
  }
  const QList<int>& Components() const { return components_; }

 private:
  void AddAll(const QString& statement, const Column& column) {
    for (const Recordset& row : Rows(statement)) Add2Array(row[column].ToInt());
  }
  void Add2Array(int component) {
    if (component != 0 && !components_.contains(component)) components_ << component;
  }

  QList<int> components_;
};

/// Collects the lines of a history.
class LineCollector {
 public:
  explicit LineCollector(bool hideDuplicates) : hideDuplicates_(hideDuplicates) {}

  /// Adds what was done to a component on the rigs that are wanted.
  template <class WantedRig>
  void AddComponent(int component, WantedRig ShowThisRigID) {
    const QString text = HistoryComponentText(component);
    for (const Recordset& row : Rows(tblTaskComponents::CompID == component)) {
      const int taskID = row[tblTaskComponents::TaskID].ToInt();
      if (!OK2ShowTask(taskID)) continue;
      const Task task = ReadTask(taskID);
      if (!ShowThisRigID(task.rigID)) continue;
      Add(taskID, task, row[tblTaskComponents::Complete].ToBool(), component, text);
    }
  }

  /// Adds a loose task, which counts as complete once it has the date.
  void AddEntryToGrid(int taskID) {
    const Task task = ReadTask(taskID);
    Add(taskID, task, !task.completed.IsNone(), 0, u"n/a"_s);
  }

  QList<HistoryLine> lines;

 private:
  struct Task {
    QString name;
    int jobID = 0;
    int rigID = 0;
    bool isEvent = false;
    Date started;
    Date completed;
  };

  static Task ReadTask(int taskID) {
    Recordset task(tblTasks::ID == taskID);
    if (!RecordsetHasRows(task)) return {};
    return {task[tblTasks::TaskName].ToText(),        task[tblTasks::JobID].ToInt(),
            task[tblTasks::SystemID].ToInt(),         task[tblTasks::IsEvent].ToBool(),
            task[tblTasks::DateTaskStarted].ToDate(), task[tblTasks::DateTaskCompleted].ToDate()};
  }

  bool OK2ShowTask(int taskID) const { return !hideDuplicates_ || !shown_.contains(taskID); }

  void Add(int taskID, const Task& task, bool complete, int component, const QString& componentText) {
    shown_ << taskID;
    lines << HistoryLine{taskID,
                         task.jobID,
                         component,
                         task.rigID,
                         componentText,
                         rigText_(task.rigID),
                         task.name + HistorySuffix(complete, task.isEvent, task.jobID),
                         complete ? task.completed : task.started};
  }

  bool hideDuplicates_;
  QSet<int> shown_;
  Remembered<QString> rigText_{HistoryRigText};
};

/// Adds the lines of each component whose type is wanted.
void HxbyArray(LineCollector& collector, const QList<int>& components, int rigID, const HistoryFilter& filter) {
  const auto ShowThisCompType = [&](int component) { return filter.types.contains(ComponentTypeOf(component)); };
  const auto ShowThisRigID = [&](int taskRig) { return !filter.hideOtherRigs || taskRig == rigID; };
  for (int component : components)
    if (ShowThisCompType(component)) collector.AddComponent(component, ShowThisRigID);
}

void DoLooseTasks(LineCollector& collector, int rigID) {
  for (const Recordset& task : Rows(TasksOfRig(rigID))) {
    const int id = task[tblTasks::ID].ToInt();
    if (GetNumberRecords(tblTaskComponents::TaskID, id) == 0) collector.AddEntryToGrid(id);
  }
}

}  // namespace

QList<HistoryLine> LoadHx3(int rigID, const HistoryFilter& filter) {
  if (rigID == 0) return {};  // gear in no rig has no rig's history
  LineCollector collector(filter.hideDuplicates);
  Operation(u"Sub LoadHx3"_s, [&] {
    ComponentArray found;
    if (!filter.currentCompsOnly) found.GetJobComponents(rigID);
    found.AddCurrentRigComponentsToArray(rigID);
    if (!filter.currentCompsOnly) found.AddAllRigTaskCompsToArray(rigID);
    HxbyArray(collector, found.Components(), rigID, filter);
    DoLooseTasks(collector, rigID);
  });
  return collector.lines;
}

QList<HistoryLine> LoadHx2(const QList<int>& components, bool hideDuplicates) {
  LineCollector collector(hideDuplicates);
  Operation(u"Sub LoadHx2"_s, [&] {
    for (int component : components)
      if (component != 0) collector.AddComponent(component, [](int) { return true; });
  });
  return collector.lines;
}
