#include "support/scripted_prompts.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

using Kind = ShownPrompt::Kind;

QString KindName(Kind kind) {
  switch (kind) {
    case Kind::Box:
      return u"box"_s;
    case Kind::Input:
      return u"input box"_s;
    case Kind::OpenFile:
      return u"open dialog"_s;
    case Kind::SaveFile:
      return u"save dialog"_s;
    case Kind::Font:
      return u"font dialog"_s;
  }
  return {};
}

bool Offers(Buttons buttons, Answer answer) {
  switch (buttons) {
    case Buttons::Ok:
      return answer == Answer::Ok;
    case Buttons::OkCancel:
      return answer == Answer::Ok || answer == Answer::Cancel;
    case Buttons::YesNo:
      return answer == Answer::Yes || answer == Answer::No;
    case Buttons::YesNoCancel:
      return answer != Answer::Ok;
  }
  return false;
}

template <typename T>
bool Agrees(const std::optional<T>& expected, const T& shown) {
  return !expected || *expected == shown;
}

}  // namespace

QString ShownPrompt::Describe() const { return u"%1 titled \"%2\": \"%3\""_s.arg(KindName(kind), title, text); }

ScriptStep& ScriptStep::WithButtons(Buttons wanted) {
  buttons = wanted;
  return *this;
}

ScriptStep& ScriptStep::WithPreset(Answer wanted) {
  preset = wanted;
  return *this;
}

ScriptStep& ScriptStep::WithIcon(Icon wanted) {
  icon = wanted;
  return *this;
}

ScriptStep& ScriptStep::Proposing(const QString& wanted) {
  proposal = wanted;
  return *this;
}

ScriptStep& ScriptStep::Filtering(const QString& wanted) {
  filter = wanted;
  return *this;
}

ScriptStep& ScriptStep::Meanwhile(std::function<void()> wanted) {
  action = std::move(wanted);
  return *this;
}

ScriptedPrompts::ScriptedPrompts() : before_(SetPrompts(this)) { busy_ = PointerIsBusy(); }

ScriptedPrompts::~ScriptedPrompts() {
  Finish();
  SetPrompts(before_);
}

ScriptStep& ScriptedPrompts::Add(Kind kind, const QString& title, const QString& text, Place place) {
  ScriptStep& step = steps_.emplace_back();
  step.kind = kind;
  step.title = title;
  step.text = text;
  step.place = place;
  return step;
}

ScriptStep& ScriptedPrompts::Expect(const QString& title, const QString& text, Answer answer, Place place) {
  ScriptStep& step = Add(Kind::Box, title, text, place);
  step.answer = answer;
  return step;
}

ScriptStep& ScriptedPrompts::ExpectBox(const QString& title, const QString& text, Place place) {
  return Expect(title, text, Answer::Ok, place).WithButtons(Buttons::Ok);
}

ScriptStep& ScriptedPrompts::ExpectInput(const QString& title, const QString& text, const QString& reply, Place place) {
  ScriptStep& step = Add(Kind::Input, title, text, place);
  step.reply = reply;
  return step;
}

ScriptStep& ScriptedPrompts::ExpectOpenFile(const QString& title, const QString& reply, Place place) {
  ScriptStep& step = Add(Kind::OpenFile, title, QString(), place);
  step.reply = reply;
  return step;
}

ScriptStep& ScriptedPrompts::ExpectSaveFile(const QString& title, const QString& reply, Place place) {
  ScriptStep& step = Add(Kind::SaveFile, title, QString(), place);
  step.reply = reply;
  return step;
}

ScriptStep& ScriptedPrompts::ExpectFont(const std::optional<FontChoice>& reply, Place place) {
  ScriptStep& step = Add(Kind::Font, QString(), QString(), place);
  step.font = reply;
  return step;
}

void ScriptedPrompts::Fail(const QString& message, const Place& place) {
  if (failures_ != nullptr) {
    failures_->append(message);
  } else {
    QTest::qFail(message.toUtf8().constData(), place.file, place.line);
  }
}

void ScriptedPrompts::Finish() {
  for (const ScriptStep& step : std::exchange(steps_, {})) {
    const ShownPrompt expected{.kind = step.kind, .title = step.title, .text = step.text};
    Fail(u"Never came: "_s + expected.Describe(), step.place);
  }
}

std::optional<ScriptStep> ScriptedPrompts::Next(const ShownPrompt& shown) {
  transcript_.append(shown);
  if (steps_.empty()) {
    if (shown.kind != Kind::Box || !rest_) Fail(u"Not expected: "_s + shown.Describe(), Place::Here());
    return std::nullopt;
  }
  const ScriptStep step = steps_.front();
  const ShownPrompt expected{.kind = step.kind, .title = step.title, .text = step.text};
  if (step.kind != shown.kind || step.title != shown.title || step.text != shown.text) {
    Fail(u"Not expected: %1\n   Expected: %2"_s.arg(shown.Describe(), expected.Describe()), step.place);
    // A prompt with another text was still the one meant; otherwise it came in between.
    if (step.kind == shown.kind && step.title == shown.title) steps_.pop_front();
    return std::nullopt;
  }
  steps_.pop_front();
  if (!Agrees(step.buttons, shown.buttons)) Fail(u"Other buttons: "_s + shown.Describe(), step.place);
  if (!Agrees(step.preset, shown.preset)) Fail(u"Another default button: "_s + shown.Describe(), step.place);
  if (!Agrees(step.icon, shown.icon)) Fail(u"Another icon: "_s + shown.Describe(), step.place);
  if (!Agrees(step.proposal, shown.proposal)) {
    Fail(u"Proposes \"%1\": %2"_s.arg(shown.proposal, shown.Describe()), step.place);
  }
  if (!Agrees(step.filter, shown.filter)) {
    Fail(u"Filters \"%1\": %2"_s.arg(shown.filter, shown.Describe()), step.place);
  }
  if (step.kind == Kind::Box && !Offers(shown.buttons, step.answer)) {
    Fail(u"Has no such button to answer with: "_s + shown.Describe(), step.place);
    return std::nullopt;
  }
  if (step.action) step.action();
  return step;
}

Answer ScriptedPrompts::Box(const QString& text, const QString& title, Buttons buttons, Icon icon, Answer preset) {
  const ShownPrompt shown{.title = title, .text = text, .buttons = buttons, .icon = icon, .preset = preset};
  const bool scripted = !steps_.empty();
  if (const auto step = Next(shown)) return step->answer;
  return !scripted && rest_ ? rest_(shown) : preset;
}

QString ScriptedPrompts::Input(const QString& text, const QString& title, const QString& proposal) {
  const auto step = Next({.kind = Kind::Input, .title = title, .text = text, .proposal = proposal});
  return step ? step->reply : QString();
}

QString ScriptedPrompts::OpenFile(const FileDialog& dialog) {
  const auto step =
      Next({.kind = Kind::OpenFile, .title = dialog.title, .proposal = dialog.fileName, .filter = dialog.filter});
  return step ? step->reply : QString();
}

QString ScriptedPrompts::SaveFile(const FileDialog& dialog) {
  const auto step =
      Next({.kind = Kind::SaveFile, .title = dialog.title, .proposal = dialog.fileName, .filter = dialog.filter});
  return step ? step->reply : QString();
}

std::optional<FontChoice> ScriptedPrompts::Font(const FontChoice& present) {
  const auto step = Next({.kind = Kind::Font, .proposal = present.name});
  return step ? step->font : std::nullopt;
}
