#pragma once
#include <QHash>
#include <QList>

#include "core/date.h"

/// Which completed line of work counts for a rig or a component.

/// The latest completion of a library entry that counts for the rig, with its line; no date and 0 when there is none.
/// A completion counts when it was done on the gear that the rig wears now, see TaskMatchesRig.
Date LastCompletionForRig(int rigID, int taskLibID, int& taskID);

/// The latest completion of a library entry on a component, with its line; no date and 0 when there is none.
Date LastCompletionForComponent(int componentID, int taskLibID, int& taskID);

/// Completed work on a component.
struct Completion {
  int taskLibID = 0;
  int taskID = 0;
  Date date;
};
/// The completions of all components, read at once; by component.
QHash<int, QList<Completion>> AllCompletions();
/// The latest of a library entry among them; without a date when there is none.
Completion LatestOf(const QList<Completion>& completions, int taskLibID);

/// Was this completion done on the gear that the rig wears now? A repack binds container and reserve together: both of
/// the rig's present ones must have been touched by it. Other entries always match.
bool TaskMatchesRig(int taskID, int rigID, int taskLibID);

/// The latest completed repack that touched both a container and a reserve, on whatever rig they were then, with its
/// line; no date and 0 when there is none.
Date LastRepackOfPair(int containerID, int reserveID, int& taskID);
