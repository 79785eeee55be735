#pragma once
class QWidget;

/// The road from the process's entry to the home screens, for a loft with a good database, for a new one, and for one
/// whose files have suffered.

/// The program's entry: data folder, database, first run when there is none, then the home screens. True when they are
/// on show; false when the process must end.
bool SubMain();

/// Lets go of the data folder, which one process has to itself from the start on.
void LeaveDataFolder();

/// Finds or makes the data folder and the database, and brings the database to the schema. A set-up that the person
/// gave up, and a database that can't be had, leave ConnectionCount at -999.
void CheckFolderSystem();

/// Makes a new loft with the person's name and repack cycle, or takes over the one of another computer.
/// `forNewDatabase` leaves out the question who is asking.
void FirstRunSetup(bool forNewDatabase);

/// The fixes that run once before the first screen.
void CheckDatabaseOnStart();

/// Shows the floating menu, the home page and the splash screen.
void ShowHomeScreens();
/// The splash screen by itself, over another screen or in the middle of the desk.
void ShowSplash(const QWidget* over = nullptr);
