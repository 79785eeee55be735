#include "core/value.h"

#include <cmath>
#include <limits>

#include "core/dates.h"
#include "core/decimal.h"
#include "core/failure.h"
#include "core/format.h"

using namespace Qt::StringLiterals;

namespace {

template <typename... Cases>
struct Overloaded : Cases... {
  using Cases::operator()...;
};
template <typename... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

int BoolNumber(bool value) { return value ? -1 : 0; }

std::optional<bool> BoolFromText(const QString& text) {
  if (text.trimmed().compare(u"True"_s, Qt::CaseInsensitive) == 0) return true;
  if (text.trimmed().compare(u"False"_s, Qt::CaseInsensitive) == 0) return false;
  return std::nullopt;
}

Decimal NumberFromText(const QString& text) {
  if (const auto truth = BoolFromText(text)) return Decimal::FromDouble(BoolNumber(*truth));
  const auto number = Decimal::FromWholeText(text);
  if (!number) throw Failure(u"Type mismatch"_s);
  return *number;
}

template <typename Integer>
Integer Narrowed(double number) {
  const double rounded = std::nearbyint(number);
  if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max())) {
    throw Failure(u"Overflow"_s);
  }
  return static_cast<Integer>(rounded);
}

}  // namespace

int Value::ToInt() const { return Narrowed<qint32>(ToDouble()); }

int Value::ToInt16() const { return Narrowed<qint16>(ToDouble()); }

double Value::ToDouble() const {
  return std::visit(
      Overloaded{[](std::monostate) { return 0.0; }, [](Null) { return 0.0; },
                 [](bool value) { return static_cast<double>(BoolNumber(value)); },
                 [](qint64 value) { return static_cast<double>(value); }, [](double value) { return value; },
                 [](Money value) { return value.ToDouble(); }, [](Date value) { return value.Serial(); },
                 [](const QString& value) { return NumberFromText(value).ToDouble(); }},
      data_);
}

bool Value::ToBool() const { return ToDouble() != 0; }

Money Value::ToMoney() const {
  if (IsMoney()) return std::get<Money>(data_);
  if (IsText()) return Money::FromUnits(NumberFromText(std::get<QString>(data_)).ToTenThousandths());
  return Money::FromDouble(ToDouble());
}

Date Value::ToDate() const {
  if (IsText()) return DateFromText(std::get<QString>(data_));
  return Date(ToDouble());
}

QString Value::ToText() const {
  return std::visit(Overloaded{[](std::monostate) { return QString(); }, [](Null) { return QString(); },
                               [](bool value) { return value ? u"True"_s : u"False"_s; },
                               [](qint64 value) { return QString::number(value); },
                               [](double value) { return QString::number(value, 'g', 15).toUpper(); },
                               [](Money value) { return Decimal::FromTenThousandths(value.Units()).ToText(); },
                               [](Date value) {
                                 const bool hasTime = value.Serial() != value.Days();
                                 return Format(value, hasTime ? u"m/d/yyyy h:nn:ss AM/PM"_s : u"m/d/yyyy"_s);
                               },
                               [](const QString& value) { return value; }},
                    data_);
}
