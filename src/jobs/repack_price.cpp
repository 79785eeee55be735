#include "jobs/repack_price.h"

#include "core/default_rows.h"
#include "core/format.h"
#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/rig_types.h"
#include "gear/rigs.h"
#include "schedule/task_library.h"

using namespace Qt::StringLiterals;

namespace {

Money PriceFrom(const QString& statement, int taskLibID) {
  if (taskLibID != RepackTaskLibID && GetNumberRecordsComplex(statement).ToInt() > 0) {
    MsgBox(u"you shouldn't be here"_s);
    return {};
  }
  return GetValueFromTableBySQL(statement, u"Price"_s).ToMoney();
}

void SavePrice(const QString& table, const QString& key, int id, Money price) {
  Operation(u"Sub SavePrice"_s, [&] {
    Recordset rows(u"Select * from %1 where %2 = %3"_s.arg(table, key).arg(id));
    if (!RecordsetHasRows(rows)) rows.AddNew();
    rows.Set(key, id);
    rows.Set(u"Price", price);
    rows.Update();
  });
}

void Clear(const QString& table) {
  Operation(u"Sub ClearAllPrices"_s, [&] { DeleteAllRecords(table, false); });
}

QString PriceText(Money price) { return Format(price, u"##0.00"_s); }

void AddPrices(IdList& list, const QString& table, QStringView key, QString (*nameOf)(int id)) {
  for (const Recordset& row : Rows(table)) {
    const int id = row[key].ToInt();
    const Money price = row[u"Price"].ToMoney();
    if (!price.IsZero()) list.Add(nameOf(id) + u"  "_s + PriceText(price), id);
  }
}

bool HasOtherPrice(const QString& table, Money usual) {
  Recordset rows(u"Select * from "_s + table);
  if (!RecordsetHasRows(rows)) return false;
  for (; !rows.Eof(); rows.MoveNext()) {
    const Money price = rows[u"Price"].ToMoney();
    if (!price.IsZero() && price != usual) return true;
  }
  return false;
}

}  // namespace

Money GetPriceByModel(int modelID, int taskLibID) {
  return PriceFrom(u"Select * from tblRepackByModel where Modelid = %1"_s.arg(modelID), taskLibID);
}

Money GetPriceByType(int typeID, int taskLibID) {
  return PriceFrom(u"Select * from tblRepackByType where Typeid = %1"_s.arg(typeID), taskLibID);
}

Money GetRepackPrice(int taskLibID, int rigID) {
  Money price;
  Operation(u"Function GetRepackPrice"_s, [&] {
    price = GetPriceByModel(ComponentModel(ComponentOfTypeInRig(rigID, kContainer)), taskLibID);
    if (price.IsZero()) price = GetPriceByType(RigType(rigID), taskLibID);
    if (price.IsZero() && taskLibID == RepackTaskLibID)
      price = TaskLibFlatRate(RepackTaskLibID);
    else if (price.IsZero())
      MsgBox(u"you shouldn't be here"_s);
  });
  return price;
}

void SaveByModel(int modelID, Money price) { SavePrice(u"tblRepackByModel"_s, u"ModelID"_s, modelID, price); }

void SaveByType(int typeID, Money price) { SavePrice(u"tblRepackByType"_s, u"TypeID"_s, typeID, price); }

bool SaveRepackPrices(const RepackPrices& prices) {
  return Operation(u"Sub SaveRepackPrices"_s, [&] {
    CheckIR(prices.usual);
    for (const auto& [type, price] : prices.byType) SaveByType(type, price);
    for (const auto& [model, price] : prices.byModel) SaveByModel(model, price);
  });
}

void ClearPricesByType() { Clear(u"tblRepackByType"_s); }
void ClearPricesByModel() { Clear(u"tblRepackByModel"_s); }

QString RepackPriceLabel() {
  QString label;
  Operation(u"Function RepackPriceLabel"_s, [&] {
    const Money usual = TaskLibFlatRate(RepackTaskLibID);
    const bool varies = HasOtherPrice(u"tblRepackByModel"_s, usual) || HasOtherPrice(u"tblRepackByType"_s, usual);
    label = varies ? u"(cost varies)"_s : PriceText(usual);
  });
  return label;
}

IdList LoadRepackPriceList() {
  IdList list;
  Operation(u"Sub LoadRepackPriceList"_s, [&] {
    list.Add(TaskLibName(RepackTaskLibID) + u"  "_s + RepackPriceLabel(), RepackTaskLibID);
    AddPrices(list, u"tblRepackByModel"_s, u"ModelID", ModelName);
    AddPrices(list, u"tblRepackByType"_s, u"TypeID", RigTypeName);
  });
  return list;
}
