#pragma once
#include <QList>
#include <QString>

#include <utility>

#include "core/lists.h"
#include "core/money.h"

/// The reserve repack is the one task whose price depends on the rig: on the model of its container, else on the type
/// of the rig, else the default price of the library. A zero at one level always falls through to the next.

/// The price of a repack line on a rig. Any other entry shows a notice and costs 0 here.
Money GetRepackPrice(int taskLibID, int rigID);
/// The price of a container model; 0 for no row. Any other entry than the repack shows a notice.
Money GetPriceByModel(int modelID, int taskLibID);
/// The price of a rig type, likewise.
Money GetPriceByType(int typeID, int taskLibID);
/// Stores a price; 0 means none.
void SaveByModel(int modelID, Money price);
void SaveByType(int typeID, Money price);

/// All prices of the repack, by the ids of rig types and of models.
struct RepackPrices {
  Money usual;
  QList<std::pair<int, Money>> byType;
  QList<std::pair<int, Money>> byModel;
};
/// Stores them all; false when that failed.
bool SaveRepackPrices(const RepackPrices& prices);
/// Forgets the prices of all rig types, or of all models.
void ClearPricesByType();
void ClearPricesByModel();

/// What the picker shows as the price of a repack: the default price, or "(cost varies)" when a price by model or by
/// rig type differs from it.
QString RepackPriceLabel();

/// The prices of the reserve repack for list boxes, "Javelin  95.00": first the library's own entry with its label,
/// then the container models and the rig types that have a price of their own. Each row carries the id of the entry,
/// of the model or of the rig type.
IdList LoadRepackPriceList();

/// Days between reserve repacks.
int RepackCycle();
/// Stores the cycle with the settings and with the library entry. Rows of the schedule keep the dates they have.
void SetRepackCycle(int days);
/// Asks for the cycle, the present one (or 180) proposed. Cancel and zero change nothing.
void AskRepackCycle();

/// Writes the repack entry of the library with a default price; adds it when it has gone.
void CheckIR(Money fee);
/// Adds a repack entry, after saying that there is none. `taskLibID` is the store's own next id.
void CreateRepackTaskType(int& taskLibID);
/// The repair at start-up: a library without entry 1 gets a repack entry that requires container and reserve.
void RepairRepackTaskType();
