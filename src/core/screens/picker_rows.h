#pragma once
#include <optional>

#include "core/lists.h"

/// The rows of the picker and its wording, by what is picked.

/// The window's title; nothing for a type that there is no list of.
std::optional<QString> PickerTitle(int pickerType);
/// The rows, "add new" rows included. A type that there is no list of says so in a box.
IdList PickerRows(int pickerType);
/// The models of a component type, "(add new)" first.
IdList PickerModelRows(int modelTypeId);
/// What one of the records is called in questions: "location", or the component type for a model.
QString PickerNoun(int pickerType, int modelTypeId);
/// The person whose last name, and first name if one was typed, is this; 0 for none.
int FindPersonByTypedName(const QString& typed);
