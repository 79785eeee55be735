#include "jobs/line_edits.h"

#include <optional>

#include "core/dates.h"
#include "core/failure.h"
#include "core/format.h"
#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "jobs/job_lines.h"
#include "jobs/job_records.h"
#include "jobs/lines.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double kHighestPrice = 1'000'000'000;
const QString kPricePattern = u"#############0.00"_s;

/// Writes a cell of the grid; what stood in it stays when it could not be written.
EditResult WriteCell(int taskID, const Column& field, const Value& value, const QString& shown, const QString& before) {
  const bool written = Operation(u"Sub SaveTextBox"_s, [&] { SetLineField(taskID, field, value); });
  return {.shown = written ? shown : before, .changed = written};
}

/// No amount for a text whose number is above the highest price, or is none that money can hold.
std::optional<Money> PriceFrom(const QString& typed) {
  try {
    if (Val(typed) <= kHighestPrice) return Money::FromText(typed);
  } catch (const Failure&) {
  }
  return std::nullopt;
}

}  // namespace

EditResult SaveLineName(int taskID, const QString& text) {
  const JobLine line = LoadJobLine(taskID);
  const QString name = text.trimmed().left(kJobTextLength);
  if (name.isEmpty() || name == line.task.trimmed()) return {.shown = line.task};
  return WriteCell(taskID, tblTasks::TaskName, name, (line.partID == 0 ? QString() : kPartIndent) + name, line.task);
}

EditResult SaveLinePrice(int taskID, const QString& text) {
  const Money old = LoadJobLine(taskID).price;
  const QString before = Format(old, kPricePattern);
  const QString typed = text.trimmed();
  if (typed.isEmpty()) return {.shown = before};
  const std::optional<Money> price = PriceFrom(typed);
  if (!price) {
    MsgBox(typed + u" is not a valid amount"_s,
           u"Invalid dollar amount\n(values over $ 1,000,000,000 are not allowed)"_s);
    return {.shown = before, .refused = true};
  }
  if (*price == old) return {.shown = before};
  return WriteCell(taskID, tblTasks::FlatRate, *price, Format(*price, kPricePattern), before);
}

EditResult SaveLineDate(int taskID, const QString& text) {
  const QString old = LoadJobLine(taskID).date;
  const QString typed = text.trimmed();
  if (typed.isEmpty() || typed == old) return {.shown = old};
  if (!IsValidDate(typed)) {
    MsgBox(typed + u" is not a valid date"_s, u"Invalid date"_s);
    return {.shown = old, .refused = true};
  }
  const Date date = ParseDate(typed);
  return WriteCell(taskID, tblTasks::DateTaskCompleted, date, Format(date, u"mm/dd/yyyy"_s), old);
}

void SetLineRigger(int taskID, int riggerID) {
  Operation(u"Sub ChangeTaskRigger"_s, [&] { SetLineField(taskID, tblTasks::RiggerID, riggerID); });
}

QString LineComments(int taskID) { return LineField(taskID, tblTasks::Comments).ToText(); }

void SetLineComments(int taskID, const QString& comments) {
  Operation(u"Sub EditTaskComments"_s,
            [&] { SetLineField(taskID, tblTasks::Comments, comments.isEmpty() ? u" "_s : comments); });
}

QString LineName(int taskID) { return LineField(taskID, tblTasks::TaskName).ToText(); }

QString LineKind(int taskID) {
  if (LineField(taskID, tblTasks::PartID).ToInt() != 0) return u"part"_s;
  return TaskIsEvent(taskID) ? u"event"_s : u"task"_s;
}

QString LineHeading(int taskID) {
  const QString kind = LineKind(taskID);
  if (kind == "part"_L1) return u"Misc part: "_s + LineName(taskID);
  return (kind == "event"_L1 ? u"Event: "_s : u"Task: "_s) + LineName(taskID);
}
