#pragma once
#include <QApplication>
#include <QEvent>

#include "core/trap.h"

/// The last line: whatever an event leads to, the screens go on.
class Application : public QApplication {
 public:
  using QApplication::QApplication;
  bool notify(QObject* receiver, QEvent* event) override {
    bool handled = false;
    FollowEvent(SetsOff(event->type()), [&] { handled = QApplication::notify(receiver, event); });
    return handled;
  }

 private:
  static SetOff SetsOff(QEvent::Type type) {
    switch (type) {
      case QEvent::KeyPress:
      case QEvent::Shortcut:
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonDblClick:
      case QEvent::Wheel:
      case QEvent::Close:
        return SetOff::ByPerson;
      default:
        return SetOff::ByProgram;
    }
  }
};
