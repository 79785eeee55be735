#include "core/format.h"

#include <array>

#include "core/decimal.h"

using namespace Qt::StringLiterals;

namespace {

// The names are English whatever the locale, as exchange files and mail carry them.
constexpr std::array<const char*, 12> kMonths = {"January", "February", "March",     "April",   "May",      "June",
                                                 "July",    "August",   "September", "October", "November", "December"};
constexpr std::array<const char*, 7> kWeekdays = {"Monday", "Tuesday",  "Wednesday", "Thursday",
                                                  "Friday", "Saturday", "Sunday"};

QString Padded(int number, int digits) { return QString::number(number).rightJustified(digits, u'0'); }

QString Name(const char* name, int length) {
  const QString full = QString::fromLatin1(name);
  return length == 3 ? full.left(3) : full;
}

QString Day(const QDateTime& time, int length) {
  if (length <= 2) return Padded(time.date().day(), length);
  return Name(kWeekdays.at(static_cast<size_t>(time.date().dayOfWeek() - 1)), length);
}

QString Month(const QDateTime& time, int length) {
  if (length <= 2) return Padded(time.date().month(), length);
  return Name(kMonths.at(static_cast<size_t>(time.date().month() - 1)), length);
}

QString Year(const QDateTime& time, int length) {
  return length <= 2 ? Padded(time.date().year() % 100, 2) : Padded(time.date().year(), 4);
}

QString Hour(const QDateTime& time, int length, bool twelve) {
  const int hour = time.time().hour();
  return Padded(twelve ? (hour + 11) % 12 + 1 : hour, length);
}

struct NumberPattern {
  QString prefix;
  QString suffix;
  int wholeDigits = 0;   // zeros before the point
  int places = 0;        // places behind the point
  int neededPlaces = 0;  // those of them that always show
  bool hasPoint = false;
  bool groups = false;
};

NumberPattern Read(const QString& pattern) {
  static const QString kPlaceholders = u"0#,."_s;
  qsizetype start = 0;
  while (start < pattern.size() && !kPlaceholders.contains(pattern[start])) ++start;
  qsizetype end = pattern.size();
  while (end > start && !kPlaceholders.contains(pattern[end - 1])) --end;

  NumberPattern result{.prefix = pattern.left(start), .suffix = pattern.mid(end)};
  for (const QChar c : pattern.mid(start, end - start)) {
    if (c == u'.') {
      result.hasPoint = true;
    } else if (c == u',') {
      result.groups = true;
    } else if (result.hasPoint) {
      ++result.places;
      if (c == u'0') result.neededPlaces = result.places;
    } else if (c == u'0' || result.wholeDigits > 0) {
      ++result.wholeDigits;
    }
  }
  return result;
}

QString FormatDecimal(const Decimal& exact, const QString& text) {
  const NumberPattern pattern = Read(text);
  const Decimal number = exact.Rounded(pattern.places);
  QString whole = number.whole.rightJustified(pattern.wholeDigits, u'0');
  if (pattern.groups) {
    for (qsizetype at = whole.size() - 3; at > 0; at -= 3) whole.insert(at, u',');
  }
  QString result = number.negative ? u"-"_s : QString();
  result += pattern.prefix + whole;
  if (pattern.hasPoint) result += u'.' + number.fraction.leftJustified(pattern.neededPlaces, u'0');
  return result + pattern.suffix;
}

}  // namespace

QString Format(Date date, const QString& pattern) {
  const QDateTime time = date.ToQDateTime();
  const bool twelve = pattern.contains(u"AM/PM"_s, Qt::CaseInsensitive);
  QString result;
  QChar last;  // the pattern letter written last
  for (qsizetype at = 0; at < pattern.size();) {
    if (QStringView(pattern).mid(at, 5).compare(u"AM/PM"_s, Qt::CaseInsensitive) == 0) {
      result += time.time().hour() < 12 ? u"AM"_s : u"PM"_s;
      at += 5;
      continue;
    }
    const QChar letter = pattern[at].toLower();
    qsizetype end = at;
    while (end < pattern.size() && pattern[end].toLower() == letter) ++end;
    const auto length = static_cast<int>(end - at);
    const QChar previous = last;
    last = letter.isLetter() ? letter : last;
    at = end;
    if (letter == u'd') {
      result += Day(time, length);
    } else if (letter == u'm' && previous == u'h') {
      result += Padded(time.time().minute(), length);
    } else if (letter == u'm') {
      result += Month(time, length);
    } else if (letter == u'y') {
      result += Year(time, length);
    } else if (letter == u'h') {
      result += Hour(time, length, twelve);
    } else if (letter == u'n') {
      result += Padded(time.time().minute(), length);
    } else if (letter == u's') {
      result += Padded(time.time().second(), length);
    } else {
      result += pattern.mid(end - length, length);
    }
  }
  return result;
}

QString Format(double number, const QString& pattern) { return FormatDecimal(Decimal::FromDouble(number), pattern); }

QString Format(Money amount, const QString& pattern) {
  return FormatDecimal(Decimal::FromTenThousandths(amount.Units()), pattern);
}

double Val(const QString& text) { return Decimal::Leading(text).ToDouble(); }
