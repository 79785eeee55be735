#pragma once
#include <QList>
#include <QString>

#include "core/lists.h"

/// What the rig types screen does to its records. Every choice there is written at once.

IdList LoadRigTypesById();
/// Compares upper-cased, without outer blanks.
bool IsDuplicateRigType(const QString& NewType);
/// Asks for a name and adds the rig type, with no components and no reserve location. Its id, 0 when nothing came of
/// it.
int AddRigType();
/// Asks for another name; duplicates are not looked for. 0 is no selection. True when it was written.
bool RenameRigType(int id);
/// Deletes the row alone.
void DeleteRigTypeRow(int id);
/// Replaces the list of component types. `listIsEmpty` and a type of 0 are told and change nothing.
bool SetComponentTypesOfRigType(int id, const QList<int>& types, bool listIsEmpty = false);
void SetReserveLocation(int id, int location);
/// Stores the sum of the component types' ids.
void SaveRequiredSum(int id, const QList<int>& types);
