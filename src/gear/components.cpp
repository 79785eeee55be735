#include "gear/components.h"

#include <limits>

#include "core/dates.h"
#include "core/default_rows.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "gear/models.h"
#include "gear/rigs.h"

using namespace Qt::StringLiterals;

namespace {

Value ComponentField(int id, const QString& field) { return GetValueFromTable(u"tblComponents"_s, u"ID"_s, id, field); }

int CountSerials(const QString& source, const QString& serial, int& id) {
  int count = 0;
  const QString wanted = serial.trimmed().toUpper();
  if (wanted.isEmpty()) return count;
  Operation(u"Function CountSerials"_s, [&] {
    for (const Recordset& component : Rows(source)) {
      if (component[u"SerialNumber"].ToText().trimmed().toUpper() != wanted) continue;
      ++count;
      id = component[u"ID"].ToInt();
    }
  });
  return count;
}

}  // namespace

QString ComponentDescription(int id) {
  if (!ComponentExists(id)) return u"(none)"_s;
  return ModelName(ComponentModel(id)) + u' ' + ComponentSubType(id);
}

QString ComponentSerial(int id, bool withPrefix) {
  const QString serial = ComponentField(id, u"SerialNumber"_s).ToText();
  if (serial.trimmed().isEmpty()) return {};
  return withPrefix ? u"s/n "_s + serial : serial;
}

int ComponentModel(int id) { return ComponentField(id, u"ModelID"_s).ToInt(); }
int ComponentTypeOf(int id) { return ComponentField(id, u"TypeID"_s).ToInt(); }
QString ComponentSubType(int id) { return ComponentField(id, u"SubType"_s).ToText(); }
Date ComponentDom(int id) { return ComponentField(id, u"DOM"_s).ToDate(); }
int ComponentOwner(int id) { return ComponentField(id, u"OwnerID"_s).ToInt(); }
int ComponentRig(int id) { return ComponentField(id, u"RigID"_s).ToInt(); }
bool ComponentExists(int id) { return id != 0 && ComponentField(id, u"ID"_s).ToInt() == id; }

void SetComponentOwner(int id, int owner) { UpdateTable(u"tblComponents"_s, u"ownerid"_s, owner, u"id"_s, id); }
void SetComponentType(int id, int type) { UpdateTable(u"tblComponents"_s, u"TypeID"_s, type, u"id"_s, id); }
void SetComponentRig(int id, int rig) { UpdateTable(u"tblComponents"_s, u"RigID"_s, rig, u"id"_s, id); }
void SetComponentModel(int id, int model) {
  Operation({u"Sub SetComponentModel"_s, u"Change component model"_s},
            [&] { UpdateTable(u"tblComponents"_s, u"ModelID"_s, model, u"ID"_s, id); });
}

void SetLastComponentID(int id) { UpdateTableBySQL(u"update tblMisc set LastComponentID = "_s + QString::number(id)); }

Date ComponentExpiry(int id) {
  Date expiry;
  Operation(u"Function ComponentExpiry"_s, [&] {
    const Date dom = ComponentDom(id);
    const int months = ServiceLife(ComponentModel(id));
    if (!dom.IsNone() && months != 0)
      expiry = AddMonthsToDate(dom, static_cast<qint16>(qMin<int>(months, std::numeric_limits<qint16>::max())));
  });
  return expiry;
}

int NewComponent(int model, int type, int rig, const QString& serial) {
  int id = 0;
  const bool written = Operation(u"Sub NewComponent"_s, [&] {
    int owner = 0;
    if (rig != 0) {
      owner = RigOwner(rig);
      DeleteRecordsFromTableBySQL(u"Delete * from tblComponents where rigID = %1 and typeID = %2"_s.arg(rig).arg(type));
    }
    {
      Recordset components(u"tblComponents"_s);
      components.AddNew();
      components.Set(u"ModelID", model);
      components.Set(u"TypeID", type);
      components.Set(u"RigID", rig);
      components.Set(u"SerialNumber", serial);
      components.Set(u"Grounded", false);
      components.Set(u"NumJumps", 0);
      components.Set(u"Comment", u" ");
      components.Set(u"OwnerID", owner);
      components.Set(u"DOM", Date());
      components.Set(u"Price", Money());
      for (QStringView text : {u"Color", u"SubType", u"PhotoName"}) components.Set(text, QString());
      components.Update();
      id = components[u"ID"].ToInt();
    }
  });
  return written ? id : 0;
}

void InstallComponent(int rig, int component, int owner) {
  Operation(u"Sub InstallComponent"_s, [&] {
    Recordset row(u"Select * from tblComponents where id = "_s + QString::number(component));
    if (RecordsetHasRows(row)) {
      row.Set(u"RigID", rig);
      if (rig == 0 && row[u"OwnerID"].ToInt() == 0) row.Set(u"OwnerID", owner);
      row.Update();
    }
  });
}

void FreePlace(int rig, int type) {
  UpdateTableBySQL(u"update tblComponents set RigID = 0 where RigID = %1 and TypeID = %2"_s.arg(rig).arg(type));
}

void CheckComponentType(int id) {
  Upkeep(u"Sub CheckComponentType"_s, [&] {
    Recordset component(u"select * from tblComponents where ID = "_s + QString::number(id));
    if (RecordsetHasRows(component)) {
      const int type = ModelType(component[u"ModelID"].ToInt());
      if (component[u"TypeID"].ToInt() != type) {
        component.Set(u"TypeID", type);
        component.Update();
      }
    }
  });
}

int FindBySerial(const QString& serial, int type, int& id) {
  id = 0;
  return CountSerials(
      type == 0 ? u"tblComponents"_s : u"Select * from tblComponents where TypeID = "_s + QString::number(type), serial,
      id);
}

int CountSerialsOfModel(int model, const QString& serial, int& id) {
  id = 0;
  return CountSerials(u"Select * from tblComponents where Modelid = "_s + QString::number(model), serial, id);
}

void DetachComponent(int rig, int component, int type) {
  Operation(u"Sub DetachComponent"_s, [&] {
    if (type == kContainer || type == kReserveCanopy) {
      Recordset entry(
          u"Select * from tblSchedules where rigID = %1 and tasklibid = %2"_s.arg(rig).arg(RepackTaskLibID));
      if (RecordsetHasRows(entry)) entry.Delete();
    }
    UpdateTableBySQL(u"Update tblSchedules set rigid = 0 where Componentid = "_s + QString::number(component));
  });
}
