#pragma once
#include <QList>
#include <QString>

#include "core/date.h"

/// What has ever been done to a rig, or to a component. No table holds it: a line is a pair of a task and a component
/// that it touched, so that a task stands on as many lines as it touched components, or a task that touched none.
/// Rigs change their gear: a rig's history tells the whole life of every component that was ever in it.

struct HistoryLine {
  int taskID = 0;
  int jobID = 0;        ///< below 1 for an entry that belongs to no job
  int componentID = 0;  ///< 0 for a loose task, which touched none
  int rigID = 0;        ///< that the task was done on, 0 for none; it may have gone
  QString component;    ///< model, sub type and serial number, or "n/a"
  QString rig;          ///< or "(no rig)"
  QString task;         ///< the name, with " (incomplete)" behind it or, without a job, " *"
  Date date;            ///< completed, or started as long as it is not complete
};

/// Which lines of a rig's history are shown. Loose tasks of the rig always are.
struct HistoryFilter {
  QList<int> types;  ///< of components
  bool hideOtherRigs = false;
  bool currentCompsOnly = false;  ///< components that are in the rig now
  bool hideDuplicates = false;    ///< of a task with several components, the line that is found first
};

/// The history of a rig, component by component, with its loose tasks at the end. First come the components of the
/// rig's jobs, then those that it has now, then what else its tasks have touched.
QList<HistoryLine> LoadHx3(int rigID, const HistoryFilter& filter);

/// The history of single components, whatever rigs they were in; components of 0 are left out.
QList<HistoryLine> LoadHx2(const QList<int>& components, bool hideDuplicates);
