#include "core/default_rows.h"
#include "core/format.h"
#include "core/prompts.h"
#include "core/store/operation.h"
#include "core/store/tables.h"
#include "gear/models.h"
#include "jobs/job_records.h"
#include "jobs/line_edits.h"
#include "jobs/lines.h"
#include "schedule/task_library.h"

using namespace Qt::StringLiterals;

namespace {

const QString kNoPrice = u"Can't restore price"_s;
const QString kNoName = u"Can't restore previous name (if any)"_s;

/// A part whose model has gone becomes a custom part of this line.
bool PartHasGone(int taskID, int partID, const QString& lastLine) {
  if (partID <= 0 || ModelExists(partID)) return false;
  if (!Operation(u"Sub PartHasGone"_s, [&] { SetLineField(taskID, tblTasks::PartID, kCustomPart); })) return true;
  MsgBox(Lines({u"This part has been deleted from the available parts table"_s,
                u"It is now considered a custom entry for this job."_s, lastLine}),
         u"Part no longer exists"_s);
  return true;
}

bool WritePrice(int taskID, Money original, const QString& text, const QString& title) {
  if (original == LineField(taskID, tblTasks::FlatRate).ToMoney()) {
    MsgBox(text, title);
    return false;
  }
  return Operation(u"Sub RestorePrice"_s, [&] { SetLineField(taskID, tblTasks::FlatRate, original); });
}

bool WriteName(int taskID, const QString& original, const QString& text) {
  const QString name = original.left(kJobTextLength);
  if (name == LineName(taskID)) {
    MsgBox(text);
    return false;
  }
  return Operation(u"Sub RestoreTaskName"_s, [&] { SetLineField(taskID, tblTasks::TaskName, name); });
}

/// Why the price of a task is not known; empty when the library tells it.
QString WhyNoPrice(int taskLibID) {
  if (taskLibID == InstallTaskLibID) return u"This task added a component to the rig. Original price is unknown"_s;
  if (taskLibID == RemoveTaskLibID) return u"This task removed a component from the rig. Original price is unknown"_s;
  if (taskLibID < 1) return u"This is a custom task.  Original price is unknown"_s;
  return TaskLibExists(taskLibID) ? QString() : u"This task type no longer exists. Original price is unknown"_s;
}

}  // namespace

bool RestorePrice(int taskID) {
  if (TaskIsEvent(taskID)) return false;
  const int partID = LineField(taskID, tblTasks::PartID).ToInt();
  if (PartHasGone(taskID, partID, u"You cannot restore the previous price but you can change it manually"_s))
    return true;
  if (partID == kCustomPart) {
    MsgBox(u"This is a custom part.  Original price is unknown"_s, kNoPrice);
    return false;
  }
  if (partID > 0) {
    const Money price = ModelPrice(partID);
    return WritePrice(taskID, price, Format(price, u"#######0.00"_s) + u" is the original price"_s, LineName(taskID));
  }
  const int taskLibID = TaskLibIDOf(taskID);
  if (const QString why = WhyNoPrice(taskLibID); !why.isEmpty()) {
    MsgBox(why, kNoPrice);
    return false;
  }
  return WritePrice(taskID, TaskLibFlatRate(taskLibID), u"Price hasn't changed"_s, u"Orignal Price"_s);
}

bool RestoreTaskName(int taskID) {
  const int partID = LineField(taskID, tblTasks::PartID).ToInt();
  if (PartHasGone(taskID, partID, u"You cannot restore the previous name"_s)) return true;
  if (partID > 0) return WriteName(taskID, ModelName(partID), u"This is the original part name"_s);
  const QString doubt = u"Its original name unknown.  It may or may not"_s;
  const QString been = u"have been changed."_s;
  if (partID == kCustomPart) {
    MsgBox(Lines({u"The selected part is a custom part."_s, doubt, been}), kNoName);
    return false;
  }
  const int taskLibID = TaskLibIDOf(taskID);
  if (const QString original = TaskLibName(taskLibID); !original.isEmpty())
    return WriteName(taskID, original, u"This task's name hasn't changed"_s);
  if (taskLibID < 1)
    MsgBox(u"This is a custom task. Original name is unknown"_s, u"Can't restore name"_s);
  else
    MsgBox(Lines({u"The selected task was a custom entry."_s, doubt, been}), kNoName);
  return false;
}
