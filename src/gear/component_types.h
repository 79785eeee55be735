#pragma once
#include <QString>

#include "core/lists.h"

/// The general categories of gear. Types 1 to 7 are fixed: they may be renamed, not deleted.

/// The first type of the user's own.
constexpr int kFirstUserType = 8;

/// The types of major gear for a list: all but Misc.
IdList LoadMajorComponentTypes();

/// "container", "main canopy"; "AAD" stays as it is.
QString TypeInSentence(int type);

/// Asks for a name and adds the type; its id, 0 when nothing was typed.
int AddNewComponentType();
/// Asks for another name; true when it was written.
bool RenameComponentType(int id);
/// Deletes a type of the user's that nothing uses, after a question; true when it is gone. 0 is no selection.
bool DeleteComponentType(int id);
void ShowComponentTypeHelp();
