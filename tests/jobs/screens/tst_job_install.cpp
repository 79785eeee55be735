#include <QTest>

#include "gear/models.h"
#include "jobs/screens/library_shop.h"
#include "jobs/screens/open_gear.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

class TestJobInstall : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void AFreePlaceMustBeSelected() {
    OpenGear shop;
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.ExpectBox(u"Install component"_s, u"You must select a component from the above grid"_s);
    shop.RunItem(OpenGear::kInstall);
    shop.Gear().SelectRow(0);
    shop.prompts.ExpectBox(u"Component exists"_s,
                           u"Current component must be removed before installing new component"_s);
    shop.Choose(u"Rig"_s, u"Install component in rig"_s);
    shop.Gear().SelectRow(OpenGear::kAadRow);
    shop.Press(u"frmNewOrOld"_s, u"cmdCancel"_s);
    shop.Choose(u"Component"_s, u"Add a component"_s);
    QCOMPARE(shop.Changes(before), QStringList());
  }

  void AComponentIsChosenFromTheDatabase() {
    OpenGear shop;
    shop.SetWorkDate(u"3/10/2026"_s);
    const QStringList before = shop.loft.Snapshot();
    shop.Gear().SelectRow(OpenGear::kAadRow);
    shop.Press(u"frmNewOrOld"_s, u"cmdDatabase"_s);
    shop.PickComponentOf(shop.spare);
    shop.RunItem(OpenGear::kInstall);
    QCOMPARE(shop.GearRow(OpenGear::kAadRow), u"4|AAD|Argus ||"_s);
    QCOMPARE(shop.Row(0), u"Install AAD Argus  to Blue|Rigger|0.00||"_s);
    QCOMPARE(shop.Label("txtDate"), u"3/10/2026"_s);
    QCOMPARE(shop.Gear().RowCount(), 4);
    QVERIFY(!shop.Shows("cmdGearChange"));
    QStringList expected = shop.Moved(shop.spare, 0, shop.rig) +
                           shop.NewLine(1, InstallTaskLibID, u"Install AAD Argus  to Blue"_s, shop.spare) +
                           QStringList(GearShop::OnJob(u'+', shop.job, shop.spare));
    // With its first line the job is no longer complete.
    QStringList changes = shop.Changes(before);
    changes.removeIf([](const QString& row) { return row.mid(1).startsWith("tblJobs|"_L1); });
    QCOMPARE(changes, GearShop::Sorted(expected));
    Picture(shop.Screen(), u"frmJob_installed"_s);
  }

  void NothingIsInstalledWhenNothingIsChosen() {
    OpenGear shop;
    const QStringList before = shop.loft.Snapshot();
    shop.Gear().SelectRow(OpenGear::kAadRow);
    shop.Press(u"frmNewOrOld"_s, u"cmdDatabase"_s);
    shop.Press(u"frmPickComponent"_s, u"cmdCancel"_s);
    shop.RunItem(OpenGear::kInstall);
    shop.Press(u"frmNewOrOld"_s, u"cmdNew"_s);
    shop.Press(u"frmPicker"_s, u"cmdCancel"_s);
    shop.RunItem(OpenGear::kInstall, OpenGear::kAadRow);
    shop.Press(u"frmNewOrOld"_s, u"cmdNew"_s);
    shop.PickModel(u"Argus"_s);
    shop.Press(u"frmComponentEdit"_s, u"cmdCancel"_s);
    shop.RunItem(OpenGear::kInstall, OpenGear::kAadRow);
    QCOMPARE(shop.Changes(before), QStringList());
  }

  void ANewComponentIsEntered() {
    OpenGear shop;
    shop.Press(u"frmNewOrOld"_s, u"cmdNew"_s);
    shop.PickModel(u"Argus"_s);
    shop.screens.WhenShown(u"frmComponentEdit"_s, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"Enter new AAD"_s);
      TypeInto(form, u"txtSerial"_s, u"O'Neill 7"_s);
      Click(form, u"cmdSave"_s);
    });
    shop.RunItem(OpenGear::kInstall, OpenGear::kAadRow);
    const int added = JobComponentOfType(shop.job, kAad);
    QCOMPARE(
        shop.loft.Rows(u"select SerialNumber, OwnerID, RigID, TypeID from tblComponents where ID = %1"_s.arg(added)),
        QStringList(u"O'Neill 7|%1|%2|4"_s.arg(shop.owner).arg(shop.rig)));
    QCOMPARE(shop.GearRow(OpenGear::kAadRow), u"4|AAD|Argus |O'Neill 7|"_s);
    QCOMPARE(shop.Row(0), u"Install AAD Argus  to Blue|Rigger|0.00||"_s);
  }

  void ANewComponentMayGiveWayToAnOldOne() {
    OpenGear shop;
    shop.loft.Run(u"update tblComponents set SerialNumber = 'A1' where ID = %1"_s.arg(shop.spare));
    shop.Press(u"frmNewOrOld"_s, u"cmdNew"_s);
    shop.PickModel(u"Argus"_s);
    shop.screens.WhenShown(u"frmComponentEdit"_s, [&](Form& form) {
      TypeInto(form, u"txtSerial"_s, u"a1"_s);
      shop.prompts.Expect(u"Component already exists"_s,
                          u"There already is an Argus AAD\nwith serial number a1 in the component database. \n\n"
                          "Would you like to see it?"_s,
                          Answer::Yes);
      Click(form, u"cmdSave"_s);
    });
    const int components = shop.CountComponents();
    shop.RunItem(OpenGear::kInstall, OpenGear::kAadRow);
    QCOMPARE(ComponentRig(shop.spare), shop.rig);
    QCOMPARE(ComponentOwner(shop.spare), shop.owner);
    QCOMPARE(shop.CountComponents(), components);
  }

  void ASerialNumberIsLookedUp() {
    OpenGear shop;
    shop.loft.Run(u"update tblComponents set SerialNumber = 'A1' where ID = %1"_s.arg(shop.spare));
    shop.TypeSerial(u"a1"_s);
    shop.Press(u"frmComponentVerify"_s, u"cmdNo"_s);
    const QStringList before = shop.loft.Snapshot();
    shop.RunItem(OpenGear::kInstall, OpenGear::kAadRow);
    QCOMPARE(shop.Changes(before), QStringList());
    shop.TypeSerial(u"a1"_s);
    shop.Press(u"frmComponentVerify"_s, u"cmdYes"_s);
    shop.RunItem(OpenGear::kInstall, OpenGear::kAadRow);
    QCOMPARE(ComponentRig(shop.spare), shop.rig);
  }

  void SeveralMatchesAreShown() {
    OpenGear shop;
    shop.loft.Run(u"update tblComponents set SerialNumber = 'A1' where TypeID = 4"_s);
    shop.TypeSerial(u"a1"_s);
    shop.prompts.Expect(u"Serial number a1 has 3 matches"_s,
                        u"The AAD database shows 3 components with that serial number\nWould you like to see them?"_s,
                        Answer::Yes);
    shop.screens.WhenShown(u"frmSerialNumber"_s, [&](Form& form) {
      Control<List>(form, u"lst"_s).SelectData(shop.aad);
      Click(form, u"cmdSelect"_s);
    });
    shop.RunItem(OpenGear::kInstall, OpenGear::kAadRow);
    QCOMPARE(ComponentRig(shop.aad), shop.rig);
  }

  void AnUnknownSerialNumberMakesANewComponent() {
    OpenGear shop;
    shop.TypeSerial(u"N9"_s);
    shop.prompts.Expect(u"Add new AAD?"_s,
                        u"Serial number N9 is not found in the AAD database\n"
                        "Would you like to create a new AAD using that serial number?"_s,
                        Answer::Yes);
    shop.PickModel(u"Argus"_s);
    shop.screens.WhenShown(u"frmComponentEdit"_s, [](Form& form) {
      QCOMPARE(TextOf(form, u"txtSerial"_s), u"N9"_s);
      Click(form, u"cmdSave"_s);
    });
    shop.RunItem(OpenGear::kInstall, OpenGear::kAadRow);
    QCOMPARE(shop.GearRow(OpenGear::kAadRow), u"4|AAD|Argus |N9|"_s);
  }

  void TheLibraryLeadsToTheSameCommands() {
    OpenGear shop;
    shop.screens.WhenShown(u"frmSelectTask"_s, [](Form& form) {
      LibraryShop::SelectText(form, "lstTasks", u"Install component"_s);
      Click(form, u"cmdSelect"_s);
    });
    shop.Press(u"frmNewOrOld"_s, u"cmdDatabase"_s);
    shop.PickComponentOf(shop.spare);
    shop.Gear().SelectRow(OpenGear::kAadRow);
    shop.Choose(u"Tasks"_s, u"Add a task to this job"_s);
    QCOMPARE(shop.Row(0), u"Install AAD Argus  to Blue|Rigger|0.00||"_s);
    shop.screens.WhenShown(u"frmMultiTask"_s, [](Form& form) {
      for (const QString& entry : {u"AAD check"_s, u"Remove component"_s}) LibraryShop::Tick(form, "lstTasks", entry);
      Click(form, u"cmdOK"_s);
    });
    QCOMPARE(shop.Gear().CurrentRow(), static_cast<int>(OpenGear::kAadRow));
    shop.Gear().SelectNone();
    shop.prompts.ExpectBox(u"Remove component from rig"_s, u"You must select a component from the above grid"_s);
    shop.Choose(u"Tasks"_s, u"Add multiple tasks to this job"_s);
    QCOMPARE(shop.Row(1), u"AAD check|Rigger|20.00||"_s);
    QCOMPARE(shop.Lines().RowCount(), 4);
  }

  void AJobThatDiffersChangesAlone() {
    OpenGear shop;
    shop.LetRigDiffer();
    shop.Choose(u"Tools"_s, u"Refresh"_s);
    QVERIFY(shop.Shows("cmdGearChange"));
    shop.Press(u"frmNewOrOld"_s, u"cmdDatabase"_s);
    shop.PickComponentOf(shop.spare);
    shop.RunItem(OpenGear::kInstall, OpenGear::kAadRow);
    QCOMPARE(ComponentRig(shop.spare), 0);
    QCOMPARE(shop.GearRow(OpenGear::kAadRow), u"4|AAD|Argus ||"_s);
    QCOMPARE(LinesOfJob(shop.job).size(), 1);
  }

  void WithoutARigAComponentIsAddedToTheJob() {
    OpenGear shop;
    shop.DeleteRigOfJob();
    shop.Choose(u"Tools"_s, u"Refresh"_s);
    const auto add = [&] {
      shop.prompts.Expect(u"Add component to job?"_s,
                          u"The rig for this job has been deleted.\nWould you like to add a component to\n"
                          "this job without creating a rig?"_s,
                          Answer::Yes);
      shop.prompts.ExpectBox(u"Not a component installation"_s,
                             u"There is no rig associated with this job.\nThis will add a component to this job but "
                             "will not\nrecord a component installation task"_s);
    };
    const QStringList before = shop.loft.Snapshot();
    add();
    shop.screens.WhenShown(u"frmNewOrOld"_s, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"New Component"_s);
      Click(form, u"cmdDatabase"_s);
    });
    shop.PickComponentOf(shop.vigil);
    shop.RunItem(OpenGear::kInstall);
    QCOMPARE(shop.GearRow(3), u"4|AAD|Vigil ||"_s);
    QCOMPARE(shop.Changes(before), QStringList(GearShop::OnJob(u'+', shop.job, shop.vigil)));
    add();
    shop.Press(u"frmNewOrOld"_s, u"cmdDatabase"_s);
    shop.PickComponentOf(shop.spare);
    shop.prompts.ExpectBox(u"Duplicate component"_s, u"This job already has an aad"_s);
    shop.RunItem(OpenGear::kInstall);
    QCOMPARE(shop.Gear().RowCount(), 4);
  }

  void WithoutARigANewComponentHasAnyType() {
    OpenGear shop;
    const int loose = shop.AddJob("Loose", 0, shop.container);
    GotoJob(loose);
    const int speed = AddModel(u"Speed"_s, kMainCanopy);
    const int vector = AddModel(u"Vector"_s, kContainer);
    const auto add = [&](int type, int model) {
      shop.prompts.Expect(u"Add component to job?"_s,
                          u"This job doesn't have a rig.\nWould you like to add a component to\n"
                          "this job without creating a rig?"_s,
                          Answer::Yes);
      shop.prompts.ExpectBox(u"Not a component installation"_s,
                             u"There is no rig associated with this job.\nThis will add a component to this job but "
                             "will not\nrecord a component installation task"_s);
      shop.TypeSerial(u"N9"_s);
      shop.prompts.Expect(u"Add new component?"_s,
                          u"Serial number N9 is not found in the component database\n"
                          "Would you like to create a new component using that serial number?"_s,
                          Answer::Yes);
      shop.screens.WhenShown(u"frmSelectModel"_s, [type, model](Form& form) {
        if (type == 0) {
          Click(form, u"cmdCancel"_s);
          return;
        }
        Control<List>(form, u"lstTypes"_s).SelectData(type);
        Control<List>(form, u"lstModels"_s).SelectData(model);
        Click(form, u"cmdSelect"_s);
      });
    };
    const QStringList before = shop.loft.Snapshot();
    add(0, 0);
    shop.RunItem(OpenGear::kInstall);
    add(kContainer, vector);
    shop.prompts.ExpectBox(u"Duplicate component type"_s, u"This job already has a container"_s);
    shop.RunItem(OpenGear::kInstall);
    QCOMPARE(shop.Changes(before), QStringList());
    add(kMainCanopy, speed);
    shop.Press(u"frmComponentEdit"_s, u"cmdSave"_s);
    shop.RunItem(OpenGear::kInstall);
    QCOMPARE(shop.GearRow(1), u"2|Main Canopy|Speed |N9|"_s);
    QCOMPARE(LinesOfJob(loose), QList<int>());
  }
};

LOFT_TEST_MAIN(TestJobInstall)
#include "tst_job_install.moc"
