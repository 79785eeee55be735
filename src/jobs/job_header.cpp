#include "jobs/job_header.h"

#include "core/dates.h"
#include "core/format.h"
#include "core/prompts.h"
#include "core/store/access.h"
#include "gear/people.h"
#include "jobs/job_records.h"

using namespace Qt::StringLiterals;

namespace {

EditResult SaveDate(int jobID, const QString& text, Date stored, void (*write)(int jobID, Date date)) {
  const QString shown = HeaderDate(stored);
  const QString typed = text.trimmed();
  if (typed.isEmpty() || typed == shown) return {.shown = shown};
  if (!IsValidDate(typed)) {
    MsgBox(typed + u" is not a valid date"_s, u"Invalid date"_s);
    return {.shown = shown, .refused = true};
  }
  const Date date = ParseDate(typed);
  write(jobID, date);
  return {.shown = HeaderDate(date), .changed = true};
}

}  // namespace

QString HeaderDate(Date date) { return date.IsNone() ? u"n/a"_s : Format(date, u"mm/dd/yyyy"_s); }

EditResult SaveDatePromised(int jobID, const QString& text) {
  return SaveDate(jobID, text, JobDatePromised(jobID), &SetJobDatePromised);
}

EditResult SaveDateStarted(int jobID, const QString& text) {
  return SaveDate(jobID, text, JobDateStarted(jobID), &SetJobDateStarted);
}

EditResult SaveJobName(int jobID, const QString& text) {
  const QString old = JobTitle(jobID);
  const QString name = text.trimmed();
  if (name.isEmpty() || name == old) return {.shown = old};
  if (JobTitleExists(name)) {
    MsgBox(u"There is already a job named: "_s + name, u"Can't use this job name"_s);
    return {.shown = old, .refused = true};
  }
  SetJobTitle(jobID, name);
  return {.shown = JobTitle(jobID), .changed = true};
}

EditResult SaveInvoiceNumber(int jobID, const QString& text) {
  const QString old = GetInvoiceNumber(jobID);
  const QString number = text.trimmed().left(kJobTextLength);
  if (number.isEmpty() || number == old) return {.shown = old};
  if (!InvoiceNumberIsFree(number)) {
    MsgBox(u"Invoice #%1 is already in use"_s.arg(number), u"Duplicate Invoice Number"_s);
    return {.shown = old, .refused = true};
  }
  SetJobInvoiceNumber(jobID, number);
  return {.shown = GetInvoiceNumber(jobID), .changed = true};
}

bool JobHasTasksByOtherRiggers(int jobID, int riggerID) {
  return GetNumberRecordsComplex(
             u"Select * from tblTasks where JobID = %1 and RiggerID > 0 and RiggerID <> %2"_s.arg(jobID).arg(riggerID))
             .ToInt() > 0;
}

bool OfferRiggerForTasks(int jobID, int riggerID) {
  if (!JobHasTasksByOtherRiggers(jobID, riggerID)) return false;
  const QString name = PersonDisplayName(riggerID);
  if (!AskYes(Lines({u"Rigger for this job has been changed to %1."_s.arg(name),
                     u"This job has tasks performed by other riggers."_s,
                     u"Do you want to change rigger to %1 for all tasks on this job?"_s.arg(name)}),
              u"Change rigger on tasks?"_s))
    return false;
  UpdateTableBySQL(
      u"update tblTasks set riggerID = %1 where isEvent = false and JobID = %2"_s.arg(riggerID).arg(jobID));
  return true;
}
