#include <QTest>

#include "gear/components.h"
#include "gear/rigs.h"
#include "history/history_entries.h"
#include "history/sample_history.h"
#include "schedule/schedule.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

struct Entries : SampleHistory {
  HistoryView Rig() const { return HistoryViewOfRig(rig); }
  HistoryView Aad() const { return HistoryViewOfComponent(aad); }
  HistoryLine LineOf(int taskID, int component) const {
    for (const HistoryLine& line : LoadHx2({component}, false))
      if (line.taskID == taskID) return line;
    return {};
  }
  /// Refused with this box, and nothing written.
  void Refuses(const HistoryView& view, int entry, const QString& title, const QString& text,
               const QString& date = u"3/10/2026"_s) {
    const QStringList before = loft.Snapshot();
    prompts.ExpectBox(title, text);
    QVERIFY(!AddHistoryEntry(view, entry, date));
    prompts.Finish();
    QCOMPARE(loft.ChangesSince(before), QStringList());
  }
  /// The line written last: JobID|CustomerID|RiggerID|FlatRate|...
  QString LastLine() const {
    return loft
        .Rows(
            u"select JobID, CustomerID, RiggerID, FlatRate, HourlyRate, NumHours, '<' || Comments || '>', "
            "DateTaskCompleted, DateTaskStarted, TaskLibID, LogBook, Status, TaskName, SystemID, PartID, Tax, "
            "LocationID from tblTasks order by ID desc limit 1"_s)
        .value(0);
  }
  QStringList LastTouched() const {
    return loft.Rows(
        u"select CompID, Complete from tblTaskComponents where TaskID = (select max(ID) from tblTasks) order by CompID"_s);
  }
  int LastID() const { return loft.Rows(u"select max(ID) from tblTasks"_s).value(0).toInt(); }
};

}  // namespace

class TestHistoryEntries : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void WhatIsViewed() {
    Entries shop;
    shop.loft.Run(u"update tblMisc set LastSystemID = %1"_s.arg(shop.rig));
    const HistoryView last = HistoryViewOfRig(0);
    QCOMPARE(last.rigID, shop.rig);
    QCOMPARE(last.personID, shop.owner);
    QVERIFY(last.mode == HistoryMode::Rig);
    const HistoryView byType = HistoryViewOfRig(shop.rig, kAad);
    QVERIFY(byType.mode == HistoryMode::RigByType);
    QCOMPARE(byType.componentID, shop.aad);
    SetComponentOwner(shop.aad, shop.rigger);
    HistoryView view = HistoryViewOfComponent(shop.aad);
    QVERIFY(view.mode == HistoryMode::Component);
    QCOMPARE(view.personID, shop.rigger);
    QCOMPARE(view.rigID, shop.rig);
    QCOMPARE(view.componentTypeID, static_cast<int>(kAad));
    SetComponentRig(shop.aad, 9999);  // a rig that has gone
    QCOMPARE(HistoryViewOfComponent(shop.aad).rigID, 0);
  }

  void ARepackIsAddedToTheRig() {
    Entries shop;
    HistoryView view = shop.Rig();
    view.componentID = shop.aad;  // a line was chosen before
    QVERIFY(AddHistoryEntry(view, RepackTaskLibID, u"3\\10\\2026"_s));
    QCOMPARE(shop.LastLine(), u"0|%1|0|0|0|0.0|< >|%2|%2|1|0|-1|Inspect and repack reserve|%3|0|0|0"_s.arg(shop.owner)
                                  .arg(Day(3, 10, 2026).Days())
                                  .arg(shop.rig));
    QCOMPARE(shop.LastTouched(), QStringList({u"%1|-1"_s.arg(shop.container), u"%1|-1"_s.arg(shop.reserve)}));
    QCOMPARE(shop.Schedules(), QStringList{SampleRig::ScheduleRow(shop.rig, RepackTaskLibID, Day(3, 10, 2026),
                                                                  Day(3, 10, 2026) + 180, shop.LastID(), 0)});
  }

  void AnEarlierEntryLeavesTheLaterDueDate() {
    Entries shop;
    QVERIFY(AddHistoryEntry(shop.Rig(), RepackTaskLibID, u"3/10/2026"_s));
    const QStringList due = shop.Schedules();
    QVERIFY(AddHistoryEntry(shop.Rig(), RepackTaskLibID, u"9/1/2025"_s));
    QCOMPARE(shop.Schedules().size(), 1);
    QCOMPARE(shop.Schedules().value(0).section(u'|', 2), due.value(0).section(u'|', 2));
  }

  void ACheckIsAddedToTheRigAndToTheComponent() {
    Entries shop;
    QVERIFY(AddHistoryEntry(shop.Rig(), shop.aadCheck, u"1/5/2026"_s));
    QCOMPARE(shop.LastTouched(), QStringList{u"%1|-1"_s.arg(shop.aad)});
    QCOMPARE(shop.Schedules(), QStringList{SampleRig::ScheduleRow(shop.rig, shop.aadCheck, Day(1, 5, 2026),
                                                                  Day(7, 5, 2026), shop.LastID(), shop.aad)});
    QVERIFY(AddHistoryEntry(shop.Aad(), shop.aadCheck, u"2/5/2026"_s));
    QCOMPARE(shop.LastTouched(), QStringList{u"%1|-1"_s.arg(shop.aad)});
    QCOMPARE(shop.Schedules(), QStringList{SampleRig::ScheduleRow(shop.rig, shop.aadCheck, Day(2, 5, 2026),
                                                                  Day(8, 5, 2026), shop.LastID(), shop.aad)});
  }

  void AComponentInNoRig() {
    Entries shop;
    shop.AddSchedule(shop.rig, RepackTaskLibID, Day(5, 1, 2026), 0, 0);
    const int spare = shop.AddComponent("Vigil", kAad, 0);
    QVERIFY(AddHistoryEntry(HistoryViewOfComponent(spare), shop.aadCheck, u"2/5/2026"_s));
    QCOMPARE(shop.LastLine().section(u'|', 1, 1), u"0"_s);
    QCOMPARE(shop.LastTouched(), QStringList{u"%1|-1"_s.arg(spare)});
    QCOMPARE(shop.Schedules().value(1),
             SampleRig::ScheduleRow(0, shop.aadCheck, Day(2, 5, 2026), Day(8, 5, 2026), shop.LastID(), spare));
  }

  void AnEntryThatRequiresNothing() {
    Entries shop;
    const int wash = shop.AddEntry("Wash", 0, 0);
    QVERIFY(AddHistoryEntry(shop.Rig(), wash, u"3/1/2026"_s));
    QCOMPARE(shop.LastTouched(), QStringList());
    QVERIFY(AddHistoryEntry(shop.Aad(), wash, u"3/1/2026"_s));
    QCOMPARE(shop.LastTouched(), QStringList{u"%1|-1"_s.arg(shop.aad)});
    QCOMPARE(shop.Schedules(), QStringList());
  }

  void WithoutARigNoGearIsTouchedAndNoDueDateLost() {
    Entries shop;
    const int pair = shop.AddEntry("Pair check", 90, 1, {kContainer, kMainCanopy});
    shop.AddSchedule(shop.rig, pair, Day(5, 1, 2026), 0, 0);
    shop.AddComponent("Loose", kMainCanopy, 0);
    shop.AddComponent("Loose too", kContainer, 0);
    const QStringList due = shop.Schedules();
    for (const int entry : {pair, shop.aadCheck}) {  // an AAD is nowhere loose
      QVERIFY(AddHistoryEntry({}, entry, u"3/1/2026"_s));
      QCOMPARE(shop.LastTouched(), QStringList());
      QCOMPARE(shop.Schedules(), due);
    }
  }

  void GearIsOnlyInstalledAndRemovedDuringAJob() {
    Entries shop;
    const auto text = [](const QString& name) {
      return u"The task '%1' cannot be added to a rig's history. \n\nThis task can only be added during a job"_s.arg(
          name);
    };
    shop.Refuses(shop.Rig(), InstallTaskLibID, kProgramTitle, text(u"Install component"_s));
    shop.Refuses(shop.Aad(), RemoveTaskLibID, kProgramTitle, text(u"Remove component"_s));
  }

  void ABadDateOrNoEntryAddsNothing() {
    Entries shop;
    shop.Refuses(shop.Rig(), RepackTaskLibID, u"Function ParseDate"_s, u"Type mismatch"_s, u"soon"_s);
    const QStringList before = shop.loft.Snapshot();
    QVERIFY(!AddHistoryEntry(shop.Rig(), 0, u"3/1/2026"_s));
    QVERIFY(!AddHistoryEntry(shop.Rig(), -1, u"3/1/2026"_s));
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void TheRigMustHaveWhatAnEntryRequires() {
    Entries shop;
    SetComponentRig(shop.aad, 0);
    shop.Refuses(shop.Rig(), shop.aadCheck, u"Can't add selected task"_s,
                 u"The task 'AAD check' requires\nan aad\n\nThis system doesn't have an aad\n\n"
                 "This task can't be added to this rig's history."_s);
    SetComponentRig(shop.reserve, 0);
    const int ride = shop.AddEvent("Ride");
    shop.Refuses(shop.Rig(), ride, u"Can't add selected event"_s,
                 u"The event 'Ride' requires\na reserve canopy\n\nThis system doesn't have a reserve canopy\n\n"
                 "This event can't be added to this rig's history."_s);
  }

  void AModelSpecificEntryNeedsItsModel() {
    Entries shop;
    const int other = shop.loft.Add("tblModels", {{"Name", "Optimum"}, {"TypeID", kReserveCanopy}});
    const int recall = shop.AddEntry("Recall", 0, 0, {kReserveCanopy});
    shop.loft.Run(u"update tblTaskLib set ModelID = %1 where ID = %2"_s.arg(other).arg(recall));
    shop.Refuses(shop.Rig(), recall, u"Can't add task"_s,
                 u"This task is specific for an Optimum\nbut the selected rig doesn't have an Optimum"_s);
    shop.Refuses(HistoryViewOfComponent(shop.reserve), recall, kProgramTitle,
                 u"This task is model specific\nIt can only be added to an Optimum"_s);
    SetComponentModel(shop.reserve, other);
    QVERIFY(AddHistoryEntry(shop.Rig(), recall, u"3/1/2026"_s));
    QVERIFY(AddHistoryEntry(HistoryViewOfComponent(shop.reserve), recall, u"3/1/2026"_s));
  }

  void AComponentTakesEntriesOfItsTypeAlone() {
    Entries shop;
    shop.Refuses(HistoryViewOfComponent(shop.mainCanopy), shop.aadCheck, kProgramTitle,
                 u"You are viewing the history of a main canopy\n\nThe selected task or event requires an aad"_s);
    shop.Refuses(HistoryViewOfComponent(shop.reserve), RepackTaskLibID, kProgramTitle,
                 u"You are viewing the history of a single component.   \n"
                 "In order to record a reserve repack, you must be\nviewing a rig's history."_s);
    HistoryView unknown = HistoryViewOfComponent(shop.aad);
    unknown.componentTypeID = 0;
    QVERIFY(AddHistoryEntry(unknown, shop.aadCheck, u"3/1/2026"_s));
    shop.Refuses(HistoryViewOfRig(shop.rig, kMainCanopy), shop.aadCheck, kProgramTitle,
                 u"You are viewing the history of a main canopy\n\nThe selected task or event requires an aad"_s);
    QVERIFY(AddHistoryEntry(HistoryViewOfRig(shop.rig, kAad), shop.aadCheck, u"3/2/2026"_s));
    QCOMPARE(shop.LastTouched(), QStringList{u"%1|-1"_s.arg(shop.aad)});
  }

  void DeletingGoesBackToTheEntryBefore() {
    Entries shop;
    const int first = shop.AddRepackWork(Day(9, 1, 2025));
    const int second = shop.AddRepackWork(Day(3, 1, 2026));
    UpdateSchedule(RepackTaskLibID, shop.rig, 0);
    const HistoryLine line = shop.LineOf(second, shop.reserve);
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.Expect(u"Raven - Repack *"_s, u"Are you sure you want to delete this event?"_s, Answer::No)
        .WithPreset(Answer::No);
    QVERIFY(!DeleteHistoryEntry(line));
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());

    shop.prompts.Expect(u"Raven - Repack *"_s, u"Are you sure you want to delete this event?"_s, Answer::Yes);
    QVERIFY(DeleteHistoryEntry(line));
    QCOMPARE(shop.loft.Rows(u"select ID from tblTasks where TaskLibID = 1"_s), QStringList{QString::number(first)});
    QCOMPARE(shop.loft.Rows(u"select TaskID from tblTaskComponents where TaskID = %1"_s.arg(second)), QStringList());
    QCOMPARE(shop.Schedules(), QStringList{SampleRig::ScheduleRow(shop.rig, RepackTaskLibID, Day(9, 1, 2025),
                                                                  Day(9, 1, 2025) + 180, first, 0)});

    shop.prompts.Expect(u"Javelin - Repack *"_s, u"Are you sure you want to delete this event?"_s, Answer::Yes);
    QVERIFY(DeleteHistoryEntry(shop.LineOf(first, shop.container)));
    QCOMPARE(shop.Schedules(), QStringList());
  }

  void DeletingTouchesNothingElse() {
    Entries shop;
    const int kept = shop.AddRepackWork(Day(3, 1, 2026));
    UpdateSchedule(RepackTaskLibID, shop.rig, 0);
    const QStringList before = shop.loft.Snapshot();
    QVERIFY(AddHistoryEntry(shop.Rig(), shop.aadCheck, u"3/2/2026"_s));
    const int check = shop.LastID();
    QVERIFY(check != kept);
    shop.prompts.Expect(u"Cypres - AAD check *"_s, u"Are you sure you want to delete this event?"_s, Answer::Yes);
    QVERIFY(DeleteHistoryEntry(shop.LineOf(check, shop.aad)));
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void DeletingTheCheckOfAComponentGoesBackToTheOneBefore() {
    Entries shop;
    const int first = shop.AddWork({.entry = shop.aadCheck, .onRig = shop.rig, .done = Day(1, 1, 2025)}, {shop.aad});
    const int second = shop.AddWork({.entry = shop.aadCheck, .onRig = shop.rig, .done = Day(7, 1, 2025)}, {shop.aad});
    UpdateSchedule(shop.aadCheck, shop.rig, shop.aad);
    shop.prompts.Expect(u"Cypres - Work *"_s, u"Are you sure you want to delete this event?"_s, Answer::Yes);
    QVERIFY(DeleteHistoryEntry(shop.LineOf(second, shop.aad)));
    QCOMPARE(shop.Schedules(), QStringList{SampleRig::ScheduleRow(shop.rig, shop.aadCheck, Day(1, 1, 2025),
                                                                  Day(7, 1, 2025), first, shop.aad)});
  }

  void DeletingWorkOnAPairOfWhichOneHasMovedOn() {
    Entries shop;
    const int pair = shop.AddEntry("Pair check", 90, 1, {kContainer, kMainCanopy});
    const QList<int> both{shop.container, shop.mainCanopy};
    const int first = shop.AddWork({.entry = pair, .onRig = shop.rig, .done = Day(1, 1, 2025)}, both);
    const int second = shop.AddWork({.entry = pair, .onRig = shop.rig, .done = Day(7, 1, 2025)}, both);
    UpdateSchedule(pair, shop.rig, 0);
    SetComponentRig(shop.mainCanopy, 0);
    shop.prompts.Expect(u"Sabre - Work *"_s, u"Are you sure you want to delete this event?"_s, Answer::Yes);
    QVERIFY(DeleteHistoryEntry(shop.LineOf(second, shop.mainCanopy)));
    QCOMPARE(shop.Schedules(),
             QStringList{SampleRig::ScheduleRow(shop.rig, pair, Day(1, 1, 2025), Day(4, 1, 2025), first, 0)});
  }

  void DeletingTheCheckOfAComponentThatHasMovedOn() {
    Entries shop;
    const int first = shop.AddWork({.entry = shop.aadCheck, .onRig = shop.rig, .done = Day(1, 1, 2025)}, {shop.aad});
    const int second = shop.AddWork({.entry = shop.aadCheck, .onRig = shop.rig, .done = Day(7, 1, 2025)}, {shop.aad});
    const int other = shop.AddComponent("Vigil", kAad);  // now in its place, and checked there
    const int latest = shop.AddWork({.entry = shop.aadCheck, .onRig = shop.rig, .done = Day(2, 1, 2026)}, {other});
    SetComponentRig(shop.aad, 0);
    shop.AddSchedule(0, shop.aadCheck, Day(1, 1, 2026), second, shop.aad);
    shop.AddSchedule(shop.rig, shop.aadCheck, Day(8, 1, 2026), latest, other);
    const QString ofRig = shop.Schedules().value(1);
    shop.prompts.Expect(u"Cypres - Work *"_s, u"Are you sure you want to delete this event?"_s, Answer::Yes);
    QVERIFY(DeleteHistoryEntry(shop.LineOf(second, shop.aad)));
    QCOMPARE(shop.Schedules(), QStringList({ofRig, SampleRig::ScheduleRow(0, shop.aadCheck, Day(1, 1, 2025),
                                                                          Day(7, 1, 2025), first, shop.aad)}));
  }

  void DeletingOnARigThatHasGone() {
    Entries shop;
    shop.AddRepackWork(Day(9, 1, 2025));
    const int repack = shop.AddRepackWork(Day(3, 1, 2026));
    UpdateSchedule(RepackTaskLibID, shop.rig, 0);
    DeleteRigRow(shop.rig);
    shop.prompts.Expect(u"Raven - Repack *"_s, u"Are you sure you want to delete this event?"_s, Answer::Yes);
    QVERIFY(DeleteHistoryEntry(shop.LineOf(repack, shop.reserve)));
    QCOMPARE(shop.Schedules(), QStringList());
  }

  void NamesWithQuotes() {
    Entries shop;
    const int entry = shop.AddEntry("O'Brien's check", 0, 0, {kAad});
    QVERIFY(AddHistoryEntry(shop.Rig(), entry, u"3/1/2026"_s));
    QCOMPARE(shop.LastLine().section(u'|', 12, 12), u"O'Brien's check"_s);
    shop.prompts.Expect(u"Cypres - O'Brien's check *"_s, u"Are you sure you want to delete this event?"_s, Answer::Yes);
    QVERIFY(DeleteHistoryEntry(shop.LineOf(shop.LastID(), shop.aad)));
    QCOMPARE(shop.loft.Rows(u"select ID from tblTasks"_s), QStringList());
  }

  void ADifferentOwnerIsTold() {
    Entries shop;
    TellDifferentOwner(shop.job, shop.owner);
    shop.prompts.ExpectBox(u"Different Owner"_s,
                           u"Please note:\n\nThis component is currently owned by Rita Rigger\n"
                           "but the component was owned by Olaf Owner\nwhen the job was performed."_s);
    TellDifferentOwner(shop.job, shop.rigger);
  }
};

LOFT_TEST_MAIN(TestHistoryEntries)
#include "tst_history_entries.moc"
