// What a click on a job costs on the loft of the benchmarks, beside the same writes in plain SQLite (both wait for the
// disk, so they are measured by the clock on the wall), and the rebuilding of the schedule beside one statement of
// plain SQLite that computes the same rows.
#include <QApplication>

#include <array>
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include "bench/application.h"
#include "bench/loft_generator.h"
#include "core/shell/frmMain2.h"
#include "core/store/access.h"
#include "core/store/connection.h"
#include "core/store/undo.h"
#include "gear/screens.h"
#include "history/screens.h"
#include "jobs/completion.h"
#include "jobs/job_records.h"
#include "jobs/lines.h"
#include "jobs/parts.h"
#include "jobs/screens.h"
#include "jobs/screens/frmJob.h"
#include "schedule/reconstruct.h"
#include "schedule/screens.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kJob = 20000;

/// Whether what is measured is recorded, so that it can be taken back.
class Recording {
 public:
  explicit Recording(const benchmark::State& state) { SetRecordsOperations(state.range(0) != 0); }
  ~Recording() { SetRecordsOperations(true); }
};

void StatusClickWithItsSchedule(benchmark::State& state) {
  UseBenchmarkLoft();
  const Recording recording(state);
  const int line = LinesOfJob(kJob).value(0);
  for (auto _ : state) ToggleComplete(line, JobDateStarted(kJob), true);
  if (!LineIsDone(line)) ToggleComplete(line, JobDateStarted(kJob), true);
}
BENCHMARK(StatusClickWithItsSchedule)
    ->ArgName("recorded")
    ->Arg(0)
    ->Arg(1)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

/// To the last screen painted anew.
void StatusClickWithAllScreensOpen(benchmark::State& state) {
  BenchApplication();
  UseBenchmarkLoft();
  SharedForm<frmMain2>().show();
  OpenPeople();
  OpenRigs({});
  OpenJobList();
  OpenSchedule();
  OpenRigHistory(JobSystemID(kJob));
  GotoJob(kJob);
  QApplication::processEvents();
  const int line = LinesOfJob(kJob).value(0);
  for (auto _ : state) {
    ToggleComplete(line, JobDateStarted(kJob), true);
    QApplication::processEvents();
  }
  if (!LineIsDone(line)) ToggleComplete(line, JobDateStarted(kJob), true);
  state.counters["screens"] = static_cast<double>(Forms::Loaded().size());
  for (LoadedForm* form : Forms::Loaded()) form->UnloadForm();
}
BENCHMARK(StatusClickWithAllScreensOpen)->Unit(benchmark::kMillisecond)->UseRealTime();

/// The loft's file in the hands of plain SQLite.
class PlainLoft {
 public:
  explicit PlainLoft(benchmark::State& state) : state_(state) {
    UseBenchmarkLoft();
    ReleaseDatabaseFile();
    sqlite3_open(DatabasePath().toUtf8().constData(), &handle_);
  }
  ~PlainLoft() { sqlite3_close(handle_); }
  void Run(const char* sql) {
    char* error = nullptr;
    if (sqlite3_exec(handle_, sql, nullptr, nullptr, &error) != SQLITE_OK) state_.SkipWithError(error);
  }
  int Changes() const { return sqlite3_changes(handle_); }

 private:
  benchmark::State& state_;
  sqlite3* handle_ = nullptr;
};

void PlainTransactionOfItsWrites(benchmark::State& state) {
  PlainLoft loft(state);
  loft.Run("PRAGMA locking_mode = EXCLUSIVE; PRAGMA journal_mode = TRUNCATE; PRAGMA synchronous = FULL");
  const QString writes =
      u"BEGIN; UPDATE tblTasks SET DateTaskCompleted = DateTaskCompleted %1 WHERE ID = 75000;"
      "UPDATE tblTaskComponents SET Complete = -1 - Complete WHERE rowid = 40000;"
      "UPDATE tblSchedules SET DateDue = DateDue %1 WHERE ID = (SELECT min(ID) FROM tblSchedules);"
      "UPDATE tblJobs SET DateCompleted = DateCompleted %1 WHERE ID = 20000; COMMIT"_s;
  const std::array<QByteArray, 2> thereAndBack = {writes.arg(u"+ 1"_s).toUtf8(), writes.arg(u"- 1"_s).toUtf8()};
  size_t step = 0;
  for (auto _ : state) loft.Run(thereAndBack.at(step++ % 2).constData());
  if (step % 2 == 1) loft.Run(thereAndBack.at(1).constData());
}
BENCHMARK(PlainTransactionOfItsWrites)->Unit(benchmark::kMillisecond)->UseRealTime();

void LoadJobOf20Lines(benchmark::State& state) {
  BenchApplication();
  UseBenchmarkLoft();
  const int part = GetValueFromTableBySQL(tblModels::TypeID == 7, tblModels::ID).ToInt();
  QList<int> added;
  while (LinesOfJob(kJob).size() < 20) added << AddPartToJob(JobContextOf(kJob), part, JobDateStarted(kJob));
  CompleteAllTasks(kJob, true, JobDateStarted(kJob), true);
  for (auto _ : state) {
    GotoJob(kJob);
    QApplication::processEvents();
  }
  SharedForm<frmJob>().UnloadForm();
  for (int line : added) DeleteTask(line);
}
BENCHMARK(LoadJobOf20Lines)->Unit(benchmark::kMillisecond);

void RebuildSchedule(benchmark::State& state) {
  UseBenchmarkLoft();
  const Recording recording(state);
  for (auto _ : state) ReconstructSchedules();
  state.counters["rows"] = GetNumberRecordsInTable(tblSchedules::kTable);
}
BENCHMARK(RebuildSchedule)->ArgName("recorded")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

/// The latest complete repack of each container that is in a rig, and the cycle after it.
constexpr char kSameRows[] =
    "INSERT INTO made SELECT c.RigID, 1, max(t.DateTaskCompleted), max(t.DateTaskCompleted) + 180, t.ID FROM "
    "tblComponents "
    "c JOIN tblTaskComponents tc ON tc.CompID = c.ID AND tc.Complete = -1 JOIN tblTasks t ON t.ID = tc.TaskID AND "
    "t.TaskLibID = 1 WHERE c.TypeID = 1 AND c.RigID > 0 GROUP BY c.ID";

void PlainScheduleOfOneStatement(benchmark::State& state) {
  PlainLoft loft(state);
  loft.Run("CREATE TEMP TABLE made (rigID, TaskLibID, DateDone, DateDue, TaskID)");
  for (auto _ : state) {
    loft.Run("DELETE FROM made");
    loft.Run(kSameRows);
  }
  state.counters["rows"] = loft.Changes();
}
BENCHMARK(PlainScheduleOfOneStatement)->Unit(benchmark::kMillisecond);

}  // namespace
