#include "jobs/schedule_jobs.h"

#include "core/prompts.h"
#include "core/store/tables.h"
#include "gear/people.h"
#include "gear/rigs.h"
#include "jobs/job_records.h"
#include "jobs/lines.h"

using namespace Qt::StringLiterals;

int JobOfScheduledTask(int taskID, int rigID) {
  const int jobID = JobOfLine(taskID);
  if (jobID < 1) {
    MsgBox(Lines(
        {u"This event was not part of a rigging job."_s, u"To edit this event, go to the component's history."_s}));
    return 0;
  }
  if (rigID == 0) {
    MsgBox(Lines({u"This item is not currently part of a rig "_s, u"The job screen will show the rig components that"_s,
                  u"were installed at the time the job was performed."_s}),
           u"No rig"_s);
  } else if (RigOwner(rigID) != JobCustomerID(jobID)) {
    MsgBox(Lines({u"Please note:"_s, u"This rig is currently owned by "_s + PersonDisplayName(RigOwner(rigID)),
                  u"but the component was owned by "_s + PersonDisplayName(JobCustomerID(jobID)),
                  u"when the job was performed."_s}),
           u"Different Owner"_s);
  }
  return jobID;
}

bool AskNewJobFor(int customerID, int rigID) {
  const QString question = u"Create a new job anyway?"_s;
  if (rigID == 0 && !AskYes(Lines({u"This component is not part of a rig"_s, question}), kProgramTitle)) return false;
  return customerID != 0 || AskYes(Lines({u"This rig doesn't have a customer"_s, question}), u"No customer"_s);
}
