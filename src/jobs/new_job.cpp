#include "core/clock.h"
#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/store/rows.h"
#include "gear/people.h"
#include "jobs/job_components.h"
#include "jobs/job_records.h"

using namespace Qt::StringLiterals;

namespace {

int AddJobRow(const QString& title, int customerID, int rigID, int componentID, int riggerID, int locationID,
              Date date) {
  return AddRow(tblJobs::kTable, {{tblJobs::JobTitle, title.left(kJobTextLength)},
                                  {tblJobs::InvoiceNumber, QString()},
                                  {tblJobs::DateBilled, Date()},
                                  {tblJobs::DatePaid, Date()},
                                  {tblJobs::CustomerID, customerID},
                                  {tblJobs::LocationID, locationID},
                                  {tblJobs::RiggerID, riggerID},
                                  {tblJobs::ComponentID, componentID},
                                  {tblJobs::SystemID, rigID},
                                  {tblJobs::DateStarted, date.IsNone() ? Today() : date},
                                  {tblJobs::DatePromised, Date()},
                                  {tblJobs::DateCompleted, Date()},
                                  {tblJobs::JobStatus, 0},
                                  {tblJobs::JobPaymentStatus, 0},
                                  {tblJobs::Comments, u" "}});
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
  return GetValueFromTable(tblPeople::ID, rigger, tblPeople::rigger).ToBool() ? rigger : 0;
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
