#pragma once
#include <QString>

#include "core/date.h"
#include "core/money.h"

/// Writes a date by a pattern of the system: d dd ddd dddd, m mm mmm mmmm, yy yyyy, h hh n nn s ss AM/PM, the rest as
/// it stands. "m" right after an "h" pattern counts as minutes. No date (0) is written as 30 December 1899 would be.
QString Format(Date date, const QString& pattern);

/// Writes a number by a pattern of the system: 0 is a digit that always shows, # one that shows when needed, a comma
/// between digits asks for groups of three, "." places the decimals; other characters before and behind stand as they
/// are ("$###,##0.00"). Rounds half away from zero.
QString Format(double number, const QString& pattern);
QString Format(Money amount, const QString& pattern);
inline QString Format(int number, const QString& pattern) { return Format(static_cast<double>(number), pattern); }

/// The number that a text begins with, blanks skipped; 0 when it begins with none. "1,000" is 1.
double Val(const QString& text);
