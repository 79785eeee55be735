#include "core/store/schema.h"

#include <iterator>

#include "core/stand_by.h"
#include "core/store/connection.h"
#include "core/store/database.h"
#include "core/store/operation.h"

using namespace Qt::StringLiterals;
using namespace jet;

const std::vector<SchemaTable>& Schema() {
  static const std::vector<SchemaTable> tables = {
      {"tblComponents",
       {"ID", kInt32},
       true,
       {{"ID", kInt32},
        {"ModelID", kInt32},
        {"TypeID", kInt32},
        {"DOM", kDate},
        {"SubType", kText, 50},
        {"Comment", kMemo},
        {"OwnerID", kInt32},
        {"Color", kText, 50},
        {"Grounded", kBool},
        {"NumJumps", kInt32},
        {"SerialNumber", kText, 50},
        {"RigID", kInt32},
        {"Price", kMoney},
        {"PhotoName", kText, 20}}},
      {"tblComponentTypes", {"ID", kInt32}, true, {{"Name", kText, 50}, {"ID", kInt32}}},
      {"tblSBhx",
       {"ReportID", kInt32},
       false,
       {{"ReportID", kInt32}, {"CompID", kInt32}, {"Comments", kMemo}, {"DateDone", kDate}}},
      {"tblPhotos",
       {"ID", kInt32},
       true,
       {{"ID", kInt32}, {"PhotoFile", kText, 20}, {"ComponentID", kInt32}, {"rigID", kInt32}}},
      {"TblGearReports",
       {"ID", kInt32},
       true,
       {{"ID", kInt32},
        {"Name", kText, 50},
        {"TypeID", kInt32},
        {"AllModels", kBool},
        {"snStart", kDouble},
        {"snEnd", kDouble},
        {"domStart", kDate},
        {"domEnd", kDate},
        {"ModelID", kInt32},
        {"IsServiceBulletin", kBool},
        {"ReportDate", kDate},
        {"Comments", kMemo}}},
      {"tblJobComponents", {"JobID", kInt32}, false, {{"JobID", kInt32}, {"ComponentID", kInt32}}},
      {"tblJobs",
       {"ID", kInt32},
       true,
       {{"ID", kInt32},
        {"JobTitle", kText, 50},
        {"InvoiceNumber", kText, 50},
        {"DateBilled", kDate},
        {"DatePaid", kDate},
        {"CustomerID", kInt32},
        {"JobStatus", kInt32},
        {"JobPaymentStatus", kInt32},
        {"Comments", kMemo},
        {"DateStarted", kDate},
        {"DatePromised", kDate},
        {"DateCompleted", kDate},
        {"SystemID", kInt32},
        {"LocationID", kInt32},
        {"RiggerID", kInt32},
        {"ComponentID", kInt32}}},
      {"tblLocation",
       {"ID", kInt32},
       true,
       {{"ID", kInt32},
        {"Default", kBool},
        {"Location", kText, 50},
        {"City", kText, 50},
        {"State", kText, 5},
        {"TaxRate", kDouble}}},
      {"tblManufacturers", {"ID", kInt32}, false, {{"ID", kInt32}, {"Name", kText, 50}}},
      {"tblMisc",
       {"HidePhotos", kBool},
       false,
       {{"HidePhotos", kBool},
        {"LastBackupDate", kDate},
        {"UserID", kInt32},
        {"RepackCycle", kInt16},
        {"DefaultRigTypeID", kInt32},
        {"LastSystemID", kInt32},
        {"LastJobID", kInt32},
        {"LastCustomerID", kInt32},
        {"LastComponentID", kInt32},
        {"UploadAlias", kText, 50},
        {"DefaultRiggerID", kInt32},
        {"DefaultPhotoSize", kInt32}}},
      {"tblModels",
       {"ID", kInt32},
       true,
       {{"ID", kInt32},
        {"ManfID", kInt32},
        {"TypeID", kInt32},
        {"Price", kMoney},
        {"Name", kText},
        {"ServiceLife", kInt32}}},
      {"tblMoney",
       {"ID", kInt32},
       true,
       {{"ID", kInt32},
        {"mDate", kDate},
        {"CustomerID", kInt32},
        {"JobID", kInt32},
        {"Amount", kMoney},
        {"pType", kInt32},
        {"TransType", kInt32}}},
      {"tblPeople",
       {"ID", kInt32},
       true,
       {{"ID", kInt32},
        {"OrgName", kText, 50},
        {"lastname", kText, 50},
        {"firstname", kText, 50},
        {"phonehome", kText, 50},
        {"phonecell", kText, 50},
        {"phoneother", kText, 50},
        {"email1", kText, 50},
        {"email2", kText, 50},
        {"address1", kText, 50},
        {"address2", kText, 50},
        {"city", kText, 50},
        {"state", kText, 5},
        {"zip", kText, 15},
        {"country", kText, 50},
        {"comment", kMemo},
        {"rigger", kBool},
        {"PhotoName", kText, 20}}},
      {"tblTaskLibComponentTypes", {"TaskLibID", kInt32}, false, {{"TaskLibID", kInt32}, {"ComponentTypeID", kInt32}}},
      {"tblRepackByModel", {"ModelID", kInt32}, false, {{"ModelID", kInt32}, {"Price", kMoney}}},
      {"tblRepackByType", {"TypeID", kInt32}, false, {{"TypeID", kInt32}, {"Price", kMoney}}},
      {"tblRig",
       {"ID", kInt32},
       true,
       {{"ID", kInt32}, {"OwnerID", kInt32}, {"TypeID", kInt32}, {"rigAlias", kText}, {"Comment", kMemo}}},
      {"tblRigTypeComponents", {"RigTypeID", kInt32}, false, {{"RigTypeID", kInt32}, {"ComponentTypeID", kInt32}}},
      {"tblRigTypes",
       {"ID", kInt32},
       true,
       {{"Name", kText}, {"ReserveLocation", kInt16}, {"ID", kInt32}, {"Req", kInt32}}},
      {"tblSchedules",
       {"ID", kInt32},
       true,
       {{"ID", kInt32},
        {"rigID", kInt32},
        {"TaskLibID", kInt32},
        {"DateDone", kDate},
        {"DateDue", kDate},
        {"TaskID", kInt32},
        {"ComponentID", kInt32}}},
      {"tblTaskComponents", {"TaskID", kInt32}, false, {{"TaskID", kInt32}, {"CompID", kInt32}, {"Complete", kBool}}},
      {"tblTaskLib",
       {"ID", kInt32},
       true,
       {{"ID", kInt32},
        {"Flatrate", kMoney},
        {"HourlyRate", kMoney},
        {"Logbook", kBool},
        {"AllowMultiple", kBool},
        {"Name", kText},
        {"IntervalType", kInt16},
        {"ModelID", kInt32},
        {"IntervalNumber", kInt32},
        {"IsEvent", kBool},
        {"IsRigTypeSpecific", kBool}}},
      {"tblTaskLibParts", {"TaskLibID", kInt32}, false, {{"TaskLibID", kInt32}, {"PartID", kInt32}}},
      {"tblTasks",
       {"ID", kInt32},
       true,
       {{"JobID", kInt32},
        {"ID", kInt32},
        {"CustomerID", kInt32},
        {"RiggerID", kInt32},
        {"FlatRate", kMoney},
        {"HourlyRate", kMoney},
        {"Tax", kMoney},
        {"NumHours", kSingle},
        {"Comments", kMemo},
        {"DateTaskCompleted", kDate},
        {"TaskLibID", kInt32},
        {"LogBook", kBool},
        {"Status", kInt16},
        {"DateTaskStarted", kDate},
        {"TaskName", kText},
        {"SystemID", kInt32},
        {"PartID", kInt32},
        {"IsEvent", kBool},
        {"LocationID", kInt32}}},
      {"tblTaskLibRigType", {"TaskLibID", kInt32}, false, {{"TaskLibID", kInt32}, {"RigType", kInt32}}},
  };
  return tables;
}

namespace {

QByteArray ColumnText(const QString& field, int type, int size) {
  QByteArray column = '[' + field.toUtf8() + "] " + DeclaredType(type, size).toUtf8();
  const int limit = FieldFromDeclared(field, DeclaredType(type, size)).size;
  if (type == kText)
    column += " COLLATE NOCASE CHECK(length([" + field.toUtf8() + "]) <= " + QByteArray::number(limit) + ')';
  if (type == kMemo) column += " COLLATE NOCASE";
  return column;
}

struct Index {
  const char* table;
  const char* fields;  // between commas, the first one the one most often asked for alone
};
constexpr Index kIndexes[] = {{"tblComponents", "RigID"},
                              {"tblComponents", "OwnerID"},
                              {"tblComponents", "ModelID"},
                              {"tblComponents", "TypeID"},
                              {"tblPhotos", "ComponentID"},
                              {"tblJobComponents", "JobID"},
                              {"tblJobComponents", "ComponentID"},
                              {"tblJobs", "CustomerID"},
                              {"tblJobs", "SystemID"},
                              {"tblManufacturers", "ID"},
                              {"tblModels", "TypeID"},
                              {"tblRig", "OwnerID"},
                              {"tblRig", "TypeID"},
                              {"tblRigTypeComponents", "RigTypeID"},
                              {"tblSBhx", "ReportID"},
                              {"tblSchedules", "rigID"},
                              {"tblSchedules", "ComponentID"},
                              {"tblSchedules", "TaskID"},
                              {"tblTaskComponents", "TaskID"},
                              {"tblTaskComponents", "CompID"},
                              {"tblTaskLibComponentTypes", "TaskLibID"},
                              {"tblTaskLibParts", "TaskLibID"},
                              {"tblTaskLibRigType", "TaskLibID"},
                              {"tblTasks", "JobID"},
                              {"tblTasks", "SystemID,TaskLibID"},
                              {"tblTasks", "TaskLibID"},
                              {"tblTasks", "CustomerID"}};

}  // namespace

void CreateTable(const QString& table, const QString& field, int type, bool autoIncrement) {
  OperationWith(
      u"Sub CreateTable()"_s,
      [&] {
        ShowStandBy(u"Creating table "_s + table);
        const QByteArray column =
            autoIncrement ? '[' + field.toUtf8() + "] INTEGER PRIMARY KEY AUTOINCREMENT" : ColumnText(field, type, 0);
        OpenDatabase().ChangeSchema("CREATE TABLE [" + table.toUtf8() + "] (" + column + ')');
      },
      [&] {
        return Lines({u"Table: "_s + table, u"Field: "_s + field, u"Type: "_s + QString::number(type)});
      });
}

void AppendField(const QString& table, const QString& field, int type, int size) {
  Bracket bracket;
  OpenDatabase().ChangeSchema("ALTER TABLE [" + table.toUtf8() + "] ADD COLUMN " + ColumnText(field, type, size));
  bracket.Close();
}

void CreateIndexes() {
  Bracket bracket;
  Database& database = OpenDatabase();
  if (database.CountIndexes() >= static_cast<int>(std::size(kIndexes))) {
    bracket.Close();
    return;
  }
  for (const Index& index : kIndexes) {
    const QByteArrayList fields = QByteArray(index.fields).split(',');
    const QByteArray name = QByteArray("idx_") + index.table + '_' + fields.join('_');
    database.ChangeSchema("CREATE INDEX IF NOT EXISTS [" + name + "] ON [" + index.table + "] ([" +
                          fields.join("], [") + "])");
  }
  bracket.Close();
}
