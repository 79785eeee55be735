#include "jobs/screens/frmRepack.h"

#include "core/default_rows.h"
#include "core/format.h"
#include "core/lists.h"
#include "core/prompts.h"
#include "core/store/tables.h"
#include "core/trap.h"
#include "core/widgets/screen_routines.h"
#include "gear/rig_type_rules.h"
#include "gear/screens.h"
#include "jobs/repack_price.h"
#include "jobs/screens.h"
#include "jobs/screens/keep_shown.h"
#include "jobs/screens/ui_frmRepack.h"
#include "schedule/task_library.h"

using namespace Qt::StringLiterals;

namespace {

enum Column { kID, kName, kPrice };

constexpr int kMostRows = 11;

/// Rows whose price was `typed` keep it.
void FillPrices(Grid& grid, const QSet<int>& typed, const IdList& names, Money (*priceOf)(int id, int taskLibID)) {
  std::vector<GridRow> rows;
  for (qsizetype i = 0; i < names.Size(); ++i) {
    const int id = names.ids.at(i);
    const Money price = priceOf(id, RepackTaskLibID);
    const QString stored = price.IsZero() ? QString() : Format(price, u"######0.00"_s);
    rows.push_back({.cells = {QString::number(id), names.texts.at(i),
                              typed.contains(id) ? grid.Text(grid.FindRow(id), kPrice) : stored},
                    .data = id});
  }
  grid.Refill(std::move(rows));
  grid.FitHeight(kMostRows);
}

QList<std::pair<int, Money>> Prices(const Grid& grid) {
  QList<std::pair<int, Money>> prices;
  for (int row = 0; row < grid.RowCount(); ++row)
    prices.append({grid.RowData(row), Money::FromDouble(Val(grid.Text(row, kPrice)))});
  return prices;
}

}  // namespace

frmRepack::frmRepack() : ui_(std::make_unique<Ui::frmRepack>()) {
  ui_->setupUi(this);
  SetUpGrid(*ui_->Grid1, u"Rig Type"_s);
  SetUpGrid(*ui_->Grid2, u"Container Model"_s);
  connect(ui_->cmdEditRigTypes, &QPushButton::clicked, this, [this] {
    ShowRigTypes();
    LoadAnew();
  });
  connect(ui_->cmdEditContainers, &QPushButton::clicked, this, [this] {
    ShowModels({.type = kContainer});
    LoadAnew();
  });
  connect(ui_->cmdClearAllTypePrices, &QPushButton::clicked, this, [this] { ClearAll(true); });
  connect(ui_->cmdClearAllContainerPrices, &QPushButton::clicked, this, [this] { ClearAll(false); });
  connect(ui_->cmdHelp, &QPushButton::clicked, this, [] {
    MsgBox(Lines({u"If price by container model (Javelin, Vector, etc) is blank (or zero),"_s,
                  u"the price by rig type (sport, tandem, student, etc) will be used"_s,
                  u"If both are zero (model and rig type), then the default price is used"_s}),
           u"Repack Prices"_s);
  });
  connect(ui_->cmdSave, &QPushButton::clicked, this, &frmRepack::Save);
  connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmRepack::Cancel);
  ReloadForm();
}

frmRepack::~frmRepack() = default;

QStringList frmRepack::ShowsTables() const {
  return {tblRepackByModel::kTable, tblRepackByType::kTable, tblTaskLib::kTable, tblModels::kTable,
          tblRigTypes::kTable};
}

/// The name of a row can't be entered: its price takes the cursor, and what is typed goes into the cell.
void frmRepack::SetUpGrid(Grid& grid, const QString& heading) {
  grid.SetColumns({{.heading = u"ID"_s, .width = 0},
                   {.heading = heading, .width = FromTwips(3000)},
                   {.heading = u"Price"_s, .width = FromTwips(1000), .alignment = Qt::AlignRight}});
  grid.SetSortable(false);
  grid.SetStretchColumn(kName);
  grid.SetMemory(u"repack-prices-"_s + grid.objectName());
  connect(&grid, &Grid::CellChange, this, [&grid](int row) {
    if (row >= 0) grid.EditInCell(row, kPrice);
  });
  connect(&grid, &Grid::CellTyped, this, [this, &grid](int row, int column, const QString& text) {
    typed_[&grid].insert(grid.RowData(row));
    grid.SetText(row, column, text);
  });
  connect(&grid, &Grid::EditorKey, this, [this, &grid](int key, bool& handled) { HandleKey(grid, key, handled); });
}

void frmRepack::ReloadForm() {
  if (!ui_->txtIR->isModified()) ui_->txtIR->setText(Format(TaskLibFlatRate(RepackTaskLibID), u"#######0.00"_s));
  FillPrices(*ui_->Grid1, typed_[ui_->Grid1], LoadRigTypesById(), GetPriceByType);
  FillPrices(*ui_->Grid2, typed_[ui_->Grid2], LoadModelsOfType(kContainer), GetPriceByModel);
}

void frmRepack::LoadAnew() {
  typed_.clear();
  ui_->txtIR->setModified(false);
  ui_->Grid1->AbandonEditor();
  ui_->Grid2->AbandonEditor();
  ReloadForm();
}

void frmRepack::HandleKey(Grid& grid, int key, bool& handled) {
  if (key == Qt::Key_Escape) {
    handled = true;
    Cancel();
    return;
  }
  const bool down = key == Qt::Key_Down || key == Qt::Key_Return || key == Qt::Key_Enter;
  if (!down && key != Qt::Key_Up) return;
  handled = true;
  const int row = grid.CurrentRow() + (down ? 1 : -1);
  if (row >= 0 && row < grid.RowCount()) grid.EditInCell(row, kPrice);
}

void frmRepack::Save() {
  Trap(u"Sub cmdSave_Click"_s, [this] {
    const RepackPrices prices{.usual = Money::FromDouble(Val(ui_->txtIR->text())),
                              .byType = Prices(*ui_->Grid1),
                              .byModel = Prices(*ui_->Grid2)};
    if (!SaveRepackPrices(prices)) return;
    if (!setUp_) MsgBox(u"Saved"_s);
    Leave();
  });
}

void frmRepack::ClearAll(bool byType) {
  if (!AskYes(byType ? u"Clear all prices by rig type?"_s : u"Clear all prices by container model?"_s,
              u"Are you sure?"_s))
    return;
  Grid& grid = byType ? *ui_->Grid1 : *ui_->Grid2;
  grid.AbandonEditor();
  typed_.remove(&grid);
  for (int row = 0; row < grid.RowCount(); ++row) grid.SetText(row, kPrice, QString());
  byType ? ClearPricesByType() : ClearPricesByModel();
}

void ShowRepackPrices() {
  if (ComesForward<frmRepack>()) return;
  auto& form = SharedForm<frmRepack>();
  form.ShowModal();
  form.UnloadForm();
}
