#pragma once
#include <QStringList>

class Grid;

/// The component grid that several screens show: a row to each component type of the rig's type.
namespace RigGrid {
void SetUp(Grid& grid);
/// What the rows are read from.
QStringList ShowsTables();
/// Reads the rig's components; rig 0 leaves headings alone.
void Fill(Grid& grid, int rig);
/// The same for the rig that is on show; the selected cell stays selected.
void Refill(Grid& grid, int rig);
int ComponentType(const Grid& grid, int row);
int Component(const Grid& grid, int row);  ///< 0 on an empty row
}  // namespace RigGrid
