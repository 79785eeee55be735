#pragma once
#include "jobs/completion.h"
#include "jobs/job_records.h"
#include "jobs/lines.h"
#include "jobs/task_rules.h"
#include "schedule/sample_rig.h"

/// The sample rig with a job of 1 March 2026 on it, for its owner.
struct SampleJob : SampleRig {
  int job = 0;

  SampleJob() { job = AddJob("Blue 03/01/2026", rig, 0); }

  int AddJob(const char* title, int onRig, int component) const {
    int id = 0;
    CreateNewJob(title, owner, onRig, component, id, rigger, 0, Day(3, 1, 2026));
    return id;
  }

  JobContext Context() const { return JobContextOf(job); }

  /// Puts a library entry on the job; the line.
  int AddTask(int taskLibID, Date date = Day(3, 2, 2026)) const {
    AddLibraryTask(Context(), taskLibID, date, true);
    return LinesOfJob(job).value(LinesOfJob(job).size() - 1);
  }

  /// An event of the library.
  int AddEvent(const char* name) const {
    const int id = AddEntry(name, 0, 0, {kReserveCanopy});
    loft.Run(QStringLiteral("update tblTaskLib set IsEvent = true where ID = %1").arg(id));
    return id;
  }

  /// A misc part with its price.
  int AddPart(const char* name, int price) const {
    return loft.Add("tblModels", {{"Name", name}, {"TypeID", kMisc}, {"Price", Money::Whole(price)}});
  }

  /// status|date completed of a line.
  QString Status(int taskID) const {
    return loft.Rows(QStringLiteral("select Status, DateTaskCompleted from tblTasks where ID = %1").arg(taskID))
        .value(0);
  }
  /// JobStatus|DateCompleted of the job.
  QString JobState() const {
    return loft.Rows(QStringLiteral("select JobStatus, DateCompleted from tblJobs where ID = %1").arg(job)).value(0);
  }
  static QString State(int status, Date date) { return QStringLiteral("%1|%2").arg(status).arg(date.Days()); }
};
