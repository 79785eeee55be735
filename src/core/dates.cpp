#include "core/dates.h"

#include "core/failure.h"
#include "core/format.h"
#include "core/trap.h"

using namespace Qt::StringLiterals;

namespace {

struct Month {
  int year;
  int month;
};

Month Shifted(Date date, int months) {
  const qint64 count = qint64{date.Year()} * 12 + date.Month() - 1 + months;
  return {static_cast<int>(count / 12), static_cast<int>(count % 12) + 1};
}

QString DateText(int month, int day, int year) { return u"%1/%2/%3"_s.arg(month).arg(day).arg(year); }

}  // namespace

bool IsValidDate(const QString& text) {
  try {
    DateFromText(text);
    return true;
  } catch (const Failure&) {
    return false;
  }
}

Date ParseDate(const Value& value) {
  Date result;
  Trap(u"Function ParseDate"_s, [&] {
    QString text = value.ToText().replace(u'\\', u'/');
    if (text.size() == 4 && Val(text) >= 1850 && Val(text) < 2300) text.prepend(u"1/1/"_s);
    result = DateFromText(text);
  });
  return result;
}

int DaysInMonth(int month, int year) {
  if (!Date::IsValid(year, month, 1)) return 0;
  int day = 28;
  while (Date::IsValid(year, month, day + 1)) ++day;
  return day;
}

Date LastDayOfMonth(Date date) {
  return Date::FromParts(date.Year(), date.Month(), DaysInMonth(date.Month(), date.Year()));
}

Date AddMonthsToDate(Date date, qint16 months) {
  const auto [year, month] = Shifted(date, months);
  if (Date::IsValid(year, month, date.Day())) return Date::FromParts(year, month, date.Day());
  return ParseDate(DateText(month, DaysInMonth(month, year), year));
}

Date AddMonthsPlain(int months, Date date) {
  const auto [year, month] = Shifted(date, months);
  return Date::FromParts(year, month, date.Day());
}

Date AddYears(Date date, qint16 years) { return ParseDate(DateText(date.Month(), date.Day(), date.Year() + years)); }
