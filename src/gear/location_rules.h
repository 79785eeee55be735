#pragma once
#include <QString>

#include "core/lists.h"

/// What the locations screen does to its records, with its questions.

/// A location as its fields show it; the rate as the text of its box, of which the leading number counts.
struct LocationEntry {
  QString city = {};
  QString state = {};
  QString taxRate = {};
  bool isDefault = false;
};

/// All locations by city, the default one marked.
IdList LoadLocations();
/// False when the row has gone.
bool LoadLocation(int id, LocationEntry& entry);

/// "7.25": a rate as the screen shows it.
QString ShownTaxRate(double rate);

/// Keeps the rates of one state in step: a rate that differs from those of the other cities is asked about. It may be
/// written to all of them, stay as an exception, or give way to the rate in force. `id` is the location being edited, 0
/// for a new one.
void CheckTax(LocationEntry& entry, int id);

/// Checks and writes a new location (id 0) or an existing one, the state in capitals; a default takes the mark from all
/// others. Its id, or 0, told, without a city.
int SaveLocation(LocationEntry& entry, int id);

/// Deletes a location after a question that tells of its jobs, which stay. True when it is gone.
bool DeleteLocation(int id);
