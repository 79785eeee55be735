#pragma once
#include <QList>
#include <QString>

#include <functional>
#include <list>
#include <optional>

#include "core/prompts.h"

/// A line of a test; as a default argument, the line of the call.
struct Place {
  const char* file = "";
  int line = 0;
  static constexpr Place Here(const char* file = __builtin_FILE(), int line = __builtin_LINE()) { return {file, line}; }
};

/// A box, an input line or a dialog as a person meets it.
struct ShownPrompt {
  enum class Kind { Box, Input, OpenFile, SaveFile, Font };
  Kind kind = Kind::Box;
  QString title = {};
  QString text = {};
  Buttons buttons = Buttons::Ok;
  Icon icon = Icon::None;
  Answer preset = Answer::Ok;
  QString proposal = {};  ///< of an input line, or the proposed file name
  QString filter = {};    ///< of a file dialog

  QString Describe() const;
};

/// One step of a script. What it does not name is not compared.
class ScriptStep {
 public:
  ScriptStep& WithButtons(Buttons buttons);
  ScriptStep& WithPreset(Answer preset);  ///< the default button
  ScriptStep& WithIcon(Icon icon);
  ScriptStep& Proposing(const QString& proposal);
  ScriptStep& Filtering(const QString& filter);
  /// Runs while the prompt shows, before it is answered.
  ScriptStep& Meanwhile(std::function<void()> action);

 private:
  friend class ScriptedPrompts;
  ShownPrompt::Kind kind = ShownPrompt::Kind::Box;
  QString title = {};
  QString text = {};
  std::optional<Buttons> buttons;
  std::optional<Answer> preset;
  std::optional<Icon> icon;
  std::optional<QString> proposal;
  std::optional<QString> filter;
  std::function<void()> action;
  Answer answer = Answer::Ok;
  QString reply;
  std::optional<FontChoice> font;
  Place place;
};

/// Stands in for the person: a test says in order which prompts come and how each is answered. A prompt that was not
/// expected fails the test and gets its default answer; one that never came fails it too. Installed for its lifetime.
///
///     ScriptedPrompts prompts;
///     prompts.Expect("No name", "Continue without one?", Answer::Yes).WithPreset(Answer::No);
///     prompts.ExpectBox("Saved", "The name was saved");
class ScriptedPrompts : public Prompts {
 public:
  ScriptedPrompts();
  ~ScriptedPrompts() override;
  ScriptedPrompts(const ScriptedPrompts&) = delete;
  ScriptedPrompts& operator=(const ScriptedPrompts&) = delete;

  ScriptStep& Expect(const QString& title, const QString& text, Answer answer, Place place = Place::Here());
  /// A box with OK alone.
  ScriptStep& ExpectBox(const QString& title, const QString& text, Place place = Place::Here());
  ScriptStep& ExpectInput(const QString& title, const QString& text, const QString& reply, Place place = Place::Here());
  ScriptStep& ExpectOpenFile(const QString& title, const QString& reply, Place place = Place::Here());
  ScriptStep& ExpectSaveFile(const QString& title, const QString& reply, Place place = Place::Here());
  ScriptStep& ExpectFont(const std::optional<FontChoice>& reply, Place place = Place::Here());

  /// Answers every box that comes while no step is waiting; for long flows that read the transcript afterwards.
  void AnswerRestWith(std::function<Answer(const ShownPrompt&)> answer) { rest_ = std::move(answer); }

  /// Fails for every step that never came, and forgets them. The destructor does the same.
  void Finish();
  /// What was shown so far, in order.
  const QList<ShownPrompt>& Transcript() const { return transcript_; }
  /// The pointer as the person sees it.
  bool ShowsBusyPointer() const { return busy_; }
  /// Takes the failures in the place of the test; to test a script itself.
  void FailInto(QStringList* failures) { failures_ = failures; }

  Answer Box(const QString& text, const QString& title, Buttons buttons, Icon icon, Answer preset) override;
  QString Input(const QString& text, const QString& title, const QString& proposal) override;
  QString OpenFile(const FileDialog& dialog) override;
  QString SaveFile(const FileDialog& dialog) override;
  std::optional<FontChoice> Font(const FontChoice& present) override;
  void BusyPointer(bool busy) override { busy_ = busy; }

 private:
  ScriptStep& Add(ShownPrompt::Kind kind, const QString& title, const QString& text, Place place);
  std::optional<ScriptStep> Next(const ShownPrompt& shown);
  void Fail(const QString& message, const Place& place);

  Prompts* before_;
  std::list<ScriptStep> steps_;
  QList<ShownPrompt> transcript_;
  std::function<Answer(const ShownPrompt&)> rest_;
  QStringList* failures_ = nullptr;
  bool busy_ = false;
};
