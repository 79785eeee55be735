#include "core/default_rows.h"

#include <QList>
#include <QString>

#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/store/rows.h"

using namespace Qt::StringLiterals;

namespace {

struct RigType {
  const char* name;
  int reserveLocation;
  QList<int> componentTypes;
};

void AddRigType(const RigType& rigType) {
  const int id = AddRow(tblRigTypes::kTable,
                        {{tblRigTypes::Name, rigType.name}, {tblRigTypes::ReserveLocation, rigType.reserveLocation}});
  for (int type : rigType.componentTypes) {
    AddRow(tblRigTypeComponents::kTable,
           {{tblRigTypeComponents::RigTypeID, id}, {tblRigTypeComponents::ComponentTypeID, type}});
  }
  if (rigType.name == "Sport Rig"_L1) UpdateRows(tblMisc::DefaultRigTypeID, id);
}

struct FixedTask {
  int id;
  const char* name;
  bool allowMultiple;
  int intervalType;
};

void AddTask(const FixedTask& task) {
  AddRow(tblTaskLib::kTable, {{tblTaskLib::ID, task.id},
                              {tblTaskLib::Name, task.name},
                              {tblTaskLib::Flatrate, Money()},
                              {tblTaskLib::HourlyRate, Money()},
                              {tblTaskLib::Logbook, true},
                              {tblTaskLib::AllowMultiple, task.allowMultiple},
                              {tblTaskLib::IntervalType, task.intervalType},
                              {tblTaskLib::ModelID, 0},
                              {tblTaskLib::IntervalNumber, 0},
                              {tblTaskLib::IsEvent, false},
                              {tblTaskLib::IsRigTypeSpecific, false}});
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
    DeleteAllRecords(tblComponentTypes::kTable, false);
    for (const auto& type : kTypes) {
      AddRow(tblComponentTypes::kTable, {{tblComponentTypes::ID, int{type.id}}, {tblComponentTypes::Name, type.name}});
    }
  });
}

void CheckComponentTypes() {
  UnrecordedOperation(u"Sub CheckComponentTypes"_s, [] {
    for (int id = kContainer; id <= kPassengerHarness; ++id) {
      if (GetNumberRecords(tblComponentTypes::ID, id) > 0) continue;
      SetDefaultComponentTypes();
      break;
    }
  });
}

void CreateDefaultRigTypes() {
  UnrecordedOperation(u"Sub CreateDefaultRigTypes"_s, [] {
    if (GetNumberRecordsInTable(tblRigTypes::kTable) == 0) {
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
    if (GetNumberRecordsInTable(tblTaskLib::kTable) == 0) {
      constexpr int kDays = 1;
      AddTask({RepackTaskLibID, "Inspect and repack reserve", false, kDays});
      AddTask({InstallTaskLibID, "Install component", true, 0});
      AddTask({RemoveTaskLibID, "Remove component", true, 0});
      for (int type : {kContainer, kReserveCanopy}) {
        AddRow(tblTaskLibComponentTypes::kTable, {{tblTaskLibComponentTypes::TaskLibID, RepackTaskLibID},
                                                  {tblTaskLibComponentTypes::ComponentTypeID, type}});
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

bool HasMiscRow() { return GetNumberRecordsInTable(tblMisc::kTable) > 0; }

void CheckMiscRow() {
  UnrecordedOperation(u"Sub CheckMiscRow"_s, [] {
    const int count = GetNumberRecordsInTable(tblMisc::kTable);
    if (count != 1) {
      if (count != 0) {
        MsgBox(QString::number(count) + u" records in tblMisc"_s, u"Reparing tblMisc"_s);
        DeleteAllRecords(tblMisc::kTable, false);
      }
      AddMiscRow(180);
    }
  });
}

void AddMiscRow(int repackCycle) {
  UnrecordedOperation(u"Sub AddMiscRow"_s, [&] {
    RowValues misc;
    misc.Set(tblMisc::HidePhotos, false);
    misc.Set(tblMisc::LastBackupDate, Date());
    for (const Column& id : {tblMisc::UserID, tblMisc::DefaultRigTypeID, tblMisc::LastSystemID, tblMisc::LastJobID,
                             tblMisc::LastCustomerID, tblMisc::LastComponentID, tblMisc::DefaultRiggerID})
      misc.Set(id, 0);
    misc.Set(tblMisc::RepackCycle, repackCycle);
    misc.Set(tblMisc::UploadAlias, QString());
    misc.Set(tblMisc::DefaultPhotoSize, 100);
    AddRow(tblMisc::kTable, misc);
  });
}
