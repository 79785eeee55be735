#include "core/date.h"

#include <cmath>

#include "core/failure.h"

namespace {

constexpr qint64 kEpochJulianDay = 2415019;  // 30 December 1899
constexpr double kEarliest = -657434;        // 1 January 100
constexpr double kEnd = 2958466;             // 1 January 10000
constexpr double kMillisecondsPerDay = 86400000;

}  // namespace

bool Date::IsValid(int year, int month, int day) {
  return year >= 100 && year <= 9999 && QDate::isValid(year, month, day);
}

Date Date::FromParts(int year, int month, int day) {
  if (!IsValid(year, month, day)) throw Failure(QStringLiteral("Type mismatch"));
  return From(QDate(year, month, day));
}

Date Date::From(QDate date) {
  if (!date.isValid()) return Date();
  return Date(static_cast<double>(date.toJulianDay() - kEpochJulianDay));
}

Date Date::From(const QDateTime& time) {
  const double days = From(time.date()).serial_;
  const double fraction = time.time().msecsSinceStartOfDay() / kMillisecondsPerDay;
  // Before the first day the fraction still counts forward within its day, away from zero.
  return Date(days < 0 ? days - fraction : days + fraction);
}

int Date::Days() const {
  if (!(serial_ > kEarliest - 1 && serial_ < kEnd)) throw Failure(QStringLiteral("Overflow"));
  return static_cast<int>(std::trunc(serial_));
}

QDate Date::ToQDate() const { return QDate::fromJulianDay(Days() + kEpochJulianDay); }

QDateTime Date::ToQDateTime() const {
  const double fraction = std::abs(serial_ - std::trunc(serial_));
  const auto milliseconds = static_cast<int>(std::lround(fraction * kMillisecondsPerDay));
  if (milliseconds >= kMillisecondsPerDay) return QDateTime(ToQDate().addDays(1), QTime(0, 0));
  return QDateTime(ToQDate(), QTime::fromMSecsSinceStartOfDay(milliseconds));
}
