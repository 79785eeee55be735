#pragma once
#include <QString>

/// People by a name as it was typed.

/// "Last, First", "Last,First" and "First Last" come apart, several words at the last blank, each half with its
/// first letters in upper case. A single word is the last name, left as it was typed.
void SplitTypedName(const QString& name, QString& last, QString& first);

/// True when the person is known: `id` is theirs where first and last name both match (case and outer blanks aside),
/// or 0 when the person recognised the name in the list of equal last names that was shown.
bool DuplicateNameCheck(const QString& name, int& id);

/// The person whose last name, and first name if one was typed, is this; 0 for none.
int FindPersonByTypedName(const QString& typed);

/// Adds a person with nothing but a name.
void AddPersonByName(const QString& name, int& id);

/// The frame of "Enter name of new customer": asks for a name, refuses one that exists, adds it otherwise. The id of
/// the new or the existing person; 0 when nothing was typed or the person is known without an id.
int AddCustomer();
