#pragma once

/// Deleting a person. The gear and the books stay, without an owner.

/// How the deletion report ended.
enum class DeletionReport { NothingTied, GoOn, Stop };

/// Tells that the owner of the program can't be deleted; true when the person is the owner.
bool RefuseProgramOwner(int id);
/// Counts what is tied to the person; where there is something, lists it and asks whether to go on.
DeletionReport ReportPersonDeletion(int id);
/// The person to show after this one is gone; the same id, after a notice, when this is the only one.
int NeighbourAfterDeletion(int id);
/// Deletes the row and sets every reference to it to 0. True when it is gone.
bool DeletePerson(int id);

/// The whole command with all its questions. True when the person was deleted; `neighbour` is then who to show, 0 when
/// nobody is left.
bool DeleteCustomer(int id, int& neighbour);
/// The same as the rig screen asks it: the confirmation comes only when nothing is tied to the person.
bool DeleteCustomerFromRigScreen(int id, int& neighbour);
