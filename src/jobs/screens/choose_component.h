#pragma once
#include "jobs/install_component.h"

/// Lets a person choose what is put on a job: a new component, one from the database, or one by its serial number.
/// Without a type any component may be chosen. A new one of a type that the job has already is refused before it is
/// entered. The id is 0 when nothing was chosen.
ChosenComponent ChooseComponentForJob(int jobID, int componentType);
