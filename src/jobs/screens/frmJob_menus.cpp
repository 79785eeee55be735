#include <QMenu>
#include <QMenuBar>

#include "core/clock.h"
#include "core/default_rows.h"
#include "core/prompts.h"
#include "core/screens.h"
#include "jobs/completion.h"
#include "jobs/delete_job.h"
#include "jobs/job_records.h"
#include "jobs/line_edits.h"
#include "jobs/screens.h"
#include "jobs/screens/frmJob.h"
#include "reports/screens.h"

#include "ui_frmJob.h"

using namespace Qt::StringLiterals;

namespace {

/// A command whose screen does not exist yet: shown, and disabled.
void AddMissing(QMenu* menu, const QString& text) { menu->addAction(text)->setEnabled(false); }

}  // namespace

void frmJob::BuildMenus() {
  QMenuBar* bar = MenuBar();
  QMenu* jobs = bar->addMenu(u"&Jobs"_s);
  QMenu* start = jobs->addMenu(u"Start new job"_s);
  AddMissing(start, u"New job, select rig"_s);
  start->addAction(u"New job, no rig"_s, this, [] {
    const Picked picked = PickItem(kPickCustomer);
    int jobID = 0;
    if (picked.id > 0) StartJobDialog(picked.id, 0, 0, jobID, 0, 0, Today());
  });
  AddMissing(jobs, u"Create a new rig"_s);
  AddMissing(jobs, u"Load different Job"_s);
  jobs->addAction(u"Delete this job"_s, this, &frmJob::DeleteThisJob);
  jobs->addAction(u"Change rigger for job"_s, this, &frmJob::ChangeRigger);
  AddMissing(jobs, u"Change location"_s);

  QMenu* tasks = bar->addMenu(u"&Tasks"_s);
  AddMissing(tasks, u"Add a task to this job"_s);
  AddMissing(tasks, u"Add multiple tasks to this job"_s);
  AddMissing(tasks, u"Add custom task to this job"_s);
  tasks->addAction(u"Delete highlighted task"_s, this, &frmJob::DeleteCurrentTask);
  tasks->addAction(u"Delete all tasks for this job"_s, this, &frmJob::DeleteAllTasks);
  tasks->addAction(u"Change rigger for selected task"_s, this, &frmJob::ChangeTaskRigger);
  tasks->addAction(u"Restore original task name"_s, this,
                   [this] { Restore(&RestoreTaskName, u"Please select a task"_s); });
  tasks->addAction(u"Restore original price"_s, this, [this] { Restore(&RestorePrice, u"You must select an item"_s); });
  tasks->addAction(u"Make all tasks incomplete"_s, this, [this] { CompleteAll(false); });
  tasks->addAction(u"Complete all tasks"_s, this, [this] { CompleteAll(true); });

  QMenu* events = bar->addMenu(u"&Events"_s);
  AddMissing(events, u"Record an event (not a rigging task)"_s);
  AddMissing(events, u"Record a custom event"_s);
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
  for (const QString& text : {u"Create a new rig"_s, u"Add an existing rig to this job"_s, u"Show this rig"_s,
                              u"Show all rigs"_s, u"Install component in rig"_s, u"Remove component from rig"_s})
    AddMissing(rig, text);
  QMenu* component = bar->addMenu(u"&Component"_s);
  AddMissing(component, u"Edit selected component"_s);
  AddMissing(component, u"Add a component"_s);
  bar->addMenu(u"&Invoice"_s)->addAction(u"View/Print/Email invoice"_s, this, &frmJob::ShowInvoice);
  AddMissing(bar->addMenu(u"&Schedule"_s), u"Show schedule"_s);
  AddMissing(bar->addMenu(u"&History"_s), u"Show history"_s);
  AddMissing(bar->addMenu(u"&Forms"_s), u"Arrange forms"_s);

  QMenu* tools = bar->addMenu(u"T&ools"_s);
  AddMissing(tools, u"Update rig component to match this job's components"_s);
  tools->addAction(u"Delete all empty jobs"_s, this, [this] {
    if (DeleteAllEmptyJobs()) ReloadForm();
  });
  tools->addAction(u"Refresh"_s, this, &frmJob::ReloadForm);

  QMenu* comments = bar->addMenu(u"Co&mments"_s);
  comments->addAction(u"Job comments"_s, this, &frmJob::EditJobComments);
  comments->addAction(u"Comments for selected task or event - (CTRL Left click)"_s, this, &frmJob::EditTaskComments);
  bar->addAction(u"E&xit"_s, this, &frmJob::Cancel);
}

void frmJob::DeleteThisJob() {
  bool cancelled = false;
  const int gone = job_.jobID;
  busy_ = true;
  DeleteJob(gone, true, cancelled);
  busy_ = false;
  if (cancelled) return;
  Forms::ReloadIfLoaded(u"frmJobList"_s);
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
