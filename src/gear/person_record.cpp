#include "gear/person_record.h"

#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/store/rows.h"
#include "core/text.h"
#include "gear/person_names.h"

using namespace Qt::StringLiterals;

namespace {

struct TextField {
  Column column;
  QString Person::*text;
};
const TextField kTextFields[] = {{tblPeople::OrgName, &Person::organization},
                                 {tblPeople::lastname, &Person::lastName},
                                 {tblPeople::firstname, &Person::firstName},
                                 {tblPeople::phonehome, &Person::phoneHome},
                                 {tblPeople::phonecell, &Person::phoneCell},
                                 {tblPeople::phoneother, &Person::phoneOther},
                                 {tblPeople::email1, &Person::email1},
                                 {tblPeople::email2, &Person::email2},
                                 {tblPeople::address1, &Person::address1},
                                 {tblPeople::address2, &Person::address2},
                                 {tblPeople::city, &Person::city},
                                 {tblPeople::state, &Person::state},
                                 {tblPeople::zip, &Person::zip},
                                 {tblPeople::country, &Person::country}};

RowValues FieldsOf(const Person& person) {
  RowValues values;
  for (const TextField& field : kTextFields) values.Set(field.column, person.*field.text);
  values.Set(tblPeople::comment, person.comment.trimmed().isEmpty() ? u" "_s : person.comment);
  values.Set(tblPeople::rigger, person.rigger);
  return values;
}

bool HasName(const Person& person) {
  return !(person.lastName.trimmed() + person.firstName.trimmed() + person.organization.trimmed()).isEmpty();
}

/// The editor lets nobody through without a name; a row without one could not be found again.
bool RefuseNameless(const Person& person) {
  if (HasName(person)) return false;
  MsgBox(u"You must enter a name"_s, u"Oops!"_s);
  return true;
}

}  // namespace

bool LoadPerson(int id, Person& person) {
  person = {};
  bool exists = false;
  Operation(u"Function LoadPerson"_s, [&] {
    Recordset row(tblPeople::ID == id);
    exists = RecordsetHasRows(row);
    if (exists) {
      for (const TextField& field : kTextFields) person.*field.text = row[field.column].ToText();
      person.comment = row[tblPeople::comment].ToText();
      person.rigger = row[tblPeople::rigger].ToBool();
    }
  });
  return exists;
}

int InsertPerson(const Person& person) {
  int id = 0;
  const bool written = Operation(u"Function InsertPerson"_s, [&] {
    RowValues values = FieldsOf(person);
    values.Set(tblPeople::PhotoName, QString());
    id = AddRow(tblPeople::kTable, values);
  });
  return written ? id : 0;
}

int SaveNewOwner(const Person& person, bool isProgramOwner) {
  if (RefuseNameless(person)) return 0;
  int id = 0;
  const bool written = Operation(u"Function SaveNewOwner"_s, [&] {
    id = InsertPerson(person);
    if (isProgramOwner && id != 0) UpdateRows(tblMisc::UserID, id);
  });
  return written ? id : 0;
}

void UpdateOwner(int id, const Person& person) {
  if (RefuseNameless(person)) return;
  Operation(u"Sub UpdateOwner"_s, [&] { EditRow(tblPeople::ID == id, FieldsOf(person)); });
}

void SetRiggerFlag(int id, bool rigger) {
  Operation(u"Sub SetRiggerFlag"_s, [&] { EditRow(tblPeople::ID == id, {{tblPeople::rigger, rigger}}); });
}

bool CheckPersonEntries(Person& person, bool isNew) {
  if (person.state.size() == 2) person.state = person.state.toUpper();
  if (!HasName(person)) {
    MsgBox(u"You must enter at least a first name, last name, or organization"_s, u"Ooops"_s);
    return false;
  }
  if (isNew) {
    const QString name = (person.firstName + u' ' + person.lastName).trimmed();
    int id = 0;
    // Organizations have no name to compare: each would look like the other.
    if (!name.isEmpty() && DuplicateNameCheck(name, id) &&
        !AskYes(Lines({u"The name "_s + person.firstName + u' ' + person.lastName +
                           u" already exists in the customer database"_s,
                       QString(), u"Are you sure you want to add another customer with this name?"_s, QString()}),
                u"Duplicate name"_s))
      return false;
  }
  person.lastName = ProperCase(person.lastName);
  person.firstName = ProperCase(person.firstName);
  return true;
}

void DeletePersonRow(int id) { DeleteRecordsFromTable(tblPeople::ID, id); }

int ProgramOwner() { return GetValueFromTableBySQL(tblMisc::kTable, tblMisc::UserID).ToInt(); }

int LastCustomerID() { return GetValueFromTableBySQL(tblMisc::kTable, tblMisc::LastCustomerID).ToInt(); }

void SetLastCustomerID(int id) {
  Upkeep(u"Sub SetLastCustomerID"_s, [&] { UpdateRows(tblMisc::LastCustomerID, id); });
}
