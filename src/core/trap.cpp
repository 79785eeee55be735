#include "core/trap.h"

#include <QHash>

#include <map>

#include "core/long_work.h"
#include "core/store/operation.h"

namespace {

/// The failures of the file that were told since the person acted last, by how deep the program waits for the person,
/// and whether it was added that nothing was changed.
std::map<int, QHash<QString, bool>> told;
int followed = 0;

/// Of waiting for the person where a failure may pass; -1 for nowhere.
int passingDepth = -1;

/// Notes that a failure is told, and whether nothing was changed; false when the person knows it already.
bool IsNews(const QString& failure, bool nothingChanged) {
  if (followed == 0) return true;
  const int depth = EventsRun::Depth();
  const auto known = told[depth].constFind(failure);
  const bool news = known == told[depth].cend() || (nothingChanged && !*known);
  for (int outer = 0; outer <= depth; ++outer) told[outer][failure] |= nothingChanged;
  return news;
}

}  // namespace

QString FailureText(const std::exception& error) {
  if (const auto* failure = dynamic_cast<const Failure*>(&error)) return failure->Text();
  return QString::fromLocal8Bit(error.what());
}

bool IsFailure(const std::exception& error) { return dynamic_cast<const WorkCancelled*>(&error) == nullptr; }

ToldOnce::ToldOnce(SetOff by) {
  ++followed;
  if (by == SetOff::ByPerson) told.erase(told.lower_bound(EventsRun::Depth()), told.end());
}

ToldOnce::~ToldOnce() { --followed; }

bool Passes(const std::exception& error, const QString& routine) {
  if (!IsFailure(error)) return OperationScope::Stands() || AllOrNothing::Stands();
  const auto* failure = dynamic_cast<const StorageFailure*>(&error);
  if (!failure || !(OperationScope::Stands() || LetsFailuresPass::Stands())) return false;
  failure->PassedBy(routine);
  return true;
}

LetsFailuresPass::LetsFailuresPass() : depthOutside_(std::exchange(passingDepth, EventsRun::Depth())) {}

LetsFailuresPass::~LetsFailuresPass() { passingDepth = depthOutside_; }

bool LetsFailuresPass::Stands() { return passingDepth == EventsRun::Depth(); }

void TellFailure(const std::exception& error, const QString& more, const QString& routine, Icon icon) {
  const QString text = FailureText(error);
  if (AllOrNothing::Stands()) throw Failure(text + more);
  if (dynamic_cast<const StorageFailure*>(&error) && !IsNews(text, more.endsWith(kNothingWasChanged))) return;
  MsgBox(text + more, routine, icon);
}
