#pragma once
#include <QString>

#include <exception>
#include <utility>

#include "core/failure.h"
#include "core/prompts.h"

/// The text of an error as its box shows it.
QString FailureText(const std::exception& error);

/// True for a failure of the file itself while an operation stands: it ends the outermost one, so no trap keeps it.
bool EndsTheOperation(const std::exception& error);

/// Runs a routine's body. An error ends the body, shows a box with the error's text, titled with the routine's own
/// name, and lets the caller go on. True when the body ran to its end.
template <typename Body>
bool Trap(const QString& routine, Body&& body, Icon icon = Icon::Exclamation) {
  try {
    std::forward<Body>(body)();
    return true;
  } catch (const std::exception& error) {
    if (EndsTheOperation(error)) throw;
    MsgBox(FailureText(error), routine, icon);
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
    if (EndsTheOperation(error)) throw;
    MsgBox(FailureText(error) + u'\n' + more(), routine, icon);
    return false;
  }
}
