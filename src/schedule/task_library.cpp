#include "schedule/task_library.h"

#include "core/default_rows.h"
#include "core/lists.h"
#include "core/store/access.h"

using namespace Qt::StringLiterals;

namespace {

Value LibraryField(int taskLibID, const Column& field) { return GetValueFromTable(tblTaskLib::ID, taskLibID, field); }

}  // namespace

QString TaskLibName(int taskLibID) { return LibraryField(taskLibID, tblTaskLib::Name).ToText(); }
Money TaskLibFlatRate(int taskLibID) { return LibraryField(taskLibID, tblTaskLib::Flatrate).ToMoney(); }
Money TaskLibHourlyRate(int taskLibID) { return LibraryField(taskLibID, tblTaskLib::HourlyRate).ToMoney(); }
bool TaskLibLogBook(int taskLibID) { return LibraryField(taskLibID, tblTaskLib::Logbook).ToBool(); }
bool TaskLibAllowMultiple(int taskLibID) { return LibraryField(taskLibID, tblTaskLib::AllowMultiple).ToBool(); }
bool TaskLibIsEvent(int taskLibID) { return LibraryField(taskLibID, tblTaskLib::IsEvent).ToBool(); }
int TaskLibModelID(int taskLibID) { return LibraryField(taskLibID, tblTaskLib::ModelID).ToInt(); }
bool TaskLibExists(int taskLibID) { return LibraryField(taskLibID, tblTaskLib::ID).ToInt() != 0; }

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

int IntervalNumber(int taskLibID) { return LibraryField(taskLibID, tblTaskLib::IntervalNumber).ToInt(); }
int IntervalType(int taskLibID) { return LibraryField(taskLibID, tblTaskLib::IntervalType).ToInt(); }

QList<int> RequiredComponentTypes(int taskLibID) {
  QList<int> types;
  GetRecordsFromTable(tblTaskLibComponentTypes::TaskLibID, taskLibID, tblTaskLibComponentTypes::ComponentTypeID, types);
  if (types.first() == 0) types.clear();
  return types;
}

void GetComponentTypesForTask(QList<int>& types, int taskLibID) {
  if (const int model = TaskLibModelID(taskLibID); model != 0)
    types = {GetValueFromTable(tblModels::ID, model, tblModels::TypeID).ToInt()};
  else
    GetRecordsFromTable(tblTaskLibComponentTypes::TaskLibID, taskLibID, tblTaskLibComponentTypes::ComponentTypeID,
                        types);
}
