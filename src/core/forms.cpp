#include "core/forms.h"

namespace {

QList<LoadedForm*>& Collection() {
  static QList<LoadedForm*> forms;
  return forms;
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

void ReloadIfLoaded(const QString& name) {
  if (LoadedForm* form = Find(name)) form->ReloadForm();
}

void ReloadSchedules() {
  for (LoadedForm* form : Loaded()) form->ReloadSchedule();
}

bool IsShown(const QString& name) {
  const LoadedForm* form = Find(name);
  return form != nullptr && form->FormIsShown();
}

}  // namespace Forms
