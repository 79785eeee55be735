#include "gear/components.h"

#include <limits>

#include "core/dates.h"
#include "core/default_rows.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/store/rows.h"
#include "gear/models.h"
#include "gear/rigs.h"

using namespace Qt::StringLiterals;

namespace {

Value ComponentField(int id, const Column& field) { return GetValueFromTable(tblComponents::ID, id, field); }

int CountSerials(const QString& source, const QString& serial, int& id) {
  int count = 0;
  const QString wanted = serial.trimmed().toUpper();
  if (wanted.isEmpty()) return count;
  Operation(u"Function CountSerials"_s, [&] {
    for (const Recordset& component : Rows(source)) {
      if (component[tblComponents::SerialNumber].ToText().trimmed().toUpper() != wanted) continue;
      ++count;
      id = component[tblComponents::ID].ToInt();
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
  const QString serial = ComponentField(id, tblComponents::SerialNumber).ToText();
  if (serial.trimmed().isEmpty()) return {};
  return withPrefix ? u"s/n "_s + serial : serial;
}

int ComponentModel(int id) { return ComponentField(id, tblComponents::ModelID).ToInt(); }
int ComponentTypeOf(int id) { return ComponentField(id, tblComponents::TypeID).ToInt(); }
QString ComponentSubType(int id) { return ComponentField(id, tblComponents::SubType).ToText(); }
Date ComponentDom(int id) { return ComponentField(id, tblComponents::DOM).ToDate(); }
int ComponentOwner(int id) { return ComponentField(id, tblComponents::OwnerID).ToInt(); }
int ComponentRig(int id) { return ComponentField(id, tblComponents::RigID).ToInt(); }
bool ComponentExists(int id) { return id != 0 && ComponentField(id, tblComponents::ID).ToInt() == id; }

void SetComponentOwner(int id, int owner) { UpdateTable(tblComponents::OwnerID, owner, tblComponents::ID, id); }
void SetComponentType(int id, int type) { UpdateTable(tblComponents::TypeID, type, tblComponents::ID, id); }
void SetComponentRig(int id, int rig) { UpdateTable(tblComponents::RigID, rig, tblComponents::ID, id); }
void SetComponentModel(int id, int model) {
  Operation({u"Sub SetComponentModel"_s, u"Change component model"_s},
            [&] { UpdateTable(tblComponents::ModelID, model, tblComponents::ID, id); });
}

void SetComponentSerial(int id, const QString& serial) {
  UpdateTable(tblComponents::SerialNumber, serial, tblComponents::ID, id);
}
void SetComponentDom(int id, Date dom) { UpdateTable(tblComponents::DOM, dom, tblComponents::ID, id); }

void MovePhotos(int id, int rig) { UpdateTable(tblPhotos::rigID, rig, tblPhotos::ComponentID, id); }

void DeleteComponentRow(int id) { DeleteRecordsFromTable(tblComponents::ID, id); }

void SetLastComponentID(int id) {
  Upkeep(u"Sub SetLastComponentID"_s, [&] { UpdateRows(tblMisc::LastComponentID, id); });
}

int NumberOfComponents(int owner) { return GetNumberRecordsComplex(tblComponents::OwnerID == owner).ToInt(); }

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
      DeleteRows(tblComponents::RigID == rig && tblComponents::TypeID == type);
    }
    id = AddRow(tblComponents::kTable, {{tblComponents::ModelID, model},
                                        {tblComponents::TypeID, type},
                                        {tblComponents::RigID, rig},
                                        {tblComponents::SerialNumber, serial},
                                        {tblComponents::Grounded, false},
                                        {tblComponents::NumJumps, 0},
                                        {tblComponents::Comment, u" "},
                                        {tblComponents::OwnerID, owner},
                                        {tblComponents::DOM, Date()},
                                        {tblComponents::Price, Money()},
                                        {tblComponents::Color, QString()},
                                        {tblComponents::SubType, QString()},
                                        {tblComponents::PhotoName, QString()}});
  });
  return written ? id : 0;
}

void InstallComponent(int rig, int component, int owner) {
  Operation(u"Sub InstallComponent"_s, [&] {
    RowValues values = {{tblComponents::RigID, rig}};
    if (rig == 0 && ComponentOwner(component) == 0) values.Set(tblComponents::OwnerID, owner);
    EditRow(tblComponents::ID == component, values);
  });
}

void FreePlace(int rig, int type) {
  UpdateRows(tblComponents::RigID, 0, tblComponents::RigID == rig && tblComponents::TypeID == type);
}

void CheckComponentType(int id) {
  Upkeep(u"Sub CheckComponentType"_s, [&] {
    const int type = ModelType(ComponentModel(id));
    if (ComponentTypeOf(id) != type) SetComponentType(id, type);
  });
}

int FindBySerial(const QString& serial, int type, int& id) {
  id = 0;
  return CountSerials(type == 0 ? Select(tblComponents::kTable) : Select(tblComponents::TypeID == type), serial, id);
}

int CountSerialsOfModel(int model, const QString& serial, int& id) {
  id = 0;
  return CountSerials(tblComponents::ModelID == model, serial, id);
}
