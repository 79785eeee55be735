#pragma once
#include "support/fixed_clock.h"
#include "support/throwaway_loft.h"

/// A loft on 15 March 2026, small enough to be read whole after every step: two riggers, four customers, three rigs
/// with their gear, loose gear, a library of every kind of entry, and four jobs with their lines.
class SmallLoft {
 public:
  SmallLoft();
  /// As it was made; no screen may be loaded.
  void Reset();
  const ThrowAwayLoft& Loft() const { return loft_; }

 private:
  void Make();

  FixedClock clock_{2026, 3, 15};
  ThrowAwayLoft loft_;
  QByteArray file_;
};
