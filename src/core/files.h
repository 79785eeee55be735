#pragma once
#include <QByteArray>
#include <QString>
#include <QStringList>

// File tests and file work. Every path may be written with "\" or "/". Unless it says otherwise a routine shows a box
// when the file system refuses, and its caller goes on with an empty result.

/// True when the file exists. Never raises an error; a folder is not a file.
bool ExistFile(const QString& path);
bool FolderExists(const QString& path);
/// Makes the folder, and those above it, if missing.
void CreateFolder(const QString& path);

/// Count of the files directly in the folder; 0 when the folder is missing.
int NumberFilesInFolder(const QString& folder);
/// Names of the files, sorted, but for any named "zqxERROR".
void GetFilesInFolder(const QString& folder, QStringList& names);
/// Names of the files, sorted.
void GetFolderFiles(const QString& folder, QStringList& names);
/// Names of the sub-folders, sorted.
void GetSubFolders(const QString& folder, QStringList& names);
/// Deletes the folder with all that lies in it.
void DeleteFolderTree(const QString& folder);

/// True when B was modified later than A.
bool FileIsNewer(const QString& pathA, const QString& pathB);
/// True when the first 1000 bytes of both are equal.
bool FilesAreSame(const QString& pathA, const QString& pathB);

/// Copies a file with its time of modification; an existing destination is replaced. The destination holds its old
/// content until the copy is whole. True when it was copied.
bool MyFileCopy(const QString& source, const QString& destination);

/// The content of a file; throws Failure ("File not found").
QByteArray ReadFile(const QString& path);
/// Replaces a file by new content, or leaves it as it was: written aside, brought to the disk, renamed. Throws Failure.
void ReplaceFileSafely(const QString& path, const QByteArray& content);
