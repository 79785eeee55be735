#include "core/prompts.h"

#include <QScopedValueRollback>

#include <utility>

#include "core/failure.h"

using namespace Qt::StringLiterals;

namespace {

struct State {
  Prompts* prompts = nullptr;
  void (*settle)() = nullptr;
  bool settling = false;
  bool busy = false;
  int depth = 0;
};

State& Present() {
  static State state;
  return state;
}

Prompts& Installed(const QString& text) {
  if (Present().prompts == nullptr) throw Failure(u"No boxes are installed to show: "_s + text);
  return *Present().prompts;
}

}  // namespace

Prompts* SetPrompts(Prompts* prompts) { return std::exchange(Present().prompts, prompts); }

void MsgBox(const QString& text, const QString& title, Icon icon) {
  const PersonAnswers waits;
  Installed(text).Box(text, title, Buttons::Ok, icon, Answer::Ok);
}

Answer Ask(const QString& text, const QString& title, Buttons buttons, Answer preset, Icon icon) {
  const PersonAnswers waits;
  return Installed(text).Box(text, title, buttons, icon, preset);
}

bool AskYes(const QString& text, const QString& title, Icon icon) {
  return Ask(text, title, Buttons::YesNo, Answer::No, icon) == Answer::Yes;
}

QString InputBox(const QString& text, const QString& title, const QString& proposal) {
  const PersonAnswers waits;
  return Installed(text).Input(text, title, proposal);
}

QString OpenFileDialog(const FileDialog& dialog) {
  const PersonAnswers waits;
  return Installed(dialog.title).OpenFile(dialog);
}

QString SaveFileDialog(const FileDialog& dialog) {
  const PersonAnswers waits;
  return Installed(dialog.title).SaveFile(dialog);
}

std::optional<FontChoice> FontDialog(const FontChoice& present) {
  const PersonAnswers waits;
  return Installed(present.name).Font(present);
}

void SetBusyPointer(bool busy) {
  if (Present().busy == busy) return;
  Present().busy = busy;
  if (Present().prompts != nullptr) Present().prompts->BusyPointer(busy);
}

bool PointerIsBusy() { return Present().busy; }

QString Lines(const QStringList& lines) { return lines.join(u'\n'); }

void SetBeforePrompt(void (*settle)()) { Present().settle = settle; }

EventsRun::EventsRun() { ++Present().depth; }

EventsRun::~EventsRun() { --Present().depth; }

int EventsRun::Depth() { return Present().depth; }

// Settling may itself have something to tell; that box finds the store being settled and leaves it alone.
PersonAnswers::PersonAnswers() {
  if (Present().settle != nullptr && !Present().settling) {
    const QScopedValueRollback<bool> once(Present().settling, true);
    Present().settle();
  }
  events_.emplace();
}
