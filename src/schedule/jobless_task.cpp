#include "schedule/jobless_task.h"

#include "core/access.h"
#include "core/clock.h"
#include "core/dates.h"
#include "core/format.h"
#include "core/prompts.h"
#include "core/trap.h"
#include "gear/components.h"
#include "gear/rigs.h"
#include "schedule/schedule.h"
#include "schedule/task_library.h"

using namespace Qt::StringLiterals;

namespace {

/// The day that a person enters; none when the question was left.
Date AskDatePerformed() {
  QString typed = Value(Today()).ToText();
  while (true) {
    typed = InputBox(u"Enter date peformed"_s, kProgramTitle, typed).trimmed();
    if (typed.isEmpty()) return {};
    if (IsValidDate(typed)) return ParseDate(typed);
    MsgBox(typed + u" is not a valid date"_s, u"Oops!"_s);
  }
}

QString Shown(Date date) { return Format(date, u"mm/dd/yyyy"_s); }

void TieComponent(Recordset& ties, int taskID, int componentID) {
  if (componentID == 0) return;
  ties.AddNew();
  ties.Set(u"TaskID", taskID);
  ties.Set(u"CompID", componentID);
  ties.Set(u"Complete", true);
  ties.Update();
}

}  // namespace

int AddJoblessLine(int taskLibID, int rigID, int componentID, Date date) {
  Bracket bracket;
  int taskID = 0;
  {
    Recordset tasks(u"tblTasks"_s);
    tasks.AddNew();
    for (QStringView zero : {u"JobID", u"RiggerID", u"NumHours", u"PartID", u"LocationID"}) tasks.Set(zero, 0);
    for (QStringView zero : {u"FlatRate", u"HourlyRate", u"Tax"}) tasks.Set(zero, Money());
    tasks.Set(u"CustomerID", rigID != 0 ? RigOwner(rigID) : ComponentOwner(componentID));
    tasks.Set(u"Comments", u" "_s);
    tasks.Set(u"DateTaskCompleted", date);
    tasks.Set(u"DateTaskStarted", date);
    tasks.Set(u"TaskLibID", taskLibID);
    tasks.Set(u"LogBook", false);
    tasks.Set(u"Status", -1);
    tasks.Set(u"TaskName", TaskLibName(taskLibID));
    tasks.Set(u"SystemID", rigID);
    tasks.Set(u"IsEvent", TaskLibIsEvent(taskLibID));
    tasks.Update();
    taskID = tasks[u"ID"].ToInt();
  }
  {
    Recordset ties(u"tblTaskComponents"_s);
    if (rigID == 0) {
      TieComponent(ties, taskID, componentID);
    } else {
      QList<int> types;
      GetComponentTypesForTask(types, taskLibID);
      for (int type : types)
        if (type != 0) TieComponent(ties, taskID, ComponentOfTypeInRig(rigID, type));
    }
  }
  bracket.Close();
  return taskID;
}

bool CreateJoblessTask(int taskLibID, int rigID, int componentID, Date& date, Date minimumDate) {
  date = {};
  if (taskLibID < 1) {
    MsgBox(u"you shouldn't be here"_s, u"Sub CreateJoblessTask()   TaskLibID = "_s + QString::number(taskLibID));
    return false;
  }
  const Date performed = AskDatePerformed();
  if (performed.IsNone()) return false;
  if (performed <= minimumDate) {
    MsgBox(Lines({u"You entered: "_s + Shown(performed), u"Date entered must be after "_s + Shown(minimumDate)}));
    return false;
  }
  return Trap(u"Sub CreateJoblessTask"_s, [&] {
    Bracket bracket;
    const int taskID = AddJoblessLine(taskLibID, rigID, componentID, performed);
    ReplaceSchedule(rigID, taskLibID, performed, taskID, componentID);
    bracket.Close();
    date = performed;
  });
}
