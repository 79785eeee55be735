#include <QDir>
#include <QTest>

#include <sqlite3.h>

#include "core/failure.h"
#include "core/store/access.h"
#include "core/store/database.h"
#include "support/faulty_disk.h"
#include "support/scripted_prompts.h"
#include "support/store_fixture.h"
#include "support/test_program.h"

namespace {

using namespace Qt::StringLiterals;

/// A bracket that writes two tables which must agree: `count` people, and the number of them as the last customer.
void AddOnePerson(int count) {
  Bracket bracket;
  Recordset people(u"tblPeople"_s);
  people.AddNew();
  people.Set(u"LastName", QString(400 * (count % 7), u'x').left(50));
  people.Set(u"Comment", QString(900 * (count % 5), u'x'));
  people.Update();
  UpdateTableBySQL(u"update tblMisc set LastCustomerID = "_s + QString::number(count));
}

int Number(Database& database, const char* statement) {
  sqlite3_stmt* prepared = database.Plain(statement);
  return database.Step(prepared) ? sqlite3_column_int(prepared, 0) : -1;
}

}  // namespace

class PowerCutTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void WhatWasAcknowledgedIsThereAndNothingIsHalfWritten_data() {
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 4; ++seed) QTest::addRow("seed %u", seed) << seed;
  }
  void WhatWasAcknowledgedIsThereAndNothingIsHalfWritten() {
    QFETCH(quint32, seed);
    ScriptedPrompts prompts;
    StoreFixture store;
    UpdateTableBySQL(u"insert into tblMisc (LastCustomerID) values (0)"_s);
    ReleaseDatabaseFile();

    const QString copies = store.Folder().MakeFolder(u"copies"_s);
    int acknowledged = 0;
    int wrong = 0;
    FaultyDisk disk(store.Path());
    std::mt19937 random(seed);
    int cuts = 0;
    disk.OnEachChange([&] {
      ++cuts;
      const QMap<QString, QByteArray> survivors = disk.Survivors(random);
      for (const char* end : {"", "-journal"}) {
        const QString name = u"copies/loftkeep.mdb"_s + QString::fromLatin1(end);
        if (survivors.contains(QString::fromLatin1(end)))
          store.Folder().Write(name, survivors.value(QString::fromLatin1(end)));
        else
          QFile::remove(store.Folder() / name);
      }
      try {
        Database after(copies + u"/loftkeep.mdb"_s);
        const int people = Number(after, "SELECT count(*) FROM tblPeople");
        const bool whole =
            people == Number(after, "SELECT LastCustomerID FROM tblMisc") &&
            Number(after, "SELECT count(*) FROM pragma_integrity_check WHERE integrity_check <> 'ok'") == 0;
        if (whole && (people == acknowledged || people == acknowledged + 1)) return;
        qWarning("cut %d after %d brackets leaves %d people", cuts, acknowledged, people);
      } catch (const Failure& failure) {  // none may pass through SQLite
        qWarning("cut %d: %s", cuts, failure.what());
      }
      ++wrong;
    });
    for (int count = 1; count <= 12; ++count) {
      AddOnePerson(count);
      acknowledged = count;
    }
    QVERIFY2(cuts > 100, qPrintable(QString::number(cuts)));
    QCOMPARE(wrong, 0);
    ReleaseDatabaseFile();
  }
};

LOFT_TEST_MAIN(PowerCutTest)
#include "tst_power_cut.moc"
