#include "gear/models.h"

#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/store/rows.h"

using namespace Qt::StringLiterals;

namespace {

Value ModelField(int id, const Column& field) { return GetValueFromTable(tblModels::ID, id, field); }

int InsertModel(const QString& name, int type, int manufacturer) {
  int id = 0;
  if (name.isEmpty()) return id;
  const bool written = Operation(u"Function AddModel"_s, [&] {
    id = AddRow(tblModels::kTable, {{tblModels::ManfID, manufacturer},
                                    {tblModels::TypeID, type},
                                    {tblModels::Price, Money()},
                                    {tblModels::Name, name},
                                    {tblModels::ServiceLife, 0}});
  });
  return written ? id : 0;
}

}  // namespace

QString ComponentTypeName(int id) {
  return GetValueFromTable(tblComponentTypes::ID, id, tblComponentTypes::Name).ToText();
}

QString ModelName(int id) { return ModelField(id, tblModels::Name).ToText(); }
int ModelType(int id) { return ModelField(id, tblModels::TypeID).ToInt(); }
Money ModelPrice(int id) { return ModelField(id, tblModels::Price).ToMoney(); }
int ModelManufacturer(int id) { return ModelField(id, tblModels::ManfID).ToInt(); }
bool ModelExists(int id) { return id != 0 && ModelField(id, tblModels::ID).ToInt() == id; }
int ServiceLife(int modelId) { return ModelField(modelId, tblModels::ServiceLife).ToInt(); }

QString ManufacturerName(int id) {
  return GetValueFromTableBySQL(tblManufacturers::ID == id, tblManufacturers::Name).ToText();
}

void DeleteModelRow(int id) { DeleteRecordsFromTable(tblModels::ID, id); }

int AddModel(const QString& name, int type) { return InsertModel(name, type, 0); }

int AddModelOfManufacturer(const QString& name, int type, int manufacturer) {
  return InsertModel(name.trimmed(), type, manufacturer);
}
