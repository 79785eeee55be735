#pragma once
#include "history/history.h"
#include "jobs/sample_job.h"

/// The sample rig after some work: a repack on a job, an AAD check without one, an event, a custom task on a job.
struct SampleHistory : SampleJob {
  /// A line of work with its dates; complete where `done` is a date.
  struct Work {
    int entry = 0;
    int job = 0;
    int onRig = 0;
    Date started = {};
    Date done = {};
    bool isEvent = false;
    const char* name = "Work";
  };
  int AddWork(const Work& work, const QList<int>& components) const {
    const bool complete = !work.done.IsNone();
    const int id = loft.Add("tblTasks", {{"JobID", work.job},
                                         {"TaskLibID", work.entry},
                                         {"SystemID", work.onRig},
                                         {"PartID", 0},
                                         {"TaskName", work.name},
                                         {"Comments", " "},
                                         {"Status", complete ? -1 : 0},
                                         {"IsEvent", work.isEvent},
                                         {"DateTaskStarted", work.started},
                                         {"DateTaskCompleted", work.done}});
    for (int component : components)
      loft.Add("tblTaskComponents", {{"TaskID", id}, {"CompID", component}, {"Complete", complete}});
    return id;
  }
  /// A completed repack of the sample rig, without a job.
  int AddRepackWork(Date done) const {
    return AddWork({.entry = RepackTaskLibID, .onRig = rig, .started = done, .done = done, .name = "Repack"},
                   {container, reserve});
  }
  /// All that a rig's own type can have.
  static QList<int> AllTypes() { return {kContainer, kMainCanopy, kReserveCanopy, kAad}; }
};

/// "component|rig|task|date", one to a line.
inline QStringList Told(const QList<HistoryLine>& lines) {
  QStringList told;
  for (const HistoryLine& line : lines)
    told << line.component + u'|' + line.rig + u'|' + line.task + u'|' +
                (line.date.IsNone() ? QString() : Value(line.date).ToText());
  return told;
}
