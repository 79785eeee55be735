#pragma once
#include <QObject>
#include <QRandomGenerator>
#include <QStringList>

#include <functional>

#include "support/random_prompts.h"

class Form;
class QAction;
class QWidget;

/// One thing that a person does: the screen, by its place among those that are open, and the seed of all that is chosen
/// on the way - the control, the row, the text, the answers, what is done on the screens that open above. So a sequence
/// stays one when steps are taken out of it.
struct Step {
  int screen = 0;
  quint32 seed = 0;
  QString ToText() const { return QStringLiteral("{%1, %2u}").arg(screen).arg(seed); }
};

/// Works the screens by mouse and keyboard as it comes. A modal screen that opens meanwhile is worked too, and left.
class RandomPerson : public QObject {
 public:
  RandomPerson();
  ~RandomPerson() override;

  /// Runs while a modal screen is worked, after each act on it.
  void SetAfterModalAct(std::function<void(Form&)> check) { afterModalAct_ = std::move(check); }

  /// Does one thing on a screen.
  void Act(Form& form, quint32 seed);

  /// What was done since this was asked for last: "frmJob: click cmdTask", "box \"Delete?\": Yes".
  QStringList TakeDone();
  /// The screens that were shown or brought forward since this was asked for last.
  QStringList TakeRaised() { return std::exchange(raised_, {}); }
  /// The boxes since this was asked for last.
  QList<ShownPrompt> TakeBoxes() { return std::exchange(boxes_, {}); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Work(Form& form);
  void Do(Form& form);
  void Leave(Form& form);
  void Note(const QString& text);
  void NoteAnswers();
  int Draw(int below) { return random_.bounded(below); }
  template <typename T>
  const T& Pick(const QList<T>& from) {
    return from.at(Draw(static_cast<int>(from.size())));
  }
  void Press(Form& form, QWidget& button);
  void UseRows(Form& form, QWidget& rows);
  void Type(Form& form, QWidget& box);
  void PressKeys(Form& form);
  bool UseButton(Form& form);  ///< false when there is nothing of the kind to use
  bool UseCommand(Form& form);
  bool UseMark(Form& form);
  bool UseBox(Form& form);
  bool UseLabel(Form& form);
  bool UseCombo(Form& form);

  RandomPrompts prompts_;
  QRandomGenerator random_;
  std::function<void(Form&)> afterModalAct_;
  QStringList done_;
  QStringList raised_;
  QList<ShownPrompt> boxes_;
  int acts_ = 0;
};
