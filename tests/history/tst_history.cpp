#include <QTest>

#include "gear/components.h"
#include "gear/rigs.h"
#include "history/history_texts.h"
#include "history/sample_history.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

class TestHistory : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void ATaskStandsOnALineForEachComponent() {
    SampleHistory shop;
    shop.loft.Run(u"update tblComponents set SerialNumber = 'J7', SubType = 'J4K' where ID = %1"_s.arg(shop.container));
    const int repack = shop.AddRepackWork(Day(3, 1, 2026));
    const QList<HistoryLine> lines = LoadHx3(shop.rig, {.types = SampleHistory::AllTypes()});
    QCOMPARE(Told(lines),
             QStringList({u"Javelin J4K s/n J7|Blue|Repack *|3/1/2026"_s, u"Raven|Blue|Repack *|3/1/2026"_s}));
    QCOMPARE(lines[0].taskID, repack);
    QCOMPARE(lines[0].componentID, shop.container);
    QCOMPARE(lines[1].componentID, shop.reserve);
    QCOMPARE(lines[1].rigID, shop.rig);
    QCOMPARE(lines[1].jobID, 0);

    const QList<HistoryLine> once = LoadHx3(shop.rig, {.types = SampleHistory::AllTypes(), .hideDuplicates = true});
    QCOMPARE(once.size(), 1);
    QCOMPARE(once[0].componentID, shop.container);
    const QList<HistoryLine> onlyReserve = LoadHx3(shop.rig, {.types = {kReserveCanopy}, .hideDuplicates = true});
    QCOMPARE(onlyReserve.size(), 1);
    QCOMPARE(onlyReserve[0].componentID, shop.reserve);
  }

  void WhatStandsBehindTheName() {
    QCOMPARE(HistorySuffix(true, false, 7), QString());
    QCOMPARE(HistorySuffix(false, false, 7), u" (incomplete)"_s);
    QCOMPARE(HistorySuffix(false, true, 7), QString());
    QCOMPARE(HistorySuffix(false, true, 0), u" *"_s);
    QCOMPARE(HistorySuffix(true, false, -99), u" *"_s);
    QCOMPARE(HistorySuffix(false, false, -88), u" *"_s);
  }

  void LinesOfAJob() {
    SampleHistory shop;
    const Date begun = Day(3, 2, 2026);
    shop.AddWork({.job = shop.job, .onRig = shop.rig, .started = begun, .name = "Patch"}, {shop.mainCanopy});
    shop.AddWork({.job = shop.job, .onRig = shop.rig, .started = begun, .isEvent = true, .name = "Ride"},
                 {shop.reserve});
    shop.AddWork({.job = shop.job, .onRig = shop.rig, .started = begun, .done = begun + 1, .name = "Loop"}, {shop.aad});
    QCOMPARE(Told(LoadHx3(shop.rig, {.types = SampleHistory::AllTypes()})),
             QStringList({u"Sabre|Blue|Patch (incomplete)|3/2/2026"_s, u"Raven|Blue|Ride|3/2/2026"_s,
                          u"Cypres|Blue|Loop|3/3/2026"_s}));
  }

  void CompletenessIsReadFromTheComponentOrFromTheDate() {
    SampleHistory shop;
    const int task =
        shop.AddWork({.job = shop.job, .onRig = shop.rig, .started = Day(3, 2, 2026), .done = Day(3, 5, 2026)},
                     {shop.container, shop.reserve});
    shop.loft.Run(u"update tblTaskComponents set Complete = false where TaskID = %1 and CompID = %2"_s.arg(task).arg(
        shop.reserve));
    shop.AddWork(
        {.job = shop.job, .onRig = shop.rig, .started = Day(3, 3, 2026), .done = Day(3, 6, 2026), .name = "Washed"},
        {});
    shop.AddWork({.job = shop.job, .onRig = shop.rig, .started = Day(3, 4, 2026), .name = "Inspected"}, {});
    QCOMPARE(Told(LoadHx3(shop.rig, {.types = SampleHistory::AllTypes()})),
             QStringList({u"Javelin|Blue|Work|3/5/2026"_s, u"Raven|Blue|Work (incomplete)|3/2/2026"_s,
                          u"n/a|Blue|Washed|3/6/2026"_s, u"n/a|Blue|Inspected (incomplete)|3/4/2026"_s}));
  }

  void ALooseTaskIsShownWhateverIsChosen() {
    SampleHistory shop;
    shop.AddRepackWork(Day(3, 1, 2026));
    const int washed = shop.AddWork({.onRig = shop.rig, .done = Day(2, 1, 2026), .name = "Washed"}, {});
    const QList<HistoryLine> lines = LoadHx3(shop.rig, {.types = {}, .hideOtherRigs = true, .currentCompsOnly = true});
    QCOMPARE(Told(lines), QStringList{u"n/a|Blue|Washed *|2/1/2026"_s});
    QCOMPARE(lines[0].taskID, washed);
    QCOMPARE(lines[0].componentID, 0);
  }

  void AComponentsWholeLifeIsTold() {
    SampleHistory shop;
    const int spare = shop.loft.Add("tblRig", {{"OwnerID", shop.rigger}, {"TypeID", 1}, {"rigAlias", "Spare"}});
    shop.AddWork({.onRig = spare, .done = Day(1, 1, 2025), .name = "Check"}, {shop.aad});
    shop.AddWork({.onRig = 0, .done = Day(1, 2, 2025), .name = "Bench test"}, {shop.aad});
    shop.AddWork({.onRig = 9999, .done = Day(1, 3, 2025), .name = "Service"}, {shop.aad});
    shop.AddWork({.onRig = shop.rig, .done = Day(1, 4, 2025), .name = "Battery"}, {shop.aad});
    HistoryFilter filter{.types = SampleHistory::AllTypes()};
    const QList<HistoryLine> lines = LoadHx3(shop.rig, filter);
    QCOMPARE(Told(lines), QStringList({u"Cypres|Spare|Check *|1/1/2025"_s, u"Cypres|(no rig)|Bench test *|1/2/2025"_s,
                                       u"Cypres|(no rig)|Service *|1/3/2025"_s, u"Cypres|Blue|Battery *|1/4/2025"_s}));
    QCOMPARE(lines[1].rigID, 0);
    QCOMPARE(lines[2].rigID, 9999);
    filter.hideOtherRigs = true;
    QCOMPARE(Told(LoadHx3(shop.rig, filter)), QStringList{u"Cypres|Blue|Battery *|1/4/2025"_s});
    QCOMPARE(LoadHx2({shop.aad}, false).size(), 4);
  }

  void ARemovedComponentStaysInTheHistoryOfTheRig() {
    SampleHistory shop;
    shop.AddWork({.onRig = shop.rig, .done = Day(1, 1, 2026), .name = "Line set"}, {shop.mainCanopy});
    const int borrowed = shop.AddComponent("Borrowed", kMainCanopy, 0);  // known to the rig by one task alone
    shop.AddWork({.onRig = shop.rig, .done = Day(1, 2, 2026), .name = "Packed"}, {borrowed});
    shop.AddWork({.onRig = shop.rig, .done = Day(1, 3, 2026), .name = "Washed"}, {});
    SetComponentRig(shop.mainCanopy, 0);
    HistoryFilter filter{.types = SampleHistory::AllTypes()};
    QCOMPARE(Told(LoadHx3(shop.rig, filter)),
             QStringList({u"Sabre|Blue|Line set *|1/1/2026"_s, u"Borrowed|Blue|Packed *|1/2/2026"_s,
                          u"n/a|Blue|Washed *|1/3/2026"_s}));
    filter.currentCompsOnly = true;
    QCOMPARE(Told(LoadHx3(shop.rig, filter)), QStringList{u"n/a|Blue|Washed *|1/3/2026"_s});
  }

  void ANewComponentBringsItsLifeAlong() {
    SampleHistory shop;  // whose job knows the gear of its day alone
    SetComponentRig(shop.aad, 0);
    const int vigil = shop.AddComponent("Vigil", kAad);
    shop.AddWork({.onRig = 0, .done = Day(1, 1, 2026), .name = "Bench test"}, {vigil});
    shop.AddWork({.onRig = 0, .done = Day(1, 2, 2026), .name = "Service"}, {shop.aad});
    HistoryFilter filter{.types = SampleHistory::AllTypes()};
    QCOMPARE(Told(LoadHx3(shop.rig, filter)),
             QStringList({u"Cypres|(no rig)|Service *|1/2/2026"_s, u"Vigil|(no rig)|Bench test *|1/1/2026"_s}));
    filter.currentCompsOnly = true;
    QCOMPARE(Told(LoadHx3(shop.rig, filter)), QStringList{u"Vigil|(no rig)|Bench test *|1/1/2026"_s});
  }

  void AComponentOfAForeignTypeHasNoLines() {
    SampleHistory shop;
    const int harness = shop.AddComponent("Sigma", kPassengerHarness);
    shop.AddWork({.onRig = shop.rig, .done = Day(1, 1, 2026)}, {harness});
    QCOMPARE(LoadHx3(shop.rig, {.types = SampleHistory::AllTypes()}).size(), 0);
    QCOMPARE(LoadHx2({harness}, false).size(), 1);
  }

  void SingleComponents() {
    SampleHistory shop;
    shop.AddRepackWork(Day(3, 1, 2026));
    const QList<int> components{shop.reserve, 0, shop.container};
    QCOMPARE(Told(LoadHx2(components, false)),
             QStringList({u"Raven|Blue|Repack *|3/1/2026"_s, u"Javelin|Blue|Repack *|3/1/2026"_s}));
    QCOMPARE(Told(LoadHx2(components, true)), QStringList{u"Raven|Blue|Repack *|3/1/2026"_s});
    QCOMPARE(LoadHx2({}, false).size(), 0);
  }

  void ALineOnNoComponentIsShownNowhere() {
    SampleHistory shop;
    shop.AddWork({.onRig = shop.rig, .done = Day(1, 1, 2026)}, {0});
    QCOMPARE(LoadHx3(shop.rig, {.types = {0, kAad}}).size(), 0);
    QCOMPARE(LoadHx2({0}, false).size(), 0);
  }

  void NoRigHasNoHistory() {
    SampleHistory shop;
    const int loose = shop.AddComponent("Loose", kMainCanopy, 0);
    shop.AddWork({.onRig = 0, .done = Day(1, 1, 2026)}, {loose});
    shop.AddWork({.onRig = 0, .done = Day(1, 1, 2026)}, {});
    QCOMPARE(LoadHx3(0, {.types = SampleHistory::AllTypes()}).size(), 0);
  }

  void ALineWhoseTaskHasGoneReadsEmpty() {
    SampleHistory shop;
    shop.loft.Add("tblTaskComponents", {{"TaskID", 777}, {"CompID", shop.aad}, {"Complete", true}});
    QCOMPARE(Told(LoadHx2({shop.aad}, false)), QStringList{u"Cypres|(no rig)| *|"_s});
  }

  void TheFrameBesideTheLines() {
    SampleHistory shop;
    shop.loft.Add("tblManufacturers", {{"ID", 5}, {"Name", "Airtec & Sons"}});
    shop.loft.Run(u"update tblModels set ManfID = 5 where Name = 'Cypres'"_s);
    HistoryComponent info = HistoryComponentOf(shop.aad);
    QCOMPARE(info.name, u"Cypres"_s);
    QCOMPARE(info.maker, u"Airtec & Sons"_s);
    QCOMPARE(info.serial, u"(not entered)"_s);
    QCOMPARE(info.dom, u"(not entered)"_s);
    shop.loft.Run(u"update tblComponents set SerialNumber = 'C1', SubType = '2', DOM = %1 where ID = %2"_s
                      .arg(Day(4, 20, 2014).Days())
                      .arg(shop.aad));
    info = HistoryComponentOf(shop.aad);
    QCOMPARE(info.name, u"Cypres 2"_s);
    QCOMPARE(info.serial, u"C1"_s);
    QCOMPARE(info.dom, u"04/20/2014"_s);
    QCOMPARE(HistoryComponentOf(0).name + HistoryComponentOf(9999).serial, QString());
  }

  void OwnersOfAComponentAndOfItsRig() {
    SampleHistory shop;
    QCOMPARE(HistoryOwnersOf(shop.aad).owner, u"Olaf Owner"_s);
    QCOMPARE(HistoryOwnersOf(shop.aad).rig, u"Blue"_s);
    QCOMPARE(HistoryOwnersOf(shop.aad).rigOwner, QString());
    SetComponentOwner(shop.aad, shop.rigger);
    QCOMPARE(HistoryOwnersOf(shop.aad).owner, u"Rita Rigger"_s);
    QCOMPARE(HistoryOwnersOf(shop.aad).rigOwner, u"(rig is owned by Olaf Owner)"_s);
    SetComponentOwner(shop.aad, 0);
    QCOMPARE(HistoryOwnersOf(shop.aad).rigOwner, QString());
    SetComponentOwner(shop.aad, shop.rigger);
    SetRigOwner(shop.rig, 0);
    QCOMPARE(HistoryOwnersOf(shop.aad).rigOwner, QString());
    SetComponentRig(shop.aad, 0);
    QCOMPARE(HistoryOwnersOf(shop.aad).rig, u"(no rig)"_s);
  }
};

LOFT_TEST_MAIN(TestHistory)
#include "tst_history.moc"
