#include "core/picker.h"
#include "core/prompts.h"
#include "core/store/tables.h"
#include "jobs/job_picker_rows.h"
#include "jobs/library_delete.h"
#include "jobs/screens.h"
#include "schedule/task_library.h"

using namespace Qt::StringLiterals;

namespace {

PickerKind Tasks() {
  return {.title = [](int) { return u"Task Library"_s; },
          .rows = [](int) { return PickerTasks(); },
          .tables = {tblTaskLib::kTable},
          .offersToAdd = true,
          .noun = [](int) { return u"task"_s; },
          .whole = u"library"_s,
          .add = [](const QString& name, int) { return EditTaskType({.name = name}); },
          .mayRemove =
              [](int id) {
                if (!IsFixedTask(id)) return true;
                MsgBox(u"You cannot delete this task type.  You can only edit it."_s);
                return false;
              },
          .remove =
              [](int id) {
                bool cancelled = false;
                DeleteTaskType(id, true, cancelled);
                return !cancelled;
              }};
}

PickerKind Jobs() {
  return {.title = [](int) { return u"Jobs"_s; },
          .rows = [](int) { return PickerJobs(); },
          .tables = {tblJobs::kTable},
          .endsUnmatched = true};
}

PickerKind Invoices() {
  return {.title = [](int) { return u"Select Invoice"_s; },
          .rows = [](int) { return PickerInvoices(); },
          .tables = {tblJobs::kTable},
          .endsUnmatched = true};
}

}  // namespace

void RegisterJobPickers() {
  RegisterPicker(kPickTask, Tasks());
  RegisterPicker(kPickJob, Jobs());
  RegisterPicker(kPickInvoice, Invoices());
}
