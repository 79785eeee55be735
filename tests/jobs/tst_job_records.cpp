#include <QtTest>

#include "jobs/job_components.h"
#include "jobs/sample_job.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

class TestJobRecords : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void ANewJobTakesASnapshotOfItsRig() {
    SampleRig shop;
    const QStringList before = shop.loft.Snapshot();
    int job = 0;
    CreateNewJob(QString(60, u'x'), shop.owner, shop.rig, shop.aad, job, shop.rigger, 3, Day(3, 1, 2026));
    QVERIFY(job > 0);
    QCOMPARE(shop.loft.Rows(u"select JobTitle, InvoiceNumber, DateBilled, DatePaid, CustomerID, JobStatus, "
                            "JobPaymentStatus, Comments, DateStarted, DatePromised, DateCompleted, SystemID, "
                            "LocationID, RiggerID, ComponentID from tblJobs"_s),
             QStringList(u"%1||0|0|%2|0|0| |%3|0|0|%4|3|%5|%6"_s.arg(QString(50, u'x'))
                             .arg(shop.owner)
                             .arg(Day(3, 1, 2026).Days())
                             .arg(shop.rig)
                             .arg(shop.rigger)
                             .arg(shop.aad)));
    QCOMPARE(shop.loft.Rows(u"select JobID, ComponentID from tblJobComponents"_s),
             (QStringList{u"%1|%2"_s.arg(job).arg(shop.container), u"%1|%2"_s.arg(job).arg(shop.mainCanopy),
                          u"%1|%2"_s.arg(job).arg(shop.reserve), u"%1|%2"_s.arg(job).arg(shop.aad)}));
    QCOMPARE(shop.loft.ChangesSince(before).size(), 5);
    shop.loft.Run(u"update tblComponents set RigID = 0"_s);
    QCOMPARE(ComponentsOfJob(job).size(), 4);
  }

  void AJobOnOneComponentHoldsItAlone() {
    SampleRig shop;
    int job = 0;
    CreateNewJob(u"AAD"_s, shop.owner, 0, shop.aad, job, shop.rigger, 0, Date());
    QCOMPARE(ComponentsOfJob(job), QList<int>{shop.aad});
    QCOMPARE(JobDateStarted(job), Day(3, 15, 2026));
    CreateNewJob(u"Nothing"_s, shop.owner, 0, 0, job, shop.rigger, 0, Date());
    QCOMPARE(shop.loft.Rows(u"select * from tblJobComponents where JobID = %1"_s.arg(job)), QStringList());
  }

  void AJobWithoutARiggerTakesTheDefaultOne() {
    SampleRig shop;
    int job = 0;
    CreateNewJob(u"One"_s, shop.owner, 0, 0, job, 0, 0, Date());
    QCOMPARE(JobRiggerID(job), shop.rigger);
    const QString text =
        u"Please note:\nThere are no riggers listed in the database.  \n"
        "You can designate a person as a rigger from the \n"
        "customer database (just check the RIGGER check box)."_s;
    shop.loft.Run(u"update tblPeople set rigger = false"_s);
    shop.prompts.ExpectBox(u"No rigger found"_s, text);
    CreateNewJob(u"Two"_s, shop.owner, 0, 0, job, 0, 0, Date());
    QVERIFY(JobExists(job));
    QCOMPARE(JobRiggerID(job), 0);
    shop.loft.Run(u"update tblMisc set DefaultRiggerID = 0"_s);
    shop.prompts.ExpectBox(u"No rigger found"_s, text);
    CreateNewJob(u"Three"_s, shop.owner, 0, 0, job, 0, 0, Date());
    QVERIFY(JobExists(job));
  }

  void TheFirstReaderAssignsTheInvoiceNumber() {
    SampleJob shop;
    const QString id = QString::number(shop.job);
    QCOMPARE(GetInvoiceNumber(shop.job), id);
    QCOMPARE(shop.loft.Rows(u"select InvoiceNumber from tblJobs"_s), QStringList(id));
    QCOMPARE(GetInvoiceNumber(shop.job), id);
    SetJobInvoiceNumber(shop.job, u"A-17"_s);
    QCOMPARE(GetInvoiceNumber(shop.job), u"A-17"_s);
    SetJobInvoiceNumber(shop.job, u"  "_s);
    QCOMPARE(GetInvoiceNumber(shop.job), id);
    QCOMPARE(GetInvoiceNumber(99), QString());
    QVERIFY(!InvoiceNumberIsFree(id));
    QVERIFY(InvoiceNumberIsFree(u"A-17"_s));
  }

  void ATitleIsCutAndNumbersTheInvoiceZero() {
    SampleJob shop;
    SetJobTitle(shop.job, QString(51, u't'));
    QCOMPARE(JobTitle(shop.job), QString(50, u't'));
    QCOMPARE(shop.loft.Rows(u"select InvoiceNumber from tblJobs"_s), QStringList(QString()));
    SetJobInvoiceNumber(shop.job, u"0"_s);
    SetJobTitle(shop.job, u"Blue"_s);
    QCOMPARE(shop.loft.Rows(u"select JobTitle, InvoiceNumber from tblJobs"_s), QStringList(u"Blue|%1"_s.arg(shop.job)));
  }

  void TitlesAreFoundWithoutCaseAndOuterBlanks() {
    SampleJob shop;
    QVERIFY(JobTitleExists(u"  bLUE 03/01/2026 "_s));
    QVERIFY(!JobTitleExists(u"Blue"_s));
    QCOMPARE(JobOfCustomerNamed(shop.owner, u" BLUE 03/01/2026"_s, 0), shop.job);
    QCOMPARE(JobOfCustomerNamed(shop.owner, u"Blue 03/01/2026"_s, shop.job), 0);
    QCOMPARE(JobOfCustomerNamed(shop.rigger, u"Blue 03/01/2026"_s, 0), 0);
    shop.AddJob("", 0, 0);
    QCOMPARE(JobOfCustomerNamed(shop.owner, u" "_s, 0), 0);
  }

  void ClearingTheStatusClearsTheDate() {
    SampleJob shop;
    SetJobStatus(shop.job, true, Day(3, 9, 2026));
    QCOMPARE(shop.JobState(), SampleJob::State(-1, Day(3, 9, 2026)));
    SetJobStatus(shop.job, false, Day(3, 9, 2026));
    QCOMPARE(shop.JobState(), SampleJob::State(0, Date()));
  }

  void FieldsAreWrittenOneByOne() {
    SampleJob shop;
    SetJobDateStarted(shop.job, Day(1, 2, 2026));
    SetJobDatePromised(shop.job, Day(1, 3, 2026));
    SetJobDateCompleted(shop.job, Day(1, 4, 2026));
    SetJobRiggerID(shop.job, 71);
    SetJobLocationID(shop.job, 72);
    SetJobComments(shop.job, u"Late"_s);
    SetLastJobID(shop.job);
    QCOMPARE(JobDateStarted(shop.job), Day(1, 2, 2026));
    QCOMPARE(JobDatePromised(shop.job), Day(1, 3, 2026));
    QCOMPARE(JobDateCompleted(shop.job), Day(1, 4, 2026));
    QCOMPARE(JobRiggerID(shop.job), 71);
    QCOMPARE(JobLocationID(shop.job), 72);
    QCOMPARE(JobComments(shop.job), u"Late"_s);
    QCOMPARE(LastJobID(), shop.job);
    QCOMPARE(JobCustomerID(shop.job), shop.owner);
    QCOMPARE(JobSystemID(shop.job), shop.rig);
    QCOMPARE(JobComponentID(shop.job), 0);
    SetJobComments(shop.job, QString());
    QCOMPARE(JobComments(shop.job), u" "_s);
    QVERIFY(!JobExists(99));
  }

  void JobsAreSteppedThroughById() {
    SampleJob shop;
    const int second = shop.AddJob("Two", 0, 0);
    const int third = shop.AddJob("Three", 0, 0);
    bool noneLeft = true;
    QCOMPARE(PreviousJobID(third, noneLeft), second);
    QVERIFY(!noneLeft);
    QCOMPARE(PreviousJobID(shop.job, noneLeft), shop.job);
    QVERIFY(noneLeft);
    QCOMPARE(NextJobID(shop.job, noneLeft), second);
    QVERIFY(!noneLeft);
    QCOMPARE(NextJobID(third, noneLeft), third);
    QVERIFY(noneLeft);
    QVERIFY(IsFirstJob(shop.job) && !IsFirstJob(second) && IsLastJob(third) && !IsLastJob(second));
  }

  void AVanishedJobGivesWayToTheNextOrTheOneBefore() {
    SampleJob shop;
    const int second = shop.AddJob("Two", 0, 0);
    const int third = shop.AddJob("Three", 0, 0);
    shop.loft.Run(u"delete * from tblJobs where ID = %1"_s.arg(second));
    QCOMPARE(GetNextValidJobID(second), third);
    QCOMPARE(GetNextValidJobID(third), shop.job);
    QCOMPARE(GetNextValidJobID(third + 1), third);
    shop.loft.Run(u"delete * from tblJobs"_s);
    QCOMPARE(GetNextValidJobID(second), 0);
  }

  void GearOfAJobIsComparedWithItsRig() {
    SampleJob shop;
    QString differences;
    QVERIFY(JobMatchesRig(shop.job, shop.rig, differences));
    QCOMPARE(differences, QString());
    shop.loft.Run(u"update tblComponents set RigID = 0 where TypeID = 1 or TypeID = 4"_s);
    QVERIFY(!JobMatchesRig(shop.job, shop.rig, differences));
    QCOMPARE(differences, u"\nContainer\nAAD"_s);
    shop.loft.Run(u"update tblRig set TypeID = 0"_s);
    shop.loft.Add("tblRigTypeComponents", {{"RigTypeID", 0}, {"ComponentTypeID", int{kContainer}}});
    QVERIFY(JobMatchesRig(shop.job, shop.rig, differences));
  }

  void PlacesOfGearStandInTheOrderOfTheirTypes() {
    SampleJob shop;
    const auto places = [&](int job, int rig) {
      QStringList list;
      for (const GearPlace& place : LoadJobGear(job, rig))
        list << u"%1:%2"_s.arg(place.componentType).arg(place.componentID);
      return list.join(u" ");
    };
    shop.loft.Run(u"delete * from tblJobComponents where ComponentID = %1"_s.arg(shop.mainCanopy));
    QCOMPARE(places(shop.job, shop.rig), u"1:%1 2:0 3:%2 4:%3"_s.arg(shop.container).arg(shop.reserve).arg(shop.aad));
    const int loose = shop.AddJob("Loose", 0, 0);
    AddJobComponent(loose, shop.aad);
    AddJobComponent(loose, 999);
    AddJobComponent(loose, shop.container);
    QCOMPARE(places(loose, 0), u"1:%1 4:%2"_s.arg(shop.container).arg(shop.aad));
    QCOMPARE(shop.loft.Rows(u"select ComponentID from tblJobComponents where JobID = %1"_s.arg(loose)),
             (QStringList{QString::number(shop.aad), QString::number(shop.container)}));
    QCOMPARE(JobComponentOfType(loose, kAad), shop.aad);
    QCOMPARE(JobComponentOfType(loose, kReserveCanopy), 0);
  }
};

LOFT_TEST_MAIN(TestJobRecords)
#include "tst_job_records.moc"
