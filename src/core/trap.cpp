#include "core/trap.h"

QString FailureText(const std::exception& error) {
  if (const auto* failure = dynamic_cast<const Failure*>(&error)) return failure->Text();
  return QString::fromLocal8Bit(error.what());
}
