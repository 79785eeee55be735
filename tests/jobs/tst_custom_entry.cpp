#include <QtTest>

#include "jobs/custom_entry.h"
#include "jobs/library_entry.h"
#include "jobs/sample_job.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

struct Custom : SampleJob {
  int libraryID = -5;
  CustomRoad Road(const CustomEntry& entry, int onJob = 0) {
    return ChooseCustomRoad(entry, onJob == 0 ? job : onJob, libraryID);
  }
  QStringList Line(int id) const {
    return loft.Rows(
        u"select TaskName, FlatRate, LogBook, IsEvent, Status, DateTaskCompleted, TaskLibID, PartID, RiggerID "
        "from tblTasks where ID = %1"_s.arg(id));
  }
  QStringList Ties(int id) const {
    return loft.Rows(u"select CompID, Complete from tblTaskComponents where TaskID = %1 order by CompID"_s.arg(id));
  }
};

}  // namespace

class TestCustomEntry : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void GearThatTheJobLacksEndsIt() {
    Custom shop;
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.ExpectBox(u"Missing Components"_s,
                           u"The following components are required for this task:\n    Chest Reserve\n"
                           "    Passenger Harness\nThis task cannot be added to this job"_s);
    QCOMPARE(shop.Road({.name = u"Patch"_s, .componentTypes = {kAad, kChestReserve, kPassengerHarness}}),
             CustomRoad::None);
    shop.prompts.ExpectBox(u"Missing Components"_s,
                           u"The following components are required for this task:\n    Chest Reserve\n"
                           "This event cannot be added to this job"_s);
    QCOMPARE(shop.Road({.name = u"Ride"_s, .isEvent = true, .componentTypes = {kChestReserve}}), CustomRoad::None);
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void ANameOfTheLibraryOffersItsEntry() {
    Custom shop;
    const QString text =
        u"The custom task you entered (aad CHECK) is found in the task library.\nThe cost is $20.00\n"
        "Do you still want to add this task to the current job?"_s;
    shop.prompts.Expect(u"Custom task - aad CHECK"_s, text, Answer::No).WithButtons(Buttons::YesNo);
    QCOMPARE(shop.Road({.name = u"aad CHECK"_s}), CustomRoad::None);
    shop.prompts.Expect(u"Custom task - aad CHECK"_s, text, Answer::Yes);
    QCOMPARE(shop.Road({.name = u"aad CHECK"_s}), CustomRoad::Library);
    QCOMPARE(shop.libraryID, shop.aadCheck);
    shop.loft.Run(u"update tblTaskLib set FlatRate = 0 where ID = %1"_s.arg(shop.aadCheck));
    shop.prompts.Expect(u"Custom event - AAD check"_s,
                        u"The custom event you entered (AAD check) is found in the event library.\n"
                        "Do you still want to add this event to the current job?"_s,
                        Answer::Yes);
    QCOMPARE(shop.Road({.name = u"AAD check"_s, .isEvent = true}), CustomRoad::Library);
  }

  void ANewTaskIsOfferedToTheLibrary() {
    Custom shop;
    const QStringList before = shop.loft.Snapshot();
    const QString text = u"Would you like to add this task to the task library for future use?"_s;
    shop.prompts.Expect(u"New task: Patch"_s, text, Answer::Yes);
    QCOMPARE(shop.Road({.name = u"Patch"_s}), CustomRoad::NewTaskType);
    shop.prompts.Expect(u"New task: Patch"_s, text, Answer::No);
    QCOMPARE(shop.Road({.name = u"Patch"_s}), CustomRoad::OneOff);
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void ANewEventGoesToTheLibraryAtOnce() {
    for (const Answer multiple : {Answer::Yes, Answer::No}) {
      Custom shop;
      shop.prompts.Expect(u"New event: Olaf's ride"_s,
                          u"Would you like to add this event to the event library for future use?"_s, Answer::Yes);
      shop.prompts.Expect(u"Multiple events"_s, u"Can this event be used multiple times\nin the same job?"_s, multiple);
      shop.prompts.ExpectBox(u"Event saved to library"_s, u"Olaf's ride has been added to the event library"_s);
      QCOMPARE(shop.Road({.name = u"Olaf's ride"_s, .isEvent = true, .componentTypes = {kReserveCanopy, kAad}}),
               CustomRoad::Library);
      QCOMPARE(shop.loft.Rows(u"select Name, FlatRate, HourlyRate, IsEvent, AllowMultiple, ModelID, IntervalNumber, "
                              "IntervalType from tblTaskLib where ID = %1"_s.arg(shop.libraryID)),
               QStringList(u"Olaf's ride|0|0|-1|%1|0|0|0"_s.arg(multiple == Answer::Yes ? -1 : 0)));
      QCOMPARE(RequiredComponentTypes(shop.libraryID), QList<int>({kReserveCanopy, kAad}));
    }
  }

  void AnEventWithoutComponentsIsOnTheJobAlone() {
    Custom shop;
    shop.prompts.Expect(u"New event: Wet"_s, u"Would you like to add this event to the event library for future use?"_s,
                        Answer::Yes);
    shop.prompts.Expect(u"Multiple events"_s, u"Can this event be used multiple times\nin the same job?"_s, Answer::No);
    shop.prompts.ExpectBox(u"Event saved to library"_s, u"Wet has been added to the event library"_s);
    QCOMPARE(shop.Road({.name = u"Wet"_s, .isEvent = true}), CustomRoad::Library);
    const int line = shop.AddTask(shop.libraryID);
    QVERIFY(line != 0);
    QCOMPARE(shop.Ties(line), QStringList());
  }

  void AOneOffLineIsTiedToTheTickedGear() {
    Custom shop;
    const int patch = AddOneOffLine(
        shop.Context(),
        {.name = u"Patch"_s, .price = Money::Whole(35), .logBook = true, .componentTypes = {kMainCanopy, kAad}},
        Day(3, 2, 2026));
    QCOMPARE(shop.Line(patch), QStringList(u"Patch|350000|-1|0|0|0|0|0|%1"_s.arg(shop.rigger)));
    QCOMPARE(shop.Ties(patch), QStringList({u"%1|0"_s.arg(shop.mainCanopy), u"%1|0"_s.arg(shop.aad)}));
    const int ride =
        AddOneOffLine(shop.Context(), {.name = u"Ride"_s, .isEvent = true, .componentTypes = {kAad}}, Day(3, 2, 2026));
    QCOMPARE(shop.Status(ride), SampleJob::State(-1, Day(3, 2, 2026)));
    QCOMPARE(shop.Ties(ride), QStringList(u"%1|-1"_s.arg(shop.aad)));
  }

  void WithoutARigTheFirstTickedTypeCounts() {
    Custom shop;
    const int loose = shop.AddJob("Loose", 0, shop.mainCanopy);
    const int line = AddOneOffLine(JobContextOf(loose),
                                   {.name = u"Patch"_s, .componentTypes = {kMainCanopy, kMainCanopy}}, Day(3, 2, 2026));
    QCOMPARE(shop.Ties(line), QStringList(u"%1|0"_s.arg(shop.mainCanopy)));
    QCOMPARE(shop.Ties(AddOneOffLine(JobContextOf(loose), {.name = u"Wash"_s}, Day(3, 2, 2026))), QStringList());
  }
};

LOFT_TEST_MAIN(TestCustomEntry)
#include "tst_custom_entry.moc"
