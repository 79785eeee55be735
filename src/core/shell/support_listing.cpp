#include "core/shell/support_listing.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStringList>

#include "core/data_folder.h"
#include "core/files.h"
#include "core/format.h"
#include "core/platform.h"
#include "core/prompts.h"
#include "core/screens.h"
#include "core/text.h"

using namespace Qt::StringLiterals;

QString SupportListing() {
  QStringList lines{u"Version: "_s + QCoreApplication::applicationVersion(),
                    u"System: "_s + QSysInfo::prettyProductName(),
                    GetWindowsVersionText(),
                    QString(),
                    u"Data folder: "_s + DataPath,
                    u"Database: "_s + DatabaseFile(),
                    u"Size: "_s + FormatFileSize(static_cast<double>(QFileInfo(DatabaseFile()).size())),
                    QString(),
                    u"Support files:"_s};
  const QString folder = SupportFile(QString());
  QStringList names;
  GetFolderFiles(folder, names);
  for (const QString& name : std::as_const(names)) {
    const QFileInfo file(folder + name);
    lines << u"     "_s + name + u"   "_s + Format(Date::From(file.lastModified()), u"mm/dd/yyyy"_s) + u"   "_s +
                 FormatFileSize(static_cast<double>(file.size()));
  }
  return Lines(lines);
}

void ShowSupportListing() { ShowMessageForm(u"Support files"_s, SupportListing()); }
