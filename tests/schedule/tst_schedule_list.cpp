#include <QtTest>

#include "schedule/sample_rig.h"
#include "schedule/schedule.h"
#include "schedule/schedule_list.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

using Whose = ScheduleFilter::Whose;

/// "id|customer|gear|task|done|due|left" of each row.
QStringList Told(const ScheduleFilter& filter = {}) {
  QStringList rows;
  for (const ScheduleEntry& entry : LoadSchedule(filter))
    rows << QStringList{QString::number(entry.id),         entry.customer, entry.gear, entry.task, entry.dateDone,
                        QString::number(entry.due.Days()), entry.timeLeft}
                .join(u'|');
  return rows;
}

void GiveLife(const SampleRig& shop, Date manufactured) {
  shop.loft.Run(u"update tblModels set ServiceLife = 144 where Name = 'Cypres'"_s);
  shop.loft.Run(u"update tblComponents set DOM = %1 where ID = %2"_s.arg(manufactured.Days()).arg(shop.aad));
}

}  // namespace

class TestScheduleList : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void RowsComeByDueDateAndServiceLivesBehindThem() {
    SampleRig shop;
    const int repack = shop.AddRepack(Day(1, 10, 2026));
    shop.AddSchedule(0, shop.aadCheck, Day(8, 1, 2026), 0, shop.aad);
    shop.AddSchedule(shop.rig, RepackTaskLibID, Day(7, 9, 2026), repack, 0);
    shop.loft.Run(u"update tblSchedules set DateDone = %1 where ID = 1"_s.arg(Day(1, 2, 2026).Days()));
    GiveLife(shop, Day(4, 20, 2014));
    QCOMPARE(Told(),
             QStringList({u"2|Owner, Olaf|Blue/Javelin, Raven|Inspect and repack reserve|01/10/2026|46212|116 days"_s,
                          u"1|Owner, Olaf|Blue / Cypres|AAD check|01/02/2026|46235|139 days"_s,
                          u"-888|Owner, Olaf|Cypres/Blue|End of service life|Expires on:|46132|36 days"_s}));
    const QList<ScheduleEntry> rows = LoadSchedule({});
    QCOMPARE(rows[1].rigID, shop.rig);  // where the component is now
    QCOMPARE(rows[1].ownerID, shop.owner);
    QCOMPARE(rows[2].taskLibID, kServiceLifeRow);
    QCOMPARE(rows[2].componentID, shop.aad);
    QCOMPARE(rows[2].rigID, shop.rig);
  }

  void AServiceLifeWithoutADateOfManufactureHasNoEnd() {
    SampleRig shop;
    GiveLife(shop, Date());
    QCOMPARE(Told(), QStringList());
  }

  void OneTaskIsListedWithoutServiceLives() {
    SampleRig shop;
    shop.AddSchedule(0, shop.aadCheck, Day(8, 1, 2026), 0, shop.aad);
    shop.AddSchedule(shop.rig, RepackTaskLibID, Day(7, 9, 2026), 0, 0);
    GiveLife(shop, Day(4, 20, 2014));
    QCOMPARE(Told({.taskLibID = shop.aadCheck}),
             QStringList{u"1|Owner, Olaf|Blue / Cypres|AAD check|02/02/2026|46235|139 days"_s});
  }

  void RowsOfOneCustomerOrOneRig() {
    SampleRig shop;
    const int spare =
        shop.loft.Add("tblRig", {{"OwnerID", shop.rigger}, {"TypeID", 1}, {"rigAlias", "Spare"}, {"Comment", " "}});
    shop.AddSchedule(shop.rig, RepackTaskLibID, Day(7, 9, 2026), 0, 0);
    shop.AddSchedule(spare, RepackTaskLibID, Day(6, 9, 2026), 0, 0);
    shop.AddSchedule(0, shop.aadCheck, Day(8, 1, 2026), 0, shop.aad);
    GiveLife(shop, Day(4, 20, 2014));
    const auto ids = [](const ScheduleFilter& filter) {
      QList<int> found;
      for (const ScheduleEntry& entry : LoadSchedule(filter)) found << entry.id;
      return found;
    };
    QCOMPARE(ids({}), (QList<int>{2, 1, 3, kServiceLifeRow}));
    QCOMPARE(ids({.whose = Whose::Customer, .customer = shop.owner}), (QList<int>{1, 3, kServiceLifeRow}));
    QCOMPARE(ids({.whose = Whose::Customer, .customer = shop.rigger}), (QList<int>{2}));
    QCOMPARE(ids({.whose = Whose::Rig, .rig = shop.rig}), (QList<int>{1, 3, kServiceLifeRow}));
    QCOMPARE(ids({.whose = Whose::Rig, .rig = spare}), (QList<int>{2}));
  }

  void ARowWhoseRigIsGoneStandsUnderItsComponent() {
    SampleRig shop;
    shop.AddSchedule(99, shop.aadCheck, Day(8, 1, 2026), 0, shop.aad);
    shop.AddSchedule(99, RepackTaskLibID, Day(8, 2, 2026), 0, 0);
    shop.loft.Run(u"update tblComponents set RigID = 0, OwnerID = 0 where ID = %1"_s.arg(shop.mainCanopy));
    shop.AddSchedule(0, shop.aadCheck, Day(8, 3, 2026), 0, shop.mainCanopy);
    GiveLife(shop, Day(4, 20, 2014));
    shop.loft.Run(u"update tblComponents set RigID = 99 where ID = %1"_s.arg(shop.aad));
    QStringList gear;
    QStringList customers;
    for (const ScheduleEntry& entry : LoadSchedule({})) {
      gear << entry.gear;
      customers << entry.customer;
    }
    QCOMPARE(gear, QStringList({u"Cypres (not part of a rig)"_s, u"(none) (not part of a rig)"_s,
                                u"Sabre (not part of a rig)"_s, u"Cypres (not part of a rig)"_s}));
    QCOMPARE(customers, QStringList({u"none"_s, u"none"_s, u"none"_s, u"Owner, Olaf"_s}));
  }

  void RowsOfNothingAreOfferedForDeletionAtEachLoad() {
    SampleRig shop;
    shop.AddSchedule(0, RepackTaskLibID, Day(7, 9, 2026), 0, 0);
    shop.AddSchedule(shop.rig, RepackTaskLibID, Day(7, 9, 2026), 0, 0);
    const QString question = u"tblSchedule - rigID = 0 and ComponentID =0\nfound record.  delete it?"_s;
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.Expect(kProgramTitle, question, Answer::No);
    QCOMPARE(LoadSchedule({}).size(), 2);
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
    shop.prompts.Expect(kProgramTitle, question, Answer::Yes);
    QCOMPARE(LoadSchedule({}).size(), 1);
    QCOMPARE(shop.loft.TouchedSince(before), QStringList{u"-tblSchedules|1"_s});
    LoadSchedule({});
  }

  void ADeletedRowComesBackWithTheNextCompletion() {
    SampleRig shop;
    shop.AddRepack(Day(1, 10, 2026));
    UpdateSchedule(RepackTaskLibID, shop.rig, 0);
    const QStringList rows = shop.Schedules();
    const QStringList before = shop.loft.Snapshot();
    const QString question = u"Delete this item from the schedule?"_s;
    shop.prompts.Expect(u"Blue"_s, question, Answer::No).WithPreset(Answer::No);
    QVERIFY(!DeleteScheduleEntry(1, u"Blue"_s));
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
    shop.prompts.Expect(u"Blue"_s, question, Answer::Yes);
    QVERIFY(DeleteScheduleEntry(1, u"Blue"_s));
    QCOMPARE(shop.loft.TouchedSince(before), QStringList{u"-tblSchedules|1"_s});
    UpdateSchedule(RepackTaskLibID, shop.rig, 0);
    QCOMPARE(shop.Schedules(), rows);
    QVERIFY(!DeleteScheduleEntry(kServiceLifeRow, u"Blue"_s));
    QCOMPARE(shop.Schedules(), rows);
  }
};

LOFT_TEST_MAIN(TestScheduleList)
#include "tst_schedule_list.moc"
