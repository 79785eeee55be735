#pragma once
#include <QString>

/// Facts about the program, the machine and the loft's files, for whoever gives support.
QString SupportListing();
/// Shows them in a window to be read at length.
void ShowSupportListing();
