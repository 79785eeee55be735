#include <QtTest>

#include "schedule/rig_audit.h"
#include "schedule/sample_rig.h"
#include "schedule/schedule.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

/// The rows as a person reads them: name, done, due, left, mark, library id.
QStringList Texts(const QList<RigAuditRow>& rows) {
  QStringList shown;
  for (const RigAuditRow& row : rows)
    shown << u"%1|%2|%3|%4|%5|%6"_s.arg(row.name, row.dateDone, row.dateDue, row.timeLeft)
                 .arg(static_cast<int>(row.mark))
                 .arg(row.taskLibID);
  return shown;
}
QStringList Shown(int rigID) { return Texts(LoadRigAudit(rigID)); }
QStringList ShownOf(int componentID) { return Texts(LoadComponentAudit(componentID)); }

}  // namespace

class TestRigAudit : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void ListsWhatTheRigOwes() {
    SampleRig shop;
    QCOMPARE(Shown(shop.rig), (QStringList{u"Inspect and repack reserve|unknown|unknown|unknown|0|1"_s,
                                           u"AAD check|unknown|unknown|unknown|0|%1"_s.arg(shop.aadCheck)}));
    shop.AddRepack(Day(3, 1, 2026));
    shop.AddDone(shop.aadCheck, Day(10, 1, 2025), {shop.aad}, shop.rig);
    UpdateSchedule(1, shop.rig, 0);
    UpdateSchedule(shop.aadCheck, shop.rig, shop.aad);
    QCOMPARE(Shown(shop.rig), (QStringList{u"Inspect and repack reserve|03/01/2026|08/28/2026|166 days|0|1"_s,
                                           u"AAD check|10/01/2025|04/01/2026|17 days|1|%1"_s.arg(shop.aadCheck)}));
  }

  void MarksWhatIsDueSoonOrOver_data() {
    QTest::addColumn<int>("days");
    QTest::addColumn<int>("mark");
    QTest::newRow("31") << 31 << 0;
    QTest::newRow("30") << 30 << 1;
    QTest::newRow("1") << 1 << 1;
    QTest::newRow("0") << 0 << 0;
    QTest::newRow("-1") << -1 << 2;
  }
  void MarksWhatIsDueSoonOrOver() {
    QFETCH(int, days);
    const FixedClock clock(2026, 3, 15);
    QTEST(static_cast<int>(DueMarkOf(Day(3, 15, 2026) + days)), "mark");
  }

  void LeavesOutWhatDoesNotApply() {
    SampleRig shop;
    const int chest = shop.AddEntry("Chest check", 1, 3, {kChestReserve});
    const int model = shop.AddEntry("Cypres service", 4, 3, {kAad});
    const int typed = shop.AddEntry("Tandem check", 1, 3, {kContainer});
    shop.AddEntry("Never due", 0, 1, {kContainer});
    shop.loft.Run(u"update tblTaskLib set ModelID = 999 where ID = %1"_s.arg(model));
    shop.loft.Run(u"update tblTaskLib set IsRigTypeSpecific = true where ID = %1"_s.arg(typed));
    shop.loft.Add("tblTaskLibRigType", {{"TaskLibID", typed}, {"RigType", 2}});
    const auto names = [&] {
      QStringList list;
      for (const RigAuditRow& row : LoadRigAudit(shop.rig)) list << row.name;
      return list.join(u",");
    };
    QCOMPARE(names(), u"Inspect and repack reserve,AAD check"_s);
    shop.AddComponent("Swift", kChestReserve);
    shop.loft.Run(u"update tblTaskLib set ModelID = (select ModelID from tblComponents where ID = %1) where ID = %2"_s
                      .arg(shop.aad)
                      .arg(model));
    shop.loft.Add("tblTaskLibRigType", {{"TaskLibID", typed}, {"RigType", 1}});
    QCOMPARE(names(), u"Inspect and repack reserve,AAD check,Chest check,Cypres service,Tandem check"_s);
    QVERIFY(chest > 0);
  }

  void AnEntryWithoutRequiredTypesIsNotReadFromAnotherRig() {
    SampleRig shop;
    const int wash = shop.AddEntry("Wash", 1, 3);
    shop.AddSchedule(99, wash, Day(3, 20, 2026), 5, 0);
    QCOMPARE(Shown(shop.rig).last(), u"Wash|unknown|unknown|unknown|0|%1"_s.arg(wash));
  }

  void EndsWithTheServiceLives() {
    SampleRig shop;
    shop.loft.Run(u"update tblModels set ServiceLife = 144 where Name = 'Cypres' or Name = 'Raven'"_s);
    shop.loft.Run(u"update tblComponents set DOM = %1 where ID = %2"_s.arg(Day(3, 14, 2014).Days()).arg(shop.aad));
    // Sorted by type, whatever was entered first.
    shop.AddComponent("Pilot", kMainCanopy);
    shop.loft.Run(u"update tblModels set ServiceLife = 144 where Name = 'Pilot'"_s);
    QCOMPARE(Shown(shop.rig).mid(2),
             (QStringList{u"Pilot expiration||unknown|unknown|0|-1"_s, u"Raven expiration||unknown|unknown|0|-1"_s,
                          u"Cypres expiration||03/14/2026|Expired!|2|-1"_s}));
  }

  void OneComponentOwesItsOwnWorkAndThatOfItsRig() {
    SampleRig shop;
    shop.loft.Run(u"update tblModels set ServiceLife = 144 where Name = 'Cypres'"_s);
    const QString check = u"AAD check|unknown|unknown|unknown|0|%1"_s.arg(shop.aadCheck);
    const QString repack = u"Inspect and repack reserve|unknown|unknown|unknown|0|1"_s;
    QCOMPARE(ShownOf(shop.aad), QStringList({check, u"Cypres expiration||unknown|unknown|0|-1"_s}));
    QCOMPARE(ShownOf(shop.container), QStringList(repack));
    QCOMPARE(ShownOf(shop.reserve), QStringList(repack));
    QCOMPARE(ShownOf(shop.mainCanopy), QStringList());
    const int spare = shop.AddComponent("Vigil", kAad, 0);
    const int loose = shop.AddComponent("Wings", kContainer, 0);
    shop.AddDone(shop.aadCheck, Day(10, 1, 2025), {spare}, 0);
    UpdateSchedule(shop.aadCheck, 0, spare);
    QCOMPARE(ShownOf(spare), QStringList(u"AAD check|10/01/2025|04/01/2026|17 days|1|%1"_s.arg(shop.aadCheck)));
    QCOMPARE(ShownOf(loose), QStringList());
    shop.AddComponent("Tempo", kReserveCanopy, 0);  // loose gear is not the gear of one rig
    QCOMPARE(ShownOf(loose), QStringList());
    shop.loft.Run(u"update tblComponents set RigID = 77 where ID = %1"_s.arg(loose));
    QCOMPARE(ShownOf(loose), QStringList());
    shop.loft.Run(u"update tblTaskLib set ModelID = 999 where ID = %1"_s.arg(shop.aadCheck));
    QCOMPARE(ShownOf(spare), QStringList());
    shop.loft.Run(u"update tblTaskLib set ModelID = 0, IsRigTypeSpecific = true where ID = %1"_s.arg(shop.aadCheck));
    QCOMPARE(ShownOf(spare), QStringList());
  }

  void WorkOnOneComponentIsReadByTheComponent() {
    SampleRig shop;
    shop.AddDone(shop.aadCheck, Day(10, 1, 2025), {shop.aad}, 77);
    UpdateSchedule(shop.aadCheck, 77, shop.aad);
    const QStringList row(u"AAD check|10/01/2025|04/01/2026|17 days|1|%1"_s.arg(shop.aadCheck));
    QCOMPARE(ShownOf(shop.aad), row);
    QCOMPARE(Shown(shop.rig).mid(1), row);
  }

  void KnowsWhetherAnythingFallsDueOnAComponent() {
    SampleRig shop;
    for (int component : {shop.container, shop.reserve, shop.aad}) QVERIFY(!ComponentHasSchedule(component));
    shop.AddRepack(Day(3, 1, 2026));
    UpdateSchedule(1, shop.rig, 0);
    QVERIFY(ComponentHasSchedule(shop.container));
    QVERIFY(!ComponentHasSchedule(shop.reserve));
    shop.AddDone(shop.aadCheck, Day(10, 1, 2025), {shop.aad}, shop.rig);
    UpdateSchedule(shop.aadCheck, shop.rig, shop.aad);
    QVERIFY(ComponentHasSchedule(shop.aad));
    shop.loft.Run(u"update tblModels set ServiceLife = 144 where Name = 'Sabre'"_s);
    QVERIFY(ComponentHasSchedule(shop.mainCanopy));
  }

  void KnowsWhichComponentARowStandsFor() {
    SampleRig shop;
    QCOMPARE(ComponentOfEntry(shop.rig, shop.aadCheck), shop.aad);
    QCOMPARE(ComponentOfEntry(shop.rig, 1), 0);
    QVERIFY(EntryIsOfOneType(shop.aadCheck));
    QVERIFY(!EntryIsOfOneType(1));
  }
};

LOFT_TEST_MAIN(TestRigAudit)
#include "tst_rig_audit.moc"
