#pragma once
#include <QList>
#include <QStringList>

#include "reports/canvas.h"

/// Pieces of gear as a table, drawn and written as HTML in one pass.

/// The left edge of what invoices and statements print, and the right edge of their rules.
constexpr double kLeftMargin = 0.05;
constexpr double kRightMargin = 0.95;

struct GearRow {
  QString type;
  QString model;
  QString serial;
  QString dom;
};
GearRow GearRowOf(int componentID);
/// A row to each component type of the rig's type, empty but for the name where the rig lacks the component.
QList<GearRow> GearRowsOfRig(int rigID);

/// Heading and rows; the HTML goes behind `html`, a line to each line of the file.
void DoGearTable(Canvas& canvas, QStringList& html, const QList<GearRow>& rows);

/// A rig's caption and its table.
void DoHTMLRigTable(Canvas& canvas, QStringList& html, int rigID);
