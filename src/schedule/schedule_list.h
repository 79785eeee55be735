#pragma once
#include <QList>
#include <QString>

#include "core/date.h"

/// Everything that falls due, as the schedule screen lists it: the rows of tblSchedules by their due date, and behind
/// them the ends of service lives.

/// Stands for the ids that a row of service life, which is in no table, does not have.
constexpr int kServiceLifeRow = -888;

/// Whose rows are listed, and of which work.
struct ScheduleFilter {
  enum class Whose { AllCustomers, Customer, Rig };
  Whose whose = Whose::AllCustomers;
  int customer = 0;
  int rig = 0;
  int taskLibID = 0;  ///< this entry of the library alone, and no service lives; 0 for all
};

struct ScheduleEntry {
  int id = 0;  ///< of tblSchedules, or kServiceLifeRow
  QString customer = {};
  QString gear = {};  ///< the rig and what of it was worked on, or a component
  QString task = {};
  QString dateDone = {};
  Date done = {};
  Date due = {};
  QString timeLeft = {};
  int taskLibID = 0;
  int rigID = 0;
  int taskID = 0;
  int ownerID = 0;
  int componentID = 0;
};

/// The rows that pass the filter. Rows that belong to neither a rig nor a component are offered for deletion first.
QList<ScheduleEntry> LoadSchedule(const ScheduleFilter& filter);

/// A component as a row names it that has no rig: its description with the rig that it is part of now, or " (not part
/// of a rig)".
QString LoadComponent(int componentID);

/// Asks, with the name of the rig, then deletes a row of the schedule. The next completion of that work writes it anew.
/// True when it was deleted; rows of service life never are.
bool DeleteScheduleEntry(int id, const QString& rigName);
