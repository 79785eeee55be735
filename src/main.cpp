#include <QAbstractEventDispatcher>

#include "core/prompts.h"
#include "core/screens.h"
#include "core/shell/start_up.h"
#include "core/store/connection.h"
#include "core/widgets/application.h"
#include "core/widgets/qt_prompts.h"
#include "core/widgets/theme.h"

using namespace Qt::StringLiterals;

int main(int argc, char** argv) {
  Application app(argc, argv);
  QCoreApplication::setApplicationName(u"Loftkeep"_s);
  QCoreApplication::setOrganizationName(u"Loftkeep"_s);
  QCoreApplication::setApplicationVersion(QStringLiteral(LOFTKEEP_VERSION));
  QApplication::setWindowIcon(ProgramIcon());
  QApplication::setQuitOnLastWindowClosed(false);
  InstallTheme(app);
  QtPrompts prompts;
  SetPrompts(&prompts);
  InstallStandByNotice();
  // Whatever the person sees is on the disk: an open transaction ends before the program waits for events.
  QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, &app,
                   [] { SettleConnection(); });
  if (!SubMain()) return 0;
  const int result = QApplication::exec();
  ReleaseDatabaseFile();
  SetPrompts(nullptr);
  return result;
}
