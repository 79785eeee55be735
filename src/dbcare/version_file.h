#pragma once
#include <QString>

/// The program's version beside exported data, so that a newer export is not loaded into an older program.

/// Writes "Version.txt" into the support folder: one line with the three version numbers joined without separators.
void CreateVersionFile();

/// True when the export in the folder is not from a newer program. A newer one gets a box, with the way to the page
/// that the first line of "download.txt" beside the program names; so does an export without a version.
bool VersionIsOK(const QString& MyPath);
