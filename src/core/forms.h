#pragma once
#include <QString>
#include <QStringList>

#include <functional>

/// A screen as the rest of the program knows it: a name, and what can be asked of it without knowing its widgets.
class LoadedForm {
 public:
  virtual ~LoadedForm() = default;
  virtual QString FormName() const = 0;  ///< "frmJob"
  virtual bool FormIsShown() const = 0;
  virtual void ReloadForm() = 0;    ///< read the data anew and show it
  virtual void ReloadSchedule() {}  ///< read due dates anew, where the screen shows some
  virtual void UnloadForm() = 0;    ///< close and forget; the next use makes a fresh one
};

/// The forms collection: every screen that is loaded, in load order. Each is a single shared instance.
namespace Forms {
void Add(LoadedForm* form);
void Remove(LoadedForm* form);
LoadedForm* Find(const QString& name);  ///< without regard to case; null when it is not loaded
QList<LoadedForm*> Loaded();
QStringList Names();
/// "Reload `frmSchedule` if it is loaded", for rules that must not know a screen.
void ReloadIfLoaded(const QString& name);
/// Due dates have changed: every loaded screen that shows some reads them anew.
void ReloadSchedules();
bool IsShown(const QString& name);
}  // namespace Forms
