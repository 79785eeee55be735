#include <QRadioButton>
#include <QTest>

#include "core/widgets/grid.h"
#include "core/widgets/list.h"
#include "jobs/sample_job.h"
#include "jobs/screens.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

/// The number of jobs and of their snapshots of gear.
QString Counts(const SampleRig& shop) {
  return shop.loft.Rows(u"select (select count(*) from tblJobs), (select count(*) from tblJobComponents)"_s).first();
}

void NameIt(ScreenScript& screens, const QString& name) {
  screens.WhenShown(u"frmNewJob"_s, [name](Form& form) {
    TypeInto(form, u"txtName"_s, name);
    Click(form, u"cmdOK"_s);
  });
}

void ChooseOnComponent(ScreenScript& screens) {
  screens.WhenShown(u"frmJobTypeSelect"_s, [](Form& form) {
    Click(form, u"optComp"_s);
    Click(form, u"cmdOK"_s);
  });
}

}  // namespace

class TestStartJob : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void ARigWithoutACustomerStartsNoJob() {
    SampleRig shop;
    shop.prompts.ExpectBox(u"No customer for this rig"_s,
                           u"This rig is not assigned to a customer.  You must assign this\n"
                           "rig to a customer before starting a new job."_s);
    QVERIFY(!StartNewJob(0, shop.rig, 0, Date()));
    QCOMPARE(Counts(shop), u"0|0"_s);
  }

  void AJobOnARigIsNamedDatedAndOpened() {
    SampleRig shop;
    ScreenScript screens;
    screens.WhenShown(u"frmNewJob"_s, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"New Job"_s);
      QCOMPARE(TextOf(form, u"txtName"_s), u"Blue 3/15/2026"_s);
      QCOMPARE(TextOf(form, u"txtDate"_s), u"3/15/2026"_s);
      Picture(form, u"frmNewJob"_s);
      TypeInto(form, u"txtDate"_s, u"3/1/2026"_s);
      PressKey(form, u"txtDate"_s, Qt::Key_Return);
      Click(form, u"cmdOK"_s);
    });
    QVERIFY(StartNewJob(shop.owner, shop.rig, 0, Date()));
    QCOMPARE(shop.loft.Rows(u"select JobTitle, CustomerID, SystemID, RiggerID, DateStarted from tblJobs"_s),
             QStringList(u"Blue 3/15/2026|%1|%2|%3|%4"_s.arg(shop.owner)
                             .arg(shop.rig)
                             .arg(shop.rigger)
                             .arg(Day(3, 1, 2026).Days())));
    QVERIFY(Forms::IsShown(u"frmJob"_s));
  }

  void CancelLeavesNoRow() {
    SampleRig shop;
    for (const bool byKey : {false, true}) {
      ScreenScript screens;
      screens.WhenShown(u"frmNewJob"_s, [byKey](Form& form) {
        if (byKey)
          PressKey(form, u"txtName"_s, Qt::Key_Escape);
        else
          Click(form, u"cmdCancel"_s);
      });
      QVERIFY(!StartNewJob(shop.owner, shop.rig, 0, Date()));
      QCOMPARE(Counts(shop), u"0|0"_s);
    }
    ScreenScript screens;
    NameIt(screens, u"   "_s);
    QVERIFY(!StartNewJob(shop.owner, shop.rig, 0, Date()));
    QCOMPARE(Counts(shop), u"0|0"_s);
  }

  void ABadDateKeepsTheFormOpen() {
    SampleRig shop;
    ScreenScript screens;
    screens.WhenShown(u"frmNewJob"_s, [&](Form& form) {
      shop.prompts.ExpectBox(u"Invalid date"_s, u"soon isn't a valid date"_s);
      TypeInto(form, u"txtDate"_s, u"soon"_s);
      Click(form, u"cmdOK"_s);
      QVERIFY(form.isVisible());
      Click(form, u"cmdToday"_s);
      QCOMPARE(TextOf(form, u"txtDate"_s), u"3/15/2026"_s);
      Click(form, u"cmdOK"_s);
    });
    QVERIFY(StartNewJob(shop.owner, shop.rig, 0, Date()));
    QCOMPARE(Counts(shop), u"1|4"_s);
  }

  void AJobOfThatNameCanBeLoadedInstead() {
    SampleJob shop;
    ScreenScript screens;
    const QString text = u"Olaf Owner already has a job with that name\nWould like like to load it?"_s;
    screens.WhenShown(u"frmNewJob"_s, [&](Form& form) {
      TypeInto(form, u"txtName"_s, u"blue 03/01/2026"_s);
      shop.prompts.Expect(u"blue 03/01/2026"_s, text, Answer::No);
      Click(form, u"cmdOK"_s);
      QVERIFY(form.isVisible());
      shop.prompts.Expect(u"blue 03/01/2026"_s, text, Answer::Yes);
      Click(form, u"cmdOK"_s);
    });
    int job = 0;
    StartJobDialog(shop.owner, shop.rig, 0, job, 0, 0, Date());
    QCOMPARE(job, shop.job);
    QCOMPARE(Counts(shop), u"1|4"_s);
    QCOMPARE(LastJobID(), shop.job);
  }

  /// Its row stands under that title already while the name is asked for.
  void AJobMayBearTheNameOfItsRigAlone() {
    SampleRig shop;
    ScreenScript screens;
    NameIt(screens, u"Blue"_s);
    int job = 0;
    StartJobDialog(shop.owner, shop.rig, 0, job, 0, 0, Date());
    QCOMPARE(JobTitle(job), u"Blue"_s);
    screens.WhenShown(u"frmNewJob"_s, [&](Form& form) {
      TypeInto(form, u"txtName"_s, u"Blue"_s);
      shop.prompts.Expect(u"Blue"_s, u"Olaf Owner already has a job with that name\nWould like like to load it?"_s,
                          Answer::Yes);
      Click(form, u"cmdOK"_s);
    });
    int second = 0;
    StartJobDialog(shop.owner, shop.rig, 0, second, 0, 0, Date());
    QCOMPARE(second, job);
    QCOMPARE(Counts(shop), u"1|4"_s);
  }

  /// The name of a crash remnant is no name: the next load clears the job away.
  void AJobNamedLikeARemnantGoesWithTheNextLoad() {
    SampleJob shop;
    ScreenScript screens;
    NameIt(screens, u"loadme"_s);
    int job = 0;
    StartJobDialog(shop.owner, shop.rig, 0, job, 0, 0, Date());
    QVERIFY(!JobExists(job));
    QVERIFY(JobExists(shop.job));
  }

  void AJobWithoutACustomerIsToldSo() {
    SampleRig shop;
    int other = 0;
    CreateNewJob(u"Walk-in"_s, 0, 0, 0, other, shop.rigger, 0, Date());
    ScreenScript screens;
    screens.WhenShown(u"frmNewJob"_s, [&](Form& form) {
      TypeInto(form, u"txtName"_s, u"walk-in"_s);
      shop.prompts.Expect(u"walk-in"_s, u"There is already a job with that name\nWould like like to load it?"_s,
                          Answer::Yes);
      Click(form, u"cmdOK"_s);
    });
    int job = 0;
    StartJobDialog(0, 0, 0, job, 0, 0, Date());
    QCOMPARE(job, other);
  }

  void TheSeedOfTheNameIsRigCustomerAndComponent() {
    SampleRig shop;
    ScreenScript screens;
    const auto proposed = [&](const QString& name) {
      screens.WhenShown(u"frmNewJob"_s, [name](Form& form) {
        QCOMPARE(TextOf(form, u"txtName"_s), name);
        Click(form, u"cmdCancel"_s);
      });
    };
    int job = 0;
    proposed(u"Owner 3/15/2026"_s);
    StartJobDialog(shop.owner, 0, 0, job, 0, 0, Date());
    proposed(u"Cypres -Owner 3/15/2026"_s);
    StartJobDialog(shop.owner, 0, shop.aad, job, 0, 0, Date());
    shop.loft.Run(u"update tblRig set rigAlias = 'n/a'"_s);
    proposed(u"Owner 3/15/2026"_s);
    StartJobDialog(shop.owner, shop.rig, 0, job, 0, 0, Date());
    QCOMPARE(job, 0);
  }

  void TheOnlyRigIsOffered() {
    SampleRig shop;
    ScreenScript screens;
    screens.WhenShown(u"frmJobTypeSelect"_s, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"Start New Job"_s);
      QCOMPARE(TextOf(form, u"lblCustomer"_s), u"Olaf Owner"_s);
      QCOMPARE(TextOf(form, u"optRig"_s), u"Rig (Blue)"_s);
      QVERIFY(Control<QRadioButton>(form, u"optRig"_s).isChecked());
      Picture(form, u"frmJobTypeSelect"_s);
      Click(form, u"cmdCancel"_s);
    });
    QVERIFY(!StartNewJob(shop.owner, 0, 0, Date()));
    QCOMPARE(Counts(shop), u"0|0"_s);
    screens.WhenShown(u"frmJobTypeSelect"_s, [](Form& form) { Click(form, u"cmdOK"_s); });
    NameIt(screens, u"On the rig"_s);
    QVERIFY(StartNewJob(shop.owner, 0, 0, Date()));
    QCOMPARE(Counts(shop), u"1|4"_s);
    screens.WhenShown(u"frmJobTypeSelect"_s, [](Form& form) {
      Click(form, u"optNeither"_s);
      Click(form, u"cmdOK"_s);
    });
    NameIt(screens, u"On neither"_s);
    QVERIFY(StartNewJob(shop.owner, 0, 0, Date()));
    QCOMPARE(shop.loft.Rows(u"select JobTitle, SystemID from tblJobs order by ID"_s),
             (QStringList{u"On the rig|%1"_s.arg(shop.rig), u"On neither|0"_s}));
  }

  void AComponentOfTheCustomerIsPicked_data() {
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<QString>("counts");
    QTest::newRow("its rig too") << Answer::Yes << u"1|4"_s;
    QTest::newRow("alone") << Answer::No << u"1|1"_s;
  }
  void AComponentOfTheCustomerIsPicked() {
    QFETCH(Answer, answer);
    SampleRig shop;
    ScreenScript screens;
    ChooseOnComponent(screens);
    screens.WhenShown(u"frmPickComponent"_s, [&](Form& form) {
      QCOMPARE(TextOf(form, u"lblOwner"_s), u"Customer: Olaf Owner"_s);
      auto& grid = Control<Grid>(form, u"Grid"_s);
      QCOMPARE(grid.RowCount(), 4);
      DoubleClickCell(grid, grid.FindRow(shop.aad), 0);
    });
    shop.prompts
        .Expect(u"Include all rig components?"_s,
                u"This component is part of a rig (Blue)\nDo you want to show all rig components for this new job"_s,
                answer)
        .WithButtons(Buttons::YesNo);
    shop.prompts.ExpectBox(kProgramTitle, u"hi"_s);
    NameIt(screens, u"On the AAD"_s);
    QVERIFY(StartNewJob(shop.owner, 0, 0, Date()));
    QTEST(Counts(shop), "counts");
    QCOMPARE(shop.loft.Rows(u"select ComponentID, SystemID from tblJobs"_s),
             QStringList(u"%1|%2"_s.arg(shop.aad).arg(answer == Answer::Yes ? shop.rig : 0)));
  }

  void AComponentInNoRigAsksForNone() {
    SampleRig shop;
    shop.loft.Run(u"delete * from tblRig"_s);
    ScreenScript screens;
    screens.WhenShown(u"frmJobTypeSelect"_s, [](Form& form) {
      QVERIFY(!Control<QRadioButton>(form, u"optRig"_s).isEnabled());
      QVERIFY(Control<QRadioButton>(form, u"optComp"_s).isChecked());
      Picture(form, u"frmJobTypeSelect_no_rig"_s);
      Click(form, u"cmdOK"_s);
    });
    screens.WhenShown(u"frmPickComponent"_s, [&](Form& form) {
      auto& grid = Control<Grid>(form, u"Grid"_s);
      grid.SelectData(shop.aad);
      Click(form, u"cmdSelect"_s);
    });
    shop.prompts.ExpectBox(kProgramTitle, u"hi"_s);
    NameIt(screens, u"On the AAD"_s);
    QVERIFY(StartNewJob(shop.owner, 0, 0, Date()));
    QCOMPARE(Counts(shop), u"1|1"_s);
  }

  void WithoutAComponentNoJobIsStarted() {
    SampleRig shop;
    const QStringList before = shop.loft.Snapshot();
    ScreenScript screens;
    ChooseOnComponent(screens);
    screens.WhenShown(u"frmPickComponent"_s, [](Form& form) { Click(form, u"cmdCancel"_s); });
    QVERIFY(!StartNewJob(shop.owner, 0, 0, Date()));
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
    shop.loft.Run(u"update tblComponents set OwnerID = 0"_s);
    screens.WhenShown(u"frmJobTypeSelect"_s, [](Form& form) {
      QVERIFY(!Control<QRadioButton>(form, u"optComp"_s).isEnabled());
      Click(form, u"cmdCancel"_s);
    });
    QVERIFY(!StartNewJob(shop.owner, 0, 0, Date()));
  }

  void AmongSeveralRigsOneIsPicked() {
    SampleRig shop;
    const int red = shop.loft.Add("tblRig", {{"OwnerID", shop.owner}, {"TypeID", 1}, {"rigAlias", "Red"}});
    ScreenScript screens;
    const auto chooseRig = [&] {
      screens.WhenShown(u"frmJobTypeSelect"_s, [](Form& form) {
        QCOMPARE(TextOf(form, u"optRig"_s), u"Rig (has 2, select from list)"_s);
        Click(form, u"cmdOK"_s);
      });
    };
    chooseRig();
    screens.WhenShown(u"frmPickRig"_s, [](Form& form) { Click(form, u"cmdCancel"_s); });
    QVERIFY(!StartNewJob(shop.owner, 0, 0, Date()));
    QCOMPARE(Counts(shop), u"0|0"_s);
    chooseRig();
    screens.WhenShown(u"frmPickRig"_s, [&](Form& form) {
      auto& rigs = Control<List>(form, u"lstGear"_s);
      rigs.SetListIndex(rigs.FindData(red));
      Click(form, u"cmdSelect"_s);
    });
    NameIt(screens, u"On red"_s);
    QVERIFY(StartNewJob(shop.owner, 0, 0, Date()));
    QCOMPARE(shop.loft.Rows(u"select JobTitle, SystemID from tblJobs"_s), QStringList(u"On red|%1"_s.arg(red)));
  }

  void ACustomerWithNothingIsAskedFor() {
    SampleRig shop;
    ScreenScript screens;
    const QString text = u"This customer has no rigs or components.\nDo you want to create a job anyway?"_s;
    shop.prompts.Expect(u"Create job for Rita Rigger"_s, text, Answer::No);
    QVERIFY(!StartNewJob(shop.rigger, 0, 0, Date()));
    shop.prompts.Expect(u"Create job for Rita Rigger"_s, text, Answer::Yes);
    NameIt(screens, u"Sewing"_s);
    QVERIFY(StartNewJob(shop.rigger, 0, 0, Date()));
    QCOMPARE(Counts(shop), u"1|0"_s);
  }

  void LocationAndRiggerAreChosen() {
    SampleRig shop;
    const int home =
        shop.loft.Add("tblLocation", {{"Location", "Home"}, {"City", "A"}, {"State", "B"}, {"Default", false}});
    shop.loft.Add("tblLocation", {{"Location", "Shop"}, {"City", "C"}, {"State", "D"}, {"Default", false}});
    const int ann = shop.loft.Add("tblPeople", {{"FirstName", "Ann"}, {"LastName", "Adams"}, {"rigger", true}});
    ScreenScript screens;
    shop.prompts.Expect(u"Choose location?"_s, u"Would you like to select a location for this rigging job?"_s,
                        Answer::Yes);
    screens.WhenShown(u"frmPicker"_s, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"Select Location"_s);
      TypeInto(form, u"txt"_s, u"Home"_s);
      Click(form, u"cmdSelect"_s);
    });
    screens.WhenShown(u"frmPicker"_s, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"Select Rigger"_s);
      TypeInto(form, u"txt"_s, u"Adams"_s);
      PressKey(form, u"chkDefault"_s, Qt::Key_Space);
      Click(form, u"cmdSelect"_s);
    });
    NameIt(screens, u"Chosen"_s);
    int job = 0;
    StartJobDialog(shop.owner, shop.rig, 0, job, 0, 0, Date());
    QCOMPARE(JobLocationID(job), home);
    QCOMPARE(JobRiggerID(job), ann);
    QCOMPARE(ValidDefaultRigger(), ann);

    shop.prompts.Expect(u"Choose location?"_s, u"Would you like to select a location for this rigging job?"_s,
                        Answer::No);
    NameIt(screens, u"Given"_s);
    StartJobDialog(shop.owner, shop.rig, 0, job, shop.rigger, 0, Date());
    QCOMPARE(JobLocationID(job), 0);
    QCOMPARE(JobRiggerID(job), shop.rigger);
    shop.loft.Run(u"update tblLocation set [Default] = true where ID = %1"_s.arg(home));
    NameIt(screens, u"Usual"_s);
    StartJobDialog(shop.owner, shop.rig, 0, job, shop.rigger, 0, Date());
    QCOMPARE(JobLocationID(job), home);
  }
};

LOFT_TEST_MAIN(TestStartJob)
#include "tst_start_job.moc"
