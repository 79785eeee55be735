#include "jobs/job_lines.h"

#include "core/format.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "gear/people.h"
#include "jobs/lines.h"

using namespace Qt::StringLiterals;

namespace {

JobLine LineOf(const Recordset& row) {
  const int riggerID = row[u"RiggerID"].ToInt();
  const int partID = row[u"PartID"].ToInt();
  const bool isEvent = row[u"IsEvent"].ToBool();
  const bool isComplete = row[u"status"].ToInt() == kComplete;
  JobLine line{.taskID = row[u"ID"].ToInt(),
               .riggerID = riggerID,
               .partID = partID,
               .task = (partID == 0 ? QString() : kPartIndent) + row[u"TaskName"].ToText(),
               .rigger = {},
               .price = row[u"FlatRate"].ToMoney(),
               .status = {},
               .date = {}};
  if (!isEvent && partID == 0 && riggerID > 0) line.rigger = PersonLastName(riggerID);
  if (isEvent)
    line.status = u"   (event)"_s;
  else if (isComplete)
    line.status = partID == 0 ? u"Completed"_s : u"Installed"_s;
  if (const Date done = row[u"DateTaskCompleted"].ToDate(); (isEvent || isComplete) && !done.IsNone())
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

QList<JobLine> LoadJobLines(int jobID) {
  return LinesFrom(u"Select * from tblTasks where JobID = %1 order by ID"_s.arg(jobID));
}

JobLine LoadJobLine(int taskID) { return LinesFrom(u"Select * from tblTasks where ID = %1"_s.arg(taskID)).value(0); }
