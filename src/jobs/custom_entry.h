#pragma once
#include <QList>
#include <QString>

#include "core/date.h"
#include "core/money.h"
#include "jobs/lines.h"

/// A task or event that is entered by hand on a job.

struct CustomEntry {
  QString name = {};
  Money price = {};
  bool logBook = false;
  bool isEvent = false;
  QList<int> componentTypes = {};
};

/// How a custom entry gets onto its job: not at all, as the library's entry, by a new task type, or as a line of its
/// own.
enum class CustomRoad { None, Library, NewTaskType, OneOff };

/// Asks for the road of a custom entry: gear that the job lacks ends it; a name of the library offers that entry; a new
/// name is offered to the library, where an event is added at once. `taskLibID` is the entry for the road Library.
CustomRoad ChooseCustomRoad(const CustomEntry& entry, int jobID, int& taskLibID);

/// Adds a line for this job alone, tied to the job's components of the ticked types; to the first type's alone on a job
/// without a rig. The line, 0 after a failure.
int AddOneOffLine(const JobContext& job, const CustomEntry& entry, Date date);
