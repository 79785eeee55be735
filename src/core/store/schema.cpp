#include "core/store/schema.h"

#include <iterator>
#include <optional>

#include "core/stand_by.h"
#include "core/store/connection.h"
#include "core/store/database.h"
#include "core/store/operation.h"

using namespace Qt::StringLiterals;
using namespace jet;

const std::vector<SchemaTable>& Schema() {
  static const std::vector<SchemaTable> tables = {
      {tblComponents::kTable,
       tblComponents::ID,
       true,
       {tblComponents::ID, tblComponents::ModelID, tblComponents::TypeID, tblComponents::DOM, tblComponents::SubType,
        tblComponents::Comment, tblComponents::OwnerID, tblComponents::Color, tblComponents::Grounded,
        tblComponents::NumJumps, tblComponents::SerialNumber, tblComponents::RigID, tblComponents::Price,
        tblComponents::PhotoName}},
      {tblComponentTypes::kTable, tblComponentTypes::ID, true, {tblComponentTypes::Name, tblComponentTypes::ID}},
      {tblSBhx::kTable,
       tblSBhx::ReportID,
       false,
       {tblSBhx::ReportID, tblSBhx::CompID, tblSBhx::Comments, tblSBhx::DateDone}},
      {tblPhotos::kTable,
       tblPhotos::ID,
       true,
       {tblPhotos::ID, tblPhotos::PhotoFile, tblPhotos::ComponentID, tblPhotos::rigID}},
      {TblGearReports::kTable,
       TblGearReports::ID,
       true,
       {TblGearReports::ID, TblGearReports::Name, TblGearReports::TypeID, TblGearReports::AllModels,
        TblGearReports::snStart, TblGearReports::snEnd, TblGearReports::domStart, TblGearReports::domEnd,
        TblGearReports::ModelID, TblGearReports::IsServiceBulletin, TblGearReports::ReportDate,
        TblGearReports::Comments}},
      {tblJobComponents::kTable,
       tblJobComponents::JobID,
       false,
       {tblJobComponents::JobID, tblJobComponents::ComponentID}},
      {tblJobs::kTable,
       tblJobs::ID,
       true,
       {tblJobs::ID, tblJobs::JobTitle, tblJobs::InvoiceNumber, tblJobs::DateBilled, tblJobs::DatePaid,
        tblJobs::CustomerID, tblJobs::JobStatus, tblJobs::JobPaymentStatus, tblJobs::Comments, tblJobs::DateStarted,
        tblJobs::DatePromised, tblJobs::DateCompleted, tblJobs::SystemID, tblJobs::LocationID, tblJobs::RiggerID,
        tblJobs::ComponentID}},
      {tblLocation::kTable,
       tblLocation::ID,
       true,
       {tblLocation::ID, tblLocation::Default, tblLocation::Location, tblLocation::City, tblLocation::State,
        tblLocation::TaxRate}},
      {tblManufacturers::kTable, tblManufacturers::ID, false, {tblManufacturers::ID, tblManufacturers::Name}},
      {tblMisc::kTable,
       tblMisc::HidePhotos,
       false,
       {tblMisc::HidePhotos, tblMisc::LastBackupDate, tblMisc::UserID, tblMisc::RepackCycle, tblMisc::DefaultRigTypeID,
        tblMisc::LastSystemID, tblMisc::LastJobID, tblMisc::LastCustomerID, tblMisc::LastComponentID,
        tblMisc::UploadAlias, tblMisc::DefaultRiggerID, tblMisc::DefaultPhotoSize}},
      {tblModels::kTable,
       tblModels::ID,
       true,
       {tblModels::ID, tblModels::ManfID, tblModels::TypeID, tblModels::Price, tblModels::Name,
        tblModels::ServiceLife}},
      {tblMoney::kTable,
       tblMoney::ID,
       true,
       {tblMoney::ID, tblMoney::mDate, tblMoney::CustomerID, tblMoney::JobID, tblMoney::Amount, tblMoney::pType,
        tblMoney::TransType}},
      {tblPeople::kTable,
       tblPeople::ID,
       true,
       {tblPeople::ID, tblPeople::OrgName, tblPeople::lastname, tblPeople::firstname, tblPeople::phonehome,
        tblPeople::phonecell, tblPeople::phoneother, tblPeople::email1, tblPeople::email2, tblPeople::address1,
        tblPeople::address2, tblPeople::city, tblPeople::state, tblPeople::zip, tblPeople::country, tblPeople::comment,
        tblPeople::rigger, tblPeople::PhotoName}},
      {tblTaskLibComponentTypes::kTable,
       tblTaskLibComponentTypes::TaskLibID,
       false,
       {tblTaskLibComponentTypes::TaskLibID, tblTaskLibComponentTypes::ComponentTypeID}},
      {tblRepackByModel::kTable,
       tblRepackByModel::ModelID,
       false,
       {tblRepackByModel::ModelID, tblRepackByModel::Price}},
      {tblRepackByType::kTable, tblRepackByType::TypeID, false, {tblRepackByType::TypeID, tblRepackByType::Price}},
      {tblRig::kTable,
       tblRig::ID,
       true,
       {tblRig::ID, tblRig::OwnerID, tblRig::TypeID, tblRig::rigAlias, tblRig::Comment}},
      {tblRigTypeComponents::kTable,
       tblRigTypeComponents::RigTypeID,
       false,
       {tblRigTypeComponents::RigTypeID, tblRigTypeComponents::ComponentTypeID}},
      {tblRigTypes::kTable,
       tblRigTypes::ID,
       true,
       {tblRigTypes::Name, tblRigTypes::ReserveLocation, tblRigTypes::ID, tblRigTypes::Req}},
      {tblSchedules::kTable,
       tblSchedules::ID,
       true,
       {tblSchedules::ID, tblSchedules::rigID, tblSchedules::TaskLibID, tblSchedules::DateDone, tblSchedules::DateDue,
        tblSchedules::TaskID, tblSchedules::ComponentID}},
      {tblTaskComponents::kTable,
       tblTaskComponents::TaskID,
       false,
       {tblTaskComponents::TaskID, tblTaskComponents::CompID, tblTaskComponents::Complete}},
      {tblTaskLib::kTable,
       tblTaskLib::ID,
       true,
       {tblTaskLib::ID, tblTaskLib::Flatrate, tblTaskLib::HourlyRate, tblTaskLib::Logbook, tblTaskLib::AllowMultiple,
        tblTaskLib::Name, tblTaskLib::IntervalType, tblTaskLib::ModelID, tblTaskLib::IntervalNumber,
        tblTaskLib::IsEvent, tblTaskLib::IsRigTypeSpecific}},
      {tblTaskLibParts::kTable,
       tblTaskLibParts::TaskLibID,
       false,
       {tblTaskLibParts::TaskLibID, tblTaskLibParts::PartID}},
      {tblTasks::kTable,
       tblTasks::ID,
       true,
       {tblTasks::JobID, tblTasks::ID, tblTasks::CustomerID, tblTasks::RiggerID, tblTasks::FlatRate,
        tblTasks::HourlyRate, tblTasks::Tax, tblTasks::NumHours, tblTasks::Comments, tblTasks::DateTaskCompleted,
        tblTasks::TaskLibID, tblTasks::LogBook, tblTasks::Status, tblTasks::DateTaskStarted, tblTasks::TaskName,
        tblTasks::SystemID, tblTasks::PartID, tblTasks::IsEvent, tblTasks::LocationID}},
      {tblTaskLibRigType::kTable,
       tblTaskLibRigType::TaskLibID,
       false,
       {tblTaskLibRigType::TaskLibID, tblTaskLibRigType::RigType}},
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
  Column first;  // the one most often asked for alone
  std::optional<Column> second = {};
};
const Index kIndexes[] = {
    {tblComponents::RigID},
    {tblComponents::OwnerID},
    {tblComponents::ModelID},
    {tblComponents::TypeID},
    {tblPhotos::ComponentID},
    {tblJobComponents::JobID},
    {tblJobComponents::ComponentID},
    {tblJobs::CustomerID},
    {tblJobs::SystemID},
    {tblManufacturers::ID},
    {tblModels::TypeID},
    {tblRig::OwnerID},
    {tblRig::TypeID},
    {tblRigTypeComponents::RigTypeID},
    {tblSBhx::ReportID},
    {tblSchedules::rigID},
    {tblSchedules::ComponentID},
    {tblSchedules::TaskID},
    {tblTaskComponents::TaskID},
    {tblTaskComponents::CompID},
    {tblTaskLibComponentTypes::TaskLibID},
    {tblTaskLibParts::TaskLibID},
    {tblTaskLibRigType::TaskLibID},
    {tblTasks::JobID},
    {tblTasks::SystemID, tblTasks::TaskLibID},
    {tblTasks::TaskLibID},
    {tblTasks::CustomerID},
};

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
  for (const auto& [first, second] : kIndexes) {
    QStringList columns{first};
    if (second) columns << *second;
    database.ChangeSchema(u"CREATE INDEX IF NOT EXISTS [idx_%1_%2] ON [%1] ([%3])"_s
                              .arg(first.table, columns.join(u'_'), columns.join(u"], ["_s))
                              .toUtf8());
  }
  bracket.Close();
}
