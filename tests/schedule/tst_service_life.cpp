#include <QtTest>

#include "schedule/sample_rig.h"
#include "schedule/service_life.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

/// The AAD lives 12 years from a date of manufacture.
void GiveLife(const SampleRig& shop, Date manufactured) {
  shop.loft.Run(u"update tblModels set ServiceLife = 144 where Name = 'Cypres'"_s);
  shop.loft.Run(u"update tblComponents set DOM = %1 where ID = %2"_s.arg(manufactured.Days()).arg(shop.aad));
}

}  // namespace

class TestServiceLife : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void AComponentEndsWithItsServiceLife() {
    SampleRig shop;
    QCOMPARE(ServiceLifeExpiry(shop.aad), Date());
    GiveLife(shop, Day(4, 20, 2014));
    QCOMPARE(ServiceLifeExpiry(shop.aad), Day(4, 20, 2026));
    QCOMPARE(ServiceLifeExpiry(shop.reserve), Date());
    GiveLife(shop, Day(2, 29, 2016));
    QCOMPARE(ServiceLifeExpiry(shop.aad), Day(2, 29, 2028));
    shop.loft.Run(u"update tblModels set ServiceLife = 12 where Name = 'Cypres'"_s);
    QCOMPARE(ServiceLifeExpiry(shop.aad), Day(2, 28, 2017));
    shop.loft.Run(u"update tblModels set ServiceLife = 40000 where Name = 'Cypres'"_s);
    QVERIFY(ServiceLifeExpiry(shop.aad) > Day(1, 1, 4000));
  }

  void ACustomersComponentsWithAServiceLifeAreListed() {
    SampleRig shop;
    QList<int> components;
    GetArrayOfCompIDWithServiceLifeThisCustomer(components, shop.owner);
    QCOMPARE(components, QList<int>());
    GiveLife(shop, Day(4, 20, 2014));
    GetArrayOfCompIDWithServiceLifeThisCustomer(components, shop.owner);
    QCOMPARE(components, QList<int>{shop.aad});
    GetArrayOfCompIDWithServiceLifeThisCustomer(components, shop.rigger);
    QCOMPARE(components, QList<int>());
    QList<int> models;
    GetArrayOfModelsWithServiceLife(models);
    QCOMPARE(models.size(), 1);
    QVERIFY(models.first() > 0);
  }

  void WorkInsideTheLimitCounts_data() {
    QTest::addColumn<bool>("byRig");
    QTest::addColumn<Date>("due");
    QTest::addColumn<bool>("inDays");
    QTest::addColumn<int>("number");
    QTest::addColumn<bool>("within");
    // The clock stands on 15 March 2026.
    QTest::newRow("last day") << true << Day(4, 14, 2026) << true << 30 << true;
    QTest::newRow("a day late") << true << Day(4, 15, 2026) << true << 30 << false;
    QTest::newRow("overdue") << true << Day(1, 1, 2020) << true << 30 << true;
    QTest::newRow("component, last day") << false << Day(4, 14, 2026) << true << 30 << true;
    QTest::newRow("end of the month") << true << Day(5, 31, 2026) << false << 2 << true;
    QTest::newRow("behind the month") << true << Day(6, 1, 2026) << false << 2 << false;
  }
  void WorkInsideTheLimitCounts() {
    QFETCH(bool, byRig);
    QFETCH(Date, due);
    QFETCH(bool, inDays);
    QFETCH(int, number);
    SampleRig shop;
    shop.AddSchedule(byRig ? shop.rig : 0, 1, due, 1, byRig ? 0 : shop.aad);
    QTEST(WithinCorrectTimeFrame(shop.owner, true, inDays, number), "within");
    QVERIFY(!WithinCorrectTimeFrame(shop.rigger, true, inDays, number));
  }

  void AServiceLifeEndingBeforeTheLimitCounts() {
    SampleRig shop;
    QVERIFY(WithinCorrectTimeFrame(shop.owner, false, true, 0));
    QVERIFY(!WithinCorrectTimeFrame(shop.owner, true, true, 30));
    GiveLife(shop, Day(4, 13, 2014));
    QVERIFY(WithinCorrectTimeFrame(shop.owner, true, true, 30));
    QVERIFY(!WithinCorrectTimeFrame(shop.rigger, true, true, 30));
    for (const Date manufactured : {Day(4, 14, 2014), Date()}) {
      GiveLife(shop, manufactured);
      QVERIFY(!WithinCorrectTimeFrame(shop.owner, true, true, 30));
    }
  }
};

LOFT_TEST_MAIN(TestServiceLife)
#include "tst_service_life.moc"
