#pragma once
#include <QString>

#include "core/lists.h"

/// The questions around a component that is chosen, owned, removed or deleted.

/// The answer to a serial number typed for a new component of a rig: "new with s/n:<serial>", "load component:<id>",
/// "s/n <serial>" or "cancel", and empty when the person wants to type another.
QString CommandForSerial(const QString& serial, int type);

/// The serial numbers of a type's components (0 for all) in their order, with the components' ids.
IdList LoadSerials(int type);

/// Before a component is changed: with another one selected in the list of components, asks whether this is the one
/// that is meant. False to leave it.
bool AgreesWithComponentList(int component);

/// Asks before a component gets another owner than its rig; true when the owner was written.
bool ChangeComponentOwner(int component, int newOwner);

/// A component in a rig whose own owner is unknown gets the rig's owner.
void RepairComponentOwner(int component);
/// Tells that the component has lost its type, before one is picked.
void TellLostComponentType(int component);
/// What was picked for it: 0 is told, anything else asked about and written. True when it was written.
bool SetLostComponentType(int component, int type);
