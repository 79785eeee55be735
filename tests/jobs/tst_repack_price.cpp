#include <QtTest>

#include "core/store/connection.h"
#include "core/store/database.h"
#include "gear/models.h"
#include "jobs/repack_price.h"
#include "jobs/sample_job.h"
#include "schedule/schedule.h"
#include "schedule/task_library.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

int ModelOf(const SampleRig& shop, int component) {
  return shop.loft.Rows(u"select ModelID from tblComponents where ID = %1"_s.arg(component)).first().toInt();
}

QStringList LibraryRow(const SampleRig& shop, int id) {
  return shop.loft.Rows(
      u"select Name, FlatRate, HourlyRate, Logbook, AllowMultiple, ModelID, IntervalNumber, "
      "IntervalType from tblTaskLib where ID = %1"_s.arg(id));
}

}  // namespace

class TestRepackPrice : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void AZeroFallsThroughToTheNextLevel_data() {
    QTest::addColumn<int>("byModel");
    QTest::addColumn<int>("byType");
    QTest::addColumn<int>("usual");
    QTest::addColumn<int>("price");
    QTest::newRow("by model") << 110 << 95 << 80 << 110;
    QTest::newRow("model 0") << 0 << 95 << 80 << 95;
    QTest::newRow("no model row") << -1 << 95 << 80 << 95;
    QTest::newRow("both 0") << 0 << 0 << 80 << 80;
    QTest::newRow("no rows") << -1 << -1 << 80 << 80;
    QTest::newRow("nothing") << 0 << 0 << 0 << 0;
  }
  void AZeroFallsThroughToTheNextLevel() {
    QFETCH(int, byModel);
    QFETCH(int, byType);
    QFETCH(int, usual);
    SampleJob shop;
    if (byModel >= 0) SaveByModel(ModelOf(shop, shop.container), Money::Whole(byModel));
    if (byType >= 0) SaveByType(1, Money::Whole(byType));
    shop.loft.Run(u"update tblTaskLib set FlatRate = %1 where ID = 1"_s.arg(usual));
    QTEST(static_cast<int>(GetRepackPrice(1, shop.rig).ToDouble()), "price");
    const int line = shop.AddTask(RepackTaskLibID);
    QFETCH(int, price);
    QCOMPARE(shop.loft.Rows(u"select FlatRate from tblTasks where ID = %1"_s.arg(line)),
             QStringList(QString::number(price * 10000)));
  }

  void ThePriceMovesWithTheContainer() {
    SampleRig shop;
    SaveByModel(ModelOf(shop, shop.container), Money::Whole(110));
    SaveByType(2, Money::Whole(150));
    const int tandem = shop.loft.Add("tblRig", {{"OwnerID", shop.owner}, {"TypeID", 2}, {"rigAlias", "Big"}});
    QCOMPARE(GetRepackPrice(1, tandem), Money::Whole(150));
    shop.loft.Run(u"update tblComponents set RigID = %1 where ID = %2"_s.arg(tandem).arg(shop.container));
    QCOMPARE(GetRepackPrice(1, tandem), Money::Whole(110));
    QCOMPARE(GetRepackPrice(1, shop.rig), Money());
  }

  void AnotherEntryThanTheRepackIsNoticed() {
    SampleRig shop;
    const int model = ModelOf(shop, shop.container);
    SaveByModel(model, Money::Whole(110));
    SaveByType(1, Money::Whole(95));
    const QString notice = u"you shouldn't be here"_s;
    shop.prompts.ExpectBox(u"Loftkeep"_s, notice);
    QCOMPARE(GetPriceByModel(model, 4), Money());
    shop.prompts.ExpectBox(u"Loftkeep"_s, notice);
    QCOMPARE(GetPriceByType(1, 4), Money());
    QCOMPARE(GetPriceByType(9, 4), Money());
    QCOMPARE(GetPriceByModel(99, 1), Money());
    for (int i = 0; i < 3; ++i) shop.prompts.ExpectBox(u"Loftkeep"_s, notice);
    QCOMPARE(GetRepackPrice(4, shop.rig), Money());
  }

  void PricesAreStoredOnce() {
    SampleRig shop;
    SaveByModel(7, Money::Whole(1));
    SaveByModel(7, Money::FromUnits(25000));
    SaveByType(3, Money::Whole(2));
    SaveByType(3, Money());
    QCOMPARE(shop.loft.Rows(u"select ModelID, Price from tblRepackByModel"_s), QStringList(u"7|25000"_s));
    QCOMPARE(shop.loft.Rows(u"select TypeID, Price from tblRepackByType"_s), QStringList(u"3|0"_s));
  }

  void ThePickerTellsThePriceOrThatItVaries() {
    SampleRig shop;
    shop.loft.Run(u"update tblTaskLib set FlatRate = 80 where ID = 1"_s);
    QCOMPARE(RepackPriceLabel(), u"80.00"_s);
    SaveByType(1, Money::Whole(80));
    SaveByModel(5, Money());
    QCOMPARE(RepackPriceLabel(), u"80.00"_s);
    SaveByType(2, Money::Whole(81));
    QCOMPARE(RepackPriceLabel(), u"(cost varies)"_s);
    SaveByType(2, Money());
    SaveByModel(5, Money::Whole(79));
    QCOMPARE(RepackPriceLabel(), u"(cost varies)"_s);
  }

  void ThePriceListNamesEachPriceOfItsOwn() {
    SampleRig shop;
    ScriptedPrompts prompts;
    shop.loft.Run(u"update tblTaskLib set FlatRate = 80 where ID = 1"_s);
    QCOMPARE(LoadRepackPriceList().texts, QStringList(u"Inspect and repack reserve  80.00"_s));
    const int container = ModelOf(shop, shop.container);
    SaveByType(1, Money::Whole(80));
    QCOMPARE(LoadRepackPriceList().texts, QStringList({u"Inspect and repack reserve  80.00"_s, u"Sport Rig  80.00"_s}));
    SaveByModel(container, Money::FromUnits(955000));
    SaveByType(2, Money());
    SaveByType(3, Money::Whole(1234));
    const IdList prices = LoadRepackPriceList();
    QCOMPARE(prices.texts,
             QStringList({u"Inspect and repack reserve  (cost varies)"_s, ModelName(container) + u"  95.50"_s,
                          u"Sport Rig  80.00"_s, u"Pilot Emergency Rig (back)  1234.00"_s}));
    QCOMPARE(prices.ids, QList<int>({RepackTaskLibID, container, 1, 3}));
    QVERIFY(!ConnectionIsOpen);
  }

  void APriceListThatCantBeReadNamesItsLoader() {
    SampleRig shop;
    {
      Bracket bracket;
      OpenDatabase().ChangeSchema("DROP TABLE tblRepackByType");
    }
    ScriptedPrompts prompts;
    prompts.AnswerRestWith([](const ShownPrompt&) { return Answer::Ok; });
    LoadRepackPriceList();
    QCOMPARE(prompts.Transcript().last().title, u"Sub LoadRepackPriceList"_s);
    QVERIFY(!ConnectionIsOpen);
  }

  void TheCycleRollsTheNextCompletionOnly() {
    SampleJob shop;
    ToggleComplete(shop.AddTask(1), Day(3, 1, 2026), true);
    const QString old = shop.Schedules().first();
    SetRepackCycle(120);
    QCOMPARE(RepackCycle(), 120);
    QCOMPARE(shop.loft.Rows(u"select IntervalNumber from tblTaskLib where ID = 1"_s), QStringList(u"120"_s));
    QCOMPARE(shop.Schedules(), QStringList(old));
    const int line = shop.AddRepack(Day(3, 10, 2026));
    UpdateSchedule(1, shop.rig, 0);
    QCOMPARE(shop.Schedules(),
             QStringList(SampleRig::ScheduleRow(shop.rig, 1, Day(3, 10, 2026), Day(7, 8, 2026), line, 0)));
    shop.loft.Run(u"delete * from tblMisc"_s);
    SetRepackCycle(365);
    QCOMPARE(shop.loft.Rows(u"select RepackCycle, DefaultPhotoSize from tblMisc"_s), QStringList(u"365|100"_s));
  }

  void TheCycleIsAskedFor() {
    SampleRig shop;
    const QString title = u"Enter repack cycle (in days)"_s;
    shop.loft.Run(u"update tblMisc set RepackCycle = 0"_s);
    for (const QString& reply : {QString(), u"0"_s, u"soon"_s}) {
      shop.prompts.ExpectInput(title, u"Reserve must be repacked every 180 days"_s, reply).Proposing(u"180"_s);
      AskRepackCycle();
      QCOMPARE(RepackCycle(), 0);
    }
    shop.prompts.ExpectInput(title, u"Reserve must be repacked every 180 days"_s, u"120"_s);
    shop.prompts.ExpectBox(u"Repack Cycle Saved"_s, u"Repack cycle is now set to 120 days"_s);
    AskRepackCycle();
    QCOMPARE(RepackCycle(), 120);
    shop.prompts.ExpectInput(title, u"Reserve must be repacked every 120 days"_s, u"99999"_s).Proposing(u"120"_s);
    shop.prompts.ExpectBox(u"Sub mnuRepackcycle_Click"_s, u"Overflow"_s);
    AskRepackCycle();
    QCOMPARE(RepackCycle(), 120);
  }

  void TheDefaultPriceIsSavedWithTheRepackEntry() {
    SampleRig shop;
    shop.loft.Run(
        u"update tblTaskLib set Name = 'Pack', LogBook = false, AllowMultiple = true, ModelID = 4, "
        "IntervalNumber = 5, IntervalType = 3, HourlyRate = 7 where ID = 1"_s);
    CheckIR(Money::Whole(85));
    QCOMPARE(LibraryRow(shop, 1), QStringList(u"Inspect and repack reserve|850000|0|-1|0|0|180|1"_s));
    QCOMPARE(shop.loft.Rows(u"select * from tblTaskLibComponentTypes where TaskLibID = 1"_s).size(), 2);
    shop.loft.Run(u"update tblMisc set RepackCycle = 120"_s);
    CheckIR(Money::Whole(85));
    QCOMPARE(IntervalNumber(RepackTaskLibID), 120);
  }

  void AMissingRepackEntryIsAddedWithTheDefaultPrice() {
    SampleRig shop;
    shop.loft.Run(u"delete * from tblTaskLib where ID = 1"_s);
    shop.loft.Run(u"delete * from tblTaskLibComponentTypes where TaskLibID = 1"_s);
    shop.prompts.ExpectBox(u"Sub CheckIR(IRfee As Currency)"_s, u"No repack task in library"_s);
    CheckIR(Money::Whole(85));
    const int id = shop.loft.Rows(u"select max(ID) from tblTaskLib"_s).first().toInt();
    QCOMPARE(LibraryRow(shop, id), QStringList(u"Inspect and repack reserve|850000|0|-1|0|0|180|1"_s));
    QCOMPARE(shop.loft.Rows(u"select ComponentTypeID from tblTaskLibComponentTypes where TaskLibID = %1"_s.arg(id)),
             (QStringList{u"1"_s, u"3"_s}));
  }

  void TheStartRepairsAMissingRepackEntry() {
    SampleRig shop;
    RepairRepackTaskType();
    shop.loft.Run(u"delete * from tblTaskLib where ID = 1"_s);
    shop.loft.Run(u"delete * from tblTaskLibComponentTypes where TaskLibID = 1"_s);
    shop.prompts.ExpectBox(u"Sub CreateRepackTaskType(TaskLibID As Long)"_s, u"repack not found in task library"_s);
    shop.prompts.ExpectBox(u"New task type added"_s, u"Reserve repack added to task library"_s);
    RepairRepackTaskType();
    const int id = shop.loft.Rows(u"select max(ID) from tblTaskLib"_s).first().toInt();
    QCOMPARE(LibraryRow(shop, id), QStringList(u"Inspect and repack reserve|0|0|-1|0|0|180|1"_s));
    QCOMPARE(shop.loft.Rows(u"select ComponentTypeID from tblTaskLibComponentTypes where TaskLibID = %1"_s.arg(id)),
             (QStringList{u"1"_s, u"3"_s}));
  }
};

LOFT_TEST_MAIN(TestRepackPrice)
#include "tst_repack_price.moc"
