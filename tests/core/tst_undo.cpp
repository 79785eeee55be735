#include <QtTest>

#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/store/undo.h"
#include "support/counting_form.h"
#include "support/fixed_clock.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

namespace {

class Shop {
 public:
  Shop() : clock(2026, 3, 2), start(loft.Snapshot()) {}

  int AddRig(const QString& alias) const {
    int id = 0;
    Operation(u"Sub AddRig"_s, [&] {
      Recordset rigs(u"tblRig"_s);
      rigs.AddNew();
      rigs.Set(u"RigAlias", alias);
      rigs.Update();
      id = rigs[u"ID"].ToInt();
    });
    return id;
  }

  FixedClock clock;
  ThrowAwayLoft loft;
  ScriptedPrompts prompts;
  QStringList start;
};

}  // namespace

class TestUndo : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void AFreshLoftHasNothingToTakeBack() {
    const Shop shop;
    QVERIFY(!NextUndo());
    QVERIFY(!NextRedo());
    QVERIFY(!UndoOperation());
    QVERIFY(RecentOperations().isEmpty());
  }

  void AddedChangedAndDeletedRowsComeBackAsTheyWere() {
    const Shop shop;
    const int blue = shop.AddRig(u"Blue"_s);
    const QStringList added = shop.loft.Snapshot();
    Operation(u"Sub RenameRig"_s, [&] {
      UpdateTable(u"tblRig"_s, u"RigAlias"_s, u"Green"_s, u"ID"_s, blue);
      UpdateTable(u"tblRig"_s, u"Comment"_s, QString(5000, u'ä'), u"ID"_s, blue);
      shop.AddRig(u"Red"_s);
    });
    const QStringList renamed = shop.loft.Snapshot();
    DeleteRecordsFromTable(u"tblRig"_s, u"ID"_s, blue);
    const QStringList deleted = shop.loft.Snapshot();

    QCOMPARE(NextUndo()->name, u"Delete records from table"_s);
    QVERIFY(UndoOperation());
    QCOMPARE(shop.loft.Snapshot(), renamed);
    QCOMPARE(NextUndo()->name, u"Rename rig"_s);
    QCOMPARE(NextRedo()->name, u"Delete records from table"_s);
    QVERIFY(UndoOperation());
    QCOMPARE(shop.loft.Snapshot(), added);
    QVERIFY(UndoOperation());
    QCOMPARE(shop.loft.Snapshot(), shop.start);
    QVERIFY(!NextUndo());

    QVERIFY(RedoOperation());
    QCOMPARE(shop.loft.Snapshot(), added);
    QVERIFY(RedoOperation());
    QVERIFY(RedoOperation());
    QVERIFY(!RedoOperation());
    QCOMPARE(shop.loft.Snapshot(), deleted);
  }

  void TablesWithoutAKeyComeBackRowByRow() {
    const Shop shop;
    for (int component : {7, 7, 8})
      shop.loft.Add(u"tblJobComponents"_s, {{u"JobID"_s, 1}, {u"ComponentID"_s, component}});
    const QStringList before = shop.loft.Snapshot();
    DeleteRecordsFromTable(u"tblJobComponents"_s, u"ComponentID"_s, 7);
    QVERIFY(UndoOperation());
    QCOMPARE(shop.loft.Snapshot(), before);
    QVERIFY(RedoOperation());
    QCOMPARE(shop.loft.Rows(u"select ComponentID from tblJobComponents"_s), QStringList(u"8"_s));
  }

  void WholeNumbersInColumnsOfFractionsComeBack() {
    const Shop shop;
    Operation(u"Sub AddLocation"_s, [] {
      Recordset locations(u"tblLocation"_s);
      locations.AddNew();
      locations.Set(u"TaxRate", 7.0);
      locations.Update();
    });
    QVERIFY(UndoOperation());
    QCOMPARE(shop.loft.Snapshot(), shop.start);
  }

  void ItIsRememberedAcrossRuns() {
    const Shop shop;
    shop.AddRig(u"Blue"_s);
    ReleaseDatabaseFile();
    const auto next = NextUndo();
    QVERIFY(next);
    QCOMPARE(next->name, u"Add rig"_s);
    QCOMPARE(next->rows, 1);
    QCOMPARE(next->at.Days(), Date::FromParts(2026, 3, 2).Days());
    QVERIFY(UndoOperation());
    QCOMPARE(shop.loft.Snapshot(), shop.start);
  }

  void SomethingNewEndsTheWayForth() {
    const Shop shop;
    shop.AddRig(u"Blue"_s);
    QVERIFY(UndoOperation());
    QVERIFY(NextRedo());
    shop.AddRig(u"Red"_s);
    QVERIFY(!NextRedo());
    QCOMPARE(RecentOperations().size(), 1);
  }

  void WhatWasChangedSinceIsNotOverwritten() {
    Shop shop;
    const int blue = shop.AddRig(u"Blue"_s);
    UpdateTable(u"tblRig"_s, u"RigAlias"_s, u"Green"_s, u"ID"_s, blue);
    UnrecordedOperation(u"Sub Other"_s, [&] { UpdateTable(u"tblRig"_s, u"RigAlias"_s, u"Theirs"_s, u"ID"_s, blue); });
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.ExpectBox(u"Undo"_s,
                           u"\"Update table\" can't be undone:\ntblRig, row 1: rigAlias was changed since\n\n"
                           "Nothing was changed."_s);
    QVERIFY(!UndoOperation());
    QCOMPARE(shop.loft.Snapshot(), before);
    QVERIFY(NextUndo());
  }

  void AChangeOfAnotherColumnIsNotInTheWay() {
    const Shop shop;
    const int blue = shop.AddRig(u"Blue"_s);
    UpdateTable(u"tblRig"_s, u"RigAlias"_s, u"Green"_s, u"ID"_s, blue);
    UnrecordedOperation(u"Sub Other"_s, [&] { UpdateTable(u"tblRig"_s, u"Comment"_s, u"c"_s, u"ID"_s, blue); });
    QVERIFY(UndoOperation());
    QCOMPARE(shop.loft.Rows(u"select RigAlias, Comment from tblRig"_s), QStringList(u"Blue|c"_s));
  }

  void ADeletedRowIsInTheWayAndNothingOfTheRestIsDone() {
    Shop shop;
    const int blue = shop.AddRig(u"Blue"_s);
    Operation(u"Sub Two"_s, [&] {
      UpdateTable(u"tblRig"_s, u"RigAlias"_s, u"Green"_s, u"ID"_s, blue);
      shop.AddRig(u"Red"_s);
    });
    UnrecordedOperation(u"Sub Other"_s, [&] { DeleteRecordsFromTable(u"tblRig"_s, u"ID"_s, blue); });
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.ExpectBox(
        u"Undo"_s, u"\"Two\" can't be undone:\ntblRig, row 1: has been deleted since\n\nNothing was changed."_s);
    QVERIFY(!UndoOperation());
    QCOMPARE(shop.loft.Snapshot(), before);
  }

  void WhatWasShownLastIsNeitherKeptNorInTheWay() {
    const Shop shop;
    UpdateTableBySQL(u"update tblMisc set LastJobID = 3"_s);
    QVERIFY(!NextUndo());
    Operation(u"Sub Empty"_s, [] { DeleteAllRecords(u"tblMisc"_s, false); });
    QVERIFY(UndoOperation());
    UpdateTableBySQL(u"update tblMisc set LastJobID = 4"_s);
    QVERIFY(RedoOperation());
    QVERIFY(UndoOperation());
    QCOMPARE(shop.loft.Rows(u"select count(*) from tblMisc"_s), QStringList(u"1"_s));
  }

  void UpkeepIsTakenBackWithTheOperationBeforeIt() {
    const Shop shop;
    const int blue = shop.AddRig(u"Blue"_s);
    Upkeep(u"Sub Tidy"_s, [&] { UpdateTable(u"tblRig"_s, u"Comment"_s, u"tidy"_s, u"ID"_s, blue); });
    const QStringList tidy = shop.loft.Snapshot();
    QCOMPARE(RecentOperations().size(), 1);
    QVERIFY(UndoOperation());
    QCOMPARE(shop.loft.Snapshot(), shop.start);
    QVERIFY(RedoOperation());
    QCOMPARE(shop.loft.Snapshot(), tidy);
  }

  void ScreensAreToldOfIt() {
    const Shop shop;
    shop.AddRig(u"Blue"_s);
    const CountingForm screen(u"frmGetRig"_s, {u"tblRig"_s});
    QVERIFY(UndoOperation());
    QCOMPARE(screen.told, 1);
  }

  void AFailedStatementLeavesNoTraceInTheRecord() {
    Shop shop;
    // The second row does not fit, so SQLite takes the first one back as well.
    shop.loft.Add(u"tblPeople"_s, {{u"LastName"_s, u"a"_s}, {u"Comment"_s, u"short"_s}});
    shop.loft.Add(u"tblPeople"_s, {{u"LastName"_s, u"b"_s}, {u"Comment"_s, QString(60, u'x')}});
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.AnswerRestWith([](const ShownPrompt&) { return Answer::Ok; });
    Operation(u"Sub Two"_s, [&] {
      UpdateTableBySQL(u"update tblPeople set LastName = Comment"_s);
      shop.AddRig(u"Blue"_s);
    });
    QCOMPARE(shop.prompts.Transcript().size(), 1);
    QCOMPARE(NextUndo()->rows, 1);
    QVERIFY(UndoOperation());
    QCOMPARE(shop.loft.Snapshot(), before);
  }

  void OneThatTookItselfBackIsNotEntered() {
    const Shop shop;
    const int blue = shop.AddRig(u"Blue"_s);
    const QStringList before = shop.loft.Snapshot();
    Operation(u"Sub StartAndCancel"_s, [&] {
      const int red = shop.AddRig(u"Red"_s);
      UpdateTable(u"tblRig"_s, u"RigAlias"_s, u"Green"_s, u"ID"_s, blue);
      UpdateTable(u"tblRig"_s, u"RigAlias"_s, u"Blue"_s, u"ID"_s, blue);
      DeleteRecordsFromTable(u"tblRig"_s, u"ID"_s, red);
    });
    QCOMPARE(shop.loft.Snapshot(), before);
    QCOMPARE(NextUndo()->name, u"Add rig"_s);
    QVERIFY(UndoOperation());
    QCOMPARE(shop.loft.Snapshot(), shop.start);
  }

  void TheOldestGoFirst() {
    const Shop shop;
    const int blue = shop.AddRig(u"Blue"_s);
    const QString large(1500000, u'x');
    for (int i = 0; i < 10; ++i) UpdateTable(u"tblRig"_s, u"Comment"_s, large + QString::number(i), u"ID"_s, blue);
    const QStringList total = shop.loft.Rows(u"select sum(length(changes)) from loft_operations"_s);
    QVERIFY(total.first().toLongLong() <= 20 * 1024 * 1024);
    QVERIFY(total.first().toLongLong() > 10 * 1024 * 1024);
    QVERIFY(UndoOperation());
    QCOMPARE(shop.loft.Rows(u"select substr(Comment, 1500001) from tblRig"_s), QStringList(u"8"_s));
  }

  void TwoHundredOperationsAreKept() {
    const Shop shop;
    const int blue = shop.AddRig(u"Blue"_s);
    for (int i = 0; i < 250; ++i) UpdateTable(u"tblRig"_s, u"Comment"_s, QString::number(i), u"ID"_s, blue);
    QCOMPARE(RecentOperations(1000).size(), 251);
    for (int i = 0; i < 251; ++i) QVERIFY(UndoOperation());
    QCOMPARE(shop.loft.Snapshot(), shop.start);
  }

  void OneThatIsTooLargeBarsTheWayAndSaysSo() {
    Shop shop;
    const int blue = shop.AddRig(u"Blue"_s);
    UpdateTable(u"tblRig"_s, u"Comment"_s, QString(22 * 1024 * 1024, u'x'), u"ID"_s, blue);
    shop.prompts.ExpectBox(u"Undo"_s, u"\"Update table\" changed too much to be taken back."_s);
    QVERIFY(!UndoOperation());
  }
};

LOFT_TEST_MAIN(TestUndo)
#include "tst_undo.moc"
