#pragma once

/// The doors to the history screen, which stands beside the other screens.

/// Shows all that was ever done to a rig, 0 for the one shown last; with a component type, that type's part of it.
void OpenRigHistory(int rig = 0, int componentType = 0);
/// Shows all that was ever done to a component, whatever rigs it was in.
void OpenComponentHistory(int component);
