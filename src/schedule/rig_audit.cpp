#include "schedule/rig_audit.h"

#include <algorithm>

#include "core/access.h"
#include "core/clock.h"
#include "core/format.h"
#include "core/trap.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/rigs.h"
#include "schedule/completions.h"
#include "schedule/schedule.h"
#include "schedule/service_life.h"
#include "schedule/task_library.h"
#include "schedule/time_left.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kSoonDays = 30;
const QString kUnknown = u"unknown"_s;

QString DateCell(Date date) { return date.IsNone() ? kUnknown : Format(date, u"mm/dd/yyyy"_s); }

bool AppliesToRig(const Recordset& entry, int rigID, const QList<int>& types) {
  const int model = entry[u"ModelID"].ToInt();
  const bool fits = std::all_of(types.cbegin(), types.cend(), [&](int type) {
    const int component = ComponentOfTypeInRig(rigID, type);
    return component != 0 && (model == 0 || ComponentModel(component) == model);
  });
  if (!fits) return false;
  if (!entry[u"IsRigTypeSpecific"].ToBool()) return true;
  return GetNumberRecordsComplex(
             u"Select * from tblTaskLibRigType where TaskLibId = %1 and RigType = %2"_s.arg(entry[u"ID"].ToInt())
                 .arg(RigType(rigID)))
             .ToInt() > 0;
}

RigAuditRow RowOfEntry(const Recordset& entry, int rigID, const QList<int>& types) {
  const int id = entry[u"ID"].ToInt();
  int taskID = 0;
  Date done;
  Date due;
  if (types.size() > 1) {
    done = LastCompletionForRig(rigID, id, taskID);
    due = GetDueDateByRig(rigID, id);
  } else if (const int component = types.isEmpty() ? 0 : ComponentOfTypeInRig(rigID, types.first()); component != 0) {
    done = LastCompletionForComponent(component, id, taskID);
    due = GetDueDateByComponent(component, id);
  }
  const QString name = entry[u"Name"].ToText();
  if (due.IsNone()) return {name, kUnknown, kUnknown, kUnknown, DueMark::None, id};
  return {name, DateCell(done), DateCell(due), TimeLeftText(due), DueMarkOf(due), id};
}

void AppendEntries(QList<RigAuditRow>& rows, int rigID) {
  Recordset entries(u"Select * from tblTaskLib where IntervalNumber <> 0"_s);
  if (!RecordsetHasRows(entries)) return;
  for (; !entries.Eof(); entries.MoveNext()) {
    const QList<int> types = RequiredComponentTypes(entries[u"ID"].ToInt());
    if (AppliesToRig(entries, rigID, types)) rows.append(RowOfEntry(entries, rigID, types));
  }
}

void AppendServiceLives(QList<RigAuditRow>& rows, int rigID) {
  Recordset components(u"Select * from tblComponents where Rigid = %1 order by TypeID"_s.arg(rigID));
  if (!RecordsetHasRows(components)) return;
  for (; !components.Eof(); components.MoveNext()) {
    const int model = components[u"ModelID"].ToInt();
    if (ServiceLife(model) == 0) continue;
    const Date expiry = ServiceLifeExpiry(components[u"ID"].ToInt());
    RigAuditRow row{
        ModelName(model) + u" expiration"_s, {}, DateCell(expiry), kUnknown, DueMark::None, kExpiryRowTaskLibID};
    if (!expiry.IsNone()) {
      row.timeLeft = ExpiryTimeLeftText(expiry);
      row.mark = DueMarkOf(expiry);
    }
    rows.append(row);
  }
}

}  // namespace

DueMark DueMarkOf(Date due) {
  const int days = DaysBetween(Today(), due);
  if (days < 0) return DueMark::Overdue;
  return days >= 1 && days <= kSoonDays ? DueMark::Soon : DueMark::None;
}

QList<RigAuditRow> LoadRigAudit(int rigID) {
  QList<RigAuditRow> rows;
  Trap(u"Sub LoadRigAudit"_s, [&] {
    Bracket bracket;
    AppendEntries(rows, rigID);
    AppendServiceLives(rows, rigID);
    bracket.Close();
  });
  return rows;
}
