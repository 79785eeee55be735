#pragma once

/// Asks, then brings the gear of a job into the job's rig, type by type; a type that the job lacks leaves the rig. What
/// another owner's rig wears is asked about. The schedule stays as it is. False when the command was refused.
bool UpdateRigFromJob(int jobID, int rigID);
