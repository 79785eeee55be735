#pragma once
#include <QString>

#include "history/history.h"

/// Adding to a history and deleting from it, without a job.

/// What a history is viewed of.
enum class HistoryMode : int {
  Rig = 0,        ///< a rig
  Component = 1,  ///< one component
  RigByType = 2   ///< the components of a rig, one type of them at the opening
};
struct HistoryView {
  HistoryMode mode = HistoryMode::Rig;
  int rigID = 0;
  int personID = 0;  ///< the customer shown: the owner of the rig or of the component
  int componentID = 0;
  int componentTypeID = 0;  ///< 0 in a rig's history
};

/// A rig's history; of the rig shown last for 0. With a component type it opens on that type alone.
HistoryView HistoryViewOfRig(int rigID, int componentTypeID = 0);
HistoryView HistoryViewOfComponent(int componentID);

/// Adds a library entry that was done on a day, as a completed line without a job, on the gear that it requires: that
/// of the rig, or the one component that is viewed. The schedule follows. Each refusal shows its box: gear is only
/// installed and removed during a job, the rig must have what the entry requires, and a single component can't take
/// an entry of another type or model. False when nothing was written, as to a rig or component that has gone.
bool AddHistoryEntry(const HistoryView& view, int taskLibID, const QString& dateText);

/// Asks, then deletes an entry that belongs to no job. The schedule goes back to the entry before it. True when it was
/// deleted.
bool DeleteHistoryEntry(const HistoryLine& line);

/// Offers the job of an entry that can be changed only there; true to load it.
bool AskShowJobOfEntry();
/// Offers to edit an entry that has no job.
bool AskEditEntry();
/// Tells when the job was done for another customer than the person shown.
void TellDifferentOwner(int jobID, int personID);
