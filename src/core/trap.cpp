#include "core/trap.h"

#include "core/store/operation.h"

QString FailureText(const std::exception& error) {
  if (const auto* failure = dynamic_cast<const Failure*>(&error)) return failure->Text();
  return QString::fromLocal8Bit(error.what());
}

bool EndsTheOperation(const std::exception& error) {
  return dynamic_cast<const StorageFailure*>(&error) != nullptr && OperationScope::Stands();
}

void TellFailure(const QString& text, const QString& routine, Icon icon) {
  if (AllOrNothing::Stands()) throw Failure(text);
  MsgBox(text, routine, icon);
}
