#include <QAbstractButton>
#include <QLineEdit>
#include <QtTest>

#include "core/store/undo.h"
#include "core/widgets/grid.h"
#include "gear/models.h"
#include "gear/rig_rules.h"
#include "gear/screens.h"
#include "jobs/delete_job.h"
#include "jobs/library_delete.h"
#include "jobs/library_entry.h"
#include "jobs/line_edits.h"
#include "jobs/repack_price.h"
#include "jobs/screens/library_shop.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

Form& Shown(const QString& name) { return dynamic_cast<Form&>(*Forms::Find(name)); }

int SelectedIn(Form& form, const char* list) {
  const auto& found = Control<List>(form, QString::fromLatin1(list));
  return found.ItemData(found.ListIndex());
}

void DeleteEntry(int taskLibID) {
  bool cancelled = false;
  DeleteTaskType(taskLibID, false, cancelled);
}

}  // namespace

/// The screens around jobs and their library while others write what they show.
class TestWorkStays : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void TheJobListKeepsTheCustomerWhoIsSelectedBesideAJob() {
    LibraryShop shop;
    SetLastJobID(shop.job);
    OpenJobList();
    Form& form = Shown(u"frmJobList"_s);
    Control<List>(form, u"lstCustomers"_s).SelectData(shop.rigger);
    SaveLineName(shop.AddTask(RepackTaskLibID), u"Renamed"_s);
    QCOMPARE(SelectedIn(form, "lstCustomers"), shop.rigger);
    QCOMPARE(SelectedIn(form, "lstJobs"), shop.job);
  }

  void HidingPhotosIsSeenOnEveryScreen() {
    LibraryShop shop;
    GotoJob(shop.job);
    OpenJobList();
    OpenRigs({.rig = shop.rig});
    for (bool hidden : {true, false}) {
      SetPhotosHidden(hidden);
      for (const QString& name : {u"frmJob"_s, u"frmJobList"_s, u"frmGetRig"_s}) {
        QCOMPARE(Control<QAbstractButton>(Shown(name), u"chkHidePhotos"_s).isChecked(), hidden);
        QCOMPARE(
            Control<QWidget>(Shown(name), name == "frmGetRig"_L1 ? u"lblCanopyPhoto"_s : u"imageCanopy"_s).isVisible(),
            !hidden);
      }
    }
  }

  void TheJobListKeepsItsJobAndShowsTheNeighbourOfOneThatHasGone() {
    LibraryShop shop;
    const int second = shop.AddJob("Second", 0, 0);
    SetLastJobID(shop.job);
    OpenJobList();
    Form& form = Shown(u"frmJobList"_s);
    QCOMPARE(SelectedIn(form, "lstJobs"), shop.job);
    const int third = shop.AddJob("Third", 0, 0);
    QCOMPARE(SelectedIn(form, "lstJobs"), shop.job);
    SaveLineName(shop.AddTask(RepackTaskLibID), u"Renamed"_s);
    QCOMPARE(SelectedIn(form, "lstJobs"), shop.job);
    QCOMPARE(Control<Grid>(form, u"Grid"_s).RowCount(), 4);
    bool cancelled = false;
    DeleteJob(shop.job, false, cancelled);
    QCOMPARE(SelectedIn(form, "lstJobs"), second);
    QCOMPARE(Control<Grid>(form, u"Grid"_s).RowCount(), 0);
    shop.prompts.Expect(u"Delete Second"_s, u"Are you sure you want to delete this job?"_s, Answer::Yes);
    PressKey(form, u"lstJobs"_s, Qt::Key_Delete);
    QCOMPARE(SelectedIn(form, "lstJobs"), third);
  }

  void TheLibraryKeepsItsEntryAndTheSearch() {
    LibraryShop shop;
    OpenTaskLibrary(false);
    Form& form = Shown(u"frmSelectTask"_s);
    TypeInto(form, u"txt"_s, u"check"_s);
    Control<List>(form, u"lstTasks"_s).SelectData(shop.lineCheck);
    shop.AddEntry("Another check", 0, 0);
    QCOMPARE(SelectedIn(form, "lstTasks"), shop.lineCheck);
    QCOMPARE(LibraryShop::Texts(form, "lstTasks"), QStringList({u"AAD check"_s, u"Another check"_s, u"Line check"_s}));
    DeleteEntry(shop.lineCheck);
    QCOMPARE(LibraryShop::Selected(form, "lstTasks"), u"Another check"_s);
    QCOMPARE(TextOf(form, u"txt"_s), u"check"_s);
    OpenTaskLibrary(true);
    QCOMPARE(LibraryShop::Texts(form, "lstTasks"), QStringList{u"Reserve ride"_s});
  }

  void TheLibraryOpenedWhileATaskIsChosenLeavesTheChoice() {
    LibraryShop shop;
    shop.screens.WhenShown(u"frmSelectTask"_s, [&](Form& form) {
      OpenTaskLibrary(true);
      QCOMPARE(TextOf(form, u"lblHeading"_s), u"Tasks"_s);
      QCOMPARE(SelectTask().taskLibID, 0);
      Control<List>(form, u"lstTasks"_s).SelectData(shop.lineCheck);
      Click(form, u"cmdSelect"_s);
    });
    QCOMPARE(SelectTask().taskLibID, shop.lineCheck);
  }

  void TicksOfSeveralTasksStay() {
    LibraryShop shop;
    shop.screens.WhenShown(u"frmMultiTask"_s, [&](Form& form) {
      auto& list = Control<List>(form, u"lstTasks"_s);
      list.TickData({shop.aadCheck, shop.lineCheck});
      list.SelectData(shop.lineCheck);
      DeleteEntry(shop.aadCheck);
      QCOMPARE(list.TickedData(), QList<int>{shop.lineCheck});
      QCOMPARE(list.ItemData(list.ListIndex()), shop.lineCheck);
      Click(form, u"cmdOK"_s);
    });
    QCOMPARE(SelectMultipleTasks(), QList<int>{shop.lineCheck});
  }

  void WhatIsEnteredInTheLibraryStays() {
    LibraryShop shop;
    shop.screens.WhenShown(u"frmTaskType"_s, [&](Form& form) {
      TypeInto(form, u"txtName"_s, u"Line look"_s);
      LibraryShop::Tick(form, "lstComps", u"AAD"_s);
      shop.AddPart("Closing loop", 3);
      QCOMPARE(TextOf(form, u"txtName"_s), u"Line look"_s);
      QVERIFY(LibraryShop::Ticked(form, "lstComps").contains(u"AAD"_s));
      QVERIFY(LibraryShop::Texts(form, "lstParts").contains(u"Closing loop"_s));
      QCOMPARE(EditTaskType(), 0);  // it is on show already
      QCOMPARE(TextOf(form, u"txtName"_s), u"Line look"_s);
      DeleteEntry(shop.lineCheck);
      QVERIFY(!form.isVisible());
    });
    QCOMPARE(EditTaskType({.taskLibID = shop.lineCheck}), 0);
  }

  void ATaskLetsGoOfAModelThatHasGone() {
    LibraryShop shop;
    const int model = AddModel(u"Vigil"_s, kAad);
    shop.loft.Run(u"update tblTaskLib set ModelID = %1 where ID = %2"_s.arg(model).arg(shop.aadCheck));
    shop.screens.WhenShown(u"frmTaskType"_s, [&](Form& form) {
      QCOMPARE(LibraryShop::Texts(form, "lstComps"), QStringList{u"Vigil"_s});
      shop.loft.Run(u"delete * from tblModels where ID = %1"_s.arg(model));
      QVERIFY(!Control<QAbstractButton>(form, u"chkModelSpecific"_s).isChecked());
      QCOMPARE(LibraryShop::Ticked(form, "lstComps"), QStringList{u"AAD"_s});
      shop.prompts.ExpectBox(u"Done"_s, u"Task type updated"_s);
      Click(form, u"cmdSave"_s);
    });
    EditTaskType({.taskLibID = shop.aadCheck, .modelID = model});
    QCOMPARE(shop.loft.Rows(
                 u"select ComponentTypeID from tblTaskLibComponentTypes where TaskLibID = %1"_s.arg(shop.aadCheck)),
             QStringList{QString::number(kAad)});
  }

  void AnEventThatHasGoneIsNotEdited() {
    LibraryShop shop;
    shop.screens.WhenShown(u"frmEventLib"_s, [&](Form& form) {
      DeleteEntry(shop.ride);
      QVERIFY(!form.isVisible());
    });
    QCOMPARE(EditEventType(shop.ride), 0);
  }

  void ALineThatHasGoneIsNotEdited() {
    LibraryShop shop;
    const int line = shop.AddTask(RepackTaskLibID);
    shop.screens.WhenShown(u"frmTaskEdit"_s, [&](Form& form) {
      TypeInto(form, u"txtName"_s, u"Half"_s);
      SaveLineName(line, u"Elsewhere"_s);
      QCOMPARE(TextOf(form, u"txtName"_s), u"Half"_s);
      QVERIFY(!EditTask(line));  // it is on show already
      QCOMPARE(TextOf(form, u"txtName"_s), u"Half"_s);
      DeleteLine(line, true);
      QVERIFY(!form.isVisible());
    });
    QVERIFY(!EditTask(line));
  }

  void AQuickFixOfATaskThatHasGoneCloses() {
    LibraryShop shop;
    const QStringList jobs = shop.loft.Rows(u"select ID from tblJobs"_s);
    shop.screens.WhenShown(u"frmQuickFix"_s, [&](Form& form) {
      shop.loft.Run(u"update tblRig set rigAlias = 'Green' where ID = %1"_s.arg(shop.rig));
      QCOMPARE(TextOf(form, u"lblRig"_s), u"Green"_s);
      DeleteEntry(shop.lineCheck);
      QVERIFY(!form.isVisible());
    });
    ShowQuickFix(shop.rig, shop.owner, shop.lineCheck);
    QCOMPARE(shop.loft.Rows(u"select ID from tblJobs"_s), jobs);
  }

  void PricesThatAreTypedStayAndAreSavedAsOne() {
    LibraryShop shop;
    const int javelin = AddModel(u"Javelin II"_s, kContainer);
    shop.screens.WhenShown(u"frmRepack"_s, [&](Form& form) {
      auto& grid = Control<Grid>(form, u"Grid2"_s);
      TypeInto(form, u"txtIR"_s, u"81"_s);
      ClickCell(grid, grid.FindRow(javelin), 1);  // the price takes the cursor
      QTest::keyClicks(grid.Editor(), u"75"_s);
      QCOMPARE(grid.Text(grid.FindRow(javelin), 2), u"75"_s);
      const int vector = AddModel(u"A Vector"_s, kContainer);
      SaveByModel(vector, Money::Whole(60));
      QCOMPARE(grid.Text(grid.FindRow(javelin), 2), u"75"_s);
      QCOMPARE(grid.Text(grid.FindRow(vector), 2), u"60.00"_s);
      QCOMPARE(TextOf(form, u"txtIR"_s), u"81"_s);
      shop.prompts.ExpectBox(u"Loftkeep"_s, u"Saved"_s);
      Click(form, u"cmdSave"_s);
    });
    ShowRepackPrices();
    QCOMPARE(GetPriceByModel(javelin, RepackTaskLibID), Money::Whole(75));
    QCOMPARE(TaskLibFlatRate(RepackTaskLibID), Money::Whole(81));
    QVERIFY(UndoOperation());
    QCOMPARE(GetPriceByModel(javelin, RepackTaskLibID), Money());
    QVERIFY(TaskLibFlatRate(RepackTaskLibID) != Money::Whole(81));
  }

  void PricesWithOneThatNoMoneyHoldsAreNotSaved() {
    LibraryShop shop;
    const QStringList before = shop.loft.Snapshot();
    shop.screens.WhenShown(u"frmRepack"_s, [&](Form& form) {
      TypeInto(form, u"txtIR"_s, u"81"_s);
      auto& grid = Control<Grid>(form, u"Grid1"_s);
      ClickCell(grid, 0, 2);
      QTest::keyClicks(grid.Editor(), u"1e15"_s);
      shop.prompts.ExpectBox(u"Sub cmdSave_Click"_s, u"Overflow"_s);
      Click(form, u"cmdSave"_s);
      QVERIFY(form.isVisible());
      Click(form, u"cmdCancel"_s);
    });
    ShowRepackPrices();
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }
};

LOFT_TEST_MAIN(TestWorkStays)
#include "tst_work_stays.moc"
