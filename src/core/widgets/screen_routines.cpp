#include "core/widgets/screen_routines.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
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

void GiveMnemonics(QMenuBar* bar) {
  QString taken;
  for (const QAction* action : bar->actions()) {
    const QString text = action->text();
    if (const qsizetype at = text.indexOf(u'&'); at >= 0 && at + 1 < text.size()) taken += text[at + 1].toLower();
  }
  for (QAction* action : bar->actions()) {
    QString text = action->text();
    if (text.contains(u'&')) continue;
    for (qsizetype i = 0; i < text.size(); ++i) {
      if (!text[i].isLetter() || taken.contains(text[i].toLower())) continue;
      taken += text[i].toLower();
      action->setText(text.insert(i, u'&'));
      break;
    }
  }
}
