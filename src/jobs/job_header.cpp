#include "jobs/job_header.h"

#include "core/dates.h"
#include "core/format.h"
#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "gear/people.h"
#include "jobs/job_records.h"

using namespace Qt::StringLiterals;

namespace {

/// What became of a text that passed its rules, once it is written.
template <typename Write>
EditResult WriteField(const QString& routine, const QString& shown, const QString& before, Write&& write) {
  const bool written = Operation(routine, std::forward<Write>(write));
  return {.shown = written ? shown : before, .changed = written};
}

EditResult SaveDate(const QString& routine, int jobID, const QString& text, Date stored,
                    void (*write)(int jobID, Date date)) {
  const QString shown = HeaderDate(stored);
  const QString typed = text.trimmed();
  if (typed.isEmpty() || typed == shown) return {.shown = shown};
  if (!IsValidDate(typed)) {
    MsgBox(typed + u" is not a valid date"_s, u"Invalid date"_s);
    return {.shown = shown, .refused = true};
  }
  const Date date = ParseDate(typed);
  return WriteField(routine, HeaderDate(date), shown, [&] { write(jobID, date); });
}

}  // namespace

QString HeaderDate(Date date) { return date.IsNone() ? u"n/a"_s : Format(date, u"mm/dd/yyyy"_s); }

EditResult SaveDatePromised(int jobID, const QString& text) {
  return SaveDate(u"Sub SaveDatePromised"_s, jobID, text, JobDatePromised(jobID), &SetJobDatePromised);
}

EditResult SaveDateStarted(int jobID, const QString& text) {
  return SaveDate(u"Sub SaveDateStarted"_s, jobID, text, JobDateStarted(jobID), &SetJobDateStarted);
}

EditResult SaveJobName(int jobID, const QString& text) {
  const QString old = JobTitle(jobID);
  const QString name = text.trimmed();
  if (name.isEmpty() || name == old) return {.shown = old};
  if (JobTitleExists(name)) {
    MsgBox(u"There is already a job named: "_s + name, u"Can't use this job name"_s);
    return {.shown = old, .refused = true};
  }
  return WriteField(u"Sub SaveJobName"_s, name.left(kJobTextLength), old, [&] { SetJobTitle(jobID, name); });
}

EditResult SaveInvoiceNumber(int jobID, const QString& text) {
  const QString old = GetInvoiceNumber(jobID);
  const QString number = text.trimmed().left(kJobTextLength);
  if (number.isEmpty() || number == old) return {.shown = old};
  if (!InvoiceNumberIsFree(number)) {
    MsgBox(u"Invoice #%1 is already in use"_s.arg(number), u"Duplicate Invoice Number"_s);
    return {.shown = old, .refused = true};
  }
  return WriteField(u"Sub SaveInvoiceNumber"_s, number, old, [&] { SetJobInvoiceNumber(jobID, number); });
}

bool JobHasTasksByOtherRiggers(int jobID, int riggerID) {
  return GetNumberRecordsComplex(tblTasks::JobID == jobID && tblTasks::RiggerID > 0 && tblTasks::RiggerID != riggerID)
             .ToInt() > 0;
}

namespace {

bool AskRiggerForTasks(int jobID, int riggerID) {
  if (!JobHasTasksByOtherRiggers(jobID, riggerID)) return false;
  const QString name = PersonDisplayName(riggerID);
  return AskYes(Lines({u"Rigger for this job has been changed to %1."_s.arg(name),
                       u"This job has tasks performed by other riggers."_s,
                       u"Do you want to change rigger to %1 for all tasks on this job?"_s.arg(name)}),
                u"Change rigger on tasks?"_s);
}

}  // namespace

bool ChangeJobRigger(int jobID, int riggerID) {
  const bool tasksToo = AskRiggerForTasks(jobID, riggerID);
  return Operation(u"Sub ChangeRigger"_s, [&] {
    SetJobRiggerID(jobID, riggerID);
    if (!tasksToo) return;
    UpdateRows(tblTasks::RiggerID, riggerID, tblTasks::IsEvent == false && tblTasks::JobID == jobID);
  });
}
