#pragma once
#include <QString>

#include <variant>

#include "core/date.h"
#include "core/money.h"

/// The dynamically typed value that travels between the store and its callers. Empty is what a reading routine
/// returns for a missing record; Null is a field that holds nothing. The caller converts it at once to the type it
/// wants: empty and null convert to 0, false, the empty text or no date; what can't be converted throws
/// Failure("Type mismatch"), what does not fit throws Failure("Overflow").
class Value {
 public:
  struct Null {
    friend bool operator==(Null, Null) { return true; }
  };

  Value() = default;
  Value(Null value) : data_(value) {}
  Value(bool value) : data_(value) {}
  Value(int value) : data_(qint64{value}) {}
  Value(qint64 value) : data_(value) {}
  Value(double value) : data_(value) {}
  Value(Money value) : data_(value) {}
  Value(Date value) : data_(value) {}
  Value(QString value) : data_(std::move(value)) {}
  Value(const char16_t* text) : data_(QString::fromUtf16(text)) {}
  Value(const char* text) : data_(QString::fromUtf8(text)) {}

  bool IsEmpty() const { return std::holds_alternative<std::monostate>(data_); }
  bool IsNull() const { return std::holds_alternative<Null>(data_); }
  bool IsText() const { return std::holds_alternative<QString>(data_); }
  bool IsDate() const { return std::holds_alternative<Date>(data_); }
  bool IsMoney() const { return std::holds_alternative<Money>(data_); }
  bool IsBool() const { return std::holds_alternative<bool>(data_); }
  bool IsInteger() const { return std::holds_alternative<qint64>(data_); }
  bool IsDouble() const { return std::holds_alternative<double>(data_); }

  int ToInt() const;    ///< 32-bit integer; fractions round half to even, true is -1
  int ToInt16() const;  ///< the same, within -32768 to 32767
  double ToDouble() const;
  bool ToBool() const;  ///< any number but 0 is true
  Money ToMoney() const;
  Date ToDate() const;     ///< numbers are serial days; texts go through the conversion of core/dates.h
  QString ToText() const;  ///< numbers in their shortest form, dates "m/d/yyyy", booleans "True" and "False"

  friend bool operator==(const Value&, const Value&) = default;

 private:
  std::variant<std::monostate, Null, bool, qint64, double, Money, Date, QString> data_;
};
