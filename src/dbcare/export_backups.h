#pragma once
#include <QString>

/// The export of the backup files by themselves.

/// "There is one file in the backup folder".
QString BackupCountText();

/// Copies all backup files into a folder, after a question; a file that can't be copied shows its box. False when there
/// are none, or the person declined or cancelled. The copies hold no record of operations (dbcare/copy_for_others.h).
bool ExportBackups(const QString& folder);
