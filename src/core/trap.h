#pragma once
#include <QString>

#include <exception>
#include <utility>

#include "core/failure.h"
#include "core/prompts.h"

/// For a reading that is worth nothing in part: while one stands, the routines within show no box of their own, and
/// their failure goes on to whoever holds it. What runs while events are handled is not within.
class AllOrNothing {
 public:
  AllOrNothing() : outer_(std::exchange(depth_, EventsRun::Depth())) {}
  ~AllOrNothing() { depth_ = outer_; }
  AllOrNothing(const AllOrNothing&) = delete;
  AllOrNothing& operator=(const AllOrNothing&) = delete;
  static bool Stands() { return depth_ == EventsRun::Depth(); }

 private:
  static constexpr int kNone = -1;
  static inline int depth_ = kNone;  // of the innermost
  int outer_;
};

/// The text of an error as its box shows it.
QString FailureText(const std::exception& error);

/// True for what ends more than the routine, so that no trap keeps it: a failure of the file itself and cancelled work
/// end the outermost operation, and cancelled work ends an AllOrNothing.
bool EndsMore(const std::exception& error);

/// Cancelled work is no failure: nobody is told of it.
bool IsFailure(const std::exception& error);

/// Shows the box of a routine that failed, or throws Failure with its text while an AllOrNothing stands.
void TellFailure(const QString& text, const QString& routine, Icon icon = Icon::Exclamation);

/// Runs a routine's body. An error ends the body, shows a box with the error's text, titled with the routine's own
/// name, and lets the caller go on. True when the body ran to its end.
template <typename Body>
bool Trap(const QString& routine, Body&& body, Icon icon = Icon::Exclamation) {
  try {
    std::forward<Body>(body)();
    return true;
  } catch (const std::exception& error) {
    if (EndsMore(error)) throw;
    if (IsFailure(error)) TellFailure(FailureText(error), routine, icon);
    return false;
  }
}

/// The same, with lines that a routine adds behind the error's text; `more` is asked only when the body fails.
template <typename Body, typename More>
bool TrapWith(const QString& routine, Body&& body, More&& more, Icon icon = Icon::Exclamation) {
  try {
    std::forward<Body>(body)();
    return true;
  } catch (const std::exception& error) {
    if (EndsMore(error)) throw;
    if (IsFailure(error)) TellFailure(FailureText(error) + u'\n' + more(), routine, icon);
    return false;
  }
}
