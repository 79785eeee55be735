#pragma once
#include <QString>

/// The counts under "Your data includes:" on the splash screen, one to a line.
QString GetSplashInfo();
/// When the database was last backed up.
QString LastBackupText();
