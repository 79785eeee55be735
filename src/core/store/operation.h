#pragma once
#include <QString>

#include <utility>

#include "core/failure.h"
#include "core/prompts.h"
#include "core/store/connection.h"

/// The name of a routine as its box shows it ("Sub DeleteJob"), and as a person reads it who takes it back ("Delete
/// job"), which is made from the routine's own where it is not given.
struct OperationName {
  OperationName(const QString& boxTitle) : routine(boxTitle) {}
  OperationName(const QString& boxTitle, const QString& inWords) : routine(boxTitle), words(inWords) {}
  QString Words() const;

  QString routine;
  QString words;
};

/// What a person does, as one piece: a trap, a bracket and one transaction. An operation inside another is a part of
/// it; the outermost one is written whole or not at all, and when it has been written every open screen that shows one
/// of its tables is told, once.
///
/// - A routine that fails (a statement that breaks, a file that can't be read) shows its box, and its caller goes on;
///   what was written before stays.
/// - A failure of the file itself (full disk, unreadable page, a commit that does not go through) ends the outermost
///   operation: all of it is taken back, and one box with that one's title says so. What could not be read ends also
///   what the person's act led to besides (FollowEvent).
/// - Long work inside it that the person cancels (core/long_work.h) ends the outermost one too: all of it is taken
///   back, and no box says so.
/// - A box inside an operation commits nothing: what was written waits until the operation ends.
///
/// The record of operations (core/store/undo.h) keeps what the outermost one wrote, so that it can be taken back.
/// True when the body ran to its end and, for the outermost, is written.
template <typename Body>
bool Operation(const OperationName& name, Body&& body);

/// What the program puts right by itself while it shows something: an operation, but one that a person takes back
/// together with the operation before it. Where it can't be written, that is told, and what is shown stays as it is.
template <typename Body>
bool Upkeep(const OperationName& name, Body&& body);

/// One that the record leaves out.
template <typename Body>
bool UnrecordedOperation(const OperationName& name, Body&& body);

/// What a failing routine does with a connection that it opened.
enum class OnFailure { CloseConnection, LeaveConnectionOpen };

/// The same, with lines that a routine adds behind the error's text; `more` is asked only when the body fails.
template <typename Body, typename More>
bool OperationWith(const OperationName& name, Body&& body, More&& more,
                   OnFailure onFailure = OnFailure::CloseConnection);

/// What stands while an operation runs.
class OperationScope {
 public:
  enum class Record { Entry, Upkeep, Nothing };

  explicit OperationScope(const OperationName& name, Record record = Record::Entry);
  ~OperationScope();
  OperationScope(const OperationScope&) = delete;
  OperationScope& operator=(const OperationScope&) = delete;

  /// True while an operation runs that the present routine belongs to.
  static bool Stands();
  /// True while any runs; one may wait for the person, and others run meanwhile as parts of it.
  static bool AnyStands();
  /// False when one stands that can't be ended from here: it waits for the person.
  static bool CanBeTakenBack();

  /// The end of a body that ran through. False when it could not be written.
  bool End();
  /// The end of a body that failed, called where its error was caught.
  void EndFailed(const QString& more = {}, OnFailure onFailure = OnFailure::CloseConnection);

 private:
  bool IsOutermost() const { return outer_ == nullptr; }
  bool EndsHere() const;
  bool Commit();
  void Leave();
  void Undo();
  void TakeBack(const StorageFailure& failure);

  OperationName name_;
  Record record_;
  OperationScope* outer_;
  int depth_;  // of waiting for the person
  bool stands_ = true;
  Bracket bracket_;
};

/// Tells the screens what has been written since they were told, unless an operation stands; the end of an outermost
/// operation or bracket does.
void TellChanges();

template <typename Body, typename More>
bool RunOperation(OperationScope& scope, Body&& body, More&& more, OnFailure onFailure = OnFailure::CloseConnection) {
  try {
    std::forward<Body>(body)();
  } catch (const std::exception&) {
    scope.EndFailed(more(), onFailure);
    return false;
  }
  return scope.End();
}

template <typename Body, typename More>
bool OperationWith(const OperationName& name, Body&& body, More&& more, OnFailure onFailure) {
  OperationScope scope(name);
  return RunOperation(scope, std::forward<Body>(body), std::forward<More>(more), onFailure);
}

template <typename Body>
bool Operation(const OperationName& name, Body&& body) {
  OperationScope scope(name);
  return RunOperation(scope, std::forward<Body>(body), [] { return QString(); });
}

template <typename Body>
bool Upkeep(const OperationName& name, Body&& body) {
  OperationScope scope(name, OperationScope::Record::Upkeep);
  return RunOperation(scope, std::forward<Body>(body), [] { return QString(); });
}

template <typename Body>
bool UnrecordedOperation(const OperationName& name, Body&& body) {
  OperationScope scope(name, OperationScope::Record::Nothing);
  return RunOperation(scope, std::forward<Body>(body), [] { return QString(); });
}
