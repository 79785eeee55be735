#include "invariants/shown.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>

#include "core/widgets/form.h"
#include "core/widgets/grid.h"
#include "core/widgets/list.h"
#include "invariants/exceptions.h"
#include "jobs/screens/frmJob.h"

using namespace Qt::StringLiterals;

namespace {

using Things = std::vector<ShownThing>;

QString RowText(const Grid& grid, int row) {
  QStringList cells;
  for (int column = 0; column < grid.ColumnCount(); ++column) {
    QString cell = grid.Text(row, column);
    if (const QColor back = grid.CellColour(row, column); back.isValid()) cell += u" on "_s + back.name();
    cells << cell;
  }
  return u"row %1: %2"_s.arg(grid.RowData(row)).arg(cells.join(u'|'));
}

void AddGrid(const Grid& grid, Things& things) {
  QStringList headings;
  for (int column = 0; column < grid.ColumnCount(); ++column)
    headings << (grid.isColumnHidden(column) ? u"-"_s : grid.model()->headerData(column, Qt::Horizontal).toString());
  const QString name = grid.objectName();
  things.push_back({name, u"headings "_s + headings.join(u'|')});
  QStringList rows;
  for (int row = 0; row < grid.RowCount(); ++row) rows << RowText(grid, row);
  // Rows that are equal in what they are sorted by stand as the clicks of a person have left them.
  if (grid.SortColumn() >= 0) rows.sort();
  for (const QString& row : std::as_const(rows)) things.push_back({name, row});
  const int row = grid.CurrentRow();
  things.push_back({name, row < 0 ? u"nothing selected"_s
                                  : u"selected column %1 of %2"_s.arg(grid.CurrentColumn()).arg(RowText(grid, row))});
}

void AddList(const List& list, Things& things) {
  const QString name = list.objectName();
  for (int row = 0; row < list.Count(); ++row)
    things.push_back({name, u"row %1: %2%3"_s.arg(list.ItemData(row))
                                .arg(list.IsTicked(row) ? u"[x] "_s : QString(), list.ItemText(row))});
  const int row = list.ListIndex();
  things.push_back({name, row < 0 ? u"nothing selected"_s : u"selected %1"_s.arg(list.ItemData(row))});
}

void AddCombo(const QComboBox& box, Things& things) {
  QStringList items;
  for (int i = 0; i < box.count(); ++i) items << u"%1 %2"_s.arg(box.itemData(i).toInt()).arg(box.itemText(i));
  things.push_back({box.objectName(), u"offers "_s + items.join(u'|') + u" reads "_s + box.currentText()});
}

void AddContent(const QWidget& widget, Things& things) {
  const QString name = widget.objectName();
  if (const auto* grid = qobject_cast<const Grid*>(&widget)) {
    AddGrid(*grid, things);
  } else if (const auto* list = qobject_cast<const List*>(&widget)) {
    AddList(*list, things);
  } else if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
    AddCombo(*combo, things);
  } else if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    things.push_back({name, u"reads "_s + label->text()});
  } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
    things.push_back({name, u"reads "_s + button->text() + (button->isChecked() ? u" (checked)"_s : QString())});
  } else if (const auto* box = qobject_cast<const QLineEdit*>(&widget)) {
    things.push_back({name, u"reads "_s + box->text()});
  } else if (const auto* text = qobject_cast<const QPlainTextEdit*>(&widget)) {
    things.push_back({name, u"reads "_s + text->toPlainText()});
  }
}

void AddMenu(const QList<QAction*>& actions, const QString& road, Things& things) {
  for (const QAction* action : actions) {
    const QString caption = road + u" > "_s + action->text().remove(u'&');
    things.push_back({caption, action->isEnabled() ? u"enabled"_s : u"disabled"_s});
    if (action->menu() != nullptr) AddMenu(action->menu()->actions(), caption, things);
  }
}

/// The controls of the screen itself: not the parts that a view or a menu is made of.
bool IsOwnControl(const QWidget& widget) {
  return !widget.objectName().isEmpty() && !widget.objectName().startsWith(u"qt_"_s) && !widget.isWindow();
}

/// What a row stands for; some grids number their rows and keep the ids in hidden columns.
QString Identity(const Grid& grid, int row) {
  QStringList ids;
  for (int column = 0; column < grid.ColumnCount(); ++column) {
    const QString heading = grid.model()->headerData(column, Qt::Horizontal).toString();
    if (grid.isColumnHidden(column) && (heading == "TaskID"_L1 || heading == "ComponentID"_L1))
      ids << grid.Text(row, column);
  }
  return ids.isEmpty() ? QString::number(grid.RowData(row)) : grid.Text(row, 0) + u'/' + ids.join(u'/');
}

/// Is the text in a box one that a person is typing, rather than one that the screen shows?
bool IsTyped(const QLineEdit& box) { return box.isModified() && box.isEnabled() && !box.isReadOnly(); }

}  // namespace

std::vector<ShownThing> WhatShows(const Form& form) {
  Things things{{u"caption"_s, form.windowTitle()}};
  for (const QWidget* widget : form.findChildren<QWidget*>()) {
    if (!IsOwnControl(*widget) || !Compared(form.FormName(), widget->objectName())) continue;
    const bool shown = widget->isVisibleTo(&form);
    things.push_back({widget->objectName(), shown ? u"shown"_s : u"hidden"_s});
    if (!shown) continue;
    things.push_back({widget->objectName(), widget->isEnabledTo(&form) ? u"enabled"_s : u"disabled"_s});
    AddContent(*widget, things);
  }
  if (const auto* bar = form.findChild<QMenuBar*>(QString(), Qt::FindDirectChildrenOnly))
    AddMenu(bar->actions(), u"menu"_s, things);
  std::erase_if(things, [&](const ShownThing& thing) { return !Compared(form.FormName(), thing); });
  return things;
}

QString Difference(const Things& open, const Things& fresh) {
  if (open == fresh) return {};
  QStringList texts;
  const auto add = [&](const char* whose, const Things& from, const Things& other) {
    int told = 0;
    for (const ShownThing& thing : from)
      if (std::find(other.begin(), other.end(), thing) == other.end() && told++ < 6)
        texts << u"  %1: %2: %3"_s.arg(QLatin1StringView(whose), thing.control, thing.text);
  };
  add("open ", open, fresh);
  add("fresh", fresh, open);
  if (texts.isEmpty()) texts << u"  the same rows in another order"_s;
  return texts.join(u'\n');
}

std::vector<Held> SelectedRows(const Form& form) {
  std::vector<Held> held;
  for (const List* list : form.findChildren<List*>())
    if (const int id = list->ItemData(list->ListIndex()); id > 0)
      held.push_back({list->objectName(), QString::number(id), {}});
  for (const Grid* grid : form.findChildren<Grid*>())
    if (const int row = grid->CurrentRow(); grid->RowData(row) > 0)
      held.push_back({grid->objectName(), Identity(*grid, row), {}});
  return held;
}

std::vector<Held> TypedTexts(const Form& form) {
  std::vector<Held> held;
  for (const Grid* grid : form.findChildren<Grid*>())
    if (grid->EditorIsChanged())
      held.push_back({grid->objectName(), Identity(*grid, grid->CurrentRow()), grid->Editor()->text()});
  for (const QLineEdit* box : form.findChildren<QLineEdit*>())
    if (IsOwnControl(*box) && box->isVisible() && IsTyped(*box)) held.push_back({box->objectName(), {}, box->text()});
  return held;
}

int JobOf(const Form& form) {
  const auto* job = dynamic_cast<const frmJob*>(&form);
  return job == nullptr ? 0 : job->JobID();
}

bool HasRow(const Form& form, const Held& held) {
  if (const auto* list = form.findChild<List*>(held.control)) return list->FindData(held.row.toInt()) >= 0;
  const auto* grid = form.findChild<Grid*>(held.control);
  if (grid == nullptr) return true;
  for (int row = 0; row < grid->RowCount(); ++row)
    if (Identity(*grid, row) == held.row) return true;
  return false;
}
