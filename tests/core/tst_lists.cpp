#include <QTest>

#include "core/lists.h"
#include "core/store/access.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

class TestLists : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void ModelsOfATypeComeByName() {
    const ThrowAwayLoft loft;
    const int vector = loft.Add(u"tblModels"_s, {{u"Name"_s, "Vector"}, {u"TypeID"_s, 1}});
    const int javelin = loft.Add(u"tblModels"_s, {{u"Name"_s, "Javelin"}, {u"TypeID"_s, 1}});
    loft.Add(u"tblModels"_s, {{u"Name"_s, "PD"}, {u"TypeID"_s, 2}});
    for (const IdList& list : {LoadModelsOfType(1), GetArrayOfModels(1)}) {
      QCOMPARE(list.texts, QStringList({u"Javelin"_s, u"Vector"_s}));
      QCOMPARE(list.ids, QList<int>({javelin, vector}));
    }
    QCOMPARE(LoadModelsOfType(6).Size(), 0);
    QVERIFY(!ConnectionIsOpen);
  }

  void TasksAndEventsArePartedByTheirFlag() {
    const ThrowAwayLoft loft;
    loft.Run(u"Delete * from tblTaskLib"_s);
    const int patch = loft.Add(u"tblTaskLib"_s, {{u"Name"_s, "Patch"}, {u"IsEvent"_s, false}, {u"LogBook"_s, true}});
    const int jump = loft.Add(u"tblTaskLib"_s, {{u"Name"_s, "Jump"}, {u"IsEvent"_s, true}, {u"LogBook"_s, false}});
    QCOMPARE(LoadTaskList().ids, QList<int>({jump, patch}));
    QCOMPARE(LoadTaskOrEventList(false).texts, QStringList{u"Patch"_s});
    loft.Add(u"tblTaskLib"_s, {{u"Name"_s, "Assemble"}, {u"IsEvent"_s, false}, {u"LogBook"_s, false}});
    QCOMPARE(LoadTaskOrEventList(false).texts, (QStringList{u"Assemble"_s, u"Patch"_s}));
    QCOMPARE(LoadTaskOrEventList(true).texts, QStringList{u"Jump"_s});
    QCOMPARE(GetArrayOfTasksExpanded().ids, QList<int>{patch});
  }

  void RigTypesAndTheirComponents() {
    const ThrowAwayLoft loft;
    loft.Run(u"Delete * from tblRigTypes"_s);
    loft.Run(u"Delete * from tblRigTypeComponents"_s);
    const int tandem = loft.Add(u"tblRigTypes"_s, {{u"Name"_s, "Tandem"}});
    const int sport = loft.Add(u"tblRigTypes"_s, {{u"Name"_s, "Sport"}});
    loft.Add(u"tblRigTypeComponents"_s, {{u"RigTypeID"_s, sport}, {u"ComponentTypeID"_s, 3}});
    loft.Add(u"tblRigTypeComponents"_s, {{u"RigTypeID"_s, sport}, {u"ComponentTypeID"_s, 1}});
    QCOMPARE(LoadRigTypes().ids, QList<int>({sport, tandem}));
    const IdList types = LoadComponentTypes();
    QCOMPARE(types.ids.mid(0, 3), QList<int>({1, 2, 3}));
    QCOMPARE(GetArrayOfComponentTypes().texts, types.texts);
    const IdList parts = LoadRigTypeComponents(sport);
    QCOMPARE(parts.ids, QList<int>({1, 3}));
    QCOMPARE(parts.texts, QStringList({types.texts[0], types.texts[2]}));
  }

  void RigsOfOneOwnerOrOfAll() {
    const ThrowAwayLoft loft;
    const int red = loft.Add(u"tblRig"_s, {{u"rigAlias"_s, "Red"}, {u"OwnerID"_s, 5}});
    const int blue = loft.Add(u"tblRig"_s, {{u"rigAlias"_s, "Blue"}, {u"OwnerID"_s, 6}});
    QCOMPARE(GetArrayOfRigs().ids, QList<int>({blue, red}));
    QCOMPARE(GetArrayOfRigs(5).texts, QStringList{u"Red"_s});
    loft.Add(u"tblRig"_s, {{u"rigAlias"_s, "Green"}, {u"OwnerID"_s, 5}});
    QCOMPARE(GetArrayOfRigs(5).texts, (QStringList{u"Green"_s, u"Red"_s}));
  }

  void LocationsTellWhatIsFilled() {
    const ThrowAwayLoft loft;
    loft.Add(u"tblLocation"_s, {{u"Location"_s, "Shop"}, {u"City"_s, "Orange"}, {u"State"_s, "VA"}});
    loft.Add(u"tblLocation"_s, {{u"Location"_s, "Airfield"}, {u"City"_s, " "}, {u"State"_s, "NY"}});
    QCOMPARE(GetArrayOfLocations().texts, QStringList({u"Airfield, NY"_s, u"Shop, Orange, VA"_s}));
  }

  void PeopleAreNamedByWhatTheyHave() {
    const ThrowAwayLoft loft;
    const int ann = loft.Add(u"tblPeople"_s, {{u"LastName"_s, "Jones"}, {u"FirstName"_s, "Ann"}, {u"Rigger"_s, true}});
    const int club = loft.Add(u"tblPeople"_s, {{u"LastName"_s, ""}, {u"FirstName"_s, ""}, {u"OrgName"_s, "Sky Club"}});
    const int smith = loft.Add(u"tblPeople"_s, {{u"LastName"_s, "Smith"}, {u"FirstName"_s, " "}});
    const IdList people = GetArrayOfPeopleExpanded();
    QCOMPARE(people.texts, QStringList({u"Sky Club"_s, u"Jones, Ann"_s, u"Smith"_s}));
    QCOMPARE(people.ids, QList<int>({club, ann, smith}));
    QCOMPARE(GetArrayOfRiggers().ids, QList<int>{ann});
    QCOMPARE(GetArrayOfRiggers(true).ids, QList<int>({club, ann, smith}));
  }

  void RiggersStandByLastAndFirstName() {
    const ThrowAwayLoft loft;
    const auto add = [&](const char* last, const char* first) {
      return loft.Add(u"tblPeople"_s, {{u"LastName"_s, last}, {u"FirstName"_s, first}, {u"Rigger"_s, true}});
    };
    const int smith = add("Smith", "Al");
    const int zoe = add("Jones", "Zoe");
    const int ann = add("Jones", "Ann");
    QCOMPARE(GetArrayOfRiggers().ids, QList<int>({ann, zoe, smith}));
    QCOMPARE(GetArrayOfRiggers(true).ids, QList<int>({ann, zoe, smith}));
    QCOMPARE(GetArrayOfPeopleExpanded().ids, QList<int>({ann, zoe, smith}));
    const int sky = loft.Add(u"tblPeople"_s, {{u"LastName"_s, ""}, {u"FirstName"_s, ""}, {u"OrgName"_s, "Sky"}});
    const int air = loft.Add(u"tblPeople"_s, {{u"LastName"_s, ""}, {u"FirstName"_s, ""}, {u"OrgName"_s, "Air"}});
    QCOMPARE(GetArrayOfPeopleExpanded().ids, QList<int>({air, sky, ann, zoe, smith}));
  }

  void AFailureShowsTheLoadersName() {
    const ThrowAwayLoft loft;
    ConnectionString = ConnectionStringFor(loft.Folder() / u"missing/loftkeep.mdb"_s);
    ScriptedPrompts prompts;
    prompts.AnswerRestWith([](const ShownPrompt&) { return Answer::Ok; });
    QCOMPARE(GetArrayOfRigs().Size(), 0);
    QCOMPARE(prompts.Transcript().size(), 2);
    QCOMPARE(prompts.Transcript().first().title, u"Sub ConnectionStart"_s);
    QCOMPARE(prompts.Transcript().last().title, u"Sub GetArrayOfRigs"_s);
    QVERIFY(!ConnectionIsOpen);
  }
};

LOFT_TEST_MAIN(TestLists)
#include "tst_lists.moc"
