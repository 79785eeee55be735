#include "invariants/references.h"

#include <algorithm>
#include <vector>

#include "core/store/jet.h"
#include "core/store/schema.h"
#include "invariants/file_rows.h"

using namespace Qt::StringLiterals;

namespace {

struct Reference {
  const char* table;
  const char* column;
  const char* to;
};

constexpr Reference kReferences[] = {
    {"tblComponents", "ModelID", "tblModels"},
    {"tblComponents", "TypeID", "tblComponentTypes"},
    {"tblComponents", "OwnerID", "tblPeople"},
    {"tblComponents", "RigID", "tblRig"},
    {"tblSBhx", "ReportID", "TblGearReports"},
    {"tblSBhx", "CompID", "tblComponents"},
    {"tblPhotos", "ComponentID", "tblComponents"},
    {"tblPhotos", "rigID", "tblRig"},
    {"TblGearReports", "TypeID", "tblComponentTypes"},
    {"TblGearReports", "ModelID", "tblModels"},
    {"tblJobComponents", "JobID", "tblJobs"},
    {"tblJobComponents", "ComponentID", "tblComponents"},
    {"tblJobs", "CustomerID", "tblPeople"},
    {"tblJobs", "SystemID", "tblRig"},
    {"tblJobs", "LocationID", "tblLocation"},
    {"tblJobs", "RiggerID", "tblPeople"},
    {"tblJobs", "ComponentID", "tblComponents"},
    {"tblMisc", "UserID", "tblPeople"},
    {"tblMisc", "DefaultRigTypeID", "tblRigTypes"},
    {"tblMisc", "LastSystemID", "tblRig"},
    {"tblMisc", "LastJobID", "tblJobs"},
    {"tblMisc", "LastCustomerID", "tblPeople"},
    {"tblMisc", "LastComponentID", "tblComponents"},
    {"tblMisc", "DefaultRiggerID", "tblPeople"},
    {"tblModels", "ManfID", "tblManufacturers"},
    {"tblModels", "TypeID", "tblComponentTypes"},
    {"tblMoney", "CustomerID", "tblPeople"},
    {"tblMoney", "JobID", "tblJobs"},
    {"tblTaskLibComponentTypes", "TaskLibID", "tblTaskLib"},
    {"tblTaskLibComponentTypes", "ComponentTypeID", "tblComponentTypes"},
    {"tblRepackByModel", "ModelID", "tblModels"},
    {"tblRepackByType", "TypeID", "tblRigTypes"},
    {"tblRig", "OwnerID", "tblPeople"},
    {"tblRig", "TypeID", "tblRigTypes"},
    {"tblRigTypeComponents", "RigTypeID", "tblRigTypes"},
    {"tblRigTypeComponents", "ComponentTypeID", "tblComponentTypes"},
    {"tblSchedules", "rigID", "tblRig"},
    {"tblSchedules", "TaskLibID", "tblTaskLib"},
    {"tblSchedules", "TaskID", "tblTasks"},
    {"tblSchedules", "ComponentID", "tblComponents"},
    {"tblTaskComponents", "TaskID", "tblTasks"},
    {"tblTaskComponents", "CompID", "tblComponents"},
    {"tblTaskLib", "ModelID", "tblModels"},
    {"tblTaskLibParts", "TaskLibID", "tblTaskLib"},
    {"tblTaskLibParts", "PartID", "tblModels"},
    {"tblTasks", "JobID", "tblJobs"},
    {"tblTasks", "CustomerID", "tblPeople"},
    {"tblTasks", "RiggerID", "tblPeople"},
    {"tblTasks", "TaskLibID", "tblTaskLib"},
    {"tblTasks", "SystemID", "tblRig"},
    {"tblTasks", "PartID", "tblModels"},
    {"tblTasks", "LocationID", "tblLocation"},
    {"tblTaskLibRigType", "TaskLibID", "tblTaskLib"},
    {"tblTaskLibRigType", "RigType", "tblRigTypes"},
};

struct MayDangle {
  const char* columns;  // between blanks
  const char* why;
};

constexpr MayDangle kMayDangle[] = {
    {"tblMisc.LastSystemID tblMisc.LastJobID tblMisc.LastCustomerID tblMisc.LastComponentID",
     "only remember what was shown last"},
    {"tblTasks.PartID", "a line keeps the name and price of its part"},
    {"tblTaskLibParts.PartID", "a task of the library drops a part that has gone when it is used"},
    {"tblRepackByModel.ModelID tblTaskLib.ModelID", "a model goes with no further cleaning"},
    {"tblComponents.RigID tblJobs.SystemID tblTasks.SystemID tblSchedules.rigID",
     "a rig's components stay, and go on pointing at it; so do its jobs and all that is due but the repack"},
    {"tblJobs.LocationID tblTasks.LocationID", "jobs keep the place where they were done"},
    {"tblJobs.RiggerID tblTasks.RiggerID", "work stays that of its rigger, who then reads (none)"},
    {"tblMisc.DefaultRiggerID tblMisc.UserID", "repaired when it is read"},
    {"tblRigTypeComponents.RigTypeID", "ignored: a new rig type gets a fresh id"},
};

/// Components go with their model, with no further cleaning of rigs or schedules; deleted alone they leave nothing.
constexpr MayDangle kOnceAModelHasGone[] = {
    {"tblJobs.ComponentID tblJobComponents.ComponentID tblTaskComponents.CompID tblSchedules.ComponentID",
     "a model's components go with no further cleaning"}};

bool AModelHasGone() {
  return ReadRows("SELECT 1 FROM sqlite_sequence WHERE name = 'tblModels' AND seq > (SELECT count(*) FROM tblModels)")
      .contains(u"1"_s);
}

template <size_t N>
void LeaveOut(const MayDangle (&excuses)[N], QStringList& lost) {
  for (const MayDangle& excuse : excuses) {
    const QStringList columns = QString::fromLatin1(excuse.columns).split(u' ');
    lost.removeIf([&](const QString& row) { return columns.contains(row.section(u' ', 0, 0)); });
  }
}

/// Ids begin at 1: 0 is none, and what is below stands for something else.
QByteArray LostRows() {
  QByteArrayList parts;
  for (const Reference& reference : kReferences) {
    const QByteArray column = reference.column;
    parts << "SELECT '" + QByteArray(reference.table) + '.' + column + " of ' || a.rowid || ' points to ' || a." +
                 column + " || ' of " + reference.to + ", which is gone' FROM " + reference.table + " a WHERE a." +
                 column + " > 0 AND NOT EXISTS (SELECT 1 FROM " + reference.to + " b WHERE b.ID = a." + column + ')';
  }
  return parts.join(" UNION ALL ");
}

bool IsListed(const Column& column) {
  return std::any_of(std::begin(kReferences), std::end(kReferences), [&](const Reference& reference) {
    return column.table == QLatin1StringView(reference.table) && column.name == QLatin1StringView(reference.column);
  });
}

}  // namespace

QStringList LostReferences() {
  static const QByteArray statement = LostRows();
  QStringList lost = ReadRows(statement);
  if (lost.isEmpty()) return {};
  LeaveOut(kMayDangle, lost);
  if (!lost.isEmpty() && AModelHasGone()) LeaveOut(kOnceAModelHasGone, lost);
  return lost;
}

QStringList UnlistedReferences() {
  QStringList unlisted;
  for (const SchemaTable& table : Schema()) {
    for (const Column& column : table.columns) {
      const bool isOwn = column.name == table.key.name && table.autoIncrement;
      if (column.name.endsWith(u"ID") && column.name != u"ID" && !isOwn && !IsListed(column))
        unlisted << column.InTable();
    }
  }
  return unlisted;
}
