#include "gear/rig_type_rules.h"

#include <numeric>

#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/store/rows.h"
#include "gear/rig_types.h"

using namespace Qt::StringLiterals;

namespace {

bool WriteField(int id, const Column& field, const Value& value) {
  return Operation(u"Sub WriteField"_s, [&] { EditRow(tblRigTypes::ID == id, {{field, value}}); });
}

}  // namespace

IdList LoadRigTypesById() {
  IdList list;
  Operation(u"Function LoadRigTypesById"_s, [&] {
    for (const Recordset& type : Rows(Select(tblRigTypes::kTable).OrderBy(tblRigTypes::ID)))
      list.Add(type[tblRigTypes::Name].ToText(), type[tblRigTypes::ID].ToInt());
  });
  return list;
}

bool IsDuplicateRigType(const QString& NewType) {
  const QStringList names = LoadRigTypesById().texts;
  const QString wanted = NewType.trimmed().toUpper();
  return std::any_of(names.cbegin(), names.cend(),
                     [&](const QString& name) { return name.trimmed().toUpper() == wanted; });
}

int AddRigType() {
  const QString name = InputBox(u"Enter new rig type"_s).trimmed();
  if (name.isEmpty()) return 0;
  if (IsDuplicateRigType(name)) {
    MsgBox(u"There is already a rig type called '"_s + name + u'\'', u"Duplicate rig type"_s);
    return 0;
  }
  int id = 0;
  const bool written = Operation(u"Function AddRigType"_s, [&] {
    id = AddRow(tblRigTypes::kTable, {{tblRigTypes::Name, name}, {tblRigTypes::ReserveLocation, 0}});
  });
  return written ? id : 0;
}

bool RenameRigType(int id) {
  if (id == 0) {
    MsgBox(u"Please select a custom rig type"_s, u"Rename Rig Type"_s);
    return false;
  }
  const QString name = InputBox(u"Enter rig type name"_s, u"Rename rig type"_s, RigTypeName(id));
  return !name.isEmpty() && WriteField(id, tblRigTypes::Name, name);
}

void DeleteRigTypeRow(int id) { DeleteRecordsFromTable(tblRigTypes::ID, id); }

bool SetComponentTypesOfRigType(int id, const QList<int>& types, bool listIsEmpty) {
  if (listIsEmpty || id == 0) {
    MsgBox(listIsEmpty ? u"There are no rig types"_s : u"Please select a rig type"_s);
    return false;
  }
  return Operation(u"Sub SetComponentTypesOfRigType"_s, [&] {
    DeleteRows(tblRigTypeComponents::RigTypeID == id);
    for (int type : types) {
      AddRow(tblRigTypeComponents::kTable,
             {{tblRigTypeComponents::RigTypeID, id}, {tblRigTypeComponents::ComponentTypeID, type}});
    }
  });
}

void SetReserveLocation(int id, int location) {
  if (id != 0) WriteField(id, tblRigTypes::ReserveLocation, location);
}

void SaveRequiredSum(int id, const QList<int>& types) {
  if (id != 0) WriteField(id, tblRigTypes::Req, std::accumulate(types.cbegin(), types.cend(), 0));
}
