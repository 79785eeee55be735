#pragma once
#include <QString>

#include "core/store/jet.h"

/// The tables of the database and their columns, each named here and nowhere else: `tblTasks::JobID` is a column, and
/// `tblTasks::kTable` the table. Schema (core/store/schema.h) puts them in the order in which an older file is checked.

struct Table {
  QStringView name;
  constexpr operator QStringView() const { return name; }
  operator QString() const { return name.toString(); }
};

struct Column {
  QStringView table;
  QStringView name;
  jet::FieldType type;
  int size = 0;  ///< of a text, 0 for the store's default of 255
  constexpr operator QStringView() const { return name; }
  operator QString() const { return name.toString(); }
  QString InTable() const { return QString(*this).prepend(u'.').prepend(table); }
};

namespace tblComponents {
inline constexpr Table kTable{u"tblComponents"};
inline constexpr Column ID{kTable, u"ID", jet::kInt32};
inline constexpr Column ModelID{kTable, u"ModelID", jet::kInt32};
inline constexpr Column TypeID{kTable, u"TypeID", jet::kInt32};
inline constexpr Column DOM{kTable, u"DOM", jet::kDate};
inline constexpr Column SubType{kTable, u"SubType", jet::kText, 50};
inline constexpr Column Comment{kTable, u"Comment", jet::kMemo};
inline constexpr Column OwnerID{kTable, u"OwnerID", jet::kInt32};
inline constexpr Column Color{kTable, u"Color", jet::kText, 50};
inline constexpr Column Grounded{kTable, u"Grounded", jet::kBool};
inline constexpr Column NumJumps{kTable, u"NumJumps", jet::kInt32};
inline constexpr Column SerialNumber{kTable, u"SerialNumber", jet::kText, 50};
inline constexpr Column RigID{kTable, u"RigID", jet::kInt32};
inline constexpr Column Price{kTable, u"Price", jet::kMoney};
inline constexpr Column PhotoName{kTable, u"PhotoName", jet::kText, 20};
}  // namespace tblComponents

namespace tblComponentTypes {
inline constexpr Table kTable{u"tblComponentTypes"};
inline constexpr Column Name{kTable, u"Name", jet::kText, 50};
inline constexpr Column ID{kTable, u"ID", jet::kInt32};
}  // namespace tblComponentTypes

namespace TblGearReports {
inline constexpr Table kTable{u"TblGearReports"};
inline constexpr Column ID{kTable, u"ID", jet::kInt32};
inline constexpr Column Name{kTable, u"Name", jet::kText, 50};
inline constexpr Column TypeID{kTable, u"TypeID", jet::kInt32};
inline constexpr Column AllModels{kTable, u"AllModels", jet::kBool};
inline constexpr Column snStart{kTable, u"snStart", jet::kDouble};
inline constexpr Column snEnd{kTable, u"snEnd", jet::kDouble};
inline constexpr Column domStart{kTable, u"domStart", jet::kDate};
inline constexpr Column domEnd{kTable, u"domEnd", jet::kDate};
inline constexpr Column ModelID{kTable, u"ModelID", jet::kInt32};
inline constexpr Column IsServiceBulletin{kTable, u"IsServiceBulletin", jet::kBool};
inline constexpr Column ReportDate{kTable, u"ReportDate", jet::kDate};
inline constexpr Column Comments{kTable, u"Comments", jet::kMemo};
}  // namespace TblGearReports

namespace tblJobComponents {
inline constexpr Table kTable{u"tblJobComponents"};
inline constexpr Column JobID{kTable, u"JobID", jet::kInt32};
inline constexpr Column ComponentID{kTable, u"ComponentID", jet::kInt32};
}  // namespace tblJobComponents

namespace tblJobs {
inline constexpr Table kTable{u"tblJobs"};
inline constexpr Column ID{kTable, u"ID", jet::kInt32};
inline constexpr Column JobTitle{kTable, u"JobTitle", jet::kText, 50};
inline constexpr Column InvoiceNumber{kTable, u"InvoiceNumber", jet::kText, 50};
inline constexpr Column DateBilled{kTable, u"DateBilled", jet::kDate};
inline constexpr Column DatePaid{kTable, u"DatePaid", jet::kDate};
inline constexpr Column CustomerID{kTable, u"CustomerID", jet::kInt32};
inline constexpr Column JobStatus{kTable, u"JobStatus", jet::kInt32};
inline constexpr Column JobPaymentStatus{kTable, u"JobPaymentStatus", jet::kInt32};
inline constexpr Column Comments{kTable, u"Comments", jet::kMemo};
inline constexpr Column DateStarted{kTable, u"DateStarted", jet::kDate};
inline constexpr Column DatePromised{kTable, u"DatePromised", jet::kDate};
inline constexpr Column DateCompleted{kTable, u"DateCompleted", jet::kDate};
inline constexpr Column SystemID{kTable, u"SystemID", jet::kInt32};
inline constexpr Column LocationID{kTable, u"LocationID", jet::kInt32};
inline constexpr Column RiggerID{kTable, u"RiggerID", jet::kInt32};
inline constexpr Column ComponentID{kTable, u"ComponentID", jet::kInt32};
}  // namespace tblJobs

namespace tblLocation {
inline constexpr Table kTable{u"tblLocation"};
inline constexpr Column ID{kTable, u"ID", jet::kInt32};
inline constexpr Column Default{kTable, u"Default", jet::kBool};
inline constexpr Column Location{kTable, u"Location", jet::kText, 50};
inline constexpr Column City{kTable, u"City", jet::kText, 50};
inline constexpr Column State{kTable, u"State", jet::kText, 5};
inline constexpr Column TaxRate{kTable, u"TaxRate", jet::kDouble};
}  // namespace tblLocation

namespace tblManufacturers {
inline constexpr Table kTable{u"tblManufacturers"};
inline constexpr Column ID{kTable, u"ID", jet::kInt32};
inline constexpr Column Name{kTable, u"Name", jet::kText, 50};
}  // namespace tblManufacturers

namespace tblMisc {
inline constexpr Table kTable{u"tblMisc"};
inline constexpr Column HidePhotos{kTable, u"HidePhotos", jet::kBool};
inline constexpr Column LastBackupDate{kTable, u"LastBackupDate", jet::kDate};
inline constexpr Column UserID{kTable, u"UserID", jet::kInt32};
inline constexpr Column RepackCycle{kTable, u"RepackCycle", jet::kInt16};
inline constexpr Column DefaultRigTypeID{kTable, u"DefaultRigTypeID", jet::kInt32};
inline constexpr Column LastSystemID{kTable, u"LastSystemID", jet::kInt32};
inline constexpr Column LastJobID{kTable, u"LastJobID", jet::kInt32};
inline constexpr Column LastCustomerID{kTable, u"LastCustomerID", jet::kInt32};
inline constexpr Column LastComponentID{kTable, u"LastComponentID", jet::kInt32};
inline constexpr Column UploadAlias{kTable, u"UploadAlias", jet::kText, 50};
inline constexpr Column DefaultRiggerID{kTable, u"DefaultRiggerID", jet::kInt32};
inline constexpr Column DefaultPhotoSize{kTable, u"DefaultPhotoSize", jet::kInt32};
}  // namespace tblMisc

namespace tblModels {
inline constexpr Table kTable{u"tblModels"};
inline constexpr Column ID{kTable, u"ID", jet::kInt32};
inline constexpr Column ManfID{kTable, u"ManfID", jet::kInt32};
inline constexpr Column TypeID{kTable, u"TypeID", jet::kInt32};
inline constexpr Column Price{kTable, u"Price", jet::kMoney};
inline constexpr Column Name{kTable, u"Name", jet::kText};
inline constexpr Column ServiceLife{kTable, u"ServiceLife", jet::kInt32};
}  // namespace tblModels

namespace tblMoney {
inline constexpr Table kTable{u"tblMoney"};
inline constexpr Column ID{kTable, u"ID", jet::kInt32};
inline constexpr Column mDate{kTable, u"mDate", jet::kDate};
inline constexpr Column CustomerID{kTable, u"CustomerID", jet::kInt32};
inline constexpr Column JobID{kTable, u"JobID", jet::kInt32};
inline constexpr Column Amount{kTable, u"Amount", jet::kMoney};
inline constexpr Column pType{kTable, u"pType", jet::kInt32};
inline constexpr Column TransType{kTable, u"TransType", jet::kInt32};
}  // namespace tblMoney

namespace tblPeople {
inline constexpr Table kTable{u"tblPeople"};
inline constexpr Column ID{kTable, u"ID", jet::kInt32};
inline constexpr Column OrgName{kTable, u"OrgName", jet::kText, 50};
inline constexpr Column lastname{kTable, u"lastname", jet::kText, 50};
inline constexpr Column firstname{kTable, u"firstname", jet::kText, 50};
inline constexpr Column phonehome{kTable, u"phonehome", jet::kText, 50};
inline constexpr Column phonecell{kTable, u"phonecell", jet::kText, 50};
inline constexpr Column phoneother{kTable, u"phoneother", jet::kText, 50};
inline constexpr Column email1{kTable, u"email1", jet::kText, 50};
inline constexpr Column email2{kTable, u"email2", jet::kText, 50};
inline constexpr Column address1{kTable, u"address1", jet::kText, 50};
inline constexpr Column address2{kTable, u"address2", jet::kText, 50};
inline constexpr Column city{kTable, u"city", jet::kText, 50};
inline constexpr Column state{kTable, u"state", jet::kText, 5};
inline constexpr Column zip{kTable, u"zip", jet::kText, 15};
inline constexpr Column country{kTable, u"country", jet::kText, 50};
inline constexpr Column comment{kTable, u"comment", jet::kMemo};
inline constexpr Column rigger{kTable, u"rigger", jet::kBool};
inline constexpr Column PhotoName{kTable, u"PhotoName", jet::kText, 20};
}  // namespace tblPeople

namespace tblPhotos {
inline constexpr Table kTable{u"tblPhotos"};
inline constexpr Column ID{kTable, u"ID", jet::kInt32};
inline constexpr Column PhotoFile{kTable, u"PhotoFile", jet::kText, 20};
inline constexpr Column ComponentID{kTable, u"ComponentID", jet::kInt32};
inline constexpr Column rigID{kTable, u"rigID", jet::kInt32};
}  // namespace tblPhotos

namespace tblRepackByModel {
inline constexpr Table kTable{u"tblRepackByModel"};
inline constexpr Column ModelID{kTable, u"ModelID", jet::kInt32};
inline constexpr Column Price{kTable, u"Price", jet::kMoney};
}  // namespace tblRepackByModel

namespace tblRepackByType {
inline constexpr Table kTable{u"tblRepackByType"};
inline constexpr Column TypeID{kTable, u"TypeID", jet::kInt32};
inline constexpr Column Price{kTable, u"Price", jet::kMoney};
}  // namespace tblRepackByType

namespace tblRig {
inline constexpr Table kTable{u"tblRig"};
inline constexpr Column ID{kTable, u"ID", jet::kInt32};
inline constexpr Column OwnerID{kTable, u"OwnerID", jet::kInt32};
inline constexpr Column TypeID{kTable, u"TypeID", jet::kInt32};
inline constexpr Column rigAlias{kTable, u"rigAlias", jet::kText};
inline constexpr Column Comment{kTable, u"Comment", jet::kMemo};
}  // namespace tblRig

namespace tblRigTypeComponents {
inline constexpr Table kTable{u"tblRigTypeComponents"};
inline constexpr Column RigTypeID{kTable, u"RigTypeID", jet::kInt32};
inline constexpr Column ComponentTypeID{kTable, u"ComponentTypeID", jet::kInt32};
}  // namespace tblRigTypeComponents

namespace tblRigTypes {
inline constexpr Table kTable{u"tblRigTypes"};
inline constexpr Column Name{kTable, u"Name", jet::kText};
inline constexpr Column ReserveLocation{kTable, u"ReserveLocation", jet::kInt16};
inline constexpr Column ID{kTable, u"ID", jet::kInt32};
inline constexpr Column Req{kTable, u"Req", jet::kInt32};
}  // namespace tblRigTypes

namespace tblSBhx {
inline constexpr Table kTable{u"tblSBhx"};
inline constexpr Column ReportID{kTable, u"ReportID", jet::kInt32};
inline constexpr Column CompID{kTable, u"CompID", jet::kInt32};
inline constexpr Column Comments{kTable, u"Comments", jet::kMemo};
inline constexpr Column DateDone{kTable, u"DateDone", jet::kDate};
}  // namespace tblSBhx

namespace tblSchedules {
inline constexpr Table kTable{u"tblSchedules"};
inline constexpr Column ID{kTable, u"ID", jet::kInt32};
inline constexpr Column rigID{kTable, u"rigID", jet::kInt32};
inline constexpr Column TaskLibID{kTable, u"TaskLibID", jet::kInt32};
inline constexpr Column DateDone{kTable, u"DateDone", jet::kDate};
inline constexpr Column DateDue{kTable, u"DateDue", jet::kDate};
inline constexpr Column TaskID{kTable, u"TaskID", jet::kInt32};
inline constexpr Column ComponentID{kTable, u"ComponentID", jet::kInt32};
}  // namespace tblSchedules

namespace tblTaskComponents {
inline constexpr Table kTable{u"tblTaskComponents"};
inline constexpr Column TaskID{kTable, u"TaskID", jet::kInt32};
inline constexpr Column CompID{kTable, u"CompID", jet::kInt32};
inline constexpr Column Complete{kTable, u"Complete", jet::kBool};
}  // namespace tblTaskComponents

namespace tblTaskLib {
inline constexpr Table kTable{u"tblTaskLib"};
inline constexpr Column ID{kTable, u"ID", jet::kInt32};
inline constexpr Column Flatrate{kTable, u"Flatrate", jet::kMoney};
inline constexpr Column HourlyRate{kTable, u"HourlyRate", jet::kMoney};
inline constexpr Column Logbook{kTable, u"Logbook", jet::kBool};
inline constexpr Column AllowMultiple{kTable, u"AllowMultiple", jet::kBool};
inline constexpr Column Name{kTable, u"Name", jet::kText};
inline constexpr Column IntervalType{kTable, u"IntervalType", jet::kInt16};
inline constexpr Column ModelID{kTable, u"ModelID", jet::kInt32};
inline constexpr Column IntervalNumber{kTable, u"IntervalNumber", jet::kInt32};
inline constexpr Column IsEvent{kTable, u"IsEvent", jet::kBool};
inline constexpr Column IsRigTypeSpecific{kTable, u"IsRigTypeSpecific", jet::kBool};
}  // namespace tblTaskLib

namespace tblTaskLibComponentTypes {
inline constexpr Table kTable{u"tblTaskLibComponentTypes"};
inline constexpr Column TaskLibID{kTable, u"TaskLibID", jet::kInt32};
inline constexpr Column ComponentTypeID{kTable, u"ComponentTypeID", jet::kInt32};
}  // namespace tblTaskLibComponentTypes

namespace tblTaskLibParts {
inline constexpr Table kTable{u"tblTaskLibParts"};
inline constexpr Column TaskLibID{kTable, u"TaskLibID", jet::kInt32};
inline constexpr Column PartID{kTable, u"PartID", jet::kInt32};
}  // namespace tblTaskLibParts

namespace tblTaskLibRigType {
inline constexpr Table kTable{u"tblTaskLibRigType"};
inline constexpr Column TaskLibID{kTable, u"TaskLibID", jet::kInt32};
inline constexpr Column RigType{kTable, u"RigType", jet::kInt32};
}  // namespace tblTaskLibRigType

namespace tblTasks {
inline constexpr Table kTable{u"tblTasks"};
inline constexpr Column JobID{kTable, u"JobID", jet::kInt32};
inline constexpr Column ID{kTable, u"ID", jet::kInt32};
inline constexpr Column CustomerID{kTable, u"CustomerID", jet::kInt32};
inline constexpr Column RiggerID{kTable, u"RiggerID", jet::kInt32};
inline constexpr Column FlatRate{kTable, u"FlatRate", jet::kMoney};
inline constexpr Column HourlyRate{kTable, u"HourlyRate", jet::kMoney};
inline constexpr Column Tax{kTable, u"Tax", jet::kMoney};
inline constexpr Column NumHours{kTable, u"NumHours", jet::kSingle};
inline constexpr Column Comments{kTable, u"Comments", jet::kMemo};
inline constexpr Column DateTaskCompleted{kTable, u"DateTaskCompleted", jet::kDate};
inline constexpr Column TaskLibID{kTable, u"TaskLibID", jet::kInt32};
inline constexpr Column LogBook{kTable, u"LogBook", jet::kBool};
inline constexpr Column Status{kTable, u"Status", jet::kInt16};
inline constexpr Column DateTaskStarted{kTable, u"DateTaskStarted", jet::kDate};
inline constexpr Column TaskName{kTable, u"TaskName", jet::kText};
inline constexpr Column SystemID{kTable, u"SystemID", jet::kInt32};
inline constexpr Column PartID{kTable, u"PartID", jet::kInt32};
inline constexpr Column IsEvent{kTable, u"IsEvent", jet::kBool};
inline constexpr Column LocationID{kTable, u"LocationID", jet::kInt32};
}  // namespace tblTasks
