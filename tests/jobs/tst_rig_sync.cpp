#include <QtTest>

#include "jobs/gear_shop.h"
#include "jobs/rig_sync.h"
#include "support/counting_form.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

void ExpectQuestion(GearShop& shop, const QString& types, Answer answer = Answer::Yes) {
  shop.prompts
      .Expect(u"Update rig?"_s,
              u"This will change the following components in rig Blue:\n"_s + types +
                  u"\nAre you sure you want to do this?"_s,
              answer)
      .WithButtons(Buttons::YesNo)
      .WithPreset(Answer::No);
}

ScriptStep& ExpectOtherRig(GearShop& shop, Answer answer) {
  return shop.prompts.Expect(
      u"Remove component from Red"_s,
      u"Records indicate that he Main Canopy Sabre  listed above is\ninstalled in Red owned by Ann Adams\n\n"
      "If you proceed, that rig will have the component removed and installed in the current rig\n"
      "Do you want to do this?"_s,
      answer);
}

bool Update(const GearShop& shop) { return UpdateRigFromJob(shop.job, JobSystemID(shop.job)); }

}  // namespace

class TestRigSync : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void ThereMustBeARigThatDiffers() {
    GearShop shop;
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.ExpectBox(u"Components are current"_s,
                           u"The rig components for this job are the rig's current components"_s);
    QVERIFY(!Update(shop));
    QCOMPARE(shop.Changes(before), QStringList());
    shop.DeleteRigOfJob();
    shop.prompts.ExpectBox(u"Can't Update rig?"_s, u"The rig for this job has been deleted"_s);
    QVERIFY(!Update(shop));
    shop.loft.Run(u"update tblJobs set SystemID = 0"_s);
    shop.prompts.ExpectBox(u"Can't Update rig?"_s, u"This job doesn't have a rig.  "_s);
    QVERIFY(!Update(shop));
  }

  void ARefusedUpdateChangesNothing() {
    GearShop shop;
    shop.LetRigDiffer();
    const QStringList before = shop.loft.Snapshot();
    ExpectQuestion(shop, u"Main Canopy"_s, Answer::No);
    QVERIFY(!Update(shop));
    QCOMPARE(shop.Changes(before), QStringList());
  }

  void FreeGearOfTheJobComesBackIntoTheRig() {
    GearShop shop;
    shop.LetRigDiffer();
    const int other = shop.AddComponent("Pilot", kMainCanopy);
    shop.AddSchedule(shop.rig, RepackTaskLibID, Day(9, 1, 2026), 0, 0);
    const QStringList before = shop.loft.Snapshot();
    ExpectQuestion(shop, u"Main Canopy"_s);
    QVERIFY(Update(shop));
    QCOMPARE(shop.Changes(before),
             GearShop::Sorted(shop.Moved(shop.mainCanopy, 0, shop.rig) + shop.Moved(other, shop.rig, 0)));
    QVERIFY(RigComponentsCurrent(shop.job, shop.rig));
  }

  void ATypeThatTheJobLacksLeavesTheRig() {
    GearShop shop;
    SetComponentRig(shop.spare, shop.rig);
    const QStringList before = shop.loft.Snapshot();
    const CountingForm screen(u"frmGetRig"_s, {u"tblComponents"_s});
    ExpectQuestion(shop, u"AAD"_s);
    QVERIFY(Update(shop));
    QCOMPARE(shop.Changes(before), GearShop::Sorted(shop.Moved(shop.spare, shop.rig, 0)));
    QCOMPARE(screen.told, 1);
  }

  void WhatAnotherOwnersRigWearsIsAskedAbout() {
    GearShop shop;
    SetComponentRig(shop.mainCanopy, shop.red);
    RemoveJobComponent(shop.job, shop.reserve);
    const QStringList before = shop.loft.Snapshot();
    // Neither No nor Cancel keeps the next type from its turn.
    for (const Answer answer : {Answer::No, Answer::Cancel}) {
      ExpectQuestion(shop, u"Main Canopy\nReserve Canopy"_s);
      ExpectOtherRig(shop, answer).WithButtons(Buttons::YesNoCancel);
      QVERIFY(Update(shop));
      QCOMPARE(shop.Changes(before), GearShop::Sorted(shop.Moved(shop.reserve, shop.rig, 0)));
      SetComponentRig(shop.reserve, shop.rig);
    }
    ExpectQuestion(shop, u"Main Canopy\nReserve Canopy"_s);
    ExpectOtherRig(shop, Answer::Yes);
    QVERIFY(Update(shop));
    QCOMPARE(shop.Changes(before),
             GearShop::Sorted(shop.Moved(shop.reserve, shop.rig, 0) + shop.Moved(shop.mainCanopy, shop.red, shop.rig)));
  }

  void WhatTheSameOwnersRigWearsMovesUnasked() {
    GearShop shop;
    SetComponentRig(shop.mainCanopy, shop.red);
    SetRigOwner(shop.red, shop.owner);
    const QStringList before = shop.loft.Snapshot();
    ExpectQuestion(shop, u"Main Canopy"_s);
    QVERIFY(Update(shop));
    QCOMPARE(shop.Changes(before), GearShop::Sorted(shop.Moved(shop.mainCanopy, shop.red, shop.rig)));
  }

  void WhatSitsInTheRigAlreadyStaysAsItIs() {
    GearShop shop;
    const int second = shop.AddComponent("Pilot", kMainCanopy);
    RemoveJobComponent(shop.job, shop.mainCanopy);
    AddJobComponent(shop.job, second);
    const QStringList before = shop.loft.Snapshot();
    ExpectQuestion(shop, u"Main Canopy"_s);
    QVERIFY(Update(shop));
    QCOMPARE(shop.Changes(before), QStringList());
  }

  void WhatADeletedRigWoreMovesUnasked() {
    GearShop shop;
    SetComponentRig(shop.mainCanopy, shop.red);
    DeleteRigRow(shop.red);
    ExpectQuestion(shop, u"Main Canopy"_s);
    QVERIFY(Update(shop));
    QCOMPARE(ComponentRig(shop.mainCanopy), shop.rig);
  }
};

LOFT_TEST_MAIN(TestRigSync)
#include "tst_rig_sync.moc"
