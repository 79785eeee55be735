#pragma once
#include <QList>
#include <QThread>

#include <functional>

#include "core/long_work.h"

/// A wait form without a screen, for its lifetime: it notes what it is shown, and does in between what the test says.
class WorkWatch : public WorkScreen {
 public:
  WorkWatch() : before_(SetWorkScreen(this)) {}
  ~WorkWatch() override { SetWorkScreen(before_); }
  WorkWatch(const WorkWatch&) = delete;
  WorkWatch& operator=(const WorkWatch&) = delete;

  bool Show(const WorkProgress& progress) override {
    shown << progress;
    isShown = true;
    if (meanwhile) meanwhile();
    return cancels;
  }
  void Hide() override { isShown = false; }

  /// Longer than work goes on without a wait form.
  static void LetTimePass() { QThread::msleep(350); }

  QList<WorkProgress> shown;
  bool isShown = false;
  bool cancels = false;
  std::function<void()> meanwhile;

 private:
  WorkScreen* before_;
};
