#include <QtTest>

#include "core/failure.h"
#include "core/store/access.h"
#include "core/store/database.h"
#include "core/store/operation.h"
#include "core/trap.h"
#include "support/counting_form.h"
#include "support/faulty_disk.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

namespace {

const QString kFull = u"There is not enough space on the disk.\nNothing was changed."_s;

void AddRig(const QString& alias, int owner = 0) {
  Operation(u"Sub AddRig"_s, [&] {
    Recordset rigs(u"tblRig"_s);
    rigs.AddNew();
    rigs.Set(u"RigAlias", alias);
    rigs.Set(u"OwnerID", owner);
    rigs.Update();
  });
}

/// From here on the file may not grow.
void FillDisk() {
  Bracket bracket;
  sqlite3_stmt* limit = OpenDatabase().Plain("PRAGMA max_page_count = 1");
  while (OpenDatabase().Step(limit)) {
  }
  bracket.Close();
}

void FreeDisk() { ReleaseDatabaseFile(); }

const QString kLong = QString(200000, u'x');

class Shop {
 public:
  ThrowAwayLoft loft;
  ScriptedPrompts prompts;
  QStringList Rigs() const { return loft.Rows(u"select RigAlias from tblRig order by ID"_s); }
};

/// A screen that writes when it is told.
class WritingForm : public CountingForm {
 public:
  using CountingForm::CountingForm;
  void TablesChanged(const Changes& changes) override {
    CountingForm::TablesChanged(changes);
    if (told == 1) Upkeep(u"Sub WritingForm"_s, [] { UpdateTableBySQL(u"update tblRig set RigAlias = 'Tidy'"_s); });
  }
};

}  // namespace

class TestOperation : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void NothingIsInTheFileBeforeItsEndNotEvenAtABox() {
    Shop shop;
    shop.prompts.ExpectBox(u"Loftkeep"_s, u"half"_s).Meanwhile([&] { QCOMPARE(shop.Rigs(), QStringList()); });
    QVERIFY(Operation(u"Sub Outer"_s, [&] {
      AddRig(u"Blue"_s);
      MsgBox(u"half"_s);
      AddRig(u"Red"_s);
    }));
    QCOMPARE(shop.Rigs(), QStringList({u"Blue"_s, u"Red"_s}));
    QVERIFY(!ConnectionIsOpen);
  }

  void ARoutineThatFailsShowsItsBoxAndTheRestGoesOn() {
    Shop shop;
    shop.prompts.ExpectBox(u"Sub Inner"_s, u"Type mismatch"_s);
    QVERIFY(Operation(u"Sub Outer"_s, [&] {
      AddRig(u"Blue"_s);
      QVERIFY(!Operation(u"Sub Inner"_s, [&] {
        AddRig(u"Red"_s);
        throw Failure(u"Type mismatch"_s);
      }));
      AddRig(u"Green"_s);
    }));
    QCOMPARE(shop.Rigs(), QStringList({u"Blue"_s, u"Red"_s, u"Green"_s}));
  }

  void AFullDiskTakesAllOfItBackWithOneBox() {
    Shop shop;
    AddRig(u"Old"_s);
    const QStringList before = shop.loft.Snapshot();
    FillDisk();
    bool wentOn = false;
    shop.prompts.ExpectBox(u"Sub Outer"_s, kFull);
    QVERIFY(!Operation(u"Sub Outer"_s, [&] {
      AddRig(u"Blue"_s);
      Operation(u"Sub Middle"_s, [&] {
        Trap(u"Sub Inner"_s, [&] { UpdateTable(u"tblRig"_s, u"Comment"_s, kLong, u"ID"_s, 1); });
        wentOn = true;
      });
      wentOn = true;
    }));
    QVERIFY(!wentOn);
    QVERIFY(!OperationScope::AnyStands());
    QVERIFY(!ConnectionIsOpen);
    FreeDisk();
    QCOMPARE(shop.loft.Snapshot(), before);
    AddRig(u"New"_s);
    QCOMPARE(shop.Rigs(), QStringList({u"Old"_s, u"New"_s}));
  }

  void NothingIsWrittenAfterAFailureThatWasCaughtOnTheWay() {
    Shop shop;
    AddRig(u"Old"_s);
    const QStringList before = shop.loft.Snapshot();
    FillDisk();
    shop.prompts.ExpectBox(u"Sub Outer"_s, kFull);
    Operation(u"Sub Outer"_s, [&] {
      try {
        UpdateTable(u"tblRig"_s, u"Comment"_s, kLong, u"ID"_s, 1);
      } catch (const StorageFailure&) {
        // a routine that swallows it
      }
      AddRig(u"Ghost"_s);
    });
    FreeDisk();
    QCOMPARE(shop.loft.Snapshot(), before);
  }

  void AFailureBehindABoxIsToldThereAndEndsTheOneOutsideToo() {
    Shop shop;
    AddRig(u"Old"_s);
    const QStringList before = shop.loft.Snapshot();
    FillDisk();
    shop.prompts.ExpectBox(u"Loftkeep"_s, u"wait"_s).Meanwhile([] {
      UpdateTable(u"tblRig"_s, u"Comment"_s, kLong, u"ID"_s, 1);
    });
    shop.prompts.ExpectBox(u"Sub UpdateTable()"_s, kFull);
    shop.prompts.ExpectBox(u"Sub Outer"_s, kFull);
    QVERIFY(!Operation(u"Sub Outer"_s, [&] {
      AddRig(u"Blue"_s);
      MsgBox(u"wait"_s);
    }));
    FreeDisk();
    QCOMPARE(shop.loft.Snapshot(), before);
  }

  void AStatementThatBreaksKeepsWhatWasWritten() {
    Shop shop;
    const QString statement = u"update tblRig set RigAlias = 'O'Brien'"_s;
    shop.prompts.ExpectBox(u"Sub UpdateTableBySQL(MySQL)"_s,
                           u"Syntax error in string in query expression '%1'.\nThe following SQL statement caused on "
                           "error\n\nSQL = %1\n"_s.arg(statement));
    QVERIFY(Operation(u"Sub Outer"_s, [&] {
      AddRig(u"Blue"_s);
      UpdateTableBySQL(statement);
    }));
    QCOMPARE(shop.Rigs(), QStringList(u"Blue"_s));
  }

  void ScreensAreToldOnceAfterTheCommit() {
    Shop shop;
    const CountingForm rigs(u"frmGetRig"_s, {u"tblRig"_s});
    const CountingForm people(u"frmPeople"_s, {u"tblPeople"_s});
    Operation(u"Sub Outer"_s, [&] {
      AddRig(u"Blue"_s);
      AddRig(u"Red"_s);
      QCOMPARE(rigs.told, 0);
    });
    QCOMPARE(rigs.told, 1);
    QCOMPARE(people.told, 0);
  }

  void ValuesThatStayTheSameAndRememberedIdsAreNoChange() {
    Shop shop;
    AddRig(u"Blue"_s);
    const CountingForm screen(u"frmGetRig"_s, {u"tblRig"_s, u"tblMisc"_s});
    UpdateTable(u"tblRig"_s, u"RigAlias"_s, u"Blue"_s, u"ID"_s, 1);
    UpdateTableBySQL(u"update tblMisc set LastJobID = 17"_s);
    QCOMPARE(screen.told, 0);
    UpdateTableBySQL(u"update tblMisc set RepackCycle = 120"_s);
    QCOMPARE(screen.told, 1);
  }

  void AScreenThatWritesWhenItIsToldIsToldOfIt() {
    Shop shop;
    WritingForm screen(u"frmGetRig"_s, {u"tblRig"_s});
    AddRig(u"Blue"_s);
    QCOMPARE(screen.told, 2);
    QCOMPARE(shop.Rigs(), QStringList(u"Tidy"_s));
  }

  void ATakenBackOperationTellsNobody() {
    Shop shop;
    AddRig(u"Old"_s);
    const CountingForm screen(u"frmGetRig"_s, {u"tblRig"_s});
    FillDisk();
    shop.prompts.ExpectBox(u"Sub UpdateTable()"_s, kFull);
    UpdateTable(u"tblRig"_s, u"Comment"_s, kLong, u"ID"_s, 1);
    FreeDisk();
    QCOMPARE(screen.told, 0);
  }

  /// The journal is cut to nothing, which ends the transaction, and bringing that to the disk fails.
  void ACommitThatFailsWhenAllIsWrittenIsNotToldToBeUndone_data() {
    QTest::addColumn<FaultyDisk::Fault>("fault");
    QTest::newRow("once") << FaultyDisk::Fault::Once;
    QTest::newRow("so that nobody can look what came of it") << FaultyDisk::Fault::FromThenOn;
  }
  void ACommitThatFailsWhenAllIsWrittenIsNotToldToBeUndone() {
    QFETCH(FaultyDisk::Fault, fault);
    Shop shop;
    AddRig(u"Old"_s);
    ReleaseDatabaseFile();
    FaultyDisk disk(shop.loft.DatabaseFile());
    disk.FailAt();
    AddRig(u"Blue"_s);
    const auto requests = static_cast<int>(disk.Requests().size());
    QCOMPARE(disk.Requests().last(), FaultyDisk::Request::Sync);
    ReleaseDatabaseFile();

    disk.FailAt(requests - 1, fault);
    shop.prompts.ExpectBox(u"Sub AddRig"_s, u"disk I/O error"_s);
    const CountingForm screen(u"frmGetRig"_s, {u"tblRig"_s});
    AddRig(u"Red"_s);
    QVERIFY(disk.HasFailed());
    disk.Mend();
    QCOMPARE(screen.told, fault == FaultyDisk::Fault::Once ? 1 : 0);
    QCOMPARE(shop.Rigs(), QStringList({u"Old"_s, u"Blue"_s, u"Red"_s}));
  }

  void UpkeepThatIsRefusedIsTheProgramsOwnMatter() {
    Shop shop;
    AddRig(u"Old"_s);
    FillDisk();
    shop.prompts.ExpectBox(u"Sub Tidy"_s, u"There is not enough space on the disk."_s);
    QVERIFY(!Upkeep(u"Sub Tidy"_s, [] { UpdateTable(u"tblRig"_s, u"Comment"_s, kLong, u"ID"_s, 1); }));
    FreeDisk();
  }

  void WhatCantBeReadEndsTheWholeEventWithOneBox() {
    Shop shop;
    AddRig(u"Old"_s);
    FaultyDisk disk(shop.loft.DatabaseFile());
    ReleaseDatabaseFile();
    { const Bracket opens; }
    bool wentOn = false;
    shop.prompts.ExpectBox(u"Function LoadRigs"_s, u"disk I/O error"_s);
    disk.FailAt(0, FaultyDisk::Fault::FromThenOn);
    FollowEvent(SetOff::ByPerson, [&] {
      Operation(u"Function LoadRigs"_s, [] { GetNumberRecordsInTable(u"tblRig"_s); });
      wentOn = true;
    });
    QVERIFY(!wentOn);
    FollowEvent(SetOff::ByProgram, [] { GetNumberRecordsInTable(u"tblRig"_s); });  // the person knows already

    shop.prompts.ExpectBox(u"Function GetNumberRecordsInTable(TableName As String)"_s, u"disk I/O error"_s);
    FollowEvent(SetOff::ByPerson, [] { GetNumberRecordsInTable(u"tblRig"_s); });
    disk.Mend();
    QCOMPARE(shop.Rigs(), QStringList(u"Old"_s));
  }

  void WhatCantBeWrittenIsToldAndTheEventGoesOn() {
    Shop shop;
    AddRig(u"Old"_s);
    FillDisk();
    bool wentOn = false;
    shop.prompts.ExpectBox(u"Sub UpdateTable()"_s, kFull);
    FollowEvent(SetOff::ByPerson, [&] {
      UpdateTable(u"tblRig"_s, u"Comment"_s, kLong, u"ID"_s, 1);
      UpdateTable(u"tblRig"_s, u"Comment"_s, kLong, u"ID"_s, 1);
      wentOn = true;
    });
    QVERIFY(wentOn);
    FreeDisk();
  }

  void NamesAreMadeOfTheRoutinesOwn() {
    QCOMPARE(OperationName(u"Sub DeleteAllTasks"_s).Words(), u"Delete all tasks"_s);
    QCOMPARE(OperationName(u"Sub UpdateTableBySQL(MySQL)"_s).Words(), u"Update table by SQL"_s);
    QCOMPARE(OperationName(u"Function GetValueFromTable "_s).Words(), u"Get value from table"_s);
    QCOMPARE(OperationName(u"Sub DeleteJob"_s, u"Delete job Blue"_s).Words(), u"Delete job Blue"_s);
  }

  void TheFileIsNotLetGoOfInTheMiddle() {
    Shop shop;
    shop.prompts.ExpectBox(u"Sub Outer"_s, u"The database file is in use."_s);
    Operation(u"Sub Outer"_s, [] { ReleaseDatabaseFile(); });
  }
};

LOFT_TEST_MAIN(TestOperation)
#include "tst_operation.moc"
