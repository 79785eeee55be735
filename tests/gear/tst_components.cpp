#include <QtTest>

#include "core/default_rows.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/rigs.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

class TestComponents : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void DescribesModelAndSubType() {
    ThrowAwayLoft loft;
    const int model = AddModel(u"Falcon"_s, kMainCanopy);
    const int id = NewComponent(model, kMainCanopy, 0, u"F123"_s);
    QCOMPARE(ComponentDescription(id), u"Falcon "_s);
    loft.Run(u"update tblComponents set SubType = '170'"_s);
    QCOMPARE(ComponentDescription(id), u"Falcon 170"_s);
    QCOMPARE(ComponentDescription(99), u"(none)"_s);
    QCOMPARE(ComponentDescription(0), u"(none)"_s);
    QCOMPARE(ComponentSerial(id), u"F123"_s);
    QCOMPARE(ComponentSerial(id, true), u"s/n F123"_s);
    loft.Run(u"update tblComponents set SerialNumber = ' '"_s);
    QCOMPARE(ComponentSerial(id, true), QString());
  }

  void ExpiresAtTheEndOfItsServiceLife_data() {
    QTest::addColumn<Date>("dom");
    QTest::addColumn<int>("months");
    QTest::addColumn<Date>("expiry");
    QTest::newRow("ten years") << Date::FromParts(2015, 1, 14) << 120 << Date::FromParts(2025, 1, 14);
    QTest::newRow("no life") << Date::FromParts(2015, 1, 14) << 0 << Date();
    QTest::newRow("no date") << Date() << 120 << Date();
    QTest::newRow("over the year") << Date::FromParts(2015, 11, 2) << 3 << Date::FromParts(2016, 2, 2);
    QTest::newRow("short month") << Date::FromParts(2015, 1, 31) << 1 << Date::FromParts(2015, 2, 28);
    QTest::newRow("leap day") << Date::FromParts(2016, 2, 29) << 12 << Date::FromParts(2017, 2, 28);
    QTest::newRow("december") << Date::FromParts(2015, 6, 30) << 6 << Date::FromParts(2015, 12, 30);
  }
  void ExpiresAtTheEndOfItsServiceLife() {
    QFETCH(Date, dom);
    QFETCH(int, months);
    ThrowAwayLoft loft;
    const int model = AddModel(u"Vigil"_s, kAad);
    const int id = NewComponent(model, kAad, 0);
    loft.Run(u"update tblModels set ServiceLife = "_s + QString::number(months));
    loft.Run(u"update tblComponents set DOM = "_s + QString::number(dom.Days()));
    QTEST(ComponentExpiry(id), "expiry");
  }

  void ANewComponentReplacesTheRowThatHeldItsPlace() {
    ThrowAwayLoft loft;
    const int rig = CreateRig(5, 1, u"Red"_s);
    const int model = AddModel(u"Falcon"_s, kMainCanopy);
    const int old = NewComponent(model, kMainCanopy, rig);
    const int reserve = NewComponent(AddModel(u"Raven"_s, kReserveCanopy), kReserveCanopy, rig);
    const int id = NewComponent(model, kMainCanopy, rig, u"o'1"_s);
    QVERIFY(!ComponentExists(old));
    QVERIFY(ComponentExists(reserve));
    QCOMPARE(ComponentOfTypeInRig(rig, kMainCanopy), id);
    QCOMPARE(loft.Rows(u"select ModelID, TypeID, DOM, SubType, Comment, OwnerID, Color, Grounded, NumJumps, "
                       "SerialNumber, RigID, Price, PhotoName from tblComponents where ID = %1"_s.arg(id)),
             QStringList(u"%1|2|0|| |5||0|0|o'1|%2|0|"_s.arg(model).arg(rig)));
  }
};

LOFT_TEST_MAIN(TestComponents)
#include "tst_components.moc"
