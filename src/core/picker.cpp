#include "core/picker.h"

#include <map>

namespace {

std::map<int, PickerOwner>& Owners() {
  static std::map<int, PickerOwner> owners;
  return owners;
}

}  // namespace

void RegisterPickerOwner(PickerType type, PickerOwner owner) { Owners()[type] = std::move(owner); }

const PickerOwner& OwnerOf(int pickerType) {
  static const PickerOwner none;
  const auto found = Owners().find(pickerType);
  return found == Owners().end() ? none : found->second;
}
