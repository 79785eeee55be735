#include "gear/screens/catalogue/frmLocation.h"

#include <QMenuBar>
#include <QScopedValueRollback>

#include "core/prompts.h"
#include "core/store/tables.h"
#include "gear/locations.h"
#include "gear/screens/catalogue/ui_frmLocation.h"

using namespace Qt::StringLiterals;

frmLocation::frmLocation() : ui_(std::make_unique<Ui::frmLocation>()) {
  ui_->setupUi(this);
  addNew_ = MenuBar()->addAction(u"&Add new"_s, this, &frmLocation::AddNew);
  MenuBar()->addAction(u"S&how default"_s, this, &frmLocation::ShowDefault);
  MenuBar()->addAction(u"&Delete"_s, this, &frmLocation::DeleteSelected);
  MenuBar()->addAction(u"Ex&it"_s, this, &frmLocation::Cancel);
  connect(ui_->lst, &List::ListChange, this, [this] { ShowFields(); });
  connect(ui_->lst, &List::ItemDoubleClick, this, &frmLocation::Accept);
  connect(ui_->lst, &List::ItemEnter, this, &frmLocation::Accept);
  connect(ui_->lst, &List::ItemDelete, this, &frmLocation::DeleteSelected);
  for (QLineEdit* box : {ui_->txtCity, ui_->txtState, ui_->txtTaxRate})
    connect(box, &QLineEdit::textEdited, this, &frmLocation::StartEditing);
  connect(ui_->txtState, &QLineEdit::editingFinished, this, &frmLocation::FillRateOfState);
  connect(ui_->chkDefault, &QCheckBox::clicked, this, &frmLocation::ToggleDefault);
  connect(ui_->cmdOK, &QPushButton::clicked, this, &frmLocation::Accept);
  connect(ui_->cmdExit, &QPushButton::clicked, this, &frmLocation::Cancel);
}

frmLocation::~frmLocation() = default;

void frmLocation::SetLocation(int id) {
  LoadList(id);
  ShowWhetherDefault();
}

QStringList frmLocation::ShowsTables() const { return {tblLocation::kTable}; }

void frmLocation::ReloadForm() {
  const QList<int> before = ui_->lst->Ids();
  const bool kept = ui_->lst->Refill(LoadLocations());
  if (mode_ == Mode::Editing && !kept) SetMode(Mode::NewLocation);
  if (mode_ == Mode::Browsing) {
    if (!kept) ui_->lst->SelectData(NeighbourOf(edited_, before, ui_->lst->Ids()));
    ShowFields();
  }
  ShowWhetherDefault();
}

void frmLocation::ShowWhetherDefault() { ui_->lblNoDefault->setVisible(DefaultLocation() == 0); }

int frmLocation::Location() const { return ui_->lst->ItemData(ui_->lst->ListIndex()); }

void frmLocation::SetMode(Mode mode) {
  mode_ = mode;
  ui_->cmdExit->setText(mode == Mode::Browsing ? u"E&xit"_s : u"&Cancel"_s);
  ui_->cmdOK->setText(mode == Mode::Browsing ? u"S&elect"_s : mode == Mode::NewLocation ? u"&Save"_s : u"&Update"_s);
  ui_->lst->setEnabled(mode == Mode::Browsing);
  addNew_->setEnabled(mode == Mode::Browsing);
}

void frmLocation::LoadList(int select) {
  const QScopedValueRollback loading(loading_, true);
  SetMode(Mode::Browsing);
  ui_->lst->Fill(LoadLocations());
  ui_->lst->SelectData(select);
  ShowFields();
}

void frmLocation::ShowFields() {
  LocationEntry entry;
  edited_ = Location();
  if (Location() != 0) LoadLocation(Location(), entry);
  ShowEntry(entry);
}

void frmLocation::ShowEntry(const LocationEntry& entry) {
  ui_->txtCity->setText(entry.city);
  ui_->txtState->setText(entry.state);
  ui_->txtTaxRate->setText(entry.taxRate);
  ui_->chkDefault->setChecked(entry.isDefault);
}

LocationEntry frmLocation::Entry() const {
  return {ui_->txtCity->text(), ui_->txtState->text(), ui_->txtTaxRate->text(), ui_->chkDefault->isChecked()};
}

void frmLocation::StartEditing() {
  if (mode_ == Mode::Browsing && !loading_) SetMode(Location() == 0 ? Mode::NewLocation : Mode::Editing);
}

/// A new city in a known state takes the state's rate.
void frmLocation::FillRateOfState() {
  if (mode_ == Mode::Browsing) return;
  ui_->txtState->setText(ui_->txtState->text().toUpper());
  if (const double rate = GetTaxRate(ui_->txtState->text().trimmed()); rate != 0)
    ui_->txtTaxRate->setText(ShownTaxRate(rate));
}

void frmLocation::AddNew() {
  ShowEntry({});
  SetMode(Mode::NewLocation);
  ui_->txtCity->setFocus();
}

void frmLocation::ShowDefault() {
  const int id = DefaultLocation();
  ui_->lblNoDefault->setVisible(id == 0);
  if (id == 0)
    MsgBox(u"Default location not specified"_s, u"No default location"_s);
  else
    LoadList(id);
}

void frmLocation::DeleteSelected() {
  if (Location() != 0) DeleteLocation(Location());
}

void frmLocation::ToggleDefault(bool isDefault) {
  const int id = Location();
  if (id == 0 || mode_ == Mode::NewLocation) return;
  ui_->lblNoDefault->setVisible(!isDefault);
  if (isDefault)
    SetDefault(id);
  else
    ClearDefault();
}

void frmLocation::Accept() {
  const int id = Location();
  if (mode_ == Mode::Browsing) {
    if (id == 0) {
      MsgBox(u"You must select a location"_s);
      return;
    }
    SetTag(u"select"_s);
    Leave();
    return;
  }
  LocationEntry entry = Entry();
  const int saved = SaveLocation(entry, mode_ == Mode::NewLocation ? 0 : id);
  if (saved == 0) {
    ui_->txtCity->setFocus();
    return;
  }
  LoadList(saved);
}

void frmLocation::Cancel() {
  if (mode_ == Mode::Browsing) {
    Form::Cancel();
    return;
  }
  SetMode(Mode::Browsing);
  ShowFields();
}
