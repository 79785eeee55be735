#pragma once
#include <QString>

/// One row of tblPeople, read and written whole.
struct Person {
  QString organization = {}, lastName = {}, firstName = {};
  QString phoneHome = {}, phoneCell = {}, phoneOther = {};
  QString email1 = {}, email2 = {};
  QString address1 = {}, address2 = {}, city = {}, state = {}, zip = {}, country = {};
  QString comment = {};
  bool rigger = false;
  friend bool operator==(const Person&, const Person&) = default;
};

/// False when the row has gone; `person` is then blank.
bool LoadPerson(int id, Person& person);
/// Adds a row; its id.
int InsertPerson(const Person& person);
/// Adds the person. With `isProgramOwner` tblMisc names them as the owner of the program. The new id; 0, told, for one
/// without any name.
int SaveNewOwner(const Person& person, bool isProgramOwner);
/// Writes all fields but the photo. A person left without any name is told and not written.
void UpdateOwner(int id, const Person& person);
void SetRiggerFlag(int id, bool rigger);

/// What the editor checks before it saves: a state of two letters goes to upper case, a name of some kind must be
/// there, the names get their capitals. For a new person a name that is taken already is asked about. False keeps the
/// editor open.
bool CheckPersonEntries(Person& person, bool isNew);

/// Deletes the row alone.
void DeletePersonRow(int id);
/// The owner of the program, 0 as long as there is none.
int ProgramOwner();
/// The person shown last.
int LastCustomerID();
void SetLastCustomerID(int id);
