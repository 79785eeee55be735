#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include "bench/loft_generator.h"
#include "core/store/access.h"
#include "core/store/database.h"

// What the layer above SQLite costs. Each pair runs the same query on the same loft: the program's routine, and a
// statement prepared once on a connection of plain SQLite.

using namespace Qt::StringLiterals;

namespace {

constexpr int kPeople = 3000;

/// A connection of plain SQLite with one prepared statement, opened the way a program commonly does.
class Plain {
 public:
  explicit Plain(const char* sql) {
    UseBenchmarkLoft();
    ReleaseDatabaseFile();
    sqlite3_open(DatabasePath().toUtf8().constData(), &handle_);
    sqlite3_prepare_v2(handle_, sql, -1, &statement_, nullptr);
  }
  ~Plain() {
    sqlite3_finalize(statement_);
    sqlite3_close(handle_);
  }
  Plain(const Plain&) = delete;
  Plain& operator=(const Plain&) = delete;

  void Begin() { sqlite3_exec(handle_, "BEGIN", nullptr, nullptr, nullptr); }
  sqlite3_stmt* Bind(int value) {
    sqlite3_reset(statement_);
    sqlite3_bind_int(statement_, 1, value);
    sqlite3_step(statement_);
    return statement_;
  }

 private:
  sqlite3* handle_ = nullptr;
  sqlite3_stmt* statement_ = nullptr;
};

constexpr char kPointQuery[] = "SELECT city FROM tblPeople WHERE ID = ?1";

void PlainPointQueryInTransaction(benchmark::State& state) {
  Plain plain(kPointQuery);
  plain.Begin();
  int id = 0;
  for (auto _ : state) {
    sqlite3_stmt* row = plain.Bind(id++ % kPeople + 1);
    benchmark::DoNotOptimize(sqlite3_column_text(row, 0));
  }
}
BENCHMARK(PlainPointQueryInTransaction);

void GetterInBracket(benchmark::State& state) {
  UseBenchmarkLoft();
  Bracket bracket;
  int id = 0;
  for (auto _ : state)
    benchmark::DoNotOptimize(GetValueFromTable(u"tblPeople"_s, u"ID"_s, id++ % kPeople + 1, u"city"_s));
}
BENCHMARK(GetterInBracket);

void PlainPointQuery(benchmark::State& state) {
  Plain plain(kPointQuery);
  int id = 0;
  for (auto _ : state) {
    sqlite3_stmt* row = plain.Bind(id++ % kPeople + 1);
    benchmark::DoNotOptimize(sqlite3_column_text(row, 0));
    sqlite3_reset(row);
  }
}
BENCHMARK(PlainPointQuery);

void GetterOutsideBracket(benchmark::State& state) {
  UseBenchmarkLoft();
  int id = 0;
  for (auto _ : state)
    benchmark::DoNotOptimize(GetValueFromTable(u"tblPeople"_s, u"ID"_s, id++ % kPeople + 1, u"city"_s));
}
BENCHMARK(GetterOutsideBracket);

void TranslatorWarm(benchmark::State& state) {
  jet::Cut cut;
  const QString statement =
      u"Select * from tblTasks where SystemID = 17 and TaskLibID = 1 and status = -1 order by DateTaskCompleted"_s;
  for (auto _ : state) {
    jet::CutStatement(statement, cut);
    benchmark::DoNotOptimize(cut.key.size());
  }
}
BENCHMARK(TranslatorWarm);

void PlainCount(benchmark::State& state) {
  Plain plain("SELECT count(*) FROM tblTasks WHERE PartID <> ?1");
  for (auto _ : state) benchmark::DoNotOptimize(sqlite3_column_int(plain.Bind(0), 0));
}
BENCHMARK(PlainCount)->Unit(benchmark::kMillisecond);

void CountComplex(benchmark::State& state) {
  UseBenchmarkLoft();
  for (auto _ : state)
    benchmark::DoNotOptimize(GetNumberRecordsComplex(u"Select * from tblTasks where PartID <> 0"_s).ToInt());
}
BENCHMARK(CountComplex)->Unit(benchmark::kMillisecond);

void PlainCountAll(benchmark::State& state) {
  Plain plain("SELECT count(*) FROM tblTasks");
  for (auto _ : state) benchmark::DoNotOptimize(sqlite3_column_int(plain.Bind(0), 0));
}
BENCHMARK(PlainCountAll)->Unit(benchmark::kMillisecond);

void CountAll(benchmark::State& state) {
  UseBenchmarkLoft();
  for (auto _ : state) benchmark::DoNotOptimize(GetNumberRecordsComplex(u"Select * from tblTasks"_s).ToInt());
}
BENCHMARK(CountAll)->Unit(benchmark::kMillisecond);

}  // namespace
