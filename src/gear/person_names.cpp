#include "gear/person_names.h"

#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/text.h"
#include "gear/people.h"
#include "gear/person_record.h"

using namespace Qt::StringLiterals;

void SplitTypedName(const QString& name, QString& last, QString& first) {
  const QString text = RemoveDoubleSpaces(name);
  first.clear();
  last = text;
  const auto halves = [&](qsizetype at, qsizetype length) { return std::pair(text.left(at), text.mid(at + length)); };
  if (text.count(u", "_s) == 1)
    std::tie(last, first) = halves(text.indexOf(u", "_s), 2);
  else if (text.count(u',') == 1)
    std::tie(last, first) = halves(text.indexOf(u','), 1);
  else if (text.contains(u' '))
    std::tie(first, last) = halves(text.lastIndexOf(u' '), 1);
  else
    return;
  last = ProperCase(last);
  first = ProperCase(first);
}

bool DuplicateNameCheck(const QString& name, int& id) {
  id = 0;
  QString last;
  QString first;
  SplitTypedName(name, last, first);
  last = last.trimmed().toLower();
  first = first.trimmed().toLower();
  QStringList close;
  Operation(u"Function DuplicateNameCheck"_s, [&] {
    Recordset people(tblPeople::kTable);
    if (RecordsetHasRows(people)) {
      for (; id == 0 && !people.Eof(); people.MoveNext()) {
        const QString otherLast = people[tblPeople::lastname].ToText();
        const QString otherFirst = people[tblPeople::firstname].ToText();
        if (otherLast.trimmed().toLower() != last) continue;
        if (otherFirst.trimmed().toLower() == first)
          id = people[tblPeople::ID].ToInt();
        else
          close << otherFirst + u' ' + otherLast;
      }
    }
  });
  if (id != 0) return true;
  if (close.isEmpty()) return false;
  return AskYes(Lines(QStringList{u"Matching last names:"_s, QString()} + close +
                      QStringList{QString(), u"Is the customer listed above?"_s}),
                kProgramTitle);
}

int FindPersonByTypedName(const QString& typed) {
  QString last;
  QString first;
  SplitName(typed, last, first);
  int found = 0;
  Operation(u"Function FindPersonByTypedName"_s, [&] {
    for (const Recordset& person : Rows(Select(tblPeople::kTable).OrderBy(tblPeople::lastname))) {
      const auto matches = [&](QStringView field, const QString& name) {
        return person[field].ToText().trimmed().compare(name, Qt::CaseInsensitive) == 0;
      };
      if (!matches(u"LastName", last) || !(first.isEmpty() || matches(u"FirstName", first))) continue;
      found = person[tblPeople::ID].ToInt();
      break;
    }
  });
  return found;
}

void AddPersonByName(const QString& name, int& id) {
  Person person;
  SplitTypedName(name, person.lastName, person.firstName);
  id = InsertPerson(person);
}

int AddCustomer() {
  const QString name = InputBox(u"Enter name of new customer"_s).trimmed();
  if (name.isEmpty()) return 0;
  int id = 0;
  if (DuplicateNameCheck(name, id)) {
    if (id != 0) MsgBox(name + u" already exists"_s);
    return id;
  }
  AddPersonByName(name, id);
  return id;
}
