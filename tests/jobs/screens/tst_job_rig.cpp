#include <QTest>

#include "gear/rig_types.h"
#include "jobs/screens/open_gear.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

/// The screen on a job of Ann's without a rig.
struct OpenLoose : OpenGear {
  int loose = 0;

  /// With one component, or none.
  explicit OpenLoose(int GearShop::*component = nullptr) {
    CreateNewJob(QStringLiteral("Loose"), ann, 0, component ? this->*component : 0, loose, rigger, 0, kDone);
    GotoJob(loose);
  }
  void MakeRig() const { Choose(QStringLiteral("Rig"), QStringLiteral("Create a new rig")); }
  void ExpectUse(Answer answer) {
    prompts.Expect(u"Use these components?"_s, u"Do you want to create a rig using the components shown above?"_s,
                   answer);
  }
  void ExpectFreeing(Answer answer) {
    prompts.Expect(u"Component is part of a different rig"_s,
                   u"Red belongs to AAD Vigil \n\nDo you want to move that component to this rig?"_s, answer);
  }
  void ExpectName(const QString& name) {
    prompts.ExpectInput(kProgramTitle,
                        u"Current rigs owned by Ann Adams are:\n      Red\n\nWhat do you want to call this new rig?"_s,
                        name);
  }
  ScriptStep& ExpectLoadRed(Answer answer) {
    return prompts.Expect(
        u"Load Red?"_s,
        u"You are creating a new rig using the above component.\n\nHowever,that component (AAD) is part of a \n"
        "rig called 'Red'\n\nYou can either:\n\n      1).  Add that rig to this job (recommended)\n"
        "      2).  Create a new rig \n           (component will be removed from current rig)\n\n"
        "Would you like to add that rig to this job?  (recommended)\n\n"
        "(if you select 'No', a new rig will be created)"_s,
        answer);
  }
  int NewRig() const { return red + 1; }
};

}  // namespace

class TestJobRig : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void ARigIsMadeOfTheGearShown() {
    OpenLoose shop(&OpenLoose::spare);
    shop.ExpectUse(Answer::No);
    const QStringList before = shop.loft.Snapshot();
    shop.MakeRig();
    QCOMPARE(shop.Changes(before), QStringList());
    shop.ExpectUse(Answer::Yes);
    shop.PickModel(u"Sport"_s);
    shop.ExpectName(u"Green"_s);
    shop.prompts.ExpectBox(u"New rig created successfully"_s, u"Green has been created"_s).Meanwhile([&] {
      QCOMPARE(shop.Label("lblSystem"), u"Green"_s);
    });
    shop.Choose(u"Jobs"_s, u"Create a new rig"_s);
    QCOMPARE(JobSystemID(shop.loose), shop.NewRig());
    QCOMPARE(ComponentRig(shop.spare), shop.NewRig());
    QCOMPARE(shop.Gear().RowCount(), 4);
    QVERIFY(!shop.Shows("cmdGearChange"));
    Picture(shop.Screen(), u"frmJob_new_rig"_s);
  }

  void TheTypeOfTheRigMustFit() {
    OpenLoose shop(&OpenLoose::mainCanopy);
    SetComponentRig(shop.mainCanopy, 0);
    const QStringList before = shop.loft.Snapshot();
    shop.ExpectUse(Answer::Yes);
    shop.Press(u"frmPicker"_s, u"cmdCancel"_s);
    shop.MakeRig();
    shop.ExpectUse(Answer::Yes);
    shop.PickModel(u"Pilot Emergency Rig (back)"_s);
    shop.prompts.ExpectBox(u"Component not compatible with rig type"_s,
                           u"This rig type (Pilot Emergency Rig (back)) cannot contain\nthis component:\n   Sabre "_s);
    shop.MakeRig();
    QCOMPARE(shop.Changes(before), QStringList());
  }

  void TheRigOfTheOnlyComponentIsTaken() {
    OpenLoose shop(&OpenLoose::vigil);
    const QStringList before = shop.loft.Snapshot();
    shop.ExpectFreeing(Answer::No);
    shop.MakeRig();
    shop.ExpectFreeing(Answer::Yes);
    shop.ExpectUse(Answer::Yes);
    shop.ExpectLoadRed(Answer::Cancel);
    shop.MakeRig();
    QCOMPARE(shop.Changes(before), QStringList());
    shop.ExpectFreeing(Answer::Yes);
    shop.ExpectUse(Answer::Yes);
    shop.ExpectLoadRed(Answer::Yes);
    shop.MakeRig();
    QCOMPARE(JobSystemID(shop.loose), shop.red);
    QCOMPARE(shop.Label("lblSystem"), u"Red"_s);
    QCOMPARE(shop.GearRow(3), u"4|AAD|Vigil ||"_s);
  }

  void TheOnlyComponentMovesIntoANewRig() {
    OpenLoose shop(&OpenLoose::vigil);
    const auto build = [&](const QString& name) {
      shop.ExpectFreeing(Answer::Yes);
      shop.ExpectUse(Answer::Yes);
      shop.ExpectLoadRed(Answer::No);
      shop.PickModel(u"Sport"_s);
      shop.prompts.Expect(u"Move AAD?"_s,
                          u"The AAD you selected:\n     Vigil \nis already part of a rig: Red\nOwned by: Adams, Ann\n"
                          "Do you want to move this AAD to the current rig?"_s,
                          Answer::Yes);
      shop.ExpectName(name);
    };
    const QStringList before = shop.loft.Snapshot();
    build({});
    shop.MakeRig();
    QCOMPARE(shop.Changes(before), QStringList());
    build(u"Green"_s);
    shop.prompts.ExpectBox(u"New rig created successfully"_s, u"Green has been created"_s);
    shop.MakeRig();
    QCOMPARE(RigName(ComponentRig(shop.vigil)), u"Green"_s);
    QCOMPARE(shop.loft.Rows(u"select JobID, TaskName from tblTasks"_s), QStringList(u"0|Remove AAD Vigil  from Red"_s));
  }

  void AJobWithoutGearGetsAnEmptyRig() {
    OpenLoose shop;
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.ExpectBox(kProgramTitle, u"no components, continue"_s);
    shop.ExpectName({});
    shop.MakeRig();
    shop.prompts.ExpectBox(kProgramTitle, u"no components, continue"_s);
    shop.ExpectName(u"Green"_s);
    shop.Press(u"frmPicker"_s, u"cmdCancel"_s);
    shop.MakeRig();
    QCOMPARE(shop.Changes(before), QStringList());
    shop.prompts.Expect(u"Add component to job?"_s,
                        u"This job doesn't have a rig.\nWould you like to add a component to\n"
                        "this job without creating a rig?"_s,
                        Answer::No);
    shop.prompts.Expect(u"Create new rig"_s, u"Would you like to create a new rig?"_s, Answer::Yes);
    shop.prompts.ExpectBox(kProgramTitle, u"no components, continue"_s);
    shop.ExpectName(u"Green"_s);
    shop.screens.WhenShown(u"frmPicker"_s, [](Form& form) {
      TypeInto(form, u"txt"_s, u"Tandem"_s);
      PressKey(form, u"chkDefault"_s, Qt::Key_Space);
      Click(form, u"cmdSelect"_s);
    });
    shop.RunItem(OpenGear::kInstall);
    QCOMPARE(RigName(JobSystemID(shop.loose)), u"Green"_s);
    QCOMPARE(RigOwner(JobSystemID(shop.loose)), shop.ann);
    QCOMPARE(RigTypeName(DefaultRigType()), u"Tandem Rig"_s);
    QCOMPARE(shop.Gear().RowCount(), 5);
  }

  void ACustomerWhoHasGoneOwnsNoRig() {
    OpenLoose shop;
    shop.loft.Run(u"delete from tblPeople where ID = %1"_s.arg(shop.ann));
    shop.prompts.ExpectBox(u"Can't create new rig"_s, u"This customer as been deleted"_s);
    shop.MakeRig();
  }

  void AJobWithARigStartsAnotherOne() {
    OpenGear shop;
    const QString question =
        u"This job already involves a rig.  \nWould you like to start a new job and create a new rig?"_s;
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.Expect(u"Start a new job?"_s, question, Answer::No);
    shop.Choose(u"Rig"_s, u"Create a new rig"_s);
    shop.prompts.Expect(u"Start a new job?"_s, question, Answer::Yes);
    shop.Press(u"frmPicker"_s, u"cmdCancel"_s);
    shop.Choose(u"Rig"_s, u"Create a new rig"_s);
    QCOMPARE(shop.Changes(before), QStringList());
    shop.prompts.Expect(u"Start a new job?"_s, question, Answer::Yes);
    shop.PickModel(u"Adams"_s);
    shop.screens.WhenShown(u"frmNewJob"_s, [](Form& form) {
      TypeInto(form, u"txtName"_s, u"Green job"_s);
      Click(form, u"cmdOK"_s);
    });
    shop.prompts.ExpectInput(
        kProgramTitle, u"Current rigs owned by Ann Adams are:\n      Red\n\nWhat do you want to call this new rig?"_s,
        u"Green"_s);
    shop.PickModel(u"Sport"_s);
    shop.prompts.ExpectBox(
        u"Ready to install components"_s,
        u"Rig called 'Green' has been created.\n"
        "To add components to this rig, select INSTALL COMPONENT\nfrom the task menu on the left."_s);
    shop.Choose(u"Rig"_s, u"Create a new rig"_s);
    QCOMPARE(shop.Label("lblJob"), u"Green job"_s);
    QCOMPARE(shop.Label("lblSystem"), u"Green"_s);
    QCOMPARE(JobSystemID(shop.job), shop.rig);
  }

  void AnOlderJobThatIsLoadedInsteadKeepsItsRig() {
    OpenGear shop;
    int other = 0;
    CreateNewJob(u"Ann's"_s, shop.ann, shop.red, 0, other, shop.rigger, 0, GearShop::kDone);
    shop.prompts.Expect(
        u"Start a new job?"_s,
        u"This job already involves a rig.  \nWould you like to start a new job and create a new rig?"_s, Answer::Yes);
    shop.PickModel(u"Adams"_s);
    shop.screens.WhenShown(u"frmNewJob"_s, [&](Form& form) {
      TypeInto(form, u"txtName"_s, u"Ann's"_s);
      shop.prompts.Expect(u"Ann's"_s, u"Ann Adams already has a job with that name\nWould like like to load it?"_s,
                          Answer::Yes);
      Click(form, u"cmdOK"_s);
    });
    shop.Choose(u"Rig"_s, u"Create a new rig"_s);
    QCOMPARE(shop.Label("lblJob"), u"Ann's"_s);
    QCOMPARE(JobSystemID(other), shop.red);
  }

  void AnExistingRigIsAdded() {
    OpenLoose shop;
    const auto import = [&] { shop.Choose(u"Rig"_s, u"Add an existing rig to this job"_s); };
    shop.Press(u"frmPickRig"_s, u"cmdCancel"_s);
    import();
    QCOMPARE(JobSystemID(shop.loose), 0);
    shop.screens.WhenShown(u"frmPickRig"_s, [&](Form& form) {
      QCOMPARE(Control<List>(form, u"lstGear"_s).ItemText(0), u"Red"_s);
      Click(form, u"cmdSelect"_s);
    });
    import();
    QCOMPARE(JobSystemID(shop.loose), shop.red);
    QCOMPARE(shop.GearRow(3), u"4|AAD|Vigil ||"_s);
    QVERIFY(!shop.Shows("cmdGearChange"));
    shop.prompts.ExpectBox(
        u"Rig already present"_s,
        u"You must create a new job to add a rig.\nThis job already has a rig associated with it."_s);
    import();
  }
};

LOFT_TEST_MAIN(TestJobRig)
#include "tst_job_rig.moc"
