#pragma once

/// What a click on the gear of a job asks and tells.

/// Asks for the serial number, cut to 50 characters, or the date of manufacture of a component; true when it was
/// written.
bool EditGearSerial(int componentID);
bool EditGearDom(int componentID);
/// Tells how an empty place is filled, or that there is nothing on a job without a rig.
void TellEmptyPlace(int componentType, int rigID);
