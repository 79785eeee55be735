#pragma once
#include "core/clock.h"

/// Stops the program's clock at a moment; it runs again when this goes.
class FixedClock {
 public:
  explicit FixedClock(Date moment) { SetClock(moment); }
  FixedClock(int year, int month, int day) : FixedClock(Date::FromParts(year, month, day)) {}
  ~FixedClock() { SetClock(std::nullopt); }
  FixedClock(const FixedClock&) = delete;
  FixedClock& operator=(const FixedClock&) = delete;

  void Set(Date moment) { SetClock(moment); }
};
