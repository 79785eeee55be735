#pragma once
#include <QString>

#include <compare>

/// A fixed-point amount with four decimals, held as a 64-bit count of ten-thousandths.
class Money {
 public:
  constexpr Money() = default;
  static constexpr Money FromUnits(qint64 tenThousandths) { return Money(tenThousandths); }
  static constexpr Money Whole(qint64 amount) { return Money(amount * kScale); }
  /// Rounds to four decimals, half to even; an amount that does not fit throws Failure("Overflow").
  static Money FromDouble(double amount);
  /// The leading number of a text ("95.50 each" is 95.5), without passing through a binary float; 0 when there is none.
  static Money FromText(const QString& text);

  constexpr qint64 Units() const { return units_; }
  constexpr double ToDouble() const { return static_cast<double>(units_) / kScale; }
  constexpr bool IsZero() const { return units_ == 0; }

  friend constexpr auto operator<=>(Money, Money) = default;
  friend constexpr bool operator==(Money, Money) = default;
  friend constexpr Money operator+(Money a, Money b) { return Money(a.units_ + b.units_); }
  friend constexpr Money operator-(Money a, Money b) { return Money(a.units_ - b.units_); }
  constexpr Money& operator+=(Money other) {
    units_ += other.units_;
    return *this;
  }

  static constexpr qint64 kScale = 10000;

 private:
  constexpr explicit Money(qint64 units) : units_(units) {}
  qint64 units_ = 0;
};
