#include "core/default_rows.h"
#include "core/prompts.h"
#include "jobs/library_entry.h"
#include "jobs/screens.h"

using namespace Qt::StringLiterals;

void DoInstallRemove(int taskLibID) {
  if (taskLibID != InstallTaskLibID && taskLibID != RemoveTaskLibID) {
    MsgBox(Lines({u"Sub DoInstallRemove()  ID = "_s + QString::number(taskLibID), u"you shouldn't be here"_s}));
    return;
  }
  MiscItem item{TaskLibName(taskLibID), TaskLibFlatRate(taskLibID)};
  const QString caption = taskLibID == InstallTaskLibID ? u"Install component"_s : u"Remove component"_s;
  if (EnterMiscItem(item, {.caption = caption, .nameIsFixed = true})) SaveInstallRemovePrice(taskLibID, item.price);
}

void EditLibraryEntry(int taskLibID) {
  if (taskLibID == 0)
    MsgBox(u"tasklibID = 0"_s);
  else if (taskLibID == RepackTaskLibID)
    ShowRepackPrices();
  else if (IsFixedTask(taskLibID))
    DoInstallRemove(taskLibID);
  else if (TaskLibIsEvent(taskLibID))
    EditEventType(taskLibID);
  else
    EditTaskType({.taskLibID = taskLibID, .modelID = TaskLibModelID(taskLibID)});
}
