#pragma once
#include <QList>
#include <QString>

#include "core/date.h"
#include "core/lists.h"

/// What the rig screens do to rigs, with their questions; and the rows that they show.

/// Rigs in the table's order: of an owner or (0) of everyone, and of a type or (0) of all types.
IdList LoadRigs(int owner, int type);
/// "(no rigs)", "(1 rig)", "(3 rigs)".
QString RigCountSuffix(int rigs);

/// Everyone as in lists of people, with the number of rigs behind each name where wanted.
IdList LoadCustomers(bool withRigCounts);
/// The person's first rig in the table's order, 0 if none.
int FirstRigOf(int owner);
/// Whether photos are left out, for speed.
bool PhotosAreHidden();
void SetPhotosHidden(bool hidden);

/// One row of the component grid: a component type of the rig's type, and what the rig has of it.
struct RigComponentRow {
  int type = 0;
  int component = 0;  ///< 0 on an empty row
  QString typeName;
  QString name;  ///< model and sub type
  QString serial;
  QString dom;  ///< "mm/dd/yyyy"
};
/// Notes the rig as the one shown last, tells of component types that it has more than once, and reads the rows.
QList<RigComponentRow> LoadRigComponents(int rig);

/// Asks for the name of the owner's new rig; empty when nothing was typed or the owner has one of that name.
QString AskNewRigName(int owner);
/// Asks for another name; an unchanged or blank one changes nothing. True when it was written.
bool RenameRig(int rig);
/// Asks, then gives the rig to another person; its components keep their owner. True when it was written.
bool ChangeRigOwner(int rig, int newOwner);
/// Asks, then gives a rig that belongs to nobody to a person.
bool AssignRig(int rig, int owner);
/// Asks, then changes the type alone. True when it was written.
bool ChangeRigType(int rig, int newType);

QString RigComment(int rig);
void SetRigComment(int rig, const QString& comment);

/// The other of the pair that a repack binds together, as it is in the rig: 0 when the component is neither container
/// nor reserve canopy or the rig lacks its partner.
int RepackPartnerInRig(int rig, int component);
/// Asks whether the repack found for a container and reserve shall appear on the schedule.
bool AskAddRepackToSchedule(Date repack);
/// What is told when a person wants to change the date of a row of service life.
void ShowExpirationHelp();
