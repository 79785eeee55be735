#pragma once
#include <QString>

/// Brings the files that another computer exported to a folder into the data folder: the database in the place of the
/// present one, which is backed up first, photos and support files over those of the same name, backup files under new
/// numbers beside the present ones. The data folder is made when it is missing.
///
/// Boxes tell why a folder is refused, and then nothing has changed. A file that can't be copied shows its box, keeps
/// its old content, and the import goes on. True when the database was imported; it is not brought to the schema yet.
bool Importingfiles(const QString& folder);
