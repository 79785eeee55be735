#include "core/screens/picker_rows.h"

#include <functional>

#include "core/picker.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/text.h"
#include "gear/models.h"
#include "gear/people.h"
#include "gear/rigs.h"

using namespace Qt::StringLiterals;

namespace {

using TextOf = std::function<QString(const Recordset& row)>;

/// Rows without a text are left out.
void AddRows(IdList& list, const QString& statement, const TextOf& textOf) {
  for (const Recordset& row : Rows(statement)) {
    const QString text = textOf(row);
    if (!text.isNull()) list.Add(text, row[u"ID"].ToInt());
  }
}

TextOf FieldText(const QString& field) {
  return [field](const Recordset& row) { return row[field].ToText() + u""_s; };
}

QString CustomerText(const Recordset& row) {
  const int id = row[u"ID"].ToInt();
  return PersonSortName(id) + " ("_L1 + QString::number(id) + u')';
}

/// Locations carry no name of their own; the city stands for it.
QString LocationRowText(const Recordset& row) {
  QStringList parts;
  for (QStringView field : {u"Location", u"City", u"State"})
    if (const QString part = row[field].ToText().trimmed(); !part.isEmpty()) parts << part;
  return parts.join(u", "_s) + (row[u"Default"].ToBool() ? u" (default)"_s : QString());
}

QString ModelStatement(int modelTypeId) {
  return u"Select * from tblModels where typeid = "_s + QString::number(modelTypeId);
}

void AddRowsOf(IdList& list, int pickerType) {
  switch (pickerType) {
    case kPickMiscItem:
      list.Add(u"(add new model)"_s, kPickAddNew);
      AddRows(list, ModelStatement(kPickMiscItem), FieldText(u"Name"_s));
      break;
    case kPickRig:
      list.Add(u"(add new)"_s, kPickAddNew);
      AddRows(list, u"Select * from tblRig"_s, [](const Recordset& row) {
        const QString name = row[u"rigAlias"].ToText();
        return name == kTempRigName ? QString() : name + u""_s;
      });
      break;
    case kPickCustomer:
      AddRows(list, u"Select * from tblPeople order by Lastname"_s, CustomerText);
      list.Add(u"(add new)"_s, kPickAddNewPerson);
      break;
    case kPickTask:
      AddRows(list, u"Select * from tblTaskLib"_s, FieldText(u"Name"_s));
      break;
    case kPickJob:
      AddRows(list, u"Select * from tblJobs"_s, FieldText(u"JobTitle"_s));
      break;
    case kPickLocation:
      AddRows(list, u"Select * from tblLocation order by Location"_s, LocationRowText);
      break;
    case kPickInvoice:
      AddRows(list, u"Select * from tbljobs order by InvoiceNumber"_s, FieldText(u"InvoiceNumber"_s));
      break;
    case kPickGearReport:
      AddRows(list, u"Select * from tblGearReports order by ID"_s, FieldText(u"Name"_s));
      break;
    case kPickRigger: {
      const int preset = GetValueFromTableBySQL(u"tblMisc"_s, u"DefaultRiggerID"_s).ToInt();
      AddRows(list, u"Select * from tblPeople where Rigger = true order by Lastname"_s, [&](const Recordset& row) {
        const int id = row[u"ID"].ToInt();
        return PersonSortName(id) + (id == preset ? u" (default rigger)"_s : QString());
      });
      break;
    }
    case kPickRigType:
      AddRows(list, u"Select * from tblRigTypes"_s, FieldText(u"Name"_s));
      break;
    case kPickComponentType:
      AddRows(list, u"Select * from tblComponentTypes order by ID"_s, FieldText(u"Name"_s));
      break;
    default:
      MsgBox(u"see DoingComponents (above)"_s, u"didn't allow for this type"_s);
  }
}

}  // namespace

std::optional<QString> PickerTitle(int pickerType) {
  switch (pickerType) {
    case kPickMiscItem:
      return u"Select Misc Item Model"_s;
    case kPickRig:
      return u"Select System"_s;
    case kPickCustomer:
      return u"Select Customer"_s;
    case kPickTask:
      return u"Task Library"_s;
    case kPickJob:
      return u"Jobs"_s;
    case kPickLocation:
      return u"Select Location"_s;
    case kPickInvoice:
      return u"Select Invoice"_s;
    case kPickGearReport:
      return u"Select Gear List Report"_s;
    case kPickRigger:
      return u"Select Rigger"_s;
    case kPickRigType:
      return u"Select Rig Type"_s;
    case kPickComponentType:
      return u"Select Component Type"_s;
    default:
      return std::nullopt;
  }
}

IdList PickerRows(int pickerType) {
  IdList list;
  Operation(u"Sub PickerRows"_s, [&] { AddRowsOf(list, pickerType); });
  return list;
}

IdList PickerModelRows(int modelTypeId) {
  IdList list;
  list.Add(u"(add new)"_s, kPickAddNew);
  Operation(u"Sub PickerModelRows"_s, [&] { AddRows(list, ModelStatement(modelTypeId), FieldText(u"Name"_s)); });
  return list;
}

QString PickerNoun(int pickerType, int modelTypeId) {
  switch (pickerType) {
    case kPickMiscItem:
      return ComponentTypeName(modelTypeId > 0 ? modelTypeId : int{kPickMiscItem});
    case kPickCustomer:
      return u"customer"_s;
    case kPickTask:
      return u"task"_s;
    default:
      return u"location"_s;
  }
}

int FindPersonByTypedName(const QString& typed) {
  QString last;
  QString first;
  SplitName(typed, last, first);
  int found = 0;
  Operation(u"Function FindPersonByTypedName"_s, [&] {
    for (const Recordset& person : Rows(u"Select * from tblPeople order by Lastname"_s)) {
      const auto matches = [&](QStringView field, const QString& name) {
        return person[field].ToText().trimmed().compare(name, Qt::CaseInsensitive) == 0;
      };
      if (!matches(u"LastName", last) || !(first.isEmpty() || matches(u"FirstName", first))) continue;
      found = person[u"ID"].ToInt();
      break;
    }
  });
  return found;
}
