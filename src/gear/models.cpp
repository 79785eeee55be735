#include "gear/models.h"

#include "core/store/access.h"
#include "core/store/operation.h"

using namespace Qt::StringLiterals;

namespace {

Value ModelField(int id, const QString& field) { return GetValueFromTable(u"tblModels"_s, u"ID"_s, id, field); }

int InsertModel(const QString& name, int type, int manufacturer) {
  int id = 0;
  if (name.isEmpty()) return id;
  const bool written = Operation(u"Function AddModel"_s, [&] {
    Recordset models(u"tblModels"_s);
    models.AddNew();
    models.Set(u"ManfID", manufacturer);
    models.Set(u"TypeID", type);
    models.Set(u"Price", Money());
    models.Set(u"Name", name);
    models.Set(u"servicelife", 0);
    models.Update();
    id = models[u"ID"].ToInt();
  });
  return written ? id : 0;
}

}  // namespace

QString ComponentTypeName(int id) { return GetValueFromTable(u"tblComponentTypes"_s, u"ID"_s, id, u"Name"_s).ToText(); }

QString ModelName(int id) { return ModelField(id, u"Name"_s).ToText(); }
int ModelType(int id) { return ModelField(id, u"TypeID"_s).ToInt(); }
Money ModelPrice(int id) { return ModelField(id, u"Price"_s).ToMoney(); }
int ModelManufacturer(int id) { return ModelField(id, u"ManfID"_s).ToInt(); }
bool ModelExists(int id) { return id != 0 && ModelField(id, u"ID"_s).ToInt() == id; }
int ServiceLife(int modelId) { return ModelField(modelId, u"ServiceLife"_s).ToInt(); }

QString ManufacturerName(int id) {
  return GetValueFromTableBySQL(u"select * from tblManufacturers where id = "_s + QString::number(id), u"Name"_s)
      .ToText();
}

int AddModel(const QString& name, int type) { return InsertModel(name, type, 0); }

int AddModelOfManufacturer(const QString& name, int type, int manufacturer) {
  return InsertModel(name.trimmed(), type, manufacturer);
}
