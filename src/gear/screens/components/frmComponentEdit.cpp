#include "gear/screens/components/frmComponentEdit.h"

#include <QKeyEvent>

#include "core/format.h"
#include "core/store/tables.h"
#include "core/widgets/screen_routines.h"
#include "gear/component_types.h"
#include "gear/models.h"
#include "gear/people.h"
#include "gear/rigs.h"
#include "gear/screens/components/serial_check.h"
#include "gear/screens/components/ui_frmComponentEdit.h"

using namespace Qt::StringLiterals;

frmComponentEdit::frmComponentEdit() : ui_(std::make_unique<Ui::frmComponentEdit>()) {
  ui_->setupUi(this);
  for (QLineEdit* box : {ui_->txtSubType, ui_->txtSerial, ui_->txtColor, ui_->txtDom, ui_->txtJumps})
    box->installEventFilter(this);
  connect(ui_->cmdSave, &QPushButton::clicked, this, &frmComponentEdit::Save);
  connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmComponentEdit::Cancel);
}

frmComponentEdit::~frmComponentEdit() = default;

QStringList frmComponentEdit::ShowsTables() const { return {tblModels::kTable, tblPeople::kTable, tblRig::kTable}; }

void frmComponentEdit::ReloadForm() {
  ui_->lblModel->setText(ModelName(entry_.model));
  ui_->lblOwner->setText(PersonExists(entry_.owner) ? PersonDisplayName(entry_.owner) : u"none"_s);
  ui_->lblRigTitle->setText(RigExists(entry_.rig) ? RigName(entry_.rig) : u"none"_s);
}

void frmComponentEdit::SetEntry(const ComponentEntry& entry) {
  entry_ = entry;
  result_ = 0;
  const bool isNew = entry.id == 0;
  setWindowTitle(isNew ? u"Enter new "_s + TypeInSentence(entry.type) : u"Edit component"_s);
  ReloadForm();
  ui_->lblSubType->setText(SubTypeLabel(entry.type));
  ui_->txtSubType->setText(entry.subType);
  ui_->txtSerial->setText(entry.serial);
  ui_->txtColor->setText(entry.color);
  ui_->txtDom->setText(entry.dom.IsNone() ? QString() : Format(entry.dom, u"mm/dd/yyyy"_s));
  ui_->txtJumps->setText(entry.jumps == 0 ? QString() : QString::number(entry.jumps));
  ui_->txtComment->setPlainText(entry.comment.trimmed().isEmpty() ? QString() : entry.comment);
  SelectAllInBox(ui_->txtSubType);
}

bool frmComponentEdit::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return Form::eventFilter(watched, event);
  switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
      focusNextChild();
      return true;
    case Qt::Key_Up:
      focusPreviousChild();
      return true;
    default:
      return Form::eventFilter(watched, event);
  }
}

void frmComponentEdit::Save() {
  ComponentEntry entry = entry_;
  if (!ReadDom(ui_->txtDom->text(), entry.dom)) {
    SelectAllInBox(ui_->txtDom);
    return;
  }
  if (!ReadNumJumps(ui_->txtJumps->text(), entry.jumps)) {
    SelectAllInBox(ui_->txtJumps);
    return;
  }
  entry.serial = ui_->txtSerial->text();
  int switchTo = 0;
  if (!SerialIsFree(entry.model, entry.serial, entry.id, switchTo)) {
    if (switchTo != 0)
      SwitchTo(switchTo);
    else
      SelectAllInBox(ui_->txtSerial);
    return;
  }
  entry.subType = ui_->txtSubType->text();
  entry.color = ui_->txtColor->text();
  entry.comment = ui_->txtComment->toPlainText();
  result_ = SaveComponentEntry(entry);
  SetTag(u"save"_s);
  Leave();
}

void frmComponentEdit::SwitchTo(int other) {
  result_ = other;
  SetTag(u"switch"_s);
  Leave();
}
