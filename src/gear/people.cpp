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
    Recordset person(u"select * from tblPeople where id = "_s + QString::number(id));
    if (RecordsetHasRows(person))
      names = {true, person[u"FirstName"].ToText().trimmed(), person[u"LastName"].ToText().trimmed(),
               person[u"OrgName"].ToText().trimmed()};
  });
  return names;
}

QString PersonText(int id, const QString& field) {
  return GetValueFromTable(u"tblPeople"_s, u"ID"_s, id, field).ToText();
}

QList<int> IdsInOrder(const QString& order) {
  QList<int> ids;
  Operation(u"Function IdsInOrder"_s, [&] {
    for (const Recordset& person : Rows(u"Select * from tblPeople order by "_s + order)) ids << person[u"ID"].ToInt();
  });
  return ids;
}

QList<int> IdsInWalkingOrder() { return IdsInOrder(u"LastName, FirstName, OrgName"_s); }

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

QString PersonLastName(int id) { return PersonText(id, u"LastName"_s); }

QString PersonPhone(int id) {
  for (const auto& field : {u"PhoneHome"_s, u"PhoneCell"_s, u"phoneOther"_s}) {
    const QString phone = PersonText(id, field);
    if (!phone.trimmed().isEmpty()) return phone;
  }
  return {};
}

QString PersonCityLine(int id) {
  const QString city = PersonText(id, u"City"_s);
  if (city.trimmed().isEmpty()) return {};
  return city + u", "_s + PersonText(id, u"State"_s) + u"   "_s + PersonText(id, u"Zip"_s);
}

QString PersonEmail(int id) { return PersonText(id, u"email1"_s); }

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
  const QList<int> ids = IdsInOrder(u"LastName, FirstName"_s);
  return ids.isEmpty() ? 0 : ids.first();
}

std::pair<int, int> EndsByLastName() {
  const QList<int> ids = IdsInOrder(u"lastname"_s);
  return ids.isEmpty() ? std::pair(0, 0) : std::pair(ids.first(), ids.last());
}

bool RiggersExist() {
  if (NumberOfRiggers() > 0) return true;
  MsgBox(Lines({u"There are no riggers in your database"_s, u"To designate a person as a rigger, go to the"_s,
                u"customers form and check the RIGGER check box"_s}),
         u"No riggers found"_s);
  return false;
}

int NumberOfRiggers() { return GetNumberRecordsComplex(u"Select * from tblPeople where rigger = true"_s).ToInt(); }

int DefaultRigger() {
  const int id = GetValueFromTableBySQL(u"Select DefaultRiggerID from TblMisc"_s, u"DefaultRiggerID"_s).ToInt();
  if (id != 0 && !PersonExists(id)) Upkeep(u"Function DefaultRigger"_s, [] { SetDefaultRigger(0); });
  return id;
}

void SetDefaultRigger(int id) { UpdateTableBySQL(u"Update tblMisc set defaultRiggerId = "_s + QString::number(id)); }

int EffectiveRigger() {
  const int riggers = NumberOfRiggers();
  if (riggers == 0) return 0;
  if (riggers > 1) return DefaultRigger();
  const int id = GetValueFromTableBySQL(u"Select * from tblPeople where rigger = true"_s, u"ID"_s).ToInt();
  if (id != DefaultRigger()) Upkeep(u"Function EffectiveRigger"_s, [&] { SetDefaultRigger(id); });
  return id;
}
