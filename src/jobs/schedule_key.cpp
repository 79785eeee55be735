#include "jobs/schedule_key.h"

#include "jobs/completion.h"
#include "jobs/job_records.h"
#include "jobs/lines.h"
#include "schedule/schedule.h"

using namespace Qt::StringLiterals;

ScheduleKey KeyOfLine(int taskID) {
  return {.taskLibID = TaskLibIDOf(taskID),
          .rigID = JobSystemID(LineField(taskID, u"JobID"_s).ToInt()),
          .componentID = GetThisComponentID(taskID)};
}

void UpdateSchedule(const ScheduleKey& key) { UpdateSchedule(key.taskLibID, key.rigID, key.componentID); }
