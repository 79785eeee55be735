#include "gear/locations.h"

#include "core/store/access.h"
#include "core/store/operation.h"

using namespace Qt::StringLiterals;

double GetTaxRate(const QString& state) {
  double rate = 0;
  Operation(u"Function GetTaxRate"_s, [&] {
    for (const Recordset& location : Rows(u"Select * from tblLocation where State = '"_s + state + u'\''))
      if (location[u"State"].ToText().toUpper() == state) rate = location[u"TaxRate"].ToDouble();
  });
  return rate;
}

int DefaultLocation() {
  int id = 0;
  Operation(u"Function DefaultLocation"_s, [&] {
    Recordset locations(u"Select * from tblLocation"_s);
    if (RecordsetHasRows(locations)) {
      const bool only = locations.RecordCount() == 1;
      for (; id == 0 && !locations.Eof(); locations.MoveNext())
        if (only || locations[u"Default"].ToBool()) id = locations[u"ID"].ToInt();
    }
  });
  return id;
}

void SetDefault(int id) {
  Operation(u"Sub SetDefault"_s, [&] {
    for (Recordset& location : Rows(u"tblLocation"_s)) {
      const bool isDefault = location[u"ID"].ToInt() == id;
      if (!isDefault && !location[u"Default"].ToBool()) continue;
      location.Set(u"Default", isDefault);
      location.Update();
    }
  });
}

void ClearDefault() {
  Operation({u"Sub ClearDefault"_s, u"Clear default location"_s}, [] { TurnOffAllLocationDefaults(); });
}

QString LocationText(int id) {
  QString text;
  Operation(u"Function LocationText"_s, [&] {
    Recordset location(u"Select * from tblLocation where ID = "_s + QString::number(id));
    if (RecordsetHasRows(location)) {
      text = location[u"City"].ToText();
      const QString state = location[u"State"].ToText();
      if (!state.trimmed().isEmpty()) text += u", "_s + state;
    }
  });
  return text;
}

int NumberOfJobsAtLocation(int id) {
  return GetNumberRecordsComplex(u"Select * from tblJobs where Locationid = "_s + QString::number(id)).ToInt();
}
