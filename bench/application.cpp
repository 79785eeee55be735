#include "bench/application.h"

#include <QApplication>

void BenchApplication() {
  static int argc = 1;
  static char name[] = "loft_bench";
  static char* argv[] = {name, nullptr};
  if (QCoreApplication::instance()) return;
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  new QApplication(argc, argv);  // lives to the end of the process: the toolkit does not outlast its own statics
}
