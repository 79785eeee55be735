#include "core/trap.h"

#include "core/long_work.h"
#include "core/store/operation.h"

QString FailureText(const std::exception& error) {
  if (const auto* failure = dynamic_cast<const Failure*>(&error)) return failure->Text();
  return QString::fromLocal8Bit(error.what());
}

bool EndsMore(const std::exception& error) {
  if (!IsFailure(error)) return OperationScope::Stands() || AllOrNothing::Stands();
  return dynamic_cast<const StorageFailure*>(&error) != nullptr && OperationScope::Stands();
}

bool IsFailure(const std::exception& error) { return dynamic_cast<const WorkCancelled*>(&error) == nullptr; }

void TellFailure(const QString& text, const QString& routine, Icon icon) {
  if (AllOrNothing::Stands()) throw Failure(text);
  MsgBox(text, routine, icon);
}
