#include "schedule/rig_audit.h"

#include <algorithm>

#include "core/clock.h"
#include "core/default_rows.h"
#include "core/format.h"
#include "core/store/access.h"
#include "core/store/operation.h"
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

bool FitsModel(const Recordset& entry, int componentID) {
  const int model = entry[tblTaskLib::ModelID].ToInt();
  return model == 0 || ComponentModel(componentID) == model;
}

bool FitsRigType(const Recordset& entry, int rigID) {
  if (!entry[tblTaskLib::IsRigTypeSpecific].ToBool()) return true;
  return GetNumberRecordsComplex(tblTaskLibRigType::TaskLibID == entry[tblTaskLib::ID].ToInt() &&
                                 tblTaskLibRigType::RigType == RigType(rigID))
             .ToInt() > 0;
}

bool AppliesToRig(const Recordset& entry, int rigID, const QList<int>& types) {
  const bool fits = std::all_of(types.cbegin(), types.cend(), [&](int type) {
    const int component = ComponentOfTypeInRig(rigID, type);
    return component != 0 && FitsModel(entry, component);
  });
  return fits && FitsRigType(entry, rigID);
}

bool AppliesToComponent(const Recordset& entry, int componentID, const QList<int>& types) {
  if (!types.contains(ComponentTypeOf(componentID))) return false;
  const int rigID = ComponentRig(componentID);
  if (types.size() == 1) return FitsModel(entry, componentID) && FitsRigType(entry, rigID);
  return rigID != 0 && AppliesToRig(entry, rigID, types);
}

RigAuditRow RowOf(const Recordset& entry, Date done, Date due) {
  const int id = entry[tblTaskLib::ID].ToInt();
  const QString name = entry[tblTaskLib::Name].ToText();
  if (due.IsNone()) return {name, kUnknown, kUnknown, kUnknown, DueMark::None, id};
  return {name, DateCell(done), DateCell(due), TimeLeftText(due), DueMarkOf(due), id};
}

RigAuditRow RowByRig(const Recordset& entry, int rigID) {
  const int id = entry[tblTaskLib::ID].ToInt();
  int taskID = 0;
  const Date done = LastCompletionForRig(rigID, id, taskID);
  return RowOf(entry, done, GetDueDateByRig(rigID, id));
}

RigAuditRow RowByComponent(const Recordset& entry, int componentID) {
  if (componentID == 0) return RowOf(entry, {}, {});
  const int id = entry[tblTaskLib::ID].ToInt();
  int taskID = 0;
  const Date done = LastCompletionForComponent(componentID, id, taskID);
  return RowOf(entry, done, GetDueDateByComponent(componentID, id));
}

/// Calls a routine with each entry that has an interval, and the component types it requires.
template <class Visit>
void WalkEntries(Visit visit) {
  Recordset entries(tblTaskLib::IntervalNumber != 0);
  if (!RecordsetHasRows(entries)) return;
  for (; !entries.Eof(); entries.MoveNext()) visit(entries, RequiredComponentTypes(entries[tblTaskLib::ID].ToInt()));
}

void AppendServiceLife(QList<RigAuditRow>& rows, int componentID) {
  const int model = ComponentModel(componentID);
  if (ServiceLife(model) == 0) return;
  const Date expiry = ServiceLifeExpiry(componentID);
  RigAuditRow row{
      ModelName(model) + u" expiration"_s, {}, DateCell(expiry), kUnknown, DueMark::None, kExpiryRowTaskLibID};
  if (!expiry.IsNone()) {
    row.timeLeft = ExpiryTimeLeftText(expiry);
    row.mark = DueMarkOf(expiry);
  }
  rows.append(row);
}

void AppendServiceLives(QList<RigAuditRow>& rows, int rigID) {
  Recordset components(Select(tblComponents::RigID == rigID).OrderBy(tblComponents::TypeID));
  if (!RecordsetHasRows(components)) return;
  for (; !components.Eof(); components.MoveNext()) AppendServiceLife(rows, components[tblComponents::ID].ToInt());
}

}  // namespace

DueMark DueMarkOf(Date due) {
  const int days = DaysBetween(Today(), due);
  if (days < 0) return DueMark::Overdue;
  return days >= 1 && days <= kSoonDays ? DueMark::Soon : DueMark::None;
}

QList<RigAuditRow> LoadRigAudit(int rigID) {
  QList<RigAuditRow> rows;
  Operation(u"Sub LoadRigAudit"_s, [&] {
    WalkEntries([&](const Recordset& entry, const QList<int>& types) {
      if (!AppliesToRig(entry, rigID, types)) return;
      const int only = types.size() == 1 ? ComponentOfTypeInRig(rigID, types.first()) : 0;
      rows.append(types.size() > 1 ? RowByRig(entry, rigID) : RowByComponent(entry, only));
    });
    AppendServiceLives(rows, rigID);
  });
  return rows;
}

QList<RigAuditRow> LoadComponentAudit(int componentID) {
  QList<RigAuditRow> rows;
  Operation(u"Sub LoadComponentAudit"_s, [&] {
    WalkEntries([&](const Recordset& entry, const QList<int>& types) {
      if (!AppliesToComponent(entry, componentID, types)) return;
      rows.append(types.size() > 1 ? RowByRig(entry, ComponentRig(componentID)) : RowByComponent(entry, componentID));
    });
    AppendServiceLife(rows, componentID);
  });
  return rows;
}

bool ComponentHasSchedule(int componentID) {
  bool has = false;
  Operation(u"Function ComponentHasSchedule"_s, [&] {
    const int rigID = ComponentTypeOf(componentID) == kContainer ? ComponentRig(componentID) : 0;
    has = GetNumberRecords(tblSchedules::ComponentID, componentID) > 0 ||
          (rigID != 0 && GetNumberRecords(tblSchedules::rigID, rigID) > 0) ||
          ServiceLife(ComponentModel(componentID)) != 0;
  });
  return has;
}

bool EntryIsOfOneType(int taskLibID) { return RequiredComponentTypes(taskLibID).size() == 1; }

int ComponentOfEntry(int rigID, int taskLibID) {
  const QList<int> types = RequiredComponentTypes(taskLibID);
  return types.size() == 1 ? ComponentOfTypeInRig(rigID, types.first()) : 0;
}
