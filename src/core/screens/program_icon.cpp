#include "core/screens.h"

QIcon ProgramIcon() {
  Q_INIT_RESOURCE(resources);  // a static library's resources wait to be asked for
  return QIcon(QStringLiteral(":/loftkeep.svg"));
}
