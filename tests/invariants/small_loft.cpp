#include "invariants/small_loft.h"

#include "core/default_rows.h"
#include "core/store/connection.h"
#include "core/store/undo.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/rigs.h"
#include "jobs/completion.h"
#include "jobs/custom_entry.h"
#include "jobs/job_records.h"
#include "jobs/library_entry.h"
#include "jobs/lines.h"
#include "jobs/parts.h"
#include "jobs/task_rules.h"
#include "schedule/task_library.h"
#include "support/scripted_prompts.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kSportRig = 1;
constexpr int kTandemRig = 2;

Date On(int month, int day) { return Date::FromParts(2026, month, day); }

/// The records that a new loft gets before its first job.
struct Maker {
  const ThrowAwayLoft& loft;
  int rita = Add("Rita", "Hale", true);
  int rob = Add("Rob", "Okafor", true);
  int olaf = Add("Olaf", "Owner");
  int ann = Add("Ann", "Adams");
  int bob = Add("Bob", "Baker");
  int sun = loft.Add("tblManufacturers", {{"ID", 1}, {"Name", "Sun Path"}});
  int icarus = loft.Add("tblManufacturers", {{"ID", 2}, {"Name", "Icarus"}});
  int javelin = AddModelOfManufacturer("Javelin", kContainer, 1);
  int vector = AddModel("Vector", kContainer);
  int sabre = AddModel("Sabre", kMainCanopy);
  int raven = AddModelOfManufacturer("Raven", kReserveCanopy, 2);
  int cypres = AddModel("Cypres", kAad);
  int harness = AddModel("Harness", kPassengerHarness);
  int cutter = Part("Cutter", 85);
  int battery = Part("Battery", 40);
  int aadCheck = Task({.name = "AAD check",
                       .flatRate = Money::Whole(20),
                       .scheduled = true,
                       .interval = "6",
                       .unit = kMonths,
                       .logBook = true,
                       .componentTypes = {kAad},
                       .parts = {battery}});
  int lineCheck = Task({.name = "Line check",
                        .flatRate = Money::Whole(30),
                        .scheduled = true,
                        .interval = "1",
                        .unit = kYears,
                        .componentTypes = {kMainCanopy}});
  int fitCheck = Task({.name = "Fit check",
                       .flatRate = Money::Whole(15),
                       .scheduled = true,
                       .interval = "90",
                       .unit = kDays,
                       .allowMultiple = true,
                       .componentTypes = {kContainer, kMainCanopy}});
  int wash = Task({.name = "Wash", .flatRate = Money::Whole(50), .componentTypes = {kContainer}});
  int ride = SaveCustomEventToLib(u"Reserve ride"_s, {kReserveCanopy}, true);

  int Add(const char* first, const char* last, bool rigger = false) const {
    return loft.Add("tblPeople", {{"FirstName", first}, {"LastName", last}, {"rigger", rigger}});
  }
  int Part(const char* name, int price) const {
    return loft.Add("tblModels", {{"Name", name}, {"TypeID", kMisc}, {"Price", Money::Whole(price)}});
  }
  static int Task(const TaskTypeEntry& entry) {
    int id = 0;
    WriteTaskType(entry, id);
    return id;
  }
  int Rig(int owner, int type, const char* name) const {
    const int rig = CreateRig(owner, type, QLatin1StringView(name));
    NewComponent(javelin, kContainer, rig, QLatin1StringView(name) + u"-C"_s);
    NewComponent(sabre, kMainCanopy, rig, QLatin1StringView(name) + u"-M"_s);
    NewComponent(raven, kReserveCanopy, rig, QLatin1StringView(name) + u"-R"_s);
    if (type == kSportRig) NewComponent(cypres, kAad, rig, QLatin1StringView(name) + u"-A"_s);
    return rig;
  }
  void Loose(int model, int type, int owner, const char* serial) const {
    SetComponentOwner(NewComponent(model, type, 0, QLatin1StringView(serial)), owner);
  }
  int Job(const char* title, int customer, int rig, int component = 0) const {
    int job = 0;
    CreateNewJob(QLatin1StringView(title), customer, rig, component, job, rita, 0, On(2, 2));
    return job;
  }
  static int Line(int job, int entry, Date date) {
    AddLibraryTask(JobContextOf(job), entry, date, true);
    return LinesOfJob(job).constLast();
  }
};

}  // namespace

SmallLoft::SmallLoft() {
  ScriptedPrompts nobodyAsks;
  Make();
  ReleaseDatabaseFile();
  file_ = loft_.Folder().Read(u"loftkeep.mdb"_s);
}

void SmallLoft::Make() {
  SetRecordsOperations(false);
  const Maker made{loft_};
  loft_.Run(u"update tblMisc set RepackCycle = 180, UserID = %1, DefaultRiggerID = %1"_s.arg(made.rita));
  loft_.Run(u"update tblTaskLib set IntervalNumber = 180 where ID = 1"_s);
  for (const char* city : {"Davis", "Lodi"})
    loft_.Add("tblLocation", {{"City", city}, {"State", "CA"}, {"TaxRate", 7.25}, {"Default", false}});
  const int blue = made.Rig(made.olaf, kSportRig, "Blue");
  const int red = made.Rig(made.ann, kSportRig, "Red");
  const int green = made.Rig(made.bob, kTandemRig, "Green");
  made.Loose(made.raven, kReserveCanopy, made.olaf, "S1");
  made.Loose(made.cypres, kAad, made.ann, "S2");
  made.Loose(made.sabre, kMainCanopy, 0, "S3");
  const int first = made.Job("Blue in spring", made.olaf, blue);
  ToggleComplete(Maker::Line(first, RepackTaskLibID, On(2, 2)), On(2, 3), true);
  ToggleComplete(Maker::Line(first, made.aadCheck, On(2, 2)), On(2, 3), true);
  const int second = made.Job("Red, all of it", made.ann, red);
  ToggleComplete(Maker::Line(second, made.lineCheck, On(2, 10)), On(2, 11), true);
  Maker::Line(second, RepackTaskLibID, On(2, 10));
  Maker::Line(second, made.ride, On(2, 12));
  AddPartToJob(JobContextOf(second), made.cutter, On(2, 12));
  const int third = made.Job("Tandem", made.bob, green);
  Maker::Line(third, made.wash, On(3, 1));
  const int empty = made.Job("Empty", made.olaf, 0);
  for (int job : {first, second, third, empty}) RecomputeJobStatus(job);  // as each is when it is looked at
  SetRecordsOperations(true);
}

void SmallLoft::Reset() {
  ReleaseDatabaseFile();
  loft_.Folder().Write(u"loftkeep.mdb"_s, file_);
}
