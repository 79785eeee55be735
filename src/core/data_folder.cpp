#include "core/data_folder.h"

#include <QCoreApplication>

#include "core/files.h"
#include "core/platform.h"
#include "core/prompts.h"
#include "core/store/connection.h"
#include "core/text.h"
#include "core/trap.h"

using namespace Qt::StringLiterals;

QString SpecialFolder;
QString DataPath;
bool DiagnosticMode = false;

void SetDataFolder() {
  SpecialFolder = CommonDataFolder();
  DataPath = PlatformPath(SpecialFolder + u"/loftkeep/"_s);
}

QString DatabaseFile() { return DataPath + u"loftkeep.mdb"_s; }

QString SupportFile(const QString& name) { return PlatformPath(DataPath + u"support/"_s + name); }

QString ProgramFile(const QString& name) {
  const QString beside = QCoreApplication::applicationDirPath();
  for (const QString& path : {name, beside + u'/' + name, beside + u"/../share/loftkeep/"_s + name})
    if (ExistFile(path)) return path;
  return {};
}

void CreateSubFolders() {
  Trap(u"Sub CreateSubFolders()"_s, [] {
    for (const QString& name : {u"photos"_s, u"backup"_s, u"support"_s, u"other"_s, u"photos/thumbnail"_s,
                                u"photos/hires"_s, u"photos/archive"_s})
      CreateFolder(PlatformPath(DataPath + name));
  });
}

void CheckBlankmb() {
  Trap(u"sub CheckBlankmb"_s, [] {
    const QString target = SupportFile(u"blank.mdb"_s);
    if (ExistFile(target)) return;
    const QString source = ProgramFile(u"blank.mdb"_s);
    if (source.isEmpty())
      MsgBox(u"file 'blank.mdb' not found"_s, u"sub CheckBlankmb"_s);
    else
      MyFileCopy(source, target);
  });
}

void CheckHelpFile() {
  Trap(u"Sub CheckHelpFile"_s, [] {
    const QString target = SupportFile(u"helptext.txt"_s);
    const QString source = ProgramFile(u"helptext.txt"_s);
    if (source.isEmpty()) return;
    if (!ExistFile(target)) {
      MyFileCopy(source, target);
    } else if (FileIsNewer(target, source)) {
      const bool wasOpen = ConnectionIsOpen;
      if (wasOpen) ConnectionClose();
      MsgBox(u"Help files have been updated"_s);
      MyFileCopy(source, target);
      if (wasOpen) ConnectionStart();
    }
  });
}
