#include "core/splash_info.h"

#include <QStringList>

#include "core/clock.h"
#include "core/default_rows.h"
#include "core/format.h"
#include "core/prompts.h"
#include "core/store/access.h"
#include "core/store/operation.h"

using namespace Qt::StringLiterals;

namespace {

QString Counted(int count, const QString& what) { return QString::number(count) + what; }

/// What falls due up to a day; the windows overlap, so what is overdue counts in each.
QString DueLine(Date day, const QString& what) {
  const int count = GetNumberRecordsComplex(tblSchedules::DateDue <= day).ToInt();
  return (count == 1 ? u"There is 1 task"_s : u"There are "_s + QString::number(count) + u" tasks"_s) + what;
}

}  // namespace

QString GetSplashInfo() {
  QStringList lines;
  Operation(u"Function GetSplashInfo"_s, [&] {
    lines << Counted(GetNumberRecordsInTable(tblPeople::kTable), u" customers "_s)
          << Counted(GetNumberRecordsInTable(tblRig::kTable), u" rigs"_s) << QString()
          << Counted(GetNumberRecordsInTable(tblJobs::kTable), u" invoices"_s)
          << Counted(GetNumberRecordsInTable(tblTasks::kTable), u" tasks"_s)
          << Counted(GetNumberRecords(tblTasks::TaskLibID, RepackTaskLibID), u" reserve pack jobs"_s)
          << Counted(GetNumberRecordsInTable(tblManufacturers::kTable), u" manufactures"_s)
          << Counted(GetNumberRecordsInTable(tblModels::kTable), u" models"_s) << QString()
          << Counted(GetNumberRecordsInTable(tblSchedules::kTable), u" scheduled tasks"_s);
    const int riggers = GetNumberRecordsComplex(tblPeople::rigger == true).ToInt();
    lines << (riggers == 1 ? u"1 rigger"_s : Counted(riggers, u" riggers"_s)) << QString()
          << DueLine(Today() - 1, u" overdue"_s) << DueLine(Today() + 30, u" due within 30 days"_s)
          << DueLine(Today() + 60, u" due within 60 days"_s) << DueLine(Today() + 90, u" due within 90 days"_s);
  });
  return Lines(lines);
}

QString LastBackupText() {
  const Date date = GetValueFromTableBySQL(tblMisc::kTable, tblMisc::LastBackupDate).ToDate();
  return u"Last database backup was performed on "_s + (date.IsNone() ? u"(never!)"_s : Format(date, u"mm/dd/yyyy"_s));
}
