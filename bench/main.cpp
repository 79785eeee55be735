#include <benchmark/benchmark.h>
#include <cstring>

#include "bench/start_bench.h"

int main(int argc, char** argv) {
  if (argc == 2 && std::strcmp(argv[1], kStartOnce) == 0) return StartOnce();
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
