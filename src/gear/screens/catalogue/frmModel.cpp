#include "gear/screens/catalogue/frmModel.h"

#include <QKeyEvent>

#include "core/format.h"
#include "core/store/tables.h"
#include "core/widgets/screen_routines.h"
#include "gear/component_editor.h"
#include "gear/models.h"
#include "gear/screens.h"
#include "gear/screens/catalogue/ui_frmModel.h"
#include "gear/screens/components/serial_check.h"

using namespace Qt::StringLiterals;

frmModel::frmModel() : ui_(std::make_unique<Ui::frmModel>()) {
  ui_->setupUi(this);
  SetRemembersPlace(false);
  for (QLineEdit* box : {ui_->txtSerial, ui_->txtDom, ui_->txtSubType}) box->installEventFilter(this);
  connect(ui_->cmdModel, &QPushButton::clicked, this, &frmModel::ChooseModel);
  connect(ui_->cmdSave, &QPushButton::clicked, this, &frmModel::Save);
  connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmModel::Cancel);
}

frmModel::~frmModel() = default;

void frmModel::SetComponent(int component) {
  ComponentEntry entry;
  LoadComponentEntry(component, entry);
  component_ = component;
  model_ = entry.model;
  type_ = entry.type;
  ReloadForm();
  ui_->lblSubType->setText(SubTypeLabel(entry.type));
  ui_->txtSerial->setText(entry.serial);
  ui_->txtDom->setText(entry.dom.IsNone() ? QString() : Format(entry.dom, u"mm/dd/yyyy"_s));
  ui_->txtSubType->setText(entry.subType);
  SelectAllInBox(ui_->txtSerial);
}

bool frmModel::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return Form::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (key != Qt::Key_Return && key != Qt::Key_Enter) return Form::eventFilter(watched, event);
  if (watched == ui_->txtSubType)
    Save();
  else
    SelectAllInBox(watched == ui_->txtSerial ? ui_->txtDom : ui_->txtSubType);
  return true;
}

void frmModel::ChooseModel() {
  const int model = PickModel(type_, model_);
  if (model == 0) return;
  model_ = model;
  ReloadForm();
}

QStringList frmModel::ShowsTables() const { return {tblModels::kTable}; }

void frmModel::ReloadForm() { ui_->cmdModel->setText(WithoutMnemonic(ModelName(model_))); }

void frmModel::Save() {
  const QString serial = ui_->txtSerial->text();
  int other = 0;
  if (!SerialIsFree(model_, serial, component_, other)) {
    SelectAllInBox(ui_->txtSerial);
    return;
  }
  Date dom;
  if (!ReadDom(ui_->txtDom->text(), dom, u"Invalid date"_s)) {
    SelectAllInBox(ui_->txtDom);
    return;
  }
  if (!SaveShortEntry(component_, model_, serial, dom, ui_->txtSubType->text())) return;
  SetTag(u"save"_s);
  Leave();
}
