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

/// True for what ends more than the routine, so that no trap keeps it: a failure of the file itself ends the operation
/// or the event that is followed, and its routine is noted; cancelled work ends the operation, or an AllOrNothing.
bool Passes(const std::exception& error, const QString& routine);

/// Cancelled work is no failure: nobody is told of it.
bool IsFailure(const std::exception& error);

/// Shows the box of a routine that failed, or throws Failure with its text while an AllOrNothing stands. `more` follows
/// the error's own text.
void TellFailure(const std::exception& error, const QString& more, const QString& routine,
                 Icon icon = Icon::Exclamation);

/// The line that a refused operation adds.
inline const QString kNothingWasChanged = QStringLiteral("Nothing was changed.");

/// Runs a routine's body. An error ends the body, shows a box with the error's text, titled with the routine's own
/// name, and lets the caller go on. True when the body ran to its end.
template <typename Body>
bool Trap(const QString& routine, Body&& body, Icon icon = Icon::Exclamation) {
  try {
    std::forward<Body>(body)();
    return true;
  } catch (const std::exception& error) {
    if (Passes(error, routine)) throw;
    if (IsFailure(error)) TellFailure(error, QString(), routine, icon);
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
    if (Passes(error, routine)) throw;
    if (IsFailure(error)) TellFailure(error, u'\n' + more(), routine, icon);
    return false;
  }
}

/// Who set off what is followed: a person, by a click or a key, or the program itself.
enum class SetOff { ByPerson, ByProgram };

/// Stands while that goes on. Many routines may meet a file that fails: until the person acts anew it is told once, and
/// again only to add that nothing was changed. To answer a box or to work on a screen that waits is to act anew there.
class ToldOnce {
 public:
  explicit ToldOnce(SetOff by);
  ~ToldOnce();
  ToldOnce(const ToldOnce&) = delete;
  ToldOnce& operator=(const ToldOnce&) = delete;
};

/// Stands where a failure of the file may pass, since somebody outside waits for it.
class LetsFailuresPass {
 public:
  LetsFailuresPass();
  ~LetsFailuresPass();
  LetsFailuresPass(const LetsFailuresPass&) = delete;
  LetsFailuresPass& operator=(const LetsFailuresPass&) = delete;
  /// True when one stands that the present routine belongs to.
  static bool Stands();

 private:
  int depthOutside_;
};

/// Follows an event to its end: the last line, which tells what no routine's trap has kept. A failure of the file ends
/// it at once, lest something be asked, told or written that hangs on what could not be read. Nothing leaves it.
template <typename Body>
void FollowEvent(SetOff by, Body&& body) {
  const ToldOnce toldOnce(by);
  try {
    const LetsFailuresPass passes;
    std::forward<Body>(body)();
  } catch (const StorageFailure& failure) {
    TellFailure(failure, QString(), failure.Routine().isEmpty() ? kProgramTitle : failure.Routine());
  } catch (const std::exception& error) {
    if (IsFailure(error)) TellFailure(error, QString(), kProgramTitle);
  }
}
