#pragma once
#include "core/date.h"

/// Gear that enters a rig, leaves it, or moves from one to another, with its questions, its due dates and the task that
/// tells of it.

/// Asks before a chosen component enters a rig. One of the same rig is told and stays chosen; one of another rig is
/// moved after a question: the place is freed, the component installed, and with a date the removal from the old rig
/// is written as a completed task without a job, at `location`. A refusal sets `component` to 0 and returns false.
/// With `silent` nothing is asked and nothing moved.
bool CheckMove(int type, int rig, int& component, bool silent, Date date, int location = 0);
/// Where owner of rig and owner of component differ, asks whether the component changes hands. False to cancel the
/// install.
bool CheckOwner(int rig, int component);
/// Asks whether a component in no rig goes into this rig, and puts it there; true when it did.
bool AskAddToRig(int type, int rig, int component);

/// Puts a chosen component into a rig: the questions of CheckMove and CheckOwner, the component and its photos into the
/// rig. False when the person refused.
bool InstallChosenComponent(int rig, int component, Date today);
/// The same; a repack that is on record for the container and the reserve which are then in the rig together is offered
/// to the schedule. One operation. True when the component is in the rig.
bool InstallAndOfferRepack(int rigID, int componentID);

/// Takes a component out of a rig after a question; it stays in the database. True when it was taken out.
bool RemoveComponentFromRig(int rig, int component);
/// Takes a component out of its rig after a question, its photos with it; true when it was taken out.
bool RemoveFromItsRig(int component);
/// Writes the removal of a component from its rig as a completed task without a job, for the history of both.
void AddRemovalTask(int component, int rig, Date date, int location = 0);

/// Deletes the rig and its repack entries. Its components keep pointing at it. True when it is gone.
bool DeleteRig(int rig);
