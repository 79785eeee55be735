#pragma once
#include <QObject>

#include <functional>
#include <list>
#include <source_location>

#include "core/widgets/form.h"

/// What a person does on the modal screens that a routine opens: steps in the order in which the screens come. A modal
/// screen that is not next in the script fails the test and is closed; so does one that a step leaves open, and a step
/// whose screen never came. Settings go into a folder of the test run.
///
///     ScreenScript screens;
///     screens.WhenShown("frmPicker", [](Form& form) { Click(form, "cmdSelect"); });
///     PickItem(...);
class ScreenScript : public QObject {
 public:
  using Place = std::source_location;

  ScreenScript();
  ~ScreenScript() override;

  void WhenShown(const QString& form, std::function<void(Form&)> action, Place place = Place::current());
  /// The same, for one screen's own class.
  template <class F>
  void WhenShown(std::function<void(F&)> action, Place place = Place::current()) {
    WhenShown(
        QString::fromLatin1(F::staticMetaObject.className()),
        [action = std::move(action)](Form& form) { action(dynamic_cast<F&>(form)); }, place);
  }

  /// From here on a screen that is not in the script is closed like one that a step leaves open, and a step whose
  /// screen does not come is passed over; for work that goes astray on purpose.
  void Forgive() { forgives_ = true; }

  /// Fails for every step that never came, and forgets them. The destructor does the same.
  void Finish();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Step {
    QString form;
    std::function<void(Form&)> action;
    Place place;
  };
  void Handle(Form& form);
  void Complain(const QString& message, const Place& place) const;
  std::list<Step>::iterator NextStep(const QString& form);

  std::list<Step> steps_;
  bool forgives_ = false;
};

/// Keeps the settings of a test run in a folder of its own and gives the screens the program's look, the dark one when
/// LOFTKEEP_TOUR_DARK is set, and the picker its kinds. ScreenScript does so by itself.
void IsolateSettings();

/// Unloads every screen and deletes it.
void UnloadScreens();
