#include <QCheckBox>
#include <QRadioButton>
#include <QtTest>

#include "core/widgets/grid.h"
#include "core/widgets/list.h"
#include "gear/rigs.h"
#include "jobs/sample_job.h"
#include "jobs/screens.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

/// The sample job, a second one of the owner without a rig, and a completed one of the rigger.
struct JobShop : SampleJob {
  ScreenScript screens;
  int second = AddJob("No rig", 0, 0);
  int done = 0;

  JobShop() {
    CreateNewJob(u"Rigger's own"_s, rigger, 0, 0, done, rigger, 0, Day(2, 1, 2026));
    SetJobStatus(done, true, Day(2, 2, 2026));
    SetLastJobID(job);
  }

  static Form& Open(const JobListStart& start = {}) {
    OpenJobList(start);
    return dynamic_cast<Form&>(*Forms::Find(u"frmJobList"_s));
  }
};

List& Jobs(Form& form) { return Control<List>(form, u"lstJobs"_s); }
List& Customers(Form& form) { return Control<List>(form, u"lstCustomers"_s); }
QString Chosen(const List& list) { return list.ItemText(list.ListIndex()); }
void Choose(Form& form, const QString& option) { Control<QAbstractButton>(form, option).click(); }

QList<int> Ids(const List& list) {
  QList<int> ids;
  for (int row = 0; row < list.Count(); ++row) ids << list.ItemData(row);
  return ids;
}

}  // namespace

class TestJobListScreen : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void ShowsAllJobsOnTheLastOne() {
    JobShop shop;
    Form& form = JobShop::Open();
    QCOMPARE(form.windowTitle(), u"Job List"_s);
    QCOMPARE(Ids(Jobs(form)), (QList<int>{shop.second, shop.job, shop.done}));
    QCOMPARE(Jobs(form).ItemData(Jobs(form).ListIndex()), shop.job);
    QCOMPARE(Chosen(Customers(form)), u"Owner, Olaf"_s);
    QCOMPARE(TextOf(form, u"lblRigType"_s), u"Sport Rig"_s);
    QCOMPARE(Control<Grid>(form, u"Grid"_s).RowCount(), 4);
    Picture(form, u"frmJobList"_s);
    Jobs(form).SelectData(shop.done);
    QCOMPARE(Chosen(Customers(form)), u"Rigger, Rita"_s);
    QCOMPARE(TextOf(form, u"lblRigType"_s), QString());
    QCOMPARE(Control<Grid>(form, u"Grid"_s).RowCount(), 0);
    QCOMPARE(LastJobID(), shop.done);
  }

  void NarrowsByCustomerStatusAndTask() {
    JobShop shop;
    shop.AddTask(RepackTaskLibID);
    Form& form = JobShop::Open();
    Choose(form, u"optByCust"_s);
    QCOMPARE(Ids(Jobs(form)), (QList<int>{shop.second, shop.job}));
    QCOMPARE(Jobs(form).ItemData(Jobs(form).ListIndex()), shop.job);  // the selection is kept
    Customers(form).SelectData(shop.rigger);
    QCOMPARE(Ids(Jobs(form)), QList<int>{shop.done});
    Choose(form, u"optAllJobs"_s);
    Choose(form, u"optStatusActive"_s);
    QCOMPARE(Ids(Jobs(form)), (QList<int>{shop.second, shop.job}));
    Choose(form, u"optStatusComplete"_s);
    QCOMPARE(Ids(Jobs(form)), QList<int>{shop.done});
    Choose(form, u"optStatusAny"_s);
    shop.screens.WhenShown(u"frmPicker"_s, [](Form& picker) {
      TypeInto(picker, u"txt"_s, u"inspect"_s);
      Click(picker, u"cmdSelect"_s);
    });
    ChooseMenu(form, {u"Search"_s, u"by task type"_s});
    QCOMPARE(Ids(Jobs(form)), QList<int>{shop.job});
    QCOMPARE(TextOf(form, u"lblTaskType"_s), u"(Inspect and repack reserve only)"_s);
    ChooseMenu(form, {u"Search"_s, u"All jobs"_s});
    QCOMPARE(Jobs(form).Count(), 3);
    QCOMPARE(TextOf(form, u"lblTaskType"_s), QString());
    shop.screens.WhenShown(u"frmPicker"_s, [](Form& picker) { Click(picker, u"cmdCancel"_s); });
    ChooseMenu(form, {u"Search"_s, u"by task type"_s});
    QCOMPARE(Jobs(form).Count(), 3);
  }

  void OpensTheSelectedJob() {
    JobShop shop;
    Form& form = JobShop::Open();
    Jobs(form).SetListIndex(-1);
    shop.prompts.ExpectBox(u"No job selected"_s, u"You must select a job first"_s);
    Click(form, u"cmdSelect"_s);
    Jobs(form).SelectData(shop.job);
    PressKey(form, u"lstJobs"_s, Qt::Key_Return);
    QVERIFY(Forms::IsShown(u"frmJob"_s));
    QVERIFY(Forms::IsShown(u"frmJobList"_s));
    PressKey(form, Qt::Key_Escape);
    QVERIFY(!Forms::IsShown(u"frmJobList"_s));
  }

  void SearchGoesToACustomer() {
    JobShop shop;
    Form& form = JobShop::Open({.customer = shop.owner});
    QCOMPARE(Jobs(form).Count(), 2);
    shop.screens.WhenShown(u"frmPicker"_s, [](Form& picker) {
      TypeInto(picker, u"txt"_s, u"rigger"_s);
      Click(picker, u"cmdSelect"_s);
    });
    Click(form, u"cmdSearch"_s);
    QCOMPARE(Chosen(Customers(form)), u"Rigger, Rita"_s);
    QCOMPARE(Ids(Jobs(form)), QList<int>{shop.done});
  }

  void AJobIsDeletedWithItsLinesAndTheScheduleFollows() {
    JobShop shop;
    ToggleComplete(shop.AddTask(RepackTaskLibID), Day(3, 2, 2026), true);
    QCOMPARE(shop.Schedules().size(), 1);
    const QStringList before = shop.loft.Snapshot();
    Form& form = JobShop::Open();
    Jobs(form).SetListIndex(-1);
    shop.prompts.ExpectBox(u"Delete Job"_s, u"Please select a job"_s);
    ChooseMenu(form, {u"Jobs"_s, u"Delete job"_s});
    Jobs(form).SelectData(shop.job);
    Customers(form).SetListIndex(-1);
    shop.prompts.ExpectBox(u"Select Customer"_s, u"Please select a customer"_s);
    ChooseMenu(form, {u"Jobs"_s, u"Delete job"_s});
    Customers(form).SelectData(shop.owner);
    const QString text =
        u"This job has 1 tasks and 0 parts\nDeleting this job will delete those entries as well\n"
        "Are you sure you want to delete this job?"_s;
    shop.prompts.Expect(u"Delete Blue 03/01/2026"_s, text, Answer::No);
    PressKey(form, u"lstJobs"_s, Qt::Key_Delete);
    QCOMPARE(Jobs(form).Count(), 3);
    shop.prompts.Expect(u"Delete Blue 03/01/2026"_s, text, Answer::Yes);
    PressKey(form, u"lstJobs"_s, Qt::Key_Delete);
    QCOMPARE(Ids(Jobs(form)), (QList<int>{shop.second, shop.done}));
    QCOMPARE(shop.Schedules(), QStringList());
    const QStringList changes = shop.loft.TouchedSince(before);
    QVERIFY(changes.contains(u"-tblJobs|%1"_s.arg(shop.job)));
    QCOMPARE(changes.filter(u"-tblJobComponents"_s).size(), 4);
  }

  void AJobIsStartedForTheSelectedCustomer() {
    JobShop shop;
    Form& form = JobShop::Open();
    Customers(form).SetListIndex(-1);
    shop.prompts.ExpectBox(u"No customer selected"_s, u"You must select a customer first"_s);
    ChooseMenu(form, {u"Jobs"_s, u"Start new job"_s});
    Customers(form).SelectData(shop.owner);
    shop.prompts.Expect(u"Is this the correct customer?"_s, u"Start a new job for Olaf Owner?"_s, Answer::No);
    ChooseMenu(form, {u"Jobs"_s, u"Start new job"_s});
    shop.prompts.Expect(u"Is this the correct customer?"_s, u"Start a new job for Olaf Owner?"_s, Answer::Yes);
    shop.screens.WhenShown(u"frmJobTypeSelect"_s, [](Form& what) { Click(what, u"cmdOK"_s); });
    shop.screens.WhenShown(u"frmNewJob"_s, [](Form& job) {
      TypeInto(job, u"txtName"_s, u"Summer repack"_s);
      Click(job, u"cmdOK"_s);
    });
    ChooseMenu(form, {u"Jobs"_s, u"Start new job"_s});
    QVERIFY(Jobs(form).ItemText(0).contains(u"Summer repack"_s));
    shop.loft.Run(u"update tblPeople set rigger = false"_s);
    shop.prompts.ExpectBox(u"No riggers found"_s,
                           u"There are no riggers in your database\nTo designate a person as a rigger, go to the\n"
                           "customers form and check the RIGGER check box"_s);
    ChooseMenu(form, {u"Jobs"_s, u"Start new job"_s});
  }

  void TheRigOfAJobIsShownAsItIsToday() {
    JobShop shop;
    Form& form = JobShop::Open();
    shop.screens.WhenShown(u"frmCurrentComponents"_s, [](Form& rig) { PressKey(rig, Qt::Key_Escape); });
    Click(form, u"cmdCurrentComp"_s);
    shop.screens.WhenShown(u"frmGetRig"_s, [](Form& rig) { PressKey(rig, Qt::Key_Escape); });
    ChooseMenu(form, {u"Rig"_s, u"Show rig"_s});
    Jobs(form).SelectData(shop.second);
    QVERIFY(!Control<QWidget>(form, u"cmdCurrentComp"_s).isEnabled());
    shop.prompts.ExpectBox(u"No Rig"_s, u"There is no rig for this job"_s);
    ChooseMenu(form, {u"Rig"_s, u"Show rig"_s});
    DeleteRigRow(shop.rig);
    Jobs(form).SelectData(shop.job);
    shop.prompts.ExpectBox(u"Can't show rig"_s, u"The rig for this job has been deleted"_s);
    ChooseMenu(form, {u"Rig"_s, u"Show rig"_s});
    shop.prompts.ExpectBox(u"Rig Deleted"_s, u"The rig used in this job no longer exists"_s);
    Click(form, u"cmdCurrentComp"_s);
    shop.prompts.AnswerRestWith([](const ShownPrompt&) { return Answer::Ok; });
    Click(form, u"cmdHelp"_s);
    QCOMPARE(shop.prompts.Transcript().last().title, u"Rig Components"_s);
  }

  void AVanishedCustomerGivesWayToTheRigsOwner() {
    JobShop shop;
    shop.loft.Run(u"update tblJobs set CustomerID = 99"_s);
    Form& form = JobShop::Open();
    QCOMPARE(Chosen(Customers(form)), u"Owner, Olaf"_s);
    Jobs(form).SelectData(shop.second);
    QCOMPARE(Customers(form).ListIndex(), -1);
  }

  void CustomersAreAddedAndDeleted() {
    JobShop shop;
    Form& form = JobShop::Open();
    shop.prompts.ExpectInput(kProgramTitle, u"Enter name of new customer"_s, u"Olaf Owner"_s);
    shop.prompts.ExpectBox(kProgramTitle, u"Olaf Owner already exists"_s);
    ChooseMenu(form, {u"Customers"_s, u"Add new customer"_s});
    shop.prompts.ExpectInput(kProgramTitle, u"Enter name of new customer"_s, u"Ann O'Brien"_s);
    ChooseMenu(form, {u"Customers"_s, u"Add new customer"_s});
    QCOMPARE(Chosen(Customers(form)), u"O'Brien, Ann"_s);
    shop.prompts.AnswerRestWith([](const ShownPrompt&) { return Answer::Yes; });
    ChooseMenu(form, {u"Customers"_s, u"Delete customer"_s});
    QCOMPARE(shop.loft.Rows(u"SELECT count(*) FROM tblPeople WHERE FirstName = 'Ann'"_s), QStringList{u"0"_s});
  }

  void EmptyJobsAreClearedAway() {
    JobShop shop;
    shop.AddTask(RepackTaskLibID);
    Form& form = JobShop::Open();
    shop.prompts.Expect(u"Empty jobs found"_s, u"Found 2 empty jobs\nWould you like to delete  them?"_s, Answer::Yes);
    ChooseMenu(form, {u"Tools"_s, u"Delete all empty jobs"_s});
    QCOMPARE(Ids(Jobs(form)), QList<int>{shop.job});
  }
};

LOFT_TEST_MAIN(TestJobListScreen)
#include "tst_job_list_screen.moc"
