#include <QtTest>

#include "jobs/gear_shop.h"
#include "jobs/install_component.h"
#include "jobs/remove_component.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

const QString kSure = u"Are you sure you want to remove this component from this rig?"_s;
const QString kCancelInstallation =
    u"You are removing a component that was installed\nduring this job.\n"
    "Rather than removing this component, you can cancel\nthe installation.  This will delete the installation\n"
    "task from the job as well as remove the component.\nWould you like to cancel the installation (recommended)"_s;
const QString kRigToo =
    u"This job has different components than the current rig.\n"
    "However the component you are removing is the current\ncomponent in the actual rig.\n\n"
    "Do you want the component removed from the current rig\nas well as from this job?"_s;

bool Remove(const GearShop& shop, int component) { return RemoveFromJob(shop.Context(), component, GearShop::kDone); }

/// The line and the job's row of a removal.
QStringList Removal(const GearShop& shop, int component, const QString& name) {
  return shop.NewLine(1, RemoveTaskLibID, name, component) + QStringList(GearShop::OnJob(u'-', shop.job, component));
}

}  // namespace

class TestRemoveComponent : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void ACurrentRigLosesItsContainerAndItsRepack() {
    GearShop shop;
    shop.AddSchedule(shop.rig, RepackTaskLibID, Day(9, 1, 2026), 0, 0);
    shop.AddSchedule(shop.rig, shop.aadCheck, Day(9, 1, 2026), 0, shop.aad);
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.Expect(u"Remove Container - Javelin "_s, kSure, Answer::Yes)
        .WithButtons(Buttons::YesNo)
        .WithPreset(Answer::No);
    shop.prompts.ExpectBox(u"Reserve repack date removed"_s,
                           u"Note: the reserve repack schedule for this rig has been deleted"_s);
    const QString repack = before.filter(QRegularExpression(u"^tblSchedules\\|1\\|"_s)).value(0);
    QVERIFY(Remove(shop, shop.container));
    QCOMPARE(shop.Changes(before),
             GearShop::Sorted(Removal(shop, shop.container, u"Remove Container - Javelin  from Blue"_s) +
                              shop.Moved(shop.container, shop.rig, 0) + QStringList(u'-' + repack)));
    QCOMPARE(shop.Schedules().size(), 1);
  }

  void OtherGearLeavesTheRepack() {
    GearShop shop;
    shop.AddSchedule(shop.rig, RepackTaskLibID, Day(9, 1, 2026), 0, 0);
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.Expect(u"Remove Main Canopy - Sabre "_s, kSure, Answer::Yes);
    QVERIFY(Remove(shop, shop.mainCanopy));
    QCOMPARE(shop.Changes(before),
             GearShop::Sorted(Removal(shop, shop.mainCanopy, u"Remove Main Canopy - Sabre  from Blue"_s) +
                              shop.Moved(shop.mainCanopy, shop.rig, 0)));
  }

  void WithoutARepackNothingIsTold() {
    GearShop shop;
    shop.prompts.Expect(u"Remove Reserve Canopy - Raven "_s, kSure, Answer::Yes);
    QVERIFY(Remove(shop, shop.reserve));
    QCOMPARE(ComponentRig(shop.reserve), 0);
  }

  /// Of the schedule a removal takes the repack alone; what the component owes by itself is not forgotten.
  void WorkOnTheComponentAloneStaysDue() {
    GearShop shop;
    const int lineCheck = shop.AddEntry("Line check", 1, 3, {kMainCanopy});
    shop.AddSchedule(shop.rig, lineCheck, Day(9, 1, 2026), 0, shop.mainCanopy);
    shop.AddSchedule(shop.rig, RepackTaskLibID, Day(8, 1, 2026), 0, 0);
    const QStringList schedules = shop.Schedules();
    shop.prompts.Expect(u"Remove Main Canopy - Sabre "_s, kSure, Answer::Yes);
    QVERIFY(Remove(shop, shop.mainCanopy));
    QCOMPARE(ComponentRig(shop.mainCanopy), 0);
    QCOMPARE(shop.Schedules(), schedules);
  }

  void AnotherRigKeepsItsRepack_data() {
    QTest::addColumn<Answer>("answer");
    QTest::newRow("leaves the rig") << Answer::Yes;
    QTest::newRow("stays in the rig") << Answer::No;
  }
  void AnotherRigKeepsItsRepack() {
    QFETCH(Answer, answer);
    GearShop shop;
    shop.LetRigDiffer();
    shop.AddSchedule(shop.rig, RepackTaskLibID, Day(9, 1, 2026), 0, 0);
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.Expect(u"Remove Container - Javelin "_s, kSure, Answer::Yes);
    shop.prompts.Expect(u"Update rig to show component removal?"_s, kRigToo, answer).WithButtons(Buttons::YesNo);
    QVERIFY(Remove(shop, shop.container));
    QStringList expected = Removal(shop, shop.container, u"Remove Container - Javelin  from Blue"_s);
    if (answer == Answer::Yes) expected += shop.Moved(shop.container, shop.rig, 0);
    QCOMPARE(shop.Changes(before), GearShop::Sorted(expected));
  }

  void WhatTheRigNoLongerWearsLeavesTheJobAlone() {
    GearShop shop;
    shop.LetRigDiffer();
    SetComponentRig(shop.mainCanopy, shop.red);
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.Expect(u"Remove Main Canopy - Sabre "_s, kSure, Answer::Yes);
    QVERIFY(Remove(shop, shop.mainCanopy));
    QCOMPARE(shop.Changes(before),
             GearShop::Sorted(Removal(shop, shop.mainCanopy, u"Remove Main Canopy - Sabre  from Blue"_s)));
  }

  /// A rig without a type always counts as current; what another rig wears by now stays in that.
  void ARigOfNoTypeTakesNothingFromAnotherRig() {
    GearShop shop;
    SetRigType(shop.rig, 0);
    SetComponentRig(shop.container, shop.red);
    shop.AddSchedule(shop.rig, RepackTaskLibID, Day(9, 1, 2026), 0, 0);
    shop.prompts.Expect(u"Remove Container - Javelin "_s, kSure, Answer::Yes);
    QVERIFY(Remove(shop, shop.container));
    QCOMPARE(ComponentRig(shop.container), shop.red);
    QCOMPARE(shop.Schedules().size(), 1);
  }

  void WithoutARigTheJobChangesAlone_data() {
    QTest::addColumn<bool>("deleted");
    QTest::newRow("no rig") << false;
    QTest::newRow("deleted") << true;
  }
  void WithoutARigTheJobChangesAlone() {
    QFETCH(bool, deleted);
    GearShop shop;
    if (deleted)
      shop.DeleteRigOfJob();
    else
      shop.loft.Run(u"update tblJobs set SystemID = 0"_s);
    const QStringList before = shop.loft.Snapshot();
    const QString question = deleted ? kSure : u"Are you sure you want to remove this component from this job?"_s;
    shop.prompts.Expect(u"Remove Container - Javelin "_s, question, Answer::No);
    QVERIFY(!Remove(shop, shop.container));
    QCOMPARE(shop.Changes(before), QStringList());
    shop.prompts.Expect(u"Remove Container - Javelin "_s, question, Answer::Yes);
    QVERIFY(Remove(shop, shop.container));
    QCOMPARE(shop.Changes(before), QStringList(GearShop::OnJob(u'-', shop.job, shop.container)));
  }

  void CancellingAnInstallationLeavesNoTraceOfIt() {
    GearShop shop;
    const QStringList before = shop.loft.Snapshot();
    QVERIFY(InstallOnJob(shop.Context(), {shop.spare}, GearShop::kDone));
    QVERIFY(CancellingInstallation(LinesOfComponent(shop.job, shop.spare)));
    const QStringList installed = shop.loft.Snapshot();
    shop.prompts.Expect(u"Cancel installation?"_s, kCancelInstallation, Answer::Cancel)
        .WithButtons(Buttons::YesNoCancel);
    QVERIFY(!Remove(shop, shop.spare));
    QCOMPARE(shop.Changes(installed), QStringList());
    shop.prompts.Expect(u"Cancel installation?"_s, kCancelInstallation, Answer::Yes);
    QVERIFY(Remove(shop, shop.spare));
    QCOMPARE(shop.Changes(before), QStringList());
  }

  void CancellingOnAJobThatDiffersLeavesTheRig() {
    GearShop shop;
    QVERIFY(InstallOnJob(shop.Context(), {shop.spare}, GearShop::kDone));
    shop.LetRigDiffer();
    shop.prompts.Expect(u"Cancel installation?"_s, kCancelInstallation, Answer::Yes);
    QVERIFY(Remove(shop, shop.spare));
    QCOMPARE(ComponentRig(shop.spare), shop.rig);
    QVERIFY(!ComponentIsInGrid(shop.job, shop.spare));
    QCOMPARE(LinesOfJob(shop.job), QList<int>());
  }

  void CancellingTakesNothingFromAnotherRig() {
    GearShop shop;
    SetRigType(shop.rig, 0);
    AddJobComponent(shop.job, shop.spare);
    AddGearLine(shop.Context(), InstallTaskLibID, u"Install"_s, shop.spare, GearShop::kDone);
    SetComponentRig(shop.spare, shop.red);
    shop.prompts.Expect(u"Cancel installation?"_s, kCancelInstallation, Answer::Yes);
    QVERIFY(Remove(shop, shop.spare));
    QCOMPARE(ComponentRig(shop.spare), shop.red);
    QVERIFY(!ComponentIsInGrid(shop.job, shop.spare));
  }

  void AnInstalledComponentMayBeRemovedAllTheSame() {
    GearShop shop;
    QVERIFY(InstallOnJob(shop.Context(), {shop.spare}, GearShop::kDone));
    shop.prompts.Expect(u"Cancel installation?"_s, kCancelInstallation, Answer::No);
    shop.prompts.Expect(u"Remove AAD - Argus "_s, kSure, Answer::Yes);
    QVERIFY(Remove(shop, shop.spare));
    QCOMPARE(shop.loft.Rows(u"select TaskLibID, TaskName from tblTasks order by ID"_s),
             (QStringList{u"2|Install AAD Argus  to Blue"_s, u"3|Remove AAD - Argus  from Blue"_s}));
    QCOMPARE(ComponentRig(shop.spare), 0);
  }

  void LinesThatNeedTheComponentKeepIt() {
    GearShop shop;
    shop.AddTask(RepackTaskLibID);
    QVERIFY(!CancellingInstallation(LinesOfComponent(shop.job, shop.container)));
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.ExpectBox(u"Cannot remove component"_s,
                           u"This job has tasks that require this component:\n    Inspect and repack reserve\n"
                           "You must delete those tasks from this job before removing this component."_s);
    QVERIFY(!Remove(shop, shop.container));
    QCOMPARE(shop.Changes(before), QStringList());
  }

  void OtherLinesBesideAnInstallationAreToldFirst() {
    GearShop shop;
    QVERIFY(InstallOnJob(shop.Context(), {shop.spare}, GearShop::kDone));
    shop.AddTask(shop.aadCheck);
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.ExpectBox(kProgramTitle, u"other tasks present, continue below"_s);
    shop.prompts.ExpectBox(u"Cannot remove component"_s,
                           u"This job has tasks that require this component:\n    AAD check\n"
                           "You must delete those tasks from this job before removing this component."_s);
    QVERIFY(!Remove(shop, shop.spare));
    QCOMPARE(shop.Changes(before), QStringList());
  }

  void SeveralInstallationsAreNotCancelled() {
    GearShop shop;
    QVERIFY(InstallOnJob(shop.Context(), {shop.spare}, GearShop::kDone));
    int second = 0;
    AddTaskToJob(shop.Context(), InstallTaskLibID, false, GearShop::kDone, second);
    AddTaskComponent(second, shop.spare, false);
    shop.prompts.ExpectBox(kProgramTitle, u"other tasks present, continue below"_s);
    shop.prompts.Expect(u"Remove AAD - Argus "_s, kSure, Answer::Yes);
    QVERIFY(Remove(shop, shop.spare));
    QCOMPARE(LinesOfJob(shop.job).size(), 3);
  }

  void ARowOfTheGearMustBeFilled() {
    GearShop shop;
    const QString title = u"Remove component from rig"_s;
    shop.prompts.ExpectBox(title, u"There are no components to remove"_s);
    QVERIFY(!PlaceIsFilled(0, 0, 0));
    shop.prompts.ExpectBox(title, u"You must select a component from the above grid"_s);
    QVERIFY(!PlaceIsFilled(4, 0, 0));
    shop.prompts.ExpectBox(u"Can't remove AAD"_s, u"AAD doesn't exist"_s);
    QVERIFY(!PlaceIsFilled(4, kAad, 0));
    QVERIFY(PlaceIsFilled(4, kAad, shop.aad));
  }
};

LOFT_TEST_MAIN(TestRemoveComponent)
#include "tst_remove_component.moc"
