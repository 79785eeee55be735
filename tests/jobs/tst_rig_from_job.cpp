#include <QtTest>

#include "jobs/gear_shop.h"
#include "jobs/rig_from_job.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kSportRig = 1;
constexpr int kPilotRig = 3;  // container and reserve alone

const QString kNameIt = u"What do you want to call this new rig?"_s;
const QString kAnnsRigs = u"Current rigs owned by Ann Adams are:\n      Red\n\n"_s + kNameIt;
const QString kOlafsRigs = u"Current rigs owned by Olaf Owner are:\n      Blue\n\n"_s + kNameIt;

/// A job of the second customer's without a rig, with gear of her own rig and gear in no rig.
struct RigShop : GearShop {
  int loose = 0;
  int canopy = AddComponent("Pilot", kMainCanopy, 0);

  RigShop() {
    CreateNewJob(QStringLiteral("Loose"), ann, 0, vigil, loose, rigger, 0, kDone);
    AddJobComponent(loose, canopy);
  }
  JobContext Loose() const { return JobContextOf(loose); }
  int NewRig() const { return red + 1; }
  int Build() const { return BuildRigFromJob(Loose(), kSportRig, kDone); }
  void ExpectMoveOfVigil(Answer answer) {
    prompts.Expect(u"Move AAD?"_s,
                   u"The AAD you selected:\n     Vigil \nis already part of a rig: Red\nOwned by: Adams, Ann\n"
                   "Do you want to move this AAD to the current rig?"_s,
                   answer);
  }
};

}  // namespace

class TestRigFromJob : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void GearOfAnotherRigIsAskedFor() {
    RigShop shop;
    const QString text = u"Red belongs to AAD Vigil \n\nDo you want to move that component to this rig?"_s;
    shop.prompts.Expect(u"Component is part of a different rig"_s, text, Answer::No)
        .WithButtons(Buttons::YesNo)
        .WithPreset(Answer::No);
    QVERIFY(!AllComponentsArefree(shop.loose));
    shop.prompts.Expect(u"Component is part of a different rig"_s, text, Answer::Yes);
    QVERIFY(AllComponentsArefree(shop.loose));
    DeleteRigRow(shop.red);
    QVERIFY(AllComponentsArefree(shop.loose));
  }

  void TheOnlyComponentMayBringItsRig() {
    RigShop shop;
    QCOMPARE(AskRigOfOnlyComponent(shop.loose), RigOfOnlyComponent::NewRig);  // there are two
    RemoveJobComponent(shop.loose, shop.canopy);
    const QString text =
        u"You are creating a new rig using the above component.\n\nHowever,that component (AAD) is part of a \n"
        "rig called 'Red'\n\nYou can either:\n\n      1).  Add that rig to this job (recommended)\n"
        "      2).  Create a new rig \n           (component will be removed from current rig)\n\n"
        "Would you like to add that rig to this job?  (recommended)\n\n"
        "(if you select 'No', a new rig will be created)"_s;
    const auto answered = [&](Answer answer) {
      shop.prompts.Expect(u"Load Red?"_s, text, answer).WithButtons(Buttons::YesNoCancel);
      return AskRigOfOnlyComponent(shop.loose);
    };
    QCOMPARE(answered(Answer::Cancel), RigOfOnlyComponent::Cancel);
    QCOMPARE(answered(Answer::No), RigOfOnlyComponent::NewRig);
    QCOMPARE(answered(Answer::Yes), RigOfOnlyComponent::TakeRig);
    SetComponentRig(shop.vigil, 0);
    QCOMPARE(AskRigOfOnlyComponent(shop.loose), RigOfOnlyComponent::NewRig);
  }

  void ATakenRigBringsItsGear() {
    RigShop shop;
    const int container = shop.AddComponent("Vector", kContainer, shop.red);
    TakeRig(shop.loose, shop.red);
    QCOMPARE(JobSystemID(shop.loose), shop.red);
    QCOMPARE(ComponentsOfJob(shop.loose), (QList<int>{shop.vigil, container}));
    QVERIFY(RigComponentsCurrent(shop.loose, shop.red));
    QCOMPARE(ComponentsOfJob(shop.job).size(), 3);
  }

  void ARigHoldsOneOfEachType() {
    RigShop shop;
    QVERIFY(!RefuseDoubledTypes(shop.loose));
    AddJobComponent(shop.loose, shop.mainCanopy);
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.ExpectBox(u"Can't create rig with these components"_s,
                           u"This job has more than one Main Canopy\nA rig can only have one Main Canopy\n"
                           "You can either remove some components or\nstart a new job and create a new rig"_s);
    QVERIFY(RefuseDoubledTypes(shop.loose));
    QCOMPARE(shop.Changes(before), QStringList());
  }

  void TheRigTypeMustHaveAPlaceForAllGear() {
    RigShop shop;
    QVERIFY(GearFitsRigType(shop.loose, kSportRig));
    shop.prompts.ExpectBox(u"Component not compatible with rig type"_s,
                           u"This rig type (Pilot Emergency Rig (back)) cannot contain\nthis component:\n   Vigil "_s);
    QVERIFY(!GearFitsRigType(shop.loose, kPilotRig));
  }

  void ARigIsBuiltOfTheGear() {
    RigShop shop;
    const QStringList before = shop.loft.Snapshot();
    shop.ExpectMoveOfVigil(Answer::Yes);
    shop.prompts.ExpectInput(kProgramTitle, kAnnsRigs, u"  Ann's \"Green\" "_s).Meanwhile([&] {
      QCOMPARE(RigName(shop.NewRig()), kTempRigName);
    });
    QCOMPARE(shop.Build(), shop.NewRig());
    QStringList changes = shop.Changes(before);
    changes.removeIf([](const QString& row) { return row.mid(1).startsWith("tblJobs|"_L1); });
    QCOMPARE(changes,
             GearShop::Sorted(
                 shop.Moved(shop.vigil, shop.red, shop.NewRig()) + shop.Moved(shop.canopy, 0, shop.NewRig()) +
                 GearShop::NewRemoval(1, shop.red, shop.ann, u"Remove AAD Vigil  from Red"_s, shop.vigil) +
                 QStringList(u"+tblRig|%1|%2|%3|Ann's \"Green\"| "_s.arg(shop.NewRig()).arg(shop.ann).arg(kSportRig))));
    QCOMPARE(JobSystemID(shop.loose), shop.NewRig());
    QVERIFY(RigComponentsCurrent(shop.loose, shop.NewRig()));
    shop.prompts.ExpectBox(u"New rig created successfully"_s, u"Ann's \"Green\" has been created"_s);
    TellRigCreated(shop.NewRig());
  }

  void WhatADeletedRigWoreIsFree() {
    RigShop shop;
    SetComponentRig(shop.vigil, 77);
    SetComponentRig(shop.canopy, 0);
    shop.prompts.ExpectInput(kProgramTitle, kAnnsRigs, u"Green"_s);
    QCOMPARE(shop.Build(), shop.NewRig());
    QCOMPARE(ComponentRig(shop.vigil), shop.NewRig());
    QCOMPARE(LinesOfJob(0), QList<int>());
  }

  void ARefusedMoveLeavesNoRig() {
    RigShop shop;
    const QStringList before = shop.loft.Snapshot();
    shop.ExpectMoveOfVigil(Answer::No);
    shop.prompts.ExpectBox(u"Cancelled"_s, u"New rig not created"_s);
    QCOMPARE(shop.Build(), 0);
    QCOMPARE(shop.Changes(before), QStringList());
  }

  void WithoutANameAllGearGoesBack() {
    RigShop shop;
    shop.loft.Run(u"update tblJobs set SystemID = 77 where ID = %1"_s.arg(shop.loose));  // a rig that was deleted
    const QStringList before = shop.loft.Snapshot();
    shop.ExpectMoveOfVigil(Answer::Yes);
    shop.prompts.ExpectInput(kProgramTitle, kAnnsRigs, u"   "_s).Meanwhile([&] {
      QCOMPARE(ComponentRig(shop.vigil), shop.NewRig());
    });
    QCOMPARE(shop.Build(), 0);
    QCOMPARE(shop.Changes(before), QStringList());
  }

  void ANameIsAskedForUntilItIsFree() {
    RigShop shop;
    shop.prompts.ExpectInput(kProgramTitle, kOlafsRigs, u" BLUE "_s);
    shop.prompts.ExpectBox(u"Duplicate rig name"_s,
                           u"Olaf Owner already has a rig named BLUE\nRig list:\n      Blue"_s);
    shop.prompts.ExpectInput(kProgramTitle, kOlafsRigs, u"Red"_s);  // another owner's
    QCOMPARE(AskNameOfNewRig(shop.owner), u"Red"_s);
    shop.prompts.ExpectInput(kProgramTitle, kNameIt, QString(60, u'x'));
    QCOMPARE(AskNameOfNewRig(shop.rigger), QString(50, u'x'));
  }

  void TheReservedNameIsNeverListed() {
    RigShop shop;
    CreateRig(shop.owner, kSportRig, kTempRigName);
    shop.prompts.ExpectInput(kProgramTitle, kOlafsRigs, kTempRigName);
    shop.prompts.ExpectBox(u"Duplicate rig name"_s,
                           u"Olaf Owner already has a rig named <temp rig name>\nRig list:\n      Blue"_s);
    shop.prompts.ExpectInput(kProgramTitle, kOlafsRigs, {});
    QCOMPARE(AskNameOfNewRig(shop.owner), QString());
  }

  void SomebodyMustOwnTheRig() {
    RigShop shop;
    QVERIFY(CustomerCanOwnRig(shop.Loose()));
    shop.loft.Run(u"delete from tblPeople where ID = %1"_s.arg(shop.ann));
    shop.prompts.ExpectBox(u"Can't create new rig"_s, u"This customer as been deleted"_s);
    QVERIFY(!CustomerCanOwnRig(shop.Loose()));
  }

  void ARigIsImportedIntoAJobWithoutOne() {
    RigShop shop;
    const QString first = u"You must create a new job to add a rig.\n"_s;
    shop.prompts.ExpectBox(u"Rig already present"_s,
                           first + u"This job already has one or more component associated with it."_s);
    QVERIFY(!MayImportRig(shop.Loose()));
    RemoveJobComponent(shop.loose, shop.canopy);
    QVERIFY(MayImportRig(shop.Loose()));
    shop.prompts.ExpectBox(u"Rig already present"_s, first + u"This job already has a rig associated with it."_s);
    QVERIFY(!MayImportRig(shop.Context()));
    shop.DeleteRigOfJob();
    shop.prompts.ExpectBox(u"Rig already present"_s, first +
                                                         u"This job already has a rig associated with it.\n"
                                                         "(although that rig has been deleted)"_s);
    QVERIFY(!MayImportRig(shop.Context()));
  }

  void TwoQuestionsComeBeforeAnythingElse() {
    RigShop shop;
    shop.prompts.Expect(
        u"Start a new job?"_s,
        u"This job already involves a rig.  \nWould you like to start a new job and create a new rig?"_s, Answer::No);
    QVERIFY(!AskStartNewJobForRig());
    shop.prompts.Expect(u"Use these components?"_s, u"Do you want to create a rig using the components shown above?"_s,
                        Answer::Yes);
    QVERIFY(AskUseComponents());
  }
};

LOFT_TEST_MAIN(TestRigFromJob)
#include "tst_rig_from_job.moc"
