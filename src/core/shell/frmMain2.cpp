#include "core/shell/frmMain2.h"

#include <QEvent>
#include <QMenuBar>
#include <QPushButton>

#include "core/clock.h"
#include "core/format.h"
#include "core/shell/home_commands.h"
#include "core/shell/ui_frmMain2.h"
#include "core/shell/window_habits.h"
#include "core/store/connection.h"

using namespace Qt::StringLiterals;

frmMain2::frmMain2() : ui_(std::make_unique<Ui::frmMain2>()) {
  ui_->setupUi(this);
  BuildMenu();
  ui_->page->addStrut(MenuBar()->sizeHint().width() - 2 * ui_->page->contentsMargins().left());
  for (QPushButton* button : findChildren<QPushButton*>()) {
    if (button == ui_->cmdExit) continue;
    const HomeCommand run = ButtonCommand(button->objectName());
    button->setEnabled(run != nullptr);
    connect(button, &QPushButton::clicked, this, [run] { run(); });
  }
  connect(ui_->cmdExit, &QPushButton::clicked, this, [this] { ExitProgram(this); });
  Activated();
}

frmMain2::~frmMain2() = default;

void frmMain2::BuildMenu() {
  for (const MenuLine& line : MainMenu()) {
    if (line.menus.isEmpty()) {  // the one command on the bar itself leaves the program
      connect(MenuBar()->addAction(line.caption), &QAction::triggered, this, [this] { ExitProgram(this); });
      continue;
    }
    QMenu* menu = MenuFor(line.menus);
    if (line.caption.isEmpty()) {
      menu->addSeparator();
      continue;
    }
    QAction* action = menu->addAction(line.caption);
    action->setEnabled(line.run != nullptr);
    connect(action, &QAction::triggered, this, [run = line.run] { run(); });
    if (!line.now) continue;
    connect(menu, &QMenu::aboutToShow, action, [action, line] {
      const std::optional<QString> now = line.now();
      action->setText(now.value_or(line.caption));
      action->setEnabled(now.has_value());
    });
  }
}

QMenu* frmMain2::MenuFor(const QStringList& menus) {
  QMenu* menu = nullptr;
  for (const QString& title : menus) {
    const QList<QAction*> actions = menu ? menu->actions() : MenuBar()->actions();
    QMenu* found = nullptr;
    for (const QAction* action : actions)
      if (action->menu() != nullptr && action->text() == title) found = action->menu();
    if (found == nullptr) found = menu ? menu->addMenu(title) : MenuBar()->addMenu(title);
    menu = found;
  }
  return menu;
}

void frmMain2::Cancel() { ExitProgram(this); }

void frmMain2::changeEvent(QEvent* event) {
  Form::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) Activated();
}

void frmMain2::Activated() {
  ui_->lblDate->setText(Format(Today(), u"dddd, mmm d yyyy"_s));
  resize(width(), sizeHint().height());
  if (!std::exchange(keepConnection_, false)) CloseLeftOpenConnection();
}
