#pragma once
#include <QString>

#include "core/date.h"
#include "core/value.h"

/// The platform's conversion of a text to a date: month first ("12/25/2010", "12-25-10", "12.25.2010", "12/25" in this
/// year, "12/2010" for its first day), with the name of the month ("Dec 25, 2010", "25 December 2010", "Dec 2010"), or
/// year first ("2010-12-25"), each with an optional time ("3:15 PM", "15:15:30"). Years of two digits: 00-29 are the
/// 2000s, 30-99 the 1900s. A month above 12 changes place with the day. Failure("Type mismatch") otherwise.
Date DateFromText(const QString& text);

/// True when DateFromText can convert the text.
bool IsValidDate(const QString& text);

/// The date that a person typed: "\" counts as "/", four digits from 1850 to 2299 are a year (its first day). What
/// can't be converted shows a box, and the result is no date.
Date ParseDate(const Value& value);

/// Days of a month, 28 to 31; 0 for a month that does not exist.
int DaysInMonth(int month, int year);

/// The last day of the date's month.
Date LastDayOfMonth(Date date);

/// The same day `months` later (earlier when negative), or the last day of that month where it is shorter.
Date AddMonthsToDate(Date date, qint16 months);

/// Month arithmetic without that correction: a day that the month lacks throws Failure("Type mismatch").
Date AddMonthsPlain(int months, Date date);

/// The same month and day in another year; 29 February has none in most years, which shows ParseDate's box and gives
/// no date.
Date AddYears(Date date, qint16 years);
