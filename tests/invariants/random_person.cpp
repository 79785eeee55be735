#include "invariants/random_person.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include "core/widgets/click_label.h"
#include "core/widgets/form.h"
#include "core/widgets/grid.h"
#include "core/widgets/list.h"
#include "invariants/exceptions.h"
#include "support/screens/controls.h"

using namespace Qt::StringLiterals;

namespace {

/// What is typed and entered: names, numbers, dates, and what is none of them. No quotes: a statement that holds one in
/// a value breaks, and its box says so.
const QStringList kWords = {u"Smith"_s,     u"Ann Adams"_s, u"Blue"_s,       u"Sky"_s,      u"12"_s,
                            u"0"_s,         u"33.50"_s,     u"180"_s,        u"3/1/2026"_s, u"2/28/2026"_s,
                            u"8/31/2025"_s, u"S1"_s,        u"Line check"_s, u"CA"_s,       u"7.25"_s,
                            u"x"_s,         u"Rob"_s,       u"Big patch"_s};

/// Acts in one step, on all the screens that it opens; after them every modal screen is left at once.
constexpr int kMostActs = 12;

QList<QAction*> CommandsOf(const QList<QAction*>& actions, const QString& form) {
  QList<QAction*> commands;
  for (QAction* action : actions) {
    if (action->isSeparator() || !action->isEnabled() || !MayBeUsed(form, action->text().remove(u'&'))) continue;
    if (action->menu() != nullptr)
      commands += CommandsOf(action->menu()->actions(), form);
    else
      commands << action;
  }
  return commands;
}

template <class W>
QList<QWidget*> Usable(const Form& form) {
  QList<QWidget*> usable;
  for (W* widget : form.findChildren<W*>()) {
    const QString name = widget->objectName();
    if (widget->isVisible() && widget->isEnabled() && !name.isEmpty() && !name.startsWith(u"qt_"_s) &&
        MayBeUsed(form.FormName(), name))
      usable << widget;
  }
  return usable;
}

/// Commands that end a screen or only tell: seldom used, or nothing else would come about.
bool IsIdle(const QString& name) {
  return name == "cmdExit"_L1 || name == "cmdCancel"_L1 || name == "Exit"_L1 || name.contains("Help"_L1) ||
         name.contains("Explain"_L1) || name == "Arrange forms"_L1 || name == "Cascade"_L1;
}

}  // namespace

RandomPerson::RandomPerson() : prompts_(kWords) { qApp->installEventFilter(this); }

RandomPerson::~RandomPerson() { qApp->removeEventFilter(this); }

void RandomPerson::Note(const QString& text) {
  NoteAnswers();
  done_ << text;
}

void RandomPerson::NoteAnswers() {
  for (const auto& [shown, answer] : prompts_.TakeTranscript()) {
    done_ << shown.Describe().replace(u'\n', u' ') + u": "_s + answer;
    boxes_ << shown;
  }
}

QStringList RandomPerson::TakeDone() {
  NoteAnswers();
  return std::exchange(done_, {});
}

bool RandomPerson::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Show && event->type() != QEvent::ZOrderChange) return false;
  auto* form = dynamic_cast<Form*>(watched);
  if (auto* other = qobject_cast<QDialog*>(watched); form == nullptr && other != nullptr && other->isModal()) {
    done_ << u"FAULT: %1 leads out of the program"_s.arg(other->windowTitle());
    QTimer::singleShot(0, other, &QDialog::reject);
  }
  if (form == nullptr || event->spontaneous()) return false;
  raised_ << form->FormName();
  form->setUpdatesEnabled(false);  // nobody looks at the paint, and most of the time would go into it
  if (event->type() == QEvent::Show && form->isModal()) {
    QTimer::singleShot(0, this, [this, shown = QPointer<Form>(form)] {
      if (shown && shown->isVisible()) Work(*shown);
    });
  }
  return false;
}

void RandomPerson::Act(Form& form, quint32 seed) {
  random_.seed(seed);
  prompts_.DrawFrom(&random_);
  acts_ = 0;
  Do(form);
  prompts_.DrawFrom(nullptr);
}

/// A few acts on a modal screen, then out: mostly by the button that goes on.
void RandomPerson::Work(Form& form) {
  const QPointer<Form> shown = &form;
  const int acts = 1 + Draw(4);
  for (int act = 0; act < acts && shown && shown->isVisible() && acts_ < kMostActs; ++act) {
    Do(form);
    if (shown && shown->isVisible() && afterModalAct_) afterModalAct_(form);
  }
  if (!shown || !shown->isVisible()) return;
  if (acts_ < kMostActs && Draw(10) < 7) {
    for (const char* name : {"cmdSelect", "cmdOK", "cmdSave", "cmdYes", "cmdNew"}) {
      auto* button = form.findChild<QPushButton*>(QLatin1StringView(name));
      if (button == nullptr || !button->isVisible() || !button->isEnabled()) continue;
      Press(form, *button);
      break;
    }
  }
  if (shown && shown->isVisible()) Leave(form);
}

void RandomPerson::Leave(Form& form) {
  const QPointer<Form> shown = &form;
  constexpr int kMostTries = 5;
  for (int n = 0; n < kMostTries && shown && shown->isVisible(); ++n) {
    Note(form.FormName() + u": Esc"_s);
    form.reject();
  }
  if (!shown || !shown->isVisible()) return;
  done_ << u"FAULT: %1 can't be left"_s.arg(form.FormName());
  form.hide();
}

void RandomPerson::Press(Form& form, QWidget& button) {
  Note(u"%1: click %2"_s.arg(form.FormName(), button.objectName()));
  const bool hasMark = qobject_cast<QPushButton*>(&button) == nullptr;
  QTest::mouseClick(&button, Qt::LeftButton, {}, hasMark ? QPoint(8, button.height() / 2) : QPoint());
}

void RandomPerson::UseRows(Form& form, QWidget& rows) {
  const QString name = form.FormName() + u": "_s + rows.objectName();
  const QPointer<QWidget> there = &rows;
  constexpr Qt::Key kKeys[] = {Qt::Key_Return, Qt::Key_Delete, Qt::Key_Space, Qt::Key_F2};
  const Qt::Key key = kKeys[Draw(4)];
  const int how = Draw(10);
  if (auto* list = qobject_cast<List*>(&rows)) {
    if (list->Count() == 0) return;
    const int row = Draw(list->Count());
    Note(u"%1: click row %2 \"%3\""_s.arg(name).arg(row).arg(list->ItemText(row)));
    const QModelIndex index = list->model()->index(row, 0);
    list->scrollTo(index);
    const QRect place = list->visualRect(index);
    if (list->model()->flags(index).testFlag(Qt::ItemIsUserCheckable) && how < 5)
      QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, QPoint(place.left() + 8, place.center().y()));
    else
      QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place.center());
  } else if (auto* grid = qobject_cast<Grid*>(&rows)) {
    if (grid->RowCount() == 0) return;
    const int row = Draw(grid->RowCount());
    int column = Draw(grid->ColumnCount());
    while (grid->isColumnHidden(column)) column = (column + 1) % grid->ColumnCount();
    if (how == 9 && Draw(3) == 0) {
      Note(u"%1: click heading %2"_s.arg(name).arg(column));
      ClickHeading(*grid, column);
      return;
    }
    Note(u"%1: click cell %2, %3"_s.arg(name).arg(row).arg(column));
    ClickCell(*grid, row, column, how == 8 ? Qt::ControlModifier : Qt::NoModifier);
    if (there && grid->IsEditing()) {
      Type(form, *grid->Editor());
      return;
    }
  }
  if (how < 6 || !there || !there->isVisible()) return;
  Note(u"%1: key %2"_s.arg(name, QKeySequence(key).toString()));
  QTest::keyClick(there, key);
}

/// The text stands in the box when this is done, entered or not.
void RandomPerson::Type(Form& form, QWidget& box) {
  const QString text = Pick(kWords);
  Note(u"%1: type \"%2\" into %3"_s.arg(form.FormName(), text, box.objectName()));
  const QPointer<QWidget> there = &box;
  box.setFocus();
  QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(&box, text);
  if (!there || Draw(2) == 0) return;
  Note(form.FormName() + u": Enter"_s);
  QTest::keyClick(there, Qt::Key_Return);
}

void RandomPerson::PressKeys(Form& form) {
  struct Keys {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
  };
  static constexpr Keys keys[] = {{Qt::Key_Z, Qt::ControlModifier},
                                  {Qt::Key_Z, Qt::ControlModifier},
                                  {Qt::Key_Y, Qt::ControlModifier},
                                  {Qt::Key_F5, {}},
                                  {Qt::Key_Delete, {}}};
  const Keys chosen = keys[Draw(static_cast<int>(std::size(keys)))];
  Note(u"%1: key %2"_s.arg(form.FormName(), QKeySequence(chosen.modifiers | chosen.key).toString()));
  QTest::keyClick(&form, chosen.key, chosen.modifiers);
}

void RandomPerson::Do(Form& form) {
  ++acts_;
  const QPointer<Form> shown = &form;
  enum Way { Rows, Buttons, Commands, Marks, Boxes, Labels, Combos, Keys };
  static constexpr Way kWays[] = {Rows,     Rows,     Rows,     Rows,     Rows,  Rows,  Buttons, Buttons, Buttons,
                                  Commands, Commands, Commands, Commands, Marks, Boxes, Labels,  Combos,  Keys};
  const QList<QWidget*> rows = Usable<List>(form) + Usable<Grid>(form);
  constexpr int kMostTries = 20;
  for (int n = 0; n < kMostTries; ++n) {
    bool done = false;
    switch (kWays[Draw(static_cast<int>(std::size(kWays)))]) {
      case Rows:
        if (rows.isEmpty()) break;
        UseRows(form, *Pick(rows));
        done = true;
        // Something is selected to do something with it.
        if (!form.isModal() && Draw(2) == 0 && shown && shown->isVisible() && !UseButton(form)) UseCommand(form);
        break;
      case Buttons:
        done = UseButton(form);
        break;
      case Commands:
        done = UseCommand(form);
        break;
      case Marks:
        done = UseMark(form);
        break;
      case Boxes:
        done = UseBox(form);
        break;
      case Labels:
        done = UseLabel(form);
        break;
      case Combos:
        done = UseCombo(form);
        break;
      case Keys:
        PressKeys(form);
        done = true;
        break;
    }
    if (done) return;
  }
}

bool RandomPerson::UseButton(Form& form) {
  const QList<QWidget*> buttons = Usable<QPushButton>(form);
  if (buttons.isEmpty()) return false;
  QWidget* button = Pick(buttons);
  if (IsIdle(button->objectName()) && Draw(8) != 0) return false;
  Press(form, *button);
  return true;
}

bool RandomPerson::UseCommand(Form& form) {
  const auto* bar = form.findChild<QMenuBar*>(QString(), Qt::FindDirectChildrenOnly);
  const QList<QAction*> commands = bar ? CommandsOf(bar->actions(), form.FormName()) : QList<QAction*>();
  if (commands.isEmpty()) return false;
  QAction* command = Pick(commands);
  const QString caption = command->text().remove(u'&');
  if (IsIdle(caption) && Draw(8) != 0) return false;
  Note(u"%1: menu \"%2\""_s.arg(form.FormName(), caption));
  command->trigger();
  return true;
}

bool RandomPerson::UseMark(Form& form) {
  const QList<QWidget*> marks = Usable<QCheckBox>(form) + Usable<QRadioButton>(form) + Usable<QToolButton>(form);
  if (marks.isEmpty()) return false;
  Press(form, *Pick(marks));
  return true;
}

bool RandomPerson::UseBox(Form& form) {
  const QList<QWidget*> boxes = Usable<QLineEdit>(form) + Usable<QPlainTextEdit>(form);
  if (boxes.isEmpty()) return false;
  Type(form, *Pick(boxes));
  return true;
}

bool RandomPerson::UseLabel(Form& form) {
  const QList<QWidget*> labels = Usable<ClickLabel>(form);
  if (labels.isEmpty()) return false;
  const QPointer<Form> shown = &form;
  QWidget* label = Pick(labels);
  Note(u"%1: click %2"_s.arg(form.FormName(), label->objectName()));
  QTest::mouseClick(label, Qt::LeftButton);
  if (!shown || !shown->isVisible()) return true;
  if (auto* typed = qobject_cast<QLineEdit*>(form.focusWidget()); typed != nullptr && typed->isVisible())
    Type(form, *typed);
  return true;
}

bool RandomPerson::UseCombo(Form& form) {
  const QList<QWidget*> combos = Usable<QComboBox>(form);
  if (combos.isEmpty()) return false;
  auto* combo = qobject_cast<QComboBox*>(Pick(combos));
  if (combo->count() == 0) return false;
  const int item = Draw(combo->count());
  Note(u"%1: choose %2 in %3"_s.arg(form.FormName(), combo->itemText(item), combo->objectName()));
  combo->setCurrentIndex(item);
  Q_EMIT combo->activated(item);
  return true;
}
