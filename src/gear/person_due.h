#pragma once
#include <QString>

#include <optional>

#include "core/date.h"

/// The time from today to a date: "5 years", "14 months", "12 days", "1 day", "Due today!", "Overdue!".
QString DueIntervalWords(Date date);

/// "No rigs", "1 rig", "4 rigs".
QString RigCountText(int person);

/// Days until the first of the person's rigs and components has work due, negative when it is overdue; nothing when
/// none of them is on the schedule.
std::optional<int> DaysToSoonestDue(int person);

/// The same as a sentence: "Has tasks due in 12 days", "(no scheduled tasks)".
QString DueLine(int person);
