#include "core/decimal.h"

#include <QLocale>

#include <cmath>

#include "core/failure.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kMoneyPlaces = 4;
constexpr int kLargestExponent = 400;

bool IsDigit(QChar c) { return c >= u'0' && c <= u'9'; }

Decimal Make(bool negative, QString whole, QString fraction) {
  while (whole.startsWith(u'0')) whole.remove(0, 1);
  while (fraction.endsWith(u'0')) fraction.chop(1);
  return {negative && !(whole.isEmpty() && fraction.isEmpty()), whole, fraction};
}

Decimal Shifted(bool negative, QString whole, QString fraction, int exponent) {
  for (; exponent > 0; --exponent) {
    whole += fraction.isEmpty() ? QChar(u'0') : fraction.front();
    fraction.remove(0, 1);
  }
  for (; exponent < 0; ++exponent) {
    fraction.prepend(whole.isEmpty() ? QChar(u'0') : whole.back());
    whole.chop(1);
  }
  return Make(negative, whole, fraction);
}

struct Scan {
  Decimal number;
  qsizetype used = 0;  // characters that belong to the number; 0 when there is none
};

QString TakeDigits(const QString& text, qsizetype& at) {
  const qsizetype start = at;
  while (at < text.size() && IsDigit(text[at])) ++at;
  return text.mid(start, at - start);
}

int TakeExponent(const QString& text, qsizetype& at) {
  if (at >= text.size() || text[at].toUpper() != u'E') return 0;
  qsizetype next = at + 1;
  const bool negative = next < text.size() && text[next] == u'-';
  if (next < text.size() && (text[next] == u'-' || text[next] == u'+')) ++next;
  const QString digits = TakeDigits(text, next);
  if (digits.isEmpty()) return 0;
  at = next;
  bool fits = false;
  const int value = digits.toInt(&fits);
  const int exponent = fits ? std::min(value, kLargestExponent) : kLargestExponent;
  return negative ? -exponent : exponent;
}

Scan ScanNumber(const QString& text) {
  qsizetype at = 0;
  const bool negative = text.startsWith(u'-');
  if (negative || text.startsWith(u'+')) ++at;
  const QString whole = TakeDigits(text, at);
  QString fraction;
  if (at < text.size() && text[at] == u'.') {
    ++at;
    fraction = TakeDigits(text, at);
  }
  if (whole.isEmpty() && fraction.isEmpty()) return {};
  const int exponent = TakeExponent(text, at);
  return {Shifted(negative, whole, fraction, exponent), at};
}

/// Adds one to the last of a row of digits; true when it grows by a digit.
bool Increment(QString& digits) {
  for (qsizetype i = digits.size() - 1; i >= 0; --i) {
    if (digits[i] != u'9') {
      digits[i] = QChar(digits[i].unicode() + 1);
      return false;
    }
    digits[i] = u'0';
  }
  digits.prepend(u'1');
  return true;
}

}  // namespace

Decimal Decimal::Leading(const QString& text) {
  QString packed;
  for (const QChar c : text) {
    if (c != u' ' && c != u'\t' && c != u'\n' && c != u'\r') packed += c;
  }
  return ScanNumber(packed).number;
}

std::optional<Decimal> Decimal::FromWholeText(const QString& text) {
  QString packed = text.trimmed();
  const qsizetype sign = packed.startsWith(u'-') || packed.startsWith(u'+') ? 1 : 0;
  if (packed.size() > sign && packed[sign] == u'$') packed.remove(sign, 1);
  const qsizetype point = packed.indexOf(u'.');
  for (qsizetype i = (point < 0 ? packed.size() : point) - 1; i > sign; --i) {
    if (packed[i] == u',') packed.remove(i, 1);
  }
  const Scan scan = ScanNumber(packed);
  if (scan.used == 0 || scan.used != packed.size()) return std::nullopt;
  return scan.number;
}

Decimal Decimal::FromDouble(double number) {
  if (!std::isfinite(number)) throw Failure(u"Overflow"_s);
  return ScanNumber(QString::number(number, 'g', QLocale::FloatingPointShortest)).number;
}

Decimal Decimal::FromTenThousandths(qint64 units) {
  const QString text = QString::number(units);
  const bool negative = units < 0;
  return Shifted(negative, negative ? text.mid(1) : text, QString(), -kMoneyPlaces);
}

double Decimal::ToDouble() const {
  const double number = ToText().toDouble();
  if (std::isinf(number)) throw Failure(u"Overflow"_s);
  return number;
}

qint64 Decimal::ToTenThousandths() const {
  QString digits = whole + fraction.leftJustified(kMoneyPlaces, u'0', true);
  const QString rest = fraction.mid(kMoneyPlaces);
  const bool odd = ((digits.back().unicode() - u'0') % 2) != 0;
  if (rest > u"5"_s || (rest == u"5"_s && odd)) Increment(digits);
  bool fits = false;
  const qint64 units = (negative ? u"-"_s + digits : digits).toLongLong(&fits);
  if (!fits) throw Failure(u"Overflow"_s);
  return units;
}

Decimal Decimal::Rounded(int places) const {
  QString digits = whole + fraction.leftJustified(places, u'0', true);
  qsizetype wholeSize = whole.size();
  if (fraction.size() > places && fraction[places] >= u'5' && Increment(digits)) ++wholeSize;
  return Make(negative, digits.left(wholeSize), digits.mid(wholeSize));
}

QString Decimal::ToText() const {
  QString text = negative ? u"-"_s : QString();
  text += whole.isEmpty() ? u"0"_s : whole;
  if (!fraction.isEmpty()) text += u'.' + fraction;
  return text;
}
