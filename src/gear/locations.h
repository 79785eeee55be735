#pragma once
#include <QString>

/// Places where the shop does business, each with the sales tax rate that a job there pays.

/// The rate in percent of a state given in upper case; with several rows the last one read wins. 0 when unknown.
double GetTaxRate(const QString& state);
bool LocationsExist();
/// The only location, or the first one marked as default; 0 for none.
int DefaultLocation();
/// Marks this location as the default and no other.
void SetDefault(int id);
void ClearDefault();
/// "City, State", or the city alone where the state is blank.
QString LocationText(int id);
int NumberOfJobsAtLocation(int id);
