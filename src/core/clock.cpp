#include "core/clock.h"

namespace {

std::optional<Date>& FixedMoment() {
  static std::optional<Date> moment;
  return moment;
}

}  // namespace

Date Now() { return FixedMoment().value_or(Date::From(QDateTime::currentDateTime())); }

Date Today() { return Date(Now().Days()); }

void SetClock(std::optional<Date> moment) { FixedMoment() = moment; }
