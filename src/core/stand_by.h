#pragma once
#include <QString>

/// The wait notice that long work shows; rules ask for it without knowing its screen.
inline const QString kPleaseWait = QStringLiteral("Please wait...................");

/// Shows the notice, or changes its text, and paints it before it returns.
void ShowStandBy(const QString& text = kPleaseWait);
void UnloadStandBy();
/// Leaves the person a moment to read the notice.
void PauseOnStandBy();

/// The screen behind it. Without one nothing shows, and no time is lost.
struct StandByNotice {
  void (*show)(const QString& text) = nullptr;
  void (*unload)() = nullptr;
  void (*pause)() = nullptr;
};
void SetStandByNotice(StandByNotice notice);
