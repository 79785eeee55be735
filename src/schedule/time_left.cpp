#include "schedule/time_left.h"

#include "core/clock.h"
#include "core/format.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kLastDayToldInMonths = 1464;  // about four years
constexpr int kLastDayToldInDays = 366;

/// "5 years", "14 months" or "200 days", for two days and more.
QString Span(int days) {
  if (days > kLastDayToldInMonths) return Format(days / 365.0, u"######0"_s) + u" years"_s;
  if (days > kLastDayToldInDays) return Format(days / 30.5, u"######0"_s) + u" months"_s;
  return QString::number(days) + u" days"_s;
}

}  // namespace

QString TimeLeftText(Date due) {
  const int days = DaysBetween(Today(), due);
  if (days > 1) return Span(days);
  if (days == 1) return u"1 day"_s;
  return days == 0 ? u"Due today!"_s : u"Overdue!"_s;
}

QString ExpiryTimeLeftText(Date expiry) {
  const int days = DaysBetween(Today(), expiry);
  if (days > 1) return Span(days);
  if (days == 1) return u"1 day"_s;
  return days == 0 ? u"Expires today!"_s : u"Expired!"_s;
}

QString LifeLeftText(Date expiry) {
  const int days = DaysBetween(Today(), expiry);
  if (days > 1) return Span(days) + u" left"_s;
  if (days == 1) return u"Expires tomorrow! "_s;
  return days == 0 ? u"Expires today!"_s : u"Expired!"_s;
}
