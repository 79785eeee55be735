#include <QtTest>

#include "core/store/connection.h"
#include "core/store/database.h"
#include "jobs/library_delete.h"
#include "jobs/library_entry.h"
#include "jobs/library_parts.h"
#include "jobs/sample_job.h"
#include "support/counting_form.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

TaskTypeEntry LineCheck() {
  return {.name = u" Line check "_s,
          .flatRate = Money::Whole(30),
          .hourlyRate = Money::Whole(60),
          .scheduled = true,
          .interval = u"6"_s,
          .unit = kMonths,
          .allowMultiple = true,
          .logBook = true,
          .componentTypes = {kMainCanopy}};
}

const QString kNoComponents =
    u"You didn't select any required components.\nWould you like to select one or more components\n"
    "before saving this %1 type?"_s;

struct Library : SampleJob {
  QStringList Entry(int id) const {
    return loft.Rows(
        u"select Name, FlatRate, HourlyRate, LogBook, AllowMultiple, IntervalNumber, IntervalType, "
        "ModelID, IsEvent, IsRigTypeSpecific from tblTaskLib where ID = %1"_s.arg(id));
  }
  QStringList Ties(const char* table, const char* field, int id) const {
    return loft.Rows(
        u"select %2 from %1 where TaskLibID = %3 order by %2"_s.arg(QLatin1StringView(table), QLatin1StringView(field))
            .arg(id));
  }
  /// Saves a new task that passes.
  int Save(const TaskTypeEntry& entry) {
    int id = 0;
    prompts.ExpectBox(u"Done"_s, u"Task saved to task library"_s);
    [&] { QCOMPARE(SaveTaskType(entry, id), EntrySaved::Saved); }();
    return id;
  }
  /// Tries to save; nothing may change.
  void Refuses(const TaskTypeEntry& entry, int id = 0) {
    const QStringList before = loft.Snapshot();
    QCOMPARE(SaveTaskType(entry, id), EntrySaved::Refused);
    prompts.Finish();
    QCOMPARE(loft.ChangesSince(before), QStringList());
  }
};

}  // namespace

class TestLibrary : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void ANewTaskIsSavedWithAllThatBelongsToIt() {
    Library shop;
    const int loop = shop.AddPart("Loop", 3);
    TaskTypeEntry entry = LineCheck();
    entry.rigTypeSpecific = true;
    entry.rigTypes = {1, 2};
    entry.componentTypes = {kMainCanopy, kContainer};
    entry.parts = {loop};
    const int id = shop.Save(entry);
    QVERIFY(id > RemoveTaskLibID);
    QCOMPARE(shop.Entry(id), QStringList(u"Line check|300000|600000|-1|-1|6|2|0|0|-1"_s));
    QCOMPARE(shop.Ties("tblTaskLibRigType", "RigType", id), QStringList({u"1"_s, u"2"_s}));
    QCOMPARE(shop.Ties("tblTaskLibComponentTypes", "ComponentTypeID", id), QStringList({u"1"_s, u"2"_s}));
    QCOMPARE(shop.Ties("tblTaskLibParts", "PartID", id), QStringList(QString::number(loop)));
    TaskTypeEntry loaded;
    QVERIFY(LoadTaskType(id, loaded));
    QCOMPARE(loaded.name, u"Line check"_s);
    QCOMPARE(loaded.interval, u"6"_s);
    QCOMPARE(loaded.rigTypes, QList<int>({1, 2}));
    QCOMPARE(loaded.parts, QList<int>{loop});
    QVERIFY(!LoadTaskType(id + 1, loaded));
    QVERIFY(LoadTaskType(shop.aadCheck, loaded));
    QCOMPARE(loaded.rigTypes, QList<int>());
    QCOMPARE(loaded.parts, QList<int>());
    QVERIFY(loaded.scheduled);
    shop.loft.Run(u"update tblTaskLib set IntervalNumber = 0 where ID = %1"_s.arg(shop.aadCheck));
    QVERIFY(LoadTaskType(shop.aadCheck, loaded));
    QVERIFY(!loaded.scheduled);  // whatever the unit
  }

  void EntriesOfAComponentTypeAreListed() {
    Library shop;
    const int ride = shop.AddEvent("Reserve ride");
    shop.loft.Add("tblTaskLibComponentTypes", {{"TaskLibID", 9999}, {"ComponentTypeID", int{kReserveCanopy}}});
    QCOMPARE(LoadTasksByComponentType(kReserveCanopy, false).ids, QList<int>{RepackTaskLibID});
    QCOMPARE(LoadTasksByComponentType(kReserveCanopy, true).ids, QList<int>{ride});
  }

  void AnUpdateReplacesWhatWasTied() {
    Library shop;
    TaskTypeEntry entry = LineCheck();
    entry.rigTypeSpecific = true;
    entry.rigTypes = {1};
    int id = shop.Save(entry);
    entry.name = u"Line 'trim' check"_s;
    entry.scheduled = false;
    entry.rigTypeSpecific = false;
    entry.rigTypes = {};
    entry.componentTypes = {kReserveCanopy};
    shop.prompts.ExpectBox(u"Done"_s, u"Task type updated"_s);
    QCOMPARE(SaveTaskType(entry, id), EntrySaved::Saved);
    QCOMPARE(shop.Entry(id), QStringList(u"Line 'trim' check|300000|600000|-1|-1|0|0|0|0|0"_s));
    QCOMPARE(shop.Ties("tblTaskLibRigType", "RigType", id), QStringList());
    QCOMPARE(shop.Ties("tblTaskLibComponentTypes", "ComponentTypeID", id), QStringList(u"3"_s));
  }

  void TheLogBookMarkGoesToAllLinesMadeBefore() {
    Library shop;
    int id = shop.Save(LineCheck());
    const int first = shop.AddTask(id);
    const int other = shop.AddTask(shop.aadCheck);
    const int second = shop.AddTask(id);
    TaskTypeEntry entry = LineCheck();
    entry.logBook = false;
    shop.prompts.ExpectBox(u"Done"_s, u"Task type updated"_s);
    QCOMPARE(SaveTaskType(entry, id), EntrySaved::Saved);
    for (int line : {first, second}) QCOMPARE(LineField(line, tblTasks::LogBook).ToBool(), false);
    QCOMPARE(LineField(other, tblTasks::LogBook).ToBool(), true);
  }

  void ATaskNeedsAName() {
    Library shop;
    TaskTypeEntry entry = LineCheck();
    entry.name = u"  "_s;
    shop.prompts.ExpectBox(u"No task name"_s, u"Task must have a name"_s);
    shop.Refuses(entry);
  }

  void ANameInUseIsShownOnDemand() {
    Library shop;
    TaskTypeEntry entry = LineCheck();
    entry.name = u"AAD CHECK "_s;
    const QString text = u"There is already a task named 'AAD CHECK'\nWould you like to see it?"_s;
    shop.prompts.Expect(u"Duplicate task name"_s, text, Answer::No).WithButtons(Buttons::YesNo);
    shop.Refuses(entry);
    shop.prompts.Expect(u"Duplicate task name"_s, text, Answer::Yes);
    const QStringList before = shop.loft.Snapshot();
    int id = 0;
    QCOMPARE(SaveTaskType(entry, id), EntrySaved::ShowExisting);
    QCOMPARE(id, shop.aadCheck);
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
    EventTypeEntry event{.name = u" aad Check"_s, .componentTypes = {kAad}};
    id = 0;
    shop.prompts.Expect(u"Duplicate event name"_s,
                        u"There is already an event named 'aad Check'\nWould you like to see it?"_s, Answer::Yes);
    QCOMPARE(SaveEventType(event, id), EntrySaved::ShowExisting);
    QCOMPARE(id, shop.aadCheck);
    int known = shop.aadCheck;  // its own name is no duplicate
    entry.componentTypes = {kAad};
    shop.prompts.ExpectBox(u"Done"_s, u"Task type updated"_s);
    QCOMPARE(SaveTaskType(entry, known), EntrySaved::Saved);
  }

  void AnIntervalIsAskedForWhenTheTaskIsScheduled() {
    Library shop;
    TaskTypeEntry entry = LineCheck();
    entry.unit = kNoInterval;
    shop.prompts.ExpectBox(u"Interval?"_s, u"You must select an interval type (day, months, years)"_s);
    shop.Refuses(entry);
    for (const QString& interval : {QString(), u"0"_s, u"often"_s}) {
      entry.unit = kDays;
      entry.interval = interval;
      shop.prompts.ExpectBox(u"Interval?"_s, u"You must enter a frequency\n(This task must be peformed every ___ )"_s);
      shop.Refuses(entry);
    }
    entry.scheduled = false;
    const int id = shop.Save(entry);
    QCOMPARE(IntervalNumber(id), 0);
    QCOMPARE(IntervalType(id), int{kNoInterval});
  }

  void MissingComponentsAreAskedFor() {
    Library shop;
    TaskTypeEntry entry = LineCheck();
    entry.componentTypes = {};
    shop.prompts.Expect(u"No Required Components?"_s, kNoComponents.arg(u"task"_s), Answer::Yes)
        .WithButtons(Buttons::YesNo);
    shop.Refuses(entry);
    shop.prompts.Expect(u"No Required Components?"_s, kNoComponents.arg(u"task"_s), Answer::No);
    QVERIFY(RequiredComponentTypes(shop.Save(entry)).isEmpty());
  }

  void RigTypesAreSomeButNotAll() {
    Library shop;
    TaskTypeEntry entry = LineCheck();
    entry.rigTypeSpecific = true;
    shop.prompts.ExpectBox(u"No rig types checked"_s,
                           u"You must select one or more rig types or uncheck the\n"
                           "check box called 'Task is rig specific'"_s);
    shop.Refuses(entry);
    entry.rigTypes = {1, 2, 3, 4};
    shop.prompts.ExpectBox(u"All rig types checked"_s,
                           u"You have selected every rig type.  If you want to\n"
                           "have a task available for all rig types, it is best\n"
                           "to uncheck the check box called 'Task is rig specific'"_s);
    shop.Refuses(entry);
    entry.rigTypes = {4};
    shop.Save(entry);
  }

  void AModelThatHasGoneLeavesTheTask() {
    Library shop;
    const int vigil = shop.loft.Add("tblModels", {{"Name", "Vigil"}, {"TypeID", kAad}});
    TaskTypeEntry entry = LineCheck();
    entry.modelID = vigil;
    int id = shop.Save(entry);
    QCOMPARE(TaskLibModelID(id), vigil);
    shop.loft.Run(u"delete * from tblModels where ID = %1"_s.arg(vigil));
    shop.prompts.ExpectBox(u"Done"_s, u"Task type updated"_s);
    QCOMPARE(SaveTaskType(entry, id), EntrySaved::Saved);
    QCOMPARE(TaskLibModelID(id), 0);
  }

  void AnEntryThatHasGoneMeanwhileIsTold() {
    Library shop;
    shop.prompts.ExpectBox(kProgramTitle, u"You shouldn't be here"_s);
    shop.Refuses(LineCheck(), 77);
    int gone = 77;
    shop.prompts.ExpectBox(kProgramTitle, u"You shouldn't be here"_s);
    QCOMPARE(SaveEventType({.name = u"Ride"_s, .componentTypes = {kAad}}, gone), EntrySaved::Refused);
  }

  void ASaveThatFailsHalfwayIsToldAndNoneToTheCaller() {
    Library shop;
    TaskTypeEntry entry = LineCheck();
    entry.parts = {shop.AddPart("Loop", 3)};
    {
      Bracket bracket;
      OpenDatabase().ChangeSchema(
          "CREATE TRIGGER Full BEFORE INSERT ON tblTaskLibParts BEGIN SELECT RAISE(ABORT, 'No room'); END");
    }
    shop.prompts.ExpectBox(u"Sub UpdateTaskType"_s,
                           u"The field is too small to accept the amount of data you attempted to add.  "
                           "Try inserting or pasting less data."_s);
    int id = 0;
    QCOMPARE(SaveTaskType(entry, id), EntrySaved::Refused);
    QCOMPARE(id, 0);
  }

  void AnEventIsSavedWithoutPriceAndInterval() {
    Library shop;
    EventTypeEntry entry{.name = u" Reserve ride "_s, .allowMultiple = true};
    int id = 0;
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.ExpectBox(u"No name"_s, u"Event must have a name"_s);
    QCOMPARE(SaveEventType({}, id), EntrySaved::Refused);
    shop.prompts.Expect(u"No Required Components?"_s, kNoComponents.arg(u"event"_s), Answer::Yes);
    QCOMPARE(SaveEventType(entry, id), EntrySaved::Refused);
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
    entry.componentTypes = {kReserveCanopy};
    shop.prompts.ExpectBox(u"Done"_s, u"Event saved to event library"_s);
    QCOMPARE(SaveEventType(entry, id), EntrySaved::Saved);
    QCOMPARE(shop.Entry(id), QStringList(u"Reserve ride|0|0|null|-1|0|0|0|-1|null"_s));
    QCOMPARE(RequiredComponentTypes(id), QList<int>{kReserveCanopy});
    shop.loft.Run(u"update tblTaskLib set LogBook = true where ID = %1"_s.arg(id));
    EventTypeEntry loaded;
    QVERIFY(LoadEventType(id, loaded));
    QVERIFY(loaded.allowMultiple);
    loaded.componentTypes = {kContainer, kReserveCanopy};
    shop.prompts.ExpectBox(u"Done"_s, u"Event library updated"_s);
    QCOMPARE(SaveEventType(loaded, id), EntrySaved::Saved);
    QVERIFY(TaskLibLogBook(id));
    QCOMPARE(RequiredComponentTypes(id), QList<int>({kContainer, kReserveCanopy}));
    QVERIFY(!LoadEventType(id + 1, loaded));
  }

  void AFixedTaskStays() {
    Library shop;
    const QStringList before = shop.loft.Snapshot();
    for (int id : {RepackTaskLibID, InstallTaskLibID, RemoveTaskLibID}) {
      const QString text = TaskLibName(id) + u" is a fixed task.  It cannot be deleted"_s;
      shop.prompts.ExpectBox(kProgramTitle, text);
      QVERIFY(!DeleteTaskTypeOfForm(id));
      shop.prompts.ExpectBox(kProgramTitle, text);
      QVERIFY(!DeleteTaskTypeFromList(id, false));
    }
    shop.prompts.ExpectBox(u"Nothing selected"_s, u"Please select a task to delete"_s);
    QVERIFY(!DeleteTaskTypeFromList(0, false));
    shop.prompts.ExpectBox(u"Nothing selected"_s, u"Please select an event to delete"_s);
    QVERIFY(!DeleteTaskTypeFromList(0, true));
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void AnUnusedTaskIsAskedForOnce() {
    Library shop;
    const QStringList before = shop.loft.Snapshot();
    const int id = shop.Save(LineCheck());
    const auto fromList = [&](Answer answer) {
      shop.prompts.Expect(kProgramTitle, u"Are you sure you want to delete Line check?"_s, answer);
      return DeleteTaskTypeFromList(id, false);
    };
    QVERIFY(!fromList(Answer::No));
    QVERIFY(TaskLibExists(id));
    shop.prompts.Expect(u"Delete Line check?"_s, u"Are you sure you want to delete this task type?"_s, Answer::No);
    QVERIFY(!DeleteTaskTypeOfForm(id));
    QVERIFY(TaskLibExists(id));
    QVERIFY(fromList(Answer::Yes));
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void ATaskInUseTakesItsLinesAlong() {
    Library shop;
    const QStringList before = shop.loft.Snapshot();
    const QString question =
        u"There is 1 task that uses this task type. If you delete\nthis task type, you will also delete that task.\n"
        "(you can see this task by accessing Reports/Task Report from the main menu)\n"
        "Are you sure you want to delete this task type?"_s;
    TaskTypeEntry entry = LineCheck();
    entry.parts = {shop.AddPart("Loop", 3)};
    const int id = shop.Save(entry);
    AddLibraryTask(shop.Context(), id, Day(3, 2, 2026), true);
    const int line = LinesOfJob(shop.job).first();
    QVERIFY(ToggleComplete(line, Day(3, 2, 2026), true));
    QCOMPARE(shop.Schedules().size(), 1);
    shop.prompts.Expect(u"Delete Line check?"_s, u"Are you sure you want to delete this task type?"_s, Answer::Yes);
    shop.prompts.Expect(u"Delete Line check?"_s, question, Answer::No);
    QVERIFY(!DeleteTaskTypeOfForm(id));
    QVERIFY(TaskLibExists(id));
    shop.prompts.Expect(u"Delete Line check?"_s, question, Answer::Yes);
    QVERIFY(DeleteTaskTypeFromList(id, false));
    // The part's line stays; it was made from the part.
    QCOMPARE(shop.loft.TouchedSince(before),
             QStringList({u"+tblModels|%1"_s.arg(entry.parts.first()), u"+tblTasks|%1"_s.arg(line + 1)}));
  }

  void ManyLinesAreCounted() {
    Library shop;
    const int ride = shop.AddEvent("Reserve ride");
    QCOMPARE(TaskTypeUsage(ride), QString());
    for (int times = 0; times < 2; ++times) {
      int line = 0;
      AddTaskToJob(shop.Context(), ride, false, Day(3, 2, 2026), line);
    }
    const QString question =
        u"There are 2 events that use this event type. \nIf you delete this event type, you will also delete \n"
        "those events.\n(you can see these events by accessing Reports/Task Report from the main menu)\n"
        "Are you sure you want to delete this event type?"_s;
    QCOMPARE(TaskTypeUsage(ride), question);
    shop.prompts.Expect(u"Delete Reserve ride?"_s, question, Answer::Yes);
    QVERIFY(DeleteTaskTypeFromList(ride, true));
    QVERIFY(LinesOfJob(shop.job).isEmpty());
    shop.AddTask(shop.aadCheck);
    shop.AddSchedule(shop.rig, shop.aadCheck, Day(8, 1, 2026), 0, shop.aad);
    shop.AddSchedule(shop.rig, RepackTaskLibID, Day(8, 2, 2026), 0, 0);
    const CountingForm job(u"frmJob"_s, {u"tblTasks"_s, u"tblSchedules"_s});
    bool cancelled = true;
    DeleteTaskType(shop.aadCheck, false, cancelled);
    QVERIFY(!cancelled && !TaskLibExists(shop.aadCheck));
    QVERIFY(LinesOfJob(shop.job).isEmpty());
    QCOMPARE(shop.loft.Rows(u"select TaskLibID from tblSchedules"_s), QStringList(u"1"_s));
    QCOMPARE(job.told, 1);
  }

  void APartsNameIsUsedOnce() {
    Library shop;
    const int loop = shop.AddPart("Loop", 3);
    shop.prompts.ExpectBox(u"Duplicate Name"_s, u"There is already a misc part called loop \nCost is 3.00"_s);
    QCOMPARE(AddLibraryPart(u"loop "_s, Money::Whole(9)), 0);
    const int toggle = AddLibraryPart(u"Ann's toggle"_s, Money::Whole(9));
    QCOMPARE(
        shop.loft.Rows(u"select Name, Price, TypeID, ManfID, ServiceLife from tblModels where ID = %1"_s.arg(toggle)),
        QStringList(u"Ann's toggle|90000|7|0|0"_s));
    QVERIFY(toggle != loop);
  }

  void ADeletedPartIsDroppedByTheNextUse() {
    Library shop;
    TaskTypeEntry entry = LineCheck();
    entry.parts = {shop.AddPart("Loop", 3)};
    const int id = shop.Save(entry);
    shop.prompts.ExpectBox(u"Nothing selected"_s, u"You must select a part to delete"_s);
    QVERIFY(!DeleteLibraryPart(0));
    const QString used =
        u"There is 1 library task which uses the select misc part\nDo you want to delete this part anyway?"_s;
    shop.prompts.Expect(kProgramTitle, used, Answer::No);
    QVERIFY(!DeleteLibraryPart(entry.parts.first()));
    shop.prompts.Expect(kProgramTitle, used, Answer::Yes);
    shop.prompts.Expect(u"Are you sure?"_s, u"Delete Loop?"_s, Answer::No);
    QVERIFY(!DeleteLibraryPart(entry.parts.first()));
    entry.name = u"Other check"_s;
    shop.Save(entry);
    shop.prompts.Expect(
        kProgramTitle,
        u"There are 2 library tasks which use the select misc part\nDo you want to delete this part anyway?"_s,
        Answer::Yes);
    shop.prompts.Expect(u"Are you sure?"_s, u"Delete Loop?"_s, Answer::Yes);
    QVERIFY(DeleteLibraryPart(entry.parts.first()));
    QCOMPARE(shop.Ties("tblTaskLibParts", "PartID", id), QStringList(QString::number(entry.parts.first())));
    shop.AddTask(id);
    QCOMPARE(LinesOfJob(shop.job).size(), 1);
    QCOMPARE(shop.Ties("tblTaskLibParts", "PartID", id), QStringList());
  }

  void TheInstallationHasAPriceOfItsOwn() {
    Library shop;
    const QStringList before = shop.loft.Snapshot();
    SaveInstallRemovePrice(InstallTaskLibID, Money());
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
    shop.prompts.ExpectBox(kProgramTitle, u"Price updated"_s);
    SaveInstallRemovePrice(InstallTaskLibID, Money::Whole(15));
    QCOMPARE(TaskLibFlatRate(InstallTaskLibID), Money::Whole(15));
  }
};

LOFT_TEST_MAIN(TestLibrary)
#include "tst_library.moc"
