#include <QtTest>

#include "core/default_rows.h"
#include "gear/component_editor.h"
#include "gear/component_rules.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/person_names.h"
#include "gear/rig_rules.h"
#include "gear/rigs.h"
#include "jobs/gear_deletion.h"
#include "schedule/gear_moves.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

namespace {

const Date kToday = Date::FromParts(2026, 3, 2);

/// Two owners with a rig each; Ann's has a main canopy.
struct Gear {
  ThrowAwayLoft loft;
  int ann = Named(u"Ann Jones"_s);
  int bob = Named(u"Bob Smith"_s);
  int red = CreateRig(ann, 1, u"Red"_s);
  int blue = CreateRig(bob, 1, u"Blue"_s);
  int storm = AddModel(u"Storm"_s, kMainCanopy);
  int canopy = NewComponent(storm, kMainCanopy, red, u"S1"_s);

  static int Named(const QString& name) {
    int id = 0;
    AddPersonByName(name, id);
    return id;
  }
};

const QString kMoveText =
    u"The Main Canopy you selected:\n     Storm \nis already part of a rig: \nRed\nOwned by: \nJones, Ann\n"
    "Do you want to move this Main Canopy to the current rig?"_s;
const QString kOwnerText =
    u"This component (Storm ) is owned by Ann Jones\nbut you are adding it to a rig owned by Bob Smith\n\n"
    "Do you want to change component owner to Bob Smith?"_s;

}  // namespace

class TestComponentRules : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void ARefusedMoveChangesNothing() {
    Gear gear;
    const QStringList before = gear.loft.Snapshot();
    ScriptedPrompts prompts;
    prompts.Expect(u"Move Main Canopy?"_s, kMoveText, Answer::No).WithPreset(Answer::No).WithButtons(Buttons::YesNo);
    int component = gear.canopy;
    QVERIFY(!CheckMove(kMainCanopy, gear.blue, component, false, kToday));
    QCOMPARE(component, 0);
    QCOMPARE(gear.loft.ChangesSince(before), QStringList());
  }

  void AMoveLeavesATraceOnTheOldRig() {
    Gear gear;
    const int old = NewComponent(gear.storm, kMainCanopy, gear.blue, u"S2"_s);
    const QStringList before = gear.loft.Snapshot();
    ScriptedPrompts prompts;
    prompts.Expect(u"Move Main Canopy?"_s, kMoveText, Answer::Yes);
    int component = gear.canopy;
    QVERIFY(CheckMove(kMainCanopy, gear.blue, component, false, kToday, 3));
    QCOMPARE(component, gear.canopy);
    QCOMPARE(ComponentRig(gear.canopy), gear.blue);
    QCOMPARE(ComponentOwner(gear.canopy), gear.ann);
    QCOMPARE(ComponentRig(old), 0);
    QCOMPARE(
        gear.loft.Rows(u"select JobID, CustomerID, RiggerID, FlatRate, HourlyRate, Tax, NumHours, Comments, "
                       "DateTaskCompleted, DateTaskStarted, TaskLibID, LogBook, Status, TaskName, SystemID, "
                       "PartID, IsEvent, LocationID from tblTasks"_s),
        QStringList(u"0|1|0|0|0|0|0.0| |%1|%1|3|0|-1|Remove Main Canopy Storm  from Red|1|0|0|3"_s.arg(kToday.Days())));
    QCOMPARE(gear.loft.Rows(u"select CompID, Complete from tblTaskComponents"_s), QStringList(u"1|-1"_s));
    QCOMPARE(gear.loft.ChangesSince(before).size(), 6);
  }

  void AMoveWithoutADateLeavesNoTrace() {
    Gear gear;
    ScriptedPrompts prompts;
    prompts.Expect(u"Move Main Canopy?"_s, kMoveText, Answer::Yes);
    int component = gear.canopy;
    QVERIFY(CheckMove(kMainCanopy, gear.blue, component, false, Date()));
    QCOMPARE(gear.loft.Rows(u"select * from tblTasks"_s), QStringList());
    QCOMPARE(ComponentRig(gear.canopy), gear.blue);
  }

  void TheSameRigIsTold() {
    Gear gear;
    const QStringList before = gear.loft.Snapshot();
    ScriptedPrompts prompts;
    prompts.ExpectBox(kProgramTitle, u"You have selected a Storm  that is part of the same rig.  Selection cancelled"_s)
        .WithIcon(Icon::Exclamation);
    int component = gear.canopy;
    QVERIFY(CheckMove(kMainCanopy, gear.red, component, false, kToday));
    QCOMPARE(component, gear.canopy);
    QVERIFY(CheckMove(kMainCanopy, gear.blue, component, true, kToday));
    component = 0;
    QVERIFY(CheckMove(kMainCanopy, gear.blue, component, false, kToday));
    QCOMPARE(gear.loft.ChangesSince(before), QStringList());
  }

  void OwnersThatDifferAreAskedAbout() {
    Gear gear;
    ScriptedPrompts prompts;
    prompts.Expect(u"Change component owner?"_s, kOwnerText, Answer::Cancel)
        .WithButtons(Buttons::YesNoCancel)
        .WithIcon(Icon::Question);
    QVERIFY(!CheckOwner(gear.blue, gear.canopy));
    prompts.Expect(u"Change component owner?"_s, kOwnerText, Answer::No);
    QVERIFY(CheckOwner(gear.blue, gear.canopy));
    QCOMPARE(ComponentOwner(gear.canopy), gear.ann);
    prompts.Expect(u"Change component owner?"_s, kOwnerText, Answer::Yes);
    QVERIFY(CheckOwner(gear.blue, gear.canopy));
    QCOMPARE(ComponentOwner(gear.canopy), gear.bob);
    SetComponentOwner(gear.canopy, 99);
    QVERIFY(CheckOwner(gear.blue, gear.canopy));
    SetComponentOwner(gear.canopy, 0);
    QVERIFY(CheckOwner(gear.blue, gear.canopy));
    QCOMPARE(ComponentOwner(gear.canopy), 0);
    SetComponentOwner(gear.canopy, gear.ann);
    SetRigOwner(gear.blue, 0);
    QVERIFY(CheckOwner(gear.blue, gear.canopy));
    QCOMPARE(ComponentOwner(gear.canopy), gear.ann);
  }

  void InstallingFreesThePlaceAndTakesThePhotosAlong() {
    Gear gear;
    const int old = NewComponent(gear.storm, kMainCanopy, gear.blue);
    const int loose = NewComponent(gear.storm, kMainCanopy, 0);
    gear.loft.Add(u"tblPhotos"_s, {{u"ComponentID"_s, loose}, {u"rigID"_s, 0}});
    gear.loft.Add(u"tblPhotos"_s, {{u"ComponentID"_s, old}, {u"rigID"_s, gear.blue}});
    ScriptedPrompts prompts;
    QVERIFY(InstallChosenComponent(gear.blue, loose, kToday));
    QCOMPARE(ComponentRig(loose), gear.blue);
    QCOMPARE(ComponentRig(old), 0);
    QVERIFY(ComponentExists(old));
    QCOMPARE(ComponentOwner(loose), 0);
    QCOMPARE(gear.loft.Rows(u"select rigID from tblPhotos"_s), QStringList({u"2"_s, u"2"_s}));
    QCOMPARE(gear.loft.Rows(u"select LastComponentID from tblMisc"_s), QStringList(QString::number(loose)));
  }

  void AnInstalledComponentTakesTheTypeOfItsModel() {
    Gear gear;
    const int loose = NewComponent(gear.storm, kMainCanopy, 0);
    gear.loft.Run(u"update tblModels set TypeID = 5 where ID = %1"_s.arg(gear.storm));
    QVERIFY(InstallChosenComponent(gear.blue, loose, kToday));
    QCOMPARE(ComponentTypeOf(loose), 5);
  }

  void ACancelledOwnerQuestionStopsTheInstall() {
    Gear gear;
    SetComponentRig(gear.canopy, 0);
    ScriptedPrompts prompts;
    prompts.Expect(u"Change component owner?"_s, kOwnerText, Answer::Cancel);
    QVERIFY(!InstallChosenComponent(gear.blue, gear.canopy, kToday));
    QCOMPARE(ComponentRig(gear.canopy), 0);
  }

  void InstallComponentGivesAnOwnerOnlyOutsideRigs() {
    Gear gear;
    SetComponentOwner(gear.canopy, 0);
    InstallComponent(gear.blue, gear.canopy, gear.bob);
    QCOMPARE(ComponentOwner(gear.canopy), 0);
    InstallComponent(0, gear.canopy, gear.bob);
    QCOMPARE(ComponentOwner(gear.canopy), gear.bob);
    InstallComponent(0, gear.canopy, gear.ann);
    QCOMPARE(ComponentOwner(gear.canopy), gear.bob);
  }

  void TheModelsTypeWins() {
    Gear gear;
    SetComponentType(gear.canopy, 0);
    const QStringList before = gear.loft.Snapshot();
    CheckComponentType(gear.canopy);
    QCOMPARE(ComponentTypeOf(gear.canopy), int{kMainCanopy});
    QCOMPARE(gear.loft.ChangesSince(before).size(), 2);
  }

  void FindsSerialsWhateverTheirCase() {
    Gear gear;
    const int other = NewComponent(AddModel(u"Vigil"_s, kAad), kAad, 0, u" s1 "_s);
    int id = 0;
    QCOMPARE(FindBySerial(u" s1"_s, kMainCanopy, id), 1);
    QCOMPARE(id, gear.canopy);
    QCOMPARE(FindBySerial(u"S1"_s, 0, id), 2);
    QCOMPARE(id, other);
    QCOMPARE(FindBySerial(u" "_s, 0, id), 0);
    QCOMPARE(id, 0);
  }

  void AnswersForATypedSerial() {
    Gear gear;
    ScriptedPrompts prompts;
    QCOMPARE(CommandForSerial(u" "_s, kMainCanopy), QString());
    QCOMPARE(CommandForSerial(u"s1"_s, kMainCanopy), u"load component:"_s + QString::number(gear.canopy));
    const QString missing =
        u"Serial number x9 is not found in the Main Canopy database\n"
        "Would you like to create a new Main Canopy using that serial number?"_s;
    prompts.Expect(u"Add new Main Canopy?"_s, missing, Answer::No).WithPreset(Answer::No).WithButtons(Buttons::YesNo);
    QCOMPARE(CommandForSerial(u"x9"_s, kMainCanopy), QString());
    prompts.Expect(u"Add new Main Canopy?"_s, missing, Answer::Yes);
    QCOMPARE(CommandForSerial(u" x9 "_s, kMainCanopy), u"new with s/n:x9"_s);
    NewComponent(gear.storm, kMainCanopy, 0, u"S1"_s);
    const QString several =
        u"The Main Canopy database shows 2 components with that serial number\nWould you like to see them?"_s;
    prompts.Expect(u"Serial number s1 has 2 matches"_s, several, Answer::Yes);
    QCOMPARE(CommandForSerial(u"s1"_s, kMainCanopy), u"s/n S1"_s);
    prompts.Expect(u"Serial number s1 has 2 matches"_s, several, Answer::No);
    QCOMPARE(CommandForSerial(u"s1"_s, kMainCanopy), u"cancel"_s);
  }

  void AsksToAddAFreeComponent() {
    Gear gear;
    const int loose = NewComponent(gear.storm, kMainCanopy, 0);
    ScriptedPrompts prompts;
    const QString text =
        u"The Main Canopy you selected:\n     Storm \nis not part of the rig: Red\n"
        "Do you want to add this Main Canopy to this rig?"_s;
    prompts.Expect(u"Add Main Canopy?"_s, text, Answer::No);
    QVERIFY(!AskAddToRig(kMainCanopy, gear.red, loose));
    QCOMPARE(ComponentRig(loose), 0);
    prompts.Expect(u"Add Main Canopy?"_s, text, Answer::Yes);
    QVERIFY(AskAddToRig(kMainCanopy, gear.red, loose));
    QCOMPARE(ComponentRig(loose), gear.red);
    QCOMPARE(ComponentRig(gear.canopy), 0);
  }

  void AnotherOwnerThanTheRigsIsAskedAbout() {
    Gear gear;
    ScriptedPrompts prompts;
    const QString text =
        u"This component is part of a rig (Red) which is \nowner by Ann Jones\n\n"
        "Are you sure you want to change the component's owner to Bob Smith?"_s;
    prompts.Expect(u"Change component owner?"_s, text, Answer::No);
    QVERIFY(!ChangeComponentOwner(gear.canopy, gear.bob));
    QCOMPARE(ComponentOwner(gear.canopy), gear.ann);
    prompts.Expect(u"Change component owner?"_s, text, Answer::Yes);
    QVERIFY(ChangeComponentOwner(gear.canopy, gear.bob));
    QVERIFY(ChangeComponentOwner(gear.canopy, gear.ann));
    QCOMPARE(ComponentOwner(gear.canopy), gear.ann);
  }

  void RemovingFromItsRigTakesThePhotosAlong() {
    Gear gear;
    gear.loft.Add(u"tblPhotos"_s, {{u"ComponentID"_s, gear.canopy}, {u"rigID"_s, gear.red}});
    ScriptedPrompts prompts;
    prompts.Expect(u"Remove Main Canopy?"_s, u"Remove Storm  from Red?"_s, Answer::No);
    QVERIFY(!RemoveFromItsRig(gear.canopy));
    prompts.Expect(u"Remove Main Canopy?"_s, u"Remove Storm  from Red?"_s, Answer::Yes);
    QVERIFY(RemoveFromItsRig(gear.canopy));
    QCOMPARE(ComponentRig(gear.canopy), 0);
    QCOMPARE(ComponentOwner(gear.canopy), gear.ann);
    QCOMPARE(gear.loft.Rows(u"select rigID from tblPhotos"_s), QStringList(u"0"_s));
  }

  void AnUnknownOwnerIsRepairedFromTheRig() {
    Gear gear;
    RepairComponentOwner(gear.canopy);
    QCOMPARE(ComponentOwner(gear.canopy), gear.ann);
    SetComponentOwner(gear.canopy, gear.bob);
    RepairComponentOwner(gear.canopy);
    QCOMPARE(ComponentOwner(gear.canopy), gear.bob);
    for (int owner : {0, 99}) {
      SetComponentOwner(gear.canopy, owner);
      RepairComponentOwner(gear.canopy);
      QCOMPARE(ComponentOwner(gear.canopy), gear.ann);
    }
    SetComponentOwner(gear.canopy, 0);
    SetRigOwner(gear.red, 99);
    RepairComponentOwner(gear.canopy);
    QCOMPARE(ComponentOwner(gear.canopy), 0);
  }

  void ALostTypeIsAskedFor() {
    Gear gear;
    SetComponentType(gear.canopy, 0);
    ScriptedPrompts prompts;
    prompts.ExpectBox(kProgramTitle,
                      u"This component has lost its component type\n\n     Storm \n\n"
                      "Please select a component type on the next screen"_s);
    TellLostComponentType(gear.canopy);
    prompts.ExpectBox(kProgramTitle, u"You must select a component type"_s);
    QVERIFY(!SetLostComponentType(gear.canopy, -1));
    prompts.Expect(kProgramTitle, u"Storm  = Main Canopy?\nIs this correct?"_s, Answer::No);
    QVERIFY(!SetLostComponentType(gear.canopy, kMainCanopy));
    QCOMPARE(ComponentTypeOf(gear.canopy), 0);
    prompts.Expect(kProgramTitle, u"Storm  = Main Canopy?\nIs this correct?"_s, Answer::Yes);
    QVERIFY(SetLostComponentType(gear.canopy, kMainCanopy));
    QCOMPARE(ComponentTypeOf(gear.canopy), int{kMainCanopy});
  }

  void DeletesAnUnusedComponentAlone() {
    Gear gear;
    const int loose = NewComponent(gear.storm, kMainCanopy, 0);
    const QStringList before = gear.loft.Snapshot();
    ScriptedPrompts prompts;
    prompts.ExpectBox(u"Nothing selected"_s, u"Please select a component"_s);
    QVERIFY(!DeleteComponent(0));
    prompts.Expect(u"Delete Main Canopy"_s, u"Are you sure you want to delete Storm ?"_s, Answer::No);
    QVERIFY(!DeleteComponent(loose));
    prompts.Expect(u"Delete Main Canopy"_s, u"Are you sure you want to delete Storm ?"_s, Answer::Yes);
    QVERIFY(DeleteComponent(loose));
    QCOMPARE(gear.loft.TouchedSince(before), QStringList(u"-tblComponents|2"_s));
  }

  void DeletingAUsedComponentIsNotRecommended() {
    Gear gear;
    const int other = NewComponent(gear.storm, kMainCanopy, 0);
    for (int id : {gear.canopy, other}) {
      gear.loft.Add(u"tblJobComponents"_s, {{u"JobID"_s, 7}, {u"ComponentID"_s, id}});
      gear.loft.Add(u"tblTaskComponents"_s, {{u"TaskID"_s, 8}, {u"CompID"_s, id}});
      gear.loft.Add(u"tblSchedules"_s, {{u"TaskLibID"_s, 9}, {u"ComponentID"_s, id}});
    }
    const QString text =
        u"This item, Storm , is being used:\n    as part of a rig\n    is used in one or more jobs\n"
        "    is used in one or more tasks\n    is used in one or more schedules\n"
        "Deleting this component will affect the above items\n(You can see a list of these from the REPORTS menu)\n"
        "Are you sure you want to delete this component?\n(not recommended)"_s;
    const QStringList before = gear.loft.Snapshot();
    ScriptedPrompts prompts;
    prompts.Expect(u"Deleting NOT recommended"_s, text, Answer::No).WithPreset(Answer::No).WithButtons(Buttons::YesNo);
    QVERIFY(!DeleteComponent(gear.canopy));
    QCOMPARE(gear.loft.ChangesSince(before), QStringList());
    prompts.Expect(u"Deleting NOT recommended"_s, text, Answer::Yes);
    QVERIFY(DeleteComponent(gear.canopy));
    QCOMPARE(gear.loft.TouchedSince(before), QStringList({u"-tblComponents|1"_s, u"-tblJobComponents|7"_s,
                                                          u"-tblSchedules|1"_s, u"-tblTaskComponents|8"_s}));
  }

  void ReadsADateOfManufacture_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<Date>("dom");
    QTest::newRow("blank") << "  " << Date();
    QTest::newRow("year") << "1995" << Date::FromParts(1995, 1, 1);
    QTest::newRow("first year") << "1850" << Date::FromParts(1850, 1, 1);
    QTest::newRow("date") << "1/14/2015" << Date::FromParts(2015, 1, 14);
    QTest::newRow("backslashes") << "1\\14\\2015" << Date::FromParts(2015, 1, 14);
  }
  void ReadsADateOfManufacture() {
    QFETCH(QString, text);
    ScriptedPrompts prompts;
    Date dom(7);
    QVERIFY(ReadDom(text, dom));
    QTEST(dom, "dom");
  }

  void RefusesWhatIsNoDate() {
    ScriptedPrompts prompts;
    Date dom;
    for (const auto& text : {u"1849"_s, u"2300"_s, u"2/30/2015"_s, u"soon"_s}) {
      prompts.ExpectBox(u"DOM is invalid!"_s, text + u" is not a valid date"_s);
      QVERIFY(!ReadDom(text, dom));
    }
  }

  void ReadsANumberOfJumps() {
    ScriptedPrompts prompts;
    int jumps = -1;
    QVERIFY(ReadNumJumps(u"1,000"_s, jumps));
    QCOMPARE(jumps, 1000);
    QVERIFY(ReadNumJumps(QString(), jumps));
    QCOMPARE(jumps, 0);
    QVERIFY(ReadNumJumps(u"2,147,483,647"_s, jumps));
    QCOMPARE(jumps, 2147483647);
    prompts.ExpectBox(kProgramTitle, u"Number jumps field is too high"_s);
    QVERIFY(!ReadNumJumps(u"2147483648"_s, jumps));
  }

  void ASerialStandsOnceInAModel() {
    Gear gear;
    const int other = NewComponent(gear.storm, kMainCanopy, 0, u"S2"_s);
    ScriptedPrompts prompts;
    QCOMPARE(CheckSerial(gear.storm, u" "_s, other).verdict, SerialCheck::Pass);
    QCOMPARE(CheckSerial(gear.storm, u"S9"_s, other).verdict, SerialCheck::Pass);
    QCOMPARE(CheckSerial(gear.storm, u"s2 "_s, other).verdict, SerialCheck::Pass);
    QCOMPARE(CheckSerial(AddModel(u"Pilot"_s, kMainCanopy), u"S1"_s, other).verdict, SerialCheck::Pass);
    prompts.ExpectBox(kProgramTitle, u"That serial number is already being used\nby the component shown here"_s);
    const SerialCheck check = CheckSerial(gear.storm, u"s1 "_s, other);
    QCOMPARE(check.verdict, SerialCheck::InUse);
    QCOMPARE(check.other, gear.canopy);
    NewComponent(gear.storm, kMainCanopy, 0, u"S1"_s);
    prompts.ExpectBox(kProgramTitle, u"there are 2 matching s/n for this model"_s);
    QCOMPARE(CheckSerial(gear.storm, u"S1"_s, other).verdict, SerialCheck::Refused);
  }

  void ANewComponentMayGiveWayToTheOneThatExists() {
    Gear gear;
    const int aerodyne = AddModel(u"Aerodyne"_s, kMainCanopy);
    const int old = NewComponent(aerodyne, kMainCanopy, 0, u"A7"_s);
    ScriptedPrompts prompts;
    prompts
        .Expect(u"Component already exists"_s,
                u"There already is a Storm main canopy\nwith serial number s1 in the component database. \n\n"
                "Would you like to see it?"_s,
                Answer::No)
        .WithButtons(Buttons::YesNo);
    QCOMPARE(CheckSerial(gear.storm, u"s1"_s, 0).verdict, SerialCheck::Refused);
    prompts.Expect(u"Component already exists"_s,
                   u"There already is an Aerodyne main canopy\nwith serial number a7 in the component database. \n\n"
                   "Would you like to see it?"_s,
                   Answer::Yes);
    const SerialCheck check = CheckSerial(aerodyne, u"a7"_s, 0);
    QCOMPARE(check.verdict, SerialCheck::SwitchTo);
    QCOMPARE(check.other, old);
  }

  void SavesANewAndAnExistingComponent() {
    Gear gear;
    const QStringList before = gear.loft.Snapshot();
    ComponentEntry entry{.model = gear.storm,
                         .type = kAad,
                         .owner = gear.ann,
                         .rig = 0,
                         .subType = u"150"_s,
                         .serial = u"S7"_s,
                         .color = u"red"_s,
                         .dom = Date::FromParts(2015, 1, 14),
                         .jumps = 12};
    const int id = SaveComponentEntry(entry);
    QCOMPARE(gear.loft.ChangesSince(before), QStringList(u"+tblComponents|2|1|2|42018|150| |1|red|0|12|S7|0|0|"_s));
    ComponentEntry read;
    QVERIFY(LoadComponentEntry(id, read));
    QCOMPARE(read.dom, entry.dom);
    read.comment = u"good"_s;
    read.rig = gear.red;
    QCOMPARE(SaveComponentEntry(read), id);
    QCOMPARE(gear.loft.ChangesSince(before), QStringList(u"+tblComponents|2|1|2|42018|150|good|1|red|0|12|S7|0|0|"_s));
    SaveShortEntry(id, gear.storm, u"S8"_s, Date(), u"170"_s);
    QCOMPARE(gear.loft.ChangesSince(before), QStringList(u"+tblComponents|2|1|2|0|170|good|1|red|0|12|S8|0|0|"_s));
  }

  void LeftoversOfTheEditorAreTold() {
    Gear gear;
    ScriptedPrompts prompts;
    QVERIFY(!LoadComponentEntry(99, *std::make_unique<ComponentEntry>()));
    prompts.ExpectBox(u"Darn!"_s, u"you shouldn't be here - updating record but no record"_s);
    QCOMPARE(SaveComponentEntry({.id = 99, .model = gear.storm}), 0);
    prompts.ExpectBox(kProgramTitle, u"ModelID = 0"_s);
    QVERIFY(SaveComponentEntry({}) != 0);
    QCOMPARE(SubTypeLabel(kReserveCanopy), u"Canopy Size:"_s);
    QCOMPARE(SubTypeLabel(kContainer), u"Model sub type:"_s);
  }
};

LOFT_TEST_MAIN(TestComponentRules)
#include "tst_component_rules.moc"
