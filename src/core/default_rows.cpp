#include "core/default_rows.h"

#include <QList>
#include <QString>

#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"

using namespace Qt::StringLiterals;

namespace {

struct RigType {
  const char* name;
  int reserveLocation;
  QList<int> componentTypes;
};

void AddRigType(const RigType& rigType) {
  Recordset types(u"tblRigTypes"_s);
  types.AddNew();
  types.Set(u"Name", rigType.name);
  types.Set(u"ReserveLocation", rigType.reserveLocation);
  types.Update();
  const int id = types[u"ID"].ToInt();
  Recordset components(u"tblRigTypeComponents"_s);
  for (int type : rigType.componentTypes) {
    components.AddNew();
    components.Set(u"RigTypeID", id);
    components.Set(u"ComponentTypeID", type);
    components.Update();
  }
  if (rigType.name == "Sport Rig"_L1)
    UpdateTableBySQL(u"update tblMisc set defaultrigtypeID = "_s + QString::number(id));
}

struct FixedTask {
  int id;
  const char* name;
  bool allowMultiple;
  int intervalType;
};

void AddTask(const FixedTask& task) {
  Recordset tasks(u"tblTaskLib"_s);
  tasks.AddNew();
  tasks.Set(u"ID", task.id);
  tasks.Set(u"Name", task.name);
  tasks.Set(u"FlatRate", Money());
  tasks.Set(u"HourlyRate", Money());
  tasks.Set(u"LogBook", true);
  tasks.Set(u"AllowMultiple", task.allowMultiple);
  tasks.Set(u"IntervalType", task.intervalType);
  tasks.Set(u"ModelID", 0);
  tasks.Set(u"IntervalNumber", 0);
  tasks.Set(u"IsEvent", false);
  tasks.Set(u"IsRigTypeSpecific", false);
  tasks.Update();
}

}  // namespace

void SetDefaultComponentTypes() {
  UnrecordedOperation(u"Sub SetDefaultComponentTypes"_s, [] {
    static constexpr struct {
      ComponentType id;
      const char* name;
    } kTypes[] = {{kContainer, "Container"},
                  {kMainCanopy, "Main Canopy"},
                  {kReserveCanopy, "Reserve Canopy"},
                  {kAad, "AAD"},
                  {kChestReserve, "Chest Reserve"},
                  {kPassengerHarness, "Passenger Harness"},
                  {kMisc, "Misc"}};
    DeleteAllRecords(u"tblComponentTypes"_s, false);
    Recordset types(u"tblComponentTypes"_s);
    for (const auto& type : kTypes) {
      types.AddNew();
      types.Set(u"ID", int{type.id});
      types.Set(u"Name", type.name);
      types.Update();
    }
  });
}

void CheckComponentTypes() {
  UnrecordedOperation(u"Sub CheckComponentTypes"_s, [] {
    for (int id = kContainer; id <= kPassengerHarness; ++id) {
      if (GetNumberRecords(u"tblcomponentTypes"_s, u"id"_s, id) > 0) continue;
      SetDefaultComponentTypes();
      break;
    }
  });
}

void CreateDefaultRigTypes() {
  UnrecordedOperation(u"Sub CreateDefaultRigTypes"_s, [] {
    if (GetNumberRecordsInTable(u"tblRigTypes"_s) == 0) {
      constexpr int kBack = 1;
      constexpr int kSeat = 2;
      AddRigType({"Sport Rig", kBack, {kContainer, kMainCanopy, kReserveCanopy, kAad}});
      AddRigType({"Tandem Rig", kBack, {kContainer, kMainCanopy, kReserveCanopy, kAad, kPassengerHarness}});
      AddRigType({"Pilot Emergency Rig (back)", kBack, {kContainer, kReserveCanopy}});
      AddRigType({"Pilot Emergency Rig (seat)", kSeat, {kContainer, kReserveCanopy}});
    }
  });
}

void CreateDefaultTasks() {
  UnrecordedOperation(u"Sub CreateDefaultTasks"_s, [] {
    if (GetNumberRecordsInTable(u"tblTaskLib"_s) == 0) {
      constexpr int kDays = 1;
      AddTask({RepackTaskLibID, "Inspect and repack reserve", false, kDays});
      AddTask({InstallTaskLibID, "Install component", true, 0});
      AddTask({RemoveTaskLibID, "Remove component", true, 0});
      Recordset required(u"tblTaskLibComponentTypes"_s);
      for (int type : {kContainer, kReserveCanopy}) {
        required.AddNew();
        required.Set(u"TaskLibID", RepackTaskLibID);
        required.Set(u"ComponentTypeID", type);
        required.Update();
      }
    }
  });
}

void CreateDefaultRows() {
  UnrecordedOperation(u"Sub CreateDefaultRows"_s, [] {
    CheckMiscRow();
    SetDefaultComponentTypes();
    CreateDefaultRigTypes();
    CreateDefaultTasks();
  });
}

bool HasMiscRow() { return GetNumberRecordsInTable(u"tblMisc"_s) > 0; }

void CheckMiscRow() {
  UnrecordedOperation(u"Sub CheckMiscRow"_s, [] {
    const int count = GetNumberRecordsInTable(u"tblMisc"_s);
    if (count != 1) {
      if (count != 0) {
        MsgBox(QString::number(count) + u" records in tblMisc"_s, u"Reparing tblMisc"_s);
        DeleteAllRecords(u"tblMisc"_s, false);
      }
      AddMiscRow(180);
    }
  });
}

void AddMiscRow(int repackCycle) {
  UnrecordedOperation(u"Sub AddMiscRow"_s, [&] {
    Recordset misc(u"tblMisc"_s);
    misc.AddNew();
    misc.Set(u"HidePhotos", false);
    misc.Set(u"LastBackupDate", Date());
    for (QStringView id : {u"UserID", u"DefaultRigTypeID", u"LastSystemID", u"LastJobID", u"LastCustomerID",
                           u"LastComponentID", u"DefaultRiggerID"})
      misc.Set(id, 0);
    misc.Set(u"RepackCycle", repackCycle);
    misc.Set(u"UploadAlias", QString());
    misc.Set(u"DefaultPhotoSize", 100);
    misc.Update();
  });
}
