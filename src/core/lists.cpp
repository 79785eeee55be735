#include "core/lists.h"

#include <functional>

#include "core/store/access.h"
#include "core/store/operation.h"

using namespace Qt::StringLiterals;

namespace {

using TextOf = std::function<QString(const Recordset& row)>;

IdList Load(const QString& routine, const QString& statement, const TextOf& textOf, QStringView idField = u"ID") {
  IdList list;
  Operation(routine, [&] {
    for (const Recordset& row : Rows(statement)) list.Add(textOf(row), row[idField].ToInt());
  });
  return list;
}

QString Name(const Recordset& row) { return row[u"Name"].ToText(); }

/// The fields that are not blank, joined by ", ".
TextOf Joined(std::initializer_list<QStringView> fields) {
  return [fields = std::vector<QStringView>(fields)](const Recordset& row) {
    QStringList filled;
    for (const QStringView field : fields) {
      const QString text = row[field].ToText().trimmed();
      if (!text.isEmpty()) filled += text;
    }
    return filled.join(u", "_s);
  };
}

QString PersonText(const Recordset& row) {
  const QString names = Joined({u"LastName", u"FirstName"})(row);
  return names.isEmpty() ? row[u"OrgName"].ToText().trimmed() : names;
}

}  // namespace

int NeighbourOf(int gone, const QList<int>& before, const QList<int>& now) {
  const qsizetype place = before.indexOf(gone);
  for (qsizetype i = place + 1; place >= 0 && i < before.size(); ++i)
    if (now.contains(before.at(i))) return before.at(i);
  for (qsizetype i = place - 1; i >= 0; --i)
    if (now.contains(before.at(i))) return before.at(i);
  return now.value(0);
}

IdList LoadModelsOfType(int typeId) {
  return Load(u"Sub LoadModelsOfType"_s,
              u"Select * from tblModels where typeID = "_s + QString::number(typeId) + u" order by name"_s, Name);
}

IdList LoadTaskList() { return Load(u"Sub LoadTaskList"_s, u"Select * from tblTaskLib Order by name"_s, Name); }

IdList LoadTaskOrEventList(bool isEvent) {
  const QString flag = isEvent ? u"True"_s : u"False"_s;
  return Load(u"Sub LoadTaskOrEventList"_s, u"Select * from tblTaskLib where IsEvent = "_s + flag + u" Order by name"_s,
              Name);
}

IdList LoadRigTypes() { return Load(u"Sub LoadRigTypes"_s, u"Select * from tblRigTypes order by Name"_s, Name); }

IdList LoadRigTypeComponents(int rigTypeId) {
  return Load(
      u"Sub LoadRigTypeComponents"_s,
      u"Select * from tblRigTypeComponents where RigTypeID = "_s + QString::number(rigTypeId) +
          u" order by componentTypeID"_s,
      [](const Recordset& row) {
        return GetValueFromTable(u"tblComponentTypes"_s, u"ID"_s, row[u"ComponentTypeID"], u"Name"_s).ToText();
      },
      u"ComponentTypeID");
}

IdList LoadComponentTypes() {
  return Load(u"Sub LoadComponentTypes"_s, u"Select * from tblComponentTypes order by ID"_s, Name);
}

IdList GetArrayOfTasksExpanded() {
  return Load(u"Sub GetArrayOfTasksExpanded"_s, u"Select * from tblTaskLib where logbook = true"_s, Name);
}

IdList GetArrayOfRigs(int ownerId) {
  const QString statement =
      ownerId > 0 ? u"Select * from tblRig where OwnerID = "_s + QString::number(ownerId) + u" order by RigAlias"_s
                  : u"Select * from tblRig order by RigAlias"_s;
  return Load(u"Sub GetArrayOfRigs"_s, statement, [](const Recordset& row) { return row[u"rigAlias"].ToText(); });
}

IdList GetArrayOfLocations() {
  return Load(u"Sub GetArrayOfLocations"_s, u"Select * from tblLocation order by Location"_s,
              Joined({u"Location", u"City", u"State"}));
}

IdList GetArrayOfComponentTypes() {
  return Load(u"Sub GetArrayOfComponentTypes"_s, u"Select * from tblComponentTypes order by ID"_s, Name);
}

IdList GetArrayOfModels(int typeId) {
  return Load(u"Sub GetArrayOfModels"_s,
              u"Select * from tblModels where TypeID = "_s + QString::number(typeId) + u" order by Name"_s, Name);
}

IdList GetArrayOfRiggers(bool everybody) {
  return Load(u"Sub GetArrayOfRiggers"_s,
              everybody ? u"Select * from tblPeople order by lastName, firstname"_s
                        : u"Select * from tblPeople where rigger = true order by lastName, firstname"_s,
              Joined({u"LastName", u"FirstName"}));
}

IdList GetArrayOfPeopleExpanded() {
  return Load(u"Sub GetArrayOfPeopleExpanded"_s, u"Select * from tblPeople order by lastName, firstname, orgname"_s,
              PersonText);
}
