#pragma once
#include <QString>

#include "core/date.h"
#include "jobs/lines.h"

/// Which entries of the library may stand on a job.

/// True when the job holds a component of each required type. The first miss shows its box and is handed back in
/// `missingType`.
bool RequiredComponentsPresent(int jobID, int taskLibID, int& missingType);
/// True when a model-specific entry's model isn't on the job; a line that says so is appended to `message`.
bool ModelMissingFromJob(int taskLibID, QString& message, int jobID);
bool TaskOnJob(int jobID, int taskLibID);
bool TaskRequiresParts(int taskLibID);

/// May a repack be put on a job of this rig? A box tells why not: no rig, or a rig that has been deleted.
bool RepackIsPossible(int rigID);

/// What became of an entry chosen for a job. Installing and removing gear are commands of their own.
enum class LibraryOutcome { Added, Refused, Install, Remove };

/// Puts a library entry on a job once every rule agrees, with its components and the parts it consumes; each refusal
/// shows its box. `rigComponentsCurrent` tells whether the job's gear equals the rig's: a repack on other gear is
/// added, with a warning that it won't be scheduled.
LibraryOutcome AddLibraryTask(const JobContext& job, int taskLibID, Date date, bool rigComponentsCurrent);

/// The date that a person typed as date performed; no date, after a box, when it isn't one.
Date WorkingDate(const QString& text);
