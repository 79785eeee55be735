#include "gear/rig_type_rules.h"

#include <numeric>

#include "core/store/access.h"
#include "core/store/operation.h"
#include "gear/rig_types.h"

using namespace Qt::StringLiterals;

namespace {

QString RowStatement(int id) { return u"Select * from tblRigTypes where id = "_s + QString::number(id); }

bool WriteField(int id, QStringView field, const Value& value) {
  return Operation(u"Sub WriteField"_s, [&] {
    Recordset row(RowStatement(id));
    if (RecordsetHasRows(row)) {
      row.Set(field, value);
      row.Update();
    }
  });
}

}  // namespace

IdList LoadRigTypesById() {
  IdList list;
  Operation(u"Function LoadRigTypesById"_s, [&] {
    for (const Recordset& type : Rows(u"Select * from tblRigTypes order by ID"_s))
      list.Add(type[u"Name"].ToText(), type[u"ID"].ToInt());
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
    Recordset types(u"tblRigTypes"_s);
    types.AddNew();
    types.Set(u"Name", name);
    types.Set(u"ReserveLocation", 0);
    types.Update();
    id = types[u"ID"].ToInt();
  });
  return written ? id : 0;
}

bool RenameRigType(int id) {
  if (id == 0) {
    MsgBox(u"Please select a custom rig type"_s, u"Rename Rig Type"_s);
    return false;
  }
  const QString name = InputBox(u"Enter rig type name"_s, u"Rename rig type"_s, RigTypeName(id));
  return !name.isEmpty() && WriteField(id, u"Name", name);
}

RigTypeDeletion DeleteRigType(int id) {
  if (id == 0) {
    MsgBox(u"You must select a rig type"_s);
    return RigTypeDeletion::Kept;
  }
  if (const int rigs = NumberOfRigsOfType(id); rigs > 0) {
    const QString text =
        Lines({(rigs == 1 ? u"There is one rig"_s : u"There are "_s + QString::number(rigs) + u" rigs"_s) +
                   u" of that type in your rig database"_s,
               QString(), u"This rig type cannot be deleted while being used."_s, QString(),
               u"Would you like to see of list of rigs of this type?"_s});
    return AskYes(text, u"Rig Type:  "_s + RigTypeName(id)) ? RigTypeDeletion::ShowRigs : RigTypeDeletion::Kept;
  }
  if (!AskYes(u"Delete "_s + RigTypeName(id) + u'?', u"Are you sure?"_s)) return RigTypeDeletion::Kept;
  const bool deleted = Operation(u"Sub DeleteRigType"_s, [&] {
    DeleteRecordsFromTable(u"tblRepackByType"_s, u"TypeID"_s, id);
    DeleteRecordsFromTable(u"tblRigTypes"_s, u"id"_s, id);
  });
  return deleted ? RigTypeDeletion::Deleted : RigTypeDeletion::Kept;
}

bool SetComponentTypesOfRigType(int id, const QList<int>& types, bool listIsEmpty) {
  if (listIsEmpty || id == 0) {
    MsgBox(listIsEmpty ? u"There are no rig types"_s : u"Please select a rig type"_s);
    return false;
  }
  return Operation(u"Sub SetComponentTypesOfRigType"_s, [&] {
    DeleteRecordsFromTableBySQL(u"Delete * from tblRigTypeComponents where RigTypeid = "_s + QString::number(id));
    {
      Recordset components(u"tblRigTypeComponents"_s);
      for (int type : types) {
        components.AddNew();
        components.Set(u"rigTypeID", id);
        components.Set(u"ComponentTypeID", type);
        components.Update();
      }
    }
  });
}

void SetReserveLocation(int id, int location) {
  if (id != 0) WriteField(id, u"ReserveLocation", location);
}

void SaveRequiredSum(int id, const QList<int>& types) {
  if (id != 0) WriteField(id, u"Req", std::accumulate(types.cbegin(), types.cend(), 0));
}
