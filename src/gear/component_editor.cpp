#include "gear/component_editor.h"

#include <limits>

#include "core/dates.h"
#include "core/default_rows.h"
#include "core/format.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/store/rows.h"
#include "core/text.h"
#include "gear/component_types.h"
#include "gear/components.h"
#include "gear/models.h"

using namespace Qt::StringLiterals;

namespace {

RowValues FieldsOf(const ComponentEntry& entry) {
  return {{tblComponents::ModelID, entry.model},
          {tblComponents::TypeID, entry.type},
          {tblComponents::Color, entry.color},
          {tblComponents::SerialNumber, entry.serial},
          {tblComponents::Grounded, false},
          {tblComponents::NumJumps, entry.jumps},
          {tblComponents::SubType, entry.subType},
          {tblComponents::Comment, entry.comment.trimmed().isEmpty() ? u" "_s : entry.comment},
          {tblComponents::OwnerID, entry.owner},
          {tblComponents::Price, entry.price},
          {tblComponents::PhotoName, entry.photoName},
          {tblComponents::DOM, entry.dom}};
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
    Recordset row(tblComponents::ID == id);
    exists = RecordsetHasRows(row);
    if (exists)
      entry = {.id = id,
               .model = row[tblComponents::ModelID].ToInt(),
               .type = row[tblComponents::TypeID].ToInt(),
               .owner = row[tblComponents::OwnerID].ToInt(),
               .rig = row[tblComponents::RigID].ToInt(),
               .subType = row[tblComponents::SubType].ToText(),
               .serial = row[tblComponents::SerialNumber].ToText(),
               .color = row[tblComponents::Color].ToText(),
               .comment = row[tblComponents::Comment].ToText(),
               .photoName = row[tblComponents::PhotoName].ToText(),
               .dom = row[tblComponents::DOM].ToDate(),
               .jumps = row[tblComponents::NumJumps].ToInt(),
               .price = row[tblComponents::Price].ToMoney()};
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
    RowValues values = FieldsOf(entry);
    if (entry.id == 0) {
      values.Set(tblComponents::RigID, entry.rig);
      id = AddRow(tblComponents::kTable, values);
    } else if (EditRow(tblComponents::ID == entry.id, values)) {
      id = entry.id;
    }
    if (id != 0) CheckComponentType(id);
  });
  if (written && id == 0) MsgBox(u"you shouldn't be here - updating record but no record"_s, u"Darn!"_s);
  return written ? id : 0;
}

bool SaveShortEntry(int component, int model, const QString& serial, Date dom, const QString& subType) {
  return Operation(u"Sub SaveShortEntry"_s, [&] {
    EditRow(tblComponents::ID == component, {{tblComponents::ModelID, model},
                                             {tblComponents::SerialNumber, serial},
                                             {tblComponents::DOM, dom},
                                             {tblComponents::SubType, subType}});
    CheckComponentType(component);
  });
}
