#include "jobs/repack_price.h"

#include "core/default_rows.h"
#include "core/format.h"
#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/store/rows.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/rig_types.h"
#include "gear/rigs.h"
#include "schedule/task_library.h"

using namespace Qt::StringLiterals;

namespace {

/// The prices by model and by type are held in columns of one name.
constexpr QStringView kPrice = tblRepackByModel::Price;

Money PriceFrom(const QString& statement, int taskLibID) {
  if (taskLibID != RepackTaskLibID && GetNumberRecordsComplex(statement).ToInt() > 0) {
    MsgBox(u"you shouldn't be here"_s);
    return {};
  }
  return GetValueFromTableBySQL(statement, kPrice.toString()).ToMoney();
}

void SavePrice(const Table& table, const Column& key, int id, const Column& column, Money price) {
  Operation(u"Sub SavePrice"_s, [&] {
    const RowValues values = {{key, id}, {column, price}};
    if (!EditRow(key == id, values)) AddRow(table, values);
  });
}

void Clear(const QString& table) {
  Operation(u"Sub ClearAllPrices"_s, [&] { DeleteAllRecords(table, false); });
}

QString PriceText(Money price) { return Format(price, u"##0.00"_s); }

void AddPrices(IdList& list, const Table& table, const Column& key, QString (*nameOf)(int id)) {
  for (const Recordset& row : Rows(table)) {
    const int id = row[key].ToInt();
    const Money price = row[kPrice].ToMoney();
    if (!price.IsZero()) list.Add(nameOf(id) + u"  "_s + PriceText(price), id);
  }
}

bool HasOtherPrice(const Table& table, Money usual) {
  Recordset rows(table);
  if (!RecordsetHasRows(rows)) return false;
  for (; !rows.Eof(); rows.MoveNext()) {
    const Money price = rows[kPrice].ToMoney();
    if (!price.IsZero() && price != usual) return true;
  }
  return false;
}

}  // namespace

Money GetPriceByModel(int modelID, int taskLibID) { return PriceFrom(tblRepackByModel::ModelID == modelID, taskLibID); }

Money GetPriceByType(int typeID, int taskLibID) { return PriceFrom(tblRepackByType::TypeID == typeID, taskLibID); }

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

void SaveByModel(int modelID, Money price) {
  SavePrice(tblRepackByModel::kTable, tblRepackByModel::ModelID, modelID, tblRepackByModel::Price, price);
}

void SaveByType(int typeID, Money price) {
  SavePrice(tblRepackByType::kTable, tblRepackByType::TypeID, typeID, tblRepackByType::Price, price);
}

bool SaveRepackPrices(const RepackPrices& prices) {
  return Operation(u"Sub SaveRepackPrices"_s, [&] {
    CheckIR(prices.usual);
    for (const auto& [type, price] : prices.byType) SaveByType(type, price);
    for (const auto& [model, price] : prices.byModel) SaveByModel(model, price);
  });
}

void ClearPricesByType() { Clear(tblRepackByType::kTable); }
void ClearPricesByModel() { Clear(tblRepackByModel::kTable); }

QString RepackPriceLabel() {
  QString label;
  Operation(u"Function RepackPriceLabel"_s, [&] {
    const Money usual = TaskLibFlatRate(RepackTaskLibID);
    const bool varies = HasOtherPrice(tblRepackByModel::kTable, usual) || HasOtherPrice(tblRepackByType::kTable, usual);
    label = varies ? u"(cost varies)"_s : PriceText(usual);
  });
  return label;
}

IdList LoadRepackPriceList() {
  IdList list;
  Operation(u"Sub LoadRepackPriceList"_s, [&] {
    list.Add(TaskLibName(RepackTaskLibID) + u"  "_s + RepackPriceLabel(), RepackTaskLibID);
    AddPrices(list, tblRepackByModel::kTable, tblRepackByModel::ModelID, ModelName);
    AddPrices(list, tblRepackByType::kTable, tblRepackByType::TypeID, RigTypeName);
  });
  return list;
}
