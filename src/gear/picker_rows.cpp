#include "gear/picker_rows.h"

#include <functional>

#include "core/store/access.h"
#include "core/store/operation.h"
#include "gear/people.h"
#include "gear/rigs.h"

using namespace Qt::StringLiterals;

namespace {

IdList ReadRows(const QString& statement, const Column& id,
                const std::function<QString(const Recordset& row)>& textOf) {
  IdList list;
  Operation(u"Sub PickerRows"_s, [&] {
    for (const Recordset& row : Rows(statement)) list.Add(textOf(row), row[id].ToInt());
  });
  return list;
}

/// Locations carry no name of their own; the city stands for it.
QString LocationRowText(const Recordset& row) {
  QStringList parts;
  for (const Column& column : {tblLocation::Location, tblLocation::City, tblLocation::State})
    if (const QString part = row[column].ToText().trimmed(); !part.isEmpty()) parts << part;
  return parts.join(u", "_s) + (row[tblLocation::Default].ToBool() ? u" (default)"_s : QString());
}

}  // namespace

IdList PickerCustomers() {
  return ReadRows(Select(tblPeople::kTable).OrderBy(tblPeople::lastname), tblPeople::ID, [](const Recordset& row) {
    const int id = row[tblPeople::ID].ToInt();
    return PersonSortName(id) + " ("_L1 + QString::number(id) + u')';
  });
}

IdList PickerRiggers() {
  const int preset = GetValueFromTableBySQL(tblMisc::kTable, tblMisc::DefaultRiggerID).ToInt();
  return ReadRows(Select(tblPeople::rigger == true).OrderBy(tblPeople::lastname), tblPeople::ID,
                  [&](const Recordset& row) {
                    const int id = row[tblPeople::ID].ToInt();
                    return PersonSortName(id) + (id == preset ? u" (default rigger)"_s : QString());
                  });
}

IdList PickerRigs() {
  IdList rigs;
  const IdList all =
      ReadRows(tblRig::kTable, tblRig::ID, [](const Recordset& row) { return row[tblRig::rigAlias].ToText(); });
  for (qsizetype i = 0; i < all.Size(); ++i)
    if (all.texts.at(i) != kTempRigName) rigs.Add(all.texts.at(i), all.ids.at(i));
  return rigs;
}

IdList PickerLocations() {
  return ReadRows(Select(tblLocation::kTable).OrderBy(tblLocation::Location), tblLocation::ID, LocationRowText);
}

IdList PickerGearReports() {
  return ReadRows(Select(TblGearReports::kTable).OrderBy(TblGearReports::ID), TblGearReports::ID,
                  [](const Recordset& row) { return row[TblGearReports::Name].ToText(); });
}
