#include <QtTest>

#include "core/failure.h"
#include "core/files.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/store/snapshot.h"
#include "core/trap.h"
#include "support/refusing_disk.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"
#include "support/work_watch.h"

using namespace Qt::StringLiterals;

namespace {

bool AddRig(const QString& alias, const QString& comment = QString()) {
  return Operation(u"Sub AddRig"_s, [&] {
    UpdateTableBySQL(u"insert into tblRig (RigAlias, Comment) values ('%1', '%2')"_s.arg(alias, comment));
  });
}

QStringList RigsOf(Database& file) {
  QStringList rigs;
  for (const Recordset& rig : Rows(file, u"Select * from tblRig order by ID"_s)) rigs << rig[u"RigAlias"].ToText();
  return rigs;
}

/// What lies on the pages of a file from the second on is worth nothing.
void SpoilPages(const QString& path) {
  QFile file(path);
  QVERIFY(file.open(QFile::ReadWrite));
  constexpr int kPage = 4096;
  QVERIFY(file.seek(kPage));
  QVERIFY(file.write(QByteArray(file.size() - kPage, '\xff')) > 0);
}

class Shop {
 public:
  ThrowAwayLoft loft;
  ScriptedPrompts prompts;
  WorkWatch watch;
  QString CopyOfLoft() const {
    ReleaseDatabaseFile();
    return loft.Folder().Write(u"other.mdb"_s, loft.Folder().Read(u"loftkeep.mdb"_s));
  }
};

}  // namespace

/// Files other than the live one, and the live one's likeness, are read beside it, in a worker.
class SnapshotTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void AnotherFileIsReadBesideTheLiveOne() {
    Shop shop;
    AddRig(u"Theirs"_s);
    const QString path = shop.CopyOfLoft();
    UpdateTableBySQL(u"update tblRig set RigAlias = 'Ours'"_s);
    const QByteArray before = shop.loft.Folder().Read(u"other.mdb"_s);
    {
      Bracket bracket;
      Database file(path, Database::Use::Read);
      Recordset theirs(file, u"tblRig"_s);
      for (Recordset& ours : Rows(u"Select * from tblRig"_s)) {
        QCOMPARE(ours[u"RigAlias"].ToText(), u"Ours"_s);
        ours.Set(u"RigAlias", theirs[u"RigAlias"]);
        ours.Update();
      }
      QCOMPARE(theirs[u"RigAlias"].ToText(), u"Theirs"_s);
      QVERIFY_THROWS_EXCEPTION(Failure, file.Execute(u"update tblRig set RigAlias = 'Spoiled'"_s));
      bracket.Close();
    }
    QCOMPARE(shop.loft.Rows(u"select RigAlias from tblRig"_s), QStringList(u"Theirs"_s));
    QCOMPARE(shop.loft.Folder().Read(u"other.mdb"_s), before);
  }

  void AWorkerReadsWithoutTheSharedConnection() {
    Shop shop;
    AddRig(u"Blue"_s);
    const QString path = shop.CopyOfLoft();
    const QString live = std::exchange(ConnectionString, QString());
    LongWork work(u"Reading"_s);
    Qt::HANDLE thread = nullptr;
    const QStringList rigs = ReadAside(work, path, [&](Database& file) {
      thread = QThread::currentThreadId();
      return RigsOf(file);
    });
    ConnectionString = live;
    QCOMPARE(rigs, QStringList(u"Blue"_s));
    QVERIFY(thread != nullptr && thread != QThread::currentThreadId());
    QVERIFY(!ConnectionIsOpen);
  }

  void TheFormIsAliveWhileAWorkerReads() {
    Shop shop;
    LongWork work(u"Reading"_s, 4);
    const int answer = InWorker(work, [&] {
      work.Done(3);
      WorkWatch::LetTimePass();
      WorkWatch::LetTimePass();
      return 42;
    });
    QCOMPARE(answer, 42);
    QVERIFY(shop.watch.shown.size() >= 3);
    QCOMPARE(shop.watch.shown.last().done, 3);
    QCOMPARE(shop.watch.shown.last().total, 4);
  }

  void ACancelledWorkerEnds() {
    Shop shop;
    shop.watch.cancels = true;
    LongWork work(u"Reading"_s);
    bool ended = false;
    const auto readForEver = [&] {
      InWorker(work, [&] {
        while (true) {
          QThread::msleep(1);
          work.Step();
        }
      });
      ended = true;
    };
    QVERIFY(!Trap(u"Sub Read"_s, readForEver));
    QVERIFY(!ended && work.Done() > 1);
  }

  void TheFailureOfAWorkerIsTheBoxOfItsRoutine_data() {
    QTest::addColumn<QString>("text");
    QTest::newRow("missing") << u"Could not find file '%1'."_s;
    QTest::newRow("words") << u"Unrecognized database format '%1'."_s;
    QTest::newRow("spoiled") << u"Unrecognized database format '%1'."_s;
    QTest::newRow("other tables") << u"Could not find the table 'tblRig'."_s;
  }
  void TheFailureOfAWorkerIsTheBoxOfItsRoutine() {
    QFETCH(QString, text);
    Shop shop;
    const QString given = QString::fromLatin1(QTest::currentDataTag());
    const QString path = shop.loft.Folder() / u"other.mdb"_s;
    if (given == "words"_L1) shop.loft.Folder().Write(u"other.mdb"_s, "no database at all");
    if (given == "spoiled"_L1) SpoilPages(shop.CopyOfLoft());
    if (given == "other tables"_L1) Database::CreateFile(path);
    const QStringList before = shop.loft.Snapshot();
    shop.prompts.ExpectBox(u"Sub ShowCounts"_s, text.contains(u"%1"_s) ? text.arg(path) : text);
    QVERIFY(!Trap(u"Sub ShowCounts"_s, [&] {
      LongWork work(u"Reading"_s);
      ReadAside(work, path, RigsOf);
    }));
    QCOMPARE(shop.loft.Snapshot(), before);
    QCOMPARE(shop.loft.Folder().Has(u"other.mdb"_s), given != "missing"_L1);
  }

  void ASnapshotIsWhatTheLiveFileHolds() {
    Shop shop;
    for (int i = 0; i < 50; ++i) AddRig(u"Rig %1"_s.arg(i), QString(500, u'x'));
    const QStringList live = shop.loft.Snapshot();
    const QStringList files = shop.loft.Folder().Names();
    {
      const Snapshot snapshot;
      QStringList rows;
      for (const QString& table : RowsOfFile(snapshot.Path(),
                                             u"select name from sqlite_master where type = 'table' and name not like "
                                             "'sqlite%' and name not like 'loft%' order by name"_s))
        for (const QString& row : RowsOfFile(snapshot.Path(), u"select * from [%1] order by rowid"_s.arg(table)))
          rows << table + u'|' + row;
      QCOMPARE(rows, live);
      QCOMPARE(RowsOfFile(snapshot.Path(), u"pragma integrity_check"_s), QStringList(u"ok"_s));
      QCOMPARE(RowsOfFile(snapshot.Path(), u"select count(*) from sqlite_master"_s),
               shop.loft.Rows(u"select count(*) from sqlite_master"_s));
      shop.prompts.ExpectBox(u"Sub Second"_s, u"Could not use '%1'; file already in use."_s.arg(snapshot.Path()));
      Trap(u"Sub Second"_s, [] { const Snapshot second; });
      QVERIFY(ExistFile(snapshot.Path()));
    }
    QCOMPARE(shop.loft.Folder().Names(), files);
  }

  void TheLiveFileIsWrittenWhileAWorkerReadsItsSnapshot() {
    Shop shop;
    AddRig(u"Old"_s);
    LongWork work(u"Reading"_s);
    const Snapshot snapshot;
    std::atomic<bool> written = false;
    shop.watch.meanwhile = [&] {
      if (!written) written = AddRig(u"New"_s);
    };
    const QStringList read = ReadAside(work, snapshot.Path(), [&](Database& file) {
      Recordset first(file, u"Select * from tblRig order by ID"_s);
      for (int i = 0; i < 500 && !written; ++i) QThread::msleep(10);
      return RigsOf(file);
    });
    QVERIFY(written);
    QCOMPARE(read, QStringList(u"Old"_s));
    QCOMPARE(shop.loft.Rows(u"select RigAlias from tblRig order by ID"_s), (QStringList{u"Old"_s, u"New"_s}));
  }

  void WhatABracketHasWrittenIsInTheSnapshot() {
    Shop shop;
    Bracket bracket;
    UpdateTableBySQL(u"insert into tblRig (RigAlias) values ('Blue')"_s);
    const Snapshot snapshot;
    QCOMPARE(RowsOfFile(snapshot.Path(), u"select RigAlias from tblRig"_s), QStringList(u"Blue"_s));
    bracket.Close();
  }

  void AnOperationThatStandsHasNoSnapshot() {
    Shop shop;
    shop.prompts.ExpectBox(u"Sub Outer"_s, u"The database file is in use."_s);
    Operation(u"Sub Outer"_s, [&] {
      AddRig(u"Half"_s);
      const Snapshot snapshot;
    });
    QVERIFY(!shop.loft.Folder().Has(u"loftkeep.mdb.scratch"_s));
    QCOMPARE(shop.loft.Rows(u"select RigAlias from tblRig"_s), QStringList(u"Half"_s));
  }

  void ASnapshotThatDoesNotFitOrIsCancelledLeavesNothing() {
    Shop shop;
    for (int i = 0; i < 20; ++i) AddRig(u"Big"_s, QString(200000, u'x'));
    const QStringList files = shop.loft.Folder().Names();
    bool made = false;
    {
      const FullDisk disk(100000);
      shop.prompts.ExpectBox(u"Sub Read"_s, u"disk I/O error"_s);
      Trap(u"Sub Read"_s, [&] {
        const Snapshot snapshot;
        made = true;
      });
    }
    shop.watch.cancels = true;
    Trap(u"Sub Read"_s, [&] {
      LongWork work(u"Reading"_s);
      WorkWatch::LetTimePass();
      const Snapshot snapshot;
      made = true;
    });
    QVERIFY(!made);
    QCOMPARE(shop.loft.Folder().Names(), files);
    QVERIFY(AddRig(u"Next"_s));
  }

  void WhatACrashLeftBesideTheLoftGoes() {
    Shop shop;
    shop.loft.Folder().Write(u"loftkeep.mdb.scratch"_s, "half a snapshot");
    shop.loft.Folder().Write(u"loftkeep.mdb.scratch-journal"_s, "its journal");
    { const Snapshot snapshot; }
    for (const QString& name : shop.loft.Folder().Names()) QVERIFY2(!name.contains(u"scratch"_s), qPrintable(name));
  }
};

LOFT_TEST_MAIN(SnapshotTest)
#include "tst_snapshot.moc"
