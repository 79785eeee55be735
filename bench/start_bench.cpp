#include "bench/start_bench.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <unistd.h>

#include "bench/application.h"
#include "bench/loft_generator.h"
#include "core/data_folder.h"
#include "core/screens.h"
#include "core/shell/start_up.h"
#include "core/store/connection.h"
#include "core/widgets/theme.h"

// From the start of the process to the painted home page, on the loft of the benchmarks, and what it holds then.

using namespace Qt::StringLiterals;

namespace {

/// Sees the first painting of the home page.
class FirstPaint : public QObject {
 public:
  FirstPaint() { qApp->installEventFilter(this); }
  bool Seen() const { return seen_; }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint && watched->objectName() == "frmMain2"_L1) seen_ = true;
    return false;
  }

 private:
  bool seen_ = false;
};

/// Megabytes of memory that the process has in use.
double ResidentMegabytes() {
  QFile status(u"/proc/self/status"_s);
  if (!status.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray& line : status.readAll().split('\n'))
    if (line.startsWith("VmRSS:")) return line.mid(6).trimmed().split(' ').first().toDouble() / 1024;
  return 0;
}

void StartToPaintedHomePage(benchmark::State& state) {
  BenchApplication();
  UseBenchmarkLoft();
  const QTemporaryDir home;
  qputenv("XDG_DATA_HOME", home.path().toUtf8());
  const QString source = DatabasePath();
  ReleaseDatabaseFile();
  SetDataFolder();
  QDir().mkpath(DataPath + u"support"_s);
  QFile::copy(source, DatabaseFile());
  QFile::copy(source, SupportFile(u"blank.mdb"_s));  // a file that is there; nobody is here to read the box about it
  QByteArray resident;
  for (auto _ : state) {
    QProcess start;
    start.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(kStartOnce)});
    if (!start.waitForFinished() || start.exitCode() != 0) state.SkipWithError("the start failed");
    resident = start.readAllStandardOutput();
  }
  state.counters["resident MB"] = resident.toDouble();
}
BENCHMARK(StartToPaintedHomePage)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

int StartOnce() {
  BenchApplication();
  InstallTheme(*qApp);
  QApplication::setWindowIcon(ProgramIcon());
  const FirstPaint paint;
  if (!SubMain()) return 1;
  while (!paint.Seen()) QCoreApplication::processEvents();
  std::printf("%f", ResidentMegabytes());
  std::fflush(stdout);
  _exit(0);  // what comes after is no part of a start
}
