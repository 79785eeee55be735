#include "sample/sample_loft.h"

#include "core/clock.h"
#include "core/data_folder.h"
#include "core/default_rows.h"
#include "core/files.h"
#include "core/store/access.h"
#include "core/store/database.h"
#include "core/store/operation.h"
#include "dbcare/check_fields.h"
#include "gear/location_rules.h"
#include "gear/models_file.h"
#include "gear/people.h"
#include "jobs/repack_price.h"
#include "reports/business_address.h"
#include "sample/sample_history.h"
#include "sample/sample_jobs.h"
#include "sample/sample_people.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kYears = 3;

void MakeDataFolder() {
  CreateFolder(DataPath);
  CreateSubFolders();
  Database::CreateFile(DatabaseFile());
  ConnectionString = ConnectionStringFor(DatabaseFile());
}

QList<int> AddPeople() {
  QList<int> ids;
  for (const Person& person : SamplePeople()) ids << SaveNewOwner(person, ids.isEmpty());
  SetDefaultRigger(ids.first());
  return ids;
}

/// The loft itself, and the airfield where it packs at weekends.
QList<int> AddLocations() {
  QList<int> ids;
  for (LocationEntry place : {LocationEntry{u"Fairhaven"_s, u"CA"_s, u"7.75"_s, true},
                              LocationEntry{u"Cedar Flats"_s, u"AZ"_s, u"5.6"_s, false}})
    ids << SaveLocation(place, 0);
  return ids;
}

/// Lets the clock run again, whatever happened.
struct ClockReset {
  ~ClockReset() { SetClock({}); }
};

}  // namespace

void MakeSampleLoft(Date today) {
  const ClockReset reset;
  std::mt19937 random(20060102);
  const Date start = today - kYears * 365;
  MakeDataFolder();
  Operation(u"Sub MakeSampleLoft"_s, [&] {
    SetClock(start);
    CheckAllFields(false);
    CreateDefaultRows();
    CheckModelsFile();
    SetRepackCycle(180);
    WriteAddress(u"Fairhaven Rigging Loft\n1 Airport Road\nFairhaven, CA 92599"_s);
    const QList<int> people = AddPeople();
    SampleShop shop{people.first(kSampleRiggers), AddLocations()};
    AddSampleLibrary(shop);
    const QList<SampleRig> rigs = AddSampleGear(people.mid(kSampleRiggers), start, random);
    AddSampleHistory(rigs);
    AddSampleJobs(rigs, shop, start, today, random);
  });
}
