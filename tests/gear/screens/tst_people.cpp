#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>

#include "core/widgets/form.h"
#include "core/widgets/list.h"
#include "gear/people.h"
#include "gear/person_names.h"
#include "gear/person_record.h"
#include "gear/rigs.h"
#include "gear/screens.h"
#include "support/fixed_clock.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

namespace {

int Named(const QString& name) {
  int id = 0;
  AddPersonByName(name, id);
  return id;
}

bool IsEnabled(Form& form, const QString& button) { return Control<QPushButton>(form, button).isEnabled(); }

/// Lets what waits for the screen to be there open.
void Wait() { QTest::qWait(0); }

}  // namespace

class TestPeopleScreens : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void ShowsThePersonWithRigsAndWhatIsDue() {
    const FixedClock clock(2026, 3, 2);
    ThrowAwayLoft loft;
    const int ann = InsertPerson({u"Sky Club"_s, u"Jones"_s, u"Ann"_s, u"951-555-0100"_s, u"951-555-0101"_s, u""_s,
                                  u"ann@skyclub.example"_s, u""_s, u"12 Drop Zone Road"_s, u""_s, u"Perris"_s, u"CA"_s,
                                  u"92570"_s, u"USA"_s, u"Wants her reserve checked twice."_s, true});
    Named(u"Bob Smith"_s);
    const int rig = CreateRig(ann, 1, u"Red"_s);
    loft.Add(u"tblSchedules"_s, {{u"rigID"_s, rig}, {u"DateDue"_s, Date::FromParts(2026, 3, 14)}});
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmPeople"_s, [&](Form& form) {
      QCOMPARE(form.windowTitle(), u"Customers"_s);
      QCOMPARE(TextOf(form, u"cmdPrev"_s), u"<---   Previous"_s);
      QCOMPARE(TextOf(form, u"cmdNext"_s), u"Next     --->"_s);
      QCOMPARE(TextOf(form, u"lblNoPhoto"_s), u"No customer photo"_s);
      QCOMPARE(TextOf(form, u"lblName"_s), u"Ann Jones"_s);
      QCOMPARE(TextOf(form, u"lblOrgName"_s), u"Sky Club"_s);
      QCOMPARE(TextOf(form, u"lblZip"_s), u"92570"_s);
      QCOMPARE(TextOf(form, u"lblRigs"_s), u"1 rig"_s);
      QCOMPARE(TextOf(form, u"lblDue"_s), u"Has tasks due in 12 days"_s);
      QVERIFY(Control<QCheckBox>(form, u"chkRigger"_s).isChecked());
      QVERIFY(Control<QLabel>(form, u"lblNoPhoto"_s).isVisible());
      QVERIFY(IsEnabled(form, u"cmdRigs"_s));
      QVERIFY(!IsEnabled(form, u"cmdPrev"_s));
      QVERIFY(IsEnabled(form, u"cmdNext"_s));
      Picture(form, u"frmPeople"_s);
      Click(form, u"chkHidePhoto"_s);
      QVERIFY(!Control<QLabel>(form, u"lblNoPhoto"_s).isVisible());
      Click(form, u"cmdNext"_s);
      QCOMPARE(TextOf(form, u"lblName"_s), u"Bob Smith"_s);
      QCOMPARE(TextOf(form, u"lblRigs"_s), u"No rigs"_s);
      QCOMPARE(TextOf(form, u"lblDue"_s), u"(no scheduled tasks)"_s);
      QVERIFY(!Control<QLabel>(form, u"lblNoPhoto"_s).isVisible());
      QVERIFY(!IsEnabled(form, u"cmdRigs"_s));
      QVERIFY(!IsEnabled(form, u"cmdNext"_s));
      QVERIFY(IsEnabled(form, u"cmdPrev"_s));
      Click(form, u"cmdExit"_s);
    });
    const QStringList before = loft.Snapshot();
    QCOMPARE(ShowPeople(ann), 2);
    QCOMPARE(LastCustomerID(), 2);
    QCOMPARE(loft.ChangesSince(before).size(), 2);
  }

  void StartsWithTheFirstPerson() {
    ThrowAwayLoft loft;
    Named(u"Bob Smith"_s);
    const int ann = Named(u"Ann Jones"_s);
    ScreenScript screens;
    screens.WhenShown(u"frmPeople"_s, [&](Form& form) {
      QCOMPARE(Control<List>(form, u"lstPeople"_s).ItemText(0), u"Jones, Ann"_s);
      PressKey(form, Qt::Key_Escape);
    });
    QCOMPARE(ShowPeople(), ann);
  }

  void ATieInLastNamesLetsTheButtonFindItsEnd() {
    ThrowAwayLoft loft;
    const int zoe = Named(u"Zoe Jones"_s);
    const int ann = Named(u"Ann Jones"_s);
    ScreenScript screens;
    screens.WhenShown(u"frmPeople"_s, [&](Form& form) {
      QVERIFY(IsEnabled(form, u"cmdPrev"_s));
      Click(form, u"cmdPrev"_s);
      QCOMPARE(TextOf(form, u"lblName"_s), u"Ann Jones"_s);
      QVERIFY(!IsEnabled(form, u"cmdPrev"_s));
      QVERIFY(IsEnabled(form, u"cmdNext"_s));
      Click(form, u"cmdExit"_s);
    });
    Q_UNUSED(zoe);
    QCOMPARE(ShowPeople(ann), ann);
  }

  void AddsAPerson() {
    ThrowAwayLoft loft;
    Named(u"Ann Jones"_s);
    const QStringList before = loft.Snapshot();
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmPeople"_s, [&](Form& form) {
      Click(form, u"cmdAddNew"_s);
      QCOMPARE(TextOf(form, u"lblName"_s), u"Bob Smith"_s);
      QCOMPARE(Control<List>(form, u"lstPeople"_s).Count(), 2);
      QCOMPARE(Control<List>(form, u"lstPeople"_s).ListIndex(), 1);
      QVERIFY(IsEnabled(form, u"cmdExit"_s));
      Click(form, u"cmdExit"_s);
    });
    screens.WhenShown(u"frmPeopleEdit"_s, [&](Form& form) {
      QCOMPARE(form.windowTitle(), u"Add new customer"_s);
      prompts.ExpectBox(u"Ooops"_s, u"You must enter at least a first name, last name, or organization"_s);
      Click(form, u"cmdSave"_s);
      TypeInto(form, u"txtLast"_s, u"smith"_s);
      TypeInto(form, u"txtFirst"_s, u"bob"_s);
      TypeInto(form, u"txtState"_s, u"ca"_s);
      TypeInto(form, u"txtPhoneOther"_s, u"555"_s);
      PressKey(form, u"chkRigger"_s, Qt::Key_Space);
      Picture(form, u"frmPeopleEdit"_s);
      PressKey(form, u"txtLast"_s, Qt::Key_Return);
    });
    QCOMPARE(ShowPeople(), 2);
    QCOMPARE(loft.ChangesSince(before).filter(u"tblPeople"_s),
             QStringList(u"+tblPeople|2||Smith|Bob|||555||||||CA||| |-1|"_s));
  }

  void ACancelledAddChangesNothing() {
    ThrowAwayLoft loft;
    const int ann = Named(u"Ann Jones"_s);
    SetLastCustomerID(ann);
    const QStringList before = loft.Snapshot();
    ScreenScript screens;
    screens.WhenShown(u"frmPeople"_s, [&](Form& form) {
      ChooseMenu(form, {u"Menu"_s, u"Add New Customer"_s});
      QCOMPARE(TextOf(form, u"lblName"_s), u"Ann Jones"_s);
      ChooseMenu(form, {u"Exit"_s});
    });
    screens.WhenShown(u"frmPeopleEdit"_s, [](Form& form) {
      TypeInto(form, u"txtLast"_s, u"smith"_s);
      PressKey(form, Qt::Key_Escape);
    });
    QCOMPARE(ShowPeople(ann), ann);
    QCOMPARE(loft.ChangesSince(before), QStringList());
  }

  void EditsAPersonWithoutAskingAboutTheName() {
    ThrowAwayLoft loft;
    Named(u"Ann Jones"_s);
    const int bob = Named(u"Bob Smith"_s);
    SetLastCustomerID(bob);
    const QStringList before = loft.Snapshot();
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmPeople"_s, [&](Form& form) {
      Click(form, u"cmdEdit"_s);
      QCOMPARE(TextOf(form, u"lblName"_s), u"Ann Jones"_s);
      Click(form, u"cmdExit"_s);
    });
    screens.WhenShown(u"frmPeopleEdit"_s, [](Form& form) {
      QCOMPARE(TextOf(form, u"txtFirst"_s), u"Bob"_s);
      QCOMPARE(TextOf(form, u"txtComment"_s), QString());
      TypeInto(form, u"txtLast"_s, u"jones"_s);
      TypeInto(form, u"txtFirst"_s, u"ann"_s);
      Click(form, u"cmdSave"_s);
    });
    ShowPeople(bob);
    QCOMPARE(loft.ChangesSince(before),
             QStringList({u"-tblPeople|2||Smith|Bob|||||||||||| |0|"_s, u"+tblPeople|2||Jones|Ann|||||||||||| |0|"_s}));
  }

  void TheRiggerBoxWritesAtOnce() {
    ThrowAwayLoft loft;
    const int ann = Named(u"Ann Jones"_s);
    const int bob = Named(u"Bob Smith"_s);
    SetRiggerFlag(bob, true);
    ScreenScript screens;
    screens.WhenShown(u"frmPeople"_s, [&](Form& form) {
      QVERIFY(!Control<QCheckBox>(form, u"chkRigger"_s).isChecked());
      PressKey(form, u"chkRigger"_s, Qt::Key_Space);
      QCOMPARE(loft.Rows(u"select rigger from tblPeople"_s), QStringList({u"-1"_s, u"-1"_s}));
      PressKey(form, u"chkRigger"_s, Qt::Key_Space);
      Click(form, u"cmdNext"_s);
      QVERIFY(Control<QCheckBox>(form, u"chkRigger"_s).isChecked());
      Click(form, u"cmdExit"_s);
    });
    ShowPeople(ann);
    QCOMPARE(loft.Rows(u"select rigger from tblPeople"_s), QStringList({u"0"_s, u"-1"_s}));
  }

  void DeletesAndShowsTheNeighbour() {
    ThrowAwayLoft loft;
    const int ann = Named(u"Ann Jones"_s);
    Named(u"Bob Smith"_s);
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmPeople"_s, [&](Form& form) {
      prompts.Expect(u"Delete Ann Jones"_s, u"Are you sure you want to delete this customer?"_s, Answer::Yes);
      Click(form, u"cmdDelete"_s);
      QCOMPARE(TextOf(form, u"lblName"_s), u"Bob Smith"_s);
      QCOMPARE(Control<List>(form, u"lstPeople"_s).Count(), 1);
      prompts.Expect(u"Delete Bob Smith"_s, u"Are you sure you want to delete this customer?"_s, Answer::Yes);
      prompts.ExpectBox(u"Customer database will be empty"_s, u"This is the only customer in the database"_s);
      ChooseMenu(form, {u"Menu"_s, u"Delete this customer"_s});
      QVERIFY(!form.isVisible());
    });
    QCOMPARE(ShowPeople(ann), 0);
    QCOMPARE(loft.Rows(u"select * from tblPeople"_s), QStringList());
  }

  void SearchGoesToThePersonPicked() {
    ThrowAwayLoft loft;
    const int ann = Named(u"Ann Jones"_s);
    const int bob = Named(u"Bob Smith"_s);
    ScreenScript screens;
    screens.WhenShown(u"frmPeople"_s, [&](Form& form) {
      Click(form, u"cmdSearch"_s);
      QCOMPARE(TextOf(form, u"lblName"_s), u"Bob Smith"_s);
      QVERIFY(IsEnabled(form, u"cmdNext"_s));
      QVERIFY(IsEnabled(form, u"cmdPrev"_s));
      Click(form, u"cmdNext"_s);
      QVERIFY(!IsEnabled(form, u"cmdNext"_s));
      Click(form, u"cmdSearch"_s);
      QCOMPARE(TextOf(form, u"lblName"_s), u"Bob Smith"_s);
      Click(form, u"cmdExit"_s);
    });
    screens.WhenShown(u"frmPicker"_s, [](Form& form) {
      TypeInto(form, u"txt"_s, u"smith"_s);
      Click(form, u"cmdSelect"_s);
    });
    screens.WhenShown(u"frmPicker"_s, [](Form& form) { Click(form, u"cmdCancel"_s); });
    QCOMPARE(ShowPeople(ann), bob);
  }

  void TheScheduleOpensOnThePerson() {
    ThrowAwayLoft loft;
    const int ann = Named(u"Ann Jones"_s);
    Named(u"Bob Smith"_s);
    loft.Add(u"tblSchedules"_s,
             {{u"rigID"_s, CreateRig(ann, 1, u"Red"_s)}, {u"DateDue"_s, Date::FromParts(2026, 3, 14)}});
    OpenPeople(ann);
    Click(dynamic_cast<Form&>(*Forms::Find(u"frmPeople"_s)), u"cmdShowSchedule"_s);
    auto& schedule = dynamic_cast<Form&>(*Forms::Find(u"frmSchedule"_s));
    QVERIFY(schedule.isVisible());
    QCOMPARE(TextOf(schedule, u"lblCustomer"_s), u"Customer:  Ann Jones"_s);
  }

  void TheScheduleNeedsSomethingDue() {
    const FixedClock clock(2026, 3, 2);
    ThrowAwayLoft loft;
    const int ann = Named(u"Ann Jones"_s);
    Named(u"Bob Smith"_s);
    const int rig = CreateRig(ann, 1, u"Red"_s);
    OpenPeople(ann);
    auto& form = dynamic_cast<Form&>(*Forms::Find(u"frmPeople"_s));
    QCOMPARE(TextOf(form, u"cmdShowSchedule"_s), u"&View Schedule"_s);
    QCOMPARE(TextOf(form, u"lblDue"_s), u"(no scheduled tasks)"_s);
    QVERIFY(!IsEnabled(form, u"cmdShowSchedule"_s));
    loft.Add(u"tblSchedules"_s, {{u"rigID"_s, rig}, {u"DateDue"_s, Date::FromParts(2026, 3, 3)}});
    QCOMPARE(TextOf(form, u"lblDue"_s), u"Has tasks due tomorrow!"_s);
    QVERIFY(IsEnabled(form, u"cmdShowSchedule"_s));
    Click(form, u"cmdNext"_s);
    QVERIFY(!IsEnabled(form, u"cmdShowSchedule"_s));
    Click(form, u"cmdPrev"_s);
    QVERIFY(IsEnabled(form, u"cmdShowSchedule"_s));
  }

  void TheProgramOwnersSetUpOpensNeitherRigsNorSchedule() {
    ThrowAwayLoft loft;
    const int ann = Named(u"Ann Jones"_s);
    loft.Add(u"tblSchedules"_s,
             {{u"rigID"_s, CreateRig(ann, 1, u"Red"_s)}, {u"DateDue"_s, Date::FromParts(2026, 3, 3)}});
    ScreenScript screens;
    screens.WhenShown(u"frmPeople"_s, [](Form& form) {
      QCOMPARE(TextOf(form, u"lblRigs"_s), u"1 rig"_s);
      QVERIFY(!IsEnabled(form, u"cmdRigs"_s));
      QVERIFY(!IsEnabled(form, u"cmdShowSchedule"_s));
      Click(form, u"cmdExit"_s);
    });
    ShowPeople(ann, true);
  }

  void TheJobsOfThePersonAreReviewedAndStarted() {
    ThrowAwayLoft loft;
    const int ann = Named(u"Ann Jones"_s);
    const int bob = Named(u"Bob Smith"_s);
    loft.Add(u"tblJobs"_s, {{u"JobTitle"_s, "Ann's"}, {u"CustomerID"_s, ann}});
    loft.Add(u"tblJobs"_s, {{u"JobTitle"_s, "Bob's"}, {u"CustomerID"_s, bob}});
    ScriptedPrompts prompts;
    prompts.AnswerRestWith([](const ShownPrompt&) { return Answer::No; });
    OpenPeople(bob);
    auto& form = dynamic_cast<Form&>(*Forms::Find(u"frmPeople"_s));
    ChooseMenu(form, {u"Jobs"_s, u"Start new job"_s});
    QCOMPARE(prompts.Transcript().last().title, u"Create job for Bob Smith"_s);
    QCOMPARE(loft.Rows(u"select count(*) from tblJobs"_s), QStringList(u"2"_s));
    ChooseMenu(form, {u"Jobs"_s, u"Review jobs"_s});
    auto& jobs = Control<List>(dynamic_cast<Form&>(*Forms::Find(u"frmJobList"_s)), u"lstJobs"_s);
    QCOMPARE(jobs.Count(), 1);
    QVERIFY(jobs.ItemText(0).contains(u"Bob's"_s));
  }

  void AnEmptiedTableIsTold() {
    ThrowAwayLoft loft;
    const int ann = Named(u"Ann Jones"_s);
    OpenPeople(ann);
    loft.Run(u"delete * from tblPeople"_s);
    QVERIFY(!Forms::Find(u"frmPeople"_s));  // there is no one left to show
    ScriptedPrompts prompts;
    prompts.ExpectBox(u"No Customers"_s, u"customer database is empty"_s);
    OpenPeople(ann);
    auto& form = dynamic_cast<Form&>(*Forms::Find(u"frmPeople"_s));
    QCOMPARE(TextOf(form, u"lblName"_s), QString());
    QVERIFY(!IsEnabled(form, u"cmdEdit"_s));
  }

  void StartingWithANewPersonStaysOnThem() {
    ThrowAwayLoft loft;
    Named(u"Ann Jones"_s);
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmPeople"_s, [&](Form& form) {
      for (const QString& button : {u"cmdNext"_s, u"cmdPrev"_s, u"cmdRigs"_s, u"cmdSearch"_s, u"cmdShowSchedule"_s,
                                    u"cmdAddNew"_s, u"cmdExit"_s})
        QVERIFY2(!IsEnabled(form, button), qPrintable(button));
      for (QAction* action : form.MenuBar()->actions()) QVERIFY(!action->isEnabled());
      Wait();
      QCOMPARE(TextOf(form, u"lblName"_s), u"Bob Smith"_s);
      QVERIFY(IsEnabled(form, u"cmdExit"_s));
      QVERIFY(IsEnabled(form, u"cmdSearch"_s));
      Click(form, u"cmdExit"_s);
    });
    screens.WhenShown(u"frmPeopleEdit"_s, [](Form& form) {
      TypeInto(form, u"txtLast"_s, u"Smith"_s);
      TypeInto(form, u"txtFirst"_s, u"Bob"_s);
      Click(form, u"cmdSave"_s);
    });
    QCOMPARE(ShowPeople(kPeopleAddNew), 2);
    screens.WhenShown(u"frmPeople"_s, [](Form& form) {
      Wait();
      QVERIFY(!form.isVisible());
    });
    screens.WhenShown(u"frmPeopleEdit"_s, [](Form& form) { Click(form, u"cmdCancel"_s); });
    QCOMPARE(ShowPeople(kPeopleAddNew), 0);
  }

  void StartingWithThePickerMayEndAtOnce() {
    ThrowAwayLoft loft;
    const int ann = Named(u"Ann Jones"_s);
    ScreenScript screens;
    screens.WhenShown(u"frmPeople"_s, [](Form& form) {
      Wait();
      QVERIFY(!form.isVisible());
    });
    screens.WhenShown(u"frmPicker"_s, [](Form& form) { PressKey(form, Qt::Key_Escape); });
    QCOMPARE(ShowPeople(kPeoplePick), 0);
    screens.WhenShown(u"frmPeople"_s, [](Form& form) {
      Wait();
      QCOMPARE(TextOf(form, u"lblName"_s), u"Ann Jones"_s);
      Click(form, u"cmdExit"_s);
    });
    screens.WhenShown(u"frmPicker"_s, [](Form& form) {
      TypeInto(form, u"txt"_s, u"jones"_s);
      Click(form, u"cmdSelect"_s);
    });
    QCOMPARE(ShowPeople(kPeoplePick), ann);
  }

  void StartingWithNobodyShowsNothing() {
    ThrowAwayLoft loft;
    Named(u"Ann Jones"_s);
    ScreenScript screens;
    screens.WhenShown(u"frmPeople"_s, [](Form& form) {
      QCOMPARE(TextOf(form, u"lblName"_s), QString());
      QVERIFY(!IsEnabled(form, u"cmdNext"_s));
      form.close();
    });
    QCOMPARE(ShowPeople(kPeopleNobody), 0);
  }

  void TheFirstRunEntersTheProgramOwner() {
    ThrowAwayLoft loft;
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmPeople"_s, [](Form& form) {
      Wait();
      QVERIFY(!form.isVisible());
    });
    screens.WhenShown(u"frmPeopleEdit"_s, [](Form& form) {
      TypeInto(form, u"txtOrg"_s, u"The Loft"_s);
      Click(form, u"cmdSave"_s);
    });
    const int owner = ShowPeople(0, true);
    QCOMPARE(PersonDisplayName(owner), u"The Loft"_s);
    QCOMPARE(ProgramOwner(), owner);
  }

  void RigsOpenTheRigScreenOfThePerson() {
    ThrowAwayLoft loft;
    const int ann = Named(u"Ann Jones"_s);
    CreateRig(ann, 1, u"Red"_s);
    ScreenScript screens;
    screens.WhenShown(u"frmPeople"_s, [](Form& form) {
      Click(form, u"cmdRigs"_s);
      Click(form, u"cmdExit"_s);
    });
    screens.WhenShown(u"frmGetRig"_s, [](Form& form) {
      QCOMPARE(Control<List>(form, u"lstGear"_s).ItemText(0), u"Red"_s);
      Click(form, u"cmdExit"_s);
    });
    ShowPeople(ann);
  }
};

LOFT_TEST_MAIN(TestPeopleScreens)
#include "tst_people.moc"
