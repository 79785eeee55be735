#include <QtTest>

#include "core/data_folder.h"
#include "core/default_rows.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/person_names.h"
#include "gear/rig_rules.h"
#include "gear/rig_type_rules.h"
#include "gear/rig_types.h"
#include "gear/rigs.h"
#include "jobs/gear_deletion.h"
#include "schedule/gear_moves.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

class TestRigs : public QObject {
  Q_OBJECT

  static constexpr int kSport = 1;
  static constexpr int kTandem = 2;

  static int Named(const QString& name) {
    int id = 0;
    AddPersonByName(name, id);
    return id;
  }

 private Q_SLOTS:
  void TheDefaultRigTypesAreThere() {
    ThrowAwayLoft loft;
    QCOMPARE(LoadRigTypesById().texts, QStringList({u"Sport Rig"_s, u"Tandem Rig"_s, u"Pilot Emergency Rig (back)"_s,
                                                    u"Pilot Emergency Rig (seat)"_s}));
    QCOMPARE(ComponentTypesOfRigType(kTandem), QList<int>({1, 2, 3, 4, 6}));
    QCOMPARE(NumberOfComponentTypes(kTandem), 5);
    QCOMPARE(ReserveLocation(4), 2);
    QCOMPARE(DefaultRigType(), kSport);
    SetDefaultRigType(kTandem);
    QCOMPARE(DefaultRigType(), kTandem);
    QVERIFY(RigTypeHasComponentType(kTandem, kPassengerHarness));
    QVERIFY(!RigTypeHasComponentType(kSport, kPassengerHarness));
    QCOMPARE(RigTypeName(9), QString());
  }

  void ComponentTypesComeInTheTablesOrderOrByTheirIds() {
    ThrowAwayLoft loft;
    QVERIFY(SetComponentTypesOfRigType(kSport, {3, 1, 0, 2}));
    QCOMPARE(ComponentTypesOfRigType(kSport), QList<int>({3, 1, 2}));
    QCOMPARE(ComponentTypesOfRigType(kSport, true), QList<int>({1, 2, 3}));
    const QStringList before = loft.Snapshot();
    QVERIFY(SetComponentTypesOfRigType(kSport, {}));
    QCOMPARE(loft.ChangesSince(before).size(), 4);
    QCOMPARE(ComponentTypesOfRigType(kSport), QList<int>());
    QCOMPARE(NumberOfComponentTypes(kTandem), 5);
    ScriptedPrompts prompts;
    prompts.ExpectBox(kProgramTitle, u"There are no rig types"_s);
    QVERIFY(!SetComponentTypesOfRigType(0, {1}, true));
    prompts.ExpectBox(kProgramTitle, u"Please select a rig type"_s);
    QVERIFY(!SetComponentTypesOfRigType(0, {1}));
  }

  void AnotherComponentListLeavesTheRigsAsTheyAre() {
    ThrowAwayLoft loft;
    const int rig = CreateRig(1, kSport, u"Red"_s);
    const int aad = NewComponent(AddModel(u"Vigil"_s, kAad), kAad, rig);
    const QStringList before = loft.Snapshot();
    QVERIFY(SetComponentTypesOfRigType(kSport, {kContainer, kReserveCanopy, kPassengerHarness}));
    for (const QString& change : loft.ChangesSince(before))
      QVERIFY2(change.mid(1).startsWith("tblRigTypeComponents|"_L1), qPrintable(change));
    QCOMPARE(ComponentRig(aad), rig);
    QStringList shown;
    for (const RigComponentRow& row : LoadRigComponents(rig)) shown << row.typeName;
    QCOMPARE(shown, QStringList({u"Container"_s, u"Reserve Canopy"_s, u"Passenger Harness"_s}));
  }

  void AddsARigType() {
    ThrowAwayLoft loft;
    const QStringList before = loft.Snapshot();
    ScriptedPrompts prompts;
    prompts.ExpectInput(kProgramTitle, u"Enter new rig type"_s, u" "_s);
    QCOMPARE(AddRigType(), 0);
    prompts.ExpectInput(kProgramTitle, u"Enter new rig type"_s, u" sport rig "_s);
    prompts.ExpectBox(u"Duplicate rig type"_s, u"There is already a rig type called 'sport rig'"_s);
    QCOMPARE(AddRigType(), 0);
    prompts.ExpectInput(kProgramTitle, u"Enter new rig type"_s, u" BASE "_s);
    const int id = AddRigType();
    QCOMPARE(loft.TouchedSince(before).size(), 1);
    QCOMPARE(RigTypeName(id), u"BASE"_s);
    QCOMPARE(ReserveLocation(id), 0);
    SetReserveLocation(id, 4);
    QCOMPARE(ReserveLocation(id), 4);
    SaveRequiredSum(id, {1, 3});
    QCOMPARE(loft.Rows(u"select Req from tblRigTypes where ID = "_s + QString::number(id)), QStringList(u"4"_s));
  }

  void RenamesARigType() {
    ThrowAwayLoft loft;
    ScriptedPrompts prompts;
    prompts.ExpectBox(u"Rename Rig Type"_s, u"Please select a custom rig type"_s);
    QVERIFY(!RenameRigType(0));
    prompts.ExpectInput(u"Rename rig type"_s, u"Enter rig type name"_s, u""_s).Proposing(u"Sport Rig"_s);
    QVERIFY(!RenameRigType(kSport));
    prompts.ExpectInput(u"Rename rig type"_s, u"Enter rig type name"_s, u"Tandem Rig"_s);
    QVERIFY(RenameRigType(kSport));
    QCOMPARE(RigTypeName(kSport), u"Tandem Rig"_s);
  }

  void ARigTypeInUseStays() {
    ThrowAwayLoft loft;
    ScriptedPrompts prompts;
    prompts.ExpectBox(kProgramTitle, u"You must select a rig type"_s);
    QCOMPARE(DeleteRigType(0), RigTypeDeletion::Kept);
    const QString end =
        u" of that type in your rig database\n\nThis rig type cannot be deleted while being used.\n\n"
        "Would you like to see of list of rigs of this type?"_s;
    CreateRig(1, kSport, u"Red"_s);
    prompts.Expect(u"Rig Type:  Sport Rig"_s, u"There is one rig"_s + end, Answer::No).WithPreset(Answer::No);
    QCOMPARE(DeleteRigType(kSport), RigTypeDeletion::Kept);
    CreateRig(1, kSport, u"Blue"_s);
    prompts.Expect(u"Rig Type:  Sport Rig"_s, u"There are 2 rigs"_s + end, Answer::Yes);
    QCOMPARE(DeleteRigType(kSport), RigTypeDeletion::ShowRigs);
    QCOMPARE(NumberOfRigsOfType(kSport), 2);
    loft.Add(u"tblRepackByType"_s, {{u"TypeID"_s, kTandem}, {u"Price"_s, Money::Whole(90)}});
    const QStringList before = loft.Snapshot();
    prompts.Expect(u"Are you sure?"_s, u"Delete Tandem Rig?"_s, Answer::No);
    QCOMPARE(DeleteRigType(kTandem), RigTypeDeletion::Kept);
    prompts.Expect(u"Are you sure?"_s, u"Delete Tandem Rig?"_s, Answer::Yes);
    QCOMPARE(DeleteRigType(kTandem), RigTypeDeletion::Deleted);
    QCOMPARE(loft.ChangesSince(before).filter(u"tblRigTypeComponents"_s), QStringList());
    QCOMPARE(loft.ChangesSince(before).size(), 2);
    QCOMPARE(RigTypeName(kTandem), QString());
  }

  void NamesAreUniqueToAnOwner() {
    ThrowAwayLoft loft;
    const QStringList before = loft.Snapshot();
    const int red = CreateRig(1, kSport, u"Red"_s);
    QCOMPARE(loft.ChangesSince(before), QStringList(u"+tblRig|1|1|1|Red| "_s));
    CreateRig(1, kTandem, kTempRigName);
    CreateRig(2, kSport, u"Blue"_s);
    QString list;
    QVERIFY(RigNameIsTaken(u" rED "_s, 1, &list));
    QCOMPARE(list, u"      Red"_s);
    QVERIFY(!RigNameIsTaken(u"Blue"_s, 1));
    QVERIFY(RigNameIsTaken(u"Blue"_s, 2));
    QCOMPARE(RigName(red), u"Red"_s);
    QCOMPARE(RigOwner(red), 1);
    QCOMPARE(RigType(red), kSport);
    QVERIFY(RigExists(red));
    QVERIFY(!RigExists(0));
    QVERIFY(!RigExists(99));
    QCOMPARE(RigName(99), QString());
    QCOMPARE(NumberOfRigs(1), 2);
    QCOMPARE(FirstRigOf(1), red);
    QCOMPARE(FirstRigOf(3), 0);
  }

  void ALongNameIsCut() {
    ThrowAwayLoft loft;
    const int rig = CreateRig(1, kSport, QString(60, u'x'));
    QCOMPARE(RigName(rig), QString(50, u'x'));
  }

  void AsksForTheNameOfANewRig() {
    ThrowAwayLoft loft;
    const int ann = Named(u"Ann Jones"_s);
    CreateRig(ann, kSport, u"Red"_s);
    ScriptedPrompts prompts;
    prompts.ExpectInput(kProgramTitle, u"What do you want to call this new rig?"_s, u"  "_s);
    QCOMPARE(AskNewRigName(ann), QString());
    prompts.ExpectInput(kProgramTitle, u"What do you want to call this new rig?"_s, u"red"_s);
    prompts.ExpectBox(u"Duplicate rig name"_s, u"Ann Jones already has a rig named red"_s).WithIcon(Icon::Exclamation);
    QCOMPARE(AskNewRigName(ann), QString());
    prompts.ExpectInput(kProgramTitle, u"What do you want to call this new rig?"_s, u" Blue "_s);
    QCOMPARE(AskNewRigName(ann), u"Blue"_s);
  }

  void RenamesARig() {
    ThrowAwayLoft loft;
    const int ann = Named(u"Ann Jones"_s);
    const int red = CreateRig(ann, kSport, u"Red"_s);
    CreateRig(ann, kSport, u"Blue"_s);
    const QStringList before = loft.Snapshot();
    ScriptedPrompts prompts;
    prompts.ExpectInput(u"Change Rig Name"_s, u"Enter Rig Name"_s, u"Red"_s).Proposing(u"Red"_s);
    QVERIFY(!RenameRig(red));
    prompts.ExpectInput(u"Change Rig Name"_s, u"Enter Rig Name"_s, u" "_s);
    QVERIFY(!RenameRig(red));
    prompts.ExpectInput(u"Change Rig Name"_s, u"Enter Rig Name"_s, u"BLUE "_s);
    prompts.ExpectBox(u"Duplicate rig name"_s, u"Ann Jones already has a rig named BLUE "_s);
    QVERIFY(!RenameRig(red));
    QCOMPARE(loft.ChangesSince(before), QStringList());
    prompts.ExpectInput(u"Change Rig Name"_s, u"Enter Rig Name"_s, u"RED"_s);
    QVERIFY(RenameRig(red));
    QCOMPARE(RigName(red), u"RED"_s);
  }

  void ChangingTheOwnerLeavesTheComponents() {
    ThrowAwayLoft loft;
    const int ann = Named(u"Ann Jones"_s);
    const int bob = Named(u"Bob Smith"_s);
    const int rig = CreateRig(ann, kSport, u"Red"_s);
    NewComponent(AddModel(u"Storm"_s, kMainCanopy), kMainCanopy, rig);
    const QStringList before = loft.Snapshot();
    ScriptedPrompts prompts;
    QVERIFY(!ChangeRigOwner(rig, ann));
    QVERIFY(!ChangeRigOwner(rig, 0));
    prompts.Expect(u"Red"_s, u"Change rig owner from Ann Jones to Bob Smith?"_s, Answer::No).WithPreset(Answer::No);
    QVERIFY(!ChangeRigOwner(rig, bob));
    QCOMPARE(loft.ChangesSince(before), QStringList());
    prompts.Expect(u"Red"_s, u"Change rig owner from Ann Jones to Bob Smith?"_s, Answer::Yes);
    QVERIFY(ChangeRigOwner(rig, bob));
    QCOMPARE(loft.ChangesSince(before), QStringList({u"-tblRig|1|1|1|Red| "_s, u"+tblRig|1|2|1|Red| "_s}));
    SetRigOwner(rig, 99);
    prompts.Expect(u"Red"_s, u"Assign rig to Ann Jones?"_s, Answer::Yes);
    QVERIFY(ChangeRigOwner(rig, ann));
    SetRigOwner(rig, 0);
    prompts.Expect(u"Assign Rig?"_s, u"Assign rig Red to Bob Smith?"_s, Answer::No);
    QVERIFY(!AssignRig(rig, bob));
    prompts.Expect(u"Assign Rig?"_s, u"Assign rig Red to Bob Smith?"_s, Answer::Yes);
    QVERIFY(AssignRig(rig, bob));
    QCOMPARE(RigOwner(rig), bob);
  }

  void ChangingTheTypeLeavesTheComponents() {
    ThrowAwayLoft loft;
    const int rig = CreateRig(Named(u"Ann Jones"_s), kTandem, u"Big"_s);
    const int harness = NewComponent(AddModel(u"Sigma"_s, kPassengerHarness), kPassengerHarness, rig);
    ScriptedPrompts prompts;
    QVERIFY(!ChangeRigType(rig, kTandem));
    prompts.Expect(u"Big"_s, u"Change rig type from Tandem Rig to Sport Rig?"_s, Answer::No).WithPreset(Answer::No);
    QVERIFY(!ChangeRigType(rig, kSport));
    const QStringList before = loft.Snapshot();
    prompts.Expect(u"Big"_s, u"Change rig type from Tandem Rig to Sport Rig?"_s, Answer::Yes);
    QVERIFY(ChangeRigType(rig, kSport));
    QCOMPARE(loft.TouchedSince(before), QStringList({u"+tblRig|1"_s, u"-tblRig|1"_s}));
    QCOMPARE(ComponentRig(harness), rig);
    QCOMPARE(LoadRigComponents(rig).size(), 4);
    SetRigOwner(rig, 0);
    prompts.Expect(u"Big"_s, QString(), Answer::Yes);
    QVERIFY(ChangeRigType(rig, kTandem));
  }

  void TheGridHasARowForEachTypeOfTheRigType() {
    ThrowAwayLoft loft;
    const int rig = CreateRig(1, kSport, u"Red"_s);
    const int canopy = NewComponent(AddModel(u"Storm"_s, kMainCanopy), kMainCanopy, rig, u"S1"_s);
    loft.Run(u"update tblComponents set DOM = #1/14/2015#, SubType = '150'"_s);
    const QList<RigComponentRow> rows = LoadRigComponents(rig);
    QCOMPARE(rows.size(), 4);
    QCOMPARE(rows[0].typeName, u"Container"_s);
    QCOMPARE(rows[0].component, 0);
    QCOMPARE(rows[0].name + rows[0].serial + rows[0].dom, QString());
    QCOMPARE(rows[1].type, int{kMainCanopy});
    QCOMPARE(rows[1].component, canopy);
    QCOMPARE(rows[1].name, u"Storm 150"_s);
    QCOMPARE(rows[1].serial, u"S1"_s);
    QCOMPARE(rows[1].dom, u"01/14/2015"_s);
    QCOMPARE(LastSystemID(), rig);
    loft.Run(u"delete * from tblRigTypeComponents"_s);
    QVERIFY(LoadRigComponents(rig).isEmpty());
  }

  void ADoubledTypeIsToldAndLeft() {
    ThrowAwayLoft loft;
    const int rig = CreateRig(1, kSport, u"Red"_s);
    for (int i = 0; i < 2; ++i)
      loft.Add(u"tblComponents"_s, {{u"RigID"_s, rig}, {u"TypeID"_s, int{kAad}}, {u"ModelID"_s, 0}});
    ScriptedPrompts prompts;
    prompts.ExpectBox(u"uh oh!"_s, u"Red has 2 AAD"_s).WithIcon(Icon::Exclamation);
    LoadRigComponents(rig);
    QCOMPARE(loft.Rows(u"select count(*) from tblComponents"_s), QStringList(u"2"_s));
  }

  void ListsRigsByOwnerAndType() {
    ThrowAwayLoft loft;
    const int red = CreateRig(1, kTandem, u"Red"_s);
    const int blue = CreateRig(2, kSport, u"Blue"_s);
    const int green = CreateRig(1, kSport, u"Green"_s);
    QCOMPARE(LoadRigs(0, 0).ids, QList<int>({red, blue, green}));
    QCOMPARE(LoadRigs(1, 0).texts, QStringList({u"Red"_s, u"Green"_s}));
    QCOMPARE(LoadRigs(0, kSport).ids, QList<int>({blue, green}));
    QCOMPARE(LoadRigs(2, kTandem).Size(), 0);
  }

  void CustomersCarryTheNumberOfTheirRigs() {
    ThrowAwayLoft loft;
    const int ann = Named(u"Ann Jones"_s);
    const int bob = Named(u"Bob Smith"_s);
    Named(u"Cid Young"_s);
    CreateRig(ann, kSport, u"Red"_s);
    CreateRig(ann, kSport, u"Blue"_s);
    CreateRig(bob, kSport, u"Green"_s);
    QCOMPARE(LoadCustomers(false).texts, QStringList({u"Jones, Ann"_s, u"Smith, Bob"_s, u"Young, Cid"_s}));
    QCOMPARE(LoadCustomers(true).texts,
             QStringList({u"Jones, Ann  (2 rigs)"_s, u"Smith, Bob  (1 rig)"_s, u"Young, Cid  (no rigs)"_s}));
    DiagnosticMode = true;
    QCOMPARE(LoadCustomers(false).texts.first(), u"Jones, Ann (1)"_s);
    QCOMPARE(LoadRigs(bob, 0).texts, QStringList(u"Green (3)"_s));
    DiagnosticMode = false;
  }

  void RemovingAContainerTakesTheRepackOffTheSchedule() {
    ThrowAwayLoft loft;
    const int rig = CreateRig(1, kSport, u"Red"_s);
    const int container = NewComponent(AddModel(u"Javelin"_s, kContainer), kContainer, rig);
    const int aad = NewComponent(AddModel(u"Vigil"_s, kAad), kAad, rig);
    loft.Add(u"tblSchedules"_s, {{u"rigID"_s, rig}, {u"TaskLibID"_s, RepackTaskLibID}, {u"ComponentID"_s, 0}});
    loft.Add(u"tblSchedules"_s, {{u"rigID"_s, rig}, {u"TaskLibID"_s, 9}, {u"ComponentID"_s, aad}});
    const QStringList before = loft.Snapshot();
    ScriptedPrompts prompts;
    const QString end = u" from Red?\n\n(component will still be in the database)"_s;
    prompts.Expect(u"Remove AAD?"_s, u"Remove Vigil "_s + end, Answer::No).WithPreset(Answer::No);
    QVERIFY(!RemoveComponentFromRig(rig, aad));
    QCOMPARE(loft.ChangesSince(before), QStringList());
    prompts.Expect(u"Remove AAD?"_s, u"Remove Vigil "_s + end, Answer::Yes);
    QVERIFY(RemoveComponentFromRig(rig, aad));
    QCOMPARE(loft.Rows(u"select rigID, TaskLibID from tblSchedules"_s), QStringList({u"1|1"_s, u"0|9"_s}));
    prompts.Expect(u"Remove Container?"_s, u"Remove Javelin "_s + end, Answer::Yes);
    QVERIFY(RemoveComponentFromRig(rig, container));
    QCOMPARE(loft.Rows(u"select rigID, TaskLibID from tblSchedules"_s), QStringList(u"0|9"_s));
    QCOMPARE(loft.Rows(u"select RigID, OwnerID from tblComponents"_s), QStringList({u"0|1"_s, u"0|1"_s}));
  }

  void DeletingARigLeavesItsGear() {
    ThrowAwayLoft loft;
    const int rig = CreateRig(1, kSport, u"Red"_s);
    const int container = NewComponent(AddModel(u"Javelin"_s, kContainer), kContainer, rig);
    loft.Add(u"tblSchedules"_s, {{u"rigID"_s, rig}, {u"TaskLibID"_s, RepackTaskLibID}});
    loft.Add(u"tblSchedules"_s, {{u"rigID"_s, rig}, {u"TaskLibID"_s, 9}});
    loft.Add(u"tblPhotos"_s, {{u"rigID"_s, rig}, {u"PhotoFile"_s, "p.jpg"}});
    const QStringList before = loft.Snapshot();
    DeleteRig(rig);
    QCOMPARE(loft.TouchedSince(before), QStringList({u"-tblRig|1"_s, u"-tblSchedules|1"_s}));
    QCOMPARE(ComponentRig(container), rig);
  }

  void CommentsAreNeverEmpty() {
    ThrowAwayLoft loft;
    const int rig = CreateRig(1, kSport, u"Red"_s);
    SetRigComment(rig, u"It's new"_s);
    QCOMPARE(RigComment(rig), u"It's new"_s);
    SetRigComment(rig, u""_s);
    QCOMPARE(RigComment(rig), u" "_s);
  }

  void ARepackBindsContainerAndReserve() {
    ThrowAwayLoft loft;
    const int rig = CreateRig(1, kSport, u"Red"_s);
    const int container = NewComponent(AddModel(u"Javelin"_s, kContainer), kContainer, rig);
    QCOMPARE(RepackPartnerInRig(rig, container), 0);
    const int reserve = NewComponent(AddModel(u"Raven"_s, kReserveCanopy), kReserveCanopy, rig);
    QCOMPARE(RepackPartnerInRig(rig, container), reserve);
    QCOMPARE(RepackPartnerInRig(rig, reserve), container);
    QCOMPARE(RepackPartnerInRig(rig, NewComponent(AddModel(u"Vigil"_s, kAad), kAad, rig)), 0);
    ScriptedPrompts prompts;
    prompts
        .Expect(u"Add repack to schedule?"_s,
                u"There is a reserve repack task found for this\ncontainer and reserve.   \n\n"
                "Repack date: 01/01/2026\nExpiration date: 06/30/2026\n\n"
                "Would you like this to appear on the schedule?"_s,
                Answer::Yes)
        .WithPreset(Answer::No)
        .WithButtons(Buttons::YesNo);
    QVERIFY(AskAddRepackToSchedule(Date::FromParts(2026, 1, 1)));
  }
};

LOFT_TEST_MAIN(TestRigs)
#include "tst_rigs.moc"
