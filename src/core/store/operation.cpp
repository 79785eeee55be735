#include "core/store/operation.h"

#include <QScopedValueRollback>

#include "core/failure.h"
#include "core/forms.h"
#include "core/long_work.h"
#include "core/store/database.h"
#include "core/store/undo.h"
#include "core/trap.h"

using namespace Qt::StringLiterals;

namespace {

OperationScope* innermost = nullptr;

bool telling = false;

/// Screens that write while they are told are told of it in turn; one that never comes to rest is left alone.
constexpr int kMostRounds = 5;

}  // namespace

void TellChanges() {
  if (telling || OperationScope::AnyStands()) return;
  const QScopedValueRollback<bool> once(telling, true);
  for (int round = 0; round < kMostRounds; ++round) {
    const Changes changes = TakeCommittedChanges();
    if (changes.IsEmpty()) return;
    Forms::Tell(changes);
  }
}

QString OperationName::Words() const {
  if (!words.isEmpty()) return words;
  const QString before = routine.section(u'(', 0, 0).trimmed();
  const QString name = before.mid(before.lastIndexOf(u' ') + 1);
  QString text;
  for (qsizetype i = 0; i < name.size(); ++i) {
    const QChar c = name[i];
    if (!c.isLetterOrNumber()) continue;
    const bool startsWord = i > 0 && c.isUpper() && name[i - 1].isLower();
    const bool inCapitals = i + 1 < name.size() && name[i + 1].isUpper();
    if (text.isEmpty())
      text += c.toUpper();
    else if (startsWord)
      text += u' ' + (inCapitals ? c : c.toLower());
    else
      text += c;
  }
  return text;
}

OperationScope::OperationScope(const OperationName& name, Record record)
    : name_(name), record_(record), outer_(innermost), depth_(EventsRun::Depth()) {
  innermost = this;
  if (IsOutermost()) HoldConnection(true);
}

OperationScope::~OperationScope() {
  if (stands_) Leave();
}

bool OperationScope::Stands() { return innermost != nullptr && innermost->depth_ == EventsRun::Depth(); }

bool OperationScope::AnyStands() { return innermost != nullptr; }

bool OperationScope::CanBeTakenBack() {
  for (const OperationScope* scope = innermost; scope != nullptr; scope = scope->outer_)
    if (scope->depth_ != EventsRun::Depth()) return false;
  return true;
}

/// An error of the file goes on to the operation outside, unless the loop of a box or a dialog lies between.
bool OperationScope::EndsHere() const { return IsOutermost() || outer_->depth_ != depth_; }

void OperationScope::Leave() {
  if (IsOutermost()) HoldConnection(false);
  innermost = outer_;
  stands_ = false;
}

bool OperationScope::End() {
  if (!Commit()) return false;
  bracket_.Close();
  TellChanges();
  return true;
}

bool OperationScope::Commit() {
  try {
    if (IsOutermost()) {
      if (record_ != Record::Nothing && ConnectionIsOpen)
        RecordOperation({record_ == Record::Entry ? name_.Words() : QString(), Forms::InFront()});
      CommitConnection();
    }
  } catch (const StorageFailure& failure) {
    TakeBack(failure);
    return false;
  }
  Leave();
  return true;
}

void OperationScope::Undo() {
  if (IsOutermost()) RollBackConnection();
  Leave();
  bracket_.Close();
}

/// An operation around this one finds the file failed as soon as it goes on. What could not be written is told, and the
/// caller goes on; what could not be read ends all that the person's act led to. Upkeep is nothing that a person asked
/// for, so what did not come of it is not worth a word.
void OperationScope::TakeBack(const StorageFailure& failure) {
  const bool wrote = ConnectionFailedWriting();
  Undo();
  if (!wrote && Passes(failure, name_.routine)) throw failure;
  const bool refused = wrote && record_ != Record::Upkeep;
  TellFailure(failure, refused ? u'\n' + kNothingWasChanged : QString(), name_.routine);
}

void OperationScope::EndFailed(const QString& more, OnFailure onFailure) {
  try {
    throw;
  } catch (const StorageFailure& failure) {
    if (EndsHere()) {
      TakeBack(failure);
      return;
    }
    Leave();
    throw;
  } catch (const WorkCancelled&) {
    if (EndsHere()) {
      Undo();
      return;
    }
    Leave();
    throw;
  } catch (const std::exception& error) {
    if (!Commit()) return;
    if (onFailure == OnFailure::LeaveConnectionOpen)
      bracket_.LeaveOpen();
    else
      bracket_.Close();
    TellChanges();
    TellFailure(error, more.isEmpty() ? QString() : u'\n' + more, name_.routine);
  }
}
