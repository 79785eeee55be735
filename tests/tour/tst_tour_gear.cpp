#include <QFile>
#include <QRadioButton>
#include <QTest>

#include "core/clock.h"
#include "core/data_folder.h"
#include "core/default_rows.h"
#include "core/shell/frmMain2.h"
#include "core/widgets/grid.h"
#include "core/widgets/list.h"
#include "gear/catalogue.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/people.h"
#include "gear/person_record.h"
#include "gear/rigs.h"
#include "gear/screens.h"
#include "jobs/screens.h"
#include "sample/sample_loft.h"
#include "schedule/screens.h"
#include "support/data_home.h"
#include "support/fixed_clock.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "tour/sample_tour.h"

using namespace Qt::StringLiterals;

/// Through the screens of people, gear and what falls due, in the sample loft: each opens by its own command or door,
/// shows the rows of the database, and leaves its picture.
class TourOfGear : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() {
    tour_ = std::make_unique<SampleTour>();
    owner_ = SampleTour::Number(u"SELECT ID FROM tblPeople WHERE LastName = 'Taylor'"_s);
    rig_ = SampleTour::Number(u"SELECT ID FROM tblRig WHERE OwnerID = %1"_s.arg(owner_));
    reserve_ = ComponentOfTypeInRig(rig_, kReserveCanopy);
    QVERIFY(owner_ != 0 && rig_ != 0 && reserve_ != 0);
  }
  void cleanupTestCase() { tour_.reset(); }

  void TheProgramComesUpWithTheSplash() {
    Picture(Shown(u"frmSplash"_s), u"30-splash-of-a-loft"_s);
    Shown(u"frmSplash"_s).UnloadForm();
  }

  void People() {
    Click(Shown(u"frmMain2"_s), u"cmdPeople"_s);
    Form& form = Shown(u"frmPeople"_s);
    QCOMPARE(ListOf(form, u"lstPeople"_s).Count(), SampleTour::Number(u"SELECT count(*) FROM tblPeople"_s));
    Select(ListOf(form, u"lstPeople"_s), owner_);
    QCOMPARE(TextOf(form, u"lblName"_s), u"Beth Taylor"_s);
    Picture(form, u"31-people"_s);
    form.UnloadForm();
  }

  void Rigs() {
    OpenRigs({.customer = owner_, .rig = rig_});
    Form& form = Shown(u"frmGetRig"_s);
    QCOMPARE(GridOf(form).RowCount(), 4);
    QVERIFY(GridOf(form, u"Grid2"_s).RowCount() >= 1);
    Picture(form, u"32-rigs"_s);
    Control<QRadioButton>(form, u"optAll"_s).click();
    QCOMPARE(ListOf(form, u"lstGear"_s).Count(), SampleTour::Number(u"SELECT count(*) FROM tblRig"_s));
    Picture(form, u"33-rigs-of-all"_s);
    form.UnloadForm();
  }

  void PickingARig() {
    ScreenScript screens;
    screens.WhenShown(u"frmPickRig"_s, [&](Form& form) {
      Picture(form, u"34-pick-rig"_s);
      Click(form, u"cmdSelect"_s);
    });
    int rig = rig_;
    int customer = owner_;
    QVERIFY(PickRig(rig, customer));
    QCOMPARE(rig, rig_);
    screens.WhenShown(u"frmDeleteSystem"_s, [](Form& form) {
      Picture(form, u"35-delete-rig"_s);
      PressKey(form, Qt::Key_N);
    });
    QVERIFY(!ConfirmRigDeletion(rig_));
    screens.WhenShown(u"frmCurrentComponents"_s, [](Form& form) {
      Picture(form, u"36-current-components"_s);
      PressKey(form, Qt::Key_Escape);
    });
    ShowCurrentComponents(rig_);
  }

  void Components() {
    ScreenScript screens;
    screens.WhenShown(u"frmComponent"_s, [&](Form& form) {
      Picture(form, u"37-component"_s);
      PressKey(form, Qt::Key_Escape);
    });
    ShowComponent(reserve_);
    screens.WhenShown(u"frmComponentEdit"_s, [&](Form& form) {
      QCOMPARE(TextOf(form, u"txtSerial"_s), ComponentSerial(reserve_));
      Picture(form, u"38-component-edit"_s);
      PressKey(form, Qt::Key_Escape);
    });
    QCOMPARE(EditComponent(reserve_), 0);
    screens.WhenShown(u"frmModel"_s, [](Form& form) {
      Picture(form, u"39-component-in-short"_s);
      PressKey(form, Qt::Key_Escape);
    });
    QVERIFY(!EditComponentQuickly(reserve_));
    screens.WhenShown(u"frmComponentVerify"_s, [](Form& form) {
      Picture(form, u"40-component-verify"_s);
      PressKey(form, Qt::Key_Escape);
    });
    QVERIFY(!VerifyComponent(reserve_, u"Is this the component?"_s));
    screens.WhenShown(u"frmPickComponent"_s, [&](Form& form) {
      QCOMPARE(GridOf(form).RowCount(), SampleTour::Number(u"SELECT count(*) FROM tblComponents WHERE TypeID = 3"_s));
      Picture(form, u"41-pick-component"_s);
      PressKey(form, Qt::Key_Escape);
    });
    QCOMPARE(PickComponent(kReserveCanopy), 0);
    screens.WhenShown(u"frmSerialNumber"_s, [](Form& form) {
      Picture(form, u"42-serial-number"_s);
      PressKey(form, Qt::Key_Escape);
    });
    QCOMPARE(PickComponentBySerial(kReserveCanopy), 0);
    screens.WhenShown(u"frmNewOrOld"_s, [](Form& form) {
      Picture(form, u"43-new-or-old"_s);
      PressKey(form, Qt::Key_Escape);
    });
    QCOMPARE(AskNewOrOld(kReserveCanopy), u"cancel"_s);
  }

  void TheCatalogue() {
    ScreenScript screens;
    ChooseMenu(Shown(u"frmMain2"_s), {u"Gear"_s, u"Component Models"_s});
    Form& models = Shown(u"frmComponentModels"_s);
    Select(ListOf(models, u"lstTypes"_s), kAad);
    Select(ListOf(models, u"lstModels"_s), FindModelByName(u"M2 Multi"_s, kAad));
    QCOMPARE(TextOf(models, u"txtServiceLife"_s), u"15"_s);
    Picture(models, u"44-models"_s);
    ChooseMenu(Shown(u"frmMain2"_s), {u"Parts"_s, u"Add/Edit"_s});
    QCOMPARE(ListOf(models, u"lstModels"_s).Count(), 4);
    Picture(models, u"45-parts"_s);
    models.UnloadForm();
    ChooseMenu(Shown(u"frmMain2"_s), {u"Set up"_s, u"Rig Types"_s});
    Form& rigTypes = Shown(u"frmRigTypes"_s);
    Select(ListOf(rigTypes, u"lstType"_s), 2);
    Picture(rigTypes, u"46-rig-types"_s);
    rigTypes.UnloadForm();
    screens.WhenShown(u"frmComponentTypes"_s, [](Form& form) {
      Picture(form, u"47-component-types"_s);
      PressKey(form, Qt::Key_Escape);
    });
    ChooseMenu(Shown(u"frmMain2"_s), {u"Set up"_s, u"Component Types"_s});
    screens.WhenShown(u"frmSelectModel"_s, [](Form& form) {
      Picture(form, u"48-select-model"_s);
      PressKey(form, Qt::Key_Escape);
    });
    int type = kContainer;
    int model = 0;
    QVERIFY(!SelectModel(type, model));
    screens.WhenShown(u"frmLocation"_s, [](Form& form) {
      QCOMPARE(ListOf(form, u"lst"_s).Count(), 2);
      Picture(form, u"49-locations"_s);
      PressKey(form, Qt::Key_Escape);
    });
    ChooseMenu(Shown(u"frmMain2"_s), {u"Set up"_s, u"Locations"_s});
  }

  void WhatFallsDue() {
    Click(Shown(u"frmMain2"_s), u"cmdSchedules"_s);
    Form& form = Shown(u"frmSchedule"_s);
    const int due = SampleTour::Number(u"SELECT count(*) FROM tblSchedules"_s);
    QVERIFY(GridOf(form).RowCount() > due);
    ClickCell(GridOf(form), 0, 3);
    Picture(form, u"50-schedule"_s);
    form.UnloadForm();
  }

  void PricesAndTheCalculator() {
    ScreenScript screens;
    screens.WhenShown(u"frmRepack"_s, [](Form& form) {
      QCOMPARE(TextOf(form, u"txtIR"_s), u"75.00"_s);
      QCOMPARE(GridOf(form, u"Grid1"_s).Text(1, 2), u"110.00"_s);
      Picture(form, u"52-repack-prices"_s);
      Click(form, u"cmdCancel"_s);
    });
    ChooseMenu(Shown(u"frmMain2"_s), {u"Set up"_s, u"Repack prices"_s});
    Click(Shown(u"frmMain2"_s), u"cmdCalc"_s);
    Picture(Shown(u"frmCalc"_s), u"53-repack-calculator"_s);
    Shown(u"frmCalc"_s).UnloadForm();
  }

  void TheJobList() {
    Click(Shown(u"frmMain2"_s), u"cmdJobs"_s);
    Form& form = Shown(u"frmJobList"_s);
    QCOMPARE(ListOf(form, u"lstJobs"_s).Count(), SampleTour::Number(u"SELECT count(*) FROM tblJobs"_s));
    Control<QRadioButton>(form, u"optStatusActive"_s).click();
    QCOMPARE(ListOf(form, u"lstJobs"_s).Count(),
             SampleTour::Number(u"SELECT count(*) FROM tblJobs WHERE JobStatus = 0"_s));
    ListOf(form, u"lstJobs"_s).SetListIndex(1);
    Picture(form, u"54-job-list"_s);
    form.UnloadForm();
  }

  void AJobWithItsLines() {
    GotoJob(SampleTour::Number(u"SELECT JobID FROM tblTasks WHERE PartID > 0 ORDER BY ID DESC"_s));
    Form& form = Shown(u"frmJob"_s);
    Picture(form, u"51-job-with-parts"_s);
    form.UnloadForm();
  }

 private:
  std::unique_ptr<SampleTour> tour_;
  int owner_ = 0;
  int rig_ = 0;
  int reserve_ = 0;
};

LOFT_TEST_MAIN(TourOfGear)
#include "tst_tour_gear.moc"
