#include "core/widgets/form.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QMenuBar>
#include <QPushButton>
#include <QSettings>
#include <QWindow>

#include <vector>

#include "core/prompts.h"
#include "core/trap.h"
#include "core/widgets/qt_prompts.h"
#include "core/widgets/screen_routines.h"
#include "core/widgets/undo_keys.h"

using namespace Qt::StringLiterals;

namespace {

// An unloaded form may still have its own code below a modal loop, so it waits until the outermost loop has ended.
int modalDepth = 0;
std::vector<Form*> buried;

void EmptyGraves() {
  for (Form* form : buried) form->deleteLater();
  buried.clear();
}

}  // namespace

QWidget* Form::Caller() const {
  if (caller_ && caller_->isVisible()) return caller_;
  QWidget* caller = QApplication::activeModalWidget();
  if (!caller) caller = QApplication::activeWindow();
  return caller == this ? nullptr : caller;
}

Form::Form() : QDialog(nullptr, Qt::Window) {
  setAttribute(Qt::WA_QuitOnClose, false);
  GiveUndoKeys(this);
  Forms::Add(this);
}

Form::~Form() {
  std::erase(buried, this);
  if (!unloaded_) Forms::Remove(this);
}

QString Form::FormName() const { return QString::fromLatin1(metaObject()->className()); }

void Form::Show() {
  if (modal_) {
    raise();
    return;
  }
  if (!isVisible()) {
    tag_.clear();
    Place();
    setWindowModality(Qt::NonModal);
  }
  StayAbove(QApplication::activeModalWidget());
  if (isMinimized()) {
    showNormal();
  } else {
    show();
  }
  raise();
  activateWindow();
}

void Form::ShowModal() {
  if (modal_) {
    raise();
    return;
  }
  const PersonAnswers waits;
  const PointerAside aside;
  if (isVisible()) hide();
  tag_.clear();
  QWidget* caller = Caller();
  Place();
  StayAbove(caller);
  modal_ = true;
  ++modalDepth;
  exec();
  --modalDepth;
  modal_ = false;
  if (windowHandle()) {
    windowHandle()->setTransientParent(nullptr);
    for (QWindow* window : QGuiApplication::topLevelWindows())
      if (window->transientParent() == windowHandle()) window->setTransientParent(nullptr);
  }
  if (unloaded_) Bury();
  if (modalDepth == 0) EmptyGraves();
}

void Form::ShowAlone() {
  QWidget* caller = Caller();
  Place();
  StayAbove(caller);
  setWindowModality(Qt::ApplicationModal);
  show();
  raise();
  activateWindow();
}

void Form::StayAbove(const QWidget* other) {
  if (!other || other == this || !other->windowHandle()) return;
  winId();  // makes the window
  QWindow* below = other->windowHandle();
  if (windowHandle()->isAncestorOf(below, QWindow::IncludeTransients)) below->setTransientParent(nullptr);
  windowHandle()->setTransientParent(below);
}

void Form::UnloadForm() {
  if (unloaded_) return;
  unloaded_ = true;
  Forms::Remove(this);
  hide();
  if (!modal_) Bury();
}

void Form::Bury() {
  if (modalDepth == 0) {
    deleteLater();
  } else {
    buried.push_back(this);
  }
}

void Form::TablesChanged(const Changes& changes) {
  if (isVisible()) {
    Trap(FormName(), [this] { ReloadForm(); });
  } else if (wasShown_) {
    missed_.Add(changes);
  }
}

QMenuBar* Form::MenuBar() {
  if (auto* bar = findChild<QMenuBar*>(QString(), Qt::FindDirectChildrenOnly)) return bar;
  auto* bar = new QMenuBar(this);
  if (layout()) layout()->setMenuBar(bar);
  return bar;
}

void Form::reject() { Cancel(); }

void Form::Cancel() {
  tag_ = u"cancel"_s;
  Leave();
}

void Form::Leave() {
  if (modal_) {
    hide();
  } else {
    UnloadForm();
  }
}

void Form::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
    QDialog::keyPressEvent(event);
    return;
  }
  // Enter presses the button that has the focus, else the default button; never a button that merely comes first.
  if (auto* focused = qobject_cast<QPushButton*>(focusWidget())) {
    focused->click();
    return;
  }
  for (QPushButton* button : findChildren<QPushButton*>()) {
    if (button->isDefault() && button->isVisible()) {
      button->click();
      return;
    }
  }
}

void Form::showEvent(QShowEvent* event) {
  for (QPushButton* button : findChildren<QPushButton*>()) button->setAutoDefault(false);
  if (auto* bar = findChild<QMenuBar*>(QString(), Qt::FindDirectChildrenOnly)) GiveMnemonics(bar);
  QDialog::showEvent(event);
  wasShown_ = true;
  if (const Changes missed = std::exchange(missed_, Changes()); !missed.IsEmpty()) TablesChanged(missed);
}

void Form::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow() && isWorkedOn_) Forms::SetInFront(FormName());
}

void Form::hideEvent(QHideEvent* event) {
  if (!event->spontaneous()) RememberPlace();
  QDialog::hideEvent(event);
}

void Form::Place() {
  if (placed_) return;
  ensurePolished();
  if (!testAttribute(Qt::WA_Resized)) adjustSize();
  const QByteArray remembered =
      remembersPlace_ ? QSettings().value("forms/"_L1 + FormName()).toByteArray() : QByteArray();
  if (remembered.isEmpty() || !restoreGeometry(remembered)) CentreForm(this, Caller());
  placed_ = remembersPlace_;
}

void Form::RememberPlace() const {
  if (remembersPlace_) QSettings().setValue("forms/"_L1 + FormName(), saveGeometry());
}
