#pragma once
#include <QString>

#include <functional>

#include "core/files.h"
#include "core/long_work.h"

/// How one file is copied; true when it was.
using CopyFile = std::function<bool(const QString& source, const QString& destination)>;

/// Copies each file of a folder, without its sub-folders, into another one, which is made if missing; the wait notice
/// names the file, and the work goes one on. A file that can't be copied shows its box and is left out. `count` is the
/// number of files that were copied; true when all were, and the person has not cancelled the work.
bool CopyFolder(LongWork& work, const QString& from, const QString& to, int& count, const CopyFile& copy = MyFileCopy);

/// How many files that is; 0 for a folder that can't be read.
int FilesToCopy(const QString& folder);
