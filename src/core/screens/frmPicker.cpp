#include "core/screens/frmPicker.h"

#include <QKeyEvent>

#include "core/default_rows.h"
#include "core/picker.h"
#include "core/prompts.h"
#include "core/screens/picker_rows.h"
#include "core/screens/ui_frmPicker.h"
#include "core/store/access.h"
#include "core/trap.h"
#include "gear/models.h"

using namespace Qt::StringLiterals;

frmPicker::frmPicker() : ui_(std::make_unique<Ui::frmPicker>()) {
  ui_->setupUi(this);
  SetRemembersPlace(false);
  ui_->chkDefault->hide();
  ui_->txt->installEventFilter(this);
  connect(ui_->txt, &QLineEdit::textChanged, this, &frmPicker::FindTyped);
  connect(ui_->lst, &List::ItemClick, this, &frmPicker::ShowRowText);
  connect(ui_->lst, &List::ItemDoubleClick, this, &frmPicker::Select);
  connect(ui_->lst, &List::ItemEnter, this, &frmPicker::Select);
  connect(ui_->cmdSelect, &QPushButton::clicked, this, &frmPicker::Select);
  connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmPicker::Cancel);
  connect(ui_->cmdDelete, &QPushButton::clicked, this, &frmPicker::Delete);
}

frmPicker::~frmPicker() = default;

void frmPicker::SetShowDefaultBox(bool show, const QString& caption) {
  ui_->chkDefault->setVisible(show);
  if (!caption.isEmpty()) ui_->chkDefault->setText(caption);
}

bool frmPicker::DefaultChecked() const { return ui_->chkDefault->isChecked(); }

void frmPicker::Load() {
  if (doingComponents_) {
    setWindowTitle(u"Select "_s + ComponentTypeName(modelTypeId_) + u" model"_s);
    ui_->lst->Fill(PickerModelRows(modelTypeId_));
  } else {
    const std::optional<QString> title = PickerTitle(pickerType_);
    if (!title) MsgBox(u"need to set form caption for this type"_s);
    setWindowTitle(title.value_or(QString()));
    ui_->lst->Fill(PickerRows(pickerType_));
  }
  const bool leaves = pickerType_ == kPickCustomer || pickerType_ == kPickRigger;
  ui_->cmdCancel->setText(leaves ? u"E&xit"_s : u"&Cancel"_s);
  ui_->cmdDelete->setVisible(static_cast<bool>(OwnerOf(pickerType_).remove));
}

void frmPicker::SelectPresent(int id) {
  if (id > 0 && ui_->lst->SelectData(id)) ShowRowText(ui_->lst->ListIndex());
}

void frmPicker::FindTyped(const QString& typed) {
  int found = -1;
  for (int row = 0; row < ui_->lst->Count() && found < 0 && !typed.isEmpty(); ++row) {
    if (ui_->lst->ItemText(row).startsWith(typed, Qt::CaseInsensitive)) found = row;
  }
  ui_->lst->SetListIndex(found, QAbstractItemView::PositionAtTop);
}

void frmPicker::ShowRowText(int row) {
  const QSignalBlocker quiet(ui_->txt);
  ui_->txt->setText(ui_->lst->ItemText(row));
}

void frmPicker::Select() {
  const int row = ui_->lst->ListIndex();
  const QString typed = ui_->txt->text().trimmed();
  if (row >= 0) {
    const int id = ui_->lst->ItemData(row);
    if (pickerType_ == kPickCustomer && id > 0) {
      UpdateTableBySQL(u"update tblMisc set LastCustomerID = "_s + QString::number(id));
    }
    Return(id, ui_->lst->ItemText(row));
  } else if (!typed.isEmpty()) {
    SelectUnmatched(typed);
  }
}

void frmPicker::SelectUnmatched(const QString& text) {
  const QString noun = PickerNoun(pickerType_, modelTypeId_);
  switch (pickerType_) {
    case kPickMiscItem:
    case kPickLocation:
      OfferToAdd(text, noun + u" database"_s);
      break;
    case kPickTask:
      OfferToAdd(text, noun + u" library"_s);
      break;
    case kPickCustomer:
      SelectPersonByName(text);
      break;
    case kPickJob:
    case kPickInvoice:
      Return(kPickCancelled, QString());
      break;
    case kPickGearReport:
      MsgBox(u"There isn't a gear list named '"_s + text + u'\'', u"Sorry....."_s);
      break;
    case kPickRigger:
      MsgBox(Lines({u"There isn't a rigger named '"_s + text + u'\'', QString(),
                    u"You can designate a person as a rigger from the"_s, u"customers form"_s}),
             u"Can't add new rigger here"_s);
      break;
    case kPickComponentType:
      MsgBox(Lines({u"There isn't a component type called "_s + text, QString(),
                    u"To add a new component type, access the SETUP menu"_s}),
             u"No such component type"_s);
      break;
    default:
      MsgBox(u"Type = "_s + QString::number(pickerType_), u"didn't allow for this type"_s);
  }
}

void frmPicker::SelectPersonByName(const QString& text) {
  const int id = FindPersonByTypedName(text);
  if (id == 0) {
    OfferToAdd(text, PickerNoun(pickerType_, modelTypeId_) + u" database"_s);
    return;
  }
  ui_->lst->SelectData(id);
  Select();
}

void frmPicker::OfferToAdd(const QString& text, const QString& database) {
  const QString missing = u"Can't find '"_s + text + u"' anywhere in the "_s + database;
  const auto& add = OwnerOf(pickerType_).add;
  if (!add) {
    MsgBox(missing);
    return;
  }
  const QString noun = PickerNoun(pickerType_, modelTypeId_);
  if (!AskYes(Lines({missing, QString(), u"Would you like to add a new "_s + noun + u'?'}),
              u"Add new "_s + noun + u'?')) {
    return;
  }
  const int id = add(text, modelTypeId_ > 0 ? modelTypeId_ : pickerType_);
  if (id <= 0) return;
  Load();
  SelectPresent(id);
}

void frmPicker::Delete() {
  const int row = ui_->lst->ListIndex();
  const int id = ui_->lst->ItemData(row);
  if (row < 0 || id <= 0) return;
  const PickerOwner& owner = OwnerOf(pickerType_);
  if (pickerType_ == kPickTask && (id == RepackTaskLibID || id == InstallTaskLibID || id == RemoveTaskLibID)) {
    MsgBox(u"You cannot delete this task type.  You can only edit it."_s);
    return;
  }
  const QString question = pickerType_ == kPickGearReport ? u"Are you sure you want to delete this report?"_s
                                                          : u"Delete "_s + ui_->lst->ItemText(row) + u'?';
  if (!owner.removeAsks && !AskYes(question, kProgramTitle)) return;
  if (!owner.remove(id)) return;
  ui_->txt->clear();
  Load();
}

void frmPicker::Return(int id, const QString& text) {
  selectedId_ = id;
  selectedText_ = text;
  Leave();
}

void frmPicker::Cancel() {
  selectedId_ = 0;
  selectedText_.clear();
  Form::Cancel();
}

bool frmPicker::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const auto* pressed = static_cast<QKeyEvent*>(event);
    const int key = pressed->key();
    if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown) {
      // The arrows move through the list while the typing goes on in the box.
      QCoreApplication::sendEvent(ui_->lst, event);
      return true;
    }
  }
  return Form::eventFilter(watched, event);
}
