#include "gear/picker_rows.h"

#include <functional>

#include "core/store/access.h"
#include "core/store/operation.h"
#include "gear/people.h"
#include "gear/rigs.h"

using namespace Qt::StringLiterals;

namespace {

IdList ReadRows(const QString& statement, const std::function<QString(const Recordset& row)>& textOf) {
  IdList list;
  Operation(u"Sub PickerRows"_s, [&] {
    for (const Recordset& row : Rows(statement)) list.Add(textOf(row), row[u"ID"].ToInt());
  });
  return list;
}

/// Locations carry no name of their own; the city stands for it.
QString LocationRowText(const Recordset& row) {
  QStringList parts;
  for (QStringView field : {u"Location", u"City", u"State"})
    if (const QString part = row[field].ToText().trimmed(); !part.isEmpty()) parts << part;
  return parts.join(u", "_s) + (row[u"Default"].ToBool() ? u" (default)"_s : QString());
}

}  // namespace

IdList PickerCustomers() {
  return ReadRows(u"Select * from tblPeople order by Lastname"_s, [](const Recordset& row) {
    const int id = row[u"ID"].ToInt();
    return PersonSortName(id) + " ("_L1 + QString::number(id) + u')';
  });
}

IdList PickerRiggers() {
  const int preset = GetValueFromTableBySQL(u"tblMisc"_s, u"DefaultRiggerID"_s).ToInt();
  return ReadRows(u"Select * from tblPeople where Rigger = true order by Lastname"_s, [&](const Recordset& row) {
    const int id = row[u"ID"].ToInt();
    return PersonSortName(id) + (id == preset ? u" (default rigger)"_s : QString());
  });
}

IdList PickerRigs() {
  IdList rigs;
  const IdList all =
      ReadRows(u"Select * from tblRig"_s, [](const Recordset& row) { return row[u"rigAlias"].ToText(); });
  for (qsizetype i = 0; i < all.Size(); ++i)
    if (all.texts.at(i) != kTempRigName) rigs.Add(all.texts.at(i), all.ids.at(i));
  return rigs;
}

IdList PickerLocations() { return ReadRows(u"Select * from tblLocation order by Location"_s, LocationRowText); }

IdList PickerGearReports() {
  return ReadRows(u"Select * from tblGearReports order by ID"_s,
                  [](const Recordset& row) { return row[u"Name"].ToText(); });
}
