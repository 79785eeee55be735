#include "sample/sample_jobs.h"

#include "core/clock.h"
#include "core/default_rows.h"
#include "core/failure.h"
#include "core/format.h"
#include "gear/catalogue.h"
#include "gear/rigs.h"
#include "jobs/completion.h"
#include "jobs/job_records.h"
#include "jobs/library_entry.h"
#include "jobs/line_edits.h"
#include "jobs/lines.h"
#include "jobs/repack_price.h"
#include "jobs/task_rules.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kSportRig = 1;
constexpr int kTandemRig = 2;
constexpr int kOnTheBench = 5;  ///< jobs that are not done yet

class Jobs {
 public:
  Jobs(const SampleShop& shop, Date today, std::mt19937& random) : shop_(shop), today_(today), random_(random) {}

  /// A repack with what else came up, done within some days.
  void Repack(const SampleRig& rig, Date day) { Finish(Begin(rig, day), day); }

  /// The same, not done yet. The job.
  int Begin(const SampleRig& rig, Date day) {
    SetClock(day);
    const int job = Start(rig, u"%1 %2"_s.arg(RigName(rig.id), Format(day, u"m/d/yyyy"_s)), day);
    AddFromLibrary(job, RepackTaskLibID, day);
    if (Draw(4) == 0) AddPartLine(job, shop_.closingLoop);
    if (rig.type == kTandemRig) AddFromLibrary(job, shop_.tandemCheck, day);
    if (rig.type == kSportRig && Draw(5) == 0) AddFromLibrary(job, shop_.lineCheck, day);
    if ((rig.type == kTandemRig || rig.type == kSportRig) && Draw(9) == 0) AddFromLibrary(job, shop_.patch, day);
    if (Draw(20) == 0) AddCustom(job, {u"Reattach lost toggle keeper"_s, Money::Whole(15), true});
    return job;
  }

  void Reserve(const SampleRig& rig, Date day) {
    SetClock(day);
    const int job = Start(rig, u"Reserve ride %1"_s.arg(Format(day, u"m/d/yyyy"_s)), day);
    SetLineComments(
        AddFromLibrary(job, shop_.ride, day),
        u"Line twist. Cut away at 1,800 ft. Freebag and pilot chute were found, the closing loop was replaced."_s);
    AddFromLibrary(job, RepackTaskLibID, day);
    Finish(job, day);
  }

  int Draw(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }

 private:
  int Start(const SampleRig& rig, const QString& title, Date day) {
    int job = 0;
    CreateNewJob(title, rig.owner, rig.id, 0, job, shop_.riggers[Draw(3) == 0 ? 1 : 0],
                 shop_.locations[Draw(5) == 0 ? 1 : 0], day);
    SetJobDatePromised(job, day + 7);
    return job;
  }

  int AddFromLibrary(int job, int taskLibID, Date day) {
    if (AddLibraryTask(JobContextOf(job), taskLibID, day, true) != LibraryOutcome::Added)
      throw Failure(u"The sample loft can't add %1 to a job"_s.arg(TaskLibName(taskLibID)));
    return LinesOfJob(job).constLast();
  }

  int AddCustom(int job, const CustomLine& line) {
    int task = 0;
    AddCustomLine(JobContextOf(job), line, Today(), task);
    return task;
  }

  void AddPartLine(int job, int part) {
    int task = 0;
    AddTaskToJob(JobContextOf(job), part, true, Today(), task);
  }

  void Finish(int job, Date day) {
    const Date done = day + 1 + Draw(5);
    if (done > today_ - 1) return;
    SetClock(done);
    CompleteAllTasks(job, true, done, true);
    RecomputeJobStatus(job);  // as whoever opens the job does
  }

  const SampleShop& shop_;
  Date today_;
  std::mt19937& random_;
};

int AddTask(const TaskTypeEntry& entry) {
  int id = 0;
  if (!WriteTaskType(entry, id)) throw Failure(u"The sample loft can't write a task"_s);
  return id;
}

}  // namespace

void AddSampleLibrary(SampleShop& shop) {
  CheckIR(Money::Whole(75));
  SaveByType(kTandemRig, Money::Whole(110));
  shop.closingLoop = AddPart(u"Closing loop"_s, Money::FromText(u"6.50"_s), 0).id;
  AddPart(u"Rubber bands (bag of 100)"_s, Money::Whole(4), 0);
  AddPart(u"AAD battery"_s, Money::Whole(89), 0);
  AddPart(u"Slider grommet"_s, Money::FromText(u"12.75"_s), 0);
  shop.lineCheck = AddTask({.name = u"Main canopy line check"_s,
                            .flatRate = Money::Whole(25),
                            .logBook = true,
                            .componentTypes = {kMainCanopy}});
  shop.tandemCheck = AddTask({.name = u"Tandem line check"_s,
                              .flatRate = Money::Whole(40),
                              .scheduled = true,
                              .interval = u"180"_s,
                              .unit = kDays,
                              .logBook = true,
                              .rigTypeSpecific = true,
                              .rigTypes = {kTandemRig},
                              .componentTypes = {kMainCanopy}});
  shop.patch = AddTask({.name = u"Patch small hole in main"_s,
                        .flatRate = Money::Whole(35),
                        .allowMultiple = true,
                        .logBook = true,
                        .componentTypes = {kMainCanopy}});
  AddTask({.name = u"Replace AAD battery"_s, .flatRate = Money::Whole(20), .logBook = true, .componentTypes = {kAad}});
  shop.ride = SaveCustomEventToLib(u"Reserve ride"_s, {kContainer, kReserveCanopy}, false);
  SaveCustomEventToLib(u"AAD activation"_s, {kReserveCanopy, kAad}, false);
  SaveCustomEventToLib(u"Water landing"_s, {kContainer, kReserveCanopy}, true);
}

void AddSampleJobs(QList<SampleRig> rigs, const SampleShop& shop, Date start, Date today, std::mt19937& random) {
  Jobs jobs(shop, today, random);
  for (Date day = start; day < today; day = day + 1) {
    for (SampleRig& rig : rigs) {
      if (rig.nextRepack != day) continue;
      jobs.Draw(40) == 0 ? jobs.Reserve(rig, day) : jobs.Repack(rig, day);
      // A few owners stop coming in the last year, and their repacks fall due.
      const bool stops = day > today - 400 && jobs.Draw(7) == 0;
      rig.nextRepack = stops ? Date() : day + rig.days + jobs.Draw(25);
    }
  }
  for (int i = 0; i < kOnTheBench; ++i) jobs.Begin(rigs[3 + 10 * i], today - (1 + i));
}
