#pragma once
#include "reports/canvas.h"
#include "reports/gear_table.h"

/// The left edge of what invoices and statements print, and the right edge of their rules.
constexpr double kLeftMargin = 0.05;
constexpr double kRightMargin = 0.95;

/// Headings and rows between rules.
void PaintGearTable(const QList<GearRow>& rows, Canvas& page);
/// The same under its caption.
void PaintRigTable(const RigTable& table, Canvas& page);
