#pragma once
#include <QString>

/// The texts of a history's lines, and of the gear that it is viewed of.

/// Model, sub type and serial number: "Optimum 143 s/n O143-1038".
QString HistoryComponentText(int component);
/// The rig's name; "(no rig)" for 0 and for one that has gone.
QString HistoryRigText(int rig);
/// What stands behind the name of a task: " *" without a job, else nothing for an event, else " (incomplete)" as long
/// as it is not complete.
QString HistorySuffix(bool complete, bool isEvent, int job);

/// A component as the frame beside the history shows it.
struct HistoryComponent {
  QString name = {};
  QString maker = {};
  QString serial = {};  ///< or "(not entered)"
  QString dom = {};     ///< "mm/dd/yyyy" or "(not entered)"
};
/// Empty texts for no component.
HistoryComponent HistoryComponentOf(int component);

/// Who owns a component, and the rig it is in.
struct HistoryOwners {
  QString owner;
  QString rig;
  QString rigOwner;  ///< "(rig is owned by Ann Jones)"; empty unless another person is known to own the rig
};
HistoryOwners HistoryOwnersOf(int component);

// What the explain buttons and the help tell.
void ExplainOtherRigs();
void ExplainCurrentComponents();
void ExplainDuplicates();
void ExplainHistory();
