#include "jobs/job_lines.h"

#include "core/format.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "gear/people.h"
#include "jobs/lines.h"

using namespace Qt::StringLiterals;

namespace {

JobLine LineOf(const Recordset& row) {
  const int riggerID = row[tblTasks::RiggerID].ToInt();
  const int partID = row[tblTasks::PartID].ToInt();
  const bool isEvent = row[tblTasks::IsEvent].ToBool();
  const bool isComplete = row[tblTasks::Status].ToInt() == kComplete;
  JobLine line{.taskID = row[tblTasks::ID].ToInt(),
               .riggerID = riggerID,
               .partID = partID,
               .task = (partID == 0 ? QString() : kPartIndent) + row[tblTasks::TaskName].ToText(),
               .rigger = {},
               .price = row[tblTasks::FlatRate].ToMoney(),
               .status = {},
               .date = {}};
  if (!isEvent && partID == 0 && riggerID > 0) line.rigger = PersonLastName(riggerID);
  if (isEvent)
    line.status = u"   (event)"_s;
  else if (isComplete)
    line.status = partID == 0 ? u"Completed"_s : u"Installed"_s;
  if (const Date done = row[tblTasks::DateTaskCompleted].ToDate(); (isEvent || isComplete) && !done.IsNone())
    line.date = Format(done, u"mm/dd/yyyy"_s);
  return line;
}

QList<JobLine> LinesFrom(const QString& statement) {
  QList<JobLine> lines;
  Operation(u"Sub LoadTasksGrid"_s, [&] {
    for (const Recordset& row : Rows(statement)) lines.append(LineOf(row));
  });
  return lines;
}

}  // namespace

QList<JobLine> LoadJobLines(int jobID) { return LinesFrom(Select(tblTasks::JobID == jobID).OrderBy(tblTasks::ID)); }

JobLine LoadJobLine(int taskID) { return LinesFrom(tblTasks::ID == taskID).value(0); }
