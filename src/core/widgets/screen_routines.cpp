#include "core/widgets/screen_routines.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QThread>
#include <QWidget>

#include "core/prompts.h"

void SelectAllInBox(QLineEdit* box) {
  box->selectAll();
  box->setFocus();
}

void EnableControls(QWidget* form, bool enabled) {
  const auto controls = form->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
  for (QWidget* control : controls) {
    if (control->isWindow() || qobject_cast<QLabel*>(control)) continue;
    control->setEnabled(enabled);
  }
}

void WaitSeconds(double seconds) {
  const bool wasBusy = PointerIsBusy();
  SetBusyPointer(true);
  QElapsedTimer timer;
  timer.start();
  const auto length = static_cast<qint64>(seconds * 1000);
  while (timer.elapsed() < length) {
    QGuiApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    QThread::msleep(10);
  }
  SetBusyPointer(wasBusy);
}

void CentreForm(QWidget* form, const QWidget* caller) {
  const bool overCaller = caller && caller != form && caller->isVisible();
  const QScreen* screen = overCaller ? caller->screen() : form->screen();
  const QRect space = screen->availableGeometry();
  QRect frame = form->frameGeometry();
  frame.moveCenter(overCaller ? caller->frameGeometry().center() : space.center());
  if (frame.right() > space.right()) frame.moveRight(space.right());
  if (frame.bottom() > space.bottom()) frame.moveBottom(space.bottom());
  if (frame.left() < space.left()) frame.moveLeft(space.left());
  if (frame.top() < space.top()) frame.moveTop(space.top());
  form->move(frame.topLeft());
}
