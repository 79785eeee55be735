#include "gear/screens/people/frmPeopleEdit.h"

#include "core/widgets/screen_routines.h"
#include "gear/screens/people/ui_frmPeopleEdit.h"

using namespace Qt::StringLiterals;

namespace {

struct Box {
  QLineEdit* Ui::frmPeopleEdit::*box;
  QString Person::*text;
};
constexpr Box kBoxes[] = {
    {&Ui::frmPeopleEdit::txtLast, &Person::lastName},       {&Ui::frmPeopleEdit::txtFirst, &Person::firstName},
    {&Ui::frmPeopleEdit::txtOrg, &Person::organization},    {&Ui::frmPeopleEdit::txtAddress1, &Person::address1},
    {&Ui::frmPeopleEdit::txtAddress2, &Person::address2},   {&Ui::frmPeopleEdit::txtCity, &Person::city},
    {&Ui::frmPeopleEdit::txtState, &Person::state},         {&Ui::frmPeopleEdit::txtZip, &Person::zip},
    {&Ui::frmPeopleEdit::txtCountry, &Person::country},     {&Ui::frmPeopleEdit::txtPhoneHome, &Person::phoneHome},
    {&Ui::frmPeopleEdit::txtPhoneCell, &Person::phoneCell}, {&Ui::frmPeopleEdit::txtPhoneOther, &Person::phoneOther},
    {&Ui::frmPeopleEdit::txtEmail1, &Person::email1},       {&Ui::frmPeopleEdit::txtEmail2, &Person::email2}};

}  // namespace

frmPeopleEdit::frmPeopleEdit() : ui_(std::make_unique<Ui::frmPeopleEdit>()) {
  ui_->setupUi(this);
  connect(ui_->cmdSave, &QPushButton::clicked, this, &frmPeopleEdit::Save);
  connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmPeopleEdit::Cancel);
}

frmPeopleEdit::~frmPeopleEdit() = default;

void frmPeopleEdit::SetPerson(const Person& person, bool isNew) {
  person_ = person;
  isNew_ = isNew;
  setWindowTitle(isNew ? u"Add new customer"_s : u"Edit customer"_s);
  for (const Box& box : kBoxes) (ui_.get()->*box.box)->setText(person.*box.text);
  ui_->txtComment->setPlainText(person.comment.trimmed().isEmpty() ? QString() : person.comment);
  ui_->chkRigger->setChecked(person.rigger);
  SelectAllInBox(ui_->txtLast);
}

void frmPeopleEdit::Save() {
  for (const Box& box : kBoxes) person_.*box.text = (ui_.get()->*box.box)->text();
  person_.comment = ui_->txtComment->toPlainText();
  person_.rigger = ui_->chkRigger->isChecked();
  if (!CheckPersonEntries(person_, isNew_)) {
    ui_->txtState->setText(person_.state);
    SelectAllInBox(ui_->txtLast);
    return;
  }
  SetTag(u"save"_s);
  Leave();
}
