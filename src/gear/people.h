#pragma once
#include <QString>

#include <utility>

/// Customers, riggers and the owner of the program are rows of one table. What every screen and report shows of a
/// person is made here. An id without a row reads "(none)" or empty; nothing raises an error.

/// First name first; -1 reads "(select)". The organization stands in where a first or a last name is missing.
QString PersonDisplayName(int id);
/// Last name first: "Jones, Ann".
QString PersonSortName(int id);
QString PersonLastName(int id);
/// The first that is filled of the home, cell and work telephones.
QString PersonPhone(int id);
/// "City, State   Zip", empty without a city.
QString PersonCityLine(int id);
QString PersonEmail(int id);
bool PersonExists(int id);

/// The neighbour in the order of last name, first name and organization; the same id when there is none further. From
/// 0 the next person is the first.
int NextPerson(int id);
int PreviousPerson(int id);
/// The first person in the order of last and first name, 0 when there is nobody.
int FirstPerson();
/// The first and the last person by last name alone, 0 when there is nobody. On a tie they may not be the ends of the
/// walk.
std::pair<int, int> EndsByLastName();

int NumberOfRiggers();
/// False, told, when nobody is a rigger.
bool RiggersExist();
/// The rigger proposed for new jobs, 0 for none. One whose row has gone is read once more and cleared.
int DefaultRigger();
void SetDefaultRigger(int id);
/// The only rigger, who thereby becomes the default; 0 without riggers; the stored default among several.
int EffectiveRigger();
