#include "gear/locations.h"

#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/store/rows.h"

using namespace Qt::StringLiterals;

double GetTaxRate(const QString& state) {
  double rate = 0;
  Operation(u"Function GetTaxRate"_s, [&] {
    for (const Recordset& location : Rows(tblLocation::State == state))
      if (location[tblLocation::State].ToText().toUpper() == state) rate = location[tblLocation::TaxRate].ToDouble();
  });
  return rate;
}

bool LocationsExist() { return GetNumberRecordsInTable(tblLocation::kTable) > 0; }

int DefaultLocation() {
  int id = 0;
  Operation(u"Function DefaultLocation"_s, [&] {
    Recordset locations(tblLocation::kTable);
    if (RecordsetHasRows(locations)) {
      const bool only = locations.RecordCount() == 1;
      for (; id == 0 && !locations.Eof(); locations.MoveNext())
        if (only || locations[tblLocation::Default].ToBool()) id = locations[tblLocation::ID].ToInt();
    }
  });
  return id;
}

void SetDefault(int id) {
  Operation(u"Sub SetDefault"_s, [&] {
    TurnOffAllLocationDefaults();
    EditRow(tblLocation::ID == id, {{tblLocation::Default, true}});
  });
}

void ClearDefault() {
  Operation({u"Sub ClearDefault"_s, u"Clear default location"_s}, [] { TurnOffAllLocationDefaults(); });
}

QString LocationText(int id) {
  QString text;
  Operation(u"Function LocationText"_s, [&] {
    Recordset location(tblLocation::ID == id);
    if (RecordsetHasRows(location)) {
      text = location[tblLocation::City].ToText();
      const QString state = location[tblLocation::State].ToText();
      if (!state.trimmed().isEmpty()) text += u", "_s + state;
    }
  });
  return text;
}

int NumberOfJobsAtLocation(int id) { return GetNumberRecordsComplex(tblJobs::LocationID == id).ToInt(); }
