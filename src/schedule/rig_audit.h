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
  int taskLibID = 0;
};

/// Yellow for 1 to 30 days left, red with white text once it is over.
DueMark DueMarkOf(Date due);

QList<RigAuditRow> LoadRigAudit(int rigID);
