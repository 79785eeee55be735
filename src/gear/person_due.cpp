#include "gear/person_due.h"

#include "core/clock.h"
#include "core/format.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "gear/rigs.h"

using namespace Qt::StringLiterals;

namespace {

/// Entries come in the order of their due date, so the first of each rig or component is its earliest.
void FindEarliest(const Condition& owned, const Column& id, const Column& scheduled, std::optional<Date>& earliest) {
  for (const Recordset& gear : Rows(owned)) {
    const Recordset entries(Select(scheduled == gear[id].ToInt()).OrderBy(tblSchedules::DateDue));
    if (entries.Eof()) continue;
    const Date due = entries[tblSchedules::DateDue].ToDate();
    if (!earliest || due < *earliest) earliest = due;
  }
}

}  // namespace

QString DueIntervalWords(Date date) {
  const int days = DaysBetween(Today(), date);
  if (days >= 1464) return Format(days / 365.0, u"######0"_s) + u" years"_s;
  if (days >= 367) return Format(days / 30.5, u"######0"_s) + u" months"_s;
  if (days > 1) return QString::number(days) + u" days"_s;
  if (days == 1) return u"1 day"_s;
  return days == 0 ? u"Due today!"_s : u"Overdue!"_s;
}

QString RigCountText(int person) {
  const int rigs = NumberOfRigs(person);
  if (rigs == 0) return u"No rigs"_s;
  return rigs == 1 ? u"1 rig"_s : QString::number(rigs) + u" rigs"_s;
}

std::optional<int> DaysToSoonestDue(int person) {
  std::optional<Date> earliest;
  Operation(u"Function DaysToSoonestDue"_s, [&] {
    FindEarliest(tblComponents::OwnerID == person, tblComponents::ID, tblSchedules::ComponentID, earliest);
    FindEarliest(tblRig::OwnerID == person, tblRig::ID, tblSchedules::rigID, earliest);
  });
  if (!earliest) return std::nullopt;
  return DaysBetween(Today(), *earliest);
}

QString DueLine(int person) {
  const std::optional<int> days = DaysToSoonestDue(person);
  if (!days) return u"(no scheduled tasks)"_s;
  if (*days < 0) return u"Has overdue tasks!"_s;
  if (*days == 0) return u"Has tasks due today!"_s;
  if (*days == 1) return u"Has tasks due tomorrow!"_s;
  return u"Has tasks due in "_s + DueIntervalWords(Today() + *days);
}
