#include "schedule/schedule_list.h"

#include "core/format.h"
#include "core/prompts.h"
#include "core/remembered.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "gear/components.h"
#include "gear/people.h"
#include "gear/rigs.h"
#include "schedule/service_life.h"
#include "schedule/task_library.h"
#include "schedule/time_left.h"

using namespace Qt::StringLiterals;

namespace {

QString CustomerName(int owner) { return PersonExists(owner) ? PersonSortName(owner) : u"none"_s; }

/// "Mirage G4.1, Optimum 143": what a line of work touched.
QString ComponentsOfTask(int taskID) {
  QStringList names;
  for (const Recordset& row : Rows(tblTaskComponents::TaskID == taskID))
    names << ComponentDescription(row[tblTaskComponents::CompID].ToInt()).trimmed();
  return names.join(u", "_s);
}

class Loader {
 public:
  explicit Loader(const ScheduleFilter& filter) : filter_(filter) {}

  QList<ScheduleEntry> Load() {
    Select schedules =
        filter_.taskLibID == 0 ? Select(tblSchedules::kTable) : Select(tblSchedules::TaskLibID == filter_.taskLibID);
    for (const Recordset& row : Rows(schedules.OrderBy(tblSchedules::DateDue))) AddEntry(row);
    if (filter_.taskLibID == 0) DoComponentExpiration();
    return std::move(list_);
  }

 private:
  bool Ok2Load(int owner, int rig) const {
    switch (filter_.whose) {
      case ScheduleFilter::Whose::Customer:
        return owner == filter_.customer;
      case ScheduleFilter::Whose::Rig:
        return rig == filter_.rig;
      default:
        return true;
    }
  }

  void AddEntry(const Recordset& row) {
    ScheduleEntry entry{.id = row[tblSchedules::ID].ToInt(),
                        .done = row[tblSchedules::DateDone].ToDate(),
                        .due = row[tblSchedules::DateDue].ToDate(),
                        .taskLibID = row[tblSchedules::TaskLibID].ToInt(),
                        .rigID = row[tblSchedules::rigID].ToInt(),
                        .taskID = row[tblSchedules::TaskID].ToInt(),
                        .componentID = row[tblSchedules::ComponentID].ToInt()};
    const bool byRig = entry.rigID != 0;
    entry.ownerID = byRig ? rigOwner_(entry.rigID) : ComponentOwner(entry.componentID);
    if (!byRig) entry.rigID = ComponentRig(entry.componentID);
    if (!Ok2Load(entry.ownerID, entry.rigID)) return;
    entry.gear = byRig && rigExists_(entry.rigID) ? rigName_(entry.rigID) + u'/' + ComponentsOfTask(entry.taskID)
                                                  : LoadComponent(entry.componentID);
    entry.customer = customer_(entry.ownerID);
    entry.task = task_(entry.taskLibID);
    entry.dateDone = entry.done.IsNone() ? QString() : Format(entry.done, u"mm/dd/yyyy"_s);
    entry.timeLeft = TimeLeftText(entry.due);
    list_ << entry;
  }

  void DoComponentExpiration() {
    QList<int> models;
    GetArrayOfModelsWithServiceLife(models);
    for (int model : models)
      for (const Recordset& row : Rows(tblComponents::ModelID == model)) AddEnd(row);
  }

  void AddEnd(const Recordset& row) {
    const int component = row[tblComponents::ID].ToInt();
    const int owner = row[tblComponents::OwnerID].ToInt();
    const int rig = row[tblComponents::RigID].ToInt();
    if (!Ok2Load(owner, rig)) return;
    const Date expiry = ServiceLifeExpiry(component);
    if (expiry.IsNone()) return;
    const QString description = ComponentDescription(component).trimmed();
    list_ << ScheduleEntry{
        .id = kServiceLifeRow,
        .customer = customer_(owner),
        .gear = rigExists_(rig) ? description + u'/' + rigName_(rig) : description + u" (not part of a rig)"_s,
        .task = u"End of service life"_s,
        .dateDone = u"Expires on:"_s,
        .done = {},
        .due = expiry,
        .timeLeft = ExpiryTimeLeftText(expiry),
        .taskLibID = kServiceLifeRow,
        .rigID = rig,
        .taskID = kServiceLifeRow,
        .ownerID = owner,
        .componentID = component};
  }

  ScheduleFilter filter_;
  QList<ScheduleEntry> list_;
  Remembered<QString> customer_{CustomerName};
  Remembered<QString> task_{TaskLibName};
  Remembered<QString> rigName_{RigName};
  Remembered<int> rigOwner_{RigOwner};
  Remembered<bool> rigExists_{RigExists};
};

void OfferToDeleteLostRows() {
  for (Recordset& row : Rows(tblSchedules::rigID == 0 && tblSchedules::ComponentID == 0))
    if (AskYes(Lines({u"tblSchedule - rigID = 0 and ComponentID =0"_s, u"found record.  delete it?"_s}), kProgramTitle))
      row.Delete();
}

}  // namespace

QList<ScheduleEntry> LoadSchedule(const ScheduleFilter& filter) {
  QList<ScheduleEntry> list;
  Upkeep(u"Sub LoadSchedule"_s, [&] {
    OfferToDeleteLostRows();
    list = Loader(filter).Load();
  });
  return list;
}

QString LoadComponent(int componentID) {
  const QString description = ComponentDescription(componentID).trimmed();
  const int rig = ComponentRig(componentID);
  return RigExists(rig) ? RigName(rig) + u" / "_s + description : description + u" (not part of a rig)"_s;
}

bool DeleteScheduleEntry(int id, const QString& rigName) {
  if (id == kServiceLifeRow || !AskYes(u"Delete this item from the schedule?"_s, rigName)) return false;
  return Operation(u"Sub DeleteScheduleEntry"_s, [&] { DeleteRecordsFromTable(tblSchedules::ID, id); });
}
