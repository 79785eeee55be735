#include <QPushButton>
#include <QTest>

#include "jobs/screens/open_job.h"
#include "support/data_folder_here.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

/// The job screen among the others: stepping, starting, deleting, leaving.
class TestJob : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void JobsAreSteppedThroughAndLocated() {
    OpenJob shop;
    const int second = shop.AddJob("Second", 0, 0);
    shop.Open();
    auto& back = Control<QPushButton>(shop.Screen(), u"cmdPrev"_s);
    auto& next = Control<QPushButton>(shop.Screen(), u"cmdNext"_s);
    QVERIFY(!back.isEnabled() && next.isEnabled());
    Click(shop.Screen(), u"cmdNext"_s);
    QCOMPARE(shop.Label("lblJob"), u"Second"_s);
    QVERIFY(back.isEnabled() && !next.isEnabled());
    QCOMPARE(LastJobID(), second);
    Click(shop.Screen(), u"cmdPrev"_s);
    QCOMPARE(shop.Label("lblJob"), u"Blue 03/01/2026"_s);
    shop.screens.WhenShown(u"frmPicker"_s, [&](Form& form) {
      TypeInto(form, u"txt"_s, QString::number(second));
      Click(form, u"cmdSelect"_s);
    });
    shop.Choose(u"Locate Job"_s, u"locate by invoice #"_s);
    QCOMPARE(shop.Label("lblJob"), u"Second"_s);
    shop.screens.WhenShown(u"frmPicker"_s, [](Form& form) {
      TypeInto(form, u"txt"_s, u"nothing like it"_s);
      Click(form, u"cmdSelect"_s);
    });
    shop.Choose(u"Locate Job"_s, u"locate by job name"_s);
    QCOMPARE(shop.Label("lblJob"), u"Second"_s);
  }

  void AVanishedJobGivesWay() {
    OpenJob shop;
    const int second = shop.AddJob("Second", 0, 0);
    shop.AddJob("loadme", 0, 0);
    shop.loft.Run(u"delete * from tblJobs where ID = %1"_s.arg(shop.job));
    QCOMPARE(shop.Label("lblJob"), u"Second"_s);
    QCOMPARE(shop.loft.Rows(u"select ID from tblJobs"_s), QStringList(QString::number(second)));
    shop.prompts.ExpectBox(u"Loftkeep"_s, u"There are no jobs"_s);
    shop.loft.Run(u"delete * from tblJobs"_s);
    QVERIFY(!Forms::IsShown(u"frmJob"_s));
    shop.prompts.ExpectBox(u"Loftkeep"_s, u"There are no jobs"_s);
    ShowJob();
    QVERIFY(!Forms::IsShown(u"frmJob"_s));
  }

  void TheJobIsDeletedAndTheNextOneShown() {
    OpenJob shop;
    shop.AddJob("Second", 0, 0);
    shop.prompts.Expect(u"Delete Blue 03/01/2026"_s, u"Are you sure you want to delete this job?"_s, Answer::No);
    shop.Choose(u"Jobs"_s, u"Delete this job"_s);
    QVERIFY(JobExists(shop.job));
    shop.prompts.Expect(u"Delete Blue 03/01/2026"_s, u"Are you sure you want to delete this job?"_s, Answer::Yes);
    shop.Choose(u"Jobs"_s, u"Delete this job"_s);
    QCOMPARE(shop.Label("lblJob"), u"Second"_s);
    shop.prompts.Expect(u"Delete Second"_s, u"Are you sure you want to delete this job?"_s, Answer::Yes);
    shop.prompts.ExpectBox(u"Job database is now empty"_s, u"The only job in the database has been deleted"_s);
    shop.Choose(u"Jobs"_s, u"Delete this job"_s);
    QVERIFY(!Forms::IsShown(u"frmJob"_s));
  }

  void EmptyJobsAreDeletedFromTheMenu() {
    OpenJob shop;
    shop.AddShown(shop.aadCheck);
    const int empty = shop.AddJob("Empty", 0, 0);
    shop.prompts.Expect(u"One empty job"_s,
                        u"Found one empty job (invoice # %1)\nWould you like to delete  it?"_s.arg(empty), Answer::Yes);
    shop.Choose(u"Tools"_s, u"Delete all empty jobs"_s);
    QVERIFY(!JobExists(empty));
    QCOMPARE(shop.Label("lblJob"), u"Blue 03/01/2026"_s);
    QVERIFY(!Control<QPushButton>(shop.Screen(), u"cmdNext"_s).isEnabled());
  }

  void HelpIsTold() {
    OpenJob shop;
    shop.prompts.ExpectBox(u"Jobs"_s,
                           u"When all tasks have status COMPLETED, the job status is updated to COMPLETED."_s);
    Click(shop.Screen(), u"cmdHelp"_s);
    shop.prompts.AnswerRestWith([](const ShownPrompt& shown) { return shown.preset; });
    Click(shop.Screen(), u"cmdDateHelp"_s);
    const ShownPrompt dates = shop.prompts.Transcript().last();
    QCOMPARE(dates.title, u"Job/Task Dates"_s);
    for (const QString& line :
         {u"  1).  It will be the Task Start Date for all new tasks"_s,
          u"  2).  It will be the Task Completion Date when clicking the STATUS column to COMPLETED"_s,
          u"  3).  It will be the JOB Completion Date when all tasks have been checked."_s,
          u"Changing the date in the DATE PERFORMED box does NOT change the dates for tasks already entered."_s,
          u"Hint: A quick way to change a task's end date is to just uncheck a task and then recheck it.  "_s,
          u"Also changing a JOB's completion date will give you the option of changing each task's end date "_s})
      QVERIFY2(dates.text.split(u'\n').contains(line), qPrintable(line));
    shop.Choose(u"Events"_s, u"What's an event?"_s);
    QCOMPARE(shop.prompts.Transcript().last().title, u"Events vs Tasks"_s);
    QVERIFY(shop.prompts.Transcript().last().text.contains(u"unplanned occurences"_s));
  }

  void TheInvoiceOfAnIncompleteJobIsAskedFor() {
    OpenJob shop;
    const DataFolderHere here(shop.loft.Folder());
    shop.loft.Folder().Write(u"support/address.txt"_s, "Loft\n");
    shop.AddShown(shop.aadCheck);
    const QString text =
        u"This job is incomplete.\nOne or more items in the STATUS column are blank.\n"
        "Do you want to show the invoice anyway?"_s;
    shop.prompts.Expect(u"Job is not complete"_s, text, Answer::No);
    shop.Choose(u"Invoice"_s, u"View/Print/Email invoice"_s);
    shop.prompts.Expect(u"Job is not complete"_s, text, Answer::Yes);
    shop.screens.WhenShown(u"frmPrintPreview"_s, [](Form& form) { form.reject(); });
    shop.Choose(u"Invoice"_s, u"View/Print/Email invoice"_s);
    ClickCell(shop.Lines(), 0, kStatus);
    shop.screens.WhenShown(u"frmPrintPreview"_s, [](Form& form) { form.reject(); });
    shop.Choose(u"Invoice"_s, u"View/Print/Email invoice"_s);
  }

  void TheRigIsShown() {
    OpenJob shop;
    int shown = 0;
    shop.screens.WhenShown(u"frmGetRig"_s, [&](Form& form) {
      auto& rigs = Control<List>(form, u"lstGear"_s);
      shown = rigs.ItemData(rigs.ListIndex());
      form.reject();
    });
    shop.Choose(u"Rig"_s, u"Show this rig"_s);
    QCOMPARE(shown, shop.rig);
    shop.loft.Run(u"delete * from tblRig"_s);
    shop.prompts.ExpectBox(u"Can't show rig"_s, u"The rig for this job has been deleted"_s);
    shop.Choose(u"Rig"_s, u"Show this rig"_s);
    const int loose = shop.AddJob("Loose", 0, 0);
    GotoJob(loose);
    shop.prompts.ExpectBox(u"No Rig"_s, u"There is no rig for this job"_s);
    shop.Choose(u"Rig"_s, u"Show this rig"_s);
  }

  void ANewJobStartsOnAPickedRig() {
    OpenJob shop;
    shop.screens.WhenShown(u"frmPickRig"_s, [&](Form& form) {
      auto& rigs = Control<List>(form, u"lstGear"_s);
      rigs.SetListIndex(rigs.FindData(shop.rig));
      Click(form, u"cmdSelect"_s);
    });
    shop.screens.WhenShown(u"frmNewJob"_s, [](Form& form) { Click(form, u"cmdOK"_s); });
    ChooseMenu(shop.Screen(), {u"Jobs"_s, u"Start new job"_s, u"New job, select rig"_s});
    QCOMPARE(shop.Label("lblJob"), u"Blue 3/15/2026"_s);
    QCOMPARE(shop.Label("lblSystem"), u"Blue"_s);
  }

  void TheSelectedComponentIsEdited() {
    OpenJob shop;
    shop.prompts.ExpectBox(u"Edit selected component"_s, u"You must select a component from the above grid"_s);
    shop.Choose(u"Component"_s, u"Edit selected component"_s);
    Control<Grid>(shop.Screen(), u"Grid"_s).SelectRow(3);
    shop.screens.WhenShown(u"frmComponentEdit"_s, [](Form& form) { form.reject(); });
    shop.Choose(u"Component"_s, u"Edit selected component"_s);
  }

  void PhotosAreHiddenOnDemand() {
    OpenJob shop;
    QVERIFY(shop.Shows("imageRig") && shop.Shows("imageCanopy"));
    Click(shop.Screen(), u"chkHidePhotos"_s);
    QVERIFY(!shop.Shows("imageRig") && !shop.Shows("imageCanopy"));
    QCOMPARE(shop.loft.Rows(u"select HidePhotos from tblMisc"_s), QStringList(u"-1"_s));
    shop.loft.Run(u"update tblMisc set HidePhotos = false"_s);
    shop.Choose(u"Tools"_s, u"Refresh"_s);
    QVERIFY(shop.Shows("imageRig") && shop.Shows("imageCanopy"));
  }

  void WithoutGearThePanelIsHidden() {
    OpenJob shop;
    GotoJob(shop.AddJob("No gear", 0, 0));
    QVERIFY(!shop.Shows("Grid") && !shop.Shows("imageRig"));
    GotoJob(shop.AddJob("One component", 0, shop.aad));
    QVERIFY(shop.Shows("Grid") && shop.Shows("imageRig"));
    shop.loft.Run(u"delete * from tblJobComponents"_s);
    shop.Open();
    QVERIFY(shop.Shows("Grid"));
  }

  void ExitHidesTheScreenAndKeepsItLoaded() {
    OpenJob shop;
    Click(shop.Screen(), u"cmdExit"_s);
    QVERIFY(Forms::Find(u"frmJob"_s) && !Forms::IsShown(u"frmJob"_s));
    ShowJob();
    QVERIFY(Forms::IsShown(u"frmJob"_s));
    PressKey(shop.Screen(), Qt::Key_Escape);
    QVERIFY(Forms::Find(u"frmJob"_s) && !Forms::IsShown(u"frmJob"_s));
  }

  void ANewJobWithoutARigStartsFromTheMenu() {
    OpenJob shop;
    shop.screens.WhenShown(u"frmPicker"_s, [](Form& form) {
      TypeInto(form, u"txt"_s, u"Owner"_s);
      Click(form, u"cmdSelect"_s);
    });
    shop.screens.WhenShown(u"frmNewJob"_s, [](Form& form) { Click(form, u"cmdOK"_s); });
    ChooseMenu(shop.Screen(), {u"Jobs"_s, u"Start new job"_s, u"New job, no rig"_s});
    QCOMPARE(shop.Label("lblJob"), u"Owner 3/15/2026"_s);
    QCOMPARE(shop.Label("lblSystem"), u"(n/a)"_s);
    auto& list = Control<List>(shop.Screen(), u"lstTasks"_s);
    list.SetListIndex(0);
    shop.prompts.ExpectBox(u"Can't enter repack"_s,
                           u"This job doesn't have a rig.\nReserve repacks can only be added to jobs\n"
                           "with a valid rig.\nYou can create a rig using the RIG menu."_s);
    PressKey(list, Qt::Key_Return);
    QVERIFY(!shop.Shows("cmdGearChange"));
  }
};

LOFT_TEST_MAIN(TestJob)
#include "tst_job.moc"
