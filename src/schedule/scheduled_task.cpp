#include "schedule/scheduled_task.h"

#include "core/clock.h"
#include "core/dates.h"
#include "core/default_rows.h"
#include "core/format.h"
#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "gear/rig_rules.h"
#include "gear/rigs.h"
#include "schedule/completions.h"
#include "schedule/jobless_task.h"
#include "schedule/rig_audit.h"
#include "schedule/schedule.h"
#include "schedule/task_library.h"

using namespace Qt::StringLiterals;

namespace {

QString Shown(Date date) { return Format(date, u"mm/dd/yyyy"_s); }

/// Asks until a date is typed; no date when the person gives up.
Date AskDatePerformed(Date proposal) {
  for (;;) {
    const QString typed = InputBox(u"Enter date peformed"_s, kProgramTitle, Shown(proposal)).trimmed();
    if (typed.isEmpty()) return {};
    if (IsValidDate(typed)) return DateFromText(typed);
    MsgBox(typed + u" is not a valid date"_s, u"Oops!"_s);
  }
}

QList<int> TouchedComponents(int taskLibID, int rigID, int componentID) {
  if (componentID != 0) return {componentID};
  QList<int> components;
  if (rigID == 0) return components;  // gear in no rig is not the gear of one
  for (int type : RequiredComponentTypes(taskLibID))
    if (const int component = ComponentOfTypeInRig(rigID, type); component != 0) components << component;
  return components;
}

struct Standing {
  Date done;
  Date due;
};

/// What the schedule says of an entry now.
Standing StandingOf(int taskLibID, int rigID, int componentID) {
  int taskID = 0;
  if (componentID != 0)
    return {LastCompletionForComponent(componentID, taskLibID, taskID), GetDueDateByComponent(componentID, taskLibID)};
  return {LastCompletionForRig(rigID, taskLibID, taskID), GetDueDateByRig(rigID, taskLibID)};
}

Answer AskUseRepack(Date repack) {
  return Ask(Lines({u"The latest repack date for this rig was performed on "_s + Shown(repack),
                    u"but it is not on the schedule."_s, QString(),
                    u"Would you like to add this repack date to the schedule? "_s, QString(),
                    u"(select NO to enter a different date)"_s}),
             u"Use this date?"_s, Buttons::YesNoCancel, Answer::No);
}

}  // namespace

int WriteJoblessWork(int taskLibID, int rigID, int componentID, Date date) {
  return WriteJoblessTask({.taskLibID = taskLibID,
                           .name = TaskLibName(taskLibID),
                           .rigID = rigID,
                           .date = date,
                           .components = TouchedComponents(taskLibID, rigID, componentID)});
}

bool CreateJoblessTask(int taskLibID, int rigID, int componentID, Date date, Date minimum) {
  if (taskLibID < 1) {
    MsgBox(
        Lines({u"Sub CreateJoblessTask()   TaskLibID = "_s + QString::number(taskLibID), u"you shouldn't be here"_s}));
    return false;
  }
  const Date performed = AskDatePerformed(date);
  if (performed.IsNone()) return false;
  if (performed <= minimum) {
    MsgBox(Lines({u"You entered: "_s + Shown(performed), u"Date entered must be after "_s + Shown(minimum)}));
    return false;
  }
  return Operation(u"Sub CreateJoblessTask"_s, [&] {
    const int taskID = WriteJoblessWork(taskLibID, rigID, componentID, performed);
    ReplaceSchedule(rigID, taskLibID, performed, taskID, componentID);
  });
}

bool UpdateScheduledTask(int taskLibID, int rigID, int componentID) {
  if (taskLibID == kExpiryRowTaskLibID) {
    ShowExpirationHelp();
    return false;
  }
  const Standing standing = StandingOf(taskLibID, rigID, componentID);
  if (taskLibID == RepackTaskLibID && standing.due.IsNone()) {
    int taskID = 0;
    const Date repack =
        LastRepackOfPair(ComponentOfTypeInRig(rigID, kContainer), ComponentOfTypeInRig(rigID, kReserveCanopy), taskID);
    const Answer answer = repack.IsNone() ? Answer::No : AskUseRepack(repack);
    if (answer == Answer::Cancel) return false;
    if (answer == Answer::Yes) {
      ReplaceSchedule(rigID, RepackTaskLibID, repack, taskID, 0);
      return true;
    }
  }
  return CreateJoblessTask(taskLibID, rigID, componentID, Today(), standing.due.IsNone() ? Date() : standing.done);
}
