#include "dbcare/version_file.h"

#include <QCoreApplication>
#include <QVersionNumber>

#include "core/data_folder.h"
#include "core/files.h"
#include "core/format.h"
#include "core/platform.h"
#include "core/prompts.h"
#include "core/text.h"
#include "core/text_files.h"
#include "core/trap.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kNumbers = 3;

QStringList VersionNumbers() {
  const auto version = QVersionNumber::fromString(QCoreApplication::applicationVersion());
  return {QString::number(version.majorVersion()), QString::number(version.minorVersion()),
          QString::number(version.microVersion())};
}

/// Folders carried over from other systems keep the letters of their names.
QString SupportFileOf(const QString& folder, const QString& name) {
  const QString support = AddClosingSeparator(JoinPath(folder, u"support"_s));
  QStringList names;
  GetFolderFiles(support, names);
  for (const QString& present : std::as_const(names))
    if (present.compare(name, Qt::CaseInsensitive) == 0) return support + present;
  return support + name;
}

QString FirstLine(const QString& path) { return ReadLines(path).value(0).trimmed(); }

void OfferNewerVersion(const QString& number) {
  QStringList digits;
  for (const QChar digit : number.left(kNumbers)) digits << digit;
  QStringList lines{u"You are currently running Loftkeep version "_s + VersionNumbers().join(u'.'), QString(),
                    u"You are attempting to import files from version "_s + digits.join(u'.'),      QString(),
                    u"You must be using the latest version of Loftkeep before importing files."_s,  QString()};
  const QString title = u"Need to install new version"_s;
  const QString place = ProgramFile(u"download.txt"_s);
  const QString address = place.isEmpty() ? QString() : FirstLine(place);
  if (address.isEmpty()) {
    MsgBox(Lines(lines << u"You can get it from where you got this version."_s), title);
    return;
  }
  lines << u"You can get it from "_s + address << QString() << u"Would you like to go there now?"_s;
  if (AskYes(Lines(lines), title) && !OpenAddress(address)) throw Failure(u"The page could not be opened"_s);
}

}  // namespace

void CreateVersionFile() {
  Trap(u"Sub CreateVersionFile"_s,
       [] { WriteLines(SupportFile(u"Version.txt"_s), {VersionNumbers().join(QString())}); });
}

bool VersionIsOK(const QString& MyPath) {
  bool isOK = false;
  Trap(u"Function VersionIsOK"_s, [&] {
    const QString number = FirstLine(SupportFileOf(MyPath, u"version.txt"_s));
    isOK = Val(number) <= Val(VersionNumbers().join(QString()));
    if (!isOK) OfferNewerVersion(number);
  });
  return isOK;
}
