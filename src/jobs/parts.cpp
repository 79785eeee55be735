#include "jobs/parts.h"

#include "core/default_rows.h"
#include "core/format.h"
#include "core/prompts.h"
#include "core/store/operation.h"
#include "gear/catalogue.h"
#include "gear/models.h"

using namespace Qt::StringLiterals;

int AddPartToJob(const JobContext& job, int partID, Date date) {
  int line = 0;
  AddCustomLine(job, {.name = ModelName(partID), .price = ModelPrice(partID), .partID = partID}, date, line);
  return line;
}

int AddCustomPart(const JobContext& job, const QString& name, Money price, Date date) {
  if (const int known = FindModelByName(name, kMisc); known != 0) {
    if (!AskYes(Lines({name + u" already exists in the parts database."_s,
                       u"It has a cost of "_s + Format(ModelPrice(known), u"###,###,##0.00"_s),
                       u"Do you still want to add it to this job?"_s}),
                u"Add "_s + name + u'?'))
      return 0;
    return AddPartToJob(job, known, date);
  }
  const bool keep =
      AskYes(u"Would you like to add this item to the PARTS database for future use?"_s, u"New Item: "_s + name);
  int line = 0;
  const bool written = Operation(u"Sub AddCustomPart"_s, [&] {
    const int part = keep ? AddPart(name, price, 0).id : kCustomPart;
    AddCustomLine(job, {.name = name, .price = price, .partID = part}, date, line);
  });
  if (!written) return 0;
  if (keep) MsgBox(name + u" has been added to the parts table"_s, u"Done"_s);
  return line;
}
