#include "jobs/quick_fix.h"

#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/value.h"
#include "gear/locations.h"
#include "jobs/completion.h"
#include "jobs/job_records.h"
#include "jobs/lines.h"
#include "jobs/schedule_key.h"
#include "schedule/task_library.h"

using namespace Qt::StringLiterals;

int QuickFix(int rigID, int customerID, int taskLibID, Date date) {
  int jobID = 0;
  const bool written = Operation(u"Sub QuickFix"_s, [&] {
    CreateNewJob(Value(date).ToText() + u" - "_s + TaskLibName(taskLibID), customerID, rigID, 0, jobID,
                 ValidDefaultRigger(), DefaultLocation(), date);
    int taskID = 0;
    AddTaskToJob(JobContextOf(jobID), taskLibID, false, date, taskID);
    AddComponentsToTask(taskLibID, taskID, jobID);
    MsgBox(u"work on next line"_s);
    SetJobStatus(jobID, true, date);
    SetTaskStatus(taskID, true, date);
    UpdateSchedule(KeyOfLine(taskID));
  });
  return written ? jobID : 0;
}

void ShowQuickFixHelp() {
  MsgBox(Lines({u"This does NOT change the date that the task was performed previously.  Instead, it creates"_s,
                u"a new job and new task using the date that you enter here."_s, QString(),
                u"Please note: this has the potential to create multiple jobs for the same"_s,
                u"rig on the same date (with separate invoices).  "_s}),
         u"Quick tasks"_s);
}
