#include "gear/screens/components/frmComponent.h"

#include <QMenu>
#include <QMenuBar>

#include <utility>

#include "core/format.h"
#include "core/picker.h"
#include "core/prompts.h"
#include "core/screens.h"
#include "core/store/tables.h"
#include "core/widgets/screen_routines.h"
#include "gear/component_editor.h"
#include "gear/component_rules.h"
#include "gear/component_types.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/people.h"
#include "gear/rig_rules.h"
#include "gear/rigs.h"
#include "gear/screens.h"
#include "gear/screens/components/ui_frmComponent.h"
#include "gear/screens/schedule_grid.h"
#include "history/screens.h"
#include "schedule/gear_moves.h"
#include "schedule/scheduled_task.h"

using namespace Qt::StringLiterals;

namespace {

const QString kNotEntered = u"(not entered)"_s;

QString OrWord(const QString& text, const QString& word) { return text.trimmed().isEmpty() ? word : text; }

}  // namespace

frmComponent::frmComponent() : ui_(std::make_unique<Ui::frmComponent>()) {
  ui_->setupUi(this);
  ScheduleGrid::SetUp(*ui_->Grid2);
  MakeMenu();
  for (QLineEdit* box : {ui_->txtModel, ui_->txtSerial, ui_->txtColor, ui_->txtDom, ui_->txtJumps})
    box->installEventFilter(this);
  ui_->txtComment->viewport()->installEventFilter(this);
  ui_->cmdPhoto->setEnabled(false);
  ShowPhoto();
  connect(ui_->chkHidePhotos, &QCheckBox::clicked, this, [this](bool hidden) {
    SetPhotosHidden(hidden);
    ShowPhoto();
  });
  connect(ui_->cmdEdit, &QPushButton::clicked, this, &frmComponent::Edit);
  connect(ui_->cmdChangeModel, &QPushButton::clicked, this, &frmComponent::ChangeModel);
  connect(ui_->cmdRemove, &QPushButton::clicked, this, &frmComponent::RemoveFromRig);
  connect(ui_->cmdUpdateTask, &QPushButton::clicked, this, &frmComponent::UpdateTask);
  connect(ui_->cmdRefresh, &QPushButton::clicked, this, &frmComponent::ReloadForm);
  connect(ui_->cmdUpdateHelp, &QPushButton::clicked, this, [] { MsgBox(u"work on this"_s); });
  connect(ui_->cmdExit, &QPushButton::clicked, this, &frmComponent::Cancel);
}

frmComponent::~frmComponent() = default;

QStringList frmComponent::ShowsTables() const {
  return ScheduleGrid::ShowsTables() + QStringList{tblComponentTypes::kTable, tblPeople::kTable, tblMisc::kTable};
}

void frmComponent::MakeMenu() {
  MenuBar()->addAction(u"Edit"_s, this, &frmComponent::Edit);
  auto* photo = MenuBar()->addMenu(u"Photo"_s);
  for (const QString& text : {u"Add or update photo"_s, u"Delete photo"_s, u"View more photos of this component"_s,
                              u"Add more photos of this component"_s})
    photo->addAction(text)->setEnabled(false);
  MenuBar()->addMenu(u"Owner"_s)->addAction(u"Select/Change Owner"_s, this, &frmComponent::ChangeOwner);
  MenuBar()->addAction(u"Rig"_s, this, &frmComponent::ShowItsRig);
  MenuBar()->addAction(u"History"_s, this, [this] {
    if (ComponentExists(component_)) OpenComponentHistory(component_);
  });
  MenuBar()->addAction(u"Exit"_s, this, &frmComponent::Cancel);
}

void frmComponent::SetComponent(int component) {
  component_ = component;
  ReloadForm();
}

void frmComponent::TablesChanged(const Changes& changes) {
  // What the editor above writes is read when it has closed.
  if (!noReload_) Form::TablesChanged(changes);
}

void frmComponent::ReloadForm() {
  if (std::exchange(noReload_, false)) MsgBox(u"NoReload was true, wasn't supposed to be"_s, u"keep going"_s);
  ShowFields();
  ShowOwner();
  ReloadSchedule();
  ShowPhoto();
}

void frmComponent::ShowFields() {
  ComponentEntry entry;
  LoadComponentEntry(component_, entry);
  const QString type = WithoutMnemonic(TypeInSentence(entry.type));
  setWindowTitle(ComponentTypeName(entry.type));
  ui_->txtModel->setText(ComponentDescription(component_));
  ui_->txtSerial->setText(OrWord(entry.serial, kNotEntered));
  ui_->txtColor->setText(OrWord(entry.color, u"(n/a)"_s));
  ui_->txtDom->setText(entry.dom.IsNone() ? kNotEntered : Format(entry.dom, u"mm/dd/yyyy"_s));
  ui_->txtJumps->setText(entry.jumps == 0 ? kNotEntered : QString::number(entry.jumps));
  ui_->txtComment->setPlainText(entry.comment.trimmed().isEmpty() ? QString() : entry.comment);
  ui_->cmdChangeModel->setText(u"Change "_s + type + u" &Model"_s);
  ui_->cmdRemove->setText(u"Remo&ve "_s + type + u" from rig"_s);
  ui_->cmdRemove->setVisible(RigExists(entry.rig));
  for (QPushButton* button : {ui_->cmdEdit, ui_->cmdChangeModel}) button->setEnabled(entry.id != 0);
}

void frmComponent::ShowOwner() {
  const int rig = ComponentRig(component_);
  const bool hasRig = RigExists(rig);
  const int rigOwner = hasRig ? RigOwner(rig) : 0;
  const int own = ComponentOwner(component_);
  const int owner = own == 0 ? rigOwner : own;
  ui_->lblCustomer->setText(PersonDisplayName(owner));
  ui_->lblRigTitle->setText(hasRig ? RigName(rig) : u"(not part of a rig)"_s);
  ui_->lblRigOwner->setText(u"(note: rig owner is "_s + PersonDisplayName(rigOwner) + u')');
  ui_->lblRigOwner->setVisible(hasRig && rigOwner != owner);
}

void frmComponent::ReloadSchedule() {
  const bool shown = ComponentHasSchedule(component_);
  ScheduleGrid::Fill(*ui_->Grid2, shown ? LoadComponentAudit(component_) : QList<RigAuditRow>());
  ui_->schedule->setVisible(shown);
}

void frmComponent::ShowPhoto() {
  const bool hidden = PhotosAreHidden();
  ui_->chkHidePhotos->setChecked(hidden);
  ui_->imageComponent->setVisible(!hidden);
}

bool frmComponent::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::MouseButtonDblClick) return Form::eventFilter(watched, event);
  Edit();
  return true;
}

bool frmComponent::MayChange() const { return ComponentExists(component_) && AgreesWithComponentList(component_); }

void frmComponent::Edit() {
  if (!MayChange()) return;
  noReload_ = true;
  const int edited = EditComponent(component_);
  noReload_ = false;
  SetComponent(edited != 0 ? edited : component_);
}

void frmComponent::ChangeModel() {
  if (!MayChange()) return;
  const int model = PickModel(ComponentTypeOf(component_), ComponentModel(component_));
  if (model != 0) SetComponentModel(component_, model);
}

void frmComponent::RemoveFromRig() {
  if (MayChange()) RemoveFromItsRig(component_);
}

void frmComponent::ChangeOwner() {
  if (!MayChange()) return;
  const int picked = PickItem(kPickCustomer, 0, ComponentOwner(component_)).id;
  const int owner = picked == kPickAddNewPerson || picked == kPickAddNew ? ShowPeople(kPeopleAddNew) : picked;
  if (owner > 0) ChangeComponentOwner(component_, owner);
}

void frmComponent::ShowItsRig() {
  const int rig = ComponentRig(component_);
  if (RigExists(rig))
    ShowRig(rig);
  else
    MsgBox(u"This component isn't part of a rig"_s);
}

void frmComponent::UpdateTask() {
  const int entry = ScheduleGrid::EntryToUpdate(*ui_->Grid2);
  if (entry == 0 || !MayChange()) return;
  const int rig = RigExists(ComponentRig(component_)) ? ComponentRig(component_) : 0;
  UpdateScheduledTask(entry, rig, EntryIsOfOneType(entry) ? component_ : 0);
}
