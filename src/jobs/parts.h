#pragma once
#include "core/date.h"
#include "jobs/lines.h"

/// Parts on a job: models of type Misc with their price, or items of this job alone.

/// Adds a line for a part of the catalogue at its price. The line, 0 after a failure.
int AddPartToJob(const JobContext& job, int partID, Date date);

/// Adds a line for a part that was typed. A name of the catalogue is told with its price, which then counts; a new one
/// is offered to the catalogue first. The line, 0 when nothing was added.
int AddCustomPart(const JobContext& job, const QString& name, Money price, Date date);
