#include "core/shell/frmMenu.h"

#include <QListWidget>
#include <QShowEvent>
#include <QWindow>

#include "core/shell/home_commands.h"
#include "core/shell/ui_frmMenu.h"
#include "core/shell/window_habits.h"
#include "core/store/connection.h"

using namespace Qt::StringLiterals;

frmMenu::frmMenu() : ui_(std::make_unique<Ui::frmMenu>()) {
  ui_->setupUi(this);
  SetRemembersPlace(false);
  for (const FloatingEntry& entry : FloatingMenu()) {
    auto* item = new QListWidgetItem(entry.caption, ui_->lst);
    if (entry.run == nullptr) item->setFlags(Qt::NoItemFlags);
  }
  ui_->lst->setFixedHeight(ui_->lst->sizeHintForRow(0) * ui_->lst->count() + 2 * ui_->lst->frameWidth() + 8);
  ui_->lst->setMinimumWidth(ui_->lst->sizeHintForColumn(0) + 40);
  connect(ui_->lst, &QListWidget::itemClicked, this,
          [this](const QListWidgetItem* item) { Choose(ui_->lst->row(item)); });
  connect(ui_->lst, &QListWidget::itemActivated, this,
          [this](const QListWidgetItem* item) { Choose(ui_->lst->row(item)); });
  ShowConnectionCount = [](int count) {
    if (auto* menu = FormIfLoaded<frmMenu>()) menu->setWindowTitle(QString::number(count));
  };
}

frmMenu::~frmMenu() { ShowConnectionCount = nullptr; }

void frmMenu::Choose(int row) {
  const HomeCommand run = FloatingMenu().at(static_cast<size_t>(row)).run;
  if (run) run();
}

void frmMenu::Cancel() { ExitProgram(this); }

void frmMenu::changeEvent(QEvent* event) {
  Form::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) CloseLeftOpenConnection();
}

void frmMenu::showEvent(QShowEvent* event) {
  Form::showEvent(event);
  if (event->spontaneous()) return;
  move(0, 0);
  windowHandle()->setFramePosition({0, 0});  // a move alone puts the title bar above the screen
}
