#pragma once
#include <QString>
#include <QStringList>

#include "core/store/changes.h"

/// A screen as the rest of the program knows it: a name, and what can be asked of it without knowing its widgets.
class LoadedForm {
 public:
  virtual ~LoadedForm() = default;
  virtual QString FormName() const = 0;  ///< "frmJob"
  virtual bool FormIsShown() const = 0;
  virtual void ReloadForm() = 0;  ///< read the data anew and show it
  /// The tables that what it shows is read from; when one of them has been written, it is told.
  virtual QStringList ShowsTables() const { return {}; }
  /// One of its tables has been written, by whomever.
  virtual void TablesChanged(const Changes& changes) = 0;
  virtual void UnloadForm() = 0;  ///< close and forget; the next use makes a fresh one
};

/// The forms collection: every screen that is loaded, in load order. Each is a single shared instance.
namespace Forms {
void Add(LoadedForm* form);
void Remove(LoadedForm* form);
LoadedForm* Find(const QString& name);  ///< without regard to case; null when it is not loaded
QList<LoadedForm*> Loaded();
QStringList Names();
bool IsShown(const QString& name);
/// The screen that a person works on, empty for none; screens say so when they come to the front.
QString InFront();
void SetInFront(const QString& name);
/// Tables have been written: every loaded screen that shows one of them is told, once.
void Tell(const Changes& changes);
}  // namespace Forms
