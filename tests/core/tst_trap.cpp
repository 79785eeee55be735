#include <QtTest>

#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/trap.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

class TestTrap : public QObject {
  Q_OBJECT

  static bool Failing() {
    return Trap(u"Sub Within"_s, [] { throw Failure(u"File not found"_s); });
  }
  static bool FailingWithDetails() {
    return TrapWith(
        u"Sub Within"_s, [] { throw Failure(u"File not found"_s); }, [] { return u"File: a.txt"_s; });
  }

 private Q_SLOTS:
  void AFailureShowsItsBoxAndTheCallerGoesOn() {
    ScriptedPrompts prompts;
    prompts.ExpectBox(u"Sub Within"_s, u"File not found"_s).WithIcon(Icon::Exclamation);
    QVERIFY(!Failing());
    prompts.ExpectBox(u"Sub Within"_s, u"File not found\nFile: a.txt"_s);
    QVERIFY(!FailingWithDetails());
    QVERIFY(Trap(u"Sub Within"_s, [] {}));
  }

  void OfAReadingThatIsAllOrNothingTheOutermostRoutineTells() {
    ScriptedPrompts prompts;
    bool wentOn = false;
    prompts.ExpectBox(u"Sub Outside"_s, u"File not found"_s);
    QVERIFY(!Trap(u"Sub Outside"_s, [&] {
      const AllOrNothing whole;
      Failing();
      wentOn = true;
    }));
    QVERIFY(!wentOn);
    QVERIFY(!AllOrNothing::Stands());
    prompts.ExpectBox(u"Sub Within"_s, u"File not found"_s);
    QVERIFY(!Failing());
  }

  void TheDetailsOfTheRoutineWithinAreNotLost() {
    ScriptedPrompts prompts;
    prompts.ExpectBox(u"Sub Outside"_s, u"File not found\nFile: a.txt"_s);
    QVERIFY(!Trap(u"Sub Outside"_s, [] {
      const AllOrNothing whole;
      FailingWithDetails();
    }));
  }

  void AnOperationThatFailsWithinPassesItsFailureOn() {
    ScriptedPrompts prompts;
    const ThrowAwayLoft loft;
    prompts.ExpectBox(u"Sub Outside"_s, u"Type mismatch"_s);
    QVERIFY(!Trap(u"Sub Outside"_s, [] {
      const AllOrNothing whole;
      Operation(u"Sub Within"_s, [] { throw Failure(u"Type mismatch"_s); });
    }));
    prompts.ExpectBox(u"Sub Outside"_s, u"disk error"_s);
    QVERIFY(!Trap(u"Sub Outside"_s, [] {
      const AllOrNothing whole;
      Operation(u"Sub Within"_s, [] { throw StorageFailure(u"disk error"_s); });
    }));
    QVERIFY(!OperationScope::AnyStands());
    QVERIFY(!Bracket::Stands());
  }

  void WithoutADatabaseAReadingThatIsAllOrNothingLeavesNoBracketStanding() {
    ScriptedPrompts prompts;
    const TempFolder folder;
    ConnectionString = ConnectionStringFor(folder / u"gone.mdb"_s);
    {
      const AllOrNothing whole;
      QVERIFY_THROWS_EXCEPTION(Failure, GetValueFromTable(u"tblRig"_s, u"ID"_s, 1, u"rigAlias"_s));
    }
    QVERIFY(!Bracket::Stands());
    QVERIFY(!ConnectionIsOpen);
    ConnectionString.clear();
  }
};

LOFT_TEST_MAIN(TestTrap)
#include "tst_trap.moc"
