#include "gear/component_list.h"

#include "core/access.h"
#include "core/trap.h"
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

ComponentListRow Read(const Recordset& row) {
  const int rig = row[u"RigID"].ToInt();
  const int owner = row[u"OwnerID"].ToInt();
  const QString serial = row[u"SerialNumber"].ToText();
  return {row[u"ID"].ToInt(),
          owner,
          rig,
          ModelName(row[u"ModelID"].ToInt()) + u' ' + row[u"SubType"].ToText(),
          RigExists(rig) ? RigName(rig) : u"(no rig)"_s,
          PersonSortName(owner),
          serial.trimmed().isEmpty() ? u"(none)"_s : serial,
          row[u"DOM"].ToDate()};
}

}  // namespace

QList<ComponentListRow> LoadComponentList(const ComponentFilter& filter) {
  QList<ComponentListRow> list;
  Trap(u"Function LoadComponentList"_s, [&] {
    Bracket bracket;
    {
      Recordset rows(Statement(filter));
      if (RecordsetHasRows(rows))
        for (; !rows.Eof(); rows.MoveNext())
          if (Passes(filter, rows)) list << Read(rows);
    }
    bracket.Close();
  });
  return list;
}
