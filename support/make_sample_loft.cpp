#include <QCoreApplication>

#include <cstdio>
#include <exception>

#include "core/clock.h"
#include "core/data_folder.h"
#include "core/files.h"
#include "core/store/connection.h"
#include "sample/sample_loft.h"

/// make_sample_loft: fills the data folder, which must not be there yet, with the sample loft. Nobody answers a box
/// here, so whatever would show one ends the program with its text.
int main(int argc, char** argv) try {
  const QCoreApplication app(argc, argv);
  SetDataFolder();
  if (FolderExists(DataPath)) {
    std::fprintf(stderr, "make_sample_loft: there is a loft in %s\n", qPrintable(DataPath));
    return 1;
  }
  MakeSampleLoft(Today());
  ReleaseDatabaseFile();
  return 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "make_sample_loft: %s\n", error.what());
  return 1;
}
