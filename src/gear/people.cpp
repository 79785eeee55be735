#include "gear/people.h"

#include "core/store/access.h"
#include "core/store/operation.h"

using namespace Qt::StringLiterals;

namespace {

struct Names {
  bool exists = false;
  QString first;
  QString last;
  QString organization;
};

Names ReadNames(int id) {
  Names names;
  Operation(u"Function ReadNames"_s, [&] {
    Recordset person(tblPeople::ID == id);
    if (RecordsetHasRows(person))
      names = {true, person[tblPeople::firstname].ToText().trimmed(), person[tblPeople::lastname].ToText().trimmed(),
               person[tblPeople::OrgName].ToText().trimmed()};
  });
  return names;
}

QString PersonText(int id, const Column& field) { return GetValueFromTable(tblPeople::ID, id, field).ToText(); }

QList<int> IdsInOrder(const std::vector<Column>& order) {
  QList<int> ids;
  Operation(u"Function IdsInOrder"_s, [&] {
    Select people(tblPeople::kTable);
    for (const Column& column : order) people.OrderBy(column);
    for (const Recordset& person : Rows(people)) ids << person[tblPeople::ID].ToInt();
  });
  return ids;
}

QList<int> IdsInWalkingOrder() { return IdsInOrder({tblPeople::lastname, tblPeople::firstname, tblPeople::OrgName}); }

}  // namespace

QString PersonDisplayName(int id) {
  if (id == -1) return u"(select)"_s;
  const Names names = ReadNames(id);
  if (!names.exists) return u"(none)"_s;
  if (!names.last.isEmpty() && !names.first.isEmpty()) return names.first + u' ' + names.last;
  return !names.organization.isEmpty() ? names.organization : names.first + names.last;
}

QString PersonSortName(int id) {
  const Names names = ReadNames(id);
  if (!names.exists) return u"(none)"_s;
  if (!names.last.isEmpty() && !names.first.isEmpty()) return names.last + u", "_s + names.first;
  const QString one = names.last + names.first;
  return !one.isEmpty() ? one : names.organization;
}

QString PersonLastName(int id) { return PersonText(id, tblPeople::lastname); }

QString PersonPhone(int id) {
  for (const auto& field : {tblPeople::phonehome, tblPeople::phonecell, tblPeople::phoneother}) {
    QString phone = PersonText(id, field);
    if (!phone.trimmed().isEmpty()) return phone;
  }
  return {};
}

QString PersonCityLine(int id) {
  const QString city = PersonText(id, tblPeople::city);
  if (city.trimmed().isEmpty()) return {};
  return city + u", "_s + PersonText(id, tblPeople::state) + u"   "_s + PersonText(id, tblPeople::zip);
}

QString PersonEmail(int id) { return PersonText(id, tblPeople::email1); }

bool PersonExists(int id) { return ReadNames(id).exists; }

int NextPerson(int id) {
  const QList<int> ids = IdsInWalkingOrder();
  if (id == 0 && !ids.isEmpty()) return ids.first();
  const qsizetype at = ids.indexOf(id);
  return at >= 0 && at + 1 < ids.size() ? ids.at(at + 1) : id;
}

int PreviousPerson(int id) {
  const QList<int> ids = IdsInWalkingOrder();
  const qsizetype at = ids.indexOf(id);
  return at > 0 ? ids.at(at - 1) : id;
}

int FirstPerson() {
  const QList<int> ids = IdsInOrder({tblPeople::lastname, tblPeople::firstname});
  return ids.isEmpty() ? 0 : ids.first();
}

std::pair<int, int> EndsByLastName() {
  const QList<int> ids = IdsInOrder({tblPeople::lastname});
  return ids.isEmpty() ? std::pair(0, 0) : std::pair(ids.first(), ids.last());
}

bool RiggersExist() {
  if (NumberOfRiggers() > 0) return true;
  MsgBox(Lines({u"There are no riggers in your database"_s, u"To designate a person as a rigger, go to the"_s,
                u"customers form and check the RIGGER check box"_s}),
         u"No riggers found"_s);
  return false;
}

int NumberOfRiggers() { return GetNumberRecordsComplex(tblPeople::rigger == true).ToInt(); }

int DefaultRigger() {
  const int id = GetValueFromTableBySQL(tblMisc::kTable, tblMisc::DefaultRiggerID).ToInt();
  if (id != 0 && !PersonExists(id)) Upkeep(u"Function DefaultRigger"_s, [] { SetDefaultRigger(0); });
  return id;
}

void SetDefaultRigger(int id) { UpdateRows(tblMisc::DefaultRiggerID, id); }

int EffectiveRigger() {
  const int riggers = NumberOfRiggers();
  if (riggers == 0) return 0;
  if (riggers > 1) return DefaultRigger();
  const int id = GetValueFromTableBySQL(tblPeople::rigger == true, tblPeople::ID).ToInt();
  if (id != DefaultRigger()) Upkeep(u"Function EffectiveRigger"_s, [&] { SetDefaultRigger(id); });
  return id;
}
