#pragma once
#include <QString>

#include "core/date.h"
#include "jobs/line_edits.h"

/// The fields at the head of a job, edited in place. An empty or unchanged text writes nothing.

EditResult SaveDatePromised(int jobID, const QString& text);
EditResult SaveDateStarted(int jobID, const QString& text);
/// A title that another job has is refused.
EditResult SaveJobName(int jobID, const QString& text);
/// Cut to 50 characters; a number in use is refused.
EditResult SaveInvoiceNumber(int jobID, const QString& text);

/// "mm/dd/yyyy", or "n/a" for none.
QString HeaderDate(Date date);

/// Gives the job another rigger. When lines were done by others, asks whether all tasks change to the new one too. True
/// when it was written.
bool ChangeJobRigger(int jobID, int riggerID);
/// Does a line name another rigger than this one?
bool JobHasTasksByOtherRiggers(int jobID, int riggerID);
