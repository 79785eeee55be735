#include "core/store/undo.h"
#include "faults/commands.h"
#include "faults/ground.h"
#include "jobs/custom_entry.h"
#include "jobs/delete_job.h"
#include "jobs/job_header.h"
#include "jobs/line_edits.h"
#include "jobs/parts.h"
#include "jobs/quick_fix.h"
#include "jobs/screens/library_shop.h"
#include "jobs/screens/open_job.h"
#include "jobs/task_edit.h"

using namespace Qt::StringLiterals;

namespace {

const Date kDay = Day(3, 10, 2026);

void NameTheJob(Ground& ground, const QString& button) {
  ground.screens->WhenShown(u"frmNewJob"_s, [button](Form& form) {
    TypeInto(form, u"txtName"_s, u"Fresh"_s);
    TypeInto(form, u"txtDate"_s, u"3/1/2026"_s);
    Click(form, button);
  });
}

void ShowTheJob(Ground& ground) { GotoJob(ground.job); }

QWidget& Screen() { return dynamic_cast<QWidget&>(*Forms::Find(u"frmJob"_s)); }

void DeleteTheJob(Ground& ground) {
  bool cancelled = false;
  DeleteJob(ground.job, true, cancelled);
}

void WriteEvent(Ground& ground) {
  ground.screens->WhenShown(u"frmMiscTask"_s, [](Form& form) {
    TypeInto(form, u"txtName"_s, u"Water landing"_s);
    LibraryShop::Tick(form, "lstComps", u"Main Canopy"_s);
    Click(form, u"cmdOK"_s);
  });
}

}  // namespace

std::vector<Command> CommandsOnJobs() {
  return {
      {"new job, OK", "Sub StartJobDialog",
       [](Ground& ground) {
         NameTheJob(ground, u"cmdOK"_s);
         StartNewJob(ground.owner, ground.rig, 0, kDay);
       }},
      {"new job, Cancel", "Sub StartJobDialog",
       [](Ground& ground) {
         NameTheJob(ground, u"cmdCancel"_s);
         StartNewJob(ground.owner, ground.rig, 0, kDay);
       }},
      {"new job on a component", "Sub StartJobDialog",
       [](Ground& ground) {
         ground.screens->WhenShown(u"frmJobTypeSelect"_s, [](Form& form) {
           Click(form, u"optComp"_s);
           Click(form, u"cmdOK"_s);
         });
         ground.screens->WhenShown(u"frmPickComponent"_s, [&ground](Form& form) {
           Control<Grid>(form, u"Grid"_s).SelectData(ground.mainCanopy);
           Click(form, u"cmdSelect"_s);
         });
         NameTheJob(ground, u"cmdOK"_s);
         StartNewJob(ground.owner, 0, 0, kDay);
       }},
      {"delete a job", "Sub DeleteJob", DeleteTheJob, &Ground::AddWork},
      {"delete the job on show", "Sub DeleteJob",
       [](Ground&) {
         ChooseMenu(Screen(), {u"Jobs"_s, u"Delete this job"_s});
       },
       [](Ground& ground) {
         ground.AddWork();
         ground.AddJob("Another", ground.rig, 0);
       },
       ShowTheJob},
      {"delete empty jobs", "Sub DeleteAllEmptyJobs", [](Ground&) { DeleteAllEmptyJobs(); },
       [](Ground& ground) {
         ground.AddJob("Another", ground.rig, 0);
         ground.AddJob("Third", ground.red, 0);
       }},
      {"undo the deletion of a job", "Undo", [](Ground&) { UndoOperation(); },
       [](Ground& ground) {
         ground.AddWork();
         DeleteTheJob(ground);
       }},
      {"redo the deletion of a job", "Redo", [](Ground&) { RedoOperation(); },
       [](Ground& ground) {
         ground.AddWork();
         DeleteTheJob(ground);
         UndoOperation();
       }},
      {"add a repack", "Sub GetLibraryTask",
       [](Ground& ground) { AddLibraryTask(ground.Context(), RepackTaskLibID, kDay, ground.Current()); }},
      {"add a task with parts", "Sub GetLibraryTask",
       [](Ground& ground) { AddLibraryTask(ground.Context(), ground.lineCheck, kDay, ground.Current()); }},
      {"add several tasks", "Sub DoMultiTask",
       [](Ground& ground) {
         ground.screens->WhenShown(u"frmMultiTask"_s, [](Form& form) {
           Click(form, u"optBoth"_s);
           for (const QString& entry : {u"Line check"_s, u"Reserve ride"_s}) LibraryShop::Tick(form, "lstTasks", entry);
           Click(form, u"cmdOK"_s);
         });
         ChooseMenu(Screen(), {u"Tasks"_s, u"Add multiple tasks to this job"_s});
       },
       nullptr, ShowTheJob},
      {"add an event of its own, to the library too", "Sub EnterCustom",
       [](Ground& ground) {
         WriteEvent(ground);
         ChooseMenu(Screen(), {u"Events"_s, u"Record a custom event"_s});
       },
       nullptr, ShowTheJob},
      {"add a part", "Sub AddCustomLine", [](Ground& ground) { AddPartToJob(ground.Context(), ground.part, kDay); }},
      {"add a part that is new to the catalogue", "Sub AddCustomPart",
       [](Ground& ground) { AddCustomPart(ground.Context(), u"Pud"_s, Money::Whole(9), kDay); }},
      {"complete a line on show", "Sub ToggleComplete",
       [](Ground&) { ClickCell(Control<Grid>(Screen(), u"Grid2"_s), 0, kStatus); },
       [](Ground& ground) { ground.line = ground.AddTask(RepackTaskLibID); }, ShowTheJob},
      {"take a completion back", "Sub ToggleComplete",
       [](Ground& ground) { ToggleComplete(ground.line, kDay, ground.Current()); }, &Ground::AddWork},
      {"complete all lines", "Sub CompleteAllTasks",
       [](Ground& ground) { CompleteAllTasks(ground.job, true, kDay, ground.Current()); }, &Ground::AddWork},
      {"take all completions back", "Sub CompleteAllTasks",
       [](Ground& ground) { CompleteAllTasks(ground.job, false, kDay, ground.Current()); },
       [](Ground& ground) {
         ground.AddWork();
         CompleteAllTasks(ground.job, true, kDay, true);
       }},
      {"delete a line", "Sub DeleteCurrentTask", [](Ground& ground) { DeleteLine(ground.line, false); },
       &Ground::AddWork},
      {"delete all lines", "Sub DeleteAllTasks", [](Ground& ground) { DeleteAllLines(ground.job); }, &Ground::AddWork},
      {"price of a line", "Sub SaveTextBox", [](Ground& ground) { SaveLinePrice(ground.line, u"77"_s); },
       &Ground::AddWork},
      {"task editor", "Sub UpdateTask",
       [](Ground& ground) {
         ground.screens->WhenShown(u"frmTaskEdit"_s, [](Form& form) {
           TypeInto(form, u"txtDateCompleted"_s, u"3/5/2026"_s);
           Click(form, u"cmdOK"_s);
         });
         EditTask(ground.line);
       },
       &Ground::AddWork},
      {"name of a job", "Sub SaveJobName|Sub SaveTextBox|Sub SetJobTitle",
       [](Ground& ground) { SaveJobName(ground.job, u"Other name"_s); }},
      {"another rigger for a job and its lines", "Sub ChangeRigger",
       [](Ground& ground) { ChangeJobRigger(ground.job, ground.other); },
       [](Ground& ground) {
         ground.AddWork();
         SetLineRigger(ground.line, 0);
         ground.other = SaveNewOwner({.lastName = u"Second"_s, .rigger = true}, false);
       }},
      {"quick fix", "Sub QuickFix",
       [](Ground& ground) {
         ground.screens->WhenShown(u"frmQuickFix"_s, [](Form& form) {
           TypeInto(form, u"txtDate"_s, u"3/5/2026"_s);
           Click(form, u"cmdSave"_s);
         });
         ShowQuickFix(ground.rig, ground.owner, RepackTaskLibID);
       }},
  };
}
