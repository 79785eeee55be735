#pragma once
#include "core/prompts.h"

/// The platform's boxes. All text is plain; Esc means Cancel, or No where there is no Cancel.
class QtPrompts : public Prompts {
 public:
  Answer Box(const QString& text, const QString& title, Buttons buttons, Icon icon, Answer preset) override;
  QString Input(const QString& text, const QString& title, const QString& proposal) override;
  QString OpenFile(const FileDialog& dialog) override;
  QString SaveFile(const FileDialog& dialog) override;
  std::optional<FontChoice> Font(const FontChoice& present) override;
  void BusyPointer(bool busy) override;
};

/// "desc|*.a;*.b|all|*.*" as the platform's dialogs want it: "desc (*.a *.b)", "all (*)".
QStringList NameFilters(const QString& filter);

/// Takes the busy pointer away while a box or a modal screen waits for a person. What was asked for meanwhile holds
/// afterwards, so a connection closed by the screen does not leave the pointer busy.
class PointerAside {
 public:
  PointerAside();
  ~PointerAside();
  PointerAside(const PointerAside&) = delete;
  PointerAside& operator=(const PointerAside&) = delete;
};
