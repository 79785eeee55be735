#include "gear/screens/rigs/rig_browser.h"

#include "core/store/tables.h"
#include "core/widgets/screen_routines.h"
#include "gear/people.h"
#include "gear/person_record.h"
#include "gear/rig_rules.h"
#include "gear/rig_types.h"
#include "gear/rigs.h"
#include "gear/screens/rigs/rig_grid.h"
#include "gear/screens/rigs/ui_rig_browser.h"

using namespace Qt::StringLiterals;

namespace {

/// Keeps the lists quiet while they are filled.
class Loading {
 public:
  explicit Loading(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
  ~Loading() { flag_ = before_; }
  Loading(const Loading&) = delete;
  Loading& operator=(const Loading&) = delete;

 private:
  bool& flag_;
  bool before_;
};

void FillList(List& list, const IdList& rows, int selected) {
  list.Refill(rows);
  if (selected == 0)
    list.SetListIndex(-1);
  else if (list.ItemData(list.ListIndex()) != selected)
    list.SelectData(selected);
}

}  // namespace

RigBrowser::RigBrowser(QWidget* parent) : QWidget(parent), ui_(std::make_unique<Ui::RigBrowser>()) {
  ui_->setupUi(this);
  RigGrid::SetUp(*ui_->grid);
  ui_->optAll->setChecked(true);
  ui_->lblComments->hide();
  ShowPhotosSetting();
  connect(ui_->lstCustomers, &List::ListChange, this, [this](int row) {
    if (!loading_ && row >= 0) ChooseCustomer(ui_->lstCustomers->ItemData(row));
  });
  connect(ui_->lstGear, &List::ListChange, this, [this](int row) {
    if (!loading_ && row >= 0) ChooseRig(ui_->lstGear->ItemData(row));
  });
  connect(ui_->lstGear, &List::ItemDelete, this, &RigBrowser::RigDeleteWanted);
  connect(ui_->lstGear, &List::ItemDoubleClick, this, &RigBrowser::RigWanted);
  connect(ui_->lstGear, &List::ItemEnter, this, &RigBrowser::RigWanted);
  connect(ui_->cmdSearch, &QPushButton::clicked, this, &RigBrowser::SearchWanted);
  connect(ui_->lblComments, &QToolButton::clicked, this, &RigBrowser::CommentsWanted);
  connect(ui_->chkShowSystems, &QCheckBox::toggled, this, &RigBrowser::LoadCustomerList);
  connect(ui_->optSelected, &QRadioButton::toggled, this, [this] {
    if (!loading_) ReloadLists();
  });
  connect(ui_->chkHidePhotos, &QCheckBox::toggled, this, [this](bool hidden) {
    if (!loading_) SetPhotosHidden(hidden);
    ShowPhotos();
  });
  for (QLabel* photo : {ui_->imageRig, ui_->lblRigPhoto, ui_->imageCanopy, ui_->lblCanopyPhoto})
    photo->installEventFilter(this);
  connect(ui_->grid, &Grid::CellDoubleClick, this, &RigBrowser::ComponentWanted);
  connect(ui_->grid, &Grid::CellEnter, this, &RigBrowser::ComponentWanted);
  connect(ui_->grid, &Grid::CellF2, this, &RigBrowser::QuickEditWanted);
  connect(ui_->grid, &Grid::CellDelete, this, &RigBrowser::ComponentRemoveWanted);
  connect(ui_->grid, &Grid::CellChange, this, &RigBrowser::ComponentRowChange);
}

RigBrowser::~RigBrowser() = default;

QStringList RigBrowser::ShowsTables() {
  return RigGrid::ShowsTables() + QStringList{tblPeople::kTable, tblMisc::kTable};
}

bool RigBrowser::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease) Q_EMIT PhotoClick();
  return QWidget::eventFilter(watched, event);
}

void RigBrowser::AddBelowGrid(QWidget* panel, QWidget* last) {
  ui_->below->addWidget(panel);
  setTabOrder(last, ui_->chkHidePhotos);
}

void RigBrowser::SetFixed(bool fixed) {
  ui_->fraDisplay->setEnabled(!fixed);
  ui_->cmdSearch->setEnabled(!fixed);
}

void RigBrowser::Begin(int customer, int rig, int rigType) {
  {
    const Loading loading(loading_);
    if (!RigExists(rig)) rig = 0;
    rigType_ = rigType;
    customer_ = customer != 0 ? customer : RigOwner(rig);
    if (!PersonExists(customer_)) customer_ = 0;
    rig_ = 0;
    (customer_ != 0 && rigType == 0 ? ui_->optSelected : ui_->optAll)->setChecked(true);
    LoadCustomerList();
    LoadRigList();
  }
  if (rig == 0 && customer_ != 0) rig = FirstListedRigOf(customer_);
  ChooseRig(rig);
}

bool RigBrowser::ShowsSelectedOnly() const { return ui_->optSelected->isChecked(); }
int RigBrowser::SelectedRow() const { return ui_->grid->CurrentRow(); }
int RigBrowser::ComponentType() const { return RigGrid::ComponentType(*ui_->grid, SelectedRow()); }
int RigBrowser::Component() const { return RigGrid::Component(*ui_->grid, SelectedRow()); }
int RigBrowser::ComponentRows() const { return ui_->grid->RowCount(); }
void RigBrowser::SelectComponentRow(int row) { ui_->grid->SelectCell(row, 1); }
void RigBrowser::SetRigTypeFilter(int rigType) {
  rigType_ = rigType;
  ReloadLists();
}

void RigBrowser::LoadCustomerList() {
  const Loading loading(loading_);
  FillList(*ui_->lstCustomers, LoadCustomers(ui_->chkShowSystems->isChecked()), customer_);
}

void RigBrowser::LoadRigList() {
  const Loading loading(loading_);
  const int owner = ShowsSelectedOnly() ? customer_ : 0;
  IdList rigs = LoadRigs(owner, rigType_);
  if (rigs.Size() == 0 && owner != 0) rigs.Add(u"   (no rigs for this customer)"_s, 0);
  FillList(*ui_->lstGear, rigs, rig_);
  const QString type = RigTypeName(rigType_);
  ui_->lblDisplayRigType->setText(rigType_ == 0 ? u"Displaying all rig types"_s : type + u" only"_s);
  ui_->lblSystems->setText(rigType_ == 0 ? u"Rigs (all types)"_s : u"Rigs ("_s + WithoutMnemonic(type) + u')');
}

int RigBrowser::FirstListedRigOf(int owner) const { return LoadRigs(owner, rigType_).ids.value(0); }

int RigBrowser::RigToGoOnWith() const { return ShowsSelectedOnly() && customer_ != 0 ? ui_->lstGear->ItemData(0) : 0; }

void RigBrowser::ReloadLists() {
  LoadCustomerList();
  LoadRigList();
  if (rig_ != 0 && ui_->lstGear->FindData(rig_) >= 0)
    ShowNotices();
  else
    ChooseRig(RigToGoOnWith());
}

/// A rig stays on show beside a list that lacks it, unless that is the list of another customer's rigs.
bool RigBrowser::MayStayOnRig() const {
  return RigExists(rig_) && (!ShowsSelectedOnly() || customer_ == 0 || RigOwner(rig_) == customer_);
}

void RigBrowser::Reload() {
  if (!PersonExists(customer_)) customer_ = 0;
  if (rigType_ != 0 && !RigTypeExists(rigType_)) rigType_ = 0;
  ShowPhotosSetting();
  LoadCustomerList();
  LoadRigList();
  MarkCustomer(customer_);
  ChooseRig(rig_ == 0 || MayStayOnRig() ? rig_ : RigToGoOnWith());
}

void RigBrowser::SelectCustomer(int id) {
  if (PersonExists(id)) ChooseCustomer(id);
}

void RigBrowser::ShowCustomer(int id) {
  MarkCustomer(PersonExists(id) ? id : 0);
  LoadRigList();
  ChooseRig(customer_ == 0 ? 0 : FirstListedRigOf(customer_));
}

void RigBrowser::ShowRig(int id) {
  MarkCustomer(PersonExists(RigOwner(id)) ? RigOwner(id) : 0);
  LoadRigList();
  ChooseRig(id);
}

void RigBrowser::MarkCustomer(int id) {
  const Loading loading(loading_);
  customer_ = id;
  if (id == 0 || !ui_->lstCustomers->SelectData(id)) ui_->lstCustomers->SetListIndex(-1);
  Q_EMIT CustomerShown(id);
}

bool RigBrowser::IsUnassigned() const { return rig_ != 0 && !PersonExists(RigOwner(rig_)); }

void RigBrowser::ChooseCustomer(int id) {
  SetLastCustomerID(id);
  const bool assigned = IsUnassigned() && ui_->fraDisplay->isEnabled() && AssignRig(rig_, id);
  const int rig = assigned ? rig_ : FirstListedRigOf(id);
  MarkCustomer(id);
  LoadRigList();
  if (rig_ == 0 || RigOwner(rig_) != id || assigned)
    ChooseRig(ui_->lstGear->FindData(rig) >= 0 ? rig : RigToGoOnWith());
}

void RigBrowser::ChooseRig(int id) {
  {
    const Loading loading(loading_);
    rig_ = id;
    if (id == 0 || !ui_->lstGear->SelectData(id)) ui_->lstGear->SetListIndex(-1);
    if (id != 0 && !ShowsSelectedOnly()) {
      const int owner = RigOwner(id);
      MarkCustomer(PersonExists(owner) ? owner : 0);
    }
  }
  ReloadRig();
}

void RigBrowser::ReloadRig() {
  const int place = gridRig_ == rig_ ? ComponentType() : 0;
  const int column = ui_->grid->CurrentColumn();
  gridRig_ = rig_;
  {
    const Loading loading(loading_);
    RigGrid::Fill(*ui_->grid, rig_);
    if (place != 0) ui_->grid->SelectCell(ui_->grid->FindRow(place), column);
  }
  ui_->lblRigType->setText(rig_ == 0 ? QString() : u"Rig Type: "_s + RigTypeName(RigType(rig_)));
  ShowNotices();
  ShowPhotos();
  Q_EMIT RigShown(rig_);
}

void RigBrowser::ShowNotices() {
  ui_->lblNotAssigned->setVisible(IsUnassigned());
  ui_->lblNoSystems->setVisible(customer_ != 0 && rig_ == 0 && FirstRigOf(customer_) == 0);
  ui_->lblComments->setVisible(rig_ != 0 && !RigComment(rig_).trimmed().isEmpty());
}

void RigBrowser::ShowPhotosSetting() {
  const Loading loading(loading_);
  ui_->chkHidePhotos->setChecked(PhotosAreHidden());
}

void RigBrowser::ShowPhotos() {
  ui_->imageRig->hide();
  ui_->imageCanopy->hide();
  ui_->lblRigPhoto->setVisible(!ui_->chkHidePhotos->isChecked());
  ui_->lblCanopyPhoto->setVisible(!ui_->chkHidePhotos->isChecked());
}
