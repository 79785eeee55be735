#include "core/clock.h"
#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "gear/people.h"
#include "jobs/job_components.h"
#include "jobs/job_records.h"

using namespace Qt::StringLiterals;

namespace {

int AddJobRow(const QString& title, int customerID, int rigID, int componentID, int riggerID, int locationID,
              Date date) {
  Recordset jobs(u"tblJobs"_s);
  jobs.AddNew();
  jobs.Set(u"JobTitle", title.left(kJobTextLength));
  jobs.Set(u"InvoiceNumber", QString());
  jobs.Set(u"DateBilled", Date());
  jobs.Set(u"DatePaid", Date());
  jobs.Set(u"CustomerID", customerID);
  jobs.Set(u"LocationID", locationID);
  jobs.Set(u"RiggerID", riggerID);
  jobs.Set(u"ComponentID", componentID);
  jobs.Set(u"SystemID", rigID);
  jobs.Set(u"DateStarted", date.IsNone() ? Today() : date);
  jobs.Set(u"DatePromised", Date());
  jobs.Set(u"DateCompleted", Date());
  jobs.Set(u"JobStatus", 0);
  jobs.Set(u"JobPaymentStatus", 0);
  jobs.Set(u"Comments", u" ");
  jobs.Update();
  return jobs[u"ID"].ToInt();
}

void TakeSnapshot(int jobID, int rigID, int componentID) {
  if (rigID != 0)
    SnapshotRig(jobID, rigID);
  else if (componentID != 0)
    AddJobComponent(jobID, componentID);
}

}  // namespace

int ValidDefaultRigger() {
  const int rigger = DefaultRigger();
  if (rigger == 0) return 0;
  return GetValueFromTable(u"tblPeople"_s, u"ID"_s, rigger, u"rigger"_s).ToBool() ? rigger : 0;
}

void CreateNewJob(const QString& title, int customerID, int rigID, int componentID, int& jobID, int riggerID,
                  int locationID, Date date) {
  jobID = 0;
  const bool written = Operation(u"Sub CreateNewJob"_s, [&] {
    const int rigger = riggerID != 0 ? riggerID : ValidDefaultRigger();
    if (rigger == 0) {
      MsgBox(Lines({u"Please note:"_s, u"There are no riggers listed in the database.  "_s,
                    u"You can designate a person as a rigger from the "_s,
                    u"customer database (just check the RIGGER check box)."_s}),
             u"No rigger found"_s);
    }
    jobID = AddJobRow(title, customerID, rigID, componentID, rigger, locationID, date);
    TakeSnapshot(jobID, rigID, componentID);
  });
  if (!written) jobID = 0;
}
