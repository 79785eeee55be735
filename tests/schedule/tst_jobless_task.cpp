#include <QtTest>

#include "schedule/jobless_task.h"
#include "schedule/sample_rig.h"

using namespace Qt::StringLiterals;

namespace {

const QString kQuestion = u"Enter date peformed"_s;

}  // namespace

class TestJoblessTask : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void ARepackIsWrittenWithItsTiesAndItsDueDate() {
    SampleRig shop;
    Date date;
    shop.prompts.ExpectInput(kProgramTitle, kQuestion, u"3/1/2026"_s).Proposing(u"3/15/2026"_s);
    QVERIFY(CreateJoblessTask(RepackTaskLibID, shop.rig, 0, date, Day(2, 28, 2026)));
    QCOMPARE(date, Day(3, 1, 2026));
    QCOMPARE(
        shop.loft.Rows(u"SELECT JobID, CustomerID, RiggerID, FlatRate, HourlyRate, NumHours, Comments, "
                       "DateTaskCompleted, DateTaskStarted, TaskLibID, LogBook, Status, TaskName, SystemID, PartID, "
                       "Tax, LocationID FROM tblTasks"_s),
        QStringList{u"0|%1|0|0|0|0.0| |46082|46082|1|0|-1|Inspect and repack reserve|%2|0|0|0"_s.arg(shop.owner)
                        .arg(shop.rig)});
    QCOMPARE(shop.loft.Rows(u"SELECT TaskID, CompID, Complete FROM tblTaskComponents ORDER BY CompID"_s),
             QStringList({u"1|%1|-1"_s.arg(shop.container), u"1|%1|-1"_s.arg(shop.reserve)}));
    QCOMPARE(shop.Schedules(),
             QStringList{SampleRig::ScheduleRow(shop.rig, RepackTaskLibID, Day(3, 1, 2026), Day(8, 28, 2026), 1, 0)});
  }

  void WithoutARigTheComponentItselfIsTied() {
    SampleRig shop;
    shop.loft.Run(u"update tblComponents set RigID = 0 where ID = %1"_s.arg(shop.aad));
    Date date;
    shop.prompts.ExpectInput(kProgramTitle, kQuestion, u"3/1/2026"_s);
    QVERIFY(CreateJoblessTask(shop.aadCheck, 0, shop.aad, date, {}));
    QCOMPARE(shop.loft.Rows(u"SELECT CustomerID, SystemID FROM tblTasks"_s), QStringList{u"%1|0"_s.arg(shop.owner)});
    QCOMPARE(shop.loft.Rows(u"SELECT TaskID, CompID, Complete FROM tblTaskComponents"_s),
             QStringList{u"1|%1|-1"_s.arg(shop.aad)});
    QCOMPARE(shop.Schedules(),
             QStringList{SampleRig::ScheduleRow(0, shop.aadCheck, Day(3, 1, 2026), Day(9, 1, 2026), 1, shop.aad)});
  }

  void WhatIsNoDateIsAskedAgainAndLeavingWritesNothing() {
    SampleRig shop;
    const QStringList before = shop.loft.Snapshot();
    Date date = Day(1, 1, 2000);
    shop.prompts.ExpectInput(kProgramTitle, kQuestion, u"soon"_s);
    shop.prompts.ExpectBox(u"Oops!"_s, u"soon is not a valid date"_s);
    shop.prompts.ExpectInput(kProgramTitle, kQuestion, QString());
    QVERIFY(!CreateJoblessTask(RepackTaskLibID, shop.rig, 0, date, {}));
    QVERIFY(date.IsNone());
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void ADateThatIsNotAfterTheMinimumIsRefused_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::newRow("the minimum itself") << u"2/28/2026"_s << u"02/28/2026"_s;
    QTest::newRow("before it") << u"2/27/2026"_s << u"02/27/2026"_s;
  }
  void ADateThatIsNotAfterTheMinimumIsRefused() {
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    SampleRig shop;
    const QStringList before = shop.loft.Snapshot();
    Date date;
    shop.prompts.ExpectInput(kProgramTitle, kQuestion, typed);
    shop.prompts.ExpectBox(kProgramTitle, u"You entered: "_s + shown + u"\nDate entered must be after 02/28/2026"_s);
    QVERIFY(!CreateJoblessTask(RepackTaskLibID, shop.rig, 0, date, Day(2, 28, 2026)));
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void NoLibraryEntryIsToldAndEndsThere() {
    SampleRig shop;
    const QStringList before = shop.loft.Snapshot();
    Date date;
    shop.prompts.ExpectBox(u"Sub CreateJoblessTask()   TaskLibID = -1"_s, u"you shouldn't be here"_s);
    QVERIFY(!CreateJoblessTask(-1, shop.rig, 0, date, {}));
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void ADueDateThatCantBeBuiltLeavesTheLineAndNoRow() {
    SampleRig shop;
    Date date;
    shop.prompts.ExpectInput(kProgramTitle, kQuestion, u"8/31/2025"_s);
    shop.prompts.ExpectBox(u"Sub ReplaceSchedule"_s, u"Type mismatch"_s);
    QVERIFY(CreateJoblessTask(shop.aadCheck, shop.rig, shop.aad, date, {}));
    QCOMPARE(shop.loft.Rows(u"SELECT count(*) FROM tblTasks"_s), QStringList{u"1"_s});
    QCOMPARE(shop.Schedules(), QStringList());
  }
};

QTEST_GUILESS_MAIN(TestJoblessTask)
#include "tst_jobless_task.moc"
