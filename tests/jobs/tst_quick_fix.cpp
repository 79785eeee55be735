#include <QtTest>

#include "jobs/quick_fix.h"
#include "jobs/sample_job.h"
#include "jobs/schedule_jobs.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

class TestQuickFix : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void MakesACompleteJobOfOneLineAndTheSchedule() {
    SampleRig shop;
    const int place = shop.loft.Add("tblLocation", {{"City", "Fairhaven"}, {"State", "CA"}, {"TaxRate", 8.0}});
    shop.prompts.ExpectBox(kProgramTitle, u"work on next line"_s);
    const int job = QuickFix(shop.rig, shop.owner, RepackTaskLibID, Day(3, 1, 2026));
    QCOMPARE(shop.loft.Rows(u"SELECT JobTitle, CustomerID, SystemID, RiggerID, LocationID, JobStatus, DateStarted, "
                            "DateCompleted FROM tblJobs WHERE ID = %1"_s.arg(job)),
             QStringList{u"3/1/2026 - Inspect and repack reserve|%1|%2|%3|%4|-1|46082|46082"_s.arg(shop.owner)
                             .arg(shop.rig)
                             .arg(shop.rigger)
                             .arg(place)});
    QCOMPARE(shop.loft.Rows(u"SELECT JobID, TaskLibID, Status, DateTaskCompleted FROM tblTasks"_s),
             QStringList{u"%1|1|-1|46082"_s.arg(job)});
    QCOMPARE(shop.loft.Rows(u"SELECT CompID, Complete FROM tblTaskComponents ORDER BY CompID"_s),
             QStringList({u"%1|-1"_s.arg(shop.container), u"%1|-1"_s.arg(shop.reserve)}));
    QCOMPARE(shop.Schedules(),
             QStringList{SampleRig::ScheduleRow(shop.rig, RepackTaskLibID, Day(3, 1, 2026), Day(8, 28, 2026), 1, 0)});
  }

  void TwiceOnADayMakesTwoJobsOfOneTitle() {
    SampleRig shop;
    for (int i = 0; i < 2; ++i) {
      shop.prompts.ExpectBox(kProgramTitle, u"work on next line"_s);
      QuickFix(shop.rig, shop.owner, shop.aadCheck, Day(3, 1, 2026));
    }
    QCOMPARE(shop.loft.Rows(u"SELECT JobTitle FROM tblJobs"_s),
             QStringList({u"3/1/2026 - AAD check"_s, u"3/1/2026 - AAD check"_s}));
    QVERIFY(GetInvoiceNumber(1) != GetInvoiceNumber(2));
    QCOMPARE(shop.Schedules().size(), 1);
  }

  void TheHelpTellsWhatItDoes() {
    ScriptedPrompts prompts;
    prompts.ExpectBox(u"Quick tasks"_s,
                      u"This does NOT change the date that the task was performed previously.  Instead, it creates\n"
                      "a new job and new task using the date that you enter here.\n\n"
                      "Please note: this has the potential to create multiple jobs for the same\n"
                      "rig on the same date (with separate invoices).  "_s);
    ShowQuickFixHelp();
  }

  void TheJobOfAScheduledTaskIsFound() {
    SampleJob shop;
    const int task = shop.AddTask(RepackTaskLibID);
    QCOMPARE(JobOfScheduledTask(task, shop.rig), shop.job);

    shop.prompts.ExpectBox(
        u"No rig"_s,
        u"This item is not currently part of a rig \nThe job screen will show the rig components that\n"
        "were installed at the time the job was performed."_s);
    QCOMPARE(JobOfScheduledTask(task, 0), shop.job);

    shop.loft.Run(u"update tblRig set OwnerID = %1 where ID = %2"_s.arg(shop.rigger).arg(shop.rig));
    shop.prompts.ExpectBox(u"Different Owner"_s,
                           u"Please note:\nThis rig is currently owned by Rita Rigger\n"
                           "but the component was owned by Olaf Owner\nwhen the job was performed."_s);
    QCOMPARE(JobOfScheduledTask(task, shop.rig), shop.job);
  }

  void WorkOutsideJobsIsTold() {
    SampleRig shop;
    const QString text =
        u"This event was not part of a rigging job.\nTo edit this event, go to the component's history."_s;
    const int done = shop.AddRepack(Day(3, 1, 2026));
    const int logged = shop.loft.Add("tblTasks", {{"JobID", -99}, {"TaskLibID", RepackTaskLibID}});
    for (int task : {done, logged, 99, -888}) {
      shop.prompts.ExpectBox(kProgramTitle, text);
      QCOMPARE(JobOfScheduledTask(task, shop.rig), 0);
    }
  }

  void NewJobsWithoutRigOrCustomerAreAskedAbout() {
    SampleRig shop;
    QVERIFY(AskNewJobFor(shop.owner, shop.rig));
    const QString noRig = u"This component is not part of a rig\nCreate a new job anyway?"_s;
    const QString noCustomer = u"This rig doesn't have a customer\nCreate a new job anyway?"_s;
    shop.prompts.Expect(kProgramTitle, noRig, Answer::No);
    QVERIFY(!AskNewJobFor(shop.owner, 0));
    shop.prompts.Expect(kProgramTitle, noRig, Answer::Yes);
    QVERIFY(AskNewJobFor(shop.owner, 0));
    shop.prompts.Expect(u"No customer"_s, noCustomer, Answer::No);
    QVERIFY(!AskNewJobFor(0, shop.rig));
    shop.prompts.Expect(kProgramTitle, noRig, Answer::Yes);
    shop.prompts.Expect(u"No customer"_s, noCustomer, Answer::Yes);
    QVERIFY(AskNewJobFor(0, 0));
  }
};

LOFT_TEST_MAIN(TestQuickFix)
#include "tst_quick_fix.moc"
