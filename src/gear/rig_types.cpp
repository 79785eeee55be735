#include "gear/rig_types.h"

#include "core/store/access.h"
#include "core/store/operation.h"

using namespace Qt::StringLiterals;

QString RigTypeName(int id) { return GetValueFromTable(tblRigTypes::ID, id, tblRigTypes::Name).ToText(); }
bool RigTypeExists(int id) { return id != 0 && GetValueFromTable(tblRigTypes::ID, id, tblRigTypes::ID).ToInt() == id; }

int ReserveLocation(int id) {
  return GetValueFromTableBySQL(tblRigTypes::ID == id, tblRigTypes::ReserveLocation).ToInt();
}

bool RigTypeHasComponentType(int rigType, int componentType) {
  return GetNumberRecordsComplex(tblRigTypeComponents::RigTypeID == rigType &&
                                 tblRigTypeComponents::ComponentTypeID == componentType)
             .ToInt() > 0;
}

QList<int> ComponentTypesOfRigType(int id, bool orderedById) {
  QList<int> types;
  Operation(u"Function ComponentTypesOfRigType"_s, [&] {
    Select components(tblRigTypeComponents::RigTypeID == id);
    if (orderedById) components.OrderBy(tblRigTypeComponents::ComponentTypeID);
    for (const Recordset& component : Rows(components)) {
      const int type = component[tblRigTypeComponents::ComponentTypeID].ToInt();
      if (type != 0) types << type;
    }
  });
  return types;
}

int NumberOfComponentTypes(int rigType) {
  return GetNumberRecordsComplex(tblRigTypeComponents::RigTypeID == rigType).ToInt();
}

int NumberOfRigsOfType(int id) { return GetNumberRecordsComplex(tblRig::TypeID == id).ToInt(); }

int DefaultRigType() { return GetValueFromTableBySQL(tblMisc::kTable, tblMisc::DefaultRigTypeID).ToInt(); }

void SetDefaultRigType(int id) { UpdateRows(tblMisc::DefaultRigTypeID, id); }
