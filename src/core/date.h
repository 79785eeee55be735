#pragma once
#include <QDate>
#include <QDateTime>

#include <compare>

/// A date value: whole days since 30 December 1899 and a fraction for the time of day. 0 means no date.
class Date {
 public:
  constexpr Date() = default;
  constexpr explicit Date(double serial) : serial_(serial) {}
  /// From calendar parts; a day that the month does not have throws Failure("Type mismatch").
  static Date FromParts(int year, int month, int day);
  static Date From(QDate date);
  static Date From(const QDateTime& time);
  /// True when year, month and day name a day of the calendar (years 100 to 9999).
  static bool IsValid(int year, int month, int day);

  constexpr double Serial() const { return serial_; }
  /// Whole days since 30 December 1899, the time of day left off.
  int Days() const;
  constexpr bool IsNone() const { return serial_ == 0; }
  QDate ToQDate() const;
  QDateTime ToQDateTime() const;
  int Year() const { return ToQDate().year(); }
  int Month() const { return ToQDate().month(); }
  int Day() const { return ToQDate().day(); }

  friend constexpr auto operator<=>(Date, Date) = default;
  friend constexpr bool operator==(Date, Date) = default;
  friend constexpr Date operator+(Date date, double days) { return Date(date.serial_ + days); }
  friend constexpr Date operator-(Date date, double days) { return Date(date.serial_ - days); }

 private:
  double serial_ = 0;
};

/// Days from `from` to `to`, counted in whole days whatever the time of day.
inline int DaysBetween(Date from, Date to) { return to.Days() - from.Days(); }
