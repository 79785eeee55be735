#include "gear/screens/components/frmSerialNumber.h"

#include "core/prompts.h"
#include "gear/component_rules.h"
#include "gear/component_types.h"
#include "gear/components.h"
#include "gear/rigs.h"
#include "gear/screens.h"
#include "gear/screens/components/component_details.h"
#include "gear/screens/components/ui_frmSerialNumber.h"

using namespace Qt::StringLiterals;

frmSerialNumber::frmSerialNumber() : ui_(std::make_unique<Ui::frmSerialNumber>()) {
  ui_->setupUi(this);
  ui_->lstTypes->Fill(LoadMajorComponentTypes());
  connect(ui_->txtSerial, &QLineEdit::textChanged, this, &frmSerialNumber::FindTyped);
  connect(ui_->txtSerial, &QLineEdit::returnPressed, this, &frmSerialNumber::SelectTyped);
  connect(ui_->chkAllTypes, &QCheckBox::toggled, this, &frmSerialNumber::LoadSerials);
  connect(ui_->lstTypes, &List::ListChange, this, [this](int row) {
    if (row < 0) return;
    const QSignalBlocker quiet(ui_->chkAllTypes);
    ui_->chkAllTypes->setChecked(false);
    LoadSerials();
  });
  connect(ui_->lst, &List::ListChange, this, &frmSerialNumber::ShowDetails);
  connect(ui_->lst, &List::ItemDoubleClick, this, &frmSerialNumber::Select);
  connect(ui_->lst, &List::ItemEnter, this, &frmSerialNumber::Select);
  connect(ui_->cmdSelect, &QPushButton::clicked, this, &frmSerialNumber::Select);
  connect(ui_->cmdEdit, &QPushButton::clicked, this, &frmSerialNumber::Edit);
  connect(ui_->cmdShowRig, &QPushButton::clicked, this, &frmSerialNumber::ShowRig);
  connect(ui_->cmdExit, &QPushButton::clicked, this, &frmSerialNumber::Cancel);
}

frmSerialNumber::~frmSerialNumber() = default;

void frmSerialNumber::SetSearch(int componentType, const QString& serial) {
  const QSignalBlocker quietBox(ui_->chkAllTypes);
  const QSignalBlocker quietTypes(ui_->lstTypes);
  ui_->chkAllTypes->setChecked(!ui_->lstTypes->SelectData(componentType));
  LoadSerials();
  ui_->txtSerial->setText(serial);
}

QString frmSerialNumber::TextOfRow(int row) const { return ui_->lst->ItemText(row).toUpper(); }

int frmSerialNumber::Component() const { return ui_->lst->ItemData(ui_->lst->ListIndex()); }

QStringList frmSerialNumber::ShowsTables() const { return ComponentDetails::ShowsTables(); }

void frmSerialNumber::ReloadForm() {
  const QSignalBlocker quiet(ui_->chkAllTypes);
  if (!ui_->lstTypes->Refill(LoadMajorComponentTypes())) ui_->chkAllTypes->setChecked(true);
  ui_->lst->Refill(::LoadSerials(ListedType()));
  ShowDetails();
}

/// 0 for all types.
int frmSerialNumber::ListedType() const {
  return ui_->chkAllTypes->isChecked() ? 0 : ui_->lstTypes->ItemData(ui_->lstTypes->ListIndex());
}

void frmSerialNumber::LoadSerials() {
  ui_->lst->Fill(::LoadSerials(ListedType()));
  FindTyped(ui_->txtSerial->text());
  ShowDetails();
}

void frmSerialNumber::FindTyped(const QString& typed) {
  const QString wanted = typed.trimmed().toUpper();
  if (wanted.isEmpty()) return;
  for (int row = 0; row < ui_->lst->Count(); ++row) {
    if (!TextOfRow(row).startsWith(wanted)) continue;
    ui_->lst->SetListIndex(row, QAbstractItemView::PositionAtTop);
    return;
  }
}

void frmSerialNumber::ShowDetails() {
  const int component = Component();
  const ComponentDetails details = component == 0 ? ComponentDetails() : DetailsOf(component);
  ui_->lblModel->setText(details.model);
  ui_->lblSerial->setText(details.serial);
  ui_->lblOwner->setText(details.owner);
  ui_->lblType->setText(details.type);
  ui_->lblRig->setText(details.rig);
  ui_->lblDom->setText(details.dom);
  ui_->lblNoSystem->setVisible(component != 0 && !details.hasRig);
}

void frmSerialNumber::Select() {
  if (Component() == 0) return;
  SetTag(u"select"_s);
  Leave();
}

void frmSerialNumber::SelectTyped() {
  // What was typed since may be no component's: the selection is then an earlier one.
  const QString wanted = ui_->txtSerial->text().trimmed().toUpper();
  if (TextOfRow(ui_->lst->ListIndex()).startsWith(wanted)) Select();
}

void frmSerialNumber::Edit() {
  if (Component() == 0) {
    MsgBox(u"You must select a component first"_s, u"Nothing selected"_s);
    return;
  }
  ShowComponent(Component());
}

void frmSerialNumber::ShowRig() {
  const int component = Component();
  const int rig = ComponentRig(component);
  if (component != 0 && !RigExists(rig)) {
    MsgBox(u"This "_s + TypeInSentence(ComponentTypeOf(component)) + u" isn't part of a rig"_s, u"No rig"_s);
    return;
  }
  if (component != 0) ::ShowRig(rig);
}
