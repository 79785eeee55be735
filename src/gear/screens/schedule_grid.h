#pragma once
#include <QList>
#include <QStringList>

#include "schedule/rig_audit.h"

class Grid;

/// The grid of what falls due on a rig or a component.
namespace ScheduleGrid {
void SetUp(Grid& grid);
/// What the rows of a rig and of a component are read from.
QStringList ShowsTables();
/// Fills it, keeping the row that was selected.
void Fill(Grid& grid, const QList<RigAuditRow>& audit);
/// The library entry to update: that of the selected row, of the first row where none is selected. 0, after a box, when
/// there are no rows.
int EntryToUpdate(Grid& grid);
}  // namespace ScheduleGrid
