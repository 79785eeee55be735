#include "schedule/reconstruct.h"

#include "core/default_rows.h"
#include "core/long_work.h"
#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/store/rows.h"
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
  for (const Recordset& task : Rows(Select(tblTaskLib::IntervalType != 0).OrderBy(tblTaskLib::ID))) {
    const int id = task[tblTaskLib::ID].ToInt();
    entries.append({id, GetNumberRecords(tblTaskLibComponentTypes::TaskLibID, id) == 1});
  }
  return entries;
}

void AddRowsOf(const Recordset& component, const QList<Completion>& completions, const QList<Entry>& entries) {
  const int id = component[tblComponents::ID].ToInt();
  const bool isReserve = component[tblComponents::TypeID].ToInt() == kReserveCanopy;
  for (const Entry& entry : entries) {
    if (isReserve && entry.taskLibID == RepackTaskLibID) continue;  // the container gives the rig's one row
    const Completion latest = LatestOf(completions, entry.taskLibID);
    if (latest.date.IsNone()) continue;
    int scheduleID = 0;
    AddSchedule(component[tblComponents::RigID].ToInt(), entry.taskLibID, latest.taskID, latest.date,
                entry.oneComponent ? id : 0, scheduleID);
  }
}

}  // namespace

void ReconstructSchedules() {
  Operation(u"Sub ReconstructSchedules"_s, [] {
    LongWork work(u"Reconstructing schedules"_s, GetNumberRecordsInTable(tblComponents::kTable));
    const QList<Entry> entries = ScheduledEntries();
    DeleteAllRecords(tblSchedules::kTable, false);
    const QHash<int, QList<Completion>> completions = AllCompletions();
    for (const Recordset& component : Rows(Select(tblComponents::kTable).OrderBy(tblComponents::TypeID))) {
      const auto found = completions.constFind(component[tblComponents::ID].ToInt());
      if (found != completions.constEnd()) AddRowsOf(component, *found, entries);
      work.Step();
    }
  });
}

void AuditScheduleTaskLib() {
  int updates = 0;
  const bool written = Operation(u"Sub AuditScheduleTaskLib"_s, [&] {
    LongWork work(u"Auditing schedule entries"_s, GetNumberRecordsInTable(tblSchedules::kTable));
    for (const Recordset& row : Rows(tblSchedules::kTable)) {
      work.Step();
      const Value entry = GetValueFromTable(tblTasks::ID, row[tblSchedules::TaskID].ToInt(), tblTasks::TaskLibID);
      if (entry.IsEmpty() || entry.ToInt() == row[tblSchedules::TaskLibID].ToInt()) continue;
      EditRow(tblSchedules::ID == row[tblSchedules::ID].ToInt(), {{tblSchedules::TaskLibID, entry.ToInt()}});
      ++updates;
    }
  });
  if (!written) return;
  QString message = u"%1 updates were performed"_s.arg(updates);
  if (updates == 0) message = u"No changes were needed"_s;
  if (updates == 1) message = u"1 update was performed"_s;
  MsgBox(message, u"Audit complete"_s);
}
