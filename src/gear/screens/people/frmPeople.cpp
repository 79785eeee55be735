#include "gear/screens/people/frmPeople.h"

#include <QMenu>
#include <QMenuBar>
#include <QScopeGuard>
#include <QShowEvent>
#include <QTimer>

#include "core/clock.h"
#include "core/lists.h"
#include "core/picker.h"
#include "core/prompts.h"
#include "core/screens.h"
#include "core/store/tables.h"
#include "core/widgets/modal_use.h"
#include "gear/people.h"
#include "gear/person_due.h"
#include "gear/rigs.h"
#include "gear/screens.h"
#include "gear/screens/people/frmPeopleEdit.h"
#include "gear/screens/people/ui_frmPeople.h"
#include "jobs/person_deletion.h"
#include "jobs/screens.h"
#include "schedule/screens.h"

using namespace Qt::StringLiterals;

frmPeople::frmPeople() : ui_(std::make_unique<Ui::frmPeople>()) {
  ui_->setupUi(this);
  MakeMenu();
  connect(ui_->lstPeople, &List::ListChange, this, [this](int row) {
    if (!loading_ && row >= 0) Display(ui_->lstPeople->ItemData(row));
  });
  connect(ui_->cmdAddNew, &QPushButton::clicked, this, &frmPeople::AddNew);
  connect(ui_->cmdEdit, &QPushButton::clicked, this, &frmPeople::EditPerson);
  connect(ui_->cmdDelete, &QPushButton::clicked, this, &frmPeople::DeletePerson);
  connect(ui_->cmdRigs, &QPushButton::clicked, this, &frmPeople::OpenRigs);
  connect(ui_->cmdShowSchedule, &QPushButton::clicked, this, [this] { OpenSchedule({.customer = current_}); });
  connect(ui_->cmdNext, &QPushButton::clicked, this, [this] { Move(NextPerson(current_), true); });
  connect(ui_->cmdPrev, &QPushButton::clicked, this, [this] { Move(PreviousPerson(current_), false); });
  connect(ui_->cmdRefresh, &QPushButton::clicked, this, &frmPeople::Refresh);
  connect(ui_->cmdSearch, &QPushButton::clicked, this, &frmPeople::Search);
  connect(ui_->cmdExit, &QPushButton::clicked, this, &frmPeople::Cancel);
  connect(ui_->chkRigger, &QCheckBox::toggled, this, &frmPeople::WriteRigger);
  connect(ui_->chkHidePhoto, &QCheckBox::toggled, this, &frmPeople::ShowPhoto);
  LoadList();
  ShowPhoto();
  ShowState();
}

frmPeople::~frmPeople() = default;

QStringList frmPeople::ShowsTables() const { return {tblPeople::kTable, tblRig::kTable, tblSchedules::kTable}; }

void frmPeople::MakeMenu() {
  mnuMenu_ = MenuBar()->addMenu(u"Menu"_s);
  mnuMenu_->addAction(u"Add New Customer"_s, this, &frmPeople::AddNew)->setObjectName(u"mnuNewCustomer"_s);
  mnuEditCustomer_ = mnuMenu_->addAction(u"Edit this customer"_s, this, &frmPeople::EditPerson);
  mnuDeleteCustomer_ = mnuMenu_->addAction(u"Delete this customer"_s, this, &frmPeople::DeletePerson);
  mnuJobsDummy_ = MenuBar()->addMenu(u"Jobs"_s);
  mnuReviewJobs_ = mnuJobsDummy_->addAction(u"Review jobs"_s, this, [this] { OpenJobList({.customer = current_}); });
  mnuNewJob_ = mnuJobsDummy_->addAction(u"Start new job"_s, this, [this] { StartNewJob(current_, 0, 0, Today()); });
  mnuExit_ = MenuBar()->addAction(u"Exit"_s, this, &frmPeople::Cancel);
  mnuMenu_->setObjectName(u"mnuMenu"_s);
  mnuEditCustomer_->setObjectName(u"mnuEditCustomer"_s);
  mnuDeleteCustomer_->setObjectName(u"mnuDeleteCustomer"_s);
  mnuJobsDummy_->setObjectName(u"mnuJobsDummy"_s);
  mnuReviewJobs_->setObjectName(u"mnuReviewJobs"_s);
  mnuNewJob_->setObjectName(u"mnuNewJob"_s);
  mnuExit_->setObjectName(u"mnuExit"_s);
}

void frmPeople::showEvent(QShowEvent* event) {
  Form::showEvent(event);
  if (!event->spontaneous() && (start_ != 0 || current_ < 1)) Start(std::exchange(start_, 0));
}

void frmPeople::Start(int start) {
  // The editor and the picker open above this screen, so they wait until it is there.
  const auto later = [this](auto command) { QTimer::singleShot(0, this, command); };
  switch (start) {
    case kPeopleAddNew:
      SetLocked(true);
      later([this] {
        if (!AddNew()) Cancel();
      });
      break;
    case kPeoplePick:
      later([this] {
        Search();
        if (current_ < 1) Cancel();
      });
      break;
    case kPeopleNobody:
      SetLocked(true);
      break;
    default:
      if (const int person = start > 0 ? start : FirstPerson(); person > 0) {
        Display(person);
      } else {
        later([this] {
          AddNew();
          if (ownerSetup_) Cancel();
        });
      }
  }
}

int frmPeople::GoTo(int start) {
  if (start == kPeopleAddNew) {
    const int shown = current_;
    const int added = AddNew() ? current_ : 0;
    if (isModal() && shown > 0) Display(shown);
    return added;
  }
  if (!isModal() && start == kPeoplePick) Search();
  if (!isModal() && start > 0) Display(start);
  return qMax(current_, 0);
}

void frmPeople::LoadList() {
  const bool wasLoading = std::exchange(loading_, true);
  ui_->lstPeople->Refill(GetArrayOfPeopleExpanded());
  if (ui_->lstPeople->ItemData(ui_->lstPeople->ListIndex()) != current_) ui_->lstPeople->SelectData(current_);
  loading_ = wasLoading;
}

void frmPeople::ReloadForm() {
  const QList<int> before = ui_->lstPeople->Ids();
  LoadList();
  if (current_ < 1) return;
  const int shown = PersonExists(current_) ? current_ : NeighbourOf(current_, before, ui_->lstPeople->Ids());
  if (shown != 0) {
    Display(shown);
  } else {
    current_ = 0;
    Cancel();
  }
}

void frmPeople::Refresh() {
  LoadList();
  if (current_ > 0) Display(current_);
}

void frmPeople::Display(int id) {
  current_ = id;
  if (id <= -1) {
    ShowState();
    return;
  }
  Person person;
  if (!LoadPerson(id, person)) {
    if (FirstPerson() == 0) MsgBox(u"customer database is empty"_s, u"No Customers"_s);
    current_ = 0;
    ShowFields({});
    ShowState();
    return;
  }
  SetLastCustomerID(id);
  ShowFields(person);
  ShowState();
  ShowRigsAndDue(id);
  ShowEnds(id);
  if (ui_->lstPeople->FindData(id) < 0) LoadList();
  loading_ = true;
  ui_->lstPeople->SelectData(id);
  loading_ = false;
  ShowPhoto();
}

void frmPeople::ShowFields(const Person& person) {
  ui_->lblName->setText(current_ > 0 ? PersonDisplayName(current_) : QString());
  ui_->lblLastName->setText(person.lastName);
  ui_->lblFirstName->setText(person.firstName);
  ui_->lblOrgName->setText(person.organization);
  ui_->lblAddress1->setText(person.address1);
  ui_->lblAddress2->setText(person.address2);
  ui_->lblCity->setText(person.city);
  ui_->lblState->setText(person.state);
  ui_->lblZip->setText(person.zip);
  ui_->lblCountry->setText(person.country);
  ui_->lblPhoneHome->setText(person.phoneHome);
  ui_->lblPhoneCell->setText(person.phoneCell);
  ui_->lblPhoneOther->setText(person.phoneOther);
  ui_->lblEmail1->setText(person.email1);
  ui_->lblEmail2->setText(person.email2);
  ui_->lblComment->setText(person.comment.trimmed());
  loading_ = true;
  ui_->chkRigger->setChecked(person.rigger);
  loading_ = false;
}

void frmPeople::ShowRigsAndDue(int id) {
  ui_->lblRigs->setText(RigCountText(id));
  ui_->lblDue->setText(DueLine(id));
  const bool open = !locked_ && !ownerSetup_;
  ui_->cmdRigs->setEnabled(open && NumberOfRigs(id) > 0);
  ui_->cmdShowSchedule->setEnabled(open && DaysToSoonestDue(id).has_value());
}

void frmPeople::ShowEnds(int id) {
  if (locked_) return;
  const auto [first, last] = EndsByLastName();
  ui_->cmdPrev->setEnabled(id != first);
  ui_->cmdNext->setEnabled(id != last);
}

void frmPeople::ShowPhoto() {
  const bool shown = !ui_->chkHidePhoto->isChecked();
  ui_->lblNoPhoto->setVisible(shown);
  ui_->imageCust->hide();
  ui_->lblLeftClick->hide();
  ui_->lblRightClick->hide();
}

void frmPeople::ShowState() {
  const bool shown = current_ > 0;
  for (QPushButton* button : {ui_->cmdEdit, ui_->cmdDelete}) button->setEnabled(shown);
  mnuEditCustomer_->setEnabled(shown);
  mnuDeleteCustomer_->setEnabled(shown);
  mnuNewJob_->setEnabled(shown);
  mnuReviewJobs_->setEnabled(shown);
  ui_->chkRigger->setEnabled(shown);
  for (QPushButton* button : {ui_->cmdSearch, ui_->cmdAddNew, ui_->cmdExit}) button->setEnabled(!locked_);
  for (QPushButton* button : {ui_->cmdNext, ui_->cmdPrev, ui_->cmdRigs, ui_->cmdShowSchedule})
    button->setEnabled(!locked_ && shown);
  mnuMenu_->setEnabled(!locked_);
  mnuJobsDummy_->setEnabled(!locked_);
  mnuExit_->setEnabled(!locked_);
  if (!shown) {
    ui_->lblRigs->clear();
    ui_->lblDue->clear();
  }
}

void frmPeople::SetLocked(bool locked) {
  locked_ = locked;
  ShowState();
  if (!locked && current_ > 0) {
    ShowRigsAndDue(current_);
    ShowEnds(current_);
  }
}

void frmPeople::Move(int neighbour, bool forward) {
  QPushButton* button = forward ? ui_->cmdNext : ui_->cmdPrev;
  QPushButton* opposite = forward ? ui_->cmdPrev : ui_->cmdNext;
  if (neighbour == current_) {
    button->setEnabled(false);
    opposite->setEnabled(true);
    return;
  }
  Display(neighbour);
}

bool frmPeople::AddNew() {
  Person person;
  SetLocked(true);
  auto unlock = qScopeGuard([this] {
    locked_ = false;
    ShowState();
  });
  const bool saved = Edit(person, true);
  locked_ = false;
  const bool isOwner = saved && std::exchange(ownerPending_, false);
  const int added = saved ? SaveNewOwner(person, isOwner) : 0;
  if (isOwner) savedOwner_ = added;
  Display(added != 0 ? added : current_);
  unlock.dismiss();
  return added != 0;
}

bool frmPeople::Edit(Person& person, bool isNew) {
  const ModalUse<frmPeopleEdit> editor;
  if (!editor) return false;
  editor->SetPerson(person, isNew);
  editor->ShowModal();
  person = editor->Edited();
  return editor->Tag() == "save"_L1;
}

void frmPeople::EditPerson() {
  if (current_ < 1 || ui_->lstPeople->ListIndex() < 0) return;
  const int edited = current_;
  Person person;
  if (LoadPerson(edited, person) && Edit(person, false)) UpdateOwner(edited, person);
}

void frmPeople::DeletePerson() {
  if (current_ < 1 || ui_->lstPeople->ListIndex() < 0) return;
  int neighbour = 0;
  DeleteCustomer(current_, neighbour);
}

void frmPeople::Search() {
  const int picked = PickItem(kPickCustomer, 0, current_).id;
  if (picked == kPickAddNew || picked == kPickAddNewPerson) {
    AddNew();
  } else if (picked > 0) {
    Display(picked);
    ui_->cmdNext->setEnabled(true);
    ui_->cmdPrev->setEnabled(true);
  }
}

void frmPeople::OpenRigs() { ShowRigs({.customer = current_}); }

void frmPeople::WriteRigger(bool rigger) {
  if (!loading_ && current_ > 0) SetRiggerFlag(current_, rigger);
}
