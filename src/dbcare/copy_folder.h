#pragma once
#include <QString>

/// Copies each file of a folder, without its sub-folders, into another one, which is made if missing; the wait notice
/// names the file. A file that can't be copied shows its box and is left out. `count` is the number of files that were
/// copied; true when all were.
bool CopyFolder(const QString& from, const QString& to, int& count);
