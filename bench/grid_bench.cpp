// A list of 100,000 rows of six columns: filling, sorting and the first picture, beside the toolkit's own item model
// and a plain sort of the same texts.
#include <QApplication>
#include <QStandardItemModel>

#include <benchmark/benchmark.h>

#include "bench/application.h"
#include "core/widgets/grid.h"

namespace {

constexpr int kRows = 100000;
constexpr int kColumns = 6;

/// Names in no order, as a list of owners has them.
const std::vector<QString>& Names() {
  static const std::vector<QString> names = [] {
    std::vector<QString> made;
    made.reserve(kRows);
    quint32 seed = 1;
    for (int i = 0; i < kRows; ++i) {
      seed = seed * 1664525U + 1013904223U;
      made.push_back(QStringLiteral("Customer %1, %2").arg(seed >> 12).arg(i));
    }
    return made;
  }();
  return names;
}

std::vector<GridColumn> Columns() {
  std::vector<GridColumn> columns;
  for (int i = 0; i < kColumns; ++i) columns.push_back({.heading = QString::number(i)});
  return columns;
}

std::vector<GridRow> Rows() {
  std::vector<GridRow> rows(kRows);
  for (int row = 0; row < kRows; ++row) {
    auto& content = rows[static_cast<size_t>(row)];
    content.data = row;
    content.cells.assign(kColumns, Names()[static_cast<size_t>(row)]);
  }
  return rows;
}

Grid& ShownGrid() {
  BenchApplication();
  static auto* grid = [] {
    auto* made = new Grid;  // lives to the end of the process, as the application does
    made->SetColumns(Columns());
    made->resize(800, 600);
    made->show();
    return made;
  }();
  return *grid;
}

void GridFill(benchmark::State& state) {
  Grid& grid = ShownGrid();
  for (auto _ : state) {
    grid.Fill(Rows());
    QApplication::processEvents();
  }
}

void GridFillLazily(benchmark::State& state) {
  Grid& grid = ShownGrid();
  for (auto _ : state) {
    grid.FillLazily(kRows,
                    [](int row, int column) { return Names()[static_cast<size_t>(row)] + QString::number(column); });
    QApplication::processEvents();
  }
}

void ItemModelFill(benchmark::State& state) {
  BenchApplication();
  QTableView view;
  view.resize(800, 600);
  view.show();
  for (auto _ : state) {
    QStandardItemModel model(kRows, kColumns);
    for (int row = 0; row < kRows; ++row) {
      for (int column = 0; column < kColumns; ++column) {
        model.setItem(row, column, new QStandardItem(Names()[static_cast<size_t>(row)]));
      }
    }
    view.setModel(&model);
    QApplication::processEvents();
    view.setModel(nullptr);
  }
}

void GridSortText(benchmark::State& state) {
  Grid& grid = ShownGrid();
  for (auto _ : state) {
    state.PauseTiming();
    grid.ForgetSort();
    grid.Fill(Rows());
    QApplication::processEvents();
    state.ResumeTiming();
    grid.SortBy(0);
    QApplication::processEvents();
  }
}

void PlainSortText(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    QList<QString> names(Names().begin(), Names().end());
    state.ResumeTiming();
    std::stable_sort(names.begin(), names.end(),
                     [](const QString& a, const QString& b) { return a.compare(b, Qt::CaseInsensitive) < 0; });
    benchmark::DoNotOptimize(names);
  }
}

BENCHMARK(GridFill)->Unit(benchmark::kMillisecond);
BENCHMARK(GridFillLazily)->Unit(benchmark::kMillisecond);
BENCHMARK(ItemModelFill)->Unit(benchmark::kMillisecond);
BENCHMARK(GridSortText)->Unit(benchmark::kMillisecond);
BENCHMARK(PlainSortText)->Unit(benchmark::kMillisecond);

}  // namespace
