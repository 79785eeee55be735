#include <QtTest>

#include "schedule/completions.h"
#include "schedule/rig_audit.h"
#include "schedule/sample_rig.h"
#include "schedule/schedule.h"
#include "schedule/scheduled_task.h"
#include "support/counting_form.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

const QString kAskDate = u"Enter date peformed"_s;

void ExpectRepackQuestion(SampleRig& shop, const QString& date, Answer answer) {
  shop.prompts
      .Expect(u"Use this date?"_s,
              u"The latest repack date for this rig was performed on %1\nbut it is not on the schedule.\n\n"
              "Would you like to add this repack date to the schedule? \n\n(select NO to enter a different date)"_s.arg(
                  date),
              answer)
      .WithButtons(Buttons::YesNoCancel);
}

}  // namespace

class TestScheduledTask : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void WritesALineWithoutAJob() {
    SampleRig shop;
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.ExpectInput(kProgramTitle, kAskDate, u" 3/1/2026 "_s).Proposing(u"03/15/2026"_s);
    QVERIFY(CreateJoblessTask(RepackTaskLibID, shop.rig, 0, Day(3, 15, 2026), {}));
    const int done = Day(3, 1, 2026).Days();
    QCOMPARE(shop.loft.TouchedSince(before).size(), 4);
    QCOMPARE(
        shop.loft.Rows(u"select JobID, CustomerID, RiggerID, FlatRate, HourlyRate, NumHours, Tax, Comments, "
                       "DateTaskCompleted, DateTaskStarted, TaskLibID, LogBook, Status, TaskName, SystemID, PartID, "
                       "LocationID from tblTasks"_s),
        QStringList(u"0|%1|0|0|0|0.0|0| |%2|%2|1|0|-1|Inspect and repack reserve|%3|0|0"_s.arg(shop.owner)
                        .arg(done)
                        .arg(shop.rig)));
    QCOMPARE(shop.loft.Rows(u"select TaskID, CompID, Complete from tblTaskComponents order by CompID"_s),
             QStringList({u"1|%1|-1"_s.arg(shop.container), u"1|%1|-1"_s.arg(shop.reserve)}));
    QCOMPARE(shop.Schedules(),
             QStringList(SampleRig::ScheduleRow(shop.rig, 1, Day(3, 1, 2026), Day(8, 28, 2026), 1, 0)));
  }

  void OneComponentTakesItsOwnWork() {
    SampleRig shop;
    shop.prompts.ExpectInput(kProgramTitle, kAskDate, u"3/1/2026"_s);
    QVERIFY(CreateJoblessTask(shop.aadCheck, shop.rig, shop.aad, Day(3, 15, 2026), {}));
    QCOMPARE(shop.loft.Rows(u"select CompID from tblTaskComponents"_s), QStringList(QString::number(shop.aad)));
    QCOMPARE(shop.Schedules(), QStringList(SampleRig::ScheduleRow(shop.rig, shop.aadCheck, Day(3, 1, 2026),
                                                                  Day(9, 1, 2026), 1, shop.aad)));
  }

  void AsksUntilADateIsTyped() {
    SampleRig shop;
    const QStringList before = shop.loft.Snapshot();
    for (const auto& typed : {u"soon"_s, u"2/30/2026"_s, u"it's"_s}) {
      shop.prompts.ExpectInput(kProgramTitle, kAskDate, typed);
      shop.prompts.ExpectBox(u"Oops!"_s, typed + u" is not a valid date"_s);
    }
    shop.prompts.ExpectInput(kProgramTitle, kAskDate, QString());
    QVERIFY(!CreateJoblessTask(RepackTaskLibID, shop.rig, 0, Day(3, 15, 2026), {}));
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void TheDateMustLieAfterTheMinimum() {
    SampleRig shop;
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.ExpectInput(kProgramTitle, kAskDate, u"3/1/2026"_s);
    shop.prompts.ExpectBox(kProgramTitle, u"You entered: 03/01/2026\nDate entered must be after 03/01/2026"_s);
    QVERIFY(!CreateJoblessTask(RepackTaskLibID, shop.rig, 0, Day(3, 15, 2026), Day(3, 1, 2026)));
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
    shop.prompts.ExpectInput(kProgramTitle, kAskDate, u"3/2/2026"_s);
    QVERIFY(CreateJoblessTask(RepackTaskLibID, shop.rig, 0, Day(3, 15, 2026), Day(3, 1, 2026)));
  }

  void AnEntryOfNoneIsTold() {
    SampleRig shop;
    shop.prompts.ExpectBox(kProgramTitle, u"Sub CreateJoblessTask()   TaskLibID = 0\nyou shouldn't be here"_s);
    QVERIFY(!CreateJoblessTask(0, shop.rig, 0, Day(3, 15, 2026), {}));
  }

  void ADueDateThatCannotBeBuiltLeavesTheLine() {
    SampleRig shop;
    shop.prompts.ExpectInput(kProgramTitle, kAskDate, u"8/31/2025"_s);
    shop.prompts.ExpectBox(u"Sub ReplaceSchedule"_s, u"Type mismatch"_s);
    CreateJoblessTask(shop.aadCheck, shop.rig, shop.aad, Day(3, 15, 2026), {});
    QCOMPARE(shop.loft.Rows(u"select TaskLibID from tblTasks"_s), QStringList(QString::number(shop.aadCheck)));
    QCOMPARE(shop.Schedules(), QStringList());
  }

  void ARowOfServiceLifeIsExplained() {
    SampleRig shop;
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.ExpectBox(
        kProgramTitle,
        u"A component's expiration date is based on:\n\n      Component's date of manufacture\n"
        "      Component model's service life\n\nYou cannot manually change the expiration date but you can\n"
        "change the date of manufacture in the grid above.\n\n"
        "You can also change the model's service life using the GEAR menu\non the main screen.\n"
        "(select Component Models)"_s);
    QVERIFY(!UpdateScheduledTask(kExpiryRowTaskLibID, shop.rig, 0));
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void ARepackOnRecordIsOffered() {
    SampleRig shop;
    shop.AddRepack(Day(1, 5, 2026));
    const int task = shop.AddRepack(Day(2, 1, 2026));
    const QStringList before = shop.loft.Snapshot();
    ExpectRepackQuestion(shop, u"02/01/2026"_s, Answer::Cancel);
    QVERIFY(!UpdateScheduledTask(RepackTaskLibID, shop.rig, 0));
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
    ExpectRepackQuestion(shop, u"02/01/2026"_s, Answer::No);
    shop.prompts.ExpectInput(kProgramTitle, kAskDate, QString());
    QVERIFY(!UpdateScheduledTask(RepackTaskLibID, shop.rig, 0));
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
    ExpectRepackQuestion(shop, u"02/01/2026"_s, Answer::Yes);
    QVERIFY(UpdateScheduledTask(RepackTaskLibID, shop.rig, 0));
    QCOMPARE(shop.loft.TouchedSince(before), QStringList(u"+tblSchedules|1"_s));
    QCOMPARE(shop.Schedules(),
             QStringList(SampleRig::ScheduleRow(shop.rig, 1, Day(2, 1, 2026), Day(7, 31, 2026), task, 0)));
  }

  void ARepackOfAnotherReserveIsNotOffered() {
    SampleRig shop;
    const int other = shop.AddComponent("Tempo", kReserveCanopy, 0);
    shop.AddDone(RepackTaskLibID, Day(2, 1, 2026), {shop.container, other}, shop.rig);
    shop.loft.Run(u"update tblTasks set status = 0 where ID = %1"_s.arg(shop.AddRepack(Day(2, 5, 2026))));
    shop.prompts.ExpectInput(kProgramTitle, kAskDate, QString());
    QVERIFY(!UpdateScheduledTask(RepackTaskLibID, shop.rig, 0));
  }

  void TheNextDateLiesAfterTheLast() {
    SampleRig shop;
    shop.AddRepack(Day(2, 1, 2026));
    UpdateSchedule(RepackTaskLibID, shop.rig, 0);
    shop.prompts.ExpectInput(kProgramTitle, kAskDate, u"2/1/2026"_s);
    shop.prompts.ExpectBox(kProgramTitle, u"You entered: 02/01/2026\nDate entered must be after 02/01/2026"_s);
    QVERIFY(!UpdateScheduledTask(RepackTaskLibID, shop.rig, 0));
    shop.prompts.ExpectInput(kProgramTitle, kAskDate, u"2/2/2026"_s);
    QVERIFY(UpdateScheduledTask(RepackTaskLibID, shop.rig, 0));
    QCOMPARE(GetDueDateByRig(shop.rig, RepackTaskLibID), Day(2, 2, 2026) + 180);
  }

  void WorkThatIsNotOnTheScheduleMayBeOfAnyDay() {
    SampleRig shop;
    shop.AddRepack(Day(2, 1, 2026));
    shop.AddDone(shop.aadCheck, Day(2, 1, 2026), {shop.aad}, shop.rig);
    shop.prompts.ExpectInput(kProgramTitle, kAskDate, u"1/1/2026"_s);
    QVERIFY(UpdateScheduledTask(shop.aadCheck, shop.rig, shop.aad));
    QCOMPARE(GetDueDateByComponent(shop.aad, shop.aadCheck), Day(7, 1, 2026));
    ExpectRepackQuestion(shop, u"02/01/2026"_s, Answer::No);
    shop.prompts.ExpectInput(kProgramTitle, kAskDate, u"1/2/2026"_s);
    QVERIFY(UpdateScheduledTask(RepackTaskLibID, shop.rig, 0));
    QCOMPARE(GetDueDateByRig(shop.rig, RepackTaskLibID), Day(1, 2, 2026) + 180);
  }

  void FindsTheLatestRepackOfAPairOnAnyRig() {
    SampleRig shop;
    int task = 0;
    const int open = shop.AddRepack(Day(3, 5, 2026));
    shop.loft.Run(u"update tblTasks set status = 0, DateTaskCompleted = 0 where ID = %1"_s.arg(open));
    QVERIFY(LastRepackOfPair(shop.container, shop.reserve, task).IsNone());
    QCOMPARE(task, 0);
    const int latest = shop.AddDone(RepackTaskLibID, Day(2, 1, 2026), {shop.reserve, shop.container}, 77);
    shop.AddRepack(Day(1, 1, 2026));
    shop.AddRepack(Day(2, 1, 2026));
    shop.AddDone(RepackTaskLibID, Day(3, 1, 2026), {shop.container}, shop.rig);
    shop.AddDone(shop.aadCheck, Day(3, 2, 2026), {shop.container, shop.reserve}, shop.rig);
    QCOMPARE(LastRepackOfPair(shop.container, shop.reserve, task), Day(2, 1, 2026));
    QCOMPARE(task, latest);
    QVERIFY(LastRepackOfPair(shop.container, 0, task).IsNone());
    QCOMPARE(task, 0);
  }

  void ScreensFollowEachChange() {
    SampleRig shop;
    const CountingForm screen(u"frmGetRig"_s, {u"tblSchedules"_s});
    const int repack = shop.AddRepack(Day(2, 1, 2026));
    UpdateSchedule(RepackTaskLibID, shop.rig, 0);
    QCOMPARE(screen.told, 1);
    shop.loft.Run(u"delete from tblTasks where ID = %1"_s.arg(repack));
    UpdateSchedule(RepackTaskLibID, shop.rig, 0);
    QCOMPARE(screen.told, 2);
    // The row goes even where the new date can't be built.
    shop.AddSchedule(shop.rig, shop.aadCheck, Day(8, 1, 2026), 0, shop.aad);
    QCOMPARE(screen.told, 3);
    shop.prompts.ExpectBox(u"Sub ReplaceSchedule"_s, u"Type mismatch"_s);
    ReplaceSchedule(shop.rig, shop.aadCheck, Day(8, 31, 2025), 1, shop.aad);
    QCOMPARE(screen.told, 4);
    QCOMPARE(shop.Schedules(), QStringList());
  }
};

LOFT_TEST_MAIN(TestScheduledTask)
#include "tst_scheduled_task.moc"
