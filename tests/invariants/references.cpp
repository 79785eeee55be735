#include "invariants/references.h"

#include <algorithm>
#include <vector>

#include "core/store/jet.h"
#include "core/store/schema.h"
#include "core/store/undo.h"
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
  const char* columns;    // between blanks
  const char* operation;  // after which they may; empty for always
  const char* why;
};

constexpr MayDangle kMayDangle[] = {
    {"tblMisc.LastSystemID tblMisc.LastJobID tblMisc.LastCustomerID tblMisc.LastComponentID", "",
     "only remember what was shown last"},
    {"tblTasks.PartID tblTaskLibParts.PartID", "Delete model",
     "a line keeps the name and price of its part; a task of the library drops a part that has gone when it is used"},
    {"tblTasks.PartID tblTaskLibParts.PartID", "Delete part", "the same"},
    {"tblJobs.ComponentID tblJobComponents.ComponentID tblTaskComponents.CompID tblSchedules.ComponentID",
     "Delete model", "the components go with their model, with no further cleaning of rigs or schedules"},
    {"tblRepackByModel.ModelID tblTaskLib.ModelID", "Delete model", "the same"},
    {"tblComponents.RigID tblJobs.SystemID tblTasks.SystemID tblSchedules.rigID", "Delete rig",
     "its components stay, and go on pointing at it; so do its jobs and all that is due but the repack"},
    {"tblJobs.LocationID tblTasks.LocationID", "Delete location", "jobs keep the place where they were done"},
    {"tblJobs.RiggerID tblTasks.RiggerID", "Delete person", "work stays that of its rigger, who then reads (none)"},
    {"tblMisc.DefaultRiggerID tblMisc.UserID", "Delete person", "repaired when it is read"},
    {"tblRigTypeComponents.RigTypeID", "", "ignored: a new rig type gets a fresh id"},
};

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
  QSet<QString> done{QString()};
  for (const RecordedOperation& operation : RecentOperations())
    if (!operation.undone) done << operation.name;
  for (const MayDangle& excuse : kMayDangle) {
    if (!done.contains(QLatin1StringView(excuse.operation))) continue;
    const QStringList columns = QString::fromLatin1(excuse.columns).split(u' ');
    lost.removeIf([&](const QString& row) { return columns.contains(row.section(u' ', 0, 0)); });
  }
  return lost.isEmpty() ? lost : lost << u"after: "_s + QStringList(done.begin(), done.end()).join(u", "_s);
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
