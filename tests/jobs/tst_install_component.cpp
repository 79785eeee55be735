#include <QtTest>

#include "gear/models.h"
#include "jobs/gear_shop.h"
#include "jobs/install_component.h"
#include "schedule/schedule.h"
#include "support/counting_form.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

const QString kMoveVigil =
    u"The AAD you selected:\n     Vigil \nis already part of a rig: Red\nOwned by: Adams, Ann\n"
    "Do you want to move this AAD to the current rig?"_s;
const QString kOwnerOfVigil =
    u"This component (Vigil ) is owned by Ann Adams\nbut you are adding it to a rig owned by Olaf Owner\n\n"
    "Do you want to change component owner to Olaf Owner?"_s;

bool Install(const GearShop& shop, int component, ChosenComponent::How how = ChosenComponent::FromDatabase) {
  return InstallOnJob(shop.Context(), {component, how}, GearShop::kDone);
}

}  // namespace

class TestInstallComponent : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void AFreeComponentGoesOnTheJobAndIntoItsRig() {
    GearShop shop;
    const CountingForm screen(u"frmGetRig"_s, {u"tblComponents"_s, u"tblTasks"_s});
    const QStringList before = shop.loft.Snapshot();
    QVERIFY(Install(shop, shop.spare));
    QCOMPARE(screen.told, 1);
    QCOMPARE(shop.Changes(before),
             GearShop::Sorted(shop.Moved(shop.spare, 0, shop.rig) +
                              shop.NewLine(1, InstallTaskLibID, u"Install AAD Argus  to Blue"_s, shop.spare) +
                              QStringList(GearShop::OnJob(u'+', shop.job, shop.spare))));
    QVERIFY(RigComponentsCurrent(shop.job, shop.rig));
  }

  void AJobThatDiffersTakesItAlone() {
    GearShop shop;
    shop.LetRigDiffer();
    const QStringList before = shop.loft.Snapshot();
    QVERIFY(Install(shop, shop.spare));
    QCOMPARE(shop.Changes(before),
             GearShop::Sorted(shop.NewLine(1, InstallTaskLibID, u"Install AAD Argus  to Blue"_s, shop.spare) +
                              QStringList(GearShop::OnJob(u'+', shop.job, shop.spare))));
  }

  void GearThatOnlyTheRigWearsStaysInItWhenTheJobGetsOther() {
    GearShop shop;
    SetComponentRig(shop.aad, shop.rig);
    const QStringList before = shop.loft.Snapshot();
    QVERIFY(Install(shop, shop.spare, ChosenComponent::New));
    QCOMPARE(ComponentRig(shop.aad), shop.rig);
    QCOMPARE(ComponentRig(shop.spare), 0);
    QVERIFY(!shop.loft.TouchedSince(before).contains(u"-tblComponents|%1"_s.arg(shop.aad)));
  }

  void ANewComponentGetsTheOwnerOfTheRig() {
    GearShop shop;
    SetComponentOwner(shop.spare, shop.ann);
    const QStringList before = shop.loft.Snapshot();
    QVERIFY(Install(shop, shop.spare, ChosenComponent::New));
    QCOMPARE(shop.Changes(before),
             GearShop::Sorted(shop.Moved(shop.spare, 0, shop.rig, shop.ann, shop.owner) +
                              shop.NewLine(1, InstallTaskLibID, u"Install AAD Argus  to Blue"_s, shop.spare) +
                              QStringList(GearShop::OnJob(u'+', shop.job, shop.spare))));
  }

  void AComponentOfAnotherRigAndOwnerAsksTwice() {
    GearShop shop;
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.Expect(u"Move AAD?"_s, kMoveVigil, Answer::Yes).WithButtons(Buttons::YesNo).WithPreset(Answer::No);
    shop.prompts.Expect(u"Change component owner?"_s, kOwnerOfVigil, Answer::Yes).WithButtons(Buttons::YesNoCancel);
    QVERIFY(Install(shop, shop.vigil));
    QCOMPARE(shop.Changes(before),
             GearShop::Sorted(shop.Moved(shop.vigil, shop.red, shop.rig, shop.ann, shop.owner) +
                              GearShop::NewRemoval(1, shop.red, shop.ann, u"Remove AAD Vigil  from Red"_s, shop.vigil) +
                              shop.NewLine(2, InstallTaskLibID, u"Install AAD Vigil  to Blue"_s, shop.vigil) +
                              QStringList(GearShop::OnJob(u'+', shop.job, shop.vigil))));
  }

  void ARefusedQuestionChangesNothing() {
    GearShop shop;
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.Expect(u"Move AAD?"_s, kMoveVigil, Answer::No);
    QVERIFY(!Install(shop, shop.vigil));
    shop.prompts.Expect(u"Move AAD?"_s, kMoveVigil, Answer::Yes);
    shop.prompts.Expect(u"Change component owner?"_s, kOwnerOfVigil, Answer::Cancel);
    QVERIFY(!Install(shop, shop.vigil));
    QCOMPARE(shop.Changes(before), QStringList());
  }

  void TheOwnerMayStay() {
    GearShop shop;
    shop.prompts.Expect(u"Move AAD?"_s, kMoveVigil, Answer::Yes);
    shop.prompts.Expect(u"Change component owner?"_s, kOwnerOfVigil, Answer::No);
    QVERIFY(Install(shop, shop.vigil));
    QCOMPARE(ComponentOwner(shop.vigil), shop.ann);
    QCOMPARE(ComponentRig(shop.vigil), shop.rig);
  }

  void AJobThatDiffersLeavesTheOtherRigItsComponent() {
    GearShop shop;
    shop.LetRigDiffer();
    shop.prompts.Expect(u"Change component owner?"_s, kOwnerOfVigil, Answer::No);
    QVERIFY(Install(shop, shop.vigil));
    QCOMPARE(ComponentRig(shop.vigil), shop.red);
    QCOMPARE(LinesOfJob(shop.job).size(), 1);
  }

  void WhatADeletedRigWoreIsFree() {
    GearShop shop;
    SetComponentOwner(shop.vigil, shop.owner);
    DeleteRigRow(shop.red);
    QVERIFY(Install(shop, shop.vigil));
    QCOMPARE(ComponentRig(shop.vigil), shop.rig);
    QCOMPARE(LinesOfJob(0), QList<int>());
  }

  void DuplicatesAreRefused_data() {
    QTest::addColumn<int>("how");
    QTest::addColumn<QString>("title");
    QTest::newRow("chosen") << int{ChosenComponent::FromDatabase} << u"Duplicate component"_s;
    QTest::newRow("typed") << int{ChosenComponent::BySerial} << u"Duplicate component type"_s;
  }
  void DuplicatesAreRefused() {
    QFETCH(int, how);
    QFETCH(QString, title);
    GearShop shop;
    AddJobComponent(shop.job, shop.aad);
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.ExpectBox(u"Selected components already part of this job"_s,
                           u"Selected component (Cypres ) is already part of this job."_s);
    QVERIFY(!Install(shop, shop.aad, ChosenComponent::How(how)));
    shop.prompts.ExpectBox(title, u"This job already has an aad"_s);
    QVERIFY(!Install(shop, shop.spare, ChosenComponent::How(how)));
    QCOMPARE(shop.Changes(before), QStringList());
  }

  void TheArticleFollowsTheType() {
    GearShop shop;
    shop.prompts.ExpectBox(u"Duplicate component"_s, u"This job already has a container"_s);
    QVERIFY(RefuseDuplicateType(shop.job, kContainer));
    QVERIFY(!RefuseDuplicateType(shop.job, kAad));
  }

  void WhatTheRigWearsIsNotInstalledByItsSerial() {
    GearShop shop;
    SetComponentRig(shop.aad, shop.rig);
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.ExpectBox(kProgramTitle,
                           u"You have selected a AAD that is part of the same rig.  Selection cancelled"_s);
    QVERIFY(!Install(shop, shop.aad, ChosenComponent::BySerial));
    QCOMPARE(shop.Changes(before), QStringList());
    QVERIFY(Install(shop, shop.aad));
    QVERIFY(RigComponentsCurrent(shop.job, shop.rig));
  }

  void WhatTheRigTypeHasNoPlaceForIsRefused() {
    GearShop shop;
    const int harness = shop.AddComponent("Tandem", kPassengerHarness, 0);
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.ExpectBox(u"Component not compatible with rig type"_s,
                           u"This rig type (Sport Rig) cannot contain\nthis component:\n   Tandem "_s);
    QVERIFY(!Install(shop, harness));
    QCOMPARE(shop.Changes(before), QStringList());
  }

  void TheNameOfTheLineIsCut() {
    GearShop shop;
    SetRigName(shop.rig, u"Olaf's \"%1\""_s.arg(QString(38, u'x')));
    QVERIFY(Install(shop, shop.spare));
    const QString name = LineField(LinesOfJob(shop.job).first(), tblTasks::TaskName).ToText();
    QCOMPARE(name, (u"Install AAD Argus  to Olaf's \""_s + QString(38, u'x')).left(50));
    QCOMPARE(name.size(), kJobTextLength);
  }

  void ARowOfTheGearMustBeFree() {
    GearShop shop;
    shop.prompts.ExpectBox(u"Install component"_s, u"You must select a component from the above grid"_s);
    QVERIFY(!PlaceIsFree(0, 0));
    shop.prompts.ExpectBox(u"Component exists"_s,
                           u"Current component must be removed before installing new component"_s);
    QVERIFY(!PlaceIsFree(kAad, shop.aad));
    QVERIFY(PlaceIsFree(kAad, 0));
  }

  void WithoutARigAComponentIsAddedAndNoLine() {
    GearShop shop;
    const int loose = shop.AddJob("Loose", 0, shop.container);
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.ExpectBox(u"Not a component installation"_s,
                           u"There is no rig associated with this job.\nThis will add a component to this job but will "
                           "not\nrecord a component installation task"_s);
    TellNoInstallation();
    QVERIFY(AddToJobWithoutRig(loose, {shop.vigil}));
    shop.prompts.ExpectBox(u"Duplicate component"_s, u"This job already has an aad"_s);
    QVERIFY(!AddToJobWithoutRig(loose, {shop.spare}));
    shop.prompts.ExpectBox(u"Selected components already part of this job"_s,
                           u"Selected component (Vigil ) is already part of this job."_s);
    QVERIFY(!AddToJobWithoutRig(loose, {shop.vigil}));
    QCOMPARE(shop.Changes(before), QStringList(GearShop::OnJob(u'+', loose, shop.vigil)));
  }

  void WithoutARigTheCommandAsksWhatIsMeant() {
    GearShop shop;
    const QString rest = u"\nWould you like to add a component to\nthis job without creating a rig?"_s;
    const auto none = u"This job doesn't have a rig."_s + rest;
    const auto gone = u"The rig for this job has been deleted."_s + rest;
    shop.prompts.Expect(u"Add component to job?"_s, none, Answer::Yes).WithButtons(Buttons::YesNo);
    QCOMPARE(AskInstallWithoutRig(0), InstallWithoutRig::AddToJob);
    shop.prompts.Expect(u"Add component to job?"_s, none, Answer::No);
    shop.prompts.Expect(u"Create new rig"_s, u"Would you like to create a new rig?"_s, Answer::Yes);
    QCOMPARE(AskInstallWithoutRig(0), InstallWithoutRig::CreateRig);
    shop.prompts.Expect(u"Add component to job?"_s, none, Answer::No);
    shop.prompts.Expect(u"Create new rig"_s, u"Would you like to create a new rig?"_s, Answer::No);
    QCOMPARE(AskInstallWithoutRig(0), InstallWithoutRig::Nothing);
    shop.prompts.Expect(u"Add component to job?"_s, gone, Answer::No);
    QCOMPARE(AskInstallWithoutRig(shop.rig), InstallWithoutRig::Nothing);
    shop.prompts.Expect(u"Add component to job?"_s, gone, Answer::Yes);
    QCOMPARE(AskInstallWithoutRig(shop.rig), InstallWithoutRig::AddToJob);
  }

  void AJobOnARigOfNoTypeIsAlwaysCurrent() {
    GearShop shop;
    SetRigType(shop.rig, 0);
    shop.LetRigDiffer();
    QVERIFY(RigComponentsCurrent(shop.job, shop.rig));
    QVERIFY(!RigComponentsCurrent(shop.job, 0));
    shop.DeleteRigOfJob();
    QVERIFY(!RigComponentsCurrent(shop.job, shop.rig));
  }

  void ARigOfNoTypeKeepsOneOfEachType() {
    GearShop shop;
    SetRigType(shop.rig, 0);
    shop.loft.Add("tblRigTypeComponents", {{"RigTypeID", 0}, {"ComponentTypeID", int{kAad}}});
    SetComponentRig(shop.aad, shop.rig);
    // What it wears already is put on the job unasked, and leaves no other rig.
    const QStringList before = shop.loft.Snapshot();
    QVERIFY(Install(shop, shop.aad));
    QCOMPARE(shop.Changes(before),
             GearShop::Sorted(shop.NewLine(1, InstallTaskLibID, u"Install AAD Cypres  to Blue"_s, shop.aad) +
                              QStringList(GearShop::OnJob(u'+', shop.job, shop.aad))));
    RemoveJobComponent(shop.job, shop.aad);
    QVERIFY(Install(shop, shop.spare));
    QCOMPARE(ComponentRig(shop.spare), shop.rig);
    QCOMPARE(ComponentRig(shop.aad), 0);
  }

  void AnInstalledComponentTakesTheTypeOfItsModel() {
    GearShop shop;
    shop.loft.Run(u"update tblModels set TypeID = 5 where Name = 'Argus'"_s);
    QVERIFY(Install(shop, shop.spare));
    QCOMPARE(ComponentTypeOf(shop.spare), 5);
  }

  void AComponentThatHasGoneVanishesFromTheJob() {
    GearShop shop;
    shop.loft.Run(u"delete from tblComponents where ID = %1"_s.arg(shop.container));
    const QStringList before = shop.loft.Snapshot();
    QCOMPARE(LoadJobGear(shop.job, shop.rig).first().componentID, 0);
    QCOMPARE(shop.Changes(before), QStringList(GearShop::OnJob(u'-', shop.job, shop.container)));
  }
};

LOFT_TEST_MAIN(TestInstallComponent)
#include "tst_install_component.moc"
