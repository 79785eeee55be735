#include "gear/catalogue.h"

#include "core/default_rows.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/store/rows.h"
#include "gear/models.h"

using namespace Qt::StringLiterals;

namespace {

IdList LoadNames(const QString& source, const Column& id, const Column& name) {
  IdList list;
  Operation(u"Function LoadNames"_s, [&] {
    for (const Recordset& row : Rows(source)) list.Add(row[name].ToText(), row[id].ToInt());
  });
  return list;
}

bool SameName(const QString& a, const QString& b) { return a.trimmed().toLower() == b.trimmed().toLower(); }

void TellTooLong() { MsgBox(u"Name is too long"_s, u"50 characters max"_s); }

/// Asks until the name fits.
QString AskModelName(int type, int manufacturer) {
  const QString typeName = ComponentTypeName(type);
  QStringList text;
  if (manufacturer > 0) text << u"Manufacturer: "_s + ManufacturerName(manufacturer);
  text << u"Enter "_s + typeName + u" model"_s;
  for (;;) {
    QString name = InputBox(Lines(text), u"Add new "_s + typeName.toLower() + u" model"_s).trimmed();
    if (name.size() <= kLongestModelName) return name;
    TellTooLong();
  }
}

QString AskOtherName(const QString& name, const QString& title) {
  const QString answer = InputBox(u"Enter new name:"_s, title, name).trimmed();
  return answer == name.trimmed() ? QString() : answer;
}

}  // namespace

IdList LoadModels(int type, int manufacturer) {
  Condition models = tblModels::TypeID == type;
  if (manufacturer != kNoManufacturerSelected) models = models && tblModels::ManfID == manufacturer;
  return LoadNames(models, tblModels::ID, tblModels::Name);
}

IdList LoadManufacturers() {
  IdList list = LoadNames(tblManufacturers::kTable, tblManufacturers::ID, tblManufacturers::Name);
  list.Add(u"(not specified)"_s, 0);
  return list;
}

int FindModelByName(const QString& name, int type) {
  const IdList models = LoadModels(type);
  for (qsizetype i = 0; i < models.Size(); ++i)
    if (SameName(models.texts.at(i), name)) return models.ids.at(i);
  return 0;
}

int RepairModelManufacturer(int model) {
  const int manufacturer = ModelManufacturer(model);
  if (manufacturer == 0 || !ManufacturerName(manufacturer).trimmed().isEmpty()) return manufacturer;
  Upkeep(u"Function RepairModelManufacturer"_s, [&] { UpdateTable(tblModels::ManfID, 0, tblModels::ID, model); });
  return 0;
}

bool RefuseDuplicateModel(const QString& name, int type, int& existing) {
  existing = FindModelByName(name, type);
  if (existing == 0) return false;
  const QString maker = ManufacturerName(ModelManufacturer(existing));
  MsgBox(Lines({u"There is already a "_s + ComponentTypeName(type) + u" named "_s + name,
                maker.trimmed().isEmpty() ? u"(Manufacturer not specified)"_s : u"Manufactured by "_s + maker}),
         u"Duplicate Name"_s);
  return true;
}

NewModel AddModelByAsking(int type, int manufacturer, const QString& buttonCaption) {
  if (manufacturer == kNoManufacturerSelected &&
      AskYes(u"Do you want to specify a manufacturer?"_s, u"Add new model"_s)) {
    MsgBox(u"Select a manufacturer, then click "_s + buttonCaption.toUpper(), u"Select manufacturer"_s);
    return {};
  }
  const QString name = AskModelName(type, manufacturer);
  if (name.isEmpty()) return {};
  int existing = 0;
  if (RefuseDuplicateModel(name, type, existing)) return {existing, false};
  return {AddModelOfManufacturer(name, type, qMax(manufacturer, 0)), true};
}

int AddModelByName(const QString& name, int type) {
  if (name.trimmed().size() > kLongestModelName) {
    TellTooLong();
    return 0;
  }
  int existing = 0;
  return RefuseDuplicateModel(name, type, existing) ? existing : AddModelOfManufacturer(name, type, 0);
}

NewModel AddPart(const QString& name, Money price, int manufacturer) {
  int existing = 0;
  if (RefuseDuplicateModel(name, kMisc, existing)) return {existing, false};
  int id = 0;
  const bool written = Operation(u"Sub AddPart"_s, [&] {
    id = AddModelOfManufacturer(name, kMisc, qMax(manufacturer, 0));
    UpdateTable(tblModels::Price, price, tblModels::ID, id);
  });
  return {written ? id : 0, true};
}

void SavePart(int id, const QString& name, Money price) {
  Operation(u"Sub SavePart"_s, [&] {
    UpdateTable(tblModels::Name, name, tblModels::ID, id);
    UpdateTable(tblModels::Price, price, tblModels::ID, id);
  });
}

int AddModelFromPicker(int type) {
  const QString typeName = ComponentTypeName(type);
  const QString name = InputBox(u"Enter name of new "_s + typeName, u"New "_s + typeName).trimmed();
  if (name.isEmpty()) return 0;
  if (FindModelByName(name, type) != 0) {
    MsgBox(u"The name '"_s + name + u"' already exists in the "_s + typeName + u" database"_s, u"Duplicate name"_s);
    return 0;
  }
  const int id = AddModel(name, type);
  if (id != 0)
    MsgBox(u'\'' + name + u"' has been added to the "_s + typeName + u" database"_s,
           u"New "_s + typeName + u" added"_s);
  return id;
}

bool RenameModel(int id) {
  const QString current = ModelName(id);
  const QString name = AskOtherName(current, u"Rename "_s + current);
  if (name.isEmpty()) return false;
  return Operation(u"Sub RenameModel"_s, [&] { UpdateTable(tblModels::Name, name, tblModels::ID, id); });
}

ModelDeletion DeleteModel(int id) {
  const QString name = ModelName(id);
  const int count = GetNumberRecordsComplex(tblComponents::ModelID == id).ToInt();
  if (count != 0) {
    const bool one = count == 1;
    const QString text =
        Lines({(one ? u"There is 1 "_s + name : u"There are "_s + QString::number(count) + u' ' + name + u"'s"_s) +
                   u" in your gear database."_s,
               u"If you delete this model, you will also delete "_s +
                   (one ? u"this "_s + name : u" these "_s + name + u"'s"_s),
               QString(), u"Would you like to see a list?"_s});
    if (AskYes(text, u"Deleting model "_s + name)) return ModelDeletion::ShowList;
  }
  if (!AskYes(u"Are you sure you wish to delete "_s + name, u"Delete "_s + name)) return ModelDeletion::Kept;
  const bool deleted = Operation(u"Sub DeleteModel"_s, [&] {
    DeleteRows(tblModels::ID == id);
    DeleteRows(tblComponents::ModelID == id);
  });
  return deleted ? ModelDeletion::Deleted : ModelDeletion::Kept;
}

bool LinkModelToManufacturer(int model, int manufacturer) {
  if (manufacturer <= 0) {
    MsgBox(u"Please select a manufacturer"_s, u"No manufacturer selected"_s);
    return false;
  }
  const QString maker = ManufacturerName(manufacturer);
  if (ModelManufacturer(model) == manufacturer) {
    MsgBox(maker + u" and "_s + ModelName(model) + u" are already linked"_s, u"Link Model and Manufacturer"_s);
    return false;
  }
  if (!AskYes(Lines({u"Do you want to link the following:"_s, QString(), u"   Manufacturer:  "_s + maker, QString(),
                     u"     "_s + ComponentTypeName(ModelType(model)) + u": "_s + ModelName(model)}),
              u"Link?"_s))
    return false;
  return Operation(u"Sub LinkModelToManufacturer"_s,
                   [&] { UpdateRows(tblModels::ManfID, manufacturer, tblModels::ID == model); });
}

int AddManufacturer() {
  const QString name = InputBox(u"Enter name of new manufacturer"_s, u"New Manufacturer"_s);
  if (name.trimmed().isEmpty()) return 0;
  int id = 0;
  const bool written = Operation(u"Function AddManufacturer"_s, [&] {
    int next = 1;
    bool taken = false;
    for (const Recordset& maker : Rows(Select(tblManufacturers::kTable).OrderBy(tblManufacturers::ID))) {
      next = maker[tblManufacturers::ID].ToInt() + 1;
      if (SameName(maker[tblManufacturers::Name].ToText(), name)) taken = true;
    }
    if (taken) {
      MsgBox(name + u" already exists"_s, u"Please note:"_s);
      return;
    }
    AddRow(tblManufacturers::kTable, {{tblManufacturers::ID, next}, {tblManufacturers::Name, name}});
    id = next;
  });
  return written ? id : 0;
}

bool RenameManufacturer(int id) {
  const QString name = AskOtherName(ManufacturerName(id), u"Rename manufacturer"_s);
  if (name.isEmpty()) return false;
  return Operation(u"Sub RenameManufacturer"_s, [&] {
    EditRow(tblManufacturers::ID == id, {{tblManufacturers::Name, name}});
  });
}

bool DeleteManufacturer(int id) {
  if (!AskYes(u"Are you you want to delete manufacturer "_s + ManufacturerName(id) + u'?', u"Delete Manufacturer?"_s))
    return false;
  return Operation(u"Sub DeleteManufacturer"_s, [&] {
    DeleteRows(tblManufacturers::ID == id);
    UpdateRows(tblModels::ManfID, 0, tblModels::ManfID == id);
  });
}
