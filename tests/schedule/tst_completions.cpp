#include <QtTest>

#include "schedule/completions.h"
#include "schedule/sample_rig.h"
#include "schedule/task_library.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

class TestCompletions : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void ARepackMatchesTheContainerAndReserveThatTheRigWears() {
    SampleRig shop;
    const int both = shop.AddRepack(Day(1, 1, 2026));
    const int containerOnly = shop.AddDone(1, Day(1, 1, 2026), {shop.container}, shop.rig);
    const int reserveOnly = shop.AddDone(1, Day(1, 1, 2026), {shop.reserve}, shop.rig);
    QVERIFY(TaskMatchesRig(both, shop.rig, 1));
    QVERIFY(!TaskMatchesRig(containerOnly, shop.rig, 1));
    QVERIFY(!TaskMatchesRig(reserveOnly, shop.rig, 1));
    shop.loft.Run(u"update tblComponents set RigID = 0 where ID = %1"_s.arg(shop.container));
    QVERIFY(!TaskMatchesRig(both, shop.rig, 1));
  }

  void OtherEntriesAlwaysMatch() {
    SampleRig shop;
    QVERIFY(TaskMatchesRig(99, shop.rig, shop.aadCheck));
    const int noTypes = shop.AddEntry("Wash", 1, 3);
    QVERIFY(TaskMatchesRig(99, shop.rig, noTypes));
    const int two = shop.AddEntry("Assemble", 1, 3, {kContainer, kMainCanopy});
    QVERIFY(TaskMatchesRig(99, shop.rig, two));
    const int three = shop.AddEntry("Inspect all", 1, 3, {1, 2, 3});
    shop.prompts.ExpectBox(u"Loftkeep"_s, u"3"_s);
    QVERIFY(TaskMatchesRig(99, shop.rig, three));
  }

  void WhatShouldNotBeAskedIsNoticed() {
    SampleRig shop;
    shop.prompts.ExpectBox(u"Loftkeep"_s, u"taskid = 0"_s);
    QVERIFY(!TaskMatchesRig(0, shop.rig, 1));
    shop.prompts.ExpectBox(u"Loftkeep"_s, u"rigID = 0. this shouldn't be"_s);
    QVERIFY(!TaskMatchesRig(5, 0, 1));
    shop.prompts.ExpectBox(u"Loftkeep"_s, u"rigID = 0. this shouldn't be"_s);
    QVERIFY(TaskMatchesRig(0, 0, shop.aadCheck));
  }

  void TheLatestMatchingCompletionOfARigCounts() {
    SampleRig shop;
    const int first = shop.AddRepack(Day(1, 5, 2026));
    shop.AddDone(1, Day(3, 5, 2026), {shop.container, shop.mainCanopy}, shop.rig);
    const int open = shop.AddRepack(Day(4, 5, 2026));
    shop.loft.Run(u"update tblTasks set Status = 0 where ID = %1"_s.arg(open));
    shop.AddDone(1, Day(5, 5, 2026), {shop.container, shop.reserve}, shop.rig + 1);
    shop.AddDone(shop.aadCheck, Day(6, 5, 2026), {shop.container, shop.reserve}, shop.rig);
    int task = 0;
    QCOMPARE(LastCompletionForRig(shop.rig, 1, task), Day(1, 5, 2026));
    QCOMPARE(task, first);
    QCOMPARE(LastCompletionForRig(99, 1, task), Date());
    QCOMPARE(task, 0);
  }

  void TheLatestCompletionOfAComponentCounts() {
    SampleRig shop;
    const int late = shop.AddDone(shop.aadCheck, Day(2, 5, 2026), {shop.aad}, 0);
    shop.AddDone(shop.aadCheck, Day(1, 5, 2026), {shop.aad}, shop.rig);
    shop.AddDone(1, Day(3, 5, 2026), {shop.aad}, shop.rig);
    const int open = shop.AddDone(shop.aadCheck, Day(4, 5, 2026), {shop.aad}, 0);
    shop.loft.Run(u"update tblTaskComponents set Complete = false where TaskID = %1"_s.arg(open));
    int task = 0;
    QCOMPARE(LastCompletionForComponent(shop.aad, shop.aadCheck, task), Day(2, 5, 2026));
    QCOMPARE(task, late);
    QCOMPARE(LastCompletionForComponent(shop.reserve, shop.aadCheck, task), Date());
    QCOMPARE(task, 0);
  }

  void OfCompletionsOnOneDayAComponentTakesTheFirst() {
    SampleRig shop;
    const Date day = Day(2, 5, 2026);
    const int first = shop.AddDone(shop.aadCheck, day, {}, shop.rig);
    shop.AddDone(shop.aadCheck, day, {shop.aad}, shop.rig);
    shop.loft.Add("tblTaskComponents", {{"TaskID", first}, {"CompID", shop.aad}, {"Complete", true}});
    shop.AddDone(shop.aadCheck, day, {shop.aad}, shop.rig);
    int task = 0;
    QCOMPARE(LastCompletionForComponent(shop.aad, shop.aadCheck, task), day);
    QCOMPARE(task, first);
    QCOMPARE(LatestOf(AllCompletions().value(shop.aad), shop.aadCheck).taskID, first);
  }

  void OfCompletionsOnOneDayARigTakesTheLast() {
    SampleRig shop;
    shop.AddRepack(Day(2, 5, 2026));
    const int last = shop.AddRepack(Day(2, 5, 2026));
    int task = 0;
    QCOMPARE(LastCompletionForRig(shop.rig, RepackTaskLibID, task), Day(2, 5, 2026));
    QCOMPARE(task, last);
  }

  void AMissingReserveMatchesNoWork() {
    SampleRig shop;
    const int task = shop.AddRepack(Day(2, 5, 2026));
    shop.loft.Add("tblTaskComponents", {{"TaskID", task}, {"CompID", 0}, {"Complete", true}});
    shop.loft.Run(u"update tblComponents set RigID = 0 where ID = %1"_s.arg(shop.reserve));
    QVERIFY(!TaskMatchesRig(task, shop.rig, RepackTaskLibID));
    int found = 0;
    QVERIFY(LastRepackOfPair(shop.container, 0, found).IsNone());
    QVERIFY(LastRepackOfPair(0, shop.reserve, found).IsNone());
    QCOMPARE(found, 0);
  }

  void AnEntryTellsTheTypesItConcerns() {
    SampleRig shop;
    QList<int> types;
    GetComponentTypesForTask(types, 1);
    QCOMPARE(types, (QList<int>{1, 3}));
    QCOMPARE(RequiredComponentTypes(1), (QList<int>{1, 3}));
    GetComponentTypesForTask(types, InstallTaskLibID);
    QCOMPARE(types, QList<int>{0});
    QCOMPARE(RequiredComponentTypes(InstallTaskLibID), QList<int>());
    shop.loft.Run(u"update tblTaskLib set ModelID = (select ModelID from tblComponents where ID = %1) where ID = %2"_s
                      .arg(shop.reserve)
                      .arg(shop.aadCheck));
    GetComponentTypesForTask(types, shop.aadCheck);
    QCOMPARE(types, QList<int>{3});
  }

  void AnEntryIsReadFieldByField() {
    SampleRig shop;
    const int id = shop.loft.Add("tblTaskLib", {{"Name", "Reline"},
                                                {"FlatRate", Money::Whole(150)},
                                                {"HourlyRate", Money::FromUnits(125000)},
                                                {"LogBook", true},
                                                {"AllowMultiple", true},
                                                {"IntervalNumber", 3},
                                                {"IntervalType", 3},
                                                {"ModelID", 17},
                                                {"IsEvent", true}});
    QCOMPARE(TaskLibName(id), u"Reline"_s);
    QCOMPARE(TaskLibFlatRate(id), Money::Whole(150));
    QCOMPARE(TaskLibHourlyRate(id), Money::FromUnits(125000));
    QVERIFY(TaskLibLogBook(id) && TaskLibAllowMultiple(id) && TaskLibIsEvent(id) && TaskLibExists(id));
    QCOMPARE(IntervalNumber(id), 3);
    QCOMPARE(IntervalType(id), 3);
    QCOMPARE(TaskLibModelID(id), 17);
    QVERIFY(!TaskLibExists(99));
    QCOMPARE(TaskLibName(99), QString());
    QCOMPARE(IntervalNumber(99), 0);
  }
};

LOFT_TEST_MAIN(TestCompletions)
#include "tst_completions.moc"
