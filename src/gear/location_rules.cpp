#include "gear/location_rules.h"

#include "core/failure.h"
#include "core/format.h"
#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/store/rows.h"
#include "gear/locations.h"

using namespace Qt::StringLiterals;

namespace {

/// What the other cities of a state say of its rate.
struct StateRates {
  QString cities;  ///< a line to each
  std::optional<double> inForce;
};

StateRates OtherRates(const QString& state, double rate, int id) {
  StateRates others;
  for (const Recordset& row : Rows(tblLocation::State == state)) {
    if (id != 0 && row[tblLocation::ID].ToInt() == id) continue;
    const double other = row[tblLocation::TaxRate].ToDouble();
    others.cities += row[tblLocation::City].ToText() + u"  ("_s + ShownTaxRate(other) + u"%)\n"_s;
    if (other != rate) others.inForce = other;
  }
  return others;
}

}  // namespace

QString ShownTaxRate(double rate) { return Format(rate, u"#0.00"_s); }

IdList LoadLocations() {
  IdList list;
  Operation(u"Sub LoadLocations"_s, [&] {
    for (const Recordset& row : Rows(Select(tblLocation::kTable).OrderBy(tblLocation::City))) {
      const int id = row[tblLocation::ID].ToInt();
      list.Add(LocationText(id) + (row[tblLocation::Default].ToBool() ? u"  (default location)"_s : QString()), id);
    }
  });
  return list;
}

bool LoadLocation(int id, LocationEntry& entry) {
  bool found = false;
  Operation(u"Sub LoadLocation"_s, [&] {
    for (const Recordset& row : Rows(tblLocation::ID == id)) {
      entry = {row[tblLocation::City].ToText(), row[tblLocation::State].ToText(),
               ShownTaxRate(row[tblLocation::TaxRate].ToDouble()), row[tblLocation::Default].ToBool()};
      found = true;
    }
  });
  return found;
}

void CheckTax(LocationEntry& entry, int id) {
  Operation(u"Sub CheckTax"_s, [&] {
    const QString state = entry.state.trimmed().toUpper();
    const double rate = Val(entry.taxRate);
    const StateRates others = OtherRates(state, rate, id);
    if (others.inForce) {
      const QString percent = ShownTaxRate(rate) + u'%';
      if (AskYes(others.cities + Lines({QString(), u"The tax rate entered ("_s + percent + u") doesn't"_s,
                                        u"match other cities in "_s + state, QString(),
                                        u"Do you want to use "_s + percent + u" for "_s + entry.city.trimmed() + u'?'}),
                 u"Tax rate doesn't match - "_s + percent)) {
        if (AskYes(u"Do you want to use "_s + percent + u" for all cities in "_s + state + u'?',
                   u"Change other city tax rates?"_s))
          UpdateTable(tblLocation::TaxRate, rate, tblLocation::State, u'\'' + state + u'\'');
      } else {
        entry.taxRate = ShownTaxRate(*others.inForce);
        MsgBox(u"Tax rate changed to "_s + entry.taxRate);
      }
    }
  });
}

int SaveLocation(LocationEntry& entry, int id) {
  if (entry.city.trimmed().isEmpty()) {
    MsgBox(u"You must enter a City"_s, u"No city"_s);
    return 0;
  }
  int saved = 0;
  const bool written = Operation(u"Sub SaveLocation"_s, [&] {
    CheckTax(entry, id);
    if (entry.isDefault) TurnOffAllLocationDefaults();
    const RowValues values = {{tblLocation::Default, entry.isDefault},
                              {tblLocation::Location, QString()},
                              {tblLocation::City, entry.city.trimmed()},
                              {tblLocation::State, entry.state.trimmed().toUpper()},
                              {tblLocation::TaxRate, Val(entry.taxRate)}};
    if (id == 0) {
      saved = AddRow(tblLocation::kTable, values);
    } else {
      if (!EditRow(tblLocation::ID == id, values)) {
        MsgBox(u"you shouldn't be here"_s);
        throw Failure(kNoCurrentRecord);
      }
      saved = id;
    }
  });
  return written ? saved : 0;
}

bool DeleteLocation(int id) {
  const int jobs = NumberOfJobsAtLocation(id);
  QStringList lines;
  if (jobs == 1) lines << u"There is one job for that location"_s << QString();
  if (jobs > 1) lines << u"There are "_s + QString::number(jobs) + u" jobs for that location"_s << QString();
  lines << u"Are you sure you want to delete this location?"_s;
  if (!AskYes(Lines(lines), u"Delete "_s + LocationText(id) + u'?')) return false;
  return Operation(u"Sub DeleteLocation"_s, [&] { DeleteRecordsFromTable(tblLocation::ID, id); });
}
