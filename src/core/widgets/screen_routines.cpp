#include "core/widgets/screen_routines.h"

#include <QAbstractButton>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QHash>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QScreen>
#include <QThread>
#include <QWidget>

#include "core/prompts.h"

namespace {

QString MnemonicOf(const QString& text) {
  const QString shortcut = QKeySequence::mnemonic(text).toString();
  return shortcut.isEmpty() ? QString() : QString(shortcut.back().toLower());
}

/// Which menu has which letter.
using Claims = QHash<QChar, QAction*>;

/// Claims the first letter of the menu's caption that is free, or that its menu can give up for another one. Letters
/// that were tried are in `tried`.
bool ClaimLetter(QAction* menu, Claims& claims, QString& tried) {
  for (const QChar c : menu->text().toLower()) {
    if (!c.isLetter() || tried.contains(c)) continue;
    tried += c;
    QAction* holder = claims.value(c);
    if (holder && !ClaimLetter(holder, claims, tried)) continue;
    claims[c] = menu;
    return true;
  }
  return false;
}

/// Lives with the last button.
class EnterMoves : public QObject {
 public:
  EnterMoves(const QList<QLineEdit*>& boxes, QAbstractButton* last) : QObject(last), boxes_(boxes), last_(last) {
    for (QLineEdit* box : boxes) box->installEventFilter(this);
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    const qsizetype next = boxes_.indexOf(static_cast<QLineEdit*>(watched)) + 1;
    if (next < boxes_.size())
      SelectAllInBox(boxes_[next]);
    else
      last_->setFocus();
    return true;
  }

 private:
  QList<QLineEdit*> boxes_;
  QAbstractButton* last_;
};

}  // namespace

void MoveOnWithEnter(const QList<QLineEdit*>& boxes, QAbstractButton* last) { new EnterMoves(boxes, last); }

void SelectAllInBox(QLineEdit* box) {
  box->selectAll();
  box->setFocus();
}

QString WithoutMnemonic(const QString& name) { return QString(name).replace(u'&', QStringLiteral("&&")); }

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
  for (const QAction* menu : bar->actions()) taken += MnemonicOf(menu->text());
  for (const QAbstractButton* button : bar->window()->findChildren<QAbstractButton*>())
    taken += MnemonicOf(button->text());
  for (const QLabel* label : bar->window()->findChildren<QLabel*>())
    if (label->buddy()) taken += MnemonicOf(label->text());
  Claims claims;
  for (QAction* menu : bar->actions()) {
    QString tried = taken;
    if (!menu->text().contains(u'&')) ClaimLetter(menu, claims, tried);
  }
  for (const auto& [letter, menu] : claims.asKeyValueRange())
    menu->setText(QString(menu->text()).insert(menu->text().indexOf(letter, 0, Qt::CaseInsensitive), u'&'));
}
