#include <QScopedValueRollback>

#include <algorithm>

#include "core/default_rows.h"
#include "core/picker.h"
#include "core/screens.h"
#include "core/store/operation.h"
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
#include "jobs/screens/keep_shown.h"
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

/// The reserve repack.
void frmJob::EnterTask() {
  const Date date = TypedDate();
  if (RepackIsPossible(job_.rigID)) GetLibraryTask(RepackTaskLibID, date);
}

void frmJob::GetLibraryTask(int taskLibID, Date date) {
  const LibraryOutcome outcome = AddLibraryTask(job_, taskLibID, date, rigComponentsCurrent_);
  if (outcome == LibraryOutcome::Install) gear_->InstallComponent();
  if (outcome == LibraryOutcome::Remove) gear_->RemoveComponent();
}

void frmJob::AddFromLibrary(bool events) {
  const int job = job_.jobID;
  const Date date = TypedDate();
  if (const int entry = SelectTask({.events = events}).taskLibID; entry > 0 && StillShows(job))
    GetLibraryTask(entry, date);
}

void frmJob::DoMultiTask() {
  const int job = job_.jobID;
  const QList<int> entries = SelectMultipleTasks();
  if (entries.isEmpty() || !StillShows(job)) return;
  const Date date = TypedDate();
  // Gear is installed and removed by commands of their own.
  const auto isGear = [](int entry) { return entry == InstallTaskLibID || entry == RemoveTaskLibID; };
  for (auto it = entries.cbegin(); it != entries.cend();) {
    const auto end = std::find_if(it, entries.cend(), isGear);
    const bool written = Operation({u"Sub DoMultiTask"_s, u"Add multiple tasks"_s}, [&] {
      for (; it != end; ++it) GetLibraryTask(*it, date);
    });
    if (!written) return;
    if (it != entries.cend()) GetLibraryTask(*it++, date);
  }
}

void frmJob::EnterCustom(bool isEvent) {
  if (ComesForward<frmMiscTask>()) return;
  const int job = job_.jobID;
  auto& form = SharedForm<frmMiscTask>();
  if (isEvent) form.DoEventCaptions();
  form.ShowModal();
  const CustomEntry entry = form.Entry();
  int taskLibID = 0;
  CustomRoad road = CustomRoad::None;
  Operation({u"Sub EnterCustom"_s, isEvent ? u"Add custom event"_s : u"Add custom task"_s}, [&] {
    if (!entry.name.isEmpty()) road = ChooseCustomRoad(entry, job_.jobID, taskLibID);
    if (road == CustomRoad::NewTaskType) {
      taskLibID = SaveCustomTaskToLibrary();
      road = taskLibID > 0 ? CustomRoad::Library : CustomRoad::None;
    }
    if (road == CustomRoad::Library && StillShows(job)) GetLibraryTask(taskLibID, TypedDate());
  });
  form.UnloadForm();
  if (road == CustomRoad::OneOff && StillShows(job)) AddOneOff(entry, TypedDate());
}

/// Until the next load a job that is complete by it is complete on the working date.
void frmJob::AddOneOff(const CustomEntry& entry, Date date) {
  const QScopedValueRollback<bool> busy(busy_, true);
  bool complete = false;
  const bool written = Operation(u"Sub AddOneOffLine"_s, [&] {
    AddOneOffLine(job_, entry, date);
    complete = CheckJobStatus(job_.jobID, WorkDate());
  });
  if (!written) return;
  ShowLines();
  ShowJobStatus(complete, complete ? HeaderDate(WorkDate()) : u"(n/a)"_s);
}

void frmJob::SelectPart() {
  const int job = job_.jobID;
  int part = PickItem(kPickMiscItem).id;
  if (part == kPickAddNew) {
    MiscItem item;
    part = EnterMiscItem(item) ? AddPart(item.name, item.price, 0).id : 0;
  }
  if (part > 0 && StillShows(job)) AddPartToJob(job_, part, TypedDate());
}

void frmJob::EnterCustomPart() {
  const int job = job_.jobID;
  MiscItem item;
  if (EnterMiscItem(item, {.caption = u"Enter Custom Item"_s}) && StillShows(job))
    AddCustomPart(job_, item.name, item.price, TypedDate());
}
