#include <QTest>

#include "jobs/screens/open_gear.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

class TestJobRemove : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void ARowWithAComponentMustBeSelected() {
    OpenGear shop;
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.ExpectBox(u"Remove component from rig"_s, u"You must select a component from the above grid"_s);
    shop.RunItem(OpenGear::kRemove);
    shop.prompts.ExpectBox(u"Can't remove AAD"_s, u"AAD doesn't exist"_s);
    shop.RunItem(OpenGear::kRemove, OpenGear::kAadRow);
    shop.prompts.Expect(u"Remove Container - Javelin "_s,
                        u"Are you sure you want to remove this component from this rig?"_s, Answer::No);
    shop.Gear().SelectRow(0);
    PressKey(shop.Gear(), Qt::Key_Delete);
    QCOMPARE(shop.Changes(before), QStringList());
    const int empty = shop.AddJob("Empty", 0, 0);
    GotoJob(empty);
    shop.prompts.ExpectBox(u"Remove component from rig"_s, u"There are no components to remove"_s);
    shop.Choose(u"Rig"_s, u"Remove component from rig"_s);
  }

  void TheContainerTakesTheRepackAlong() {
    OpenGear shop;
    shop.AddSchedule(shop.rig, RepackTaskLibID, Day(9, 1, 2026), 0, 0);
    shop.prompts.Expect(u"Remove Container - Javelin "_s,
                        u"Are you sure you want to remove this component from this rig?"_s, Answer::Yes);
    shop.prompts.ExpectBox(u"Reserve repack date removed"_s,
                           u"Note: the reserve repack schedule for this rig has been deleted"_s);
    shop.Gear().SelectRow(0);
    shop.Choose(u"Rig"_s, u"Remove component from rig"_s);
    QCOMPARE(shop.GearRow(0), u"1|Container|||"_s);
    QCOMPARE(shop.Row(0), u"Remove Container - Javelin  from Blue|Rigger|0.00||"_s);
    QCOMPARE(shop.Schedules(), QStringList());
    QVERIFY(!shop.Shows("cmdGearChange"));
  }

  void AnOpenRigScreenFollows() {
    OpenGear shop;
    OpenRigs({.rig = shop.rig});
    shop.prompts.Expect(u"Remove Main Canopy - Sabre "_s,
                        u"Are you sure you want to remove this component from this rig?"_s, Answer::Yes);
    shop.RunItem(OpenGear::kRemove, 1);
    auto& rigs = dynamic_cast<QWidget&>(*Forms::Find(u"frmGetRig"_s));
    QCOMPARE(Control<Grid>(rigs, u"Grid"_s).Text(1, 2), QString());
  }

  void AJobOfOneComponentNeedsNoSelection() {
    OpenGear shop;
    const int loose = shop.AddJob("Loose", 0, shop.container);
    GotoJob(loose);
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.Expect(u"Remove Container - Javelin "_s,
                        u"Are you sure you want to remove this component from this job?"_s, Answer::Yes);
    shop.RunItem(OpenGear::kRemove);
    QCOMPARE(shop.Gear().RowCount(), 0);
    QCOMPARE(shop.Changes(before), QStringList(GearShop::OnJob(u'-', loose, shop.container)));
  }

  void ACancelledInstallationGoesWithItsLine() {
    OpenGear shop;
    const QStringList before = shop.loft.Snapshot();
    InstallOnJob(shop.Context(), {shop.spare}, GearShop::kDone);
    shop.Choose(u"Tools"_s, u"Refresh"_s);
    QCOMPARE(shop.Row(0), u"Install AAD Argus  to Blue|Rigger|0.00||"_s);
    shop.prompts.Expect(u"Cancel installation?"_s,
                        u"You are removing a component that was installed\nduring this job.\n"
                        "Rather than removing this component, you can cancel\n"
                        "the installation.  This will delete the installation\n"
                        "task from the job as well as remove the component.\n"
                        "Would you like to cancel the installation (recommended)"_s,
                        Answer::Yes);
    shop.RunItem(OpenGear::kRemove, OpenGear::kAadRow);
    QCOMPARE(shop.Row(0), u"||||"_s);
    QCOMPARE(shop.GearRow(OpenGear::kAadRow), u"4|AAD|||"_s);
    QCOMPARE(shop.Changes(before), QStringList());
  }

  void TheRigIsUpdatedFromTheMenu() {
    OpenGear shop;
    shop.prompts.ExpectBox(u"Components are current"_s,
                           u"The rig components for this job are the rig's current components"_s);
    shop.Choose(u"Tools"_s, u"Update rig component to match this job's components"_s);
    shop.LetRigDiffer();
    shop.Choose(u"Tools"_s, u"Refresh"_s);
    QVERIFY(shop.Shows("cmdGearChange") && shop.Shows("cmdCurrentComp"));
    shop.prompts.Expect(u"Update rig?"_s,
                        u"This will change the following components in rig Blue:\nMain Canopy\n"
                        "Are you sure you want to do this?"_s,
                        Answer::Yes);
    shop.prompts.ExpectBox(kProgramTitle, u"Rig updated"_s);
    shop.Choose(u"Tools"_s, u"Update rig component to match this job's components"_s);
    QVERIFY(!shop.Shows("cmdGearChange") && !shop.Shows("cmdCurrentComp"));
    QCOMPARE(ComponentRig(shop.mainCanopy), shop.rig);
  }

  void ClicksEditWhatTheyHit() {
    OpenGear shop;
    shop.prompts.ExpectInput(u"Serial Number"_s, u"Enter serial number"_s, u"J'7"_s);
    ClickCell(shop.Gear(), 0, 3);
    shop.prompts.ExpectInput(u"Date of Manufacture"_s, u"Enter date of manufacture"_s, u"6/1/2019"_s);
    ClickCell(shop.Gear(), 0, 4);
    QCOMPARE(shop.GearRow(0), u"1|Container|Javelin |J'7|06/01/2019"_s);
    QCOMPARE(shop.Gear().CurrentRow(), 0);
    shop.prompts.ExpectInput(u"Date of Manufacture"_s, u"Enter date of manufacture"_s, u"2019"_s);
    PressKey(shop.Gear(), Qt::Key_F2);
    QCOMPARE(shop.GearRow(0), u"1|Container|Javelin |J'7|01/01/2019"_s);
    const QStringList before = shop.loft.Snapshot();
    for (const int column : {1, 2}) ClickCell(shop.Gear(), 0, column);
    for (const int column : {1, 3, 4}) {
      shop.prompts.ExpectBox(kProgramTitle, u"To add an AAD, select INSTALL COMPONENT\n(see menu on left)"_s);
      ClickCell(shop.Gear(), OpenGear::kAadRow, column);
    }
    QCOMPARE(shop.Changes(before), QStringList());
  }

  void AComponentThatGoesMeanwhileLeavesTheJob() {
    OpenGear shop;
    const int loose = shop.AddJob("Loose", 0, shop.container);
    GotoJob(loose);
    shop.loft.Run(u"delete from tblComponents where ID = %1"_s.arg(shop.container));
    QCOMPARE(shop.Gear().RowCount(), 0);
    QCOMPARE(shop.loft.Rows(u"select * from tblJobComponents where JobID = %1"_s.arg(loose)), QStringList());
  }
};

LOFT_TEST_MAIN(TestJobRemove)
#include "tst_job_remove.moc"
