#pragma once
#include <QIcon>

/// The program's own icon, drawn at any size.
QIcon ProgramIcon();
