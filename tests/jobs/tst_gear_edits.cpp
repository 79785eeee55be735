#include <QtTest>

#include "jobs/gear_edits.h"
#include "jobs/gear_shop.h"
#include "support/counting_form.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

class TestGearEdits : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void ASerialNumberIsAskedFor() {
    GearShop shop;
    const auto answer = [&](const QString& old, const QString& reply) {
      shop.prompts.ExpectInput(u"Serial Number"_s, u"Enter serial number"_s, reply).Proposing(old);
      return EditGearSerial(shop.container);
    };
    const QStringList before = shop.loft.Snapshot();
    QVERIFY(!answer({}, {}));
    QCOMPARE(shop.Changes(before), QStringList());
    QVERIFY(answer({}, u"Olaf's \"7\""_s));
    QCOMPARE(ComponentSerial(shop.container), u"Olaf's \"7\""_s);
    QCOMPARE(shop.loft.TouchedSince(before),
             (QStringList{u"+tblComponents|%1"_s.arg(shop.container), u"-tblComponents|%1"_s.arg(shop.container)}));
    QVERIFY(!answer(u"Olaf's \"7\""_s, u"Olaf's \"7\""_s));
    QVERIFY(!answer(u"Olaf's \"7\""_s, u"   "_s));
    QCOMPARE(ComponentSerial(shop.container), u"Olaf's \"7\""_s);
  }

  void ALongSerialNumberIsCut() {
    GearShop shop;
    shop.prompts.ExpectInput(u"Serial Number"_s, u"Enter serial number"_s, QString(60, u'7'));
    QVERIFY(EditGearSerial(shop.container));
    QCOMPARE(ComponentSerial(shop.container), QString(50, u'7'));
  }

  void ADateOfManufactureIsAskedFor() {
    GearShop shop;
    const auto answer = [&](const QString& old, const QString& reply) {
      shop.prompts.ExpectInput(u"Date of Manufacture"_s, u"Enter date of manufacture"_s, reply).Proposing(old);
      return EditGearDom(shop.container);
    };
    const CountingForm schedule(u"frmSchedule"_s, {u"tblComponents"_s});
    QVERIFY(answer({}, u"6/1/2019"_s));
    QCOMPARE(schedule.told, 1);  // the end of its life has moved
    QCOMPARE(ComponentDom(shop.container), Day(6, 1, 2019));
    const QStringList before = shop.loft.Snapshot();
    QVERIFY(!answer(u"06/01/2019"_s, {}));
    QVERIFY(!answer(u"06/01/2019"_s, u"06/01/2019"_s));
    shop.prompts.ExpectInput(u"Date of Manufacture"_s, u"Enter date of manufacture"_s, u"soon"_s);
    shop.prompts.ExpectBox(u"DOM is invalid!"_s, u"soon is not a valid date"_s);
    QVERIFY(!EditGearDom(shop.container));
    QCOMPARE(shop.Changes(before), QStringList());
    QVERIFY(answer(u"06/01/2019"_s, u"1995"_s));
    QCOMPARE(ComponentDom(shop.container), Day(1, 1, 1995));
  }

  void AnEmptyPlaceIsToldOf() {
    GearShop shop;
    shop.prompts.ExpectBox(kProgramTitle, u"To add an AAD, select INSTALL COMPONENT\n(see menu on left)"_s);
    TellEmptyPlace(kAad, shop.rig);
    shop.prompts.ExpectBox(kProgramTitle, u"To add a Container, select INSTALL COMPONENT\n(see menu on left)"_s);
    TellEmptyPlace(kContainer, shop.rig);
    shop.prompts.ExpectBox(u"No component"_s, u"This rig doesn't have an AAD"_s);
    TellEmptyPlace(kAad, 0);
  }
};

LOFT_TEST_MAIN(TestGearEdits)
#include "tst_gear_edits.moc"
