#pragma once
#include <QString>

/// The size of a generated loft.
struct LoftSize {
  int customers = 3000;
  int rigs = 6000;
  int components = 25000;
  int jobs = 40000;
  int lines = 150000;
};

/// Makes a database file with a loft that obeys all the rules of the program: rigs with one component of each type,
/// jobs with the gear that they were done on, complete lines with their components, the schedule that follows from
/// them. The same size always gives the same loft. An existing file of that name is replaced.
void GenerateLoft(const QString& path, const LoftSize& size);

/// The loft of the benchmarks, made once and kept in the folder that holds the benchmarks; points the connection to it.
void UseBenchmarkLoft();
