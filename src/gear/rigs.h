#pragma once
#include <QString>

/// A rig is a name, an owner and a type; its components are the rows of tblComponents that point to it.

/// The name of rigs that a job makes while it is open. Never listed, never counted as taken by a person's choice.
extern const QString kTempRigName;
constexpr int kLongestRigName = 50;

QString RigName(int id);
int RigOwner(int id);
int RigType(int id);
bool RigExists(int id);
void SetRigName(int id, const QString& name);
void SetRigOwner(int id, int owner);
void SetRigType(int id, int type);
int NumberOfRigs(int owner);
/// The component of a type that is in a rig, 0 if none.
int ComponentOfTypeInRig(int rig, int type);
/// True when the owner has a rig of that name, outer blanks and case aside. `list`, where given, receives a line
/// "      <name>" for each rig of the owner but the unnamed ones.
bool RigNameIsTaken(const QString& name, int owner, QString* list = nullptr);
/// Adds a rig, its name cut to 50 characters; its id.
int CreateRig(int owner, int type, const QString& name);
/// Deletes the row alone: the components keep pointing at it.
void DeleteRigRow(int id);
/// The rig shown last.
int LastSystemID();
void SetLastSystemID(int id);
