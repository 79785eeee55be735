#include "core/shell/frmRecentChanges.h"

#include "core/format.h"
#include "core/shell/ui_frmRecentChanges.h"
#include "core/store/change_log.h"
#include "core/store/undo.h"
#include "core/widgets/undo_keys.h"

using namespace Qt::StringLiterals;

namespace {

QString StateOf(const RecordedOperation& operation) {
  if (operation.undone) return u"undone"_s;
  return operation.kept ? QString() : u"too large to undo"_s;
}

QString ButtonText(const QString& verb, const std::optional<RecordedOperation>& operation) {
  return operation ? u"&%1 \"%2\""_s.arg(verb, operation->name) : u'&' + verb;
}

}  // namespace

frmRecentChanges::frmRecentChanges() : ui_(std::make_unique<Ui::frmRecentChanges>()) {
  ui_->setupUi(this);
  ui_->grid->SetColumns({{.heading = u"When"_s, .width = 150},
                         {.heading = u"What"_s, .width = 220},
                         {.heading = u"Rows"_s, .width = 60, .alignment = Qt::AlignRight},
                         {.heading = u"State"_s, .width = 90}});
  ui_->grid->SetSortable(false);
  ui_->grid->SetStretchColumn(1);
  ui_->grid->SetMemory(u"recent-changes"_s);
  connect(ui_->cmdUndo, &QPushButton::clicked, this, [this] { UndoOnScreen(*this); });
  connect(ui_->cmdRedo, &QPushButton::clicked, this, [this] { RedoOnScreen(*this); });
  connect(ui_->cmdExit, &QPushButton::clicked, this, &frmRecentChanges::Cancel);
  ReloadForm();
}

frmRecentChanges::~frmRecentChanges() = default;

QStringList frmRecentChanges::ShowsTables() const { return {QString::fromLatin1(kUndoTable)}; }

void frmRecentChanges::ReloadForm() {
  const int selected = ui_->grid->RowData(ui_->grid->CurrentRow());
  std::vector<GridRow> rows;
  for (const RecordedOperation& operation : RecentOperations())
    rows.push_back({{Format(operation.at, u"mm/dd/yyyy h:nn AM/PM"_s), operation.name, QString::number(operation.rows),
                     StateOf(operation)},
                    operation.id});
  ui_->grid->Fill(std::move(rows));
  if (!ui_->grid->SelectData(selected)) ui_->grid->SelectRow(0);
  const auto undo = NextUndo();
  const auto redo = NextRedo();
  ui_->cmdUndo->setText(ButtonText(u"Undo"_s, undo));
  ui_->cmdRedo->setText(ButtonText(u"Redo"_s, redo));
  ui_->cmdUndo->setEnabled(undo.has_value());
  ui_->cmdRedo->setEnabled(redo.has_value());
}
