#include "core/screens/frmPicker.h"

#include <QKeyEvent>

#include "core/prompts.h"
#include "core/screens/ui_frmPicker.h"

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

const PickerKind& frmPicker::Kind() const { return PickerKindOf(doingComponents_ ? int{kPickMiscItem} : pickerType_); }

QStringList frmPicker::ShowsTables() const { return Kind().tables; }

void frmPicker::Load() {
  const PickerKind& kind = Kind();
  if (!kind.title) MsgBox(u"need to set form caption for this type"_s);
  setWindowTitle(kind.title ? kind.title(ListedType()) : QString());
  if (!kind.rows) MsgBox(u"see DoingComponents (above)"_s, u"didn't allow for this type"_s);
  ui_->lst->Fill(LoadRows());
  ui_->cmdCancel->setText(kind.cancelIsExit ? u"E&xit"_s : u"&Cancel"_s);
  ui_->cmdDelete->setVisible(static_cast<bool>(kind.remove));
}

void frmPicker::ReloadForm() { ui_->lst->Refill(LoadRows()); }

int frmPicker::ListedType() const { return doingComponents_ ? modelTypeId_ : 0; }

IdList frmPicker::LoadRows() const { return Kind().rows ? Kind().rows(ListedType()) : IdList(); }

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
    if (Kind().chosen && id > 0) Kind().chosen(id);
    Return(id, ui_->lst->ItemText(row));
  } else if (!typed.isEmpty()) {
    SelectUnmatched(typed);
  }
}

void frmPicker::SelectUnmatched(const QString& text) {
  const PickerKind& kind = Kind();
  if (const int id = kind.find ? kind.find(text) : 0; id != 0) {
    ui_->lst->SelectData(id);
    Select();
  } else if (kind.offersToAdd) {
    OfferToAdd(text);
  } else if (kind.endsUnmatched) {
    Return(kPickCancelled, QString());
  } else if (kind.tellUnmatched) {
    kind.tellUnmatched(text);
  } else {
    MsgBox(u"Type = "_s + QString::number(pickerType_), u"didn't allow for this type"_s);
  }
}

void frmPicker::OfferToAdd(const QString& text) {
  const PickerKind& kind = Kind();
  const QString noun = kind.noun(modelTypeId_);
  const QString missing = u"Can't find '"_s + text + u"' anywhere in the "_s + noun + u' ' + kind.whole;
  if (!kind.add) {
    MsgBox(missing);
    return;
  }
  if (!AskYes(Lines({missing, QString(), u"Would you like to add a new "_s + noun + u'?'}),
              u"Add new "_s + noun + u'?'))
    return;
  const int id = kind.add(text, modelTypeId_);
  if (id <= 0) return;
  ReloadForm();
  SelectPresent(id);
}

void frmPicker::Delete() {
  const PickerKind& kind = Kind();
  const int row = ui_->lst->ListIndex();
  const int id = ui_->lst->ItemData(row);
  if (row < 0 || id <= 0 || (kind.mayRemove && !kind.mayRemove(id))) return;
  const QString question =
      kind.removeQuestion.isEmpty() ? u"Delete "_s + ui_->lst->ItemText(row) + u'?' : kind.removeQuestion;
  if (!kind.removeAsks && !AskYes(question, kProgramTitle)) return;
  if (!kind.remove(id)) return;
  ReloadForm();
  ui_->txt->clear();
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
