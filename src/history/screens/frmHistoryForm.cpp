#include "history/screens/frmHistoryForm.h"

#include <QShowEvent>

#include "core/format.h"
#include "core/lists.h"
#include "core/prompts.h"
#include "core/store/tables.h"
#include "core/widgets/screen_routines.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/people.h"
#include "gear/rigs.h"
#include "gear/screens.h"
#include "history/history_texts.h"
#include "history/screens.h"
#include "history/screens/ui_frmHistoryForm.h"
#include "jobs/line_edits.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kDateColumn = 4;
constexpr int kHeight = FromTwips(10425);

std::vector<GridColumn> Columns() {
  return {{.heading = u"TaskID"_s, .width = 0},
          {.heading = u"Component"_s, .width = FromTwips(1500)},
          {.heading = u"Rig"_s, .width = 150, .alignment = Qt::AlignHCenter},
          {.heading = u"Task"_s, .width = FromTwips(3500)},
          {.heading = u"Date"_s, .width = 90, .alignment = Qt::AlignHCenter, .sort = GridSort::Number, .sortKey = 6},
          {.heading = u"JobID"_s, .width = 0},
          {.heading = u"DateKey"_s, .width = 0},
          {.heading = u"ComponentID"_s, .width = 0},
          {.heading = u"RigID"_s, .width = 0}};
}

QString DateText(Date date, const QString& pattern) { return date.IsNone() ? QString() : Format(date, pattern); }

GridRow RowOf(const HistoryLine& line, int number) {
  const auto text = [](int id) { return QString::number(id); };
  return {.cells = {text(line.taskID), line.component, line.rig, line.task, DateText(line.date, u"mm/dd/yy"_s),
                    text(line.jobID), DateText(line.date, u"yyyymmdd"_s), text(line.componentID), text(line.rigID)},
          .data = number};
}

void Open(const HistoryView& view) {
  if (auto* open = FormIfLoaded<frmHistoryForm>()) open->UnloadForm();
  auto& form = SharedForm<frmHistoryForm>();
  form.ReloadMe(view);
  form.Show();
}

}  // namespace

frmHistoryForm::frmHistoryForm() : ui_(std::make_unique<Ui::frmHistoryForm>()) {
  ui_->setupUi(this);
  BuildMenus();
  SetUpGrid();
  ui_->LstComp->SetTickable(true);
  connect(ui_->LstComp, &List::ItemTick, this, &frmHistoryForm::ReloadForm);
  for (QCheckBox* box : {ui_->chkHideOtherRigs, ui_->chkCurrentCompsOnly, ui_->chkHideDuplicates})
    connect(box, &QCheckBox::clicked, this, &frmHistoryForm::ReloadForm);
  connect(ui_->cmdExplainOtherRigs, &QToolButton::clicked, this, &ExplainOtherRigs);
  connect(ui_->cmdExplainCurrentComps, &QToolButton::clicked, this, &ExplainCurrentComponents);
  connect(ui_->cmdExplainDuplicates, &QToolButton::clicked, this, &ExplainDuplicates);
  connect(ui_->cmdCheckAll, &QPushButton::clicked, this, [this] { TickAll(true); });
  connect(ui_->cmdCheckNone, &QPushButton::clicked, this, [this] { TickAll(false); });
  connect(ui_->lblCustomer, &ClickLabel::Asked, this, &frmHistoryForm::CheckOwner);
  connect(ui_->cmdRefresh, &QPushButton::clicked, this, &frmHistoryForm::ReloadForm);
  connect(ui_->cmdExit, &QPushButton::clicked, this, &frmHistoryForm::Cancel);
}

frmHistoryForm::~frmHistoryForm() = default;

QStringList frmHistoryForm::ShowsTables() const {
  return {tblTasks::kTable,
          tblTaskComponents::kTable,
          tblJobs::kTable,
          tblComponents::kTable,
          tblModels::kTable,
          tblManufacturers::kTable,
          tblComponentTypes::kTable,
          tblRig::kTable,
          tblRigTypeComponents::kTable,
          tblPeople::kTable,
          tblTaskLib::kTable,
          tblLocation::kTable};
}

void frmHistoryForm::SetUpGrid() {
  ui_->grid->setObjectName(u"Grid"_s);
  ui_->grid->SetColumns(Columns());
  ui_->grid->SetMarksCell(true);
  ui_->grid->SetStretchColumn(1);
  ui_->grid->SetMemory(u"history"_s);
  ui_->grid->ForgetSort();  // lines stand as they were found until a heading is clicked
  connect(ui_->grid, &Grid::CellChange, this, &frmHistoryForm::ShowSelected);
  connect(ui_->grid, &Grid::CellDoubleClick, this, &frmHistoryForm::ShowLineComponent);
  connect(ui_->grid, &Grid::CellEnter, this, &frmHistoryForm::ShowLineComponent);
  connect(ui_->grid, &Grid::CellDelete, this, &frmHistoryForm::DeleteEvent);
  connect(ui_->grid, &Grid::HeadingClick, this, &frmHistoryForm::RememberDateOrder);
}

void frmHistoryForm::showEvent(QShowEvent* event) {
  Form::showEvent(event);
  if (!event->spontaneous()) resize(width(), kHeight);
}

void frmHistoryForm::ReloadMe(const HistoryView& view) {
  view_ = view;
  const bool byRig = view.mode == HistoryMode::Rig;
  setWindowTitle(byRig ? u"Rig History"_s : u"Component History"_s);
  showRig_->setText(byRig ? u"Show rig"_s : u"Show highlighted rig"_s);
  ui_->filters->setVisible(byRig);
  ui_->ticks->setVisible(view.mode != HistoryMode::Component);
  LoadComponentTypes();
  ReloadForm();
}

/// The one component that is viewed, or the component types of the rig.
IdList frmHistoryForm::ToTick() const {
  if (view_.mode != HistoryMode::Component) return LoadRigTypeComponents(RigType(view_.rigID));
  IdList viewed;
  viewed.Add(ComponentTypeName(view_.componentTypeID), view_.componentID);
  return viewed;
}

void frmHistoryForm::LoadComponentTypes() {
  ui_->LstComp->Fill(ToTick());
  if (view_.mode == HistoryMode::RigByType && ui_->LstComp->Count() > 1)
    ui_->LstComp->TickData({view_.componentTypeID});
  else
    ui_->LstComp->TickAll(true);
}

/// What belongs to the rig or the component that is viewed may have changed, and so may the types of the rig. Of one
/// that has gone the history goes on to be shown.
void frmHistoryForm::ReloadView() {
  const bool ofComponent = view_.mode == HistoryMode::Component;
  if (ofComponent ? !ComponentExists(view_.componentID) : !RigExists(view_.rigID)) return;
  view_ =
      ofComponent ? HistoryViewOfComponent(view_.componentID) : HistoryViewOfRig(view_.rigID, view_.componentTypeID);
  ui_->LstComp->Refill(ToTick());
}

void frmHistoryForm::TickAll(bool ticked) {
  ui_->LstComp->TickAll(ticked);
  ReloadForm();
}

QList<HistoryLine> frmHistoryForm::LoadHx() const {
  const bool hideDuplicates = ui_->chkHideDuplicates->isChecked();
  QList<int> items = ui_->LstComp->TickedData();
  if (view_.mode == HistoryMode::Rig)
    return LoadHx3(view_.rigID,
                   {items, ui_->chkHideOtherRigs->isChecked(), ui_->chkCurrentCompsOnly->isChecked(), hideDuplicates});
  if (view_.mode == HistoryMode::RigByType)
    for (int& item : items) item = ComponentOfTypeInRig(view_.rigID, item);
  return LoadHx2(items, hideDuplicates);
}

void frmHistoryForm::RememberDateOrder() {
  if (ui_->grid->SortColumn() == kDateColumn) dateOrder_ = ui_->grid->SortDirection();
}

void frmHistoryForm::ReloadForm() {
  const auto line = LineOf(ui_->grid->CurrentRow());
  const HistoryLine selected = line ? *line : HistoryLine();
  const int column = ui_->grid->CurrentColumn();
  RememberDateOrder();
  ReloadView();
  lines_ = LoadHx();
  std::vector<GridRow> rows;
  int again = 0;
  for (const HistoryLine& loaded : std::as_const(lines_)) {
    rows.push_back(RowOf(loaded, static_cast<int>(rows.size()) + 1));
    if (loaded.taskID == selected.taskID && loaded.componentID == selected.componentID)
      again = static_cast<int>(rows.size());
  }
  ui_->grid->ForgetSort();
  ui_->grid->Fill(std::move(rows));
  if (dateOrder_) ui_->grid->SortBy(kDateColumn, *dateOrder_);
  if (again != 0) ui_->grid->SelectCell(ui_->grid->FindRow(again), column);
  ShowSelected();
}

std::optional<HistoryLine> frmHistoryForm::LineOf(int row) const {
  const int number = ui_->grid->RowData(row);
  if (number < 1 || number > lines_.size()) return std::nullopt;
  return lines_[number - 1];
}

std::optional<HistoryLine> frmHistoryForm::Selected() const {
  auto line = LineOf(ui_->grid->CurrentRow());
  if (!line) MsgBox(u"You must select an event"_s, u"Nothing selected"_s);
  return line;
}

int frmHistoryForm::ChosenComponent() const {
  if (view_.mode == HistoryMode::Component) return view_.componentID;
  const auto line = LineOf(ui_->grid->CurrentRow());
  return line ? line->componentID : 0;
}

void frmHistoryForm::ShowSelected() {
  const auto line = LineOf(ui_->grid->CurrentRow());
  ui_->lblCustomer->setText(PersonDisplayName(view_.personID));
  ui_->lblRig->setText(HistoryRigText(view_.rigID));
  ui_->lblRigOwner->clear();
  DoComponentInfo(line ? line->componentID : 0);
  CheckComments(line ? line->taskID : 0);
}

void frmHistoryForm::DoComponentInfo(int component) {
  const HistoryComponent info = HistoryComponentOf(component);
  ui_->lblName->setText(info.name);
  ui_->lblSN->setText(info.serial);
  ui_->lblMfg->setText(info.maker);
  ui_->lblDoM->setText(info.dom);
}

void frmHistoryForm::CheckComments(int task) {
  ui_->lblComments->setVisible(task != 0 && !LineComments(task).trimmed().isEmpty());
}

void frmHistoryForm::CheckOwner() {
  const int component = ChosenComponent();
  if (component == 0) return;
  const HistoryOwners owners = HistoryOwnersOf(component);
  ui_->lblCustomer->setText(owners.owner);
  ui_->lblRig->setText(owners.rig);
  ui_->lblRigOwner->setText(owners.rigOwner);
}

void OpenRigHistory(int rig, int componentType) { Open(HistoryViewOfRig(rig, componentType)); }

void OpenComponentHistory(int component) { Open(HistoryViewOfComponent(component)); }
