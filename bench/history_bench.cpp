// The history of a rig with 500 lines, on the loft of the benchmarks: opened on its screen, read by its rules, and
// beside both one statement of plain SQLite that joins the same lines, but for the tasks without a component.
#include <QApplication>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include "bench/application.h"
#include "bench/loft_generator.h"
#include "core/default_rows.h"
#include "core/store/access.h"
#include "core/store/connection.h"
#include "gear/rig_types.h"
#include "gear/rigs.h"
#include "history/history.h"
#include "history/screens.h"
#include "history/screens/frmHistoryForm.h"
#include "jobs/lines.h"
#include "schedule/scheduled_task.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kRigViewed = 3000;
constexpr int kLines = 500;

QList<HistoryLine> LinesOfRig() { return LoadHx3(kRigViewed, {.types = ComponentTypesOfRigType(RigType(kRigViewed))}); }

/// A rig with so many lines; back to what it was when this goes.
class LongHistory {
 public:
  LongHistory() {
    UseBenchmarkLoft();
    Bracket bracket;
    const Date first = Date::FromParts(1990, 1, 1);
    for (qsizetype lines = LinesOfRig().size(); lines < kLines; lines += 2)  // a container and a reserve each
      added_ << WriteJoblessWork(RepackTaskLibID, kRigViewed, 0, first + static_cast<double>(lines));
    bracket.Close();
  }
  ~LongHistory() {
    Bracket bracket;
    for (int task : added_) DeleteTask(task);
    bracket.Close();
  }
  LongHistory(const LongHistory&) = delete;
  LongHistory& operator=(const LongHistory&) = delete;

 private:
  QList<int> added_;
};

void OpenHistoryOf500Lines(benchmark::State& state) {
  BenchApplication();
  const LongHistory history;
  for (auto _ : state) {
    OpenRigHistory(kRigViewed);
    QApplication::processEvents();
  }
  SharedForm<frmHistoryForm>().UnloadForm();
}
BENCHMARK(OpenHistoryOf500Lines)->Unit(benchmark::kMillisecond);

void ReadHistoryOf500Lines(benchmark::State& state) {
  const LongHistory history;
  qsizetype lines = 0;
  for (auto _ : state) lines = LinesOfRig().size();
  state.counters["lines"] = static_cast<double>(lines);
}
BENCHMARK(ReadHistoryOf500Lines)->Unit(benchmark::kMillisecond);

constexpr char kSameLines[] =
    "SELECT m.Name, c.SubType, c.SerialNumber, r.rigAlias, t.TaskName, t.DateTaskCompleted FROM tblComponents c JOIN "
    "tblModels m ON m.ID = c.ModelID JOIN tblTaskComponents tc ON tc.CompID = c.ID JOIN tblTasks t ON t.ID = tc.TaskID "
    "LEFT JOIN tblRig r ON r.ID = t.SystemID WHERE c.RigID = 3000 OR c.ID IN (SELECT jc.ComponentID FROM "
    "tblJobComponents jc JOIN tblJobs j ON j.ID = jc.JobID WHERE j.SystemID = 3000)";

void PlainHistoryOfOneStatement(benchmark::State& state) {
  const LongHistory history;
  ReleaseDatabaseFile();
  sqlite3* handle = nullptr;
  sqlite3_open(DatabasePath().toUtf8().constData(), &handle);
  sqlite3_stmt* lines = nullptr;
  if (sqlite3_prepare_v2(handle, kSameLines, -1, &lines, nullptr) != SQLITE_OK)
    state.SkipWithError(sqlite3_errmsg(handle));
  int count = 0;
  for (auto _ : state) {
    for (count = 0; lines && sqlite3_step(lines) == SQLITE_ROW; ++count)
      benchmark::DoNotOptimize(sqlite3_column_text(lines, 4));
    sqlite3_reset(lines);
  }
  state.counters["lines"] = count;
  sqlite3_finalize(lines);
  sqlite3_close(handle);
}
BENCHMARK(PlainHistoryOfOneStatement)->Unit(benchmark::kMillisecond);

}  // namespace
