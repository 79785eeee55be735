#pragma once

/// What the schedule has to do with a component that goes into a rig.

/// Puts a chosen component into a rig, with the questions of InstallChosenComponent; a repack that is on record for the
/// container and the reserve which are then in the rig together is offered to the schedule. One operation. True when
/// the component is in the rig.
bool InstallAndOfferRepack(int rigID, int componentID);
