#pragma once
#include <QString>

/// The doors to the screens that care for the database file.

/// Lets the person say where the database comes from when there is none: "new", "end", "cancel", or empty when a file
/// was installed.
QString ChooseDatabase();

/// Lets the person choose a folder, or a database file, for what the mode names: "" exports the backup files there,
/// "moving" wants an empty folder, "IMPORTING" imports from there, "selectdb" and "db_only" want a database file. The
/// path, or "cancel".
QString ChooseFolder(const QString& mode);

/// Imports the data files of another computer from a folder that the person chooses. True when their database has taken
/// the place of the present one; it is not brought to the schema yet.
bool ImportFromFolder();
/// Exports the data files to an empty folder, for another computer.
void ExportToFolder();
/// Copies the backup files by themselves to a folder.
void ExportBackupFiles();
