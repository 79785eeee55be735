#include "faults/commands.h"
#include "faults/ground.h"
#include "history/history_entries.h"
#include "jobs/library_delete.h"
#include "jobs/library_entry.h"
#include "jobs/repack_price.h"
#include "jobs/screens/library_shop.h"
#include "schedule/reconstruct.h"
#include "schedule/schedule.h"
#include "schedule/schedule_list.h"
#include "schedule/scheduled_task.h"

using namespace Qt::StringLiterals;

namespace {

const Date kDay = Day(3, 10, 2026);

HistoryView RigView(const Ground& ground) { return HistoryViewOfRig(ground.rig); }

void AddToHistory(Ground& ground) { AddHistoryEntry(RigView(ground), RepackTaskLibID, u"3/1/2026"_s); }

}  // namespace

std::vector<Command> CommandsOnTheLibrary() {
  return {
      {"new task of the library", "Sub UpdateTaskType",
       [](Ground& ground) {
         ground.screens->WhenShown(u"frmTaskType"_s, [](Form& form) {
           TypeInto(form, u"txtName"_s, u"Wash"_s);
           TypeInto(form, u"txtFlatRate"_s, u"30"_s);
           LibraryShop::Tick(form, "lstComps", u"Main Canopy"_s);
           LibraryShop::Tick(form, "lstComps", u"Container"_s);
           Click(form, u"cmdSave"_s);
         });
         EditTaskType();
       }},
      {"change a task of the library", "Sub UpdateTaskType",
       [](Ground& ground) {
         ground.screens->WhenShown(u"frmTaskType"_s, [](Form& form) {
           TypeInto(form, u"txtName"_s, u"Long line check"_s);
           LibraryShop::Tick(form, "lstComps", u"Container"_s);
           Click(form, u"cmdSave"_s);
         });
         EditTaskType({.taskLibID = ground.lineCheck});
       },
       &Ground::AddWork},
      {"new event of the library", "Sub UpdateEventType",
       [](Ground& ground) {
         ground.screens->WhenShown(u"frmEventLib"_s, [](Form& form) {
           TypeInto(form, u"txtName"_s, u"Ride"_s);
           LibraryShop::Tick(form, "lstComps", u"Main Canopy"_s);
           Click(form, u"cmdSave"_s);
         });
         EditEventType();
       }},
      {"delete a task of the library with its lines", "Sub DeleteTaskType",
       [](Ground& ground) {
         bool cancelled = false;
         DeleteTaskType(ground.lineCheck, true, cancelled);
       },
       &Ground::AddWork},
      {"price of an installation", "Sub DoInstallRemove", [](Ground&) { SaveInstallRemovePrice(2, Money::Whole(15)); }},
      {"repack prices", "Sub SaveRepackPrices",
       [](Ground& ground) {
         SaveRepackPrices({Money::Whole(80), {{1, Money::Whole(85)}, {2, Money::Whole(95)}}, {{ground.part, Money()}}});
       }},
      {"repack cycle", "Sub SetRepackCycle",
       [](Ground& ground) {
         ground.person.typed << u"120"_s;
         AskRepackCycle();
       }},
      {"work done without a job", "Sub CreateJoblessTask",
       [](Ground& ground) {
         ground.person.typed << u"3/5/2026"_s;
         CreateJoblessTask(RepackTaskLibID, ground.rig, 0, kDay, Date());
       }},
      {"add to a history", "Sub AddTaskOrEvent", AddToHistory},
      {"delete from a history", "Sub DeleteEvent",
       [](Ground& ground) {
         DeleteHistoryEntry(LoadHx3(ground.rig, {.types = {kContainer, kReserveCanopy}}).first());
       },
       AddToHistory},
      {"rebuild all schedules", "Sub ReconstructSchedules", [](Ground&) { ReconstructSchedules(); },
       [](Ground& ground) {
         ground.AddWork();
         ground.AddSchedule(ground.red, RepackTaskLibID, kDay, 77, 0);
       }},
      {"delete a row of the schedule", "Sub DeleteScheduleEntry",
       [](Ground& ground) {
         int id = 0;
         GetRepackDue(ground.rig, id);
         DeleteScheduleEntry(id, u"Blue"_s);
       },
       &Ground::AddWork},
  };
}
