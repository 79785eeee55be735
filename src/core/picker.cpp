#include "core/picker.h"

#include <map>

namespace {

std::map<int, PickerKind>& Kinds() {
  static std::map<int, PickerKind> kinds;
  return kinds;
}

}  // namespace

void RegisterPicker(PickerType type, PickerKind kind) { Kinds()[type] = std::move(kind); }

const PickerKind& PickerKindOf(int pickerType) {
  static const PickerKind none;
  const auto found = Kinds().find(pickerType);
  return found == Kinds().end() ? none : found->second;
}
