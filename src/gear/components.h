#pragma once
#include <QString>

#include "core/date.h"

/// Serial-numbered pieces of gear, each of one model, with an owner of its own, in one rig or in none.

/// Model name, a blank and the sub type; "(none)" when there is no such component.
QString ComponentDescription(int id);
/// The serial number, with "s/n " before it when asked for; empty when blank.
QString ComponentSerial(int id, bool withPrefix = false);
int ComponentModel(int id);
int ComponentTypeOf(int id);
QString ComponentSubType(int id);
Date ComponentDom(int id);  ///< date of manufacture, none when not entered
int ComponentOwner(int id);
int ComponentRig(int id);  ///< 0 = in no rig
bool ComponentExists(int id);
void SetComponentOwner(int id, int owner);
void SetComponentType(int id, int type);
void SetComponentRig(int id, int rig);
void SetComponentModel(int id, int model);
void SetComponentSerial(int id, const QString& serial);
void SetComponentDom(int id, Date dom);
/// A component's photos follow it into a rig, or (0) out of it.
void MovePhotos(int id, int rig);
/// Deletes the row alone.
void DeleteComponentRow(int id);
void SetLastComponentID(int id);

/// How many a person owns.
int NumberOfComponents(int owner);

/// The date of manufacture plus the model's service life; none when either is missing. A day that the month lacks
/// becomes the last day of that month, so that no life goes without an end.
Date ComponentExpiry(int id);

/// Adds a component of a model, owned by the rig's owner. With a rig, the component of this type that it held is
/// deleted. Its id.
int NewComponent(int model, int type, int rig, const QString& serial = QString());
/// Sets the rig. A component without an owner that leaves its rig (rig 0) gets this one.
void InstallComponent(int rig, int component, int owner);
/// Frees the component of a type that a rig holds; it stays in the database.
void FreePlace(int rig, int type);
/// The model's type wins: writes it to the component where they differ.
void CheckComponentType(int id);
/// Components with this serial number, outer blanks and case aside, among those of a type (0 for all). `id` receives
/// the last one. A blank serial is never found.
int FindBySerial(const QString& serial, int type, int& id);
/// The same among the components of a model.
int CountSerialsOfModel(int model, const QString& serial, int& id);
