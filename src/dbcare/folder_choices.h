#pragma once
#include <QString>
#include <QStringList>

/// What a person chooses a folder from: the paths saved in "paths.txt" of the support folder, and the files in it.

QStringList SavedPaths();
/// Saves a path; a box tells that it is saved, or was already.
void SavePath(const QString& path);
/// Deletes a saved path after a question; true when it was deleted.
bool DeletePath(const QString& path);

/// Names of the files in a folder, of all or of the database files alone. A folder that can't be read has none.
QStringList FilesToOffer(const QString& folder, bool databasesOnly);
