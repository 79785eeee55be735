#include "core/files.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <filesystem>

#include "core/failure.h"
#include "core/long_work.h"
#include "core/platform.h"
#include "core/trap.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kComparedBytes = 1000;
constexpr qint64 kCopyBlock = 1 << 20;

void CheckThat(bool done, const QFileDevice& file) {
  if (!done) throw Failure(file.errorString());
}

void OpenToRead(QFile& file) {
  const QFileInfo info(file);
  if (!info.exists()) throw Failure(u"File not found"_s);
  // Opening a folder would succeed here and fail only when it is read.
  if (info.isDir()) throw Failure(u"Path/File access error"_s);
  CheckThat(file.open(QFile::ReadOnly), file);
}

/// Without a buffer, so that the write that fails is the one that tells why.
void OpenToWrite(QSaveFile& file) { CheckThat(file.open(QFile::WriteOnly | QFile::Unbuffered), file); }

// A disk that fills up takes a part first; only the next write tells why.
void WriteAll(QFileDevice& file, const QByteArray& content) {
  for (qint64 done = 0; done < content.size();) {
    const qint64 written = file.write(content.constData() + done, content.size() - done);
    CheckThat(written > 0, file);
    done += written;
  }
}

void Commit(QSaveFile& file) {
  const QString folder = QFileInfo(file.fileName()).path();
  CheckThat(file.commit(), file);
  SyncFolder(folder);
}

QStringList Entries(const QString& folder, QDir::Filters filters) {
  const QDir dir(PlatformPath(folder));
  if (folder.isEmpty() || !dir.exists()) return {};
  std::error_code error;
  const std::filesystem::directory_iterator readable(dir.filesystemPath(), error);
  if (error) throw Failure(QString::fromStdString(error.message()));
  return dir.entryList(filters | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
}

QDateTime ModificationTime(const QString& path) {
  const QFileInfo info(PlatformPath(path));
  if (!info.exists()) throw Failure(u"File not found"_s);
  return info.lastModified();
}

QByteArray FirstBytes(const QString& path) {
  QFile file(PlatformPath(path));
  OpenToRead(file);
  return file.read(kComparedBytes);
}

void Copy(const QString& source, const QString& destination) {
  QFile from(source);
  OpenToRead(from);
  QSaveFile to(destination);
  OpenToWrite(to);
  LongWork work(u"copying "_s + QFileInfo(source).fileName(), from.size(), LongWork::Cancelling::Impossible);
  while (!from.atEnd()) {
    const QByteArray block = from.read(kCopyBlock);
    CheckThat(!block.isEmpty(), from);
    WriteAll(to, block);
    work.Step(block.size());
  }
  to.setFileTime(QFileInfo(from).lastModified(), QFileDevice::FileModificationTime);
  Commit(to);
}

}  // namespace

bool ExistFile(const QString& path) { return QFileInfo(PlatformPath(path)).isFile(); }

bool FolderExists(const QString& path) { return !path.isEmpty() && QFileInfo(PlatformPath(path)).isDir(); }

void CreateFolder(const QString& path) {
  if (!path.isEmpty()) QDir().mkpath(PlatformPath(path));
  if (!FolderExists(path)) MsgBox(u"Unable to create new folder - Sub CreateFolder()"_s, path);
}

int NumberFilesInFolder(const QString& folder) {
  int count = 0;
  Trap(u"Function NumberFilesInFolder()"_s, [&] { count = static_cast<int>(Entries(folder, QDir::Files).size()); });
  return count;
}

void GetFilesInFolder(const QString& folder, QStringList& names) {
  names.clear();
  Trap(u"Sub GetFilesInFolder"_s, [&] {
    names = Entries(folder, QDir::Files);
    names.removeAll(u"zqxERROR"_s);
  });
}

void GetFolderFiles(const QString& folder, QStringList& names) {
  names.clear();
  Trap(u"Sub GetFolderFiles"_s, [&] { names = Entries(folder, QDir::Files); });
}

void GetSubFolders(const QString& folder, QStringList& names) {
  names.clear();
  Trap(u"Sub GetSubFolders"_s, [&] { names = Entries(folder, QDir::Dirs); });
}

void DeleteFolderTree(const QString& folder) {
  Trap(u"Sub DeleteFolderTree"_s, [&] {
    if (!FolderExists(folder)) throw Failure(u"Path not found"_s);
    QDir dir(PlatformPath(folder));
    if (dir.isRoot() || !dir.removeRecursively()) throw Failure(u"Path/File access error"_s);
  });
}

bool FileIsNewer(const QString& pathA, const QString& pathB) {
  bool newer = false;
  Trap(u"Function FileIsNewer"_s, [&] { newer = ModificationTime(pathB) > ModificationTime(pathA); });
  return newer;
}

bool FilesAreSame(const QString& pathA, const QString& pathB) {
  bool same = false;
  Trap(u"Function FilesAreSame"_s, [&] { same = FirstBytes(pathA) == FirstBytes(pathB); });
  return same;
}

bool MyFileCopy(const QString& source, const QString& destination) {
  if (!ExistFile(source)) {
    MsgBox(source + u" doesn't exist"_s, u"Can't copy file"_s);
    return false;
  }
  return TrapWith(
      u"Sub MyFileCopy"_s,
      [&] {
        const QFileInfo from(PlatformPath(source));
        const QFileInfo to(PlatformPath(destination));
        if (from != to) Copy(from.filePath(), to.filePath());
      },
      [&] { return u"Source file = "_s + destination; });
}

QByteArray ReadFile(const QString& path) {
  QFile file(PlatformPath(path));
  OpenToRead(file);
  QByteArray content = file.readAll();
  CheckThat(file.error() == QFile::NoError, file);
  return content;
}

void ReplaceFileSafely(const QString& path, const QByteArray& content) {
  QSaveFile file(PlatformPath(path));
  OpenToWrite(file);
  WriteAll(file, content);
  Commit(file);
}
