#pragma once
#include <QString>

/// The database as one file: a new one, a valid one, one that takes the place of another. The connection is closed and
/// the file let go of before any of them touches it.

/// Makes a new database file at `myDb`, from the empty database of the support folder or of the program, or from the
/// schema alone when neither is there, and points ConnectionString at it.
void xCreatedbFile(const QString& myDb);

/// Makes the live database file and brings it to the schema.
void CreateNewDatabase();

/// Closes the connection and the file behind it.
void LetGoOfDatabaseFile();

/// True when the file is a database that holds the program's main tables, and each of them opens.
bool IsValidDatabase(const QString& path);
/// The same, with a box when it is none.
bool AcceptDatabase(const QString& path);

QString BackupFolder();  ///< with its closing separator

/// Name of the next numbered copy in the backup folder: one above the highest, "db00001.mdb" for the first.
QString NextDBfile();

/// Copies the live database into the backup folder and, with `deleteOriginal`, deletes the original. The copy's name
/// goes to `fileName`; it stays empty when the copy could not be made, and the original stays too.
void MakeBackupCopy(bool deleteOriginal, QString& fileName);

/// Copies a file to the place of the live database, which holds its old content until the copy is whole. True when it
/// was copied; a failure shows its box.
bool ReplaceDatabaseFile(const QString& path);

/// Puts a valid database in the place of the live one, after a backup, and brings it to the schema. An invalid file
/// gets its box, and nothing changes. True when it was installed.
bool InstallDatabaseFile(const QString& path);
