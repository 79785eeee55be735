#include <QMenu>
#include <QMenuBar>
#include <QScopedValueRollback>

#include "core/clock.h"
#include "core/default_rows.h"
#include "core/prompts.h"
#include "core/screens.h"
#include "gear/rigs.h"
#include "gear/screens.h"
#include "history/screens.h"
#include "jobs/completion.h"
#include "jobs/delete_job.h"
#include "jobs/job_records.h"
#include "jobs/line_edits.h"
#include "jobs/screens.h"
#include "jobs/screens/frmJob.h"
#include "jobs/screens/job_gear_commands.h"
#include "jobs/screens/ui_frmJob.h"
#include "reports/screens.h"
#include "schedule/screens.h"

using namespace Qt::StringLiterals;

void frmJob::BuildMenus() {
  QMenuBar* bar = MenuBar();
  QMenu* jobs = bar->addMenu(u"&Jobs"_s);
  QMenu* start = jobs->addMenu(u"Start new job"_s);
  start->addAction(u"New job, select rig"_s, this, [] {
    int rig = 0;
    int customer = 0;
    if (PickRig(rig, customer)) StartNewJob(RigOwner(rig), rig, 0, Today());
  });
  start->addAction(u"New job, no rig"_s, this, [] {
    const Picked picked = PickItem(kPickCustomer);
    int jobID = 0;
    if (picked.id > 0) StartJobDialog(picked.id, 0, 0, jobID, 0, 0, Today());
  });
  jobs->addAction(u"Create a new rig"_s, this, [this] { gear_->MakeArig(); });
  jobs->addAction(u"Load different Job"_s, this, [] { OpenJobList(); });
  jobs->addAction(u"Delete this job"_s, this, &frmJob::DeleteThisJob);
  jobs->addAction(u"Change rigger for job"_s, this, &frmJob::ChangeRigger);
  jobs->addAction(u"Change location"_s, this, &frmJob::ChangeLocation);

  QMenu* tasks = bar->addMenu(u"&Tasks"_s);
  tasks->addAction(u"Add a task to this job"_s, this, [this] { AddFromLibrary(false); });
  tasks->addAction(u"Add multiple tasks to this job"_s, this, &frmJob::DoMultiTask);
  tasks->addAction(u"Add custom task to this job"_s, this, [this] { EnterCustom(false); });
  tasks->addAction(u"Delete highlighted task"_s, this, &frmJob::DeleteCurrentTask);
  tasks->addAction(u"Delete all tasks for this job"_s, this, &frmJob::DeleteAllTasks);
  tasks->addAction(u"Change rigger for selected task"_s, this, &frmJob::ChangeTaskRigger);
  tasks->addAction(u"Restore original task name"_s, this,
                   [this] { Restore(&RestoreTaskName, u"Please select a task"_s); });
  tasks->addAction(u"Restore original price"_s, this, [this] { Restore(&RestorePrice, u"You must select an item"_s); });
  tasks->addAction(u"Make all tasks incomplete"_s, this, [this] { CompleteAll(false); });
  tasks->addAction(u"Complete all tasks"_s, this, [this] { CompleteAll(true); });

  QMenu* events = bar->addMenu(u"&Events"_s);
  events->addAction(u"Record an event (not a rigging task)"_s, this, [this] { AddFromLibrary(true); });
  events->addAction(u"Record a custom event"_s, this, [this] { EnterCustom(true); });
  events->addAction(u"Delete highlighted event"_s, this, &frmJob::DeleteCurrentTask);
  events->addAction(u"Restore event name"_s, this, [this] { Restore(&RestoreTaskName, u"Please select a task"_s); });
  events->addAction(u"What's an event?"_s, this, [] {
    MsgBox(Lines({u"Events are unplanned occurences, such as a reserve deployment."_s,
                  u"Tasks are planned and usually performed by riggers."_s}),
           u"Events vs Tasks"_s);
  });

  QMenu* locate = bar->addMenu(u"&Locate Job"_s);
  locate->addAction(u"locate by invoice #"_s, this, [this] { Locate(kPickInvoice); });
  locate->addAction(u"locate by job name"_s, this, [this] { Locate(kPickJob); });

  QMenu* rig = bar->addMenu(u"&Rig"_s);
  rig->addAction(u"Create a new rig"_s, this, [this] { gear_->MakeArig(); });
  rig->addAction(u"Add an existing rig to this job"_s, this, [this] { gear_->ImportRig(); });
  rig->addAction(u"Show this rig"_s, this, &frmJob::ShowThisRig);
  rig->addAction(u"Show all rigs"_s, this, [] { ShowRigs(); });
  rig->addAction(u"Install component in rig"_s, this, [this] { gear_->InstallComponent(); });
  rig->addAction(u"Remove component from rig"_s, this, [this] { gear_->RemoveComponent(); });
  QMenu* component = bar->addMenu(u"&Component"_s);
  component->addAction(u"Edit selected component"_s, this, [this] { gear_->EditSelectedComponent(); });
  component->addAction(u"Add a component"_s, this, [this] { gear_->InstallComponent(); });
  bar->addMenu(u"&Invoice"_s)->addAction(u"View/Print/Email invoice"_s, this, &frmJob::ShowInvoice);
  bar->addMenu(u"Sched&ule"_s)->addAction(u"Show schedule"_s, this, [this] { OpenSchedule({.rig = job_.rigID}); });
  bar->addMenu(u"&History"_s)->addAction(u"Show history"_s, this, &frmJob::ShowHistory);
  bar->addMenu(u"&Forms"_s)->addAction(u"Arrange forms"_s, this, [] { ArrangeForms(); });

  QMenu* tools = bar->addMenu(u"T&ools"_s);
  QAction* mnuSync =
      tools->addAction(u"Update rig component to match this job's components"_s, this, [this] { gear_->UpdateRig(); });
  mnuSync->setObjectName(u"mnuSync"_s);
  tools->addAction(u"Delete all empty jobs"_s, this, [] { DeleteAllEmptyJobs(); });
  tools->addAction(u"Refresh"_s, this, &frmJob::ReloadForm);

  QMenu* comments = bar->addMenu(u"Co&mments"_s);
  comments->addAction(u"Job comments"_s, this, &frmJob::EditJobComments);
  comments->addAction(u"Comments for selected task or event - (CTRL Left click)"_s, this, &frmJob::EditTaskComments);
  bar->addAction(u"E&xit"_s, this, &frmJob::Cancel);
}

void frmJob::DeleteThisJob() {
  bool cancelled = false;
  const int gone = job_.jobID;
  {
    const QScopedValueRollback<bool> busy(busy_, true);
    DeleteJob(gone, true, cancelled);
  }
  if (cancelled) {
    ReloadForm();  // others may have written while it asked
    return;
  }
  if (const int next = GetNextValidJobID(gone); next != 0) {
    LoadJob(next);
    return;
  }
  job_ = {};
  hide();
  MsgBox(u"The only job in the database has been deleted"_s, u"Job database is now empty"_s);
}

void frmJob::Locate(int pickerType) {
  const Picked picked = PickItem(pickerType);
  if (picked.id > 0) LoadJob(picked.id);
}

void frmJob::ShowInvoice() {
  if (!AllChecked(job_.jobID) &&
      !AskYes(Lines({u"This job is incomplete."_s, u"One or more items in the STATUS column are blank."_s,
                     u"Do you want to show the invoice anyway?"_s}),
              u"Job is not complete"_s))
    return;
  DoReport(u"invoice"_s, job_.jobID);
}

void frmJob::ShowThisRig() {
  if (job_.rigID == 0) {
    MsgBox(u"There is no rig for this job"_s, u"No Rig"_s);
    return;
  }
  if (!RigExists(job_.rigID)) {
    MsgBox(u"The rig for this job has been deleted"_s, u"Can't show rig"_s);
    return;
  }
  ShowRigs({.customer = RigOwner(job_.rigID), .rig = job_.rigID});
}

void frmJob::ShowHistory() {
  const int component = JobComponentID(job_.jobID);
  if (job_.rigID != 0)
    OpenRigHistory(job_.rigID);
  else if (component != 0)
    OpenComponentHistory(component);
  else
    MsgBox(u"There is no rig for this job"_s, u"No Rig"_s);
}
