#pragma once
#include <QRandomGenerator>
#include <QStringList>

#include "core/prompts.h"
#include "support/scripted_prompts.h"

/// Stands in for a person who answers as it comes: every box with one of its buttons, an input line with nothing, with
/// what is proposed, or with one of some words. File and font dialogs are cancelled. Installed for its lifetime.
class RandomPrompts : public Prompts {
 public:
  explicit RandomPrompts(const QStringList& words) : words_(words), before_(SetPrompts(this)) {}
  ~RandomPrompts() override { SetPrompts(before_); }
  RandomPrompts(const RandomPrompts&) = delete;
  RandomPrompts& operator=(const RandomPrompts&) = delete;

  /// Whom the answers are drawn from, until the next one; nobody gives the default answers.
  void DrawFrom(QRandomGenerator* random) { random_ = random; }
  struct Answered {
    ShownPrompt shown;
    QString answer;
  };
  /// What was asked since this was asked for last.
  QList<Answered> TakeTranscript() { return std::exchange(transcript_, {}); }

  Answer Box(const QString& text, const QString& title, Buttons buttons, Icon icon, Answer preset) override {
    const Answer answer = random_ == nullptr ? preset : Draw(buttons);
    static const char* const names[] = {"OK", "Cancel", "Yes", "No"};
    Note({.title = title, .text = text, .buttons = buttons, .icon = icon, .preset = preset},
         QString::fromLatin1(names[static_cast<int>(answer)]));
    return answer;
  }
  QString Input(const QString& text, const QString& title, const QString& proposal) override {
    const QString answer = random_ == nullptr ? QString() : DrawText(proposal);
    Note({.kind = ShownPrompt::Kind::Input, .title = title, .text = text, .proposal = proposal}, answer);
    return answer;
  }
  QString OpenFile(const FileDialog& dialog) override {
    Note({.kind = ShownPrompt::Kind::OpenFile, .title = dialog.title}, {});
    return {};
  }
  QString SaveFile(const FileDialog& dialog) override {
    Note({.kind = ShownPrompt::Kind::SaveFile, .title = dialog.title}, {});
    return {};
  }
  std::optional<FontChoice> Font(const FontChoice&) override {
    Note({.kind = ShownPrompt::Kind::Font}, {});
    return std::nullopt;
  }
  void BusyPointer(bool) override {}

 private:
  void Note(const ShownPrompt& shown, const QString& answer) { transcript_.append({shown, answer}); }
  /// Yes is said more often than all else together.
  Answer Draw(Buttons buttons) {
    const int n = random_->bounded(20);
    switch (buttons) {
      case Buttons::Ok:
        return Answer::Ok;
      case Buttons::OkCancel:
        return n < 14 ? Answer::Ok : Answer::Cancel;
      case Buttons::YesNo:
        return n < 12 ? Answer::Yes : Answer::No;
      case Buttons::YesNoCancel:
        return n < 11 ? Answer::Yes : n < 16 ? Answer::No : Answer::Cancel;
    }
    return Answer::Ok;
  }
  QString DrawText(const QString& proposal) {
    const int n = random_->bounded(10);
    if (n < 2) return {};
    return n < 6 && !proposal.isEmpty() ? proposal : words_.at(random_->bounded(static_cast<int>(words_.size())));
  }

  QStringList words_;
  Prompts* before_;
  QRandomGenerator* random_ = nullptr;
  QList<Answered> transcript_;
};
