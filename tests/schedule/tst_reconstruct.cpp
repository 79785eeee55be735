#include <QtTest>

#include "schedule/reconstruct.h"
#include "schedule/sample_rig.h"
#include "support/test_program.h"
#include "support/work_watch.h"

using namespace Qt::StringLiterals;

class TestReconstruct : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void GivesARigOneRepackRowThroughItsContainer() {
    SampleRig shop;
    const int line = shop.AddRepack(Day(3, 1, 2026));
    const int check = shop.AddDone(shop.aadCheck, Day(2, 10, 2026), {shop.aad}, shop.rig);
    shop.AddSchedule(shop.rig, 9, Day(1, 1, 2026), 77, 78);
    ReconstructSchedules();
    QCOMPARE(shop.Schedules(),
             (QStringList{
                 SampleRig::ScheduleRow(shop.rig, 1, Day(3, 1, 2026), Day(8, 28, 2026), line, 0),
                 SampleRig::ScheduleRow(shop.rig, shop.aadCheck, Day(2, 10, 2026), Day(8, 10, 2026), check, shop.aad),
             }));
  }

  void DoesNotLookAtTheRigsPresentGear() {
    SampleRig shop;
    const int line = shop.AddRepack(Day(3, 1, 2026));
    shop.loft.Run(u"update tblComponents set RigID = 0 where ID = %1"_s.arg(shop.reserve));
    ReconstructSchedules();
    QCOMPARE(shop.Schedules(),
             QStringList(SampleRig::ScheduleRow(shop.rig, 1, Day(3, 1, 2026), Day(8, 28, 2026), line, 0)));
  }

  void AnEntryOfTwoTypesGivesARowToEachComponent() {
    SampleRig shop;
    const int entry = shop.AddEntry("Assemble", 1, 3, {kContainer, kMainCanopy});
    const int line = shop.AddDone(entry, Day(3, 1, 2026), {shop.container, shop.mainCanopy}, shop.rig);
    const int loose = shop.AddComponent("Stiletto", kMainCanopy, 0);
    const int other = shop.AddDone(entry, Day(2, 1, 2026), {loose}, 0);
    ReconstructSchedules();
    const QString row = SampleRig::ScheduleRow(shop.rig, entry, Day(3, 1, 2026), Day(3, 1, 2027), line, 0);
    QCOMPARE(shop.Schedules(),
             (QStringList{row, row, SampleRig::ScheduleRow(0, entry, Day(2, 1, 2026), Day(2, 1, 2027), other, 0)}));
  }

  void AnEntryWithoutRequiredTypesNamesNoComponent() {
    SampleRig shop;
    const int wash = shop.AddEntry("Wash", 1, 3);
    const int line = shop.AddDone(wash, Day(3, 1, 2026), {shop.aad}, shop.rig);
    ReconstructSchedules();
    QCOMPARE(shop.Schedules(),
             QStringList(SampleRig::ScheduleRow(shop.rig, wash, Day(3, 1, 2026), Day(3, 1, 2027), line, 0)));
  }

  void RowsComeByComponentTypeAndThenByEntry() {
    SampleRig shop;
    const int battery = shop.AddEntry("Battery", 2, 3, {kAad});
    const int reline = shop.AddEntry("Reline", 5, 3, {kMainCanopy});
    const int loose = shop.AddComponent("Stiletto", kMainCanopy, 0);
    for (int entry : {battery, shop.aadCheck}) shop.AddDone(entry, Day(3, 1, 2026), {shop.aad}, shop.rig);
    shop.AddDone(reline, Day(3, 1, 2026), {loose}, 0);
    ReconstructSchedules();
    QCOMPARE(shop.loft.Rows(u"select TaskLibID from tblSchedules order by ID"_s),
             (QStringList{QString::number(reline), QString::number(shop.aadCheck), QString::number(battery)}));
  }

  void AComponentInNoRigHasARowOfItsOwn() {
    SampleRig shop;
    const int loose = shop.AddComponent("Vigil", kAad, 0);
    const int line = shop.AddDone(shop.aadCheck, Day(2, 1, 2026), {loose}, 0);
    ReconstructSchedules();
    QCOMPARE(shop.Schedules(),
             QStringList(SampleRig::ScheduleRow(0, shop.aadCheck, Day(2, 1, 2026), Day(8, 1, 2026), line, loose)));
  }

  void ADateThatCantBeBuiltCostsOneRowAndABox() {
    SampleRig shop;
    shop.AddRepack(Day(3, 1, 2026));
    shop.AddDone(shop.aadCheck, Day(8, 31, 2025), {shop.aad}, shop.rig);
    shop.prompts.ExpectBox(u"Sub AddSchedule"_s, u"Type mismatch"_s);
    ReconstructSchedules();
    QCOMPARE(shop.Schedules().size(), 1);
  }

  void CancelledItLeavesTheScheduleAsItWas() {
    SampleRig shop;
    shop.AddRepack(Day(3, 1, 2026));
    shop.AddDone(shop.aadCheck, Day(8, 31, 2025), {shop.aad}, shop.rig);
    shop.AddSchedule(shop.rig, 1, Day(1, 1, 2026), 77, 0);
    const QStringList before = shop.loft.Snapshot();
    WorkWatch watch;
    watch.cancels = true;
    shop.prompts.ExpectBox(u"Sub AddSchedule"_s, u"Type mismatch"_s).Meanwhile(&WorkWatch::LetTimePass);
    ReconstructSchedules();
    QCOMPARE(shop.loft.Snapshot(), before);
    QCOMPARE(watch.shown.size(), 1);
    QCOMPARE(QStringList(QString::number(watch.shown[0].total)),
             shop.loft.Rows(u"select count(*) from tblComponents"_s));
    QVERIFY(watch.shown[0].done > 0 && !watch.isShown);
    watch.cancels = false;
    shop.prompts.ExpectBox(u"Sub AddSchedule"_s, u"Type mismatch"_s);
    ReconstructSchedules();
    QCOMPARE(shop.Schedules().size(), 1);
    QVERIFY(shop.loft.Snapshot() != before);
  }

  void ACancelledAuditPutsNothingRightAndTellsNothing() {
    SampleRig shop;
    constexpr int kRows = 20000;
    const int line = shop.AddDone(shop.aadCheck, Day(2, 1, 2026), {shop.aad}, shop.rig);
    shop.loft.Run(u"insert into tblSchedules (rigID, TaskLibID, TaskID) values (%1, 7, %2)"_s.arg(shop.rig).arg(line));
    for (int rows = 1; rows < kRows; rows *= 2)
      shop.loft.Run(
          u"insert into tblSchedules (rigID, TaskLibID, TaskID) select rigID, TaskLibID, TaskID from "
          "tblSchedules"_s);
    WorkWatch watch;
    watch.cancels = true;
    AuditScheduleTaskLib();
    QCOMPARE(watch.shown.size(), 1);
    QCOMPARE(shop.loft.Rows(u"select count(*) from tblSchedules where TaskLibID <> 7"_s), QStringList(u"0"_s));
  }

  void AnEntryWithoutAnIntervalIsLeftOut() {
    SampleRig shop;
    shop.AddRepack(Day(3, 1, 2026));
    shop.loft.Run(u"update tblTaskLib set IntervalNumber = 0 where ID = 1"_s);
    ReconstructSchedules();
    QCOMPARE(shop.Schedules(), QStringList());
  }

  void TheAuditTakesTheEntryOfTheLine_data() {
    QTest::addColumn<int>("wrong");
    QTest::addColumn<QString>("message");
    QTest::newRow("none") << 0 << u"No changes were needed"_s;
    QTest::newRow("one") << 1 << u"1 update was performed"_s;
    QTest::newRow("two") << 2 << u"2 updates were performed"_s;
  }
  void TheAuditTakesTheEntryOfTheLine() {
    QFETCH(int, wrong);
    QFETCH(QString, message);
    SampleRig shop;
    for (int i = 0; i < 3; ++i) {
      const int line = shop.AddDone(shop.aadCheck, Day(2, 1, 2026), {shop.aad}, shop.rig);
      shop.AddSchedule(shop.rig, i < wrong ? 1 : shop.aadCheck, Day(8, 1, 2026), line, shop.aad);
    }
    shop.AddSchedule(shop.rig, 7, Day(8, 1, 2026), 999, shop.aad);
    shop.prompts.ExpectBox(u"Audit complete"_s, message);
    AuditScheduleTaskLib();
    const QString entry = QString::number(shop.aadCheck);
    QCOMPARE(shop.loft.Rows(u"select TaskLibID from tblSchedules order by ID"_s),
             (QStringList{entry, entry, entry, u"7"_s}));
  }
};

LOFT_TEST_MAIN(TestReconstruct)
#include "tst_reconstruct.moc"
