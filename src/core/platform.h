#pragma once
#include <QString>
#include <QStringList>

#include <optional>

/// What differs between the systems that the program runs on, and nothing else does.

/// A path as this system writes it: each "\" and "/" becomes the system's own separator.
QString PlatformPath(const QString& path);

/// The folder that holds the data folders of programs, without a closing separator.
QString CommonDataFolder();

/// The folders where the drives begin that a person keeps files on.
QStringList DriveFolders();

/// Shows an address of the web in the person's browser. False when there is none.
bool OpenAddress(const QString& address);

/// Brings a folder's list of names to the disk, so that a file renamed into it survives a power cut.
void SyncFolder(const QString& folder);

/// The three numbers by which Windows tells its version.
struct WindowsVersion {
  enum Family { Win32s = 0, Windows9x = 1, WindowsNT = 2 };
  Family family = WindowsNT;
  int major = 0;
  int minor = 0;
};

/// The name that goes with a version; nothing known has the text "Unable to identify your version of Windows."
QString WindowsVersionName(const std::optional<WindowsVersion>& version);

/// The name of the Windows that the program runs on, for the support listing.
QString GetWindowsVersionText();
