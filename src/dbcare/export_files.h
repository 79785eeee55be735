#pragma once
#include <QString>

#include <functional>

#include "core/long_work.h"

/// The export of the loft's data to a folder, for another computer. It changes nothing in the data folder but the
/// version file.

/// The whole export, with its questions. `selectFolder` lets the person choose an empty folder; "cancel" or an empty
/// text ends the export. A person who cancels the copying gets the list of what was copied, and no word of success.
/// What leaves holds no record of operations (dbcare/copy_for_others.h).
void MoveProgram(const std::function<QString()>& selectFolder);

/// Bytes of the photos and the database.
double GetTotalExportSize();
/// Asks whether deleted photos go along, where there are any; `size` is their bytes then, and 0 otherwise.
bool AskArchivePhotos(double& size);
/// Copies one folder of the data folder into the same folder of `ToFolder`. Shows the box of each file that fails, and
/// leaves it out of `count`; true when all files were copied.
bool ExportFiles(LongWork& work, const QString& ToFolder, const QString& FolderName, int& count);

/// True when the folder can take an export: it holds no file. A box tells otherwise.
bool AcceptExportFolder(const QString& folder);
