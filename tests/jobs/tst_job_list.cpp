#include <QFile>
#include <QtTest>

#include "core/store/connection.h"
#include "core/store/undo.h"
#include "jobs/job_list.h"
#include "jobs/sample_job.h"
#include "support/refusing_disk.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

using Status = JobListFilter::Status;

struct Shop : SampleJob {
  int second = AddJob("Spare's work", 0, 0);
  int older = 0;

  Shop() {
    CreateNewJob(u"Last year"_s, rigger, 0, 0, older, rigger, 0, Day(3, 1, 2025));
    SetJobStatus(older, true, Day(3, 4, 2025));
  }
};

}  // namespace

class TestJobList : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void NewestFirstAndTheHigherIdOnTies() {
    Shop shop;
    const IdList list = LoadListJobs({});
    QCOMPARE(list.ids, (QList<int>{shop.second, shop.job, shop.older}));
    QCOMPARE(list.texts, QStringList({u"03/01/26    Spare's work - 2"_s, u"03/01/26    Blue 03/01/2026 - 1"_s,
                                      u"03/01/25    Last year - 3 (completed)"_s}));
    // Showing an invoice number for the first time assigns it.
    QCOMPARE(shop.loft.Rows(u"SELECT InvoiceNumber FROM tblJobs ORDER BY ID"_s), QStringList({u"1"_s, u"2"_s, u"3"_s}));
  }

  void NumbersThatCantBeWrittenAreToldOnceAndTheListStillShows() {
    Shop shop;
    ReleaseDatabaseFile();
    QFile::setPermissions(shop.loft.Folder().Path(), QFile::Permissions(0x7755));
    QFile::setPermissions(shop.loft.DatabaseFile(), QFile::Permissions(0x4444));
    {
      const OrdinaryUser user;
      shop.prompts.ExpectBox(u"Sub AssignInvoiceNumbers"_s, u"Cannot update.  Database or object is read-only."_s);
      QCOMPARE(LoadListJobs({}).texts,
               QStringList({u"03/01/26    Spare's work - 2"_s, u"03/01/26    Blue 03/01/2026 - 1"_s,
                            u"03/01/25    Last year - 3 (completed)"_s}));
      ReleaseDatabaseFile();
    }
    QFile::setPermissions(shop.loft.DatabaseFile(), QFile::Permissions(0x6644));
    QCOMPARE(shop.loft.Rows(u"SELECT DISTINCT InvoiceNumber FROM tblJobs"_s), QStringList{QString()});
    LoadListJobs({});
    QVERIFY(!NextUndo() || NextUndo()->name != u"Assign invoice numbers"_s);  // upkeep, which nobody asked for
    const QStringList before = shop.loft.Snapshot();
    LoadListJobs({});
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void OfACustomerAStatusOrATask() {
    Shop shop;
    shop.AddTask(RepackTaskLibID);
    const auto ids = [](const JobListFilter& filter) { return LoadListJobs(filter).ids; };
    QCOMPARE(ids({.customer = shop.owner}), (QList<int>{shop.second, shop.job}));
    QCOMPARE(ids({.customer = 99}), QList<int>());
    QCOMPARE(ids({.status = Status::Active}), (QList<int>{shop.second, shop.job}));
    QCOMPARE(ids({.status = Status::Complete}), QList<int>{shop.older});
    QCOMPARE(LoadListJobs({.status = Status::Complete}).texts, QStringList{u"03/01/25    Last year - 3"_s});
    QCOMPARE(ids({.taskLibID = RepackTaskLibID}), QList<int>{shop.job});
  }

  void JobsWithoutATitleAreLeftOut() {
    Shop shop;
    shop.loft.Run(u"update tblJobs set JobTitle = '  ' where ID = %1"_s.arg(shop.second));
    QCOMPARE(LoadListJobs({}).ids, (QList<int>{shop.job, shop.older}));
  }
};

LOFT_TEST_MAIN(TestJobList)
#include "tst_job_list.moc"
