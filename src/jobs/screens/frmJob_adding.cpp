#include "core/default_rows.h"
#include "core/picker.h"
#include "core/screens.h"
#include "gear/catalogue.h"
#include "jobs/completion.h"
#include "jobs/custom_entry.h"
#include "jobs/job_header.h"
#include "jobs/parts.h"
#include "jobs/screens.h"
#include "jobs/screens/frmJob.h"
#include "jobs/screens/frmMiscTask.h"
#include "jobs/screens/frmTaskType.h"
#include "jobs/screens/job_gear_commands.h"
#include "jobs/screens/ui_frmJob.h"

using namespace Qt::StringLiterals;

namespace {

/// Offers a custom task as a new task of the library, on its form; its id, 0 when it was not saved.
int SaveCustomTaskToLibrary() {
  auto& form = SharedForm<frmTaskType>();
  form.SetStart({});
  form.GetDataFromFormMiscTask();
  form.ShowModal();
  const int saved = form.Tag() == "save"_L1 ? form.TaskLibID() : 0;
  form.UnloadForm();
  return saved;
}

}  // namespace

/// What is typed as date performed; it is read before anything else is asked.
Date frmJob::TypedDate() const { return WorkingDate(ui_->txtDate->text()); }

void frmJob::AddLine(int taskLibID, Date date) {
  if (GetLibraryTask(taskLibID, date)) LoadTasksGrid();
}

/// The reserve repack.
void frmJob::EnterTask() {
  const Date date = TypedDate();
  if (RepackIsPossible(job_.rigID)) AddLine(RepackTaskLibID, date);
}

/// True when a line was added; what installs and removes gear shows the lines by itself.
bool frmJob::GetLibraryTask(int taskLibID, Date date) {
  const LibraryOutcome outcome = AddLibraryTask(job_, taskLibID, date, rigComponentsCurrent_);
  if (outcome == LibraryOutcome::Install) gear_->InstallComponent();
  if (outcome == LibraryOutcome::Remove) gear_->RemoveComponent();
  return outcome == LibraryOutcome::Added;
}

void frmJob::AddFromLibrary(bool events) {
  const Date date = TypedDate();
  if (const int entry = SelectTask({.events = events}).taskLibID; entry > 0) AddLine(entry, date);
}

void frmJob::DoMultiTask() {
  const QList<int> entries = SelectMultipleTasks();
  if (entries.isEmpty()) return;
  const Date date = TypedDate();
  for (int entry : entries) GetLibraryTask(entry, date);
  LoadTasksGrid();
}

void frmJob::EnterCustom(bool isEvent) {
  auto& form = SharedForm<frmMiscTask>();
  if (isEvent) form.DoEventCaptions();
  form.ShowModal();
  const CustomEntry entry = form.Entry();
  int taskLibID = 0;
  CustomRoad road = entry.name.isEmpty() ? CustomRoad::None : ChooseCustomRoad(entry, job_.jobID, taskLibID);
  if (road == CustomRoad::NewTaskType) {
    taskLibID = SaveCustomTaskToLibrary();
    road = taskLibID > 0 ? CustomRoad::Library : CustomRoad::None;
  }
  form.UnloadForm();
  if (road == CustomRoad::Library) AddLine(taskLibID, TypedDate());
  if (road != CustomRoad::OneOff) return;
  AddOneOffLine(job_, entry, TypedDate());
  LoadTasksGrid();
  const bool complete = CheckJobStatus(job_.jobID, WorkDate());
  ShowJobStatus(complete, complete ? HeaderDate(WorkDate()) : u"(n/a)"_s);
}

void frmJob::SelectPart() {
  int part = PickItem(kPickMiscItem).id;
  if (part == kPickAddNew) {
    MiscItem item;
    part = EnterMiscItem(item) ? AddPart(item.name, item.price, 0).id : 0;
  }
  if (part > 0 && AddPartToJob(job_, part, TypedDate()) != 0) LoadTasksGrid();
}

void frmJob::EnterCustomPart() {
  MiscItem item;
  if (!EnterMiscItem(item, {.caption = u"Enter Custom Item"_s})) return;
  if (AddCustomPart(job_, item.name, item.price, TypedDate()) != 0) LoadTasksGrid();
}
