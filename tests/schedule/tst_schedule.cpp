#include <QtTest>

#include "core/failure.h"
#include "schedule/sample_rig.h"
#include "schedule/schedule.h"
#include "support/counting_form.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

class TestSchedule : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void RollsADate_data() {
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("type");
    QTest::addColumn<Date>("start");
    QTest::addColumn<Date>("due");
    QTest::newRow("days") << 180 << 1 << Day(1, 31, 2026) << Day(7, 30, 2026);
    QTest::newRow("months") << 6 << 2 << Day(3, 15, 2026) << Day(9, 15, 2026);
    QTest::newRow("months over two years") << 25 << 2 << Day(12, 15, 2026) << Day(1, 15, 2029);
    QTest::newRow("to december") << 6 << 2 << Day(6, 30, 2026) << Day(12, 30, 2026);
    QTest::newRow("years") << 4 << 3 << Day(2, 29, 2024) << Day(2, 29, 2028);
    QTest::newRow("other unit") << 4 << 0 << Day(3, 15, 2026) << Date();
    QTest::newRow("unknown unit") << 4 << 9 << Day(3, 15, 2026) << Date();
  }
  void RollsADate() {
    QFETCH(int, number);
    QFETCH(int, type);
    QFETCH(Date, start);
    const ScriptedPrompts prompts;
    QTEST(GetNextDueDate(number, type, start), "due");
  }

  void ARollToADayThatTheMonthLacksFails_data() {
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("type");
    QTest::addColumn<Date>("start");
    QTest::newRow("31 August by 6 months") << 6 << 2 << Day(8, 31, 2026);
    QTest::newRow("31 January by a month") << 1 << 2 << Day(1, 31, 2026);
    QTest::newRow("29 February by a year") << 1 << 3 << Day(2, 29, 2024);
  }
  void ARollToADayThatTheMonthLacksFails() {
    QFETCH(int, number);
    QFETCH(int, type);
    QFETCH(Date, start);
    try {
      GetNextDueDate(number, type, start);
      QFAIL("a day that the month lacks was built");
    } catch (const Failure& failure) {
      QCOMPARE(failure.Text(), u"Type mismatch"_s);
    }
  }

  void ARollFromNoDateIsNoticed() {
    ScriptedPrompts prompts;
    prompts.ExpectBox(u"Loftkeep"_s, u"startDate =0"_s);
    QCOMPARE(GetNextDueDate(10, 1, Date()).Days(), 10);
  }

  void ACompletedRepackIsScheduledByTheRigAlone() {
    SampleRig shop;
    const CountingForm form(u"frmSchedule"_s, {u"tblSchedules"_s});
    const int line = shop.AddRepack(Day(3, 1, 2026));
    const QStringList before = shop.loft.Snapshot();
    UpdateSchedule(RepackTaskLibID, shop.rig, 0);
    QCOMPARE(shop.Schedules(),
             QStringList(SampleRig::ScheduleRow(shop.rig, 1, Day(3, 1, 2026), Day(8, 28, 2026), line, 0)));
    QCOMPARE(shop.loft.ChangesSince(before).size(), 1);
    QCOMPARE(form.told, 1);
  }

  void TheRowFollowsTheLatestCompletionNotTheOneTouched() {
    SampleRig shop;
    const int late = shop.AddRepack(Day(3, 1, 2026));
    shop.AddRepack(Day(1, 1, 2026));
    UpdateSchedule(RepackTaskLibID, shop.rig, 0);
    const QString row = SampleRig::ScheduleRow(shop.rig, 1, Day(3, 1, 2026), Day(8, 28, 2026), late, 0);
    QCOMPARE(shop.Schedules(), QStringList(row));
    UpdateSchedule(RepackTaskLibID, shop.rig, 0);
    QCOMPARE(shop.Schedules(), QStringList(row));
  }

  void UncompletingBringsTheOlderCompletionBackOrTakesTheRow() {
    SampleRig shop;
    const CountingForm form(u"frmSchedule"_s, {u"tblSchedules"_s});
    const int early = shop.AddRepack(Day(1, 1, 2026));
    const int late = shop.AddRepack(Day(3, 1, 2026));
    UpdateSchedule(RepackTaskLibID, shop.rig, 0);
    shop.loft.Run(u"update tblTasks set Status = 0 where ID = %1"_s.arg(late));
    UpdateSchedule(RepackTaskLibID, shop.rig, 0);
    QCOMPARE(shop.Schedules(),
             QStringList(SampleRig::ScheduleRow(shop.rig, 1, Day(1, 1, 2026), Day(6, 30, 2026), early, 0)));
    shop.loft.Run(u"update tblTasks set Status = 1 where ID = %1"_s.arg(early));
    UpdateSchedule(RepackTaskLibID, shop.rig, 0);
    QCOMPARE(shop.Schedules(), QStringList());
    QCOMPARE(form.told, 3);
  }

  void ARepackOnAReserveSinceRemovedNoLongerCounts() {
    SampleRig shop;
    const int spare = shop.AddComponent("Tempo", kReserveCanopy, 0);
    const int early = shop.AddDone(RepackTaskLibID, Day(1, 1, 2026), {shop.container, spare}, shop.rig);
    shop.AddRepack(Day(3, 1, 2026));
    UpdateSchedule(RepackTaskLibID, shop.rig, 0);
    shop.loft.Run(u"update tblComponents set RigID = 0 where ID = %1"_s.arg(shop.reserve));
    UpdateSchedule(RepackTaskLibID, shop.rig, 0);
    QCOMPARE(shop.Schedules(), QStringList());
    shop.loft.Run(u"update tblComponents set RigID = %1 where ID = %2"_s.arg(shop.rig).arg(spare));
    UpdateSchedule(RepackTaskLibID, shop.rig, 0);
    QCOMPARE(shop.Schedules(),
             QStringList(SampleRig::ScheduleRow(shop.rig, 1, Day(1, 1, 2026), Day(6, 30, 2026), early, 0)));
  }

  void AComponentInNoRigIsScheduledByItself() {
    SampleRig shop;
    const int spare = shop.AddComponent("Vigil", kAad, 0);
    const int early = shop.AddDone(shop.aadCheck, Day(1, 10, 2026), {spare}, 0);
    const int late = shop.AddDone(shop.aadCheck, Day(2, 10, 2026), {spare}, 0);
    UpdateSchedule(shop.aadCheck, 0, spare);
    QCOMPARE(shop.Schedules(),
             QStringList(SampleRig::ScheduleRow(0, shop.aadCheck, Day(2, 10, 2026), Day(8, 10, 2026), late, spare)));
    shop.loft.Run(u"update tblTaskComponents set Complete = false where TaskID = %1"_s.arg(late));
    UpdateSchedule(shop.aadCheck, 0, spare);
    QCOMPARE(shop.Schedules(),
             QStringList(SampleRig::ScheduleRow(0, shop.aadCheck, Day(1, 10, 2026), Day(7, 10, 2026), early, spare)));
    shop.loft.Run(u"delete * from tblTaskComponents"_s);
    UpdateSchedule(shop.aadCheck, 0, spare);
    QCOMPARE(shop.Schedules(), QStringList());
  }

  void AnEntryWithoutAnIntervalKeepsItsRowsUntouched() {
    SampleRig shop;
    const int line = shop.AddDone(shop.aadCheck, Day(2, 10, 2026), {shop.aad}, shop.rig);
    UpdateSchedule(shop.aadCheck, shop.rig, shop.aad);
    shop.loft.Run(u"update tblTaskLib set IntervalNumber = 0, IntervalType = 0 where ID = %1"_s.arg(shop.aadCheck));
    const QStringList before = shop.loft.Snapshot();
    UpdateSchedule(shop.aadCheck, shop.rig, shop.aad);
    ReplaceSchedule(shop.rig, shop.aadCheck, Day(3, 1, 2026), line, shop.aad);
    int id = 7;
    AddSchedule(shop.rig, shop.aadCheck, line, Day(3, 1, 2026), shop.aad, id);
    UpdateSchedule(0, shop.rig, 0);
    QCOMPARE(id, 0);
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
    QCOMPARE(shop.Schedules().size(), 1);
    // Not even the loss of its completion takes the row.
    shop.loft.Run(u"delete * from tblTasks"_s);
    UpdateSchedule(shop.aadCheck, shop.rig, shop.aad);
    QCOMPARE(shop.Schedules().size(), 1);
  }

  void ARigsRowFollowsTheWorkOnThatRig() {
    SampleRig shop;
    const int here = shop.AddDone(shop.aadCheck, Day(1, 10, 2026), {shop.aad}, shop.rig);
    shop.AddDone(shop.aadCheck, Day(2, 10, 2026), {shop.aad}, shop.rig + 1);
    UpdateSchedule(shop.aadCheck, shop.rig, shop.aad);
    QCOMPARE(shop.Schedules(), QStringList(SampleRig::ScheduleRow(shop.rig, shop.aadCheck, Day(1, 10, 2026),
                                                                  Day(7, 10, 2026), here, shop.aad)));
  }

  void ADueDateThatCantBeBuiltLeavesNoRow() {
    SampleRig shop;
    shop.AddDone(shop.aadCheck, Day(2, 10, 2026), {shop.aad}, shop.rig);
    UpdateSchedule(shop.aadCheck, shop.rig, shop.aad);
    QCOMPARE(shop.Schedules().size(), 1);
    const int line = shop.AddDone(shop.aadCheck, Day(8, 31, 2026), {shop.aad}, shop.rig);
    shop.prompts.ExpectBox(u"Sub ReplaceSchedule"_s, u"Type mismatch"_s).WithIcon(Icon::Exclamation);
    UpdateSchedule(shop.aadCheck, shop.rig, shop.aad);
    QCOMPARE(shop.Schedules(), QStringList());
    QCOMPARE(shop.loft.Rows(u"select Status from tblTasks where ID = %1"_s.arg(line)), QStringList(u"-1"_s));
    int id = 7;
    shop.prompts.ExpectBox(u"Sub AddSchedule"_s, u"Type mismatch"_s);
    AddSchedule(shop.rig, shop.aadCheck, line, Day(8, 31, 2026), shop.aad, id);
    QCOMPARE(id, 0);
    QCOMPARE(shop.Schedules(), QStringList());
  }

  void ARowThatIsStillThereIsReusedWithANotice() {
    SampleRig shop;
    shop.AddSchedule(shop.rig, RepackTaskLibID, Day(5, 1, 2026), 3, shop.container);
    shop.prompts.ExpectBox(u"Loftkeep"_s, u"shouldn't this be empty?"_s);
    ReplaceSchedule(0, RepackTaskLibID, Day(3, 1, 2026), 9, shop.container);
    QCOMPARE(shop.Schedules(),
             QStringList(SampleRig::ScheduleRow(0, 1, Day(3, 1, 2026), Day(8, 28, 2026), 9, shop.container)));
  }

  void DeletesARepackByItsRigAndOtherWorkByRigOrComponent() {
    SampleRig shop;
    const auto fill = [&] {
      shop.loft.Run(u"delete * from tblSchedules"_s);
      shop.AddSchedule(shop.rig, 1, Day(5, 1, 2026), 1, 0);
      shop.AddSchedule(shop.rig, 4, Day(5, 2, 2026), 2, shop.aad);
      shop.AddSchedule(0, 4, Day(5, 3, 2026), 3, shop.aad);
      shop.AddSchedule(77, 4, Day(5, 4, 2026), 4, 78);
    };
    const auto tasksLeft = [&] { return shop.loft.Rows(u"select TaskID from tblSchedules"_s).join(u","); };
    fill();
    DeleteSchedule(shop.rig, 1, shop.aad);
    QCOMPARE(tasksLeft(), u"2,3,4"_s);
    fill();
    DeleteSchedule(shop.rig, 4, 78);
    QCOMPARE(tasksLeft(), u"1,3,4"_s);
    fill();
    DeleteSchedule(0, 4, shop.aad);
    QCOMPARE(tasksLeft(), u"1,4"_s);
    fill();
    DeleteSchedule(0, 1, 78);
    QCOMPARE(tasksLeft(), u"1,2,3,4"_s);
  }

  void AddsARowBesideOthers() {
    SampleRig shop;
    int first = 0;
    int second = 0;
    AddSchedule(shop.rig, shop.aadCheck, 8, Day(3, 1, 2026), shop.aad, first);
    AddSchedule(shop.rig, shop.aadCheck, 9, Day(4, 1, 2026), shop.aad, second);
    QVERIFY(first > 0 && second > first);
    QCOMPARE(
        shop.Schedules(),
        (QStringList{SampleRig::ScheduleRow(shop.rig, shop.aadCheck, Day(3, 1, 2026), Day(9, 1, 2026), 8, shop.aad),
                     SampleRig::ScheduleRow(shop.rig, shop.aadCheck, Day(4, 1, 2026), Day(10, 1, 2026), 9, shop.aad)}));
  }

  void ReadsDueDates() {
    SampleRig shop;
    shop.AddSchedule(shop.rig, 4, Day(5, 8, 2026), 2, shop.aad);
    shop.AddSchedule(shop.rig, 1, Day(5, 9, 2026), 1, 0);
    shop.AddSchedule(shop.rig, 5, Day(5, 2, 2026), 4, shop.container);
    shop.AddSchedule(0, 1, Day(4, 1, 2026), 3, shop.aad);
    QCOMPARE(GetDueDateByRig(shop.rig, 1), Day(5, 9, 2026));
    QCOMPARE(GetDueDateByRig(shop.rig, 2), Date());
    QCOMPARE(GetDueDateByComponent(shop.aad, 4), Day(5, 8, 2026));
    QCOMPARE(GetDueDateByComponent(shop.reserve, 4), Date());
    QCOMPARE(GetEarliestDueByRig(shop.rig), Day(5, 2, 2026));
    QCOMPARE(GetEarliestDueByRig(99), Date());
    QCOMPARE(GetEarliestDueByComponent(shop.aad), Day(4, 1, 2026));
    QCOMPARE(GetEarliestDueByComponent(shop.reserve), Date());
    int id = 0;
    QCOMPARE(GetRepackDue(shop.rig, id), Day(5, 9, 2026));
    QCOMPARE(shop.loft.Rows(u"select TaskID from tblSchedules where ID = %1"_s.arg(id)), QStringList(u"1"_s));
    QCOMPARE(GetRepackDue(99, id), Date());
    QCOMPARE(id, 0);
  }

  void AComponentLeavesItsRigOnTheSchedule_data() {
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("repackGoes");
    QTest::newRow("container") << int{kContainer} << true;
    QTest::newRow("reserve") << int{kReserveCanopy} << true;
    QTest::newRow("AAD") << int{kAad} << false;
    QTest::newRow("main") << int{kMainCanopy} << false;
  }
  void AComponentLeavesItsRigOnTheSchedule() {
    QFETCH(int, type);
    QFETCH(bool, repackGoes);
    SampleRig shop;
    const int component = type == kContainer       ? shop.container
                          : type == kReserveCanopy ? shop.reserve
                          : type == kAad           ? shop.aad
                                                   : shop.mainCanopy;
    const int other = type == kAad ? shop.mainCanopy : shop.aad;
    const Date due = Day(5, 1, 2026);
    shop.AddSchedule(shop.rig, 1, due, 1, 0);
    shop.AddSchedule(shop.rig, 5, due, 2, component);
    shop.AddSchedule(shop.rig, 4, due, 3, other);
    RemoveComponentFromSchedule(component, shop.rig);
    QStringList expected;
    if (!repackGoes) expected << SampleRig::ScheduleRow(shop.rig, 1, due - 180, due, 1, 0);
    expected << SampleRig::ScheduleRow(0, 5, due - 180, due, 2, component)
             << SampleRig::ScheduleRow(shop.rig, 4, due - 180, due, 3, other);
    QCOMPARE(shop.Schedules(), expected);
  }
};

LOFT_TEST_MAIN(TestSchedule)
#include "tst_schedule.moc"
