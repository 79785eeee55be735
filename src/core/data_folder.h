#pragma once
#include <QString>

/// Where the loft lives: one data folder with the database and the folders beside it.

extern QString SpecialFolder;  ///< the folder that holds the data folders of programs
extern QString DataPath;       ///< the data folder "loftkeep", with a closing separator
extern bool DiagnosticMode;    ///< extra boxes for the developer, set by a file "diag.txt" in the working folder

/// Sets SpecialFolder and DataPath.
void SetDataFolder();

QString DatabaseFile();                    ///< "loftkeep.mdb" in the data folder
QString SupportFile(const QString& name);  ///< in the "support" folder of the data folder
/// A file that comes with the program: in the working folder, beside the program, or where an installed program keeps
/// what it shares. Empty when it is nowhere.
QString ProgramFile(const QString& name);

/// Makes the folders below the data folder that are missing.
void CreateSubFolders();

/// The empty database's copy in "support", made when it is missing.
void CheckBlankmb();
/// The help text's copy in "support", made when it is missing and renewed, with a box, when the program's is newer.
void CheckHelpFile();
