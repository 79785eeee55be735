#include <QtTest>

#include "core/failure.h"
#include "core/files.h"
#include "core/long_work.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/trap.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"
#include "support/work_watch.h"

using namespace Qt::StringLiterals;

namespace {

void AddRig(const QString& alias) {
  Operation(u"Sub AddRig"_s, [&] { UpdateTableBySQL(u"insert into tblRig (RigAlias) values ('%1')"_s.arg(alias)); });
}

class Shop {
 public:
  ThrowAwayLoft loft;
  ScriptedPrompts prompts;
  WorkWatch watch;
};

}  // namespace

/// How work that takes long tells how far it is, and how it ends early.
class LongWorkTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void QuickWorkShowsNothing() {
    WorkWatch watch;
    {
      LongWork work(u"Quick"_s, 1000);
      for (int i = 0; i < 1000; ++i) work.Step();
      QCOMPARE(work.Done(), 1000);
    }
    QCOMPARE(watch.shown.size(), 0);
  }

  void WorkThatTakesAWhileShowsHowMuchIsDone() {
    WorkWatch watch;
    {
      LongWork work(u"Counting"_s, 5);
      work.Step();
      WorkWatch::LetTimePass();
      work.Step();
      QVERIFY(watch.isShown);
      QCOMPARE(watch.shown.size(), 1);
      QCOMPARE(watch.shown[0].caption, u"Counting"_s);
      QCOMPARE(watch.shown[0].done, 2);
      QCOMPARE(watch.shown[0].total, 5);
      QVERIFY(watch.shown[0].canCancel);
      work.Step();
      QCOMPARE(watch.shown.size(), 1);  // not at every step
      QThread::msleep(60);
      work.SetTotal(8);
      work.Done(7);
      QCOMPARE(watch.shown.size(), 2);
      QCOMPARE(watch.shown[1].done, 7);
      QCOMPARE(watch.shown[1].total, 8);
    }
    QVERIFY(!watch.isShown);
  }

  void WorkInsideOtherWorkIsAPartOfIt() {
    WorkWatch watch;
    watch.cancels = true;
    {
      LongWork outer(u"Outer"_s, 3);
      outer.Step();
      WorkWatch::LetTimePass();
      {
        LongWork inner(u"Inner"_s, 70, LongWork::Cancelling::Impossible);
        QVERIFY_THROWS_EXCEPTION(WorkCancelled, inner.Step(40));
      }
      QVERIFY(watch.isShown);
      QVERIFY(outer.Cancelled());
    }
    QCOMPARE(watch.shown.size(), 1);
    QCOMPARE(watch.shown[0].caption, u"Outer"_s);
    QCOMPARE(watch.shown[0].done, 1);
    LongWork next(u"Next"_s);
    QVERIFY(!next.Cancelled());
  }

  void ARoutineThatKnowsOfNoWorkKeepsTheFormAlive() {
    WorkWatch watch;
    LongWork::GoesOn();
    LongWork work(u"Outer"_s, 3);
    WorkWatch::LetTimePass();
    LongWork::GoesOn();
    QCOMPARE(watch.shown.size(), 1);
  }

  void WorkThatCantBeCancelledGoesOn() {
    WorkWatch watch;
    watch.cancels = true;
    LongWork work(u"Copying"_s, 3, LongWork::Cancelling::Impossible);
    WorkWatch::LetTimePass();
    work.Step();
    QVERIFY(!watch.shown[0].canCancel);
    QVERIFY(!work.Cancelled());
  }

  void CancelledWorkTakesTheWholeOperationBackAndShowsNoBox() {
    Shop shop;
    AddRig(u"Old"_s);
    const QStringList before = shop.loft.Snapshot();
    const QStringList record = shop.loft.Rows(u"select id, name from loft_operations"_s);
    shop.watch.cancels = true;
    bool wentOn = false;
    QVERIFY(!Operation(u"Sub Outer"_s, [&] {
      AddRig(u"Blue"_s);
      Operation(u"Sub Inner"_s, [&] {
        Trap(u"Sub Innermost"_s, [&] {
          LongWork work(u"Adding"_s, 9);
          AddRig(u"Red"_s);
          WorkWatch::LetTimePass();
          work.Step();
          wentOn = true;
        });
        wentOn = true;
      });
      wentOn = true;
    }));
    QVERIFY(!wentOn);
    QVERIFY(!shop.watch.isShown);
    QVERIFY(!OperationScope::AnyStands());
    QVERIFY(!ConnectionIsOpen);
    QCOMPARE(shop.loft.Snapshot(), before);
    QCOMPARE(shop.loft.Rows(u"select id, name from loft_operations"_s), record);
    AddRig(u"New"_s);
    QCOMPARE(shop.loft.Rows(u"select RigAlias from tblRig order by ID"_s), (QStringList{u"Old"_s, u"New"_s}));
  }

  void WithoutAnOperationItEndsTheRoutine() {
    const ScriptedPrompts prompts;
    WorkWatch watch;
    watch.cancels = true;
    bool wentOn = false;
    QVERIFY(!Trap(u"Sub CopyAll"_s, [&] {
      LongWork work(u"Copying"_s);
      WorkWatch::LetTimePass();
      work.Step();
      wentOn = true;
    }));
    QVERIFY(!wentOn);
    watch.cancels = true;
    QVERIFY_THROWS_EXCEPTION(WorkCancelled, {
      const AllOrNothing whole;
      LongWork work(u"Reading"_s);
      WorkWatch::LetTimePass();
      Trap(u"Sub Read"_s, [&] { work.Step(); });
    });
  }

  void AnOperationThatWaitsForThePersonIsNotCancelledFromWithin() {
    Shop shop;
    shop.watch.cancels = true;
    shop.prompts.ExpectBox(u"Loftkeep"_s, u"half"_s).Meanwhile([&] {
      QVERIFY(Operation(u"Sub Inner"_s, [&] {
        LongWork work(u"Adding"_s);
        AddRig(u"Red"_s);
        WorkWatch::LetTimePass();
        work.Step();
      }));
    });
    QVERIFY(Operation(u"Sub Outer"_s, [&] {
      AddRig(u"Blue"_s);
      MsgBox(u"half"_s);
    }));
    QVERIFY(!shop.watch.shown[0].canCancel);
    QCOMPARE(shop.loft.Rows(u"select RigAlias from tblRig order by ID"_s), (QStringList{u"Blue"_s, u"Red"_s}));
  }

  void AFailureTakesTheFormAwayBeforeItsBox() {
    Shop shop;
    shop.prompts.ExpectBox(u"Sub Outer"_s, u"Type mismatch"_s).Meanwhile([&] { QVERIFY(!shop.watch.isShown); });
    QVERIFY(!Operation(u"Sub Outer"_s, [&] {
      LongWork work(u"Adding"_s);
      WorkWatch::LetTimePass();
      work.Step();
      QVERIFY(shop.watch.isShown);
      throw Failure(u"Type mismatch"_s);
    }));
  }

  void WhatRunsMeanwhileIsNotBelowTheWork() {
    Shop shop;
    shop.prompts.ExpectBox(u"Sub Tick"_s, u"Disk gone"_s);
    shop.watch.meanwhile = [] {
      QVERIFY(!OperationScope::Stands());
      QVERIFY(!Trap(u"Sub Tick"_s, [] { throw StorageFailure(u"Disk gone"_s); }));
      LongWork::GoesOn();
    };
    QVERIFY(Operation(u"Sub Outer"_s, [&] {
      LongWork work(u"Adding"_s);
      AddRig(u"Blue"_s);
      WorkWatch::LetTimePass();
      work.Step();
    }));
    QCOMPARE(shop.watch.shown.size(), 1);
    QCOMPARE(shop.loft.Rows(u"select RigAlias from tblRig"_s), QStringList(u"Blue"_s));
  }

  void AReadingThatIsAllOrNothingDoesNotHoldWhatRunsMeanwhile() {
    ScriptedPrompts prompts;
    prompts.ExpectBox(u"Sub Tick"_s, u"Type mismatch"_s);
    WorkWatch watch;
    watch.meanwhile = [] { QVERIFY(!Trap(u"Sub Tick"_s, [] { throw Failure(u"Type mismatch"_s); })); };
    const AllOrNothing whole;
    LongWork work(u"Reading"_s);
    WorkWatch::LetTimePass();
    work.Step();
    QCOMPARE(watch.shown.size(), 1);
    QVERIFY_THROWS_EXCEPTION(Failure, Trap(u"Sub Read"_s, [] { throw Failure(u"Type mismatch"_s); }));
  }

  void ACancelledCopyLeavesTheOldFile() {
    const ScriptedPrompts prompts;
    const TempFolder folder;
    const QString from = folder.Write(u"from.jpg"_s, QByteArray(3 << 20, 'x'));
    const QString to = folder.Write(u"to.jpg"_s, "old");
    WorkWatch watch;
    watch.cancels = true;
    LongWork work(u"Copying"_s, 1);
    WorkWatch::LetTimePass();
    QVERIFY(!MyFileCopy(from, to));
    QCOMPARE(folder.Read(u"to.jpg"_s), QByteArray("old"));
    QCOMPARE(folder.Names(), (QStringList{u"from.jpg"_s, u"to.jpg"_s}));
  }
};

LOFT_TEST_MAIN(LongWorkTest)
#include "tst_long_work.moc"
