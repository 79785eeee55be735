#pragma once

/// The rows that the program itself writes, and the ids that its rules rely on.

/// Library entries that the rules know by number.
constexpr int RepackTaskLibID = 1;
constexpr int InstallTaskLibID = 2;
constexpr int RemoveTaskLibID = 3;

/// The fixed component types.
enum ComponentType : int {
  kContainer = 1,
  kMainCanopy = 2,
  kReserveCanopy = 3,
  kAad = 4,
  kChestReserve = 5,
  kPassengerHarness = 6,
  kMisc = 7,
};

/// Empties tblComponentTypes without asking and writes the seven fixed rows; user types are lost.
void SetDefaultComponentTypes();
/// Looks for types 1 to 6; at the first that is missing the fixed rows are written.
void CheckComponentTypes();
/// Writes the four rig types with their component lists when tblRigTypes is empty; the Sport Rig becomes the default.
void CreateDefaultRigTypes();
/// Writes the three fixed tasks when tblTaskLib is empty.
void CreateDefaultTasks();
/// Keeps tblMisc at one row: more than one are told and replaced by one of defaults, none gets it.
void CheckMiscRow();
bool HasMiscRow();
/// All that a new loft begins with: the settings row, the component types, the rig types and the fixed tasks.
void CreateDefaultRows();
/// Adds the settings row with its defaults and the given repack cycle in days.
void AddMiscRow(int repackCycle);
