#include "jobs/schedule_key.h"

#include "core/store/tables.h"
#include "jobs/completion.h"
#include "jobs/job_records.h"
#include "jobs/lines.h"
#include "schedule/schedule.h"

using namespace Qt::StringLiterals;

ScheduleKey KeyOfLine(int taskID) { return KeyOfLine(taskID, JobOfLine(taskID), TaskLibIDOf(taskID)); }

ScheduleKey KeyOfLine(int taskID, int jobID, int taskLibID) {
  return {.taskLibID = taskLibID, .rigID = JobSystemID(jobID), .componentID = GetThisComponentID(taskID)};
}

void UpdateSchedule(const ScheduleKey& key) { UpdateSchedule(key.taskLibID, key.rigID, key.componentID); }
