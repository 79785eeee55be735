#include "gear/screens/rigs/frmDeleteSystem.h"

#include <QKeyEvent>

#include "core/prompts.h"
#include "gear/rig_types.h"
#include "gear/rigs.h"
#include "gear/screens/rigs/rig_grid.h"
#include "gear/screens/rigs/ui_frmDeleteSystem.h"

using namespace Qt::StringLiterals;

frmDeleteSystem::frmDeleteSystem() : ui_(std::make_unique<Ui::frmDeleteSystem>()) {
  ui_->setupUi(this);
  SetRemembersPlace(false);
  RigGrid::SetUp(*ui_->grid);
  ui_->grid->installEventFilter(this);
  connect(ui_->cmdYes, &QPushButton::clicked, this, [this] { Answer(u"yes"_s); });
  connect(ui_->cmdNo, &QPushButton::clicked, this, [this] { Answer(u"no"_s); });
  connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmDeleteSystem::Cancel);
  connect(ui_->cmdExit, &QPushButton::clicked, this, &frmDeleteSystem::Cancel);
  connect(ui_->cmdHelp, &QPushButton::clicked, this, &frmDeleteSystem::ShowHelp);
}

frmDeleteSystem::~frmDeleteSystem() = default;

QStringList frmDeleteSystem::ShowsTables() const { return RigGrid::ShowsTables(); }

void frmDeleteSystem::ReloadForm() {
  if (RigExists(rig_))
    ShowRig();
  else
    Cancel();
}

void frmDeleteSystem::ShowRig() {
  ui_->lblTitle->setText(RigName(rig_));
  ui_->lblRigType->setText(u"Rig Type: "_s + RigTypeName(RigType(rig_)));
  RigGrid::Refill(*ui_->grid, rig_);
}

void frmDeleteSystem::SetRig(int rig, bool showOnly) {
  rig_ = rig;
  showOnly_ = showOnly;
  setWindowTitle(showOnly ? u"Show rig"_s : u"Delete System?"_s);
  ShowRig();
  for (QPushButton* button : {ui_->cmdYes, ui_->cmdNo, ui_->cmdCancel, ui_->cmdHelp}) button->setVisible(!showOnly);
  ui_->lblNote->setVisible(!showOnly);
  ui_->cmdExit->setVisible(showOnly);
}

void frmDeleteSystem::keyPressEvent(QKeyEvent* event) {
  if (!AnswerKey(*event)) Form::keyPressEvent(event);
}

// The grid would look for a row that begins with the letter.
bool frmDeleteSystem::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && AnswerKey(static_cast<QKeyEvent&>(*event))) return true;
  return Form::eventFilter(watched, event);
}

bool frmDeleteSystem::AnswerKey(const QKeyEvent& event) {
  if (showOnly_ || event.modifiers() != Qt::NoModifier) return false;
  switch (event.key()) {
    case Qt::Key_Y:
      Answer(u"yes"_s);
      return true;
    case Qt::Key_N:
      Answer(u"no"_s);
      return true;
    case Qt::Key_C:
      Cancel();
      return true;
    default:
      return false;
  }
}

void frmDeleteSystem::Answer(const QString& tag) {
  SetTag(tag);
  Leave();
}

void frmDeleteSystem::ShowHelp() {
  MsgBox(Lines({u"When you delete a rig, its components stay in the database."_s, QString(),
                u"The tasks performed on them still exist, and can be seen"_s, u"under Jobs and History."_s}),
         u"Help:      Deleting a Rig"_s);
}
