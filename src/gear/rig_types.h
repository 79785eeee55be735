#pragma once
#include <QList>
#include <QString>

/// A rig type says which component types a rig is built from, and where its reserve sits.

QString RigTypeName(int id);
bool RigTypeExists(int id);
/// 1 back, 2 seat, 3 chest, 4 other; 0 as long as none was chosen.
int ReserveLocation(int id);
bool RigTypeHasComponentType(int rigType, int componentType);
/// The component types of a rig type, in the table's order, or in the order of their ids as rigs are built and
/// reported; types of 0 left out.
QList<int> ComponentTypesOfRigType(int id, bool orderedById = false);
int NumberOfComponentTypes(int rigType);
int NumberOfRigsOfType(int id);
/// The rig type offered first for a new rig.
int DefaultRigType();
void SetDefaultRigType(int id);
