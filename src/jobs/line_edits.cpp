#include "jobs/line_edits.h"

#include "core/dates.h"
#include "core/format.h"
#include "core/prompts.h"
#include "core/store/access.h"
#include "jobs/job_lines.h"
#include "jobs/job_records.h"
#include "jobs/lines.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double kHighestPrice = 1'000'000'000;
const QString kPricePattern = u"#############0.00"_s;

}  // namespace

EditResult SaveLineName(int taskID, const QString& text) {
  const JobLine line = LoadJobLine(taskID);
  const QString name = text.trimmed().left(kJobTextLength);
  if (name.isEmpty() || name == line.task.trimmed()) return {.shown = line.task};
  SetLineField(taskID, u"taskName"_s, name);
  return {.shown = (line.partID == 0 ? QString() : kPartIndent) + name, .changed = true};
}

EditResult SaveLinePrice(int taskID, const QString& text) {
  const Money old = LoadJobLine(taskID).price;
  const QString typed = text.trimmed();
  if (typed.isEmpty()) return {.shown = Format(old, kPricePattern)};
  if (Val(typed) > kHighestPrice) {
    MsgBox(typed + u" is not a valid amount"_s,
           u"Invalid dollar amount\n(values over $ 1,000,000,000 are not allowed)"_s);
    return {.shown = Format(old, kPricePattern), .refused = true};
  }
  const Money price = Money::FromText(typed);
  if (price == old) return {.shown = Format(old, kPricePattern)};
  SetLineField(taskID, u"FlatRate"_s, price);
  return {.shown = Format(price, kPricePattern), .changed = true};
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
  SetLineField(taskID, u"DateTaskCompleted"_s, date);
  return {.shown = Format(date, u"mm/dd/yyyy"_s), .changed = true};
}

void SetLineRigger(int taskID, int riggerID) { SetLineField(taskID, u"RiggerID"_s, riggerID); }

QString LineComments(int taskID) { return LineField(taskID, u"comments"_s).ToText(); }

void SetLineComments(int taskID, const QString& comments) {
  SetLineField(taskID, u"comments"_s, comments.isEmpty() ? u" "_s : comments);
}

QString LineName(int taskID) { return LineField(taskID, u"TaskName"_s).ToText(); }

QString LineKind(int taskID) {
  if (LineField(taskID, u"PartID"_s).ToInt() != 0) return u"part"_s;
  return TaskIsEvent(taskID) ? u"event"_s : u"task"_s;
}

QString LineHeading(int taskID) {
  const QString kind = LineKind(taskID);
  if (kind == "part"_L1) return u"Misc part: "_s + LineName(taskID);
  return (kind == "event"_L1 ? u"Event: "_s : u"Task: "_s) + LineName(taskID);
}
