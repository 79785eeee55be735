#include "gear/component_list.h"

#include "core/remembered.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "gear/models.h"
#include "gear/people.h"
#include "gear/rigs.h"

using namespace Qt::StringLiterals;

namespace {

QString Statement(const ComponentFilter& filter) {
  if (filter.type == 0) return u"Select * from tblComponents Order by TypeID"_s;
  const QString owner = filter.owner == 0 ? QString() : u" and ownerID = %1"_s.arg(filter.owner);
  return u"Select * from tblComponents Where TypeID = %1"_s.arg(filter.type) + owner + u" order by Modelid"_s;
}

bool Passes(const ComponentFilter& filter, const Recordset& row) {
  if (filter.owner != 0 && row[u"OwnerID"].ToInt() != filter.owner) return false;
  if (filter.model != 0 && row[u"ModelID"].ToInt() != filter.model) return false;
  const bool inRig = row[u"RigID"].ToInt() >= 1;
  return filter.rigs == ComponentFilter::Rigs::Both || inRig == (filter.rigs == ComponentFilter::Rigs::InRig);
}

QString RigNameOrNone(int rig) { return RigExists(rig) ? RigName(rig) : u"(no rig)"_s; }

struct Names {
  Remembered<QString> model{ModelName};
  Remembered<QString> rig{RigNameOrNone};
  Remembered<QString> owner{PersonSortName};
};

ComponentListRow Read(const Recordset& row, Names& names) {
  const int rig = row[u"RigID"].ToInt();
  const int owner = row[u"OwnerID"].ToInt();
  const QString serial = row[u"SerialNumber"].ToText();
  return {row[u"ID"].ToInt(),
          owner,
          rig,
          names.model(row[u"ModelID"].ToInt()) + u' ' + row[u"SubType"].ToText(),
          names.rig(rig),
          names.owner(owner),
          serial.trimmed().isEmpty() ? u"(none)"_s : serial,
          row[u"DOM"].ToDate()};
}

}  // namespace

QList<ComponentListRow> LoadComponentList(const ComponentFilter& filter) {
  QList<ComponentListRow> list;
  Operation(u"Function LoadComponentList"_s, [&] {
    Names names;
    for (const Recordset& row : Rows(Statement(filter)))
      if (Passes(filter, row)) list << Read(row, names);
  });
  return list;
}
