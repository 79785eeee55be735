#pragma once

/// Deleting gear, with all that points to it from the schedule, the jobs and the price lists.

/// Deletes a component after telling what it is used by; 0 is no selection. True when it is gone.
bool DeleteComponent(int component);

/// How deleting a rig type ended.
enum class RigTypeDeletion { Kept, Deleted, ShowRigs };
/// A type that rigs have is kept, and the person may ask to see them. 0 is no selection.
RigTypeDeletion DeleteRigType(int id);
