#include "gear/component_editor.h"

#include <limits>

#include "core/dates.h"
#include "core/default_rows.h"
#include "core/format.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/text.h"
#include "gear/component_types.h"
#include "gear/components.h"
#include "gear/models.h"

using namespace Qt::StringLiterals;

namespace {

QString RowStatement(int id) { return u"Select * from tblComponents where ID = "_s + QString::number(id); }

void WriteFields(Recordset& row, const ComponentEntry& entry) {
  row.Set(u"ModelID", entry.model);
  row.Set(u"TypeID", entry.type);
  row.Set(u"Color", entry.color);
  row.Set(u"SerialNumber", entry.serial);
  row.Set(u"Grounded", false);
  row.Set(u"NumJumps", entry.jumps);
  row.Set(u"SubType", entry.subType);
  row.Set(u"Comment", entry.comment.trimmed().isEmpty() ? u" "_s : entry.comment);
  row.Set(u"OwnerID", entry.owner);
  row.Set(u"Price", entry.price);
  row.Set(u"PhotoName", entry.photoName);
  row.Set(u"DOM", entry.dom);
  row.Update();
}

SerialCheck CheckSerialOfNew(int model, const QString& serial, int other) {
  const QString name = ModelName(model);
  const bool see =
      AskYes(Lines({u"There already is "_s + ArticleFor(name) + name + u' ' + TypeInSentence(ModelType(model)),
                    u"with serial number "_s + serial.trimmed() + u" in the component database. "_s, QString(),
                    u"Would you like to see it?"_s}),
             u"Component already exists"_s);
  return see ? SerialCheck{SerialCheck::SwitchTo, other} : SerialCheck{SerialCheck::Refused, 0};
}

}  // namespace

bool LoadComponentEntry(int id, ComponentEntry& entry) {
  entry = {};
  bool exists = false;
  Operation(u"Function LoadComponentEntry"_s, [&] {
    Recordset row(RowStatement(id));
    exists = RecordsetHasRows(row);
    if (exists)
      entry = {.id = id,
               .model = row[u"ModelID"].ToInt(),
               .type = row[u"TypeID"].ToInt(),
               .owner = row[u"OwnerID"].ToInt(),
               .rig = row[u"RigID"].ToInt(),
               .subType = row[u"SubType"].ToText(),
               .serial = row[u"SerialNumber"].ToText(),
               .color = row[u"Color"].ToText(),
               .comment = row[u"Comment"].ToText(),
               .photoName = row[u"PhotoName"].ToText(),
               .dom = row[u"DOM"].ToDate(),
               .jumps = row[u"NumJumps"].ToInt(),
               .price = row[u"Price"].ToMoney()};
  });
  return exists;
}

QString SubTypeLabel(int type) {
  return type == kMainCanopy || type == kReserveCanopy ? u"Canopy Size:"_s : u"Model sub type:"_s;
}

bool ReadDom(const QString& text, Date& dom, const QString& title) {
  dom = {};
  const QString typed = text.trimmed().replace(u'\\', u'/');
  if (typed.isEmpty()) return true;
  const bool isYear = typed.size() == 4 && Val(typed) >= 1850 && Val(typed) < 2300;
  if (!isYear && !IsValidDate(typed)) {
    MsgBox(text.trimmed() + u" is not a valid date"_s, title);
    return false;
  }
  dom = ParseDate(typed);
  return true;
}

bool ReadNumJumps(const QString& text, int& jumps) {
  const double number = Val(QString(text).remove(u','));
  if (number > std::numeric_limits<int>::max() || number < std::numeric_limits<int>::min()) {
    MsgBox(u"Number jumps field is too high"_s);
    return false;
  }
  jumps = Value(number).ToInt();
  return true;
}

SerialCheck CheckSerial(int model, const QString& serial, int component) {
  int other = 0;
  const int count = CountSerialsOfModel(model, serial, other);
  if (count == 0) return {};
  if (component == 0) return CheckSerialOfNew(model, serial, other);
  if (count > 1) {
    MsgBox(u"there are "_s + QString::number(count) + u" matching s/n for this model"_s);
    return {SerialCheck::Refused, 0};
  }
  if (other == component) return {};
  MsgBox(Lines({u"That serial number is already being used"_s, u"by the component shown here"_s}));
  return {SerialCheck::InUse, other};
}

int SaveComponentEntry(const ComponentEntry& entry) {
  if (entry.model == 0) MsgBox(u"ModelID = 0"_s);
  int id = 0;
  const bool written = Operation(u"Function SaveComponentEntry"_s, [&] {
    Recordset row(entry.id == 0 ? u"tblComponents"_s : RowStatement(entry.id));
    if (entry.id == 0) {
      row.AddNew();
      row.Set(u"RigID", entry.rig);
      WriteFields(row, entry);
      id = row[u"ID"].ToInt();
    } else if (RecordsetHasRows(row)) {
      WriteFields(row, entry);
      id = entry.id;
    }
    if (id != 0) CheckComponentType(id);
  });
  if (written && id == 0) MsgBox(u"you shouldn't be here - updating record but no record"_s, u"Darn!"_s);
  return written ? id : 0;
}

bool SaveShortEntry(int component, int model, const QString& serial, Date dom, const QString& subType) {
  return Operation(u"Sub SaveShortEntry"_s, [&] {
    {
      Recordset row(RowStatement(component));
      if (RecordsetHasRows(row)) {
        row.Set(u"ModelID", model);
        row.Set(u"SerialNumber", serial);
        row.Set(u"DOM", dom);
        row.Set(u"SubType", subType);
        row.Update();
      }
    }
    CheckComponentType(component);
  });
}
