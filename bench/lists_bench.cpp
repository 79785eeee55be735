// The long lists of the program on the loft of the benchmarks: from the call of a screen to its picture, beside a plain
// read of the rows that it shows.
#include <QApplication>
#include <QRadioButton>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include "bench/application.h"
#include "bench/loft_generator.h"
#include "core/store/connection.h"
#include "core/widgets/grid.h"
#include "core/widgets/list.h"
#include "gear/screens.h"
#include "gear/screens/components/frmPickComponent.h"
#include "gear/screens/people/frmPeople.h"
#include "gear/screens/rigs/frmGetRig.h"
#include "jobs/screens/frmJobList.h"
#include "schedule/screens/frmSchedule.h"

namespace {

/// The rows of the longest list or table on a form.
int LongestList(const QWidget& form) {
  int longest = 0;
  for (const List* list : form.findChildren<List*>()) longest = qMax(longest, list->Count());
  for (const Grid* grid : form.findChildren<Grid*>()) longest = qMax(longest, grid->RowCount());
  return longest;
}

/// Shows a fresh form as `open` does, over and over.
template <class Form, class Open>
void OpenScreen(benchmark::State& state, Open&& open) {
  BenchApplication();
  UseBenchmarkLoft();
  for (auto _ : state) {
    open(SharedForm<Form>());
    QApplication::processEvents();
    state.PauseTiming();
    state.counters["rows"] = LongestList(SharedForm<Form>());
    SharedForm<Form>().UnloadForm();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    state.ResumeTiming();
  }
}

void OpenPeopleList(benchmark::State& state) {
  OpenScreen<frmPeople>(state, [](frmPeople&) { OpenPeople(); });
}
BENCHMARK(OpenPeopleList)->Unit(benchmark::kMillisecond);

void OpenRigsOfAllCustomers(benchmark::State& state) {
  OpenScreen<frmGetRig>(state, [](frmGetRig& form) {
    OpenRigs({});
    form.findChild<QRadioButton*>(QStringLiteral("optAll"))->click();
  });
}
BENCHMARK(OpenRigsOfAllCustomers)->Unit(benchmark::kMillisecond);

void OpenPickerOfAllComponents(benchmark::State& state) {
  OpenScreen<frmPickComponent>(state, [](frmPickComponent& form) {
    form.SetChoice(0, 0);
    form.show();
  });
}
BENCHMARK(OpenPickerOfAllComponents)->Unit(benchmark::kMillisecond);

void SortPickerOfAllComponents(benchmark::State& state) {
  BenchApplication();
  UseBenchmarkLoft();
  auto& form = SharedForm<frmPickComponent>();
  form.SetChoice(0, 0);
  form.show();
  QApplication::processEvents();
  auto* grid = form.findChild<Grid*>();
  int turn = 0;
  for (auto _ : state) {
    grid->SortBy(turn % 4, turn % 2 ? Qt::DescendingOrder : Qt::AscendingOrder);
    QApplication::processEvents();
    ++turn;
  }
  state.counters["rows"] = LongestList(form);
  form.UnloadForm();
}
BENCHMARK(SortPickerOfAllComponents)->Unit(benchmark::kMillisecond);

void OpenJobListOfAllCustomers(benchmark::State& state) {
  OpenScreen<frmJobList>(state, [](frmJobList&) { OpenJobList(); });
}
BENCHMARK(OpenJobListOfAllCustomers)->Unit(benchmark::kMillisecond);

void OpenScheduleOfAllCustomers(benchmark::State& state) {
  OpenScreen<frmSchedule>(state, [](frmSchedule&) { OpenSchedule(); });
}
BENCHMARK(OpenScheduleOfAllCustomers)->Unit(benchmark::kMillisecond);

/// Reads the rows of a table as plain SQLite does, all their fields.
void PlainRead(benchmark::State& state, const char* statement) {
  UseBenchmarkLoft();
  ReleaseDatabaseFile();
  sqlite3* handle = nullptr;
  sqlite3_open(DatabasePath().toUtf8().constData(), &handle);
  for (auto _ : state) {
    sqlite3_stmt* prepared = nullptr;
    if (sqlite3_prepare_v2(handle, statement, -1, &prepared, nullptr) != SQLITE_OK) state.SkipWithError(statement);
    while (sqlite3_step(prepared) == SQLITE_ROW)
      for (int column = 0; column < sqlite3_column_count(prepared); ++column)
        benchmark::DoNotOptimize(sqlite3_column_text(prepared, column));
    sqlite3_finalize(prepared);
  }
  sqlite3_close(handle);
}
BENCHMARK_CAPTURE(PlainRead, people, "SELECT * FROM tblPeople ORDER BY LastName")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PlainRead, rigs, "SELECT * FROM tblRig ORDER BY rigAlias")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PlainRead, jobs, "SELECT * FROM tblJobs ORDER BY DateStarted DESC, ID DESC")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PlainRead, schedules, "SELECT * FROM tblSchedules ORDER BY DateDue")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PlainRead, components, "SELECT * FROM tblComponents ORDER BY ID")->Unit(benchmark::kMillisecond);

}  // namespace
