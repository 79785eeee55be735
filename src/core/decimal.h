#pragma once
#include <QString>

#include <optional>

/// A number as decimal digits: what texts are read into and formatted from, so that no amount of money passes through
/// a binary float.
struct Decimal {
  bool negative = false;
  QString whole;     ///< digits before the point, without leading zeros
  QString fraction;  ///< digits behind the point, without trailing zeros

  /// The number that a text begins with, blanks skipped; zero when it begins with none.
  static Decimal Leading(const QString& text);
  /// A text that is a number as a whole: blanks around it, a sign, "$" and commas between the digits are allowed.
  static std::optional<Decimal> FromWholeText(const QString& text);
  /// The digits that a person would write for a number; Failure("Overflow") when it is not finite.
  static Decimal FromDouble(double number);
  /// `units` ten-thousandths.
  static Decimal FromTenThousandths(qint64 units);

  bool IsZero() const { return whole.isEmpty() && fraction.isEmpty(); }
  /// Failure("Overflow") when it is too large.
  double ToDouble() const;
  /// The count of ten-thousandths, rounded half to even; Failure("Overflow") when it does not fit 64 bits.
  qint64 ToTenThousandths() const;
  /// Rounds half away from zero.
  Decimal Rounded(int places) const;
  /// Digits with a point and a minus where needed; "0" for zero.
  QString ToText() const;
};
