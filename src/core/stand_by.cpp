#include "core/stand_by.h"

namespace {
StandByNotice installed;
}  // namespace

void ShowStandBy(const QString& text) {
  if (installed.show) installed.show(text);
}

void UnloadStandBy() {
  if (installed.unload) installed.unload();
}

void PauseOnStandBy() {
  if (installed.pause) installed.pause();
}

void SetStandByNotice(StandByNotice notice) { installed = notice; }
