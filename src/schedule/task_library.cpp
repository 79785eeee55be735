#include "schedule/task_library.h"

#include "core/default_rows.h"
#include "core/lists.h"
#include "core/store/access.h"

using namespace Qt::StringLiterals;

namespace {

Value LibraryField(int taskLibID, const QString& field) {
  return GetValueFromTable(u"tblTaskLib"_s, u"ID"_s, taskLibID, field);
}

}  // namespace

QString TaskLibName(int taskLibID) { return LibraryField(taskLibID, u"Name"_s).ToText(); }
Money TaskLibFlatRate(int taskLibID) { return LibraryField(taskLibID, u"FlatRate"_s).ToMoney(); }
Money TaskLibHourlyRate(int taskLibID) { return LibraryField(taskLibID, u"HourlyRate"_s).ToMoney(); }
bool TaskLibLogBook(int taskLibID) { return LibraryField(taskLibID, u"LogBook"_s).ToBool(); }
bool TaskLibAllowMultiple(int taskLibID) { return LibraryField(taskLibID, u"AllowMultiple"_s).ToBool(); }
bool TaskLibIsEvent(int taskLibID) { return LibraryField(taskLibID, u"IsEvent"_s).ToBool(); }
int TaskLibModelID(int taskLibID) { return LibraryField(taskLibID, u"ModelID"_s).ToInt(); }
bool TaskLibExists(int taskLibID) { return LibraryField(taskLibID, u"ID"_s).ToInt() != 0; }

QString TaskLibKind(int taskLibID) { return TaskLibIsEvent(taskLibID) ? u"event"_s : u"task"_s; }

int FindTaskLib(const QString& name) {
  const IdList entries = LoadTaskList();
  for (qsizetype i = 0; i < entries.Size(); ++i)
    if (entries.texts.at(i).trimmed().toLower() == name.trimmed().toLower()) return entries.ids.at(i);
  return 0;
}

bool IsFixedTask(int taskLibID) {
  return taskLibID == RepackTaskLibID || taskLibID == InstallTaskLibID || taskLibID == RemoveTaskLibID;
}

int IntervalNumber(int taskLibID) { return LibraryField(taskLibID, u"IntervalNumber"_s).ToInt(); }
int IntervalType(int taskLibID) { return LibraryField(taskLibID, u"IntervalType"_s).ToInt(); }

QList<int> RequiredComponentTypes(int taskLibID) {
  QList<int> types;
  GetRecordsFromTable(u"tblTaskLibComponentTypes"_s, u"TaskLibID"_s, taskLibID, u"ComponentTypeID"_s, types);
  if (types.first() == 0) types.clear();
  return types;
}

void GetComponentTypesForTask(QList<int>& types, int taskLibID) {
  if (const int model = TaskLibModelID(taskLibID); model != 0)
    types = {GetValueFromTable(u"tblModels"_s, u"ID"_s, model, u"TypeID"_s).ToInt()};
  else
    GetRecordsFromTable(u"tblTaskLibComponentTypes"_s, u"TaskLibID"_s, taskLibID, u"ComponentTypeID"_s, types);
}
