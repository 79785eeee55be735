#include <QtTest>

#include "core/default_rows.h"
#include "gear/component_editor.h"
#include "gear/component_list.h"
#include "gear/component_rules.h"
#include "gear/components.h"
#include "gear/models.h"
#include "schedule/schedule.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

class TestComponentEdges : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void AVeryLongLifeStillEndsBehindItsBeginning() {
    const ThrowAwayLoft loft;
    const int model = loft.Add(u"tblModels"_s, {{u"Name"_s, "Rock"}, {u"TypeID"_s, 1}, {u"ServiceLife"_s, 40000}});
    const Date made = Date::FromParts(2020, 1, 15);
    const int rock = loft.Add(u"tblComponents"_s, {{u"ModelID"_s, model}, {u"TypeID"_s, 1}, {u"DOM"_s, made}});
    QCOMPARE(ComponentExpiry(rock), Date::FromParts(4750, 8, 15));
  }

  void ASerialThatIsNowhereNamesNoComponent() {
    const ThrowAwayLoft loft;
    int id = 99;
    QCOMPARE(CountSerialsOfModel(1, u"S1"_s, id), 0);
    QCOMPARE(id, 0);
  }

  void DetachingLeavesTheRigsOtherEntries() {
    const ThrowAwayLoft loft;
    for (const int taskLib : {50, int{RepackTaskLibID}})
      loft.Add(u"tblSchedules"_s, {{u"rigID"_s, 4}, {u"TaskLibID"_s, taskLib}, {u"ComponentID"_s, 0}});
    loft.Add(u"tblSchedules"_s, {{u"rigID"_s, 4}, {u"TaskLibID"_s, 51}, {u"ComponentID"_s, 9}});
    loft.Add(u"tblComponents"_s, {{u"ID"_s, 9}, {u"TypeID"_s, int{kReserveCanopy}}});
    RemoveComponentFromSchedule(9, 4);
    QCOMPARE(loft.Rows(u"select TaskLibID, rigID from tblSchedules"_s), (QStringList{u"50|4"_s, u"51|0"_s}));
  }

  void AnEntryThatHasGoneReadsAsBlank() {
    const ThrowAwayLoft loft;
    ComponentEntry entry{.id = 5, .model = 7, .serial = u"S1"_s};
    QVERIFY(!LoadComponentEntry(5, entry));
    QCOMPARE(entry.id, 0);
    QCOMPARE(entry.serial, QString());
  }

  void JumpsFarBelowNothingAreRefused() {
    ScriptedPrompts prompts;
    prompts.ExpectBox(kProgramTitle, u"Number jumps field is too high"_s);
    int jumps = 3;
    QVERIFY(!ReadNumJumps(u"-2147483649"_s, jumps));
    QCOMPARE(jumps, 3);
  }

  void TheShortEntryFollowsTheTypeOfItsModel() {
    const ThrowAwayLoft loft;
    const int reserve = AddModel(u"Optimum"_s, kReserveCanopy);
    const int component = NewComponent(AddModel(u"Storm"_s, kMainCanopy), kMainCanopy, 0, u"S1"_s);
    SaveShortEntry(component, reserve, u"S2"_s, Date::FromParts(2020, 1, 15), u"143"_s);
    QCOMPARE(ComponentTypeOf(component), int{kReserveCanopy});
    QCOMPARE(ComponentSerial(component), u"S2"_s);
  }

  void ListsByModelAndCallsABlankSerialNone() {
    const ThrowAwayLoft loft;
    const int storm = AddModel(u"Storm"_s, kMainCanopy);
    const int pilot = AddModel(u"Pilot"_s, kMainCanopy);
    const int second = NewComponent(pilot, kMainCanopy, 0, u" "_s);
    const int first = NewComponent(storm, kMainCanopy, 0, u"S1"_s);
    const QList<ComponentListRow> rows = LoadComponentList({.type = kMainCanopy});
    QCOMPARE(rows.size(), 2);
    QCOMPARE(QList<int>({rows[0].id, rows[1].id}), QList<int>({first, second}));
    QCOMPARE(rows[1].serial, u"(none)"_s);
  }

  void SerialsComeInTheirOrder() {
    const ThrowAwayLoft loft;
    const int storm = AddModel(u"Storm"_s, kMainCanopy);
    for (const auto& serial : {u"S2"_s, QString(), u"S1"_s}) NewComponent(storm, kMainCanopy, 0, serial);
    QCOMPARE(LoadSerials(0).texts, (QStringList{u"S1"_s, u"S2"_s}));
    QCOMPARE(LoadSerials(kReserveCanopy).texts, QStringList());
  }

  void NoTypeIsNoAnswerToALostType() {
    const ThrowAwayLoft loft;
    const int component = NewComponent(AddModel(u"Storm"_s, kMainCanopy), kMainCanopy, 0, u"S1"_s);
    ScriptedPrompts prompts;
    prompts.ExpectBox(kProgramTitle, u"You must select a component type"_s);
    QVERIFY(!SetLostComponentType(component, 0));
    QCOMPARE(ComponentTypeOf(component), int{kMainCanopy});
  }
};

LOFT_TEST_MAIN(TestComponentEdges)
#include "tst_component_edges.moc"
