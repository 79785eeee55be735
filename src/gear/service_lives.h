#pragma once
#include <QString>

/// A service life as a person enters it; it is stored in months, years exist on the screen alone.
struct ServiceLifeEntry {
  bool defined = false;
  int number = 0;
  bool inYears = false;
};

/// The stored life of a model: in years when the months divide by 12, else in months.
ServiceLifeEntry ServiceLifeOfModel(int model);
/// The months that a typed number stands for, a whole number; throws Failure("Overflow") for what can't be stored.
int ServiceLifeMonths(const QString& number, bool inYears);
void SaveServiceLife(int model, int months);
void ShowServiceLifeHelp();
