#include "core/platform.h"

#include <QDir>
#include <QOperatingSystemVersion>
#include <QProcess>
#include <QStandardPaths>
#include <QStorageInfo>

#ifndef Q_OS_WIN
#include <fcntl.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

#ifdef Q_OS_WIN
std::optional<WindowsVersion> PresentWindowsVersion() {
  const auto version = QOperatingSystemVersion::current();
  return WindowsVersion{WindowsVersion::WindowsNT, version.majorVersion(), version.minorVersion()};
}
#else
std::optional<WindowsVersion> PresentWindowsVersion() { return std::nullopt; }
#endif

struct NamedVersion {
  WindowsVersion version;
  const char16_t* name;
};

constexpr NamedVersion kVersions[] = {
    {{WindowsVersion::Windows9x, 4, 0}, u"Windows 95"},
    {{WindowsVersion::Windows9x, 4, 10}, u"Windows 98"},
    {{WindowsVersion::Windows9x, 4, 90}, u"Windows Me"},
    {{WindowsVersion::WindowsNT, 3, 50}, u"Windows NT 3.5"},
    {{WindowsVersion::WindowsNT, 3, 51}, u"Windows NT 3.5"},
    {{WindowsVersion::WindowsNT, 4, 0}, u"Windows NT 4.0"},
    {{WindowsVersion::WindowsNT, 5, 0}, u"Windows 2000"},
    {{WindowsVersion::WindowsNT, 5, 1}, u"Windows XP"},
    {{WindowsVersion::WindowsNT, 5, 2}, u"Windows Server 2003"},
    {{WindowsVersion::WindowsNT, 6, 0}, u"Windows Vista/Server 2008"},
    {{WindowsVersion::WindowsNT, 6, 1}, u"Windows 7/Server 2008 R2"},
};

}  // namespace

QString PlatformPath(const QString& path) {
#ifdef Q_OS_WIN
  return QDir::toNativeSeparators(path);
#else
  return QString(path).replace(u'\\', u'/');
#endif
}

QString CommonDataFolder() { return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation); }

QStringList DriveFolders() {
  QStringList folders;
  for (const QFileInfo& drive : QDir::drives()) folders << QDir::toNativeSeparators(drive.absoluteFilePath());
  // Where drives have no letters, they show as folders, in between those of the system itself.
  for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
    const QString root = volume.rootPath();
    const bool isMedium = root.startsWith("/media/"_L1) || root.startsWith("/run/media/"_L1) ||
                          root.startsWith("/mnt/"_L1) || root.startsWith("/Volumes/"_L1);
    if (isMedium && volume.isReady() && !folders.contains(root)) folders << root;
  }
  return folders;
}

bool OpenAddress(const QString& address) {
#if defined(Q_OS_WIN)
  return QProcess::startDetached(u"explorer"_s, {address});
#elif defined(Q_OS_MACOS)
  return QProcess::startDetached(u"open"_s, {address});
#else
  return QProcess::startDetached(u"xdg-open"_s, {address});
#endif
}

void SyncFolder([[maybe_unused]] const QString& folder) {
#ifndef Q_OS_WIN
  const int handle = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (handle < 0) return;
  ::fsync(handle);
  ::close(handle);
#endif
}

QString WindowsVersionName(const std::optional<WindowsVersion>& version) {
  if (version && version->family == WindowsVersion::Win32s) return u"Win32s on Windows 3.1"_s;
  for (const auto& [known, name] : kVersions) {
    if (version && known.family == version->family && known.major == version->major && known.minor == version->minor) {
      return QString::fromUtf16(name);
    }
  }
  // Older members of the family have no name of their own.
  if (version && version->family == WindowsVersion::WindowsNT && version->major < 5) return u"Windows NT"_s;
  return u"Unable to identify your version of Windows."_s;
}

QString GetWindowsVersionText() { return WindowsVersionName(PresentWindowsVersion()); }
