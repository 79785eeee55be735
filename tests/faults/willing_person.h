#pragma once
#include <QHash>
#include <QList>
#include <QStringList>

#include "core/prompts.h"

/// A box as it was shown.
struct Told {
  QString title;
  QString text;
  friend bool operator==(const Told&, const Told&) = default;
};

/// Somebody who agrees to everything and takes whatever comes: unlike a script, this one goes on where faults lead the
/// work astray. Answers every box for its lifetime.
class WillingPerson : public Prompts {
 public:
  WillingPerson() : before_(SetPrompts(this)) {}
  ~WillingPerson() override { SetPrompts(before_); }
  WillingPerson(const WillingPerson&) = delete;
  WillingPerson& operator=(const WillingPerson&) = delete;

  /// What is answered to a box of this title, in the place of OK or Yes.
  QHash<QString, Answer> answers;
  /// What is typed into the input lines, in order; then nothing is.
  QStringList typed;
  /// The boxes that were shown.
  QList<Told> told;

  Answer Box(const QString& text, const QString& title, Buttons buttons, Icon, Answer) override {
    told << Told{title, text};
    return answers.value(title, buttons == Buttons::Ok || buttons == Buttons::OkCancel ? Answer::Ok : Answer::Yes);
  }
  QString Input(const QString&, const QString&, const QString&) override {
    return typed.isEmpty() ? QString() : typed.takeFirst();
  }
  QString OpenFile(const FileDialog&) override { return {}; }
  QString SaveFile(const FileDialog&) override { return {}; }
  std::optional<FontChoice> Font(const FontChoice&) override { return {}; }
  void BusyPointer(bool) override {}

 private:
  Prompts* before_;
};
