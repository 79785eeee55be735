#include "gear/locations.h"

#include "core/store/access.h"
#include "core/trap.h"

using namespace Qt::StringLiterals;

double GetTaxRate(const QString& state) {
  double rate = 0;
  Trap(u"Function GetTaxRate"_s, [&] {
    Bracket bracket;
    for (const Recordset& location : Rows(u"Select * from tblLocation where State = '"_s + state + u'\''))
      if (location[u"State"].ToText().toUpper() == state) rate = location[u"TaxRate"].ToDouble();
    bracket.Close();
  });
  return rate;
}

int DefaultLocation() {
  int id = 0;
  Trap(u"Function DefaultLocation"_s, [&] {
    Bracket bracket;
    {
      Recordset locations(u"Select * from tblLocation"_s);
      if (RecordsetHasRows(locations)) {
        const bool only = locations.RecordCount() == 1;
        for (; id == 0 && !locations.Eof(); locations.MoveNext())
          if (only || locations[u"Default"].ToBool()) id = locations[u"ID"].ToInt();
      }
    }
    bracket.Close();
  });
  return id;
}

void SetDefault(int id) {
  Trap(u"Sub SetDefault"_s, [&] {
    Bracket bracket;
    for (Recordset& location : Rows(u"tblLocation"_s)) {
      const bool isDefault = location[u"ID"].ToInt() == id;
      if (!isDefault && !location[u"Default"].ToBool()) continue;
      location.Set(u"Default", isDefault);
      location.Update();
    }
    bracket.Close();
  });
}

QString LocationText(int id) {
  QString text;
  Trap(u"Function LocationText"_s, [&] {
    Bracket bracket;
    {
      Recordset location(u"Select * from tblLocation where ID = "_s + QString::number(id));
      if (RecordsetHasRows(location)) {
        text = location[u"City"].ToText();
        const QString state = location[u"State"].ToText();
        if (!state.trimmed().isEmpty()) text += u", "_s + state;
      }
    }
    bracket.Close();
  });
  return text;
}

int NumberOfJobsAtLocation(int id) {
  return GetNumberRecordsComplex(u"Select * from tblJobs where Locationid = "_s + QString::number(id)).ToInt();
}
