#include "gear/rig_types.h"

#include "core/store/access.h"
#include "core/store/operation.h"

using namespace Qt::StringLiterals;

QString RigTypeName(int id) { return GetValueFromTable(u"tblrigTypes"_s, u"ID"_s, id, u"name"_s).ToText(); }
bool RigTypeExists(int id) {
  return id != 0 && GetValueFromTable(u"tblRigTypes"_s, u"ID"_s, id, u"ID"_s).ToInt() == id;
}

int ReserveLocation(int id) {
  return GetValueFromTableBySQL(u"Select * from tblRigTypes where id = "_s + QString::number(id), u"ReserveLocation"_s)
      .ToInt();
}

bool RigTypeHasComponentType(int rigType, int componentType) {
  return GetNumberRecordsComplex(
             u"Select * from tblRigTypeComponents where RigTypeID = %1 and ComponentTypeID = %2"_s.arg(rigType).arg(
                 componentType))
             .ToInt() > 0;
}

QList<int> ComponentTypesOfRigType(int id, bool orderedById) {
  QList<int> types;
  Operation(u"Function ComponentTypesOfRigType"_s, [&] {
    for (const Recordset& component :
         Rows(u"Select * from tblRigTypeComponents where rigTypeID = "_s + QString::number(id) +
              (orderedById ? u" order by ComponentTypeID"_s : QString()))) {
      const int type = component[u"ComponentTypeID"].ToInt();
      if (type != 0) types << type;
    }
  });
  return types;
}

int NumberOfComponentTypes(int rigType) {
  return GetNumberRecordsComplex(u"Select * from tblRigTypeComponents where RigTypeid = "_s + QString::number(rigType))
      .ToInt();
}

int NumberOfRigsOfType(int id) {
  return GetNumberRecordsComplex(u"Select * from tblRig where Typeid = "_s + QString::number(id)).ToInt();
}

int DefaultRigType() { return GetValueFromTableBySQL(u"tblMisc"_s, u"DefaultRigTypeID"_s).ToInt(); }

void SetDefaultRigType(int id) { UpdateTableBySQL(u"update tblMisc set defaultrigtypeID = "_s + QString::number(id)); }
