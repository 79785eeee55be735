#pragma once
#include <QString>
#include <QStringList>

#include <functional>

#include "core/lists.h"

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

/// One kind of record as the picker lists it, told by the subsystem that owns it. What is left out, the picker does not
/// offer. `componentType` is that of the models that are picked, 0 for everything else.
struct PickerKind {
  std::function<QString(int componentType)> title = nullptr;
  std::function<IdList(int componentType)> rows = nullptr;  ///< with the rows that add a record
  QStringList tables = {};                                  ///< what the rows are read from
  bool cancelIsExit = false;                                ///< the Cancel button reads Exit
  QString defaultCaption = {};                              ///< of the box that makes the choice the default
  /// Notes the record that was chosen.
  std::function<void(int id)> chosen = nullptr;

  // A text that no row begins with. In this order: it may name a record after all, it may be offered as the name of a
  // new one, the picking ends with nothing found, a box tells.
  std::function<int(const QString& typed)> find = nullptr;
  bool offersToAdd = false;
  std::function<QString(int componentType)> noun = nullptr;  ///< "location"
  QString whole = {};                                        ///< all of them: "location database"
  bool endsUnmatched = false;
  std::function<void(const QString& typed)> tellUnmatched = nullptr;

  /// Adds a record by the name that was typed; its id, or 0 when none was added.
  std::function<int(const QString& name, int componentType)> add = nullptr;
  /// False, told, for a record that must stay.
  std::function<bool(int id)> mayRemove = nullptr;
  /// Deletes a record by the owner's rules; true when it is gone.
  std::function<bool(int id)> remove = nullptr;
  /// The owner's routine asks by itself, with what the record is tied to; else `removeQuestion` is asked, or "Delete"
  /// and the row's text.
  bool removeAsks = false;
  QString removeQuestion = {};
};

void RegisterPicker(PickerType type, PickerKind kind);
/// An empty kind where nobody has registered one.
const PickerKind& PickerKindOf(int pickerType);
