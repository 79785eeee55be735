#include <QFile>
#include <QTest>

#include "core/clock.h"
#include "core/default_rows.h"
#include "core/store/access.h"
#include "core/store/database.h"
#include "dbcare/check_fields.h"
#include "gear/components.h"
#include "jobs/completion.h"
#include "jobs/job_records.h"
#include "reports/business_address.h"
#include "sample/sample_loft.h"
#include "schedule/reconstruct.h"
#include "support/data_home.h"
#include "support/fixed_clock.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

namespace {

const Date kToday = Date::FromParts(2026, 3, 2);

/// A data home with the sample loft in it.
struct SampleHome {
  explicit SampleHome(Date today) {
    if (!QFile::copy(QFINDTESTDATA("../support/models.txt"), home.Folder() / u"work/models.txt"_s)) qFatal("no models");
    MakeSampleLoft(today);
  }
  DataHome home;
};

QStringList RowsOf(const QString& sql) {
  ReleaseDatabaseFile();
  return RowsOfFile(DatabasePath(), sql);
}

int Number(const QString& sql) { return RowsOf(sql).value(0).toInt(); }

/// Every row of what is derived or written by hand, but for its own number.
QStringList Content() {
  return RowsOf(u"SELECT SystemID, JobTitle, JobStatus, DateCompleted FROM tblJobs ORDER BY ID"_s) +
         RowsOf(u"SELECT JobID, TaskName, FlatRate, Status, DateTaskCompleted FROM tblTasks ORDER BY ID"_s) +
         RowsOf(u"SELECT SerialNumber, DOM, RigID, OwnerID FROM tblComponents ORDER BY ID"_s);
}

QStringList Schedule() {
  return RowsOf(
      u"SELECT rigID, ComponentID, TaskLibID, DateDone, DateDue, TaskID FROM tblSchedules "
      "ORDER BY rigID, ComponentID, TaskLibID"_s);
}

}  // namespace

class SampleLoftTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() { sample_ = std::make_unique<SampleHome>(kToday); }
  void cleanupTestCase() { sample_.reset(); }

  void HasSomethingOfEverything() {
    const int today = kToday.Days();
    const auto soon = u"SELECT count(*) FROM tblSchedules WHERE DateDue BETWEEN %1 AND %2"_s;
    QVERIFY(Number(u"SELECT count(*) FROM tblPeople"_s) >= 40);
    QCOMPARE(Number(u"SELECT count(*) FROM tblPeople WHERE rigger = -1"_s), 2);
    QVERIFY(Number(u"SELECT count(*) FROM tblRig"_s) >= 55);
    QCOMPARE(Number(u"SELECT count(DISTINCT TypeID) FROM tblRig"_s), 4);
    QCOMPARE(Number(u"SELECT count(*) FROM tblLocation WHERE TaxRate > 0"_s), 2);
    QVERIFY(Number(u"SELECT count(*) FROM tblTasks WHERE PartID > 0"_s) >= 10);
    QVERIFY(Number(u"SELECT count(*) FROM tblJobs"_s) >= 200);
    QVERIFY(Number(u"SELECT count(*) FROM tblJobs WHERE JobStatus = 0"_s) >= 2);
    QVERIFY(Number(u"SELECT count(*) FROM tblTasks WHERE IsEvent = -1"_s) >= 2);
    QVERIFY(Number(u"SELECT count(*) FROM tblTasks WHERE JobID = 0"_s) >= 5);
    QVERIFY(Number(u"SELECT count(*) FROM tblTasks WHERE trim(Comments) <> ''"_s) >= 5);
    QVERIFY(Number(soon.arg(1).arg(today - 1)) >= 3);       // overdue
    QVERIFY(Number(soon.arg(today).arg(today + 30)) >= 3);  // soon due
    QVERIFY(Number(u"SELECT count(*) FROM tblComponents WHERE RigID = 0"_s) >= 5);
    int expired = 0;
    for (const QString& id : RowsOf(u"SELECT ID FROM tblComponents WHERE TypeID = %1"_s.arg(kAad))) {
      const Date end = ComponentExpiry(id.toInt());
      if (!end.IsNone() && end < kToday) ++expired;
    }
    QVERIFY(expired >= 1);
    QVERIFY(Number(u"SELECT count(*) FROM tblComponents WHERE RigID = 0 AND Comment LIKE 'Grounded%'"_s) >= 2);
    QVERIFY(GetBusinessAddress().startsWith("Fairhaven Rigging Loft\n"_L1));
  }

  void EveryRigIsWhole() {
    QCOMPARE(
        RowsOf(u"SELECT r.ID, t.ComponentTypeID FROM tblRig r "
               "JOIN tblRigTypeComponents t ON t.RigTypeID = r.TypeID WHERE "
               "(SELECT count(*) FROM tblComponents c WHERE c.RigID = r.ID AND c.TypeID = t.ComponentTypeID) <> 1"_s),
        QStringList());
    QCOMPARE(RowsOf(u"SELECT ID FROM tblComponents WHERE DOM > %1 OR OwnerID NOT IN (SELECT ID FROM tblPeople)"_s.arg(
                 kToday.Days())),
             QStringList());
  }

  void NothingIsPackedBeforeItWasMade() {
    QCOMPARE(RowsOf(u"SELECT t.ID FROM tblTasks t JOIN tblTaskComponents tc ON tc.TaskID = t.ID "
                    "JOIN tblComponents c ON c.ID = tc.CompID WHERE t.DateTaskCompleted BETWEEN 1 AND c.DOM"_s),
             QStringList());
  }

  void NothingHappensInTheFuture() {
    const QString after = u" > %1"_s.arg(kToday.Days());
    QCOMPARE(Number(u"SELECT count(*) FROM tblJobs WHERE DateStarted%1 OR DateCompleted%1"_s.arg(after)), 0);
    QCOMPARE(Number(u"SELECT count(*) FROM tblTasks WHERE DateTaskCompleted"_s + after), 0);
  }

  void ObeysTheRules() {
    const FixedClock clock(kToday);
    ScriptedPrompts prompts;
    CheckAllFields(true);
    const QStringList schedule = Schedule();
    prompts.AnswerRestWith([](const ShownPrompt&) { return Answer::Yes; });
    ReconstructSchedules();
    QCOMPARE(Schedule(), schedule);
    const QStringList content = Content();
    for (const QString& job : RowsOf(u"SELECT ID FROM tblJobs"_s)) RecomputeJobStatus(job.toInt());
    QCOMPARE(Content(), content);
  }

  void TheSameDayGivesTheSameLoft() {
    const QStringList first = Content() + Schedule();
    sample_.reset();
    sample_ = std::make_unique<SampleHome>(kToday);
    QCOMPARE(Content() + Schedule(), first);
  }

 private:
  std::unique_ptr<SampleHome> sample_;
};

LOFT_TEST_MAIN(SampleLoftTest)
#include "tst_sample_loft.moc"
