#include <QtTest>

#include "core/lists.h"
#include "core/store/connection.h"
#include "gear/people.h"
#include "gear/person_due.h"
#include "gear/person_email.h"
#include "gear/person_names.h"
#include "gear/person_record.h"
#include "gear/rigs.h"
#include "jobs/person_deletion.h"
#include "support/fixed_clock.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

class TestPersonRules : public QObject {
  Q_OBJECT

  static int Named(const QString& name) {
    int id = 0;
    AddPersonByName(name, id);
    return id;
  }

 private Q_SLOTS:
  void SplitsTypedNames_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("last");
    QTest::addColumn<QString>("first");
    QTest::newRow("comma and blank") << "jones, ann"
                                     << "Jones"
                                     << "Ann";
    QTest::newRow("comma") << "jones,ann"
                           << "Jones"
                           << "Ann";
    QTest::newRow("blank") << "ann jones"
                           << "Jones"
                           << "Ann";
    QTest::newRow("outer and double blanks") << "  ann   jones "
                                             << "Jones"
                                             << "Ann";
    QTest::newRow("three words") << "ann mary jones"
                                 << "Jones"
                                 << "Ann Mary";
    QTest::newRow("two first names") << "jones, ann mary"
                                     << "Jones"
                                     << "Ann Mary";
    QTest::newRow("two commas") << "jones, jr, ann"
                                << "Ann"
                                << "Jones, Jr,";
    QTest::newRow("one word as typed") << "jones"
                                       << "jones"
                                       << "";
    QTest::newRow("capital inside") << "mary McDonald"
                                    << "McDonald"
                                    << "Mary";
  }
  void SplitsTypedNames() {
    QFETCH(QString, typed);
    QString last;
    QString first = u"left over"_s;
    SplitTypedName(typed, last, first);
    QTEST(last, "last");
    QTEST(first, "first");
  }

  void AddsAPersonByName() {
    ThrowAwayLoft loft;
    const QStringList before = loft.Snapshot();
    const int id = Named(u"ann o'hara"_s);
    QCOMPARE(loft.TouchedSince(before), QStringList(u"+tblPeople|1"_s));
    QCOMPARE(loft.Rows(u"select * from tblPeople where ID = %1"_s.arg(id)),
             QStringList(u"1||O'hara|Ann|||||||||||| |0|"_s));
  }

  void FindsTheSameNameWhateverItsCase() {
    ScriptedPrompts prompts;
    ThrowAwayLoft loft;
    const int ann = loft.Add(u"tblPeople"_s, {{u"LastName"_s, " Jones"}, {u"FirstName"_s, "ANN "}});
    int id = 0;
    QVERIFY(DuplicateNameCheck(u"ann jones"_s, id));
    QCOMPARE(id, ann);
    QVERIFY(!DuplicateNameCheck(u"Ann Smith"_s, id));
    QCOMPARE(id, 0);
  }

  void OfTwoWithTheSameNameItFindsTheFirst() {
    ScriptedPrompts prompts;
    ThrowAwayLoft loft;
    const int ann = Named(u"Ann Jones"_s);
    Named(u"Ann Jones"_s);
    int id = 0;
    QVERIFY(DuplicateNameCheck(u"Ann Jones"_s, id));
    QCOMPARE(id, ann);
  }

  void AsksAboutEqualLastNames() {
    ThrowAwayLoft loft;
    Named(u"Bob Jones"_s);
    Named(u"Cid Jones"_s);
    Named(u"Dan Smith"_s);
    const QString text = u"Matching last names:\n\nBob Jones\nCid Jones\n\nIs the customer listed above?"_s;
    ScriptedPrompts prompts;
    prompts.Expect(kProgramTitle, text, Answer::Yes).WithButtons(Buttons::YesNo).WithPreset(Answer::No);
    prompts.Expect(kProgramTitle, text, Answer::No);
    int id = -1;
    QVERIFY(DuplicateNameCheck(u"Jones, Ann"_s, id));
    QCOMPARE(id, 0);
    QVERIFY(!DuplicateNameCheck(u"Jones, Ann"_s, id));
  }

  void AddCustomerGoesToTheOneWhoExists() {
    ThrowAwayLoft loft;
    const int ann = Named(u"Ann Jones"_s);
    const QStringList before = loft.Snapshot();
    ScriptedPrompts prompts;
    prompts.ExpectInput(kProgramTitle, u"Enter name of new customer"_s, u" "_s);
    QCOMPARE(AddCustomer(), 0);
    prompts.ExpectInput(kProgramTitle, u"Enter name of new customer"_s, u" jones, ann "_s);
    prompts.ExpectBox(kProgramTitle, u"jones, ann already exists"_s);
    QCOMPARE(AddCustomer(), ann);
    QCOMPARE(loft.ChangesSince(before), QStringList());
    prompts.ExpectInput(kProgramTitle, u"Enter name of new customer"_s, u"bob smith"_s);
    const int bob = AddCustomer();
    QCOMPARE(PersonDisplayName(bob), u"Bob Smith"_s);
    prompts.ExpectInput(kProgramTitle, u"Enter name of new customer"_s, u"cid smith"_s);
    prompts.Expect(kProgramTitle, u"Matching last names:\n\nBob Smith\n\nIs the customer listed above?"_s, Answer::Yes);
    QCOMPARE(AddCustomer(), 0);
  }

  void ListsEveryoneBySortedFields() {
    ThrowAwayLoft loft;
    const int ann = Named(u"Ann Jones"_s);
    const int club = loft.Add(u"tblPeople"_s, {{u"OrgName"_s, "Sky Club"}, {u"LastName"_s, ""}, {u"FirstName"_s, ""}});
    const int bob = loft.Add(u"tblPeople"_s, {{u"OrgName"_s, "Loft"}, {u"LastName"_s, ""}, {u"FirstName"_s, "Bob"}});
    const int dee = Named(u"Dee"_s);
    const IdList people = GetArrayOfPeopleExpanded();
    QCOMPARE(people.texts, QStringList({u"Sky Club"_s, u"Bob"_s, u"Dee"_s, u"Jones, Ann"_s}));
    QCOMPARE(people.ids, QList<int>({club, bob, dee, ann}));
  }

  void TheEditorWantsAName() {
    ScriptedPrompts prompts;
    ThrowAwayLoft loft;
    prompts.ExpectBox(u"Ooops"_s, u"You must enter at least a first name, last name, or organization"_s);
    Person person{.organization = u" "_s, .state = u"ca"_s};
    QVERIFY(!CheckPersonEntries(person, true));
    QCOMPARE(person.state, u"CA"_s);
    person = {.organization = u"sky club"_s, .state = u"cal"_s};
    QVERIFY(CheckPersonEntries(person, true));
    QCOMPARE(person.state, u"cal"_s);
    QCOMPARE(person.organization, u"sky club"_s);
  }

  void TheEditorAsksAboutATakenNameOfANewPersonOnly() {
    ThrowAwayLoft loft;
    Named(u"Ann Jones"_s);
    const QString text =
        u"The name ann jones already exists in the customer database\n\n"
        "Are you sure you want to add another customer with this name?\n"_s;
    ScriptedPrompts prompts;
    prompts.Expect(u"Duplicate name"_s, text, Answer::No).WithPreset(Answer::No).WithButtons(Buttons::YesNo);
    prompts.Expect(u"Duplicate name"_s, text, Answer::Yes);
    Person person{.lastName = u"jones"_s, .firstName = u"ann"_s};
    QVERIFY(!CheckPersonEntries(person, true));
    QVERIFY(CheckPersonEntries(person, true));
    QCOMPARE(person.lastName, u"Jones"_s);
    QCOMPARE(person.firstName, u"Ann"_s);
    QVERIFY(CheckPersonEntries(person, false));
  }

  void OrganizationsAreNotTakenForEachOther() {
    ScriptedPrompts prompts;
    ThrowAwayLoft loft;
    InsertPerson({.organization = u"Sky Club"_s});
    Person person{.organization = u"Star Club"_s};
    QVERIFY(CheckPersonEntries(person, true));
  }

  void SavesAndReadsAPerson() {
    ThrowAwayLoft loft;
    const Person ann{u"Loft"_s,   u"O'Hara"_s, u"Ann"_s,    u"1"_s,  u"2"_s,     u"3"_s,   u"a@b.c"_s, u"d@e.f"_s,
                     u"Line 1"_s, u"Line 2"_s, u"Perris"_s, u"CA"_s, u"92570"_s, u"USA"_s, u"Good"_s,  true};
    QStringList before = loft.Snapshot();
    const int id = SaveNewOwner(ann, false);
    QCOMPARE(
        loft.ChangesSince(before),
        QStringList(u"+tblPeople|1|Loft|O'Hara|Ann|1|2|3|a@b.c|d@e.f|Line 1|Line 2|Perris|CA|92570|USA|Good|-1|"_s));
    Person read;
    QVERIFY(LoadPerson(id, read));
    QCOMPARE(read, ann);
    loft.Run(u"update tblPeople set PhotoName = 'p1.jpg'"_s);
    before = loft.Snapshot();
    read.comment = u"  "_s;
    read.rigger = false;
    UpdateOwner(id, read);
    QCOMPARE(loft.ChangesSince(before).last(),
             u"+tblPeople|1|Loft|O'Hara|Ann|1|2|3|a@b.c|d@e.f|Line 1|Line 2|Perris|CA|92570|USA| |0|p1.jpg"_s);
    SetRiggerFlag(id, true);
    QCOMPARE(NumberOfRiggers(), 1);
    QVERIFY(!LoadPerson(99, read));
    QCOMPARE(read, Person());
  }

  void NobodyIsWrittenWithoutAName() {
    ThrowAwayLoft loft;
    const int ann = Named(u"Ann Jones"_s);
    const QStringList before = loft.Snapshot();
    ScriptedPrompts prompts;
    const Person nameless{.lastName = u" "_s, .city = u"Perris"_s};
    prompts.ExpectBox(u"Oops!"_s, u"You must enter a name"_s);
    QCOMPARE(SaveNewOwner(nameless, true), 0);
    prompts.ExpectBox(u"Oops!"_s, u"You must enter a name"_s);
    UpdateOwner(ann, nameless);
    QCOMPARE(loft.ChangesSince(before), QStringList());
  }

  void AClearedRiggerMayStayTheDefault() {
    ThrowAwayLoft loft;
    const int ann = Named(u"Ann Jones"_s);
    for (const int rigger : {ann, Named(u"Bob Smith"_s), Named(u"Cid Young"_s)}) SetRiggerFlag(rigger, true);
    SetDefaultRigger(ann);
    SetRiggerFlag(ann, false);
    QCOMPARE(loft.Rows(u"select DefaultRiggerID from tblMisc"_s), QStringList(QString::number(ann)));
    QCOMPARE(EffectiveRigger(), ann);
  }

  void TheFirstRunNamesTheProgramOwner() {
    ThrowAwayLoft loft;
    const int id = SaveNewOwner({.lastName = u"Jones"_s}, true);
    QCOMPARE(ProgramOwner(), id);
  }

  void TheProgramOwnerStays() {
    ThrowAwayLoft loft;
    const int id = SaveNewOwner({.lastName = u"Jones"_s, .firstName = u"Ann"_s}, true);
    const QStringList before = loft.Snapshot();
    ScriptedPrompts prompts;
    prompts.ExpectBox(u"Can't delete program owner"_s,
                      u"Ann Jones is the Loftkeep program owner.\n\nYou cannot delete the program owner."_s);
    int neighbour = 0;
    QVERIFY(!DeleteCustomer(id, neighbour));
    prompts.ExpectBox(u"Can't delete program owner"_s,
                      u"Ann Jones is the Loftkeep program owner.\n\nYou cannot delete the program owner."_s);
    QVERIFY(!DeleteCustomerFromRigScreen(id, neighbour));
    QCOMPARE(loft.ChangesSince(before), QStringList());
  }

  void DeletesAPersonWithoutTies() {
    ThrowAwayLoft loft;
    const int ann = Named(u"Ann Jones"_s);
    const int bob = Named(u"Bob Smith"_s);
    QStringList before = loft.Snapshot();
    ScriptedPrompts prompts;
    const QString text = u"Are you sure you want to delete this customer?"_s;
    prompts.Expect(u"Delete Bob Smith"_s, text, Answer::No).WithPreset(Answer::No).WithButtons(Buttons::YesNo);
    int neighbour = 0;
    QVERIFY(!DeleteCustomer(bob, neighbour));
    QCOMPARE(loft.ChangesSince(before), QStringList());
    prompts.Expect(u"Delete Bob Smith"_s, text, Answer::Yes);
    QVERIFY(DeleteCustomer(bob, neighbour));
    QCOMPARE(neighbour, ann);
    QCOMPARE(loft.TouchedSince(before), QStringList(u"-tblPeople|2"_s));
    prompts.Expect(u"Delete Ann Jones"_s, text, Answer::Yes);
    prompts.ExpectBox(u"Customer database will be empty"_s, u"This is the only customer in the database"_s);
    QVERIFY(DeleteCustomer(ann, neighbour));
    QCOMPARE(neighbour, 0);
  }

  void ReportsWhatIsTiedToAPerson() {
    ThrowAwayLoft loft;
    const int ann = Named(u"Ann Jones"_s);
    const int bob = Named(u"Bob Smith"_s);
    for (const int owner : {ann, ann, bob}) CreateRig(owner, 1, u"Rig"_s);
    loft.Add(u"tblComponents"_s, {{u"OwnerID"_s, ann}});
    loft.Add(u"tblJobs"_s, {{u"CustomerID"_s, ann}});
    loft.Add(u"tblTasks"_s, {{u"CustomerID"_s, ann}});
    loft.Add(u"tblMoney"_s, {{u"CustomerID"_s, ann}});
    loft.Add(u"tblMoney"_s, {{u"CustomerID"_s, ann}});
    const QString text =
        u"Customer Ann Jones is associated with the following: \n      2 rigs\n      1 rig component\n      1 job\n"
        "      1 task\n      2 money transactions\nIt is recommended that you NOT delete this\ncustomer.\n\n"
        "Do you want to delete this customer anyway?\n(rigs, components, jobs, and tasks will not be deleted)"_s;
    const QStringList before = loft.Snapshot();
    ScriptedPrompts prompts;
    const auto expectQuestion = [&] {
      prompts.Expect(u"Delete Ann Jones"_s, u"Are you sure you want to delete this customer?"_s, Answer::Yes);
    };
    expectQuestion();
    prompts.Expect(u"Deletion NOT recommended"_s, text, Answer::No).WithPreset(Answer::No).WithButtons(Buttons::YesNo);
    int neighbour = 0;
    QVERIFY(!DeleteCustomer(ann, neighbour));
    QCOMPARE(loft.ChangesSince(before), QStringList());
    expectQuestion();
    prompts.Expect(u"Deletion NOT recommended"_s, text, Answer::Yes);
    QVERIFY(DeleteCustomer(ann, neighbour));
    QCOMPARE(neighbour, bob);
    QCOMPARE(loft.TouchedSince(before),
             QStringList({u"+tblComponents|1"_s, u"+tblJobs|1"_s, u"+tblMoney|1"_s, u"+tblMoney|2"_s, u"+tblRig|1"_s,
                          u"+tblRig|2"_s, u"+tblTasks|1"_s, u"-tblComponents|1"_s, u"-tblJobs|1"_s, u"-tblMoney|1"_s,
                          u"-tblMoney|2"_s, u"-tblPeople|1"_s, u"-tblRig|1"_s, u"-tblRig|2"_s, u"-tblTasks|1"_s}));
    QCOMPARE(loft.Rows(u"select OwnerID from tblRig"_s), QStringList({u"0"_s, u"0"_s, QString::number(bob)}));
    QCOMPARE(loft.Rows(u"select CustomerID from tblMoney"_s), QStringList({u"0"_s, u"0"_s}));
  }

  void TheRigScreenAsksOnlyWhenNothingIsTied() {
    ThrowAwayLoft loft;
    const int ann = Named(u"Ann Jones"_s);
    const int bob = Named(u"Bob Smith"_s);
    int neighbour = 0;
    ScriptedPrompts prompts;
    prompts.Expect(u"Delete customer?"_s, u"Are you sure you want to delete Ann Jones"_s, Answer::No);
    QVERIFY(!DeleteCustomerFromRigScreen(ann, neighbour));
    QVERIFY(PersonExists(ann));
    prompts.Expect(u"Delete customer?"_s, u"Are you sure you want to delete Ann Jones"_s, Answer::Yes);
    QVERIFY(DeleteCustomerFromRigScreen(ann, neighbour));
    QCOMPARE(neighbour, bob);
    QVERIFY(!PersonExists(ann));
  }

  void TheRigScreenTellsWhatIsTiedAndAsksNoMore() {
    ThrowAwayLoft loft;
    const int ann = Named(u"Ann Jones"_s);
    CreateRig(ann, 1, u"Rig"_s);
    const QString text =
        u"Customer Ann Jones is associated with the following: \n      1 rig\n"
        "It is recommended that you NOT delete this\ncustomer.\n\n"
        "Do you want to delete this customer anyway?\n(rigs, components, jobs, and tasks will not be deleted)"_s;
    const QStringList before = loft.Snapshot();
    int neighbour = 0;
    ScriptedPrompts prompts;
    prompts.Expect(u"Deletion NOT recommended"_s, text, Answer::No);
    QVERIFY(!DeleteCustomerFromRigScreen(ann, neighbour));
    QCOMPARE(loft.ChangesSince(before), QStringList());
    prompts.Expect(u"Deletion NOT recommended"_s, text, Answer::Yes);
    prompts.ExpectBox(u"Customer database will be empty"_s, u"This is the only customer in the database"_s);
    QVERIFY(DeleteCustomerFromRigScreen(ann, neighbour));
    QCOMPARE(loft.TouchedSince(before), QStringList({u"+tblRig|1"_s, u"-tblPeople|1"_s, u"-tblRig|1"_s}));
    QCOMPARE(loft.Rows(u"select OwnerID from tblRig"_s), QStringList(u"0"_s));
  }

  void ChecksAddresses_data() {
    QTest::addColumn<QString>("address");
    QTest::addColumn<bool>("legal");
    QTest::newRow("good") << "ann@loft.com" << true;
    QTest::newRow("dot before") << "a.b@c" << true;
    QTest::newRow("no dot") << "ann@loft" << false;
    QTest::newRow("no at") << "ann.loft" << false;
    QTest::newRow("nothing before") << " @loft.com" << false;
    QTest::newRow("nothing behind") << "a.b@ " << false;
    QTest::newRow("at behind") << "a.b@@" << false;
    QTest::newRow("empty") << "" << false;
  }
  void ChecksAddresses() {
    QFETCH(QString, address);
    QTEST(IsLegalEmail(address), "legal");
  }

  void AsksForTheAddressOfAnInvoice() {
    ThrowAwayLoft loft;
    const int ann = Named(u"Ann Jones"_s);
    const QString question = u"Ann Jones doesn't have an email address.\n\nWould you like to enter it?"_s;
    ScriptedPrompts prompts;
    prompts.Expect(kProgramTitle, question, Answer::No);
    QVERIFY(!AskForInvoiceEmail(ann));
    prompts.Expect(kProgramTitle, question, Answer::Yes);
    prompts.ExpectInput(u"Enter email address"_s, u"Enter email address for Ann Jones"_s, QString());
    QVERIFY(!AskForInvoiceEmail(ann));  // cancelled: nothing to complain about
    prompts.Expect(kProgramTitle, question, Answer::Yes);
    prompts.ExpectInput(u"Enter email address"_s, u"Enter email address for Ann Jones"_s, u"ann"_s);
    prompts.ExpectBox(u"Bad email address"_s, u"ann is not a legal email address"_s).WithIcon(Icon::Exclamation);
    QVERIFY(!AskForInvoiceEmail(ann));
    QCOMPARE(PersonEmail(ann), QString());
    prompts.Expect(kProgramTitle, question, Answer::Yes);
    prompts.ExpectInput(u"Enter email address"_s, u"Enter email address for Ann Jones"_s, u"ann@loft.com"_s);
    QVERIFY(AskForInvoiceEmail(ann));
    QCOMPARE(PersonEmail(ann), u"ann@loft.com"_s);
  }

  void AnApostropheBreaksTheStatementOfAnInvoicesAddress() {
    ThrowAwayLoft loft;
    const int ann = Named(u"Ann Jones"_s);
    const QStringList before = loft.Snapshot();
    ScriptedPrompts prompts;
    prompts.Expect(kProgramTitle, u"Ann Jones doesn't have an email address.\n\nWould you like to enter it?"_s,
                   Answer::Yes);
    prompts.ExpectInput(u"Enter email address"_s, u"Enter email address for Ann Jones"_s, u"o'h@loft.com"_s);
    prompts.AnswerRestWith([](const ShownPrompt&) { return Answer::Ok; });
    QVERIFY(!AskForInvoiceEmail(ann));
    QCOMPARE(prompts.Transcript().last().title, u"Sub UpdateTableBySQL(MySQL)"_s);
    QVERIFY(prompts.Transcript().last().text.contains(
        u"SQL = Update [tblPeople] set [email1] = 'o'h@loft.com' where [id] = 1"_s));
    if (ConnectionIsOpen) ConnectionClose();
    QCOMPARE(loft.ChangesSince(before), QStringList());
  }

  void AsksForTheAddressOfAStatement() {
    ThrowAwayLoft loft;
    const int ann = Named(u"Ann Jones"_s);
    const QString question = u"Ann Jones doesn't have an email address.\n\nWould you like to enter one now?"_s;
    ScriptedPrompts prompts;
    prompts.Expect(u"Enter email address?"_s, question, Answer::No);
    QVERIFY(!AskForStatementEmail(ann));
    prompts.Expect(u"Enter email address?"_s, question, Answer::Yes);
    prompts.ExpectInput(u"Enter email address"_s, u"Enter email address for Ann Jones"_s, QString());
    QVERIFY(!AskForStatementEmail(ann));
    prompts.Expect(u"Enter email address?"_s, question, Answer::Yes);
    prompts.ExpectInput(u"Enter email address"_s, u"Enter email address for Ann Jones"_s, u"a.b"_s);
    prompts.ExpectBox(kProgramTitle, u"a.b is not a valid email address"_s);
    QVERIFY(!AskForStatementEmail(ann));
    prompts.Expect(u"Enter email address?"_s, question, Answer::Yes);
    prompts.ExpectInput(u"Enter email address"_s, u"Enter email address for Ann Jones"_s, u"o'h@loft.com"_s);
    QVERIFY(AskForStatementEmail(ann));
    QCOMPARE(PersonEmail(ann), u"o'h@loft.com"_s);
  }

  void TellsTheTimeThatIsLeft_data() {
    QTest::addColumn<int>("days");
    QTest::addColumn<QString>("words");
    QTest::newRow("years") << 1464 << "4 years";
    QTest::newRow("months, last") << 1463 << "48 months";
    QTest::newRow("months, first") << 367 << "12 months";
    QTest::newRow("days, last") << 366 << "366 days";
    QTest::newRow("days, first") << 2 << "2 days";
    QTest::newRow("one day") << 1 << "1 day";
    QTest::newRow("today") << 0 << "Due today!";
    QTest::newRow("overdue") << -1 << "Overdue!";
  }
  void TellsTheTimeThatIsLeft() {
    QFETCH(int, days);
    const FixedClock clock(2026, 3, 2);
    QTEST(DueIntervalWords(Date::FromParts(2026, 3, 2) + days), "words");
  }

  void TheDueLineFollowsTheSoonestEntry() {
    const FixedClock clock(2026, 3, 2);
    const auto day = [](int offset) { return Value(Date::FromParts(2026, 3, 2) + offset); };
    ThrowAwayLoft loft;
    const int ann = Named(u"Ann Jones"_s);
    QCOMPARE(RigCountText(ann), u"No rigs"_s);
    const int rig = CreateRig(ann, 1, u"Red"_s);
    QCOMPARE(RigCountText(ann), u"1 rig"_s);
    CreateRig(ann, 1, u"Blue"_s);
    QCOMPARE(RigCountText(ann), u"2 rigs"_s);
    const int component = loft.Add(u"tblComponents"_s, {{u"OwnerID"_s, ann}});
    QCOMPARE(DueLine(ann), u"(no scheduled tasks)"_s);
    QCOMPARE(DaysToSoonestDue(ann).has_value(), false);
    loft.Add(u"tblSchedules"_s, {{u"rigID"_s, rig}, {u"DateDue"_s, day(200)}});
    loft.Add(u"tblSchedules"_s, {{u"rigID"_s, rig}, {u"DateDue"_s, day(90)}});
    QCOMPARE(DueLine(ann), u"Has tasks due in 90 days"_s);
    loft.Add(u"tblSchedules"_s, {{u"ComponentID"_s, component}, {u"DateDue"_s, day(1)}});
    QCOMPARE(DueLine(ann), u"Has tasks due tomorrow!"_s);
    loft.Add(u"tblSchedules"_s, {{u"ComponentID"_s, component}, {u"DateDue"_s, day(0)}});
    QCOMPARE(DueLine(ann), u"Has tasks due today!"_s);
    loft.Add(u"tblSchedules"_s, {{u"rigID"_s, rig}, {u"DateDue"_s, day(-3)}});
    QCOMPARE(DueLine(ann), u"Has overdue tasks!"_s);
    QCOMPARE(*DaysToSoonestDue(ann), -3);
  }
};

LOFT_TEST_MAIN(TestPersonRules)
#include "tst_person_rules.moc"
