#include "gear/person_record.h"

#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/text.h"
#include "gear/person_names.h"

using namespace Qt::StringLiterals;

namespace {

struct TextField {
  QStringView name;
  QString Person::*text;
};
const TextField kTextFields[] = {{u"OrgName", &Person::organization},
                                 {u"LastName", &Person::lastName},
                                 {u"FirstName", &Person::firstName},
                                 {u"PhoneHome", &Person::phoneHome},
                                 {u"PhoneCell", &Person::phoneCell},
                                 {u"phoneOther", &Person::phoneOther},
                                 {u"email1", &Person::email1},
                                 {u"email2", &Person::email2},
                                 {u"Address1", &Person::address1},
                                 {u"Address2", &Person::address2},
                                 {u"City", &Person::city},
                                 {u"State", &Person::state},
                                 {u"Zip", &Person::zip},
                                 {u"Country", &Person::country}};

void WriteFields(Recordset& row, const Person& person) {
  for (const TextField& field : kTextFields) row.Set(field.name, person.*field.text);
  row.Set(u"Comment", person.comment.trimmed().isEmpty() ? u" "_s : person.comment);
  row.Set(u"rigger", person.rigger);
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

QString RowStatement(int id) { return u"Select * from tblPeople where id = "_s + QString::number(id); }

}  // namespace

bool LoadPerson(int id, Person& person) {
  person = {};
  bool exists = false;
  Operation(u"Function LoadPerson"_s, [&] {
    Recordset row(RowStatement(id));
    exists = RecordsetHasRows(row);
    if (exists) {
      for (const TextField& field : kTextFields) person.*field.text = row[field.name].ToText();
      person.comment = row[u"Comment"].ToText();
      person.rigger = row[u"rigger"].ToBool();
    }
  });
  return exists;
}

int InsertPerson(const Person& person) {
  int id = 0;
  const bool written = Operation(u"Function InsertPerson"_s, [&] {
    Recordset row(u"tblPeople"_s);
    row.AddNew();
    WriteFields(row, person);
    row.Set(u"PhotoName", QString());
    row.Update();
    id = row[u"ID"].ToInt();
  });
  return written ? id : 0;
}

int SaveNewOwner(const Person& person, bool isProgramOwner) {
  if (RefuseNameless(person)) return 0;
  int id = 0;
  const bool written = Operation(u"Function SaveNewOwner"_s, [&] {
    id = InsertPerson(person);
    if (isProgramOwner && id != 0) UpdateTableBySQL(u"update tblMisc set UserID = "_s + QString::number(id));
  });
  return written ? id : 0;
}

void UpdateOwner(int id, const Person& person) {
  if (RefuseNameless(person)) return;
  Operation(u"Sub UpdateOwner"_s, [&] {
    Recordset row(RowStatement(id));
    if (RecordsetHasRows(row)) {
      WriteFields(row, person);
      row.Update();
    }
  });
}

void SetRiggerFlag(int id, bool rigger) {
  Operation(u"Sub SetRiggerFlag"_s, [&] {
    Recordset row(RowStatement(id));
    if (RecordsetHasRows(row)) {
      row.Set(u"rigger", rigger);
      row.Update();
    }
  });
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

int ProgramOwner() { return GetValueFromTableBySQL(u"tblMisc"_s, u"UserID"_s).ToInt(); }

int LastCustomerID() { return GetValueFromTableBySQL(u"tblMisc"_s, u"LastCustomerID"_s).ToInt(); }

void SetLastCustomerID(int id) { UpdateTableBySQL(u"update tblMisc set LastCustomerID = "_s + QString::number(id)); }
