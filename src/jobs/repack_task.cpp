#include "core/default_rows.h"
#include "core/format.h"
#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/trap.h"
#include "jobs/repack_price.h"
#include "schedule/task_library.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kUsualCycle = 180;  // days

/// Everything of a repack entry but its id.
void WriteRepackEntry(Recordset& tasks, Money fee) {
  tasks.Set(u"Name", u"Inspect and repack reserve");
  tasks.Set(u"FlatRate", fee);
  tasks.Set(u"HourlyRate", Money());
  tasks.Set(u"LogBook", true);
  tasks.Set(u"AllowMultiple", false);
  tasks.Set(u"ModelID", 0);
  tasks.Set(u"IntervalNumber", RepackCycle());
  tasks.Set(u"IntervalType", static_cast<int>(kDays));
  tasks.Update();
}

void RequireContainerAndReserve(int taskLibID) {
  Recordset types(u"tblTaskLibComponentTypes"_s);
  for (ComponentType type : {kContainer, kReserveCanopy}) {
    types.AddNew();
    types.Set(u"TaskLibID", taskLibID);
    types.Set(u"ComponentTypeID", static_cast<int>(type));
    types.Update();
  }
}

}  // namespace

int RepackCycle() { return GetValueFromTableBySQL(u"Select * from tblMisc"_s, u"RepackCycle"_s).ToInt(); }

void SetRepackCycle(int days) {
  Operation(u"Sub SetRepackCycle"_s, [&] {
    UpdateTable(u"tblTaskLib"_s, u"IntervalNumber"_s, days, u"ID"_s, RepackTaskLibID);
    if (GetNumberRecordsInTable(u"tblMisc"_s) == 0) AddMiscRow(days);
    UpdateTableBySQL(u"update tblMisc set RepackCycle = %1"_s.arg(days));
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
    Recordset tasks(u"Select * from tblTaskLib where ID = %1"_s.arg(RepackTaskLibID));
    const bool isNew = !RecordsetHasRows(tasks);
    if (isNew) {
      MsgBox(u"No repack task in library"_s, u"Sub CheckIR(IRfee As Currency)"_s);
      tasks.AddNew();
    }
    WriteRepackEntry(tasks, fee);
    if (isNew) RequireContainerAndReserve(tasks[u"ID"].ToInt());
  });
}

void CreateRepackTaskType(int& taskLibID) {
  taskLibID = 0;
  const bool written = Operation(u"Sub CreateRepackTaskType"_s, [&] {
    MsgBox(u"repack not found in task library"_s, u"Sub CreateRepackTaskType(TaskLibID As Long)"_s);
    Recordset tasks(u"tblTaskLib"_s);
    tasks.AddNew();
    WriteRepackEntry(tasks, Money());
    taskLibID = tasks[u"ID"].ToInt();
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
