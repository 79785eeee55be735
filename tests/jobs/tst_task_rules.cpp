#include <QtTest>

#include "jobs/sample_job.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

class TestTaskRules : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void ARequiredComponentMustBeOnTheJob() {
    SampleJob shop;
    int missing = 7;
    QVERIFY(RequiredComponentsPresent(shop.job, shop.aadCheck, missing));
    QCOMPARE(missing, 0);
    shop.loft.Run(u"delete * from tblJobComponents where ComponentID = %1"_s.arg(shop.aad));
    shop.prompts.ExpectBox(u"Can't add AAD check"_s, u"There is no aad in this rig"_s);
    QVERIFY(!RequiredComponentsPresent(shop.job, shop.aadCheck, missing));
    QCOMPARE(missing, int{kAad});
    const int loose = shop.AddJob("Loose", 0, shop.mainCanopy);
    shop.prompts.ExpectBox(u"Can't add AAD check"_s, u"This task requires an aad"_s);
    QVERIFY(!RequiredComponentsPresent(loose, shop.aadCheck, missing));
    const int event = shop.AddEvent("Reserve ride");
    shop.prompts.ExpectBox(u"Can't add Reserve ride"_s, u"This event requires a reserve canopy"_s);
    QVERIFY(!RequiredComponentsPresent(loose, event, missing));
    QVERIFY(RequiredComponentsPresent(loose, InstallTaskLibID, missing));
  }

  void AnEntryIsRefusedWithNothingWritten() {
    SampleJob shop;
    shop.loft.Run(u"delete * from tblJobComponents where ComponentID = %1"_s.arg(shop.aad));
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.ExpectBox(u"Can't add AAD check"_s, u"There is no aad in this rig"_s);
    QCOMPARE(AddLibraryTask(shop.Context(), shop.aadCheck, Day(3, 2, 2026), true), LibraryOutcome::Refused);
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void AModelSpecificEntryNeedsItsModel() {
    SampleJob shop;
    const int vigil = shop.loft.Add("tblModels", {{"Name", "Vigil"}, {"TypeID", kAad}});
    shop.loft.Run(u"update tblTaskLib set ModelID = %1 where ID = %2"_s.arg(vigil).arg(shop.aadCheck));
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.ExpectBox(u"This is a model specific task"_s, u"There is no Vigil in this rig"_s);
    QCOMPARE(AddLibraryTask(shop.Context(), shop.aadCheck, Day(3, 2, 2026), true), LibraryOutcome::Refused);
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
    shop.loft.Run(u"update tblComponents set ModelID = %1 where ID = %2"_s.arg(vigil).arg(shop.aad));
    QString message = u"kept "_s;
    QVERIFY(!ModelMissingFromJob(shop.aadCheck, message, shop.job));
    QVERIFY(!ModelMissingFromJob(1, message, shop.job));
    QCOMPARE(message, u"kept "_s);
    QCOMPARE(AddLibraryTask(shop.Context(), shop.aadCheck, Day(3, 2, 2026), true), LibraryOutcome::Added);
  }

  void TheModelIsLookedAtBeforeTheComponents() {
    SampleJob shop;
    const int swift = shop.loft.Add("tblModels", {{"Name", "Swift"}, {"TypeID", kChestReserve}});
    const int entry = shop.AddEntry("Chest check", 1, 3, {kChestReserve});
    shop.loft.Run(u"update tblTaskLib set ModelID = %1 where ID = %2"_s.arg(swift).arg(entry));
    shop.prompts.ExpectBox(u"This is a model specific task"_s, u"There is no Swift in this rig"_s);
    QCOMPARE(AddLibraryTask(shop.Context(), entry, Day(3, 2, 2026), true), LibraryOutcome::Refused);
  }

  void AnEntryStandsOnceUnlessItMayRepeat() {
    SampleJob shop;
    QVERIFY(!TaskOnJob(shop.job, shop.aadCheck));
    shop.AddTask(shop.aadCheck);
    QVERIFY(TaskOnJob(shop.job, shop.aadCheck));
    shop.prompts.ExpectBox(u"Duplicate task"_s,
                           u"This job already has the task 'AAD check'\nThis task is only allowed once per job\n"
                           "(you can change this in the TASK TYPE LIBRARY)"_s);
    QCOMPARE(AddLibraryTask(shop.Context(), shop.aadCheck, Day(3, 2, 2026), true), LibraryOutcome::Refused);
    const int event = shop.AddEvent("Reserve ride");
    shop.AddTask(event);
    shop.prompts.ExpectBox(u"Duplicate event"_s,
                           u"This job already has the event 'Reserve ride'\nThis event is only allowed once per job\n"
                           "You can change this setting on the main menu\nSelect Setup/Event Library"_s);
    QCOMPARE(AddLibraryTask(shop.Context(), event, Day(3, 2, 2026), true), LibraryOutcome::Refused);
    QCOMPARE(LinesOfJob(shop.job).size(), 2);
    shop.loft.Run(u"update tblTaskLib set AllowMultiple = true where ID = %1"_s.arg(event));
    QCOMPARE(AddLibraryTask(shop.Context(), event, Day(3, 2, 2026), true), LibraryOutcome::Added);
    int custom = 0;
    AddCustomLine(shop.Context(),
                  {.name = u"AAD check"_s, .price = Money(), .logBook = false, .partID = 0, .isEvent = false},
                  Day(3, 2, 2026), custom);
    QCOMPARE(LinesOfJob(shop.job).size(), 4);
  }

  void InstallingAndRemovingAreCommandsOfTheirOwn() {
    SampleJob shop;
    const QStringList before = shop.loft.Snapshot();
    QCOMPARE(AddLibraryTask(shop.Context(), InstallTaskLibID, Date(), true), LibraryOutcome::Install);
    QCOMPARE(AddLibraryTask(shop.Context(), RemoveTaskLibID, Date(), true), LibraryOutcome::Remove);
    for (int id : {0, -1, -99}) QCOMPARE(AddLibraryTask(shop.Context(), id, Date(), true), LibraryOutcome::Refused);
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void ARepackNeedsARig() {
    SampleJob shop;
    QVERIFY(RepackIsPossible(shop.rig));
    const QString rest =
        u"\nReserve repacks can only be added to jobs\nwith a valid rig.\n"
        "You can create a rig using the RIG menu."_s;
    shop.prompts.ExpectBox(u"Can't enter repack"_s, u"This job doesn't have a rig."_s + rest);
    QVERIFY(!RepackIsPossible(0));
    shop.loft.Run(u"delete * from tblRig"_s);
    shop.prompts.ExpectBox(u"Can't enter repack"_s, u"The rig for this job has been deleted."_s + rest);
    QVERIFY(!RepackIsPossible(shop.rig));
  }

  void ARepackOnOtherGearIsAddedWithAWarning() {
    SampleJob shop;
    shop.prompts.ExpectBox(u"Repack won't affect schedule"_s,
                           u"Please note:\nThis repack entry will not show up on the schedule.\n"
                           "This is because this job has components that are different\n"
                           "than those in the current rig"_s);
    QCOMPARE(AddLibraryTask(shop.Context(), RepackTaskLibID, Day(3, 2, 2026), false), LibraryOutcome::Added);
    QCOMPARE(AddLibraryTask(shop.Context(), shop.aadCheck, Day(3, 2, 2026), false), LibraryOutcome::Added);
    QCOMPARE(LinesOfJob(shop.job).size(), 2);
  }

  void TheWorkingDateIsReadFromTheBox() {
    ScriptedPrompts prompts;
    QCOMPARE(WorkingDate(u"3/4/2026"_s), Day(3, 4, 2026));
    prompts.ExpectBox(u"Date is invalid"_s, u"soon is not a valid date"_s);
    QCOMPARE(WorkingDate(u"soon"_s), Date());
  }
};

LOFT_TEST_MAIN(TestTaskRules)
#include "tst_task_rules.moc"
