#include "schedule/service_life.h"

#include <algorithm>

#include "core/clock.h"
#include "core/dates.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "gear/components.h"
#include "gear/rigs.h"

using namespace Qt::StringLiterals;

namespace {

Date Cutoff(bool inDays, int number) {
  if (inDays) return Today() + number;
  return LastDayOfMonth(AddMonthsToDate(Today(), static_cast<qint16>(number)));
}

bool HasWorkDue(int customerID, Date cutoff) {
  Recordset rows(tblSchedules::kTable);
  if (!RecordsetHasRows(rows)) return false;
  for (; !rows.Eof(); rows.MoveNext()) {
    if (rows[tblSchedules::DateDue].ToDate() > cutoff) continue;
    if (RigOwner(rows[tblSchedules::rigID].ToInt()) == customerID ||
        ComponentOwner(rows[tblSchedules::ComponentID].ToInt()) == customerID)
      return true;
  }
  return false;
}

bool HasLifeEnding(int customerID, Date cutoff) {
  QList<int> components;
  GetArrayOfCompIDWithServiceLifeThisCustomer(components, customerID);
  return std::any_of(components.cbegin(), components.cend(), [&](int component) {
    const Date expiry = ServiceLifeExpiry(component);
    return !expiry.IsNone() && expiry < cutoff;
  });
}

}  // namespace

Date ServiceLifeExpiry(int componentID) { return ComponentExpiry(componentID); }

void GetArrayOfModelsWithServiceLife(QList<int>& models) {
  QList<Value> ids;
  GetRecordsFromTableBySQL(tblModels::ServiceLife != 0, tblModels::ID, ids);
  models.clear();
  for (const Value& id : ids) models.append(id.ToInt());
}

void GetArrayOfCompIDWithServiceLifeThisCustomer(QList<int>& components, int customerID) {
  components.clear();
  Operation(u"Sub GetArrayOfCompIDWithServiceLifeThisCustomer"_s, [&] {
    QList<int> models;
    GetArrayOfModelsWithServiceLife(models);
    for (int model : models) {
      Recordset rows(tblComponents::ModelID == model);
      if (model == 0 || !RecordsetHasRows(rows)) continue;
      for (; !rows.Eof(); rows.MoveNext()) {
        if (rows[tblComponents::OwnerID].ToInt() == customerID) components.append(rows[tblComponents::ID].ToInt());
      }
    }
  });
}

bool WithinCorrectTimeFrame(int customerID, bool limitOn, bool limitInDays, int number) {
  if (!limitOn) return true;
  bool within = false;
  Operation(u"Function WithinCorrectTimeFrame"_s, [&] {
    const Date cutoff = Cutoff(limitInDays, number);
    within = HasWorkDue(customerID, cutoff) || HasLifeEnding(customerID, cutoff);
  });
  return within;
}
