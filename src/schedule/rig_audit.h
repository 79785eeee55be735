#pragma once
#include <QList>
#include <QString>

#include "core/date.h"

/// What a rig owes now, entry by entry: not what tblSchedules stores, but every scheduled entry that applies to its
/// present gear and type, then the end of each component's service life.

/// How the time-left cell of a row shows.
enum class DueMark { None, Soon, Overdue };

/// Library id of a row that tells a service life.
constexpr int kExpiryRowTaskLibID = -1;

struct RigAuditRow {
  QString name;      ///< of the entry, or the model's name + " expiration"
  QString dateDone;  ///< "mm/dd/yyyy"; "unknown" without a due date, empty in a row of service life
  QString dateDue;   ///< "mm/dd/yyyy" or "unknown"
  QString timeLeft;  ///< or "unknown"
  DueMark mark = DueMark::None;
  int taskLibID = 0;  ///< kExpiryRowTaskLibID in a row of service life
};

/// Yellow for 1 to 30 days left, red with white text once it is over.
DueMark DueMarkOf(Date due);

QList<RigAuditRow> LoadRigAudit(int rigID);

/// The same of one component: the entries that apply to it, those of several component types only while it is in a rig
/// that has them all, then the end of its own service life.
QList<RigAuditRow> LoadComponentAudit(int componentID);
/// Whether anything is known to fall due on a component: rows of the schedule, for a container those of its rig too, or
/// a service life that ends.
bool ComponentHasSchedule(int componentID);
/// Whether work of an entry is done on components of one type alone, and so counts by component.
bool EntryIsOfOneType(int taskLibID);
/// The component that a rig's row of an entry stands for; 0 for an entry of several component types or of none.
int ComponentOfEntry(int rigID, int taskLibID);
