#include "core/default_rows.h"
#include "core/format.h"
#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/store/rows.h"
#include "core/trap.h"
#include "jobs/repack_price.h"
#include "schedule/task_library.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kUsualCycle = 180;  // days

/// Everything of a repack entry but its id.
RowValues RepackEntry(Money fee) {
  return {{tblTaskLib::Name, u"Inspect and repack reserve"},
          {tblTaskLib::Flatrate, fee},
          {tblTaskLib::HourlyRate, Money()},
          {tblTaskLib::Logbook, true},
          {tblTaskLib::AllowMultiple, false},
          {tblTaskLib::ModelID, 0},
          {tblTaskLib::IntervalNumber, RepackCycle()},
          {tblTaskLib::IntervalType, static_cast<int>(kDays)}};
}

void RequireContainerAndReserve(int taskLibID) {
  for (ComponentType type : {kContainer, kReserveCanopy}) {
    AddRow(tblTaskLibComponentTypes::kTable, {{tblTaskLibComponentTypes::TaskLibID, taskLibID},
                                              {tblTaskLibComponentTypes::ComponentTypeID, static_cast<int>(type)}});
  }
}

}  // namespace

int RepackCycle() { return GetValueFromTableBySQL(tblMisc::kTable, tblMisc::RepackCycle).ToInt(); }

void SetRepackCycle(int days) {
  Operation(u"Sub SetRepackCycle"_s, [&] {
    UpdateTable(tblTaskLib::IntervalNumber, days, tblTaskLib::ID, RepackTaskLibID);
    if (GetNumberRecordsInTable(tblMisc::kTable) == 0) AddMiscRow(days);
    UpdateRows(tblMisc::RepackCycle, days);
  });
}

void AskRepackCycle() {
  Trap(u"Sub mnuRepackcycle_Click"_s, [] {
    int days = RepackCycle();
    if (days == 0) days = kUsualCycle;
    const QString reply = InputBox(u"Reserve must be repacked every %1 days"_s.arg(days),
                                   u"Enter repack cycle (in days)"_s, QString::number(days));
    const int chosen = Value(Val(reply)).ToInt16();
    if (chosen == 0) return;
    SetRepackCycle(chosen);
    MsgBox(u"Repack cycle is now set to %1 days"_s.arg(chosen), u"Repack Cycle Saved"_s);
  });
}

void CheckIR(Money fee) {
  Operation(u"Sub CheckIR"_s, [&] {
    if (EditRow(tblTaskLib::ID == RepackTaskLibID, RepackEntry(fee))) return;
    MsgBox(u"No repack task in library"_s, u"Sub CheckIR(IRfee As Currency)"_s);
    RequireContainerAndReserve(AddRow(tblTaskLib::kTable, RepackEntry(fee)));
  });
}

void CreateRepackTaskType(int& taskLibID) {
  taskLibID = 0;
  const bool written = Operation(u"Sub CreateRepackTaskType"_s, [&] {
    MsgBox(u"repack not found in task library"_s, u"Sub CreateRepackTaskType(TaskLibID As Long)"_s);
    taskLibID = AddRow(tblTaskLib::kTable, RepackEntry(Money()));
  });
  if (!written) taskLibID = 0;
}

void RepairRepackTaskType() {
  int taskLibID = 0;
  const bool written = Operation(u"Sub RepairRepackTaskType"_s, [&] {
    if (TaskLibExists(RepackTaskLibID)) return;
    CreateRepackTaskType(taskLibID);
    if (taskLibID != 0) RequireContainerAndReserve(taskLibID);
  });
  if (written && taskLibID != 0) MsgBox(u"Reserve repack added to task library"_s, u"New task type added"_s);
}
