#include "jobs/library_parts.h"

#include "core/default_rows.h"
#include "core/format.h"
#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "gear/catalogue.h"
#include "gear/models.h"

using namespace Qt::StringLiterals;

int AddLibraryPart(const QString& name, Money price) {
  if (const int known = FindModelByName(name, kMisc); known != 0) {
    MsgBox(Lines({u"There is already a misc part called "_s + name,
                  u"Cost is "_s + Format(ModelPrice(known), u"###,###,##0.00"_s)}),
           u"Duplicate Name"_s);
    return 0;
  }
  return AddPart(name, price, 0).id;
}

bool DeleteLibraryPart(int partID) {
  if (partID == 0) {
    MsgBox(u"You must select a part to delete"_s, u"Nothing selected"_s);
    return false;
  }
  const int tasks = GetNumberRecordsComplex(tblTaskLibParts::PartID == partID).ToInt();
  const QString used = tasks == 1 ? u"There is 1 library task which uses the select misc part"_s
                                  : u"There are %1 library tasks which use the select misc part"_s.arg(tasks);
  if (tasks > 0 && !AskYes(Lines({used, u"Do you want to delete this part anyway?"_s}), kProgramTitle)) return false;
  if (!AskYes(u"Delete %1?"_s.arg(ModelName(partID)), u"Are you sure?"_s)) return false;
  return Operation({u"Sub DeletePart"_s, u"Delete part"_s}, [&] { DeleteModelRow(partID); });
}
