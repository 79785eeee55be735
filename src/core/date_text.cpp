#include <QRegularExpression>

#include <array>
#include <optional>

#include "core/clock.h"
#include "core/dates.h"
#include "core/failure.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double kSecondsPerDay = 86400;

/// The numbers that a pattern found, by group.
class Found {
 public:
  Found(const QRegularExpression& pattern, const QString& text) : match_(pattern.match(text)) {}
  explicit operator bool() const { return match_.hasMatch(); }
  QString Text(int group) const { return match_.captured(group); }
  int Number(int group) const { return Text(group).toInt(); }
  bool Has(int group) const { return match_.capturedLength(group) > 0; }
  bool IsLong(int group) const { return match_.capturedLength(group) > 2; }
  qsizetype Start() const { return match_.capturedStart(); }
  /// A year as it was typed: two digits stand for 2000 to 2029 and 1930 to 1999.
  int Year(int group) const {
    const int year = Number(group);
    if (IsLong(group)) return year;
    return year < 30 ? 2000 + year : 1900 + year;
  }

 private:
  QRegularExpressionMatch match_;
};

QRegularExpression Pattern(const char* pattern) {
  return QRegularExpression(QString::fromLatin1(pattern), QRegularExpression::CaseInsensitiveOption);
}

Date Build(int year, int month, int day) {
  if (month > 12) std::swap(month, day);
  return Date::FromParts(year, month, day);
}

int MonthByName(const QString& name) {
  static const std::array<QString, 12> kNames = {u"january"_s,   u"february"_s, u"march"_s,    u"april"_s,
                                                 u"may"_s,       u"june"_s,     u"july"_s,     u"august"_s,
                                                 u"september"_s, u"october"_s,  u"november"_s, u"december"_s};
  for (size_t i = 0; i < kNames.size(); ++i) {
    if (kNames.at(i).startsWith(name, Qt::CaseInsensitive)) return static_cast<int>(i) + 1;
  }
  return 0;  // the calendar refuses it
}

std::optional<Date> FromNumbers(const QString& text) {
  static const QRegularExpression kThree = Pattern(R"(^(\d{1,4})([-/. ])(\d{1,2})\2(\d{1,4})$)");
  static const QRegularExpression kTwo = Pattern(R"(^(\d{1,2})[-/](\d{1,2})$)");
  static const QRegularExpression kMonthYear = Pattern(R"(^(\d{1,2})[-/](\d{4})$)");
  if (const Found three(kThree, text); three) {
    if (three.IsLong(1)) return Build(three.Number(1), three.Number(3), three.Number(4));
    return Build(three.Year(4), three.Number(1), three.Number(3));
  }
  if (const Found two(kTwo, text); two) return Build(Today().Year(), two.Number(1), two.Number(2));
  if (const Found my(kMonthYear, text); my) return Date::FromParts(my.Number(2), my.Number(1), 1);
  return std::nullopt;
}

std::optional<Date> FromMonthName(const QString& text) {
  static const QRegularExpression kMonthFirst =
      Pattern(R"(^([a-z]{3,})\.?[-/ ]?(\d{1,2})(?:(?:, ?|[-/ ])(\d{1,4}))?$)");
  static const QRegularExpression kDayFirst = Pattern(R"(^(\d{1,2})[-/ ]?([a-z]{3,})\.?(?:(?:, ?|[-/ ])?(\d{1,4}))?$)");
  static const QRegularExpression kMonthYear = Pattern(R"(^([a-z]{3,})\.?(?:, ?|[-/ ])(\d{4})$)");
  if (const Found found(kMonthFirst, text); found) {
    return Date::FromParts(found.Has(3) ? found.Year(3) : Today().Year(), MonthByName(found.Text(1)), found.Number(2));
  }
  if (const Found found(kDayFirst, text); found) {
    return Date::FromParts(found.Has(3) ? found.Year(3) : Today().Year(), MonthByName(found.Text(2)), found.Number(1));
  }
  if (const Found found(kMonthYear, text); found) {
    return Date::FromParts(found.Number(2), MonthByName(found.Text(1)), 1);
  }
  return std::nullopt;
}

/// Takes a time from the end of the text; its fraction of a day.
double TakeTime(QString& text) {
  static const QRegularExpression kClock =
      Pattern(R"((?: |(?<=\d)T)(\d{1,2}):(\d{1,2})(?::(\d{1,2})(?:\.\d+)?)?(?: ?([ap])m)?$)");
  static const QRegularExpression kHour = Pattern(R"( (\d{1,2})()() ?([ap])m$)");
  for (const QRegularExpression* pattern : {&kClock, &kHour}) {
    const Found time(*pattern, text);
    if (!time) continue;
    int hour = time.Number(1);
    if (time.Has(4)) {
      if (hour < 1 || hour > 12) throw Failure(u"Type mismatch"_s);
      hour = hour % 12 + (time.Text(4).toLower() == u"p" ? 12 : 0);
    }
    if (hour > 23 || time.Number(2) > 59 || time.Number(3) > 59) throw Failure(u"Type mismatch"_s);
    text.truncate(time.Start());
    return (hour * 3600 + time.Number(2) * 60 + time.Number(3)) / kSecondsPerDay;
  }
  return 0;
}

}  // namespace

Date DateFromText(const QString& text) {
  static const QRegularExpression kBlanksAroundSeparators = Pattern(R"( ?([-/]) ?)");
  QString rest = text.simplified();
  rest.replace(kBlanksAroundSeparators, u"\\1"_s);
  const double time = TakeTime(rest);
  auto date = FromNumbers(rest);
  if (!date) date = FromMonthName(rest);
  if (!date) throw Failure(u"Type mismatch"_s);
  return date->Serial() < 0 ? *date - time : *date + time;
}
