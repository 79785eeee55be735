#include "core/forms.h"

#include <exception>

#include "core/failure.h"

namespace {

QList<LoadedForm*>& Collection() {
  static QList<LoadedForm*> forms;
  return forms;
}

QString& Front() {
  static QString name;
  return name;
}

}  // namespace

namespace Forms {

void Add(LoadedForm* form) {
  if (!Collection().contains(form)) Collection().append(form);
}

void Remove(LoadedForm* form) { Collection().removeAll(form); }

LoadedForm* Find(const QString& name) {
  for (LoadedForm* form : Loaded()) {
    if (form->FormName().compare(name, Qt::CaseInsensitive) == 0) return form;
  }
  return nullptr;
}

QList<LoadedForm*> Loaded() { return Collection(); }

QStringList Names() {
  QStringList names;
  for (const LoadedForm* form : Loaded()) names.append(form->FormName());
  return names;
}

bool IsShown(const QString& name) {
  const LoadedForm* form = Find(name);
  return form != nullptr && form->FormIsShown();
}

QString InFront() { return Front(); }

void SetInFront(const QString& name) { Front() = name; }

void Tell(const Changes& changes) {
  std::exception_ptr failure;  // of one that can't read; the others are told all the same
  for (LoadedForm* form : Loaded()) {
    // One that was told before may have unloaded this one.
    if (!Collection().contains(form) || !changes.TouchesAny(form->ShowsTables())) continue;
    try {
      form->TablesChanged(changes);
    } catch (const StorageFailure&) {
      failure = std::current_exception();
    }
  }
  if (failure) std::rethrow_exception(failure);
}

}  // namespace Forms
