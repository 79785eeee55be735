#pragma once
#include <QString>
#include <QStringList>

/// models.txt: manufacturers with their ids, then models, one value to a line. Prices and service lives do not travel.

/// A file is valid when one line is "<mfg>" and one line is "<end mfg>".
bool IsModelsFile(const QStringList& lines);

/// Asks, then writes models.txt into the current folder.
void ExportModels();

/// Reads models and manufacturers into a database that has no models. `silent` takes models.txt of the support folder
/// without a question; otherwise the person chooses the file. Cancelled, it takes nothing in.
void ImportModels(bool silent);
/// The file that the person chooses, empty when cancelled.
QString GetModelfileforImport();

/// The step of each start: the models.txt that comes with the program is copied to the support folder that lacks one,
/// and a database without models takes them in.
void CheckModelsFile();
