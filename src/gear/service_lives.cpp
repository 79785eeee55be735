#include "gear/service_lives.h"

#include "core/format.h"
#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "gear/models.h"

using namespace Qt::StringLiterals;

ServiceLifeEntry ServiceLifeOfModel(int model) {
  const int months = ServiceLife(model);
  if (months == 0) return {};
  if (months % 12 == 0) return {true, months / 12, true};
  return {true, months, false};
}

int ServiceLifeMonths(const QString& number, bool inYears) { return Value(Val(number) * (inYears ? 12 : 1)).ToInt(); }

void SaveServiceLife(int model, int months) {
  Operation(u"Sub SaveServiceLife"_s, [&] { UpdateRows(tblModels::ServiceLife, months, tblModels::ID == model); });
}

void ShowServiceLifeHelp() {
  MsgBox(Lines({u"Service life is the time after which an item is no longer suitable for use."_s, QString(),
                u"It belongs to a model, not to a component type.  Any component model can have"_s,
                u"a service life, including one that you set for yourself."_s,
                u"Parts in the misc category cannot have a service life."_s, QString(),
                u"The expiration date is the date of manufacture plus the service life."_s}),
         u"Model's Service Life"_s);
}
