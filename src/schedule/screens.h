#pragma once

/// The door to the schedule screen.

/// Whose due work the schedule opens on; nobody's for all customers.
struct ScheduleStart {
  int customer = 0;
  int rig = 0;  ///< this rig alone
};
/// Shows what falls due beside the other screens, read anew.
void OpenSchedule(const ScheduleStart& start = {});
