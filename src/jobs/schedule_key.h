#pragma once

/// The row of the schedule that a line of work moves, as UpdateSchedule asks for it.
struct ScheduleKey {
  int taskLibID = 0;
  int rigID = 0;        ///< 0 for work on gear without a rig
  int componentID = 0;  ///< the component, where there is no rig; a row of a rig merely notes it
};

/// The key of a line: its entry, the rig of its job, and the one component that it touched (0 for several or none).
ScheduleKey KeyOfLine(int taskID);
/// The same for who has read the line.
ScheduleKey KeyOfLine(int taskID, int jobID, int taskLibID);

/// Brings that row up to date.
void UpdateSchedule(const ScheduleKey& key);
