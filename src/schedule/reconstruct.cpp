#include "schedule/reconstruct.h"

#include "core/default_rows.h"
#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "schedule/completions.h"
#include "schedule/schedule.h"

using namespace Qt::StringLiterals;

namespace {

struct Entry {
  int taskLibID;
  bool oneComponent;  // its row belongs to the component; otherwise to the rig alone
};

QList<Entry> ScheduledEntries() {
  QList<Entry> entries;
  for (const Recordset& task : Rows(u"Select * from tblTaskLib where IntervalType <> 0 order by ID"_s)) {
    const int id = task[u"ID"].ToInt();
    entries.append({id, GetNumberRecords(u"tblTaskLibComponentTypes"_s, u"TaskLibID"_s, id) == 1});
  }
  return entries;
}

void AddRowsOf(const Recordset& component, const QList<Completion>& completions, const QList<Entry>& entries) {
  const int id = component[u"ID"].ToInt();
  const bool isReserve = component[u"TypeID"].ToInt() == kReserveCanopy;
  for (const Entry& entry : entries) {
    if (isReserve && entry.taskLibID == RepackTaskLibID) continue;  // the container gives the rig's one row
    const Completion latest = LatestOf(completions, entry.taskLibID);
    if (latest.date.IsNone()) continue;
    int scheduleID = 0;
    AddSchedule(component[u"RigID"].ToInt(), entry.taskLibID, latest.taskID, latest.date, entry.oneComponent ? id : 0,
                scheduleID);
  }
}

}  // namespace

void ReconstructSchedules() {
  Operation(u"Sub ReconstructSchedules"_s, [] {
    const QList<Entry> entries = ScheduledEntries();
    DeleteAllRecords(u"tblSchedules"_s, false);
    const QHash<int, QList<Completion>> completions = AllCompletions();
    for (const Recordset& component : Rows(u"Select * from tblComponents order by TypeID"_s)) {
      const auto found = completions.constFind(component[u"ID"].ToInt());
      if (found != completions.constEnd()) AddRowsOf(component, *found, entries);
    }
  });
}

void AuditScheduleTaskLib() {
  int updates = 0;
  const bool written = Operation(u"Sub AuditScheduleTaskLib"_s, [&] {
    for (Recordset& row : Rows(u"Select * from tblSchedules"_s)) {
      const Value entry = GetValueFromTable(u"tblTasks"_s, u"ID"_s, row[u"TaskID"].ToInt(), u"TaskLibID"_s);
      if (entry.IsEmpty() || entry.ToInt() == row[u"TaskLibID"].ToInt()) continue;
      row.Set(u"TaskLibID", entry.ToInt());
      row.Update();
      ++updates;
    }
  });
  if (!written) return;
  QString message = u"%1 updates were performed"_s.arg(updates);
  if (updates == 0) message = u"No changes were needed"_s;
  if (updates == 1) message = u"1 update was performed"_s;
  MsgBox(message, u"Audit complete"_s);
}
