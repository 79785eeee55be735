#include "core/lists.h"

#include <functional>

#include "core/store/access.h"
#include "core/store/operation.h"

using namespace Qt::StringLiterals;

namespace {

using TextOf = std::function<QString(const Recordset& row)>;

IdList Load(const QString& routine, const QString& statement, const TextOf& textOf,
            QStringView idField = tblTaskLib::ID.name) {
  IdList list;
  Operation(routine, [&] {
    for (const Recordset& row : Rows(statement)) list.Add(textOf(row), row[idField].ToInt());
  });
  return list;
}

/// What most tables call their rows by.
QString Name(const Recordset& row) { return row[tblTaskLib::Name.name].ToText(); }

/// The fields that are not blank, joined by ", ".
TextOf Joined(std::initializer_list<Column> columns) {
  return [columns = std::vector<Column>(columns)](const Recordset& row) {
    QStringList filled;
    for (const Column& column : columns) {
      const QString text = row[column].ToText().trimmed();
      if (!text.isEmpty()) filled += text;
    }
    return filled.join(u", "_s);
  };
}

QString PersonText(const Recordset& row) {
  const QString names = Joined({tblPeople::lastname, tblPeople::firstname})(row);
  return names.isEmpty() ? row[tblPeople::OrgName].ToText().trimmed() : names;
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
  return Load(u"Sub LoadModelsOfType"_s, Select(tblModels::TypeID == typeId).OrderBy(tblModels::Name), Name);
}

IdList LoadTaskList() {
  return Load(u"Sub LoadTaskList"_s, Select(tblTaskLib::kTable).OrderBy(tblTaskLib::Name), Name);
}

IdList LoadTaskOrEventList(bool isEvent) {
  return Load(u"Sub LoadTaskOrEventList"_s, Select(tblTaskLib::IsEvent == isEvent).OrderBy(tblTaskLib::Name), Name);
}

IdList LoadRigTypes() {
  return Load(u"Sub LoadRigTypes"_s, Select(tblRigTypes::kTable).OrderBy(tblRigTypes::Name), Name);
}

IdList LoadRigTypeComponents(int rigTypeId) {
  return Load(
      u"Sub LoadRigTypeComponents"_s,
      Select(tblRigTypeComponents::RigTypeID == rigTypeId).OrderBy(tblRigTypeComponents::ComponentTypeID),
      [](const Recordset& row) {
        return GetValueFromTable(tblComponentTypes::ID, row[tblRigTypeComponents::ComponentTypeID],
                                 tblComponentTypes::Name)
            .ToText();
      },
      tblRigTypeComponents::ComponentTypeID);
}

IdList LoadComponentTypes() {
  return Load(u"Sub LoadComponentTypes"_s, Select(tblComponentTypes::kTable).OrderBy(tblComponentTypes::ID), Name);
}

IdList GetArrayOfTasksExpanded() { return Load(u"Sub GetArrayOfTasksExpanded"_s, tblTaskLib::Logbook == true, Name); }

IdList GetArrayOfRigs(int ownerId) {
  const QString statement = ownerId > 0 ? Select(tblRig::OwnerID == ownerId).OrderBy(tblRig::rigAlias)
                                        : Select(tblRig::kTable).OrderBy(tblRig::rigAlias);
  return Load(u"Sub GetArrayOfRigs"_s, statement, [](const Recordset& row) { return row[tblRig::rigAlias].ToText(); });
}

IdList GetArrayOfLocations() {
  return Load(u"Sub GetArrayOfLocations"_s, Select(tblLocation::kTable).OrderBy(tblLocation::Location),
              Joined({tblLocation::Location, tblLocation::City, tblLocation::State}));
}

IdList GetArrayOfComponentTypes() {
  return Load(u"Sub GetArrayOfComponentTypes"_s, Select(tblComponentTypes::kTable).OrderBy(tblComponentTypes::ID),
              Name);
}

IdList GetArrayOfModels(int typeId) {
  return Load(u"Sub GetArrayOfModels"_s, Select(tblModels::TypeID == typeId).OrderBy(tblModels::Name), Name);
}

IdList GetArrayOfRiggers(bool everybody) {
  return Load(u"Sub GetArrayOfRiggers"_s,
              everybody ? Select(tblPeople::kTable).OrderBy(tblPeople::lastname).OrderBy(tblPeople::firstname)
                        : Select(tblPeople::rigger == true).OrderBy(tblPeople::lastname).OrderBy(tblPeople::firstname),
              Joined({tblPeople::lastname, tblPeople::firstname}));
}

IdList GetArrayOfPeopleExpanded() {
  return Load(
      u"Sub GetArrayOfPeopleExpanded"_s,
      Select(tblPeople::kTable).OrderBy(tblPeople::lastname).OrderBy(tblPeople::firstname).OrderBy(tblPeople::OrgName),
      PersonText);
}
