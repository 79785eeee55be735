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
  if (filter.type == 0) return Select(tblComponents::kTable).OrderBy(tblComponents::TypeID);
  Condition wanted = tblComponents::TypeID == filter.type;
  if (filter.owner != 0) wanted = wanted && tblComponents::OwnerID == filter.owner;
  return Select(wanted).OrderBy(tblComponents::ModelID);
}

bool Passes(const ComponentFilter& filter, const Recordset& row) {
  if (filter.owner != 0 && row[tblComponents::OwnerID].ToInt() != filter.owner) return false;
  if (filter.model != 0 && row[tblComponents::ModelID].ToInt() != filter.model) return false;
  const bool inRig = row[tblComponents::RigID].ToInt() >= 1;
  return filter.rigs == ComponentFilter::Rigs::Both || inRig == (filter.rigs == ComponentFilter::Rigs::InRig);
}

QString RigNameOrNone(int rig) { return RigExists(rig) ? RigName(rig) : u"(no rig)"_s; }

struct Names {
  Remembered<QString> model{ModelName};
  Remembered<QString> rig{RigNameOrNone};
  Remembered<QString> owner{PersonSortName};
};

ComponentListRow Read(const Recordset& row, Names& names) {
  const int rig = row[tblComponents::RigID].ToInt();
  const int owner = row[tblComponents::OwnerID].ToInt();
  const QString serial = row[tblComponents::SerialNumber].ToText();
  return {row[tblComponents::ID].ToInt(),
          owner,
          rig,
          names.model(row[tblComponents::ModelID].ToInt()) + u' ' + row[tblComponents::SubType].ToText(),
          names.rig(rig),
          names.owner(owner),
          serial.trimmed().isEmpty() ? u"(none)"_s : serial,
          row[tblComponents::DOM].ToDate()};
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
