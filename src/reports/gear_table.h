#pragma once
#include <QList>
#include <QString>

/// Pieces of gear as invoices and statements list them.

struct GearRow {
  QString type;
  QString model;
  QString serial;
  QString dom;
};

/// The words above the columns.
inline const GearRow kGearHeadings = {QStringLiteral(" Component"), QStringLiteral(" Model"), QStringLiteral(" S/N"),
                                      QStringLiteral(" DOM")};

GearRow GearRowOf(int componentID);
/// A row to each component type of the rig's type, empty but for the name where the rig lacks the component.
QList<GearRow> GearRowsOfRig(int rigID);

/// A rig under its caption.
struct RigTable {
  QString caption;
  QList<GearRow> rows;
};
RigTable LoadRigTable(int rigID);
