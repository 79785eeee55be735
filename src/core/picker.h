#pragma once
#include <QString>

#include <functional>

/// What the picker can list. The gaps are real.
enum PickerType {
  kPickMiscItem = 7,
  kPickRig = 8,
  kPickCustomer = 9,
  kPickTask = 10,
  kPickJob = 12,
  kPickLocation = 13,
  kPickInvoice = 14,
  kPickGearReport = 15,
  kPickRigger = 16,
  kPickRigType = 17,
  kPickComponentType = 20,
};

constexpr int kPickCancelled = -1;
constexpr int kPickAddNew = -99;
constexpr int kPickAddNewPerson = -88;

/// What the subsystem that owns a kind of record lets the picker do. Where no routine is registered, the picker does
/// not offer it.
struct PickerOwner {
  /// Adds a record by the name that was typed; its id, or 0 when none was added.
  std::function<int(const QString& name, int modelTypeId)> add = nullptr;
  /// Deletes a record by the owner's rules; true when it is gone.
  std::function<bool(int id)> remove = nullptr;
  /// The owner's routine asks by itself, with what the record is tied to.
  bool removeAsks = false;
};

void RegisterPickerOwner(PickerType type, PickerOwner owner);
const PickerOwner& OwnerOf(int pickerType);
