#pragma once
#include <QString>

/// The doors to the screens that care for the database file.

/// Lets the person say where the database comes from when there is none: "new", "end", "cancel", or empty when a file
/// was installed.
QString ChooseDatabase();
